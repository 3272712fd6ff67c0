#pragma once

#include "AppDelegate.h"
#include "FocusedValues.h"
#include "Platform/DesktopApplication.h"
#include "Platform/TerminationSignals.h"
#include "WindowRootView.h"

#include <QCoroTask>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QVariantMap>

#include <filesystem>
#include <memory>

namespace brisklet {

class EditKeeper;
class ExportMonitor;
class UpdateDriver;
class Updater;
struct UpdaterConfiguration;

/// The program: its windows, what they share, and its place in the desktop's session. Ends the
/// event loop when the last window has been closed. Needs a QApplication, which it must not
/// outlive. Main thread.
class BriskletApp final : public QObject {
    Q_OBJECT

public:
    /// `applicationId` decides whether the program checks for updates by itself.
    explicit BriskletApp(const QString& applicationId = builtInApplicationId(),
                         QObject* parent = nullptr);
    /// With other updates than those that this program was built with.
    BriskletApp(const QString& applicationId, UpdaterConfiguration updates,
                QObject* parent = nullptr);
    ~BriskletApp() override;

    /// The identifier that this program was built with.
    static QString builtInApplicationId();

    /// The name under which a session knows the program, whichever build it is.
    static QString sessionName();

    /// Keeps unfinished edits in a folder, and offers to reopen them. To be called before the first
    /// window opens; without it nothing is kept.
    void keepEdits(const std::filesystem::path& folder);

    /// How a start without files begins.
    enum class EmptyStart {
        window, ///< With an empty window.
        wait    ///< With nothing: the bus started the program, and says what for in its next call.
    };

    /// Opens a window for each file, or starts as told without files. `session` is the program's
    /// place in the session, taken before, and outlives this; null where there is no session bus.
    void launch(const QList<QUrl>& files, DesktopApplication* session = nullptr,
                EmptyStart emptyStart = EmptyStart::window);

    /// Shows a new window, which takes a file that waits for one.
    WindowRootView* openWindow();

    [[nodiscard]] QList<WindowRootView*> windows() const;

    [[nodiscard]] FocusedValues& focusedValues() { return m_focusedValues; }

    [[nodiscard]] Updater& updater() { return *m_updater; }

    /// Closes every window. Where exports run, asks one question about all of them first.
    void quit();

protected:
    /// Takes the desktop's wish that the program ends for quit().
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void keepEditsOf(WindowRootView* window);
    QCoro::Task<> reopenLastEdit(QPointer<WindowRootView> asking);
    void stay();
    [[nodiscard]] WindowRootView*
    windowToAsk(const QList<QPointer<WindowRootView>>& exporting) const;
    void quitAnswered(WindowRootView::CloseAnswer answer,
                      const QList<QPointer<WindowRootView>>& askedAbout);
    void closeAll();
    void terminate();
    void joinSession();
    /// From here on the open bridge opens windows; before, files wait for one.
    void openWindowsOnRequest();
    void open(const QList<QUrl>& files, const QVariantMap& platformData);
    /// In the window opened last, where there are more files than are opened.
    void sayWhatIsLeftOut(const QList<QUrl>& files);
    void activate(const QVariantMap& platformData);
    void activateAction(const QString& action, const QVariantMap& platformData);
    void lastWindowClosed();

    AppDelegate m_delegate;
    FocusedValues m_focusedValues;
    TerminationSignals m_termination;
    std::unique_ptr<UpdateDriver> m_updateDriver;
    std::unique_ptr<Updater> m_updater;
    /// None where nothing is kept.
    std::unique_ptr<EditKeeper> m_keeper;
    DesktopApplication* m_session = nullptr;
    ExportMonitor* m_exportMonitor = nullptr;
    /// Runs while a start by the bus waits for the call that says what for.
    QTimer m_busCall;
    /// Runs from the end of a video until what it left is given back.
    QTimer m_memoryReturn;
    QList<QPointer<WindowRootView>> m_windows;
    /// Where the user has the question of quit() before them.
    QPointer<WindowRootView> m_askedToQuit;
};

} // namespace brisklet
