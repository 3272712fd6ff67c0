#include "Media/Process/Server/HelperMain.h"

#include "Media/Process/Server/AssetService.h"
#include "Media/Process/Server/Confinement.h"
#include "Media/Process/Server/ExportService.h"
#include "Media/Process/Server/FrameService.h"
#include "Media/Process/Server/ServedObject.h"
#include "Media/Process/Server/SoundService.h"
#include "Media/Process/Server/StillService.h"
#include "Media/Process/Wire/Channel.h"
#include "Media/Process/Wire/Protocol.h"

#include <cstdlib>
#include <memory>
#include <thread>
#include <unistd.h>
#include <utility>

namespace media::process {

namespace {

std::unique_ptr<Service> makeService(ObjectKind kind, HelpersAsset& asset) {
    switch (kind) {
    case ObjectKind::asset:
        return std::make_unique<AssetService>(asset);
    case ObjectKind::frameSource:
        return std::make_unique<FrameService>(asset);
    case ObjectKind::soundReader:
        return std::make_unique<SoundService>(asset);
    case ObjectKind::imageGenerator:
        return std::make_unique<StillService>(asset);
    case ObjectKind::exportSession:
        return std::make_unique<ExportService>();
    case ObjectKind::exportForecast:
        return std::make_unique<ForecastService>();
    case ObjectKind::count:
        break;
    }
    throw BadMessage();
}

} // namespace

void serveProgram(Descriptor socket) {
    if (!keepOnly(socket))
        ::_exit(EXIT_FAILURE);
    confine();
    Channel channel(std::move(socket));
    HelpersAsset asset;
    while (auto message = channel.receive()) {
        MessageReader reader(std::move(*message));
        auto service = makeService(reader.getEnum(ObjectKind::count), asset);
        std::thread([socket = reader.getDescriptor(), service = std::move(service)]() mutable {
            serve(std::move(socket), std::move(service));
        }).detach();
    }
    // Nobody waits for what it still does, and it has nothing that lasts.
    ::_exit(EXIT_SUCCESS);
}

} // namespace media::process
