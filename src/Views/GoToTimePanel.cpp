#include "Views/GoToTimePanel.h"

#include "Models/EditState.h"
#include "Models/TimeEntry.h"
#include "Views/Painting/Theme.h"
#include "Views/Timeline/TimelineLabels.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace brisklet {

namespace {

/// What is shown of a time is rounded to the millisecond. Seconds.
constexpr double kRounding = 0.0005;

constexpr int kPadding = 16;
constexpr int kSpacing = 8;
constexpr int kFieldWidth = 180;
/// Room for longer reasons in other languages.
constexpr int kMessageLines = 2;

/// A step counts in an int.
constexpr qint64 kMostFrames = 1'000'000'000;

/// Why a text is refused that is no entry.
QString refusalOf(const QString& text) {
    const auto withSign = TimeEntry::parse(u'+' + text.trimmed());
    if (withSign && withSign->kind == TimeEntry::Kind::frameOffset)
        //: Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.
        return GoToTimePanel::tr(
                   "Type +%1f to move by frames, or #%1 for the frame of that number.")
            .arg(withSign->frames);
    //: The letter “f” for frames is the same in all languages.
    return GoToTimePanel::tr("This is no time. Type one such as 1:23.456, +10f or #2412.");
}

QString beforeTheStart() {
    return GoToTimePanel::tr("The video starts at %1.").arg(exactTimelineLabel(0));
}

} // namespace

GoToTimePanel::GoToTimePanel(std::shared_ptr<EditState> state, QWidget* window)
    : Sheet(window),
      m_state(std::move(state)),
      m_field(new QLineEdit(exactTimelineLabel(m_state->currentTime()))),
      m_message(new QLabel) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Go to Time"));
    buildLayout();
    m_field->selectAll();
    showHint();
    connect(m_field, &QLineEdit::textEdited, this, &GoToTimePanel::showHint);
    connect(m_state.get(), &EditState::videoURLChanged, this, &QDialog::reject);
}

void GoToTimePanel::buildLayout() {
    //: Before a field for a time.
    auto* label = new QLabel(tr("Go to:"));
    label->setBuddy(m_field);
    m_field->setAccessibleName(windowTitle());
    m_field->setFixedWidth(kFieldWidth);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    //: The button that goes to the time in the field.
    auto* button = new QPushButton(tr("Go"));
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, &GoToTimePanel::go);

    auto* row = new QHBoxLayout;
    row->setSpacing(kSpacing);
    row->addWidget(label);
    row->addWidget(m_field);
    row->addWidget(button);
    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    stack->setSpacing(kSpacing);
    stack->setSizeConstraint(QLayout::SetFixedSize);
    stack->addLayout(row);
    stack->addWidget(m_message);
}

void GoToTimePanel::go() {
    if (const auto reason = moveTo(m_field->text()))
        showRefusal(*reason);
    else
        accept();
}

std::optional<QString> GoToTimePanel::moveTo(const QString& text) {
    const auto entry = TimeEntry::parse(text);
    if (!entry)
        return refusalOf(text);
    switch (entry->kind) {
    case TimeEntry::Kind::time:
        return moveToTime(entry->seconds);
    case TimeEntry::Kind::timeOffset:
        return moveToTime(m_state->currentTime() + entry->seconds);
    case TimeEntry::Kind::frameOffset:
        return moveByFrames(std::clamp<qint64>(entry->frames, -kMostFrames, kMostFrames));
    case TimeEntry::Kind::frameNumber:
        return moveToFrame(entry->frames);
    }
    return std::nullopt;
}

std::optional<QString> GoToTimePanel::moveToTime(double seconds) {
    if (seconds < -kRounding)
        return beforeTheStart();
    if (seconds > m_state->duration() + kRounding)
        return tr("The video ends at %1.").arg(exactTimelineLabel(m_state->duration()));
    m_state->moveMarker(EditMarker::playhead, seconds);
    return std::nullopt;
}

/// One jump where the frames have numbers: walking there would show each on the way.
std::optional<QString> GoToTimePanel::moveByFrames(qint64 count) {
    const auto current = m_state->frameNumbers().at(m_state->currentTime());
    if (!current) {
        m_state->stepFrames(static_cast<int>(count));
        return std::nullopt;
    }
    const qint64 number = *current + count;
    return number < 0 ? beforeTheStart() : moveToFrame(number);
}

std::optional<QString> GoToTimePanel::moveToFrame(qint64 number) {
    const FrameNumbers& numbers = m_state->frameNumbers();
    if (!numbers.areKnown())
        return tr("The frames of this video have no known numbers. Type a time.");
    const auto time = numbers.timeOf(number);
    if (!time)
        return tr("The last frame is #%1.").arg(numbers.count() - 1);
    m_state->moveMarker(EditMarker::playhead, *time);
    return std::nullopt;
}

void GoToTimePanel::showHint() {
    m_isRefused = false;
    showMessage(m_state->frameNumbers().areKnown()
                    ? tr("A time, frames from here, or a frame: 1:23.456, +10f, #2412")
                    : tr("A time, or frames from here: 1:23.456, +10f"));
}

void GoToTimePanel::showRefusal(const QString& reason) {
    m_isRefused = true;
    showMessage(reason);
    m_field->setFocus();
    m_field->selectAll();
    QAccessibleEvent alert(m_message, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void GoToTimePanel::showMessage(const QString& text) {
    m_message->setText(text);
    m_field->setAccessibleDescription(text);
    showLook();
}

void GoToTimePanel::showLook() {
    const QFont caption = theme::captionFont(font());
    m_message->setFont(caption);
    m_message->setMinimumHeight(kMessageLines * QFontMetrics(caption).lineSpacing());
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText,
                    m_isRefused ? theme::red(palette()) : theme::secondary(palette()));
    m_message->setPalette(colors);
    QPalette text = palette();
    if (m_isRefused)
        text.setColor(QPalette::Text, theme::red(palette()));
    m_field->setPalette(text);
}

void GoToTimePanel::changeEvent(QEvent* event) {
    Sheet::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        showLook();
}

} // namespace brisklet
