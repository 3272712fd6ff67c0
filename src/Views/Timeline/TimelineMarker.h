#pragma once

#include "Views/Timeline/TimelineGeometry.h"

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

    /// The move that a key stands for, if any. Back is always left, whatever the direction of the
    /// writing.
    static std::optional<TimelineMove> of(int key, Qt::KeyboardModifiers modifiers);

    friend bool operator==(const TimelineMove&, const TimelineMove&) = default;
};

/// One end of the range or the playhead, for the keyboard and for assistive technology: a slider
/// over the time. It takes the focus and the keys and keeps nothing; it paints nothing and lets the
/// mouse through, since the strip that it lies on does that for all of them. Main thread.
class TimelineMarker final : public QWidget {
    Q_OBJECT

public:
    enum class Role { trimStart, playhead, trimEnd };

    TimelineMarker(std::shared_ptr<EditState> state, Role role, QWidget* strip);

    [[nodiscard]] Role role() const { return m_role; }

    /// Seconds.
    [[nodiscard]] double value() const;
    [[nodiscard]] double minimum() const;
    [[nodiscard]] double maximum() const;
    /// The value as people read it.
    [[nodiscard]] QString valueText() const;

    /// Moves there, as near as the limits allow, like a drag.
    void setValue(double seconds);

    /// Whether the focus is to be shown: it came by the keyboard or was given to this handle, or a
    /// key was used since.
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
    Role m_role;
    bool m_isFocusShown = false;
    QString m_announced;
};

} // namespace brisklet
