#include "WindowRootView.h"

#include "AppCommands.h"
#include "KeysByPlace.h"
#include "Models/EditState.h"
#include "Platform/FileDialogPanels.h"
#include "Support/FileUrl.h"
#include "Support/MainThread.h"
#include "Support/OpenBridge.h"
#include "Views/ContentView.h"
#include "Views/Sheet.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace brisklet {

namespace {

constexpr QSize kInitialSize(960, 680);
constexpr QSize kSmallestSize(720, 480);

/// Qt replaces "[*]" in titles, unless it is doubled.
QString asTitle(QString name) {
    return name.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

/// Whether exports may be stopped. No button of it is named like the one of the sheet below, which
/// stops the export.
class CloseQuestion final : public QMessageBox {
public:
    /// `sheet` may be null: the sheet over `window`.
    CloseQuestion(QWidget* window, QWidget* sheet)
        : QMessageBox(QMessageBox::Question, QStringLiteral("Brisklet"), {}, QMessageBox::NoButton,
                      sheet != nullptr ? sheet : window, SheetFrame::flags()),
          m_sheet(sheet) {
        setAttribute(Qt::WA_DeleteOnClose);
        //: Answers “Stop the export and close?” with no.
        QPushButton* keep =
            addButton(WindowRootView::tr("Keep Exporting"), QMessageBox::RejectRole);
        addButton(WindowRootView::tr("Stop and Close"), QMessageBox::AcceptRole);
        setDefaultButton(keep);
        setEscapeButton(keep);
    }

protected:
    void showEvent(QShowEvent* event) override {
        growToSheet();
        QMessageBox::showEvent(event);
        if (m_sheet != nullptr)
            move(m_sheet->geometry().center() - rect().center());
        m_frame.shown(*this);
    }

    void paintEvent(QPaintEvent* event) override {
        QMessageBox::paintEvent(event);
        m_frame.paint(*this);
    }

private:
    /// The frame of a sheet that was larger would stand around this one.
    void growToSheet() {
        if (m_sheet == nullptr)
            return;
        const QSize missing =
            (m_sheet->size() - layout()->totalMinimumSize()).expandedTo(QSize(0, 0));
        const QSize half = missing / 2;
        layout()->setContentsMargins(layout()->contentsMargins() +
                                     QMargins(half.width(), half.height(),
                                              missing.width() - half.width(),
                                              missing.height() - half.height()));
    }

    /// Its parent, if it is a sheet.
    QWidget* m_sheet;
    SheetFrame m_frame;
};

} // namespace

WindowRootView::WindowRootView(Updater& updater, FocusedValues& focusedValues, QWidget* parent)
    : QWidget(parent),
      m_focusedValues(focusedValues),
      m_state(std::make_shared<EditState>()),
      m_commands(new AppCommands(updater, m_ownValues, this)),
      m_content(new ContentView(m_state)) {
    verifyMainThread();
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumSize(kSmallestSize);
    resize(kInitialSize);
    m_state->setFilePanels(std::make_shared<FileDialogPanels>(this));
    m_ownValues.setEditState(m_state);
    buildLayout();
    connect(m_state.get(), &EditState::videoURLChanged, this, &WindowRootView::showTitle);
    connect(m_state.get(), &EditState::exportProgressChanged, this, &WindowRootView::followExport);
    connect(m_state.get(), &EditState::errorMessageChanged, this, &WindowRootView::followMessage);
    showTitle();
}

WindowRootView::~WindowRootView() {
    // An export may keep the model alive for a while; this window must not hear of it any more.
    m_state->disconnect(this);
    // They refer to members, which are destroyed before child objects.
    delete m_commands;
    if (m_focusedValues.editState() == m_state)
        m_focusedValues.setEditState(nullptr);
}

void WindowRootView::buildLayout() {
    auto* menuBar = new QMenuBar;
    m_commands->fill(*menuBar);
    connect(m_commands, &AppCommands::newWindowRequested, this,
            &WindowRootView::newWindowRequested);
    connect(m_commands, &AppCommands::quitRequested, this, &WindowRootView::quitRequested);
    connect(m_commands, &AppCommands::reopenRequested, this, &WindowRootView::reopenRequested);
    connect(m_content, &ContentView::closeRequested, this, &QWidget::close);
    connect(m_content, &ContentView::quitRequested, this, &WindowRootView::quitRequested);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->setMenuBar(menuBar);
    layout->addWidget(m_content, 1);
}

void WindowRootView::setRemoteFiles(const std::shared_ptr<RemoteFiles>& remoteFiles) {
    m_state->setRemoteFiles(remoteFiles);
    m_state->setFilePanels(std::make_shared<FileDialogPanels>(this, remoteFiles));
}

void WindowRootView::setReopenEnabled(bool enabled) {
    m_commands->setReopenEnabled(enabled);
}

void WindowRootView::bringToFront() {
    verifyMainThread();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void WindowRootView::closeNow() {
    verifyMainThread();
    m_closesAfterExport = true;
    m_state->cancelExport();
    if (!m_state->exportProgress())
        close();
}

void WindowRootView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!m_hasAppeared) {
        m_hasAppeared = true;
        appear();
    }
}

