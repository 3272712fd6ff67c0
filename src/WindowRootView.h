#pragma once

#include "FocusedValues.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

class QMessageBox;

namespace brisklet {

class AppCommands;
class ContentView;
class EditState;
class RemoteFiles;
class Updater;

/// One editor window: the menu bar, the content, and a model that lives as long as the window.
/// Publishes the model to the program while it is the active window, and always to its own menus.
/// Takes files from the open bridge. Asks before it closes during an export. Deletes itself when
/// closed. Main thread.
class WindowRootView final : public QWidget {
    Q_OBJECT

public:
    /// The answer to the question whether the running export may be stopped.
    enum class CloseAnswer {
        agreed,     ///< The export continues until the window is closed.
        declined,   ///< The window stays; also if the export failed, which it now shows.
        exportEnded ///< There is nothing left to ask.
    };

    /// Both outlive the window.
    WindowRootView(Updater& updater, FocusedValues& focusedValues, QWidget* parent = nullptr);
    ~WindowRootView() override;

    [[nodiscard]] const std::shared_ptr<EditState>& state() const { return m_state; }

    [[nodiscard]] ContentView& content() const { return *m_content; }

    /// What finds files that are not on this computer. To be set before the window is shown.
    void setRemoteFiles(const std::shared_ptr<RemoteFiles>& remoteFiles);

    /// Whether its menu offers to reopen an edit; at first it does not.
    void setReopenEnabled(bool enabled);

    /// To be called when it was opened for a file that is not in the open bridge.
    void setOpenedForFile() { m_isForFile = true; }

    /// Raises the window and activates it, as far as the desktop allows.
    void bringToFront();

    /// Whether an export runs that the user has not agreed to stop.
    [[nodiscard]] bool mustAskToClose() const;

    /// Whether the user has the question of askToClose() before them.
    [[nodiscard]] bool isAskingToClose() const;

    /// Asks the user whether the running export, and those of other windows, `exportCount` in all,
    /// may be stopped, in front of all windows; does not stop them. `answered` is called once,
    /// later, unless the window is destroyed before. If the question is open already, it is about
    /// `exportCount` from now on, and `answered` replaces the callback of the earlier call.
    void askToClose(int exportCount, std::function<void(CloseAnswer)> answered);

    /// The user has agreed, here or in another window, to stop the export that runs now.
    void agreeToStop();

    /// Closes without asking. An export is stopped first; the window closes when it has ended.
    void closeNow();

Q_SIGNALS:
    void newWindowRequested();
    void quitRequested();
    void reopenRequested();
    /// It is closed now, and will be deleted.
    void closed();
    /// The file that this window was opened for could not be opened, the user has dismissed the
    /// alert, and the window is still empty.
    void becameNeedless();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    /// Of keys that are no shortcut by what is written on them.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildLayout();
    void appear();
    void showTitle();
    void publish();
    void followExport();
    void followMessage();
    void showCloseQuestion(int exportCount);
    void answer(CloseAnswer answer);

    FocusedValues& m_focusedValues;
    std::shared_ptr<EditState> m_state;
    /// For the commands of its own menus, which always act on this window.
    FocusedValues m_ownValues;
    AppCommands* m_commands;
    ContentView* m_content;
    QPointer<QMessageBox> m_closeQuestion;
    std::function<void(CloseAnswer)> m_closeAnswered;
    bool m_hasAppeared = false;
    /// It was opened for a file, and the user has not yet dismissed an alert about it.
    bool m_isForFile = false;
    /// To stopping the export that runs now.
    bool m_hasAgreedToStop = false;
    /// The window is to close as soon as the export has stopped.
    bool m_closesAfterExport = false;
};

} // namespace brisklet
