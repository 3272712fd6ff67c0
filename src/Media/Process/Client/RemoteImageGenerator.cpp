#include "Media/Process/Client/RemoteImageGenerator.h"

#include "Media/Error.h"
#include "Media/Process/Client/RemoteAsset.h"
#include "Media/Process/Wire/MediaMessages.h"
#include "Media/Process/Wire/Protocol.h"

#include <algorithm>
#include <utility>

namespace media::process {

namespace {

/// As many times as one message takes, with room for the settings.
constexpr std::size_t kMostTimes = 4096;

Descriptor objectIn(const std::shared_ptr<const Asset>& asset) {
    if (asset->tracks(MediaType::video).empty())
        throw Error(ErrorKind::noVideoTrack);
    return RemoteAsset::of(asset)->helper().makeObject(ObjectKind::imageGenerator);
}

} // namespace

RemoteImageGenerator::RemoteImageGenerator(std::shared_ptr<const Asset> asset)
    : m_asset(std::move(asset)),
      m_remote(objectIn(m_asset), {}, [this] { RemoteAsset::of(m_asset)->abandon(); }) {}

void RemoteImageGenerator::setMaximumSize(int width, int height) {
    m_maximumWidth = std::max(width, 0);
    m_maximumHeight = std::max(height, 0);
}

void RemoteImageGenerator::setTolerance(Time before, Time after) {
    m_before = before;
    m_after = after;
}

MessageWriter RemoteImageGenerator::settings() const {
    MessageWriter writer;
    writer.put(m_maximumWidth);
    writer.put(m_maximumHeight);
    put(writer, m_before);
    put(writer, m_after);
    return writer;
}

TimedImage RemoteImageGenerator::image(Time time, std::stop_token stop) {
    MessageWriter arguments = settings();
    put(arguments, time);
    MessageReader answer = m_remote.call(StillOperation::image, std::move(arguments), stop);
    return getPicture(answer);
}

std::vector<Still> RemoteImageGenerator::images(const std::vector<Time>& times,
                                                const std::function<void()>& onStill,
                                                std::stop_token stop) {
    std::vector<Still> stills;
    for (std::size_t first = 0; first < times.size(); first += kMostTimes) {
        const std::size_t count = std::min(kMostTimes, times.size() - first);
        MessageWriter arguments = settings();
        arguments.put(static_cast<std::uint32_t>(count));
        for (std::size_t i = first; i < first + count; ++i)
            put(arguments, times[i]);
        static_cast<void>(m_remote.call(StillOperation::images, std::move(arguments), stop,
                                        [&](MessageReader&) { onStill(); }));
        for (std::size_t i = 0; i < count; ++i)
            stills.push_back(take(i));
    }
    return stills;
}

Still RemoteImageGenerator::take(std::size_t index) {
    MessageWriter arguments;
    arguments.put(static_cast<std::uint32_t>(index));
    try {
        MessageReader answer = m_remote.callShort(StillOperation::take, std::move(arguments));
        return {getPicture(answer), nullptr};
    } catch (const Error&) {
        return {std::nullopt, std::current_exception()};
    }
}

TimedImage RemoteImageGenerator::getPicture(MessageReader& answer) {
    try {
        return getImage(answer, m_area);
    } catch (const BadMessage&) {
        m_remote.giveUp();
    }
}

} // namespace media::process