void WindowRootView::appear() {
    OpenBridge::registerState(m_state);
    if (const auto url = OpenBridge::takePending()) {
        m_isForFile = true;
        m_state->load(*url);
    }
    // If no other window is active, this one is about to be.
    if (!m_focusedValues.editState())
        publish();
}

void WindowRootView::showTitle() {
    const auto& url = m_state->videoURL();
    setWindowTitle(url ? asTitle(shownName(*url)) : QStringLiteral("Brisklet"));
}

void WindowRootView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        publish();
}

void WindowRootView::publish() {
    m_focusedValues.setEditState(m_state);
}

void WindowRootView::followExport() {
    if (m_state->exportProgress())
        return;
    m_hasAgreedToStop = false;
    delete m_closeQuestion;
    // The alert about a failure is being shown, so the window must stay.
    answer(m_state->errorMessage() ? CloseAnswer::declined : CloseAnswer::exportEnded);
    if (m_closesAfterExport)
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void WindowRootView::followMessage() {
    if (!m_isForFile || m_state->errorMessage() || !m_state->isEmpty())
        return;
    // From now on it is an empty window like any other.
    m_isForFile = false;
    // The dismissed alert has not closed yet.
    QMetaObject::invokeMethod(this, &WindowRootView::becameNeedless, Qt::QueuedConnection);
}

void WindowRootView::closeEvent(QCloseEvent* event) {
    if (!m_state->exportProgress()) {
        event->accept();
        // The window lives until the event loop deletes it; a file must not be loaded into it
        // meanwhile.
        OpenBridge::unregisterState(*m_state);
        Q_EMIT closed();
        return;
    }
    event->ignore();
    if (m_closesAfterExport || m_closeQuestion)
        return;
    m_closeAnswered = [this](CloseAnswer answer) {
        if (answer == CloseAnswer::agreed)
            closeNow();
    };
    showCloseQuestion(1);
}

void WindowRootView::keyPressEvent(QKeyEvent* event) {
    const auto key = keyByPlace(*event);
    if (!key || !triggerShortcut(*this, *key, event->isAutoRepeat()))
        QWidget::keyPressEvent(event);
}

bool WindowRootView::mustAskToClose() const {
    return m_state->exportProgress() && !m_hasAgreedToStop && !m_closesAfterExport;
}

bool WindowRootView::isAskingToClose() const {
    return m_closeQuestion != nullptr;
}

void WindowRootView::agreeToStop() {
    verifyMainThread();
    m_hasAgreedToStop = m_state->exportProgress().has_value();
}

void WindowRootView::askToClose(int exportCount, std::function<void(CloseAnswer)> answered) {
    verifyMainThread();
    m_closeAnswered = std::move(answered);
    bringToFront();
    showCloseQuestion(exportCount);
    m_closeQuestion->raise();
    m_closeQuestion->activateWindow();
}

void WindowRootView::showCloseQuestion(int exportCount) {
    if (!m_closeQuestion) {
        m_closeQuestion = new CloseQuestion(this, m_content->attachedSheet());
        // Answered, it is about to be deleted: the next question needs a box of its own.
        connect(m_closeQuestion, &QMessageBox::accepted, this, [this] {
            m_closeQuestion.clear();
            answer(CloseAnswer::agreed);
        });
        connect(m_closeQuestion, &QMessageBox::rejected, this, [this] {
            m_closeQuestion.clear();
            answer(CloseAnswer::declined);
        });
    }
    m_closeQuestion->setText(exportCount > 1
                                 ? tr("Stop %n exports and close?", nullptr, exportCount)
                                 : tr("Stop the export and close?"));
    if (!m_closeQuestion->isVisible())
        m_closeQuestion->open();
}

void WindowRootView::answer(CloseAnswer answer) {
    if (const auto answered = std::exchange(m_closeAnswered, {}))
        answered(answer);
}

} // namespace brisklet
