#include "Media/Pixels/PlaneTurn.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <utility>

namespace media::pixels {

namespace {

/// Sixteen bytes of samples, which the compiler keeps in one vector register.
template<typename T>
struct Lanes {
    static constexpr int kCount = 16 / static_cast<int>(sizeof(T));
    using Vector [[gnu::vector_size(16)]] = T;
};

template<typename T>
using Vector = typename Lanes<T>::Vector;

/// Interleaves the first or the second halves of a and b.
template<bool SecondHalf, typename T, int... I>
Vector<T> interleaved(Vector<T> a, Vector<T> b, std::integer_sequence<int, I...>) {
    constexpr int kCount = Lanes<T>::kCount;
    constexpr int kStart = SecondHalf ? kCount / 2 : 0;
    return __builtin_shufflevector(a, b, (kStart + I / 2 + (I % 2) * kCount)...);
}

/// How far ahead of the current tile each row is prefetched: two cache lines, in bytes.
constexpr int kFetchedAhead = 128;

/// Transposes a square tile of kCount × kCount samples: each round of interleaving rows i and
/// i + kCount / 2 turns one bit of the row number into one of the column number.
template<typename T>
void transposeTile(const std::uint8_t* in, std::ptrdiff_t inStride, std::uint8_t* out,
                   std::ptrdiff_t outStride) {
    constexpr unsigned kCount = Lanes<T>::kCount;
    constexpr auto kIndices = std::make_integer_sequence<int, Lanes<T>::kCount>{};
    std::array<Vector<T>, kCount> rows;
    for (unsigned i = 0; i < kCount; ++i) {
        const std::uint8_t* line = in + static_cast<std::ptrdiff_t>(i) * inStride;
        std::memcpy(&rows[i], line, 16);
        // The rows are too far apart for the processor's own prefetching.
        __builtin_prefetch(line + kFetchedAhead);
    }
    for (unsigned round = 1; round < kCount; round *= 2) {
        std::array<Vector<T>, kCount> next;
        for (unsigned i = 0; i < kCount / 2; ++i) {
            next[2 * i] = interleaved<false, T>(rows[i], rows[i + kCount / 2], kIndices);
            next[2 * i + 1] = interleaved<true, T>(rows[i], rows[i + kCount / 2], kIndices);
        }
        rows = next;
    }
    for (unsigned i = 0; i < kCount; ++i)
        std::memcpy(out + static_cast<std::ptrdiff_t>(i) * outStride, &rows[i], 16);
}

/// The samples of columns [x0, x1) and rows [y0, y1) of `in`, one by one.
template<typename T>
void transposeSingly(ConstPlane in, Plane out, int x0, int x1, int y0, int y1) {
    for (int x = x0; x < x1; ++x) {
        std::uint8_t* to = out.line(x);
        for (int y = y0; y < y1; ++y)
            std::memcpy(to + static_cast<std::size_t>(y) * sizeof(T),
                        in.line(y) + static_cast<std::size_t>(x) * sizeof(T), sizeof(T));
    }
}

/// Walks the picture in blocks whose lines stay in the first-level cache on both sides.
template<typename T>
void transpose(ConstPlane in, Plane out) {
    constexpr int kTile = Lanes<T>::kCount;
    constexpr int kBlock = 64;
    constexpr auto kBytes = static_cast<std::ptrdiff_t>(sizeof(T));
    const int tiledWidth = in.width / kTile * kTile;
    const int tiledHeight = in.height / kTile * kTile;
    for (int blockY = 0; blockY < tiledHeight; blockY += kBlock) {
        const int endY = std::min(blockY + kBlock, tiledHeight);
        for (int blockX = 0; blockX < tiledWidth; blockX += kBlock) {
            const int endX = std::min(blockX + kBlock, tiledWidth);
            for (int y = blockY; y < endY; y += kTile)
                for (int x = blockX; x < endX; x += kTile)
                    transposeTile<T>(in.line(y) + x * kBytes, in.stride, out.line(x) + y * kBytes,
                                     out.stride);
        }
    }
    transposeSingly<T>(in, out, tiledWidth, in.width, 0, in.height);
    transposeSingly<T>(in, out, 0, tiledWidth, tiledHeight, in.height);
}

template<typename T, int... I>
Vector<T> reversed(Vector<T> lanes, std::integer_sequence<int, I...>) {
    return __builtin_shufflevector(lanes, lanes, (Lanes<T>::kCount - 1 - I)...);
}

template<typename T>
Vector<T> reversed(Vector<T> lanes) {
    if constexpr (sizeof(T) == 1) {
        // First the 16-bit pairs, which every processor can permute, then the two bytes of each.
        const auto pairs = reversed<std::uint16_t>(std::bit_cast<Vector<std::uint16_t>>(lanes));
        return std::bit_cast<Vector<T>>(pairs << 8 | pairs >> 8);
    } else {
        return reversed<T>(lanes, std::make_integer_sequence<int, Lanes<T>::kCount>{});
    }
}

template<typename T>
void reverseRows(ConstPlane in, Plane out) {
    constexpr int kCount = Lanes<T>::kCount;
    for (int y = 0; y < in.height; ++y) {
        const auto* from = reinterpret_cast<const T*>(in.line(y));
        auto* to = reinterpret_cast<T*>(out.line(y)) + in.width;
        int x = 0;
        for (; x + kCount <= in.width; x += kCount) {
            Vector<T> lanes;
            std::memcpy(&lanes, from + x, 16);
            lanes = reversed<T>(lanes);
            std::memcpy(to - x - kCount, &lanes, 16);
        }
        for (; x < in.width; ++x)
            *(to - x - 1) = from[x];
    }
}

void copyRows(ConstPlane in, Plane out, int sampleBytes) {
    const auto bytes = static_cast<std::size_t>(in.width) * static_cast<unsigned>(sampleBytes);
    for (int y = 0; y < in.height; ++y)
        std::memcpy(out.line(y), in.line(y), bytes);
}

template<typename T>
void turn(ConstPlane in, Plane out, Turn turn) {
    if (turn.transposed)
        transpose<T>(in, out);
    else if (turn.mirroredX)
        reverseRows<T>(in, out);
    else
        copyRows(in, out, sizeof(T));
}

template<typename P>
P upsideDown(P plane) {
    plane.data = plane.line(plane.height - 1);
    plane.stride = -plane.stride;
    return plane;
}

} // namespace

void turnPlane(ConstPlane in, Plane out, Turn turnBy, int sampleBytes) {
    if (turnBy.mirroredY)
        out = upsideDown(out);
    if (turnBy.transposed && turnBy.mirroredX)
        in = upsideDown(in);
    switch (sampleBytes) {
    case 1:
        return turn<std::uint8_t>(in, out, turnBy);
    case 2:
        return turn<std::uint16_t>(in, out, turnBy);
    default:
        return turn<std::uint32_t>(in, out, turnBy);
    }
}

} // namespace media::pixels
