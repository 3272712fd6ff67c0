#pragma once

namespace media::ffmpeg {

/// A share in the tables of libx265: the costs of motion vectors for each quantizer that it has
/// met, half a megabyte each, up to 82 of them, which it keeps for as long as the process lives.
/// Every encoder of that library holds a share from before it is opened until after it is closed;
/// with the last one the tables are freed. Where the library does not offer that, they stay. Any
/// thread.
class EncoderTables final {
public:
    EncoderTables();
    ~EncoderTables();

    EncoderTables(const EncoderTables&) = delete;
    EncoderTables& operator=(const EncoderTables&) = delete;
};

} // namespace media::ffmpeg
