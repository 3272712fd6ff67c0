#include "AppCommands.h"

#include "FocusedValues.h"
#include "Media/Error.h"
#include "Models/EditState.h"
#include "Platform/FileManagerWindow.h"
#include "Platform/QuickActionInstallation.h"
#include "Platform/Updater/Updater.h"
#include "Support/FileUrl.h"
#include "Support/LocalizedMessage.h"
#include "Support/MainThread.h"
#include "Support/PlaybackSettings.h"
#include "Support/QuickAction/QuickAction.h"
#include "Views/GoToTimePanel.h"
#include "Views/Shortcuts/KeyboardShortcutsView.h"
#include "Views/Shortcuts/ShortcutList.h"
#include "Views/WindowKeys.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

#include <exception>
#include <optional>

namespace brisklet {

namespace {

struct StepTitles {
    QString undo;
    QString redo;
};

/// Whole titles, since not every language can put any step behind one word.
StepTitles titlesOf(EditStep step) {
    switch (step) {
    case EditStep::trimStart:
        //: To undo that the beginning of the kept part was moved. “Trim Start” is its name.
        return {AppCommands::tr("Undo Trim Start"), AppCommands::tr("Redo Trim Start")};
    case EditStep::trimEnd:
        return {AppCommands::tr("Undo Trim End"), AppCommands::tr("Redo Trim End")};
    case EditStep::crop:
        return {AppCommands::tr("Undo Crop"), AppCommands::tr("Redo Crop")};
    case EditStep::removeCrop:
        //: To undo that the crop was removed.
        return {AppCommands::tr("Undo Remove Crop"), AppCommands::tr("Redo Remove Crop")};
    case EditStep::rotate:
        return {AppCommands::tr("Undo Rotate"), AppCommands::tr("Redo Rotate")};
    case EditStep::mute:
        return {AppCommands::tr("Undo Mute"), AppCommands::tr("Redo Mute")};
    case EditStep::unmute:
        return {AppCommands::tr("Undo Unmute"), AppCommands::tr("Redo Unmute")};
    }
    return {};
}

/// With the key's name, where the menu would not show it as it is.
QString withKeyAsItIs(const QString& title, const QKeySequence& key) {
    const QString name = nameOf(key);
    return name == key.toString(QKeySequence::NativeText) ? title : title + u'\t' + name;
}

} // namespace

AppCommands::AppCommands(Updater& updater, FocusedValues& focusedValues, QObject* parent)
    : QObject(parent), m_updater(updater), m_focusedValues(focusedValues) {
    makeApplicationActions();
    makeFileActions();
    makeEditActions();
    makeClipActions();
    makeGoActions();
    connect(&m_focusedValues, &FocusedValues::editStateChanged, this, &AppCommands::observe);
    connect(&m_updater, &Updater::canCheckForUpdatesChanged, this, &AppCommands::enable);
    connect(&QuickAction::shared(), &QuickAction::isInstalledChanged, this,
            &AppCommands::showQuickAction);
    showQuickAction();
    observe();
}

AppCommands::~AppCommands() = default;

QAction* AppCommands::add(const QString& title, const QKeySequence& key) {
    auto* action = new QAction(withKeyAsItIs(title, key), this);
    // The keys work in this window only, not in its dialogs and menus (Qt::WindowShortcut).
    action->setShortcut(key);
    action->setAutoRepeat(false);
    action->setMenuRole(QAction::NoRole);
    return action;
}

void AppCommands::makeApplicationActions() {
    m_about = add(tr("About Brisklet"));
    m_about->setMenuRole(QAction::AboutRole);
    connect(m_about, &QAction::triggered, this, &AppCommands::showAbout);
    m_checkForUpdates = add(tr("Check for Updates…"));
    m_checkForUpdates->setMenuRole(QAction::ApplicationSpecificRole);
    connect(m_checkForUpdates, &QAction::triggered, &m_updater, &Updater::checkForUpdates);
    m_quickAction = add({});
    m_quickAction->setMenuRole(QAction::ApplicationSpecificRole);
    connect(m_quickAction, &QAction::triggered, this, &AppCommands::toggleQuickAction);
    m_shortcuts = add(tr("Keyboard Shortcuts"), Qt::CTRL | Qt::Key_Question);
    connect(m_shortcuts, &QAction::triggered, this, [this] {
        if (QWidget* shown = window())
            KeyboardShortcutsView::openFor(*shown);
    });
    m_quit = add(tr("Quit"), kQuitKey);
    m_quit->setMenuRole(QAction::QuitRole);
    connect(m_quit, &QAction::triggered, this, &AppCommands::quitRequested);
}

void AppCommands::makeFileActions() {
    m_newWindow = add(tr("New Window"), QKeySequence(Qt::CTRL | Qt::Key_N));
    connect(m_newWindow, &QAction::triggered, this, &AppCommands::newWindowRequested);
    m_open = add(tr("Open Video…"), QKeySequence(Qt::CTRL | Qt::Key_O));
    connect(m_open, &QAction::triggered, this, [this] {
        if (const auto state = m_focusedValues.editState())
            state->presentOpenPanel();
    });
    m_reopen = add(tr("Reopen Last Edit"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T));
    m_reopen->setEnabled(false);
    connect(m_reopen, &QAction::triggered, this, &AppCommands::reopenRequested);
    //: Opens the save panel.
    m_export = add(tr("Export…"), QKeySequence(Qt::CTRL | Qt::Key_E));
    connect(m_export, &QAction::triggered, this, [this] {
        if (const auto state = m_focusedValues.editState())
            state->presentExportPanel();
    });
    m_showLastExport = add(tr("Show Last Export"));
    connect(m_showLastExport, &QAction::triggered, this, &AppCommands::showLastExport);
    m_close = add(tr("Close Video"));
    // The menu shows the first; the second is the usual one of the desktop.
    m_close->setShortcuts({QKeySequence(Qt::Key_Escape), QKeySequence(kCloseKey)});
    connect(m_close, &QAction::triggered, this, &AppCommands::closeWindow);
}

void AppCommands::makeEditActions() {
    m_undo = add(tr("Undo"), QKeySequence(Qt::CTRL | Qt::Key_Z));
    connect(m_undo, &QAction::triggered, this, [this] {
        if (const auto state = m_focusedValues.editState())
            state->history().undo();
    });
    m_redo = add(tr("Redo"));
    m_redo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    connect(m_redo, &QAction::triggered, this, [this] {
        if (const auto state = m_focusedValues.editState())
            state->history().redo();
    });
    // The names on the page of keys, whatever the next step is.
    m_undo->setIconText(tr("Undo"));
    m_redo->setIconText(tr("Redo"));
    // Holding the key down goes through the steps.
    m_undo->setAutoRepeat(true);
    m_redo->setAutoRepeat(true);
}

void AppCommands::makeClipActions() {
    //: “Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.
    m_trimStart = add(tr("Set Trim Start at Playhead"), QKeySequence(Qt::Key_BracketLeft));
    connect(m_trimStart, &QAction::triggered, this, [this] {
        if (const auto state = m_focusedValues.editState())
            state->setTrimStartToPlayhead();
    });
    m_trimEnd = add(tr("Set Trim End at Playhead"), QKeySequence(Qt::Key_BracketRight));
    connect(m_trimEnd, &QAction::triggered, this, [this] {
        if (const auto state = m_focusedValues.editState())
            state->setTrimEndToPlayhead();
    });
    m_previousFrame = add(tr("Previous Frame"), QKeySequence(Qt::Key_Left));
    connect(m_previousFrame, &QAction::triggered, this, [this] { stepFrames(-1); });
    m_nextFrame = add(tr("Next Frame"), QKeySequence(Qt::Key_Right));
    connect(m_nextFrame, &QAction::triggered, this, [this] { stepFrames(1); });
    // Holding the key down repeats the step.
    m_previousFrame->setAutoRepeat(true);
    m_nextFrame->setAutoRepeat(true);

    PlaybackSettings& settings = PlaybackSettings::shared();
    //: Plays what is kept again and again; can be checked.
    m_loop = add(tr("Loop Playback"), QKeySequence(Qt::Key_L));
    m_loop->setCheckable(true);
    m_loop->setChecked(settings.isLoopEnabled());
    connect(m_loop, &QAction::triggered, &settings, &PlaybackSettings::setLoopEnabled);
    connect(&settings, &PlaybackSettings::isLoopEnabledChanged, m_loop,
            [this, &settings] { m_loop->setChecked(settings.isLoopEnabled()); });
}

void AppCommands::makeGoActions() {
    m_goToTime = add(tr("Go to Time…"), QKeySequence(Qt::CTRL | Qt::Key_G));
    connect(m_goToTime, &QAction::triggered, this, &AppCommands::askForTime);
    addGo(tr("Range Start, Then Start of Video"), QKeySequence(Qt::Key_Home),
          [](EditState& state) { state.goToRangeEnd(EditMarker::trimStart); });
    addGo(tr("Range End, Then End of Video"), QKeySequence(Qt::Key_End),
          [](EditState& state) { state.goToRangeEnd(EditMarker::trimEnd); });
    addGo(tr("Back One Second"), QKeySequence(Qt::Key_Down), [](EditState& state) {
        state.moveMarker(EditMarker::playhead, state.currentTime() - 1);
    });
    addGo(tr("Forward One Second"), QKeySequence(Qt::Key_Up), [](EditState& state) {
        state.moveMarker(EditMarker::playhead, state.currentTime() + 1);
    });
    // Not the ends: going there again goes elsewhere.
    for (QAction* second : m_go.last(2))
        second->setAutoRepeat(true);
}

void AppCommands::addGo(const QString& title, const QKeySequence& key, void (*go)(EditState&)) {
    QAction* action = add(title, key);
    connect(action, &QAction::triggered, this, [this, go] {
        if (const auto state = m_focusedValues.editState())
            go(*state);
    });
    m_go.append(action);
}

void AppCommands::fill(QMenuBar& menuBar) {
    verifyMainThread();
    m_menuBar = &menuBar;
    //: The name of the program; only the place of the accelerator is yours.
    QMenu* application = menuBar.addMenu(tr("&Brisklet"));
    application->addActions({m_about, m_checkForUpdates});
    application->addSeparator();
    application->addAction(m_quickAction);
    application->addSeparator();
    application->addAction(m_quit);
    QMenu* file = menuBar.addMenu(tr("&File"));
    file->addActions({m_newWindow, m_open, m_reopen, m_export, m_showLastExport, m_close});
    menuBar.addMenu(tr("&Edit"))->addActions({m_undo, m_redo});
    //: The menu of what is done to the part of the video that is kept.
    QMenu* clip = menuBar.addMenu(tr("&Clip"));
    clip->addActions({m_trimStart, m_trimEnd});
    clip->addSeparator();
    clip->addActions({m_previousFrame, m_nextFrame});
    clip->addSeparator();
    clip->addAction(m_loop);
    //: The menu of the places that the playhead can go to.
    QMenu* go = menuBar.addMenu(tr("&Go"));
    go->addAction(m_goToTime);
    go->addSeparator();
    go->addActions(m_go);
    menuBar.addMenu(tr("&Help"))->addAction(m_shortcuts);
}

void AppCommands::setReopenEnabled(bool enabled) {
    verifyMainThread();
    m_reopen->setEnabled(enabled);
}

void AppCommands::observe() {
    if (const auto before = m_observed.lock()) {
        before->disconnect(this);
        before->history().disconnect(this);
    }
    const auto state = m_focusedValues.editState();
    m_observed = state;
    if (state) {
        connect(state.get(), &EditState::videoURLChanged, this, &AppCommands::enable);
        connect(state.get(), &EditState::exportProgressChanged, this, &AppCommands::enable);
        connect(&state->history(), &EditHistory::changed, this, &AppCommands::showSteps);
        connect(state.get(), &EditState::lastExportChanged, this, &AppCommands::enable);
    }
    enable();
    showSteps();
}

void AppCommands::enable() {
    const auto state = m_focusedValues.editState();
    const bool hasVideo = state && state->videoURL();
    const bool isExporting = state && state->exportProgress();
    m_checkForUpdates->setEnabled(m_updater.canCheckForUpdates());
    m_open->setEnabled(state != nullptr);
    m_showLastExport->setEnabled(state && state->lastExport());
    m_close->setEnabled(!isExporting);
    for (QAction* action :
         QList{m_export, m_trimStart, m_trimEnd, m_previousFrame, m_nextFrame, m_goToTime} + m_go)
        action->setEnabled(hasVideo);
}

void AppCommands::showSteps() {
    const auto state = m_focusedValues.editState();
    const auto undo = state ? state->history().undoStep() : std::nullopt;
    m_undo->setText(undo ? titlesOf(*undo).undo : tr("Undo"));
    m_undo->setEnabled(undo.has_value());
    const auto redo = state ? state->history().redoStep() : std::nullopt;
    m_redo->setText(redo ? titlesOf(*redo).redo : tr("Redo"));
    m_redo->setEnabled(redo.has_value());
}

void AppCommands::showQuickAction() {
    //: The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name
    //: none if your language has a word for all: “Add to File Managers”.
    m_quickAction->setText(QuickAction::shared().isInstalled() ? tr("Remove Finder Quick Action")
                                                               : tr("Install Finder Quick Action"));
}

void AppCommands::stepFrames(int count) {
    if (const auto state = m_focusedValues.editState())
        state->stepFrames(count);
}

namespace {

QCoro::Task<> showExport(std::weak_ptr<EditState> state, QDBusConnection bus, QUrl file) {
    auto showing = showInFileManager(bus, file);
    FolderShowing result = FolderShowing::shown;
    QString failure;
    try {
        result = co_await showing;
    } catch (const media::Error& error) {
        failure = localizedMessage(error);
    }
    const auto alive = state.lock();
    if (alive && !failure.isEmpty())
        alive->setErrorMessage(failure);
    if (result == FolderShowing::shown || !alive)
        co_return;
    const QString reason =
        result == FolderShowing::folderGone
            ? AppCommands::tr("The folder “%1” is no longer there.")
            : AppCommands::tr("There is no file manager to show the folder “%1”.");
    alive->setErrorMessage(reason.arg(shownName(urlOf(pathOf(file).parent_path()))));
}

} // namespace

void AppCommands::showLastExport() {
    const auto state = m_focusedValues.editState();
    if (state && state->lastExport())
        showExport(state, m_bus.value_or(QDBusConnection::sessionBus()), *state->lastExport());
}

void AppCommands::toggleQuickAction() {
    try {
        if (QuickAction::shared().isInstalled())
            QuickActionInstallation::uninstall();
        else
            QuickActionInstallation::install();
    } catch (const std::exception& error) {
        if (const auto state = m_focusedValues.editState())
            state->setErrorMessage(
                tr("Couldn't update the Quick Action: %1").arg(localizedMessage(error)));
    }
}

void AppCommands::showAbout() {
    auto* box = new QMessageBox(window());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::NonModal);
    box->setWindowTitle(tr("About Brisklet"));
    box->setIconPixmap(QApplication::windowIcon().pixmap(64));
    //: %1: the version.
    box->setText(tr("Brisklet %1").arg(QApplication::applicationVersion()));
    box->setInformativeText(tr("Trims, crops and turns videos, exact to the frame.\n\n"
                               "Free software under the GNU General Public License, "
                               "version 3 or later."));
    box->show();
}

void AppCommands::askForTime() {
    const auto state = m_focusedValues.editState();
    if (!state || m_timePanel)
        return;
    m_timePanel = new GoToTimePanel(state, window());
    m_timePanel->open();
}

QWidget* AppCommands::window() const {
    return m_menuBar ? m_menuBar->window() : nullptr;
}

void AppCommands::closeWindow() {
    if (QWidget* closed = window())
        closed->close();
}

} // namespace brisklet
