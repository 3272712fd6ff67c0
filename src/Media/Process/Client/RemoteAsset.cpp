#include "Media/Process/Client/RemoteAsset.h"

#include "Media/Error.h"
#include "Media/Process/Client/ForkServer.h"
#include "Media/Process/Client/RemoteFrameSource.h"
#include "Media/Process/Client/RemoteObject.h"
#include "Media/Process/Client/RemoteSoundReader.h"
#include "Media/Process/Wire/MediaMessages.h"
#include "Media/Threading/Verify.h"

#include <algorithm>
#include <utility>

namespace media::process {

namespace {

/// What a helper has found out about its file. The helper is ended when that is no more wanted:
/// nobody else has a use for it yet.
MessageReader factsOf(HelperProcess& helper, const ffmpeg::SourceFile& file,
                      const std::stop_token& stop) {
    RemoteObject remote(helper.makeObject(ObjectKind::asset), {}, [&helper] { helper.kill(); });
    const std::stop_callback onStop(stop, [&helper] { helper.kill(); });
    MessageWriter arguments;
    arguments.put(file.duplicate());
    arguments.put(std::string_view(file.path().native()));
    try {
        return remote.call(AssetOperation::open, std::move(arguments), stop);
    } catch (const Error&) {
        if (stop.stop_requested())
            throw Cancelled();
        throw;
    }
}

} // namespace

std::shared_ptr<const RemoteAsset> RemoteAsset::open(ForkServer& server,
                                                     const std::filesystem::path& path,
                                                     const std::stop_token& stop) {
    auto file = ffmpeg::SourceFile::open(path);
    auto helper = server.fork(stop);
    MessageReader answer = factsOf(*helper, *file, stop);
    if (stop.stop_requested())
        throw Cancelled();
    try {
        const Time duration = getTime(answer);
        std::vector<AssetTrack> tracks;
        const auto count = answer.get<std::uint32_t>();
        for (std::uint32_t i = 0; i < count; ++i)
            tracks.push_back(getTrack(answer));
        answer.expectEnd();
        return std::make_shared<const RemoteAsset>(std::move(helper), std::move(file), duration,
                                                   std::move(tracks));
    } catch (const BadMessage&) {
        throw Error(ErrorKind::decoderStopped);
    }
}

std::shared_ptr<const RemoteAsset> RemoteAsset::of(const std::shared_ptr<const Asset>& asset) {
    auto remote = std::dynamic_pointer_cast<const RemoteAsset>(asset);
    verify(remote != nullptr, "the asset is one of this engine’s");
    return remote;
}

RemoteAsset::RemoteAsset(std::shared_ptr<HelperProcess> helper,
                         std::shared_ptr<const ffmpeg::SourceFile> file, Time duration,
                         std::vector<AssetTrack> tracks)
    : m_helper(std::move(helper)),
      m_file(std::move(file)),
      m_duration(duration),
      m_tracks(std::move(tracks)) {}

std::vector<AssetTrack> RemoteAsset::tracks(MediaType type) const {
    std::vector<AssetTrack> result;
    std::ranges::copy_if(m_tracks, std::back_inserter(result),
                         [type](const AssetTrack& track) { return track.type == type; });
    return result;
}

/// What ends the helper if it is still there.
RemoteObject::Abandon RemoteAsset::abandoning() const {
    return [helper = std::weak_ptr(m_helper)] {
        if (const auto hung = helper.lock())
            hung->kill();
    };
}

void RemoteAsset::setLossHandler(std::function<void()> handler) const {
    m_helper->setEndHandler(std::move(handler));
}

std::unique_ptr<playback::FrameSource>
RemoteAsset::makeFrameSource(playback::FrameSource::Keep keep) const {
    if (tracks(MediaType::video).empty())
        return nullptr;
    return std::make_unique<RemoteFrameSource>(m_helper->makeObject(ObjectKind::frameSource),
                                               std::move(keep), abandoning());
}

std::unique_ptr<playback::SoundReader> RemoteAsset::makeSoundReader() const {
    if (tracks(MediaType::audio).empty())
        return nullptr;
    return RemoteSoundReader::make(m_helper->makeObject(ObjectKind::soundReader), abandoning());
}

} // namespace media::process
