#include "Views/Timeline/TimelineView.h"

#include "Models/EditState.h"
#include "Views/Painting/TabularLabel.h"
#include "Views/Painting/TabularText.h"
#include "Views/Painting/Theme.h"
#include "Views/Timeline/TimelineLabels.h"
#include "Views/Timeline/TimelineMarker.h"
#include "Views/Timeline/TimelineStrip.h"

#include <QEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace brisklet {

namespace {

/// Between the strip and the labels, points.
constexpr int kSpacing = 4;
/// The least distance between two labels, points.
constexpr int kLabelDistance = 12;

int widthOf(const QString& text, const QFont& font) {
    return static_cast<int>(std::ceil(tabular::width(text, font)));
}

} // namespace

TimelineView::TimelineView(std::shared_ptr<EditState> state, int stripHeight, int handleWidth,
                           QWidget* parent)
    : QWidget(parent),
      m_state(std::move(state)),
      m_strip(new TimelineStrip(m_state, stripHeight, handleWidth, this)),
      m_start(new TabularLabel(this)),
      m_position(new TabularLabel(this)),
      m_end(new TabularLabel(this)),
      m_length(new TabularLabel(this)) {
    // Time runs from left to right in all languages.
    setLayoutDirection(Qt::LeftToRight);
    setAccessibleName(tr("Timeline"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    setFocusProxy(&m_strip->marker(EditMarker::playhead));
    for (TabularLabel* label : {m_start, m_position, m_end, m_length}) {
        label->setTextFormat(Qt::PlainText);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    observe();
    showLook();
    showStart();
    showEnd();
}

void TimelineView::observe() {
    const EditState* state = m_state.get();
    connect(state, &EditState::durationChanged, this, &TimelineView::showDuration);
    connect(state, &EditState::trimStartChanged, this, &TimelineView::showStart);
    connect(state, &EditState::currentTimeChanged, this, &TimelineView::showPosition);
    connect(state, &EditState::trimEndChanged, this, &TimelineView::showEnd);
}

void TimelineView::showLook() {
    const QFont caption = theme::captionFont(font());
    for (TabularLabel* label : {m_start, m_position, m_end, m_length})
        label->setFont(caption);
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, theme::secondary(palette()));
    m_position->setPalette(quiet);
    m_length->setPalette(quiet);
    showDuration();
}

void TimelineView::showDuration() {
    showPosition();
    showLength();
    updateGeometry();
}

void TimelineView::showStart() {
    m_start->setText(timelineLabel(m_state->trimStart()));
    showLength();
}

void TimelineView::showPosition() {
    m_position->setText(timelineLabel(m_state->currentTime()) + QStringLiteral(" / ") +
                        timelineLabel(m_state->duration()));
    placeLabels();
}

void TimelineView::showEnd() {
    m_end->setText(timelineLabel(m_state->trimEnd()));
    showLength();
}

void TimelineView::showLength() {
    const double start = m_state->trimStart();
    const double end = m_state->trimEnd();
    const bool isPart = end > start && (start > 0 || end < m_state->duration());
    //: %1: the length of the part that is kept, such as 0:00:05.298. As short as possible.
    m_length->setText(isPart ? tr("Range %1").arg(exactTimelineLabel(end - start)) : QString());
    placeLabels();
}

TimelineView::LabelWidths TimelineView::labelWidths() const {
    const QString longest = timelineLabel(m_state->duration());
    const QFont& font = m_start->font();
    return {.edge = std::max({widthOf(longest, font), widthOf(m_start->text(), font),
                              widthOf(m_end->text(), font)}),
            .position = std::max(widthOf(longest + QStringLiteral(" / ") + longest, font),
                                 widthOf(m_position->text(), font))};
}

int TimelineView::labelHeight() const {
    return m_start->fontMetrics().height();
}

void TimelineView::placeLabels() {
    // Each label has room for the longest time from the beginning, so no label moves when another
    // becomes longer, and the duration stays in place while the position changes.
    const LabelWidths widths = labelWidths();
    const int top = m_strip->height() + kSpacing;
    const auto placeRight = [&](TabularLabel& label, int right) {
        const int labelWidth = widthOf(label.text(), label.font());
        label.setGeometry(right - labelWidth, top, labelWidth, labelHeight());
    };
    m_start->setGeometry(0, top, widthOf(m_start->text(), m_start->font()), labelHeight());
    placeRight(*m_position, (width() + widths.position) / 2);
    placeRight(*m_end, width());
    placeLength(widths);
}

void TimelineView::placeLength(const LabelWidths& widths) {
    // Between the position and the end.
    const int left = m_position->geometry().right() + 1 + kLabelDistance;
    const int room = width() - widths.edge - kLabelDistance - left;
    const int lengthWidth = widthOf(m_length->text(), m_length->font());
    m_length->setVisible(!m_length->text().isEmpty() && lengthWidth <= room);
    m_length->setGeometry(left + (room - lengthWidth) / 2, m_position->y(), lengthWidth,
                          labelHeight());
}

QSize TimelineView::sizeHint() const {
    return minimumSizeHint();
}

QSize TimelineView::minimumSizeHint() const {
    const LabelWidths widths = labelWidths();
    return {2 * widths.edge + widths.position + 2 * kLabelDistance,
            m_strip->height() + kSpacing + labelHeight()};
}

void TimelineView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    m_strip->setGeometry(0, 0, width(), m_strip->height());
    placeLabels();
}

void TimelineView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        showLook();
}

} // namespace brisklet
