#pragma once

#include <QPointer>
#include <QUrl>
#include <QWidget>

#include <functional>
#include <memory>

class QMimeData;
class QStackedLayout;

namespace brisklet {

class DropZoneView;
class EditState;
class ErrorAlert;
class ExportProgressView;

/// The content of one editor window: the drop zone while it is empty, otherwise the editor. Accepts
/// dropped files on either, and shows the model's error message as an alert and a running export as
/// a sheet; then, in another alert, its offer to open a lost video again. Main thread.
class ContentView final : public QWidget {
    Q_OBJECT

public:
    /// Asks the desktop for the files of a transfer that a sandboxed application has begun, by the
    /// key of the transfer. Calls `done` with them, or with none, on the main thread, now or later.
    using FileTransfer =
        std::function<void(const QByteArray& key, std::function<void(const QList<QUrl>&)> done)>;

    explicit ContentView(std::shared_ptr<EditState> state, QWidget* parent = nullptr);
    ~ContentView() override;

    [[nodiscard]] const std::shared_ptr<EditState>& state() const { return m_state; }

    /// Without it, drops that carry only such a key are refused.
    void setFileTransfer(FileTransfer transfer) { m_fileTransfer = std::move(transfer); }

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The sheet or alert that blocks the window during an export or an error, otherwise null.
    [[nodiscard]] QWidget* attachedSheet() const;

Q_SIGNALS:
    /// By the keys that do so in the window, of the sheet that has the keyboard instead.
    void closeRequested();
    void quitRequested();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void observe();

    void showFace();
    void showExport();
    void showError();
    void showOffer();

    [[nodiscard]] bool isDroppable(const QMimeData& mimeData) const;
    void setDragOver(bool isDragOver);
    void loadTransferred(const QByteArray& key);

    std::shared_ptr<EditState> m_state;
    FileTransfer m_fileTransfer;
    QStackedLayout* m_faces;
    DropZoneView* m_dropZone;
    QWidget* m_editor;
    QPointer<ExportProgressView> m_exportSheet;
    QPointer<ErrorAlert> m_alert;
    QPointer<ErrorAlert> m_offer;
    bool m_isDragOver = false;
    /// The window has been on the screen; before that its position is unknown.
    bool m_isPlaced = false;
};

} // namespace brisklet
