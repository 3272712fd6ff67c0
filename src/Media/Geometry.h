#pragma once

namespace media {

/// Width and height, in pixels unless said otherwise.
struct Size {
    double width = 0;
    double height = 0;
    friend bool operator==(const Size&, const Size&) = default;
};

struct Point {
    double x = 0;
    double y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

/// A rectangle with its origin at the top left and y growing downward; width and height are not
/// negative in the results of the functions here.
struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    [[nodiscard]] double minX() const { return x; }

    [[nodiscard]] double minY() const { return y; }

    [[nodiscard]] double maxX() const { return x + width; }

    [[nodiscard]] double maxY() const { return y + height; }

    [[nodiscard]] Size size() const { return {width, height}; }

    /// Moves each side inward by dx or dy (outward where negative).
    [[nodiscard]] Rect insetBy(double dx, double dy) const;
    /// Whether `other` lies inside this rectangle, common edges allowed.
    [[nodiscard]] bool contains(const Rect& other) const;
    /// The common part; all zero where there is none.
    [[nodiscard]] Rect intersected(const Rect& other) const;

    friend bool operator==(const Rect&, const Rect&) = default;
};

/// x' = a x + c y + tx, y' = b x + d y + ty.
struct AffineTransform {
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;
    double tx = 0;
    double ty = 0;

    static AffineTransform translation(double tx, double ty) { return {1, 0, 0, 1, tx, ty}; }

    static AffineTransform scale(double sx, double sy) { return {sx, 0, 0, sy, 0, 0}; }

    /// The transform that applies this one first and `next` after it.
    [[nodiscard]] AffineTransform concatenated(const AffineTransform& next) const;
    /// Undoes this transform. The determinant must not be 0.
    [[nodiscard]] AffineTransform inverted() const;

    [[nodiscard]] double determinant() const { return a * d - b * c; }

    [[nodiscard]] Point apply(Point point) const;
    /// The bounding box of the transformed rectangle.
    [[nodiscard]] Rect apply(const Rect& rect) const;

    friend bool operator==(const AffineTransform&, const AffineTransform&) = default;
};

/// The largest rectangle of the aspect ratio of `size` that fits into `bounds`, centred in it.
/// Empty (at the centre) when `size` has no area.
Rect fitAspect(Size size, const Rect& bounds);

} // namespace media
