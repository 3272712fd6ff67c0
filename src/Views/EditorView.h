#pragma once

#include <QWidget>

#include <memory>

namespace brisklet {

class ControlsView;
class EditState;
class LostVideoView;
class TimelineView;
class VideoArea;

/// The three rows of the editor: picture (or why there is none), timeline, controls. Main thread.
class EditorView final : public QWidget {
    Q_OBJECT

public:
    explicit EditorView(const std::shared_ptr<EditState>& state, QWidget* parent = nullptr);

    [[nodiscard]] VideoArea& videoArea() const { return *m_videoArea; }

    [[nodiscard]] LostVideoView& lostVideo() const { return *m_lostVideo; }

    [[nodiscard]] TimelineView& timeline() const { return *m_timeline; }

    [[nodiscard]] ControlsView& controls() const { return *m_controls; }

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    VideoArea* m_videoArea;
    /// In the same place.
    LostVideoView* m_lostVideo;
    TimelineView* m_timeline;
    ControlsView* m_controls;
};

} // namespace brisklet
