#pragma once

#include <QWidget>

#include <memory>

namespace brisklet {

class EditState;
class TabularLabel;
class TimelineStrip;

/// The trim editor under the picture: the strip with the kept range and the playhead, and under it
/// the times of the start, of the position in the whole, and of the end, and the length of a range
/// that is not the whole. Shows the model and writes to it. The time axis goes from left to right
/// in every language.
///
/// Giving it the focus gives it to the playhead. Main thread.
class TimelineView final : public QWidget {
    Q_OBJECT

public:
    /// Height of the strip and width of a handle in points.
    explicit TimelineView(std::shared_ptr<EditState> state, int stripHeight = 56,
                          int handleWidth = 12, QWidget* parent = nullptr);

    [[nodiscard]] TimelineStrip& strip() const { return *m_strip; }

    [[nodiscard]] TabularLabel& startLabel() const { return *m_start; }

    [[nodiscard]] TabularLabel& positionLabel() const { return *m_position; }

    [[nodiscard]] TabularLabel& endLabel() const { return *m_end; }

    /// Hidden while the range is the whole, and where there is no room for it.
    [[nodiscard]] TabularLabel& lengthLabel() const { return *m_length; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct LabelWidths {
        /// Of the times of the start and the end, each with the room for any time.
        int edge = 0;
        int position = 0;
    };

    [[nodiscard]] LabelWidths labelWidths() const;
    [[nodiscard]] int labelHeight() const;
    void observe();
    void showLook();
    void showDuration();
    void showStart();
    void showPosition();
    void showEnd();
    void showLength();
    void placeLabels();
    void placeLength(const LabelWidths& widths);

    std::shared_ptr<EditState> m_state;
    TimelineStrip* m_strip;
    TabularLabel* m_start;
    TabularLabel* m_position;
    TabularLabel* m_end;
    TabularLabel* m_length;
};

} // namespace brisklet
