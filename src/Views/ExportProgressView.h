#pragma once

#include "Models/RemainingTime.h"
#include "Views/Sheet.h"

#include <QElapsedTimer>
#include <QTimer>

#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;

namespace brisklet {

class EditState;
class WindowBlock;

/// The sheet over a window during an export: a progress bar, how much longer it takes, and a button
/// that cancels. Blocks its window, but not the window's close button. The user cannot close the
/// sheet: it closes when the export has ended, also after a cancellation. Main thread.
class ExportProgressView final : public Sheet {
    Q_OBJECT

public:
    ExportProgressView(std::weak_ptr<EditState> state, QWidget* window);

    /// 0 to 1.
    void setProgress(double fraction);

    /// Escape changes nothing.
    void reject() override {}

Q_SIGNALS:
    /// The keyboard is with the sheet, so it hears the keys that close the window or the program.
    void closeRequested();
    void quitRequested();

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showRemaining();
    void showFonts();

    QLabel* m_title;
    QProgressBar* m_bar;
    QPushButton* m_cancel;
    QLabel* m_caption;
    RemainingTime m_remaining;
    QElapsedTimer m_sinceStart;
    QTimer m_tick;
    /// Begins when the sheet is shown.
    WindowBlock* m_block = nullptr;
};

} // namespace brisklet
