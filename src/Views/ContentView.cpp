#include "Views/ContentView.h"

#include "Models/EditState.h"
#include "Views/DropZoneView.h"
#include "Views/EditorView.h"
#include "Views/ErrorAlert.h"
#include "Views/ExportProgressView.h"
#include "Views/Painting/Theme.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QStackedLayout>
#include <QWindow>

#include <utility>

namespace brisklet {

namespace {

constexpr qreal kDragFrameInset = 4;
constexpr qreal kDragFrameRadius = 10;
constexpr qreal kDragFrameWidth = 3;

/// What a sandboxed application offers instead of file names: the key of a transfer in the document
/// portal. The second MIME type is the one that older toolkits use for it.
QByteArray transferKey(const QMimeData& data) {
    for (const QString& type : {QStringLiteral("application/vnd.portal.filetransfer"),
                                QStringLiteral("application/vnd.portal.files")}) {
        if (data.hasFormat(type)) {
            const QByteArray key = data.data(type);
            // Some toolkits send the final zero byte too.
            return key.left(key.indexOf('\0') < 0 ? key.size() : key.indexOf('\0'));
        }
    }
    return {};
}

} // namespace

ContentView::ContentView(std::shared_ptr<EditState> state, QWidget* parent)
    : QWidget(parent),
      m_state(std::move(state)),
      m_faces(new QStackedLayout(this)),
      m_dropZone(new DropZoneView(m_state)),
      m_editor(new EditorView(m_state)) {
    setAcceptDrops(true);
    // One of them has the focus while no control has.
    //: For screen readers: the empty window, on which videos are dropped.
    m_dropZone->setAccessibleName(tr("Drop zone"));
    //: For screen readers: the window with a video.
    m_editor->setAccessibleName(tr("Editor"));
    for (QWidget* face : std::initializer_list<QWidget*>{m_dropZone, m_editor}) {
        face->setFocusPolicy(Qt::ClickFocus);
        m_faces->addWidget(face);
    }
    observe();
    showFace();
    showExport();
    showError();
    showOffer();
}

ContentView::~ContentView() {
    // An export may keep the model alive for a while; this view must not hear of it any more.
    m_state->disconnect(this);
}

QWidget* ContentView::attachedSheet() const {
    if (m_alert)
        return m_alert;
    if (m_offer)
        return m_offer;
    return m_exportSheet;
}

void ContentView::observe() {
    const EditState* state = m_state.get();
    connect(state, &EditState::videoURLChanged, this, &ContentView::showFace);
    connect(state, &EditState::exportProgressChanged, this, &ContentView::showExport);
    connect(state, &EditState::errorMessageChanged, this, &ContentView::showError);
    for (const auto changed : {&EditState::isOpenAgainOfferedChanged,
                               &EditState::errorMessageChanged, &EditState::exportProgressChanged})
        connect(state, changed, this, &ContentView::showOffer);
}

void ContentView::showFace() {
    QWidget* face = m_editor;
    if (!m_state->videoURL())
        face = m_dropZone;
    if (m_faces->currentWidget() == face)
        return;
    m_faces->setCurrentWidget(face);
    // No control has the focus until the user gives it to one, so keys go to the window.
    face->setFocus(Qt::OtherFocusReason);
}

void ContentView::showExport() {
    const std::optional<double> progress = m_state->exportProgress();
    if (!progress) {
        delete m_exportSheet;
        return;
    }
    if (!m_exportSheet) {
        m_exportSheet = new ExportProgressView(m_state, this);
        connect(m_exportSheet, &ExportProgressView::closeRequested, this,
                &ContentView::closeRequested);
        connect(m_exportSheet, &ExportProgressView::quitRequested, this,
                &ContentView::quitRequested);
        m_exportSheet->show();
    }
    m_exportSheet->setProgress(*progress);
}

void ContentView::showError() {
    const auto& message = m_state->errorMessage();
    if (!message) {
        if (m_alert)
            m_alert->close();
        return;
    }
    if (!m_isPlaced)
        return;
    if (!m_alert) {
        m_alert = new ErrorAlert(this);
        connect(m_alert, &QDialog::finished, this, [this] {
            // It is about to be deleted, so the next message needs an alert of its own.
            m_alert.clear();
            m_state->clearErrorMessage();
        });
    }
    m_alert->setMessage(*message);
    m_alert->open();
}

/// One thing at a time: it waits for the end of an export and for the other alert.
void ContentView::showOffer() {
    if (!m_state->isOpenAgainOffered() || m_state->errorMessage() || m_state->exportProgress()) {
        delete m_offer;
        return;
    }
    if (m_offer || !m_isPlaced)
        return;
    m_offer = new ErrorAlert(this);
    //: A button: opens the video once more, after its decoder has stopped.
    m_offer->offer(tr("Open Again"));
    m_offer->setMessage(*m_state->lossMessage());
    connect(m_offer, &QDialog::finished, this, [this](int result) {
        // It is about to be deleted.
        m_offer.clear();
        m_state->withdrawOffer();
        if (result == QDialog::Accepted)
            m_state->openAgain();
    });
    m_offer->open();
}

void ContentView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    QWindow* handle = window()->windowHandle();
    if (!m_isPlaced && handle != nullptr)
        handle->installEventFilter(this);
}

