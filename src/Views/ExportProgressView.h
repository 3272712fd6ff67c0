#pragma once

#include "Models/RemainingTime.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

#include <memory>

class QLabel;
class QProgressBar;

namespace brisklet {

class EditState;

/// The sheet over a window during an export: a progress bar, how much longer it
/// takes, and a button that cancels. Modal to
/// its window. The user cannot close it: it closes when the export has ended, also after a
/// cancellation. Main thread.
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
    void showRemaining();
    void showFonts();

    QLabel* m_title;
    QProgressBar* m_bar;
    QLabel* m_caption;
    RemainingTime m_remaining;
    QElapsedTimer m_sinceStart;
    QTimer m_tick;
};

} // namespace brisklet
