#include "Views/Timeline/MarkerReadout.h"

#include "Models/EditState.h"
#include "Views/Painting/Theme.h"
#include "Views/Timeline/MarkerTimeLabel.h"
#include "Views/Timeline/TimelineLabels.h"
#include "Views/Timeline/TimelineStrip.h"

#include <QStringList>

#include <chrono>
#include <utility>

namespace brisklet {

namespace {

constexpr std::chrono::milliseconds kMoment{1500};

QString textOf(DragSpeed speed) {
    switch (speed) {
    case DragSpeed::full:
        return {};
    case DragSpeed::tenth:
        //: During a fine drag: the handle moves a tenth as far as the mouse.
        return MarkerReadout::tr("1/10 speed");
    case DragSpeed::hundredth:
        return MarkerReadout::tr("1/100 speed");
    }
    return {};
}

} // namespace

MarkerReadout::MarkerReadout(std::shared_ptr<EditState> state, TimelineStrip& strip)
    : m_state(std::move(state)), m_strip(strip) {
    m_movedTimer.setSingleShot(true);
    m_movedTimer.setInterval(kMoment);
    connect(&m_movedTimer, &QTimer::timeout, this, [this] {
        m_moved.reset();
        refresh();
    });
    connect(m_state.get(), &EditState::markerMoved, this, &MarkerReadout::markerMoved);
}

MarkerReadout::~MarkerReadout() {
    delete m_label;
}

void MarkerReadout::setDragged(std::optional<EditMarker> marker, DragSpeed speed) {
    if (!marker && !m_dragged)
        return;
    m_dragged = marker;
    m_speed = speed;
    m_moved.reset();
    refresh();
}

void MarkerReadout::setHovered(std::optional<EditMarker> marker) {
    if (std::exchange(m_hovered, marker) != marker)
        refresh();
}

void MarkerReadout::markerMoved(EditMarker marker) {
    // A drag moves it all the time.
    if (m_dragged)
        return;
    m_moved = marker;
    m_movedTimer.start();
    refresh();
}

std::optional<EditMarker> MarkerReadout::shownMarker() const {
    if (!m_state->videoURL())
        return std::nullopt;
    if (m_dragged)
        return m_dragged;
    return m_moved ? m_moved : m_hovered;
}

QString MarkerReadout::text(EditMarker marker) const {
    const double time = m_state->time(marker);
    QStringList parts{exactTimelineLabel(time)};
    if (const auto number = m_state->frameNumbers().at(time))
        parts.append(u'#' + QString::number(*number));
    if (m_dragged && m_speed != DragSpeed::full)
        parts.append(textOf(m_speed));
    return parts.join(QStringLiteral(" · "));
}

void MarkerReadout::refresh() {
    const auto marker = shownMarker();
    if (!marker) {
        if (m_label)
            m_label->hide();
        return;
    }
    if (!m_label) {
        // The timeline itself is no higher than its strip and its labels.
        const QWidget* timeline = m_strip.parentWidget();
        QWidget* around = timeline != nullptr ? timeline->parentWidget() : nullptr;
        m_label = new MarkerTimeLabel(around != nullptr ? around : &m_strip);
    }
    QWidget* area = m_label->parentWidget();
    m_label->setFont(theme::captionFont(m_strip.font()));
    const QRect strip(m_strip.mapTo(area, QPoint()), m_strip.size());
    const double x = m_strip.geometryNow().marker(*marker).center().x();
    m_label->showBeside(strip, strip.x() + x, text(*marker));
}

} // namespace brisklet
