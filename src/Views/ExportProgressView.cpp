#include "Views/ExportProgressView.h"

#include "Models/EditState.h"
#include "Views/Painting/Theme.h"

#include <QEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace brisklet {

namespace {

constexpr int kSpacing = 16;
constexpr int kPadding = 24;
constexpr int kBarWidth = 260;
constexpr int kBarSteps = 1000;

} // namespace

ExportProgressView::ExportProgressView(std::weak_ptr<EditState> state, QWidget* window)
    // Without a close button: only the Cancel button ends the export.
    : QDialog(window, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      m_title(new QLabel(tr("Exporting…"))),
      m_bar(new QProgressBar) {
    setWindowModality(Qt::WindowModal);
    //: A title, a noun: the act of exporting.
    setWindowTitle(tr("Export"));
    m_title->setFont(theme::headlineFont(font()));
    m_bar->setAccessibleName(tr("Export progress"));
    m_bar->setRange(0, kBarSteps);
    m_bar->setFixedWidth(kBarWidth);
    m_bar->setTextVisible(false);
    auto* cancel = new QPushButton(tr("Cancel"));
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, [model = std::move(state)] {
        if (const auto alive = model.lock())
            alive->cancelExport();
    });

    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    stack->setSpacing(kSpacing);
    stack->setSizeConstraint(QLayout::SetFixedSize);
    stack->addWidget(m_title, 0, Qt::AlignHCenter);
    stack->addWidget(m_bar, 0, Qt::AlignHCenter);
    stack->addWidget(cancel, 0, Qt::AlignHCenter);
    cancel->setFocus();
}

void ExportProgressView::setProgress(double fraction) {
    m_bar->setValue(qRound(fraction * kBarSteps));
}

void ExportProgressView::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        m_title->setFont(theme::headlineFont(font()));
}

} // namespace brisklet
