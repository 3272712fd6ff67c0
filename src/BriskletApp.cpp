#include "BriskletApp.h"

#include "ExportMonitor.h"
#include "Media/Error.h"
#include "Media/MemoryReturn.h"
#include "Models/EditKeeper.h"
#include "Models/EditState.h"
#include "Platform/Appearance.h"
#include "Platform/DesktopMounts.h"
#include "Platform/FileTransferPortal.h"
#include "Platform/PromptThread.h"
#include "Platform/StartupNotification.h"
#include "Platform/Updater/UpdateDialogs.h"
#include "Platform/Updater/Updater.h"
#include "Platform/Updater/UpdaterSettings.h"
#include "Support/LocalizedMessage.h"
#include "Support/OpenBridge.h"
#include "Support/Workers.h"
#include "Views/ContentView.h"
#include "WindowRootView.h"

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <functional>
#include <optional>
#include <utility>

namespace brisklet {

namespace {

using namespace std::chrono_literals;

/// Each gets a window; more come from a mistake, or from a program that means no good.
constexpr qsizetype kMostFilesAtOnce = 50;

/// The one under which the program is released; only that one looks for updates by itself.
QString releasedApplicationId() {
    return QStringLiteral("com.quorvan.brisklet");
}

/// The bus delivers the call that it started the program for at once.
constexpr auto kLongestWaitForBusCall = 5s;

/// From the start until kept edits are looked for: the first window does not wait for the disk.
constexpr auto kKeptEditsDelay = 150ms;

/// By then the threads of a video that was closed have usually ended.
constexpr auto kMemoryReturnDelay = 2s;

/// Wayland gives the keyboard to a window only against the token of the start that asks for it. Qt
/// takes it from here when a window is activated next. On X11 the launcher is told that its start
/// was answered.
void useLaunchData(const QVariantMap& platformData) {
    const QString token = platformData.value(QStringLiteral("activation-token")).toString();
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
    endStartupNotification(platformData.value(QStringLiteral("desktop-startup-id")).toString());
}

} // namespace

BriskletApp::BriskletApp(const QString& applicationId, QObject* parent)
    : BriskletApp(applicationId, builtInUpdaterConfiguration(), parent) {}

BriskletApp::BriskletApp(const QString& applicationId, UpdaterConfiguration updates,
                         QObject* parent)
    : QObject(parent),
      m_updateDriver(std::make_unique<UpdateDialogs>()),
      m_updater(std::make_unique<Updater>(std::move(updates), *m_updateDriver,
                                          applicationId == releasedApplicationId())) {
    wakePromptly();
    QApplication::setQuitOnLastWindowClosed(false);
    connect(qApp, &QApplication::lastWindowClosed, this, &BriskletApp::lastWindowClosed);
    qApp->installEventFilter(this);
    connect(&m_termination, &TerminationSignals::requested, this, &BriskletApp::terminate);
    m_busCall.setSingleShot(true);
    connect(&m_busCall, &QTimer::timeout, this, [this] { activate({}); });
    m_memoryReturn.setSingleShot(true);
    m_memoryReturn.setInterval(kMemoryReturnDelay);
    connect(&m_memoryReturn, &QTimer::timeout, this,
            [] { static_cast<void>(runOnWorker(&media::returnFreedMemory)); });
}

BriskletApp::~BriskletApp() {
    OpenBridge::requestWindow = {};
    // Those too that are closed and wait for their end: they refer to what ends here.
    for (const auto& window : m_windows)
        delete window;
}

QString BriskletApp::builtInApplicationId() {
    return QStringLiteral(BRISKLET_APPLICATION_ID);
}

QString BriskletApp::sessionName() {
    return releasedApplicationId();
}

void BriskletApp::keepEdits(const std::filesystem::path& folder) {
    m_keeper = std::make_unique<EditKeeper>(folder);
    connect(m_keeper.get(), &EditKeeper::canReopenChanged, this, [this] {
        for (const auto& window : m_windows) {
            if (window)
                window->setReopenEnabled(m_keeper->canReopen());
        }
    });
    QTimer::singleShot(kKeptEditsDelay, m_keeper.get(), [this] {
        m_keeper->refresh();
        // Another process may have closed an edit, or reopened one, while it had the keyboard.
        connect(qApp, &QApplication::applicationStateChanged, m_keeper.get(),
                [this](Qt::ApplicationState state) {
                    if (state == Qt::ApplicationActive)
                        m_keeper->refresh();
                });
    });
}

void BriskletApp::keepEditsOf(WindowRootView* window) {
    if (!m_keeper)
        return;
    m_keeper->watch(window->state());
    window->setReopenEnabled(m_keeper->canReopen());
    connect(window, &WindowRootView::closed, this,
            [this, window] { m_keeper->release(window->state()); });
    connect(window, &WindowRootView::reopenRequested, this,
            [this, window] { reopenLastEdit(window); });
}

QCoro::Task<> BriskletApp::reopenLastEdit(QPointer<WindowRootView> asking) {
    const QPointer<BriskletApp> self = this;
    auto taking = m_keeper->takeLast();
    std::optional<KeptEdit> kept;
    try {
        kept = co_await taking;
    } catch (const media::Error& error) {
        if (asking)
            asking->state()->setErrorMessage(localizedMessage(error));
    }
    if (!self || !kept)
        co_return;
    if (windows().isEmpty()) {
        m_keeper->giveBack(*kept);
        co_return;
    }
    const bool isFree = asking && asking->isVisible() && asking->state()->isEmpty();
    WindowRootView* window = isFree ? asking.data() : openWindow();
    if (!isFree)
        window->setOpenedForFile();
    m_keeper->reopen(window->state(), *kept);
}

void BriskletApp::launch(const QList<QUrl>& files, DesktopApplication* session,
                         EmptyStart emptyStart) {
    m_session = session;
    if (m_session != nullptr)
        joinSession();
    m_delegate.applicationDidFinishLaunching();
    if (files.isEmpty() && emptyStart == EmptyStart::wait) {
        openWindowsOnRequest();
        m_busCall.start(kLongestWaitForBusCall);
        return;
    }
    // No window can be requested yet, so the files wait for the first one, which takes the first
    // file and requests the next window.
    AppDelegate::open(files.first(std::min(files.size(), kMostFilesAtOnce)));
    WindowRootView* window = openWindow();
    sayWhatIsLeftOut(files);
    // Also when the program was started from a terminal, whose window has the keyboard.
    QMetaObject::invokeMethod(window, &QWidget::activateWindow, Qt::QueuedConnection);
}

void BriskletApp::joinSession() {
    connect(m_session, &DesktopApplication::filesOpened, this, &BriskletApp::open);
    connect(m_session, &DesktopApplication::activated, this, &BriskletApp::activate);
    connect(m_session, &DesktopApplication::actionActivated, this, &BriskletApp::activateAction);
    if (!m_session->bus().isConnected())
        return;
    new Appearance(m_session->bus(), this);
    m_exportMonitor = new ExportMonitor(m_session->bus(), this);
}

void BriskletApp::openWindowsOnRequest() {
    OpenBridge::requestWindow = [self = QPointer(this)] {
        if (self)
            self->openWindow();
    };
}

WindowRootView* BriskletApp::openWindow() {
    m_busCall.stop();
    openWindowsOnRequest();
    auto* window = new WindowRootView(*m_updater, m_focusedValues);
    m_windows.removeAll(nullptr);
    m_windows.append(window);
    connect(window, &WindowRootView::newWindowRequested, this, [this] { openWindow(); });
    connect(window, &WindowRootView::quitRequested, this, &BriskletApp::quit);
    connect(window->state().get(), &EditState::exportProgressChanged, this,
            [this, self = QPointer(window)] {
                // The question is about one export less.
                const bool isAsking = m_askedToQuit && m_askedToQuit->isAskingToClose();
                if (isAsking && self && !self->state()->exportProgress())
                    quit();
            });
    // Not after a cancellation: that is the user's own.
    const auto exportEnded = [this, window] { m_delegate.exportEnded(*window); };
    connect(window->state().get(), &EditState::exportFinished, window, exportEnded);
    connect(window->state().get(), &EditState::exportFailed, window, exportEnded);
    connect(window, &WindowRootView::becameNeedless, this, [this, window] {
        if (windows().size() > 1 && window->state()->isEmpty())
            window->close();
    });
    keepEditsOf(window);
    const auto giveBack = [this] { m_memoryReturn.start(); };
    connect(window->state().get(), &EditState::videoURLChanged, this, giveBack);
    connect(window, &QObject::destroyed, this, giveBack);
    if (m_exportMonitor != nullptr) {
        m_exportMonitor->watch(window);
        window->setRemoteFiles(std::make_shared<DesktopMounts>(m_session->bus()));
        window->content().setFileTransfer(
            [bus = m_session->bus()](const QByteArray& key, auto done) {
                retrieveTransferredFiles(bus, key, std::move(done));
            });
    }
    window->show();
    return window;
}

QList<WindowRootView*> BriskletApp::windows() const {
    QList<WindowRootView*> windows;
    for (const auto& window : m_windows) {
        if (window && window->isVisible())
            windows << window;
    }
    return windows;
}

void BriskletApp::quit() {
    QList<QPointer<WindowRootView>> exporting;
    for (WindowRootView* window : windows()) {
        if (window->mustAskToClose())
            exporting << window;
    }
    if (exporting.isEmpty()) {
        closeAll();
        return;
    }
    m_askedToQuit = windowToAsk(exporting);
    m_askedToQuit->askToClose(
        static_cast<int>(exporting.size()),
        [self = QPointer(this), exporting](WindowRootView::CloseAnswer answer) {
            if (self)
                self->quitAnswered(answer, exporting);
        });
}

/// Where the question is open already, else the window in front, else any.
WindowRootView* BriskletApp::windowToAsk(const QList<QPointer<WindowRootView>>& exporting) const {
    for (WindowRootView* window : exporting) {
        if (window->isAskingToClose())
            return window;
    }
    for (WindowRootView* window : exporting) {
        if (window->state() == m_focusedValues.editState())
            return window;
    }
    return exporting.first();
}

void BriskletApp::quitAnswered(WindowRootView::CloseAnswer answer,
                               const QList<QPointer<WindowRootView>>& askedAbout) {
    m_askedToQuit.clear();
    if (answer == WindowRootView::CloseAnswer::declined)
        return;
    if (answer == WindowRootView::CloseAnswer::agreed) {
        for (const auto& window : askedAbout) {
            if (window)
                window->agreeToStop();
        }
    }
    // Asks again about exports that have begun meanwhile.
    quit();
}

void BriskletApp::closeAll() {
    for (WindowRootView* window : windows())
        window->closeNow();
}

bool BriskletApp::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Quit || watched != qApp || windows().isEmpty())
        return QObject::eventFilter(watched, event);
    quit();
    event->ignore();
    return true;
}