/// Loading may fail before the window manager has placed the window. An alert is placed over its
/// window when it opens, so it waits for that.
bool ContentView::eventFilter(QObject* watched, QEvent* event) {
    const auto* window = qobject_cast<QWindow*>(watched);
    if (event->type() == QEvent::Expose && window != nullptr && window->isExposed()) {
        watched->removeEventFilter(this);
        m_isPlaced = true;
        // At a later turn of the event loop the window knows its own position.
        QMetaObject::invokeMethod(this, &ContentView::showError, Qt::QueuedConnection);
        QMetaObject::invokeMethod(this, &ContentView::showOffer, Qt::QueuedConnection);
    }
    return QWidget::eventFilter(watched, event);
}

bool ContentView::isDroppable(const QMimeData& mimeData) const {
    return mimeData.hasUrls() || (m_fileTransfer && !transferKey(mimeData).isEmpty());
}

void ContentView::setDragOver(bool isDragOver) {
    m_isDragOver = isDragOver;
    m_dropZone->setLit(isDragOver);
    update();
}

void ContentView::dragEnterEvent(QDragEnterEvent* event) {
    if (!isDroppable(*event->mimeData()))
        return;
    // Whatever action the source proposes, its file must not be moved.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setDragOver(true);
}

void ContentView::dragLeaveEvent(QDragLeaveEvent* event) {
    QWidget::dragLeaveEvent(event);
    setDragOver(false);
}

void ContentView::dropEvent(QDropEvent* event) {
    setDragOver(false);
    const QMimeData& mimeData = *event->mimeData();
    const QList<QUrl> urls = mimeData.urls();
    const QByteArray key = m_fileTransfer ? transferKey(mimeData) : QByteArray();
    if (urls.isEmpty() && key.isEmpty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The paths that a sandboxed application uses may not exist outside its sandbox.
    if (!key.isEmpty())
        loadTransferred(key);
    else
        m_state->load(urls.first());
}

void ContentView::loadTransferred(const QByteArray& key) {
    m_fileTransfer(key, [weak = std::weak_ptr(m_state)](const QList<QUrl>& files) {
        const auto state = weak.lock();
        if (state && !files.isEmpty())
            state->load(files.first());
    });
}

void ContentView::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (!m_isDragOver || m_faces->currentWidget() == m_dropZone)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme::accent(palette()), kDragFrameWidth));
    const QRectF frame = QRectF(rect()).adjusted(kDragFrameInset, kDragFrameInset, -kDragFrameInset,
                                                 -kDragFrameInset);
    painter.drawRoundedRect(frame, kDragFrameRadius, kDragFrameRadius);
}

} // namespace brisklet
