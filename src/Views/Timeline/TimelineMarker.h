#pragma once

#include "Models/EditMarker.h"
#include "Views/Shortcuts/ShortcutSource.h"

#include <QString>
#include <QWidget>

#include <memory>
#include <optional>

namespace brisklet {

class EditState;

/// What a key does to a marker of the timeline.
struct TimelineMove {
    enum class Kind { byFrames, bySeconds, toMinimum, toMaximum };

    Kind kind = Kind::byFrames;
    /// Frames or seconds; negative moves back.
    int count = 0;

    /// The move that a key stands for, if any. Left is always backward, also where text runs from
    /// right to left.
    static std::optional<TimelineMove> of(int key, Qt::KeyboardModifiers modifiers);
    /// All of these keys, for people.
    static QList<Shortcut> shortcuts();

    friend bool operator==(const TimelineMove&, const TimelineMove&) = default;
};

/// One end of the range or the playhead, as a slider over the time for the keyboard and for
/// assistive technology. It takes the focus and the keys and has no state of its own. It paints
/// nothing and is transparent to the mouse: the strip below does both for all markers. Main thread.
class TimelineMarker final : public QWidget {
    Q_OBJECT

public:
    TimelineMarker(std::shared_ptr<EditState> state, EditMarker marker, QWidget* strip);

    [[nodiscard]] EditMarker marker() const { return m_marker; }

    /// Seconds.
    [[nodiscard]] double value() const;
    [[nodiscard]] double minimum() const;
    [[nodiscard]] double maximum() const;
    /// The value as it is shown.
    [[nodiscard]] QString valueText() const;

    /// Moves there as a drag would, as near as the limits allow. Does nothing without a video.
    void setValue(double seconds);

    /// Whether to paint the focus: it came by the keyboard or was given to this handle, or a key
    /// has been used since.
    [[nodiscard]] bool isFocusShown() const { return hasFocus() && m_isFocusShown; }

    /// Tells assistive technology of a new value.
    void announceValue();

Q_SIGNALS:
    /// isFocusShown() may have changed.
    void focusShownChanged();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] bool takesKeys() const;
    void apply(const TimelineMove& move);

    std::shared_ptr<EditState> m_state;
    EditMarker m_marker;
    bool m_isFocusShown = false;
    QString m_announced;
};

} // namespace brisklet
