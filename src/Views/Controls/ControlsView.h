#pragma once

#include <QList>
#include <QTimer>
#include <QWidget>

#include <memory>

class QAction;
class QHBoxLayout;
class QLabel;
class QMenu;

namespace brisklet {

class EditState;
class ExportButton;
class ExportForecaster;
class FlatButton;
class TabularLabel;

/// The row of controls under the timeline: play, mute, rotate, crop, the size of the crop, and the
/// export button with the menu of formats and resolutions. Shows the model and the shared export
/// settings, and has no state of its own. Its keys (Space, M, R, K) work while its window is active
/// and no other control takes them. Main thread.
class ControlsView final : public QWidget {
    Q_OBJECT

public:
    explicit ControlsView(std::shared_ptr<EditState> state, QWidget* parent = nullptr);
    ~ControlsView() override;

    /// The distance of the first button's frame from the left edge, points: its highlight extends
    /// beyond the frame.
    static int leftInset();

    [[nodiscard]] FlatButton& playButton() const { return *m_playButton; }

    [[nodiscard]] FlatButton& muteButton() const { return *m_muteButton; }

    [[nodiscard]] FlatButton& rotateButton() const { return *m_rotateButton; }

    [[nodiscard]] FlatButton& cropButton() const { return *m_cropButton; }

    [[nodiscard]] TabularLabel& cropSize() const { return *m_cropSize; }

    [[nodiscard]] ExportButton& exportButton() const { return *m_exportButton; }

    /// The line of its menu that says what an export comes to.
    [[nodiscard]] const QAction& forecastLine() const { return *m_forecastLine; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildLayout();
    void buildMenu();
    void addFormats(QMenu& menu);
    void addResolutions(QMenu& menu);
    void addKeys();
    void observe();

    void toggleMute();
    void toggleCrop();

    void showPlayState();
    void showMute();
    void showRotation();
    void showCrop();
    void showExport();
    void showForecastSoon();
    void showForecast();
    void showFonts();

    std::shared_ptr<EditState> m_state;
    FlatButton* m_playButton;
    FlatButton* m_muteButton;
    FlatButton* m_rotateButton;
    FlatButton* m_cropButton;
    TabularLabel* m_cropSize;
    ExportButton* m_exportButton;
    QList<QLabel*> m_menuTitles;
    QAction* m_forecastLine = nullptr;
    QLabel* m_forecastLabel = nullptr;
    ExportForecaster* m_forecaster;
    /// Gathers changes: a drag makes many.
    QTimer m_forecastUpdate;
    /// The export button had the focus when the running export began.
    bool m_hadFocus = false;
};

} // namespace brisklet
