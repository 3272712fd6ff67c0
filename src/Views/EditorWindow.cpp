#include "Views/EditorWindow.h"

#include "Models/EditState.h"
#include "Support/FileUrl.h"
#include "Views/ContentView.h"

#include <QAction>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QVBoxLayout>

#include <utility>

namespace brisklet {

namespace {

constexpr QSize kInitialSize(960, 680);
constexpr QSize kSmallestSize(720, 480);

} // namespace

EditorWindow::EditorWindow(std::shared_ptr<EditState> state, QWidget* parent)
    : QWidget(parent), m_state(std::move(state)), m_content(new ContentView(m_state)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(kSmallestSize);
    resize(kInitialSize);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_content);
    addCommands();
    observeState();
    showTitle();
}

EditorWindow::~EditorWindow() {
    // An export may keep the model for a while; this window no longer listens to it.
    m_state->disconnect(this);
}

void EditorWindow::loadWhenShown(const QUrl& url) {
    m_toLoad = url;
    update();
}

void EditorWindow::addCommands() {
    auto* open = new QAction(tr("Open…"), this);
    open->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_O));
    connect(open, &QAction::triggered, this, [this] { m_state->presentOpenPanel(); });
    auto* exportAction = new QAction(tr("Export…"), this);
    exportAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
    connect(exportAction, &QAction::triggered, this, [this] { m_state->presentExportPanel(); });
    addActions({open, exportAction});
}

void EditorWindow::observeState() {
    const EditState* state = m_state.get();
    connect(state, &EditState::videoURLChanged, this, &EditorWindow::showTitle);
    connect(state, &EditState::exportProgressChanged, this, &EditorWindow::closeAfterExport);
}

void EditorWindow::showTitle() {
    const auto& url = m_state->videoURL();
    setWindowTitle(url ? displayName(*url) : QStringLiteral("Brisklet"));
}

void EditorWindow::closeAfterExport() {
    if (m_state->exportProgress())
        return;
    delete m_closeQuestion;
    if (m_closesAfterExport)
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void EditorWindow::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (!m_toLoad)
        return;
    // What is painted now reaches the screen before the next turn of the event loop.
    QMetaObject::invokeMethod(
        this, [this, url = *std::exchange(m_toLoad, std::nullopt)] { m_state->load(url); },
        Qt::QueuedConnection);
}

void EditorWindow::keyPressEvent(QKeyEvent* event) {
    const bool isCommand = event->modifiers() & (Qt::ControlModifier | Qt::MetaModifier);
    const bool isStep = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
    // Holding a key down repeats the steps and nothing else.
    if (isCommand || (event->isAutoRepeat() && !isStep) || !handleKey(event->key()))
        QWidget::keyPressEvent(event);
}

bool EditorWindow::handleKey(int key) {
    if (!m_state->videoURL())
        return false;
    switch (key) {
    case Qt::Key_BracketLeft:
        m_state->setTrimStartToPlayhead();
        return true;
    case Qt::Key_BracketRight:
        m_state->setTrimEndToPlayhead();
        return true;
    case Qt::Key_Left:
        m_state->playerController().player()->step(-1);
        return true;
    case Qt::Key_Right:
        m_state->playerController().player()->step(1);
        return true;
    default:
        return false;
    }
}

void EditorWindow::closeEvent(QCloseEvent* event) {
    if (!m_state->exportProgress()) {
        event->accept();
        return;
    }
    event->ignore();
    if (!m_closesAfterExport && !m_closeQuestion)
        askToStopExport();
}

void EditorWindow::askToStopExport() {
    QWidget* sheet = m_content->attachedSheet();
    QWidget* parent = sheet ? sheet : this;
    m_closeQuestion =
        new QMessageBox(QMessageBox::Question, QStringLiteral("Brisklet"),
                        tr("Stop the export and close?"), QMessageBox::Cancel, parent);
    m_closeQuestion->addButton(tr("Stop and Close"), QMessageBox::AcceptRole);
    m_closeQuestion->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_closeQuestion, &QMessageBox::accepted, this, [this] {
        m_closesAfterExport = true;
        m_state->cancelExport();
        if (!m_state->exportProgress())
            close();
    });
    m_closeQuestion->open();
}

} // namespace brisklet
