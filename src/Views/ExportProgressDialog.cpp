#include "Views/ExportProgressDialog.h"

#include "Models/EditState.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include <utility>

namespace brisklet {

namespace {

constexpr int kBarSteps = 1000;
constexpr int kBarWidth = 320;

} // namespace

ExportProgressDialog::ExportProgressDialog(std::weak_ptr<EditState> state, QWidget* window)
    : QDialog(window), m_state(std::move(state)), m_bar(new QProgressBar) {
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Export"));
    m_bar->setRange(0, kBarSteps);
    m_bar->setMinimumWidth(kBarWidth);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportProgressDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Exporting…")));
    layout->addWidget(m_bar);
    layout->addWidget(buttons);
}

void ExportProgressDialog::setProgress(double fraction) {
    m_bar->setValue(qRound(fraction * kBarSteps));
}

void ExportProgressDialog::reject() {
    if (const auto state = m_state.lock())
        state->cancelExport();
}

} // namespace brisklet
