#pragma once

#include <QPointer>
#include <QUrl>
#include <QWidget>

#include <memory>
#include <optional>

class QLabel;
class QMessageBox;
class QToolButton;

namespace brisklet {

class EditState;
class ExportProgressView;
class PlayerContainerView;

/// One window that edits one video: the picture, a play button, the position and the range, and
/// the keys. Computes all it shows from its model. Deletes itself when closed. Main thread.
class EditorWindow final : public QWidget {
    Q_OBJECT

public:
    explicit EditorWindow(std::shared_ptr<EditState> state, QWidget* parent = nullptr);
    ~EditorWindow() override;

    [[nodiscard]] const std::shared_ptr<EditState>& state() const { return m_state; }

    /// Loads the video once the window has been painted, so that nothing delays its appearance.
    void loadWhenShown(const QUrl& url);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildLayout();
    void addCommands();
    void observeState();

    void showTitle();
    void showPosition();
    void showRange();
    void showPlayState();
    void showExport();
    void showError();
    bool handleKey(int key);
    void askToStopExport();

    std::shared_ptr<EditState> m_state;
    PlayerContainerView* m_picture;
    QToolButton* m_playButton;
    QLabel* m_position;
    QLabel* m_range;
    QPointer<ExportProgressView> m_exportDialog;
    QPointer<QMessageBox> m_alert;
    QPointer<QMessageBox> m_closeQuestion;
    std::optional<QUrl> m_toLoad;
    /// The user wants the window closed as soon as the export has stopped.
    bool m_closesAfterExport = false;
};

} // namespace brisklet