void BriskletApp::terminate() {
    const bool isOpen = !windows().isEmpty();
    closeAll();
    if (!isOpen)
        QCoreApplication::quit();
}

void BriskletApp::open(const QList<QUrl>& files, const QVariantMap& platformData) {
    if (files.isEmpty()) {
        activate(platformData);
        return;
    }
    useLaunchData(platformData);
    QList<WindowRootView*> taken;
    for (WindowRootView* window : windows()) {
        if (!window->state()->isEmpty())
            taken << window;
    }
    AppDelegate::open(files.first(std::min(files.size(), kMostFilesAtOnce)));
    sayWhatIsLeftOut(files);
    for (WindowRootView* window : windows()) {
        if (!window->state()->isEmpty() && !taken.contains(window))
            window->bringToFront();
    }
}

void BriskletApp::sayWhatIsLeftOut(const QList<QUrl>& files) {
    if (files.size() > kMostFilesAtOnce)
        windows().last()->state()->setErrorMessage(
            //: Said in the window of the last of them; the others are left out.
            tr("At most %1 videos are opened at once.").arg(kMostFilesAtOnce));
}

void BriskletApp::activate(const QVariantMap& platformData) {
    useLaunchData(platformData);
    const QList<WindowRootView*> open = windows();
    if (open.isEmpty()) {
        openWindow();
        return;
    }
    const auto focused = m_focusedValues.editState();
    const auto isFocused = [&focused](WindowRootView* window) {
        return window->state() == focused;
    };
    const auto found = std::ranges::find_if(open, isFocused);
    (found != open.end() ? *found : open.first())->bringToFront();
}

void BriskletApp::activateAction(const QString& action, const QVariantMap& platformData) {
    if (action != u"new-window")
        return;
    useLaunchData(platformData);
    openWindow()->bringToFront();
}

void BriskletApp::lastWindowClosed() {
    if (!AppDelegate::applicationShouldTerminateAfterLastWindowClosed())
        return;
    // A file that another start hands over at this moment still gets its window.
    if (m_session)
        m_session->release();
    if (windows().isEmpty())
        QCoreApplication::quit();
    else if (m_session)
        m_session->reclaim();
}

} // namespace brisklet
