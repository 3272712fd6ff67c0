#pragma once

#include "Media/Export/BoundedQueue.h"
#include "Media/Export/FrameSchedule.h"
#include "Media/Export/PictureMaker.h"

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <stop_token>

namespace media {

/// The stage of an export that makes the encoder's pictures of the source's. Each picture is the
/// work of one worker, and the workers, on a thread each, have one picture each at a time. The
/// pictures leave in the order in which they came, and are the same whatever the number of workers.
class TransformStage {
public:
    /// As many workers as the processors can keep busy and as the memory for their pictures allows;
    /// one where pictures of the given format and size are handed on as they are. `processors`: at
    /// least 1.
    static int usefulWorkers(const PictureMaking& making, AVPixelFormat format, int width,
                             int height, int processors);

    /// The queues outlive the stage.
    TransformStage(const PictureMaking& making, BoundedQueue<ScheduledFrame>& in,
                   BoundedQueue<ScheduledFrame>& out, std::stop_token stop);

    /// The work of one worker, on the calling thread, until there are no more pictures. After the
    /// last picture `out` is finished. Throws Cancelled once `stop` is requested, and Error if a
    /// picture's pixel format cannot be converted: the owner has to stop the others then.
    void run();

private:
    /// A picture and its place in the order, from 0.
    struct Numbered {
        ScheduledFrame picture;
        std::int64_t number = 0;
    };

    std::optional<Numbered> take();
    /// Waits until all earlier pictures have left. `made` is null for a repeat.
    void handOn(Numbered taken, ffmpeg::FramePtr made);
    void finishAfterLast();

    PictureMaking m_making;
    std::stop_token m_stop;
    BoundedQueue<ScheduledFrame>& m_in;
    BoundedQueue<ScheduledFrame>& m_out;
    /// Held while a picture is waited for: so only one worker asks the decoder for one.
    std::mutex m_taking;
    /// Under m_taking.
    std::int64_t m_takenCount = 0;

    std::mutex m_mutex;
    std::condition_variable_any m_turnEnded;
    /// Under m_mutex: the number of the picture that leaves next.
    std::int64_t m_turn = 0;
    /// The latest picture that left; the worker whose turn it is.
    ffmpeg::FramePtr m_latest;
};

} // namespace media
