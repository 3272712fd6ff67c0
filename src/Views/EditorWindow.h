#pragma once

#include <QPointer>
#include <QUrl>
#include <QWidget>

#include <memory>
#include <optional>

class QMessageBox;

namespace brisklet {

class EditState;
class ContentView;

/// One window that edits one video: its content, its title, and the keys that act on the video
/// wherever the keyboard is in it. Deletes itself when closed. Main thread.
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
    void closeEvent(QCloseEvent* event) override;

private:
    void addCommands();
    void observeState();

    void showTitle();
    void closeAfterExport();
    bool handleKey(int key);
    void askToStopExport();

    std::shared_ptr<EditState> m_state;
    ContentView* m_content;
    QPointer<QMessageBox> m_closeQuestion;
    std::optional<QUrl> m_toLoad;
    /// The user wants the window closed as soon as the export has stopped.
    bool m_closesAfterExport = false;
};

} // namespace brisklet
