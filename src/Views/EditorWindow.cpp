#include "Views/EditorWindow.h"

#include "Models/EditState.h"
#include "Support/FileUrl.h"
#include "Support/TimeFormatting.h"
#include "Views/ExportProgressView.h"
#include "Views/PlayerContainerView.h"
#include "Views/PlayerLayerView.h"

#include <QAction>
#include <QCloseEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace brisklet {

namespace {

constexpr QSize kInitialSize(960, 600);
constexpr QSize kSmallestSize(320, 240);
/// The longest time that a label shows; a damaged file may claim any length.
constexpr double kLongestShown = 1e9;

QString shownTime(double seconds) {
    return formatTime(std::min(seconds, kLongestShown));
}

std::optional<QUrl> firstFile(const QMimeData& data) {
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            return url;
    }
    return std::nullopt;
}

/// The same text, but with places to break a line inside words of more than a line's length: the
/// name of a file can have 255 letters and no space.
QString withBreaksInLongWords(const QString& text) {
    constexpr int kLongestWord = 40;
    QString result;
    int wordLength = 0;
    for (const QChar letter : text) {
        wordLength = letter.isSpace() ? 0 : wordLength + 1;
        if (wordLength > kLongestWord && !letter.isLowSurrogate()) {
            result += QChar(0x200b);
            wordLength = 1;
        }
        result += letter;
    }
    return result;
}

/// A message is text: what looks like markup in the name of a file is not.
void setPlainInformativeText(QMessageBox& box, const QString& text) {
    box.setInformativeText(withBreaksInLongWords(text));
    for (QLabel* label : box.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
}

} // namespace

EditorWindow::EditorWindow(std::shared_ptr<EditState> state, QWidget* parent)
    : QWidget(parent),
      m_state(std::move(state)),
      m_picture(new PlayerContainerView(m_state->playerController().player())),
      m_playButton(new QToolButton),
      m_position(new QLabel),
      m_range(new QLabel) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(kSmallestSize);
    resize(kInitialSize);
    buildLayout();
    addCommands();
    observeState();
    showTitle();
    showPosition();
    showRange();
    showPlayState();
}

EditorWindow::~EditorWindow() {
    // An export may keep the model for a while; this window no longer listens to it.
    m_state->disconnect(this);
}

void EditorWindow::loadWhenShown(const QUrl& url) {
    m_toLoad = url;
    update();
}

void EditorWindow::buildLayout() {
    auto* stage = new QWidget;
    stage->setAutoFillBackground(true);
    QPalette black = stage->palette();
    black.setColor(QPalette::Window, Qt::black);
    stage->setPalette(black);
    auto* stageLayout = new QVBoxLayout(stage);
    stageLayout->setContentsMargins({});
    stageLayout->addWidget(m_picture);

    m_playButton->setFocusPolicy(Qt::NoFocus);
    m_playButton->setAutoRaise(true);
    auto* controls = new QHBoxLayout;
    controls->addWidget(m_playButton);
    controls->addWidget(m_position);
    controls->addStretch();
    controls->addWidget(m_range);
    controls->setContentsMargins(8, 4, 8, 4);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(stage, 1);
    layout->addLayout(controls);
}

void EditorWindow::addCommands() {
    connect(m_playButton, &QToolButton::clicked, this, [this] { m_state->togglePlayback(); });

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
    connect(state, &EditState::currentTimeChanged, this, &EditorWindow::showPosition);
    connect(state, &EditState::durationChanged, this, &EditorWindow::showPosition);
    connect(state, &EditState::trimStartChanged, this, &EditorWindow::showRange);
    connect(state, &EditState::trimEndChanged, this, &EditorWindow::showRange);
    connect(state, &EditState::isMutedChanged, this, &EditorWindow::showRange);
    connect(state, &EditState::isPlayingChanged, this, &EditorWindow::showPlayState);
    connect(state, &EditState::rotationChanged, this,
            [this] { m_picture->layerView().setRotation(m_state->rotation()); });
    connect(state, &EditState::exportProgressChanged, this, &EditorWindow::showExport);
    connect(state, &EditState::errorMessageChanged, this, &EditorWindow::showError);
}

void EditorWindow::showTitle() {
    const auto& url = m_state->videoURL();
    setWindowTitle(url ? displayName(*url) : QStringLiteral("Brisklet"));
}

void EditorWindow::showPosition() {
    m_position->setText(QStringLiteral("%1 / %2").arg(shownTime(m_state->currentTime()),
                                                      shownTime(m_state->duration())));
}

void EditorWindow::showRange() {
    const QString range = QStringLiteral("[ %1 – %2 ]")
                              .arg(shownTime(m_state->trimStart()), shownTime(m_state->trimEnd()));
    m_range->setText(m_state->isMuted() ? tr("muted   %1").arg(range) : range);
}

void EditorWindow::showPlayState() {
    const auto icon = m_state->isPlaying() ? QStyle::SP_MediaPause : QStyle::SP_MediaPlay;
    m_playButton->setIcon(style()->standardIcon(icon));
    m_playButton->setToolTip(m_state->isPlaying() ? tr("Pause") : tr("Play"));
}

void EditorWindow::showExport() {
    const std::optional<double> progress = m_state->exportProgress();
    if (progress) {
        if (!m_exportDialog) {
            m_exportDialog = new ExportProgressView(m_state, this);
            m_exportDialog->open();
        }
        m_exportDialog->setProgress(*progress);
        return;
    }
    delete m_exportDialog;
    delete m_closeQuestion;
    if (m_closesAfterExport)
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void EditorWindow::showError() {
    const auto& message = m_state->errorMessage();
    if (!message) {
        if (m_alert)
            m_alert->close();
        return;
    }
    if (!m_alert) {
        m_alert = new QMessageBox(this);
        m_alert->setAttribute(Qt::WA_DeleteOnClose);
        m_alert->setIcon(QMessageBox::Warning);
        m_alert->setWindowModality(Qt::WindowModal);
        m_alert->setWindowTitle(QStringLiteral("Brisklet"));
        m_alert->setText(tr("Something Went Wrong"));
        m_alert->setStandardButtons(QMessageBox::Ok);
        connect(m_alert, &QMessageBox::finished, this, [this] { m_state->clearErrorMessage(); });
    }
    setPlainInformativeText(*m_alert, *message);
    m_alert->open();
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
    case Qt::Key_Space:
        m_state->togglePlayback();
        return true;
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
    case Qt::Key_M:
        m_state->setMuted(!m_state->isMuted());
        return true;
    case Qt::Key_R:
        m_state->rotateLeft();
        return true;
    default:
        return false;
    }
}

void EditorWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (firstFile(*event->mimeData()))
        event->acceptProposedAction();
}

void EditorWindow::dropEvent(QDropEvent* event) {
    if (const auto url = firstFile(*event->mimeData())) {
        event->acceptProposedAction();
        m_state->load(*url);
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
    QWidget* parent = this;
    if (m_exportDialog)
        parent = m_exportDialog;
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
