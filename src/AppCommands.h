#pragma once

#include <QDBusConnection>
#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>

#include <memory>
#include <optional>

class QAction;
class QDialog;
class QMenu;
class QMenuBar;
class QWidget;

namespace brisklet {

class EditState;
class FocusedValues;
class Updater;

/// The commands of one menu bar. They act on the model that is focused at the moment, and on the
/// window of the menu bar. They have no state of their own: what is enabled follows the model.
/// Main thread.
class AppCommands final : public QObject {
    Q_OBJECT

public:
    /// Both outlive this. A window passes focused values of its own, not the program's: assistive
    /// technology can trigger the menus of a window that is not active, and they act on that one.
    AppCommands(Updater& updater, FocusedValues& focusedValues, QObject* parent = nullptr);
    ~AppCommands() override;

    /// Adds the menus to a menu bar, which must not outlive this.
    void fill(QMenuBar& menuBar);

    /// Whether there is an edit to reopen; at first there is none.
    void setReopenEnabled(bool enabled);

    /// Over which the file manager is asked; the session bus without.
    void setBus(const QDBusConnection& bus) { m_bus = bus; }

Q_SIGNALS:
    void newWindowRequested();
    void reopenRequested();
    void quitRequested();

private:
    void makeApplicationActions();
    void makeFileActions();
    void makeEditActions();
    void makeClipActions();
    void makeGoActions();
    void addGo(const QString& title, const QKeySequence& key, void (*go)(EditState&));
    QAction* add(const QString& title, const QKeySequence& key = {});

    void observe();
    void enable();
    void showSteps();
    void showQuickAction();

    void stepFrames(int count);
    void showLastExport();
    void toggleQuickAction();
    [[nodiscard]] QWidget* window() const;
    void showAbout();
    void askForTime();
    void closeWindow();

    Updater& m_updater;
    FocusedValues& m_focusedValues;
    std::optional<QDBusConnection> m_bus;
    std::weak_ptr<EditState> m_observed;
    QPointer<QMenuBar> m_menuBar;
    QPointer<QDialog> m_timePanel;

    QAction* m_about = nullptr;
    QAction* m_checkForUpdates = nullptr;
    QAction* m_quickAction = nullptr;
    QAction* m_quit = nullptr;
    QAction* m_newWindow = nullptr;
    QAction* m_open = nullptr;
    QAction* m_reopen = nullptr;
    QAction* m_export = nullptr;
    QAction* m_showLastExport = nullptr;
    QAction* m_close = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_trimStart = nullptr;
    QAction* m_trimEnd = nullptr;
    QAction* m_previousFrame = nullptr;
    QAction* m_nextFrame = nullptr;
    QAction* m_loop = nullptr;
    QAction* m_goToTime = nullptr;
    /// The rest of its menu.
    QList<QAction*> m_go;
    QAction* m_shortcuts = nullptr;
};

} // namespace brisklet
