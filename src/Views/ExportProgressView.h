#pragma once

#include <QDialog>

#include <memory>

class QLabel;
class QProgressBar;

namespace brisklet {

class EditState;

/// The sheet over a window whose model exports: how far it is, and a button that cancels. Modal to
/// its window. Nothing that the user does closes it: it goes away when the export has really
/// ended. Main thread.
class ExportProgressView final : public QDialog {
    Q_OBJECT

public:
    ExportProgressView(std::weak_ptr<EditState> state, QWidget* window);

    /// 0 to 1.
    void setProgress(double fraction);

    /// Escape and the window's own close button change nothing.
    void reject() override {}

protected:
    void changeEvent(QEvent* event) override;

private:
    QLabel* m_title;
    QProgressBar* m_bar;
};

} // namespace brisklet
