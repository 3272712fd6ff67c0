#pragma once

#include <QDialog>
#include <QProgressBar>

#include <memory>

namespace brisklet {

class EditState;

/// Shows how far the export of one model is, and lets the user cancel it. Modal to its window.
/// Closing it cancels too; it goes away when the export has really ended. Main thread.
class ExportProgressDialog final : public QDialog {
    Q_OBJECT

public:
    ExportProgressDialog(std::weak_ptr<EditState> state, QWidget* window);

    void setProgress(double fraction);

    /// Cancels the export; does not close the dialog.
    void reject() override;

private:
    std::weak_ptr<EditState> m_state;
    QProgressBar* m_bar;
};

} // namespace brisklet
