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

/// One editor window: the menu bar over the content, and a model of its own that lives as long.
/// Publishes the model to the program while it is the active window, and to its own menus always;
/// takes files from the open bridge. Asks before it closes while an export runs. Deletes itself
/// when closed. Main thread.
class WindowRootView final : public QWidget {
    Q_OBJECT

public:
    /// What became of the question whether the running export may be stopped.
    enum class CloseAnswer {
        agreed,     ///< The export runs on until the window is closed.
        declined,   ///< The window stays; also where the export failed, which it now shows.
        exportEnded ///< There is nothing left to ask.
    };

    /// Both outlive the window.
    WindowRootView(Updater& updater, FocusedValues& focusedValues, QWidget* parent = nullptr);
    ~WindowRootView() override;

    [[nodiscard]] const std::shared_ptr<EditState>& state() const { return m_state; }

    [[nodiscard]] ContentView& content() const { return *m_content; }

    /// Who finds files that are not on this computer. To be set before the window is shown.
    void setRemoteFiles(const std::shared_ptr<RemoteFiles>& remoteFiles);

    /// Puts the window over the others and gives it the keyboard, as far as the desktop lets it.
    void bringToFront();

    /// Whether an export runs that the user has not agreed to stop.
    [[nodiscard]] bool mustAskToClose() const;

    /// Asks whether the running export may be stopped, in front of all windows. Does nothing but
    /// ask; `answered` is called once, later, unless the window goes before. A question that is
    /// open already serves this one, and its former asker hears nothing.
    void askToClose(std::function<void(CloseAnswer)> answered);

    /// The user has to be asked again about an export that they agreed to stop.
    void forgetAgreement() { m_hasAgreedToStop = false; }

    /// Closes without a question; an export is stopped, and the window goes when it has ended.
    void closeNow();

Q_SIGNALS:
    void newWindowRequested();
    void quitRequested();
    /// The file that this window was opened for could not be, the user has been told, and nothing
    /// else is in it or on its way.
    void becameNeedless();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildLayout();
    void appear();
    void showTitle();
    void publish();
    void followExport();
    void followMessage();
    void showCloseQuestion();
    void answer(CloseAnswer answer);

    FocusedValues& m_focusedValues;
    std::shared_ptr<EditState> m_state;
    /// For the commands of its own menus, whichever window is active.
    FocusedValues m_ownValues;
    AppCommands* m_commands;
    ContentView* m_content;
    QPointer<QMessageBox> m_closeQuestion;
    std::function<void(CloseAnswer)> m_closeAnswered;
    bool m_hasAppeared = false;
    /// It was opened for a file, of which the user has not yet heard that it can't be opened.
    bool m_isForFile = false;
    /// To stop the export that runs now.
    bool m_hasAgreedToStop = false;
    /// The user wants the window closed as soon as the export has stopped.
    bool m_closesAfterExport = false;
};

} // namespace brisklet
