#include "Views/Timeline/TimelineMarker.h"

#include "Models/EditState.h"
#include "Views/FocusReasons.h"
#include "Views/Timeline/TimelineLabels.h"
#include "Views/Timeline/TimelineMarkerAccessible.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QKeySequence>

#include <algorithm>
#include <array>
#include <utility>

namespace brisklet {

namespace {

/// How much farther a key goes with Shift.
constexpr int kShiftFactor = 10;

struct KeyMove {
    int key;
    TimelineMove move;
};

/// The keys of a marker that has the focus.
constexpr std::array kKeyMoves{
    KeyMove{Qt::Key_Left, {TimelineMove::Kind::byFrames, -1}},
    KeyMove{Qt::Key_Down, {TimelineMove::Kind::byFrames, -1}},
    KeyMove{Qt::Key_Right, {TimelineMove::Kind::byFrames, 1}},
    KeyMove{Qt::Key_Up, {TimelineMove::Kind::byFrames, 1}},
    KeyMove{Qt::Key_PageDown, {TimelineMove::Kind::bySeconds, -1}},
    KeyMove{Qt::Key_PageUp, {TimelineMove::Kind::bySeconds, 1}},
    KeyMove{Qt::Key_Home, {TimelineMove::Kind::toMinimum, 0}},
    KeyMove{Qt::Key_End, {TimelineMove::Kind::toMaximum, 0}},
};

QString describe(const TimelineMove& move) {
    switch (move.kind) {
    case TimelineMove::Kind::byFrames:
        return move.count < 0 ? TimelineMarker::tr("One frame back")
                              : TimelineMarker::tr("One frame forward");
    case TimelineMove::Kind::bySeconds:
        return move.count < 0 ? TimelineMarker::tr("One second back")
                              : TimelineMarker::tr("One second forward");
    case TimelineMove::Kind::toMinimum:
        return TimelineMarker::tr("As far back as possible");
    case TimelineMove::Kind::toMaximum:
        return TimelineMarker::tr("As far forward as possible");
    }
    return {};
}

QString nameOf(EditMarker marker) {
    //: For screen readers: the handles on the time line. Trim start is the beginning of what is
    //: kept.
    switch (marker) {
    case EditMarker::trimStart:
        return TimelineMarker::tr("Trim start");
    case EditMarker::playhead:
        return TimelineMarker::tr("Playhead");
    case EditMarker::trimEnd:
        return TimelineMarker::tr("Trim end");
    }
    return {};
}

} // namespace

std::optional<TimelineMove> TimelineMove::of(int key, Qt::KeyboardModifiers modifiers) {
    const auto others = modifiers & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const auto found = std::ranges::find(kKeyMoves, key, &KeyMove::key);
    if (others != Qt::NoModifier || found == kKeyMoves.end())
        return std::nullopt;
    TimelineMove move = found->move;
    if (modifiers & Qt::ShiftModifier)
        move.count *= kShiftFactor;
    return move;
}

QList<Shortcut> TimelineMove::shortcuts() {
    QList<Shortcut> shortcuts;
    for (const KeyMove& row : kKeyMoves) {
        const QString effect = describe(row.move);
        const QString name = QKeySequence(row.key).toString(QKeySequence::NativeText);
        const auto same = std::ranges::find(shortcuts, effect, &Shortcut::effect);
        if (same == shortcuts.end())
            shortcuts << Shortcut{name, effect};
        else
            same->keys += QStringLiteral(", ") + name;
    }
    shortcuts << Shortcut{TimelineMarker::tr("Shift with these keys"),
                          TimelineMarker::tr("Ten times as far")};
    return shortcuts;
}

TimelineMarker::TimelineMarker(std::shared_ptr<EditState> state, EditMarker marker, QWidget* strip)
    : QWidget(strip), m_state(std::move(state)), m_marker(marker) {
    installTimelineMarkerAccessibility();
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    // By Tab only: a click on the strip must not take the arrow keys away from the frame steps.
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(nameOf(marker));
}

double TimelineMarker::value() const {
    return m_state->time(m_marker);
}

double TimelineMarker::minimum() const {
    return m_state->earliest(m_marker);
}

double TimelineMarker::maximum() const {
    return m_state->latest(m_marker);
}

QString TimelineMarker::valueText() const {
    return timelineLabel(value());
}

void TimelineMarker::setValue(double seconds) {
    if (m_state->videoURL())
        m_state->moveMarker(m_marker, seconds);
}

void TimelineMarker::announceValue() {
    if (!QAccessible::isActive())
        return;
    // Screen readers read the text, which changes by tenths of a second.
    if (QString text = valueText(); text != m_announced) {
        m_announced = std::move(text);
        QAccessibleValueChangeEvent changed(this, value());
        QAccessible::updateAccessibility(&changed);
    }
}

bool TimelineMarker::takesKeys() const {
    // A handle may have the focus only because the window had to give it to some widget; keys that
    // change the range would be a surprise then. The playhead does what the arrows do everywhere.
    return m_marker == EditMarker::playhead || m_isFocusShown;
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
        m_state->stepMarker(m_marker, move.count);
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
        m_isFocusShown = isKeyboardFocus(reason) ||
                         (reason == Qt::OtherFocusReason && m_marker != EditMarker::playhead);
    Q_EMIT focusShownChanged();
    QWidget::focusInEvent(event);
}

void TimelineMarker::focusOutEvent(QFocusEvent* event) {
    if (!isPassingFocus(event->reason())) {
        m_isFocusShown = false;
        m_state->history().endRun();
    }
    Q_EMIT focusShownChanged();
    QWidget::focusOutEvent(event);
}

} // namespace brisklet
