#include "Media/Playback/CubebOutput.h"

#include <cubeb/cubeb.h>

#include <algorithm>
#include <atomic>
#include <string_view>

namespace media::playback {

namespace {

/// Frames between the callback and the ear, where the device allows it: short, since a jump is
/// heard that much later, and long enough for a busy machine.
constexpr std::uint32_t kLatencyFrames = kOutputSampleRate / 20;

struct ContextDeleter {
    void operator()(cubeb* context) const noexcept { cubeb_destroy(context); }
};

struct StreamDeleter {
    void operator()(cubeb_stream* stream) const noexcept {
        cubeb_stream_stop(stream);
        cubeb_stream_destroy(stream);
    }
};

} // namespace

class CubebOutput::Private {
public:
    bool connect();
    bool open(AudioSource& source);

    void close() noexcept { m_stream.reset(); }

    void disconnect() noexcept {
        close();
        m_context.reset();
    }

    [[nodiscard]] std::optional<std::uint64_t> heardFrames();

    [[nodiscard]] bool hasFailed() const { return m_hasFailed.load(std::memory_order_relaxed); }

private:
    static long pull(cubeb_stream* stream, void* self, const void* input, void* output,
                     long frameCount) noexcept;
    static void stateChanged(cubeb_stream* stream, void* self, cubeb_state state) noexcept;
    [[nodiscard]] std::uint32_t latencyFrames(cubeb_stream_params params) const;

    std::unique_ptr<cubeb, ContextDeleter> m_context;
    std::unique_ptr<cubeb_stream, StreamDeleter> m_stream;
    /// Whether positions count what was handed over rather than what was heard.
    bool m_positionLeavesOutLatency = false;
    AudioSource* m_source = nullptr;
    /// Set on the device's thread. A lone flag: its order to anything else does not matter.
    std::atomic<bool> m_hasFailed = false;
};

bool CubebOutput::Private::connect() {
    if (m_context)
        return true;
    cubeb* context = nullptr;
    if (cubeb_init(&context, "Brisklet", nullptr) != CUBEB_OK)
        return false;
    m_context.reset(context);
    m_positionLeavesOutLatency = std::string_view(cubeb_get_backend_id(context)) == "jack";
    return true;
}

std::uint32_t CubebOutput::Private::latencyFrames(cubeb_stream_params params) const {
    std::uint32_t least = 0;
    if (cubeb_get_min_latency(m_context.get(), &params, &least) != CUBEB_OK)
        least = 0;
    return std::max(least, kLatencyFrames);
}

bool CubebOutput::Private::open(AudioSource& source) {
    cubeb_stream_params params{};
    params.format = CUBEB_SAMPLE_FLOAT32NE;
    params.rate = kOutputSampleRate;
    params.channels = kOutputChannels;
    params.layout = CUBEB_LAYOUT_STEREO;
    params.prefs = CUBEB_STREAM_PREF_NONE;

    m_source = &source;
    m_hasFailed = false;
    cubeb_stream* stream = nullptr;
    if (cubeb_stream_init(m_context.get(), &stream, "Video", nullptr, nullptr, nullptr, &params,
                          latencyFrames(params), &Private::pull, &Private::stateChanged,
                          this) != CUBEB_OK)
        return false;
    m_stream.reset(stream);
    return cubeb_stream_start(stream) == CUBEB_OK;
}

std::optional<std::uint64_t> CubebOutput::Private::heardFrames() {
    std::uint64_t position = 0;
    if (!m_stream || cubeb_stream_get_position(m_stream.get(), &position) != CUBEB_OK)
        return std::nullopt;
    if (!m_positionLeavesOutLatency)
        return position;
    std::uint32_t latency = 0;
    if (cubeb_stream_get_latency(m_stream.get(), &latency) != CUBEB_OK)
        return position;
    return position - std::min<std::uint64_t>(position, latency);
}

long CubebOutput::Private::pull(cubeb_stream*, void* self, const void*, void* output,
                                long frameCount) noexcept {
    if (frameCount > 0)
        static_cast<Private*>(self)->m_source->pull(static_cast<float*>(output),
                                                    static_cast<std::size_t>(frameCount));
    return frameCount;
}

void CubebOutput::Private::stateChanged(cubeb_stream*, void* self, cubeb_state state) noexcept {
    if (state == CUBEB_STATE_ERROR)
        static_cast<Private*>(self)->m_hasFailed.store(true, std::memory_order_relaxed);
}

CubebOutput::CubebOutput() : d(std::make_unique<Private>()) {}

CubebOutput::~CubebOutput() = default;

bool CubebOutput::start(AudioSource& source) {
    d->close();
    if (d->connect() && d->open(source))
        return true;
    // The server behind the connection may be gone: the next attempt looks for one anew.
    d->disconnect();
    return false;
}

void CubebOutput::stop() noexcept {
    if (d->hasFailed())
        d->disconnect();
    else
        d->close();
}

std::optional<std::uint64_t> CubebOutput::heardFrames() {
    return d->heardFrames();
}

bool CubebOutput::hasFailed() const {
    return d->hasFailed();
}

} // namespace media::playback
