#include "TestSupport/ClickTrack.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace testsupport {
namespace {

constexpr double kAmplitude = 0.8;

/// A click that repeats one second on is a new one; anything nearer belongs to the same.
constexpr double kSmallestDistance = 0.25;

/// One click: a rising chirp under a soft envelope. Its correlation with itself has one sharp peak,
/// which tells the position better than any level does once a codec has smeared the edges.
std::vector<double> clickShape(int sampleRate) {
    const auto count = static_cast<std::size_t>(std::lround(kClickDuration * sampleRate));
    const double low = 400;
    const double high = std::min(6000.0, 0.35 * sampleRate);
    std::vector<double> shape(count);
    for (std::size_t i = 0; i < count; ++i) {
        const double t = static_cast<double>(i) / sampleRate;
        const double phase = low * t + (high - low) * t * t / (2 * kClickDuration);
        const double envelope = std::sin(std::numbers::pi * (static_cast<double>(i) + 0.5) /
                                         static_cast<double>(count));
        shape[i] = kAmplitude * envelope * std::sin(2 * std::numbers::pi * phase);
    }
    return shape;
}

double energyOf(const std::vector<double>& shape) {
    double energy = 0;
    for (const double value : shape)
        energy += value * value;
    return energy;
}

double correlationAt(std::span<const float> samples, std::size_t position,
                     const std::vector<double>& shape) {
    double sum = 0;
    const std::size_t count = std::min(shape.size(), samples.size() - position);
    for (std::size_t i = 0; i < count; ++i)
        sum += static_cast<double>(samples[position + i]) * shape[i];
    return sum;
}

} // namespace

std::vector<std::int16_t> drawClicks(const ClickTrack& track) {
    const std::vector<double> shape = clickShape(track.sampleRate);
    const auto count = static_cast<std::int64_t>(std::llround(track.duration * track.sampleRate));
    std::vector<std::int16_t> samples(static_cast<std::size_t>(count));
    const auto firstSecond = static_cast<std::int64_t>(std::floor(track.start)) - 1;
    const auto lastSecond = static_cast<std::int64_t>(std::ceil(track.start + track.duration));
    for (std::int64_t second = firstSecond; second <= lastSecond; ++second) {
        const double seconds = static_cast<double>(second) + track.clickPhase - track.start;
        const std::int64_t first = std::llround(seconds * track.sampleRate);
        for (std::size_t i = 0; i < shape.size(); ++i) {
            const std::int64_t position = first + static_cast<std::int64_t>(i);
            if (position >= 0 && position < count)
                samples[static_cast<std::size_t>(position)] =
                    static_cast<std::int16_t>(std::lround(32767 * shape[i]));
        }
    }
    return samples;
}

std::vector<std::size_t> findClicks(std::span<const float> samples, int sampleRate) {
    const std::vector<double> shape = clickShape(sampleRate);
    const double threshold = 0.4 * energyOf(shape);
    const auto distance = static_cast<std::size_t>(kSmallestDistance * sampleRate);

    std::vector<std::size_t> clicks;
    double best = 0;
    for (std::size_t position = 0; position < samples.size(); ++position) {
        const double correlation = correlationAt(samples, position, shape);
        if (correlation < threshold)
            continue;
        if (clicks.empty() || position - clicks.back() > distance) {
            clicks.push_back(position);
            best = correlation;
        } else if (correlation > best) {
            clicks.back() = position;
            best = correlation;
        }
    }
    return clicks;
}

} // namespace testsupport
