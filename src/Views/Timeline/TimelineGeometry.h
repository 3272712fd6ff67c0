#pragma once

#include <QPointF>
#include <QRectF>

#include <optional>

namespace brisklet {

/// The two ends of the kept range.
enum class HandleEdge { leading, trailing };

/// Where everything on the strip of a timeline lies. Positions are points from the strip's left
/// edge, times seconds. The time axis runs from `handleWidth` to `width - handleWidth`; each handle
/// lies just outside the range that it limits.
///
/// Any number may stand in the times, those that are none and infinite ones among them, as damaged
/// files state them: the results are always finite.
struct TimelineGeometry {
    /// The shortest range that a handle makes, seconds.
    static constexpr double kMinimumRange = 0.1;

    double duration = 0;
    double trimStart = 0;
    double trimEnd = 0;
    double currentTime = 0;
    double width = 0;
    double stripHeight = 0;
    double handleWidth = 0;

    /// The position of `time` on a strip of `stripWidth`; the start of the axis while there is no
    /// duration.
    [[nodiscard]] double x(double time, double stripWidth) const;

    [[nodiscard]] double x(double time) const { return x(time, width); }

    /// The time at a position, from 0 to the duration.
    [[nodiscard]] double time(double position) const;

    [[nodiscard]] QRectF strip() const { return {0, 0, width, stripHeight}; }

    [[nodiscard]] QRectF filmstrip() const;
    /// Tile `index` of `count` equal ones, which span exactly the filmstrip.
    [[nodiscard]] QRectF tile(int index, int count) const;
    [[nodiscard]] QRectF leftShade() const;
    [[nodiscard]] QRectF rightShade() const;
    [[nodiscard]] QRectF rangeFrame() const;
    [[nodiscard]] QRectF playhead() const;
    [[nodiscard]] QRectF handle(HandleEdge edge) const;

    /// The handle under a point of the strip; they lie above everything else.
    [[nodiscard]] std::optional<HandleEdge> handleAt(const QPointF& point) const;

    /// How near the ends of the range may come to each other: kMinimumRange, but neither leaves the
    /// file. So a file that is shorter than that stays whole.
    [[nodiscard]] double latestStart() const;
    [[nodiscard]] double earliestEnd() const;

    /// What a handle that is put at `time` makes of its end of the range: inside the file, and
    /// away from the other end, which wins.
    [[nodiscard]] double clampedStart(double time) const;
    [[nodiscard]] double clampedEnd(double time) const;

    friend bool operator==(const TimelineGeometry&, const TimelineGeometry&) = default;
};

} // namespace brisklet
