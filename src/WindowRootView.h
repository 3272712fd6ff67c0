#pragma once

#include <QPointer>
#include <QWidget>

#include <memory>

class QMessageBox;

namespace brisklet {

class AppCommands;
class ContentView;
class EditState;
class FocusedValues;
class Updater;

/// One editor window: the menu bar over the content, and a model of its own that lives as long.
/// Publishes the model to the commands while it is the active window, and takes files from the open
/// bridge. Asks before it closes while an export runs. Deletes itself when closed. Main thread.
class WindowRootView final : public QWidget {
    Q_OBJECT

public:
    /// Both outlive the window.
    WindowRootView(Updater& updater, FocusedValues& focusedValues, QWidget* parent = nullptr);
    ~WindowRootView() override;

    [[nodiscard]] const std::shared_ptr<EditState>& state() const { return m_state; }

    [[nodiscard]] ContentView& content() const { return *m_content; }

    /// Puts the window over the others and gives it the keyboard, as far as the desktop lets it.
    void bringToFront();

    /// Closes without a question; an export is stopped, and the window goes when it has ended.
    void closeNow();

Q_SIGNALS:
    void newWindowRequested();
    void quitRequested();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildLayout();
    void appear();
    void showTitle();
    void publish();
    void closeAfterExport();
    void askToStopExport();

    FocusedValues& m_focusedValues;
    std::shared_ptr<EditState> m_state;
    AppCommands* m_commands;
    ContentView* m_content;
    QPointer<QMessageBox> m_closeQuestion;
    bool m_hasAppeared = false;
    /// The user wants the window closed as soon as the export has stopped.
    bool m_closesAfterExport = false;
};

} // namespace brisklet
