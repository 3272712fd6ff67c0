#pragma once

#include "Media/FFmpeg/Handles.h"
#include "Media/FFmpeg/Timestamp.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace media::ffmpeg {

class Demuxer;

/// What a container would state about a bitstream that has none: where each packet lies, and when
/// its picture is decoded and shown. Immutable; any thread.
class PictureIndex {
public:
    /// Times in the time base of the stream. Both fields of a frame have the frame's.
    struct Entry {
        /// Where the packet begins in the file; bytes.
        std::int64_t position = 0;
        /// Counted from the first picture to be shown; none of one that is not shown.
        std::optional<Timestamp> pts;
        /// Not after the pts of any picture.
        Timestamp dts;
        std::int64_t duration = 0;
        bool isKey = false;
    };

    /// `entries` in the order of the file, at least one; `end`: of the picture shown last.
    PictureIndex(std::vector<Entry> entries, AVRational frameRate, Timestamp end);

    /// Reads the whole file once, with a demuxer that has just found its stream's parameters, and
    /// leaves that at the end. Null for containers, for bitstreams whose pictures cannot be put in
    /// order without decoding them, and for those without any. Throws Error; Cancelled.
    static std::shared_ptr<const PictureIndex> read(Demuxer& demuxer, const std::stop_token& stop);

    /// Gives a packet, as the demuxer cuts it, its times. One that is not of this index has none.
    /// False if its picture is not to be shown: it leans on others that are not there.
    bool stamp(AVPacket& packet) const;

    /// The last key frame that is shown at or before `pts`; null if there is none.
    [[nodiscard]] const Entry* keyFrameShownBefore(Timestamp pts) const;
    /// The last key frame that is decoded at or before `dts`; null if there is none.
    [[nodiscard]] const Entry* keyFrameDecodedBefore(Timestamp dts) const;

    [[nodiscard]] const Entry& first() const { return m_entries.front(); }

    /// As the stream states it, of MPEG-4 as its pictures show it, or else 25.
    [[nodiscard]] AVRational frameRate() const { return m_frameRate; }

    [[nodiscard]] Timestamp end() const { return m_end; }

private:
    std::vector<Entry> m_entries;
    /// Those of key frames that are shown, in that order, in which they are decoded too.
    std::vector<Entry> m_keyFrames;
    AVRational m_frameRate;
    Timestamp m_end;
};

} // namespace media::ffmpeg
