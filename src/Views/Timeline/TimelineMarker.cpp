#include "Views/Timeline/TimelineMarker.h"

#include "Media/Player.h"
#include "Models/EditState.h"
#include "Views/FocusReasons.h"
#include "Views/Timeline/TimelineEdits.h"
#include "Views/Timeline/TimelineMarkerAccessible.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QKeyEvent>

#include <cmath>
#include <utility>

namespace brisklet {

namespace {

/// How much farther a key goes with Shift.
constexpr int kShiftFactor = 10;

HandleEdge edgeOf(TimelineMarker::Role role) {
    return role == TimelineMarker::Role::trimStart ? HandleEdge::leading : HandleEdge::trailing;
}

} // namespace

std::optional<TimelineMove> TimelineMove::of(int key, Qt::KeyboardModifiers modifiers) {
    const auto others = modifiers & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (others != Qt::NoModifier)
        return std::nullopt;
    const int count = modifiers & Qt::ShiftModifier ? kShiftFactor : 1;
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        return TimelineMove{Kind::byFrames, -count};
    case Qt::Key_Right:
    case Qt::Key_Up:
        return TimelineMove{Kind::byFrames, count};
    case Qt::Key_PageDown:
        return TimelineMove{Kind::bySeconds, -count};
    case Qt::Key_PageUp:
        return TimelineMove{Kind::bySeconds, count};
    case Qt::Key_Home:
        return TimelineMove{Kind::toMinimum};
    case Qt::Key_End:
        return TimelineMove{Kind::toMaximum};
    default:
        return std::nullopt;
    }
}

TimelineMarker::TimelineMarker(std::shared_ptr<EditState> state, Role role, QWidget* strip)
    : QWidget(strip), m_state(std::move(state)), m_role(role) {
    installTimelineMarkerAccessibility();
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    // By Tab only: a click on the strip must not take the arrow keys away from the frame steps.
    setFocusPolicy(Qt::TabFocus);
    switch (role) {
    case Role::trimStart:
        setAccessibleName(tr("Trim start"));
        break;
    case Role::playhead:
        setAccessibleName(tr("Playhead"));
        break;
    case Role::trimEnd:
        setAccessibleName(tr("Trim end"));
        break;
    }
}

double TimelineMarker::value() const {
    switch (m_role) {
    case Role::trimStart:
        return m_state->trimStart();
    case Role::playhead:
        return m_state->currentTime();
    case Role::trimEnd:
        return m_state->trimEnd();
    }
    return 0;
}

double TimelineMarker::minimum() const {
    return m_role == Role::trimEnd ? timeline::geometryOf(*m_state, 0, 0, 0).earliestEnd() : 0;
}

double TimelineMarker::maximum() const {
    return m_role == Role::trimStart ? timeline::geometryOf(*m_state, 0, 0, 0).latestStart()
                                     : m_state->duration();
}

QString TimelineMarker::valueText() const {
    return timeline::shownTime(value());
}

void TimelineMarker::setValue(double seconds) {
    if (!m_state->videoURL() || std::isnan(seconds))
        return;
    if (m_role == Role::playhead)
        m_state->seek(seconds);
    else
        timeline::moveEdge(*m_state, edgeOf(m_role), seconds);
}

void TimelineMarker::announceValue() {
    if (!QAccessible::isActive())
        return;
    // A tenth of a second is all that is ever read out.
    if (QString text = valueText(); text != m_announced) {
        m_announced = std::move(text);
        QAccessibleValueChangeEvent changed(this, value());
        QAccessible::updateAccessibility(&changed);
    }
}

bool TimelineMarker::takesKeys() const {
    // A handle that got the focus only because a window must give it to something would surprise
    // with a range that changes; the playhead does what the arrows do everywhere.
    return m_role == Role::playhead || m_isFocusShown;
}

bool TimelineMarker::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        // The arrows step frames for the window; while a marker has the focus they are its own.
        const auto* key = static_cast<QKeyEvent*>(event);
        if (takesKeys() && TimelineMove::of(key->key(), key->modifiers())) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void TimelineMarker::keyPressEvent(QKeyEvent* event) {
    const auto move = TimelineMove::of(event->key(), event->modifiers());
    if (!move || !takesKeys() || !m_state->videoURL()) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (!std::exchange(m_isFocusShown, true))
        Q_EMIT focusShownChanged();
    apply(*move);
}

void TimelineMarker::apply(const TimelineMove& move) {
    switch (move.kind) {
    case TimelineMove::Kind::byFrames:
        // The playhead goes from frame to frame even where they do not follow the nominal rate.
        if (m_role == Role::playhead)
            m_state->playerController().player()->step(move.count);
        else
            setValue(value() + move.count * timeline::frameDuration(*m_state));
        return;
    case TimelineMove::Kind::bySeconds:
        setValue(value() + move.count);
        return;
    case TimelineMove::Kind::toMinimum:
        setValue(minimum());
        return;
    case TimelineMove::Kind::toMaximum:
        setValue(maximum());
        return;
    }
}

void TimelineMarker::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    if (!isPassingFocus(reason))
        m_isFocusShown =
            isKeyboardFocus(reason) || (reason == Qt::OtherFocusReason && m_role != Role::playhead);
    Q_EMIT focusShownChanged();
    QWidget::focusInEvent(event);
}

void TimelineMarker::focusOutEvent(QFocusEvent* event) {
    if (!isPassingFocus(event->reason()))
        m_isFocusShown = false;
    Q_EMIT focusShownChanged();
    QWidget::focusOutEvent(event);
}

} // namespace brisklet
