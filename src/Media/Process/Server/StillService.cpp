#include "Media/Process/Server/StillService.h"

#include "Media/Pictures/DecodingImageGenerator.h"
#include "Media/Process/Wire/MediaMessages.h"
#include "Media/Process/Wire/Protocol.h"

#include <exception>
#include <limits>
#include <utility>

namespace media::process {

/// Every call says all that it depends on, so that setting it needs no call.
ImageGenerator& StillService::generatorFor(MessageReader& arguments) {
    constexpr int kMost = std::numeric_limits<int>::max();
    if (!m_generator) {
        auto asset = *m_asset.lock();
        if (!asset)
            throw BadMessage();
        m_generator = std::make_unique<DecodingImageGenerator>(std::move(asset));
    }
    const int width = arguments.getWithin<int>(0, kMost);
    const int height = arguments.getWithin<int>(0, kMost);
    m_generator->setMaximumSize(width, height);
    const Time before = getTime(arguments);
    m_generator->setTolerance(before, getTime(arguments));
    return *m_generator;
}

void StillService::makeImages(MessageReader& arguments, const Report& report,
                              const std::stop_token& stop) {
    ImageGenerator& generator = generatorFor(arguments);
    std::vector<Time> times(arguments.get<std::uint32_t>());
    for (Time& time : times)
        time = getTime(arguments);
    m_stills.clear();
    m_stills = generator.images(
        times, [&] { report({}); }, stop);
}

/// Throws what there was instead of the picture.
void StillService::take(std::uint32_t index, MessageWriter& answer) {
    if (index >= m_stills.size())
        throw BadMessage();
    Still still = std::exchange(m_stills[index], {});
    if (still.failure)
        std::rethrow_exception(still.failure);
    if (!still.picture || !still.picture->image)
        throw BadMessage();
    put(answer, m_area, *still.picture);
}

void StillService::perform(std::int32_t operation, MessageReader& arguments, MessageWriter& answer,
                           const Report& report, const std::stop_token& stop) {
    switch (static_cast<StillOperation>(operation)) {
    case StillOperation::image: {
        ImageGenerator& generator = generatorFor(arguments);
        return put(answer, m_area, generator.image(getTime(arguments), stop));
    }
    case StillOperation::images:
        return makeImages(arguments, report, stop);
    case StillOperation::take:
        return take(arguments.get<std::uint32_t>(), answer);
    case StillOperation::count:
        break;
    }
    throw BadMessage();
}

} // namespace media::process
