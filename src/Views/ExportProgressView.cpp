#include "Views/ExportProgressView.h"

#include "Models/EditState.h"
#include "Support/ApproximateFormatting.h"
#include "Views/Painting/Theme.h"
#include "Views/WindowBlock.h"
#include "Views/WindowKeys.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <chrono>
#include <utility>

namespace brisklet {

namespace {

constexpr int kSpacing = 16;
constexpr int kPadding = 24;
constexpr int kBarWidth = 260;
constexpr int kCaptionSpacing = 6;
/// How often the caption follows the clock while there is no progress.
constexpr std::chrono::milliseconds kTick(500);
constexpr int kBarSteps = 1000;

double secondsOn(const QElapsedTimer& clock) {
    return std::chrono::duration<double>(std::chrono::milliseconds(clock.elapsed())).count();
}

} // namespace

ExportProgressView::ExportProgressView(std::weak_ptr<EditState> state, QWidget* window)
    : Sheet(window),
      m_title(new QLabel(tr("Exporting…"))),
      m_bar(new QProgressBar),
      m_cancel(new QPushButton(tr("Cancel"))),
      // Never empty, so that the sheet does not grow when there is something to say.
      m_caption(new QLabel(QStringLiteral(" "))) {
    //: A title, a noun: the act of exporting.
    setWindowTitle(tr("Export"));
    showFonts();
    m_bar->setAccessibleName(tr("Export progress"));
    m_bar->setRange(0, kBarSteps);
    m_bar->setFixedWidth(kBarWidth);
    m_bar->setTextVisible(false);
    m_cancel->setAutoDefault(false);
    QSizePolicy policy = m_cancel->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_cancel->setSizePolicy(policy);
    connect(m_cancel, &QPushButton::clicked, this, [model = std::move(state)] {
        if (const auto alive = model.lock())
            alive->cancelExport();
    });

    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    stack->setSpacing(kSpacing);
    stack->setSizeConstraint(QLayout::SetFixedSize);
    stack->addWidget(m_title, 0, Qt::AlignHCenter);
    auto* progress = new QVBoxLayout;
    progress->setSpacing(kCaptionSpacing);
    progress->addWidget(m_bar, 0, Qt::AlignHCenter);
    progress->addWidget(m_caption, 0, Qt::AlignHCenter);
    stack->addLayout(progress);
    stack->addWidget(m_cancel, 0, Qt::AlignHCenter);
    m_cancel->setFocus();
    m_sinceStart.start();
    connect(&m_tick, &QTimer::timeout, this, &ExportProgressView::showRemaining);
    m_tick.start(kTick);
    new QShortcut(kCloseKey, this, this, &ExportProgressView::closeRequested);
    new QShortcut(kQuitKey, this, this, &ExportProgressView::quitRequested);
}

void ExportProgressView::showEvent(QShowEvent* event) {
    Sheet::showEvent(event);
    if (m_block == nullptr)
        m_block = new WindowBlock(*parentWidget()->window(), *this);
}

bool ExportProgressView::event(QEvent* event) {
    // Below a question whether to stop the export there is no other answer; assistive programs
    // press buttons of windows that wait for another, too.
    if (event->type() == QEvent::WindowBlocked)
        m_cancel->hide();
    if (event->type() == QEvent::WindowUnblocked) {
        m_cancel->show();
        m_cancel->setFocus();
    }
    return Sheet::event(event);
}

void ExportProgressView::closeEvent(QCloseEvent* event) {
    event->ignore();
    Q_EMIT closeRequested();
}

void ExportProgressView::setProgress(double fraction) {
    m_bar->setValue(qRound(fraction * kBarSteps));
    m_remaining.report(fraction, secondsOn(m_sinceStart));
    showRemaining();
}

void ExportProgressView::showRemaining() {
    const auto left = m_remaining.at(secondsOn(m_sinceStart));
    //: %1: a time with its unit, such as “20 s”; how much longer the export takes.
    const QString caption = left ? tr("about %1 left").arg(approximateDuration(*left)) : QString();
    m_caption->setText(left ? caption : QStringLiteral(" "));
    const QString percent = QLocale().toString(m_bar->value() * 100 / kBarSteps) + u'%';
    const QString description = left ? percent + QStringLiteral(", ") + caption : percent;
    if (m_bar->accessibleDescription() != description)
        m_bar->setAccessibleDescription(description);
}

void ExportProgressView::showFonts() {
    m_title->setFont(theme::headlineFont(font()));
    m_caption->setFont(theme::captionFont(font()));
    QPalette secondary;
    secondary.setColor(QPalette::WindowText, theme::secondary(palette()));
    m_caption->setPalette(secondary);
}

void ExportProgressView::changeEvent(QEvent* event) {
    Sheet::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        showFonts();
}

} // namespace brisklet
