#include "Media/Pixels/FieldInterpolation.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

// Clones are chosen when the program is loaded, in instrumented code that would call the thread
// sanitizer before it is initialised.
#ifdef __SANITIZE_THREAD__
#define BRISKLET_CLONED
#else
#define BRISKLET_CLONED __attribute__((target_clones("avx2", "default")))
#endif

namespace media::pixels {

namespace {

/// Weston's filter coefficients, in 1/8192: low frequencies from lines of the same field, high
/// frequencies from the fields before and after, and the coefficients for the same field alone.
constexpr int kLow[] = {4309, 213};
constexpr int kHigh[] = {5570, 3801, 1016};
constexpr int kAlone[] = {5077, 981};
constexpr int kTapBits = 13;

/// The lines around the one to be computed, by their distance from it. "before" and "after" are the
/// fields before and after in time that contain the missing line itself.
template<typename T>
struct Neighbours {
    /// The kept field: one and three lines away.
    const T *above, *below, *farAbove, *farBelow;
    /// The same field a picture earlier and later: one line away.
    const T *earlierAbove, *earlierBelow, *laterAbove, *laterBelow;
    /// The other field: at the line, two and four lines away.
    const T *before, *beforeAbove, *beforeBelow, *beforeFarAbove, *beforeFarBelow;
    const T *after, *afterAbove, *afterBelow, *afterFarAbove, *afterFarBelow;
};

template<typename T>
[[gnu::always_inline]] inline void computeLine(const Neighbours<T>& n, T* out, int width,
                                               int most) {
    for (int x = 0; x < width; ++x) {
        const int above = n.above[x];
        const int below = n.below[x];
        const int still = (n.before[x] + n.after[x]) >> 1;
        const int change = std::abs(n.before[x] - n.after[x]);
        const int changeEarlier =
            (std::abs(n.earlierAbove[x] - above) + std::abs(n.earlierBelow[x] - below)) >> 1;
        const int changeLater =
            (std::abs(n.laterAbove[x] - above) + std::abs(n.laterBelow[x] - below)) >> 1;
        int bound = std::max({change >> 1, changeEarlier, changeLater});

        // Vertical detail finer than the lines above and below must not be taken for movement.
        const int highAbove = ((n.beforeAbove[x] + n.afterAbove[x]) >> 1) - above;
        const int highBelow = ((n.beforeBelow[x] + n.afterBelow[x]) >> 1) - below;
        const int stillBelow = still - below;
        const int stillAbove = still - above;
        const int highest = std::max({stillBelow, stillAbove, std::min(highAbove, highBelow)});
        const int lowest = std::min({stillBelow, stillAbove, std::max(highAbove, highBelow)});
        bound = bound == 0 ? 0 : std::max({bound, lowest, -highest});

        const int far = n.farAbove[x] + n.farBelow[x];
        const int high =
            (kHigh[0] * (n.before[x] + n.after[x]) -
             kHigh[1] * (n.beforeAbove[x] + n.afterAbove[x] + n.beforeBelow[x] + n.afterBelow[x]) +
             kHigh[2] * (n.beforeFarAbove[x] + n.afterFarAbove[x] + n.beforeFarBelow[x] +
                         n.afterFarBelow[x])) >>
            2;
        const int mixed = (high + kLow[0] * (above + below) - kLow[1] * far) >> kTapBits;
        const int alone = (kAlone[0] * (above + below) - kAlone[1] * far) >> kTapBits;
        const int value = std::abs(above - below) > change ? mixed : alone;
        const int bounded = std::min(std::max(value, still - bound), still + bound);
        out[x] = static_cast<T>(std::min(std::max(bounded, 0), most));
    }
}

BRISKLET_CLONED void computeBytes(const Neighbours<std::uint8_t>& n, std::uint8_t* out, int width,
                                  int most) {
    computeLine(n, out, width, most);
}

BRISKLET_CLONED void computeWords(const Neighbours<std::uint16_t>& n, std::uint16_t* out, int width,
                                  int most) {
    computeLine(n, out, width, most);
}

void compute(const Neighbours<std::uint8_t>& n, std::uint8_t* out, int width, int most) {
    computeBytes(n, out, width, most);
}

void compute(const Neighbours<std::uint16_t>& n, std::uint16_t* out, int width, int most) {
    computeWords(n, out, width, most);
}

/// Line `y` of a plane that is continued by its mirror image beyond its edges. The mirror keeps odd
/// lines odd, so that they belong to the same field.
template<typename T>
const T* lineOf(const ConstPlane& plane, int y) {
    const int last = plane.height - 1;
    const int inside = y < 0 ? -y : y > last ? 2 * last - y : y;
    return reinterpret_cast<const T*>(plane.line(std::clamp(inside, 0, last)));
}

template<typename T>
Neighbours<T> neighbours(const FieldPlanes& in, int y) {
    const auto own = [&](int offset) { return lineOf<T>(in.current, y + offset); };
    const auto earlier = [&](int offset) { return lineOf<T>(in.previous, y + offset); };
    const auto later = [&](int offset) { return lineOf<T>(in.following, y + offset); };
    return {.above = own(-1),
            .below = own(1),
            .farAbove = own(-3),
            .farBelow = own(3),
            .earlierAbove = earlier(-1),
            .earlierBelow = earlier(1),
            .laterAbove = later(-1),
            .laterBelow = later(1),
            .before = earlier(0),
            .beforeAbove = earlier(-2),
            .beforeBelow = earlier(2),
            .beforeFarAbove = earlier(-4),
            .beforeFarBelow = earlier(4),
            .after = own(0),
            .afterAbove = own(-2),
            .afterBelow = own(2),
            .afterFarAbove = own(-4),
            .afterFarBelow = own(4)};
}

template<typename T>
void interpolate(const FieldPlanes& in, int most, bool keepsTop, Plane out) {
    const int firstMissing = keepsTop ? 1 : 0;
    for (int y = 0; y < out.height; ++y) {
        auto* line = reinterpret_cast<T*>(out.line(y));
        if (y % 2 == firstMissing && out.height > 1)
            compute(neighbours<T>(in, y), line, out.width, most);
        else
            std::memcpy(line, in.current.line(y), static_cast<std::size_t>(out.width) * sizeof(T));
    }
}

} // namespace

void interpolateSecondField(const FieldPlanes& in, int depth, bool keepsTop, Plane out) {
    const int most = (1 << depth) - 1;
    if (depth > 8)
        interpolate<std::uint16_t>(in, most, keepsTop, out);
    else
        interpolate<std::uint8_t>(in, most, keepsTop, out);
}

} // namespace media::pixels
