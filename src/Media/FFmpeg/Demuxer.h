#pragma once

#include "Media/FFmpeg/Handles.h"
#include "Media/FFmpeg/PictureIndex.h"
#include "Media/FFmpeg/SourceFile.h"
#include "Media/FFmpeg/Timestamp.h"

#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace media::ffmpeg {

/// A libav demuxer on a source file. Reads that file only: every other file or address that the
/// content names is refused. Only container formats that hold their own media are accepted (no
/// playlists, no image sequences). Use from one thread at a time.
class Demuxer {
public:
    /// Opens and reads the headers. `format` null probes by content. Throws Error.
    explicit Demuxer(std::shared_ptr<const SourceFile> file, const AVInputFormat* format = nullptr,
                     const std::stop_token& stop = {});
    Demuxer(const Demuxer&) = delete;
    Demuxer& operator=(const Demuxer&) = delete;
    ~Demuxer();

    [[nodiscard]] AVFormatContext& context() { return *m_context; }

    /// Reads on until every stream's parameters are known. Throws Error; Cancelled.
    void findStreamInfo(const std::stop_token& stop = {});

    /// Fills in missing presentation times from the decoding times that follow; call before the
    /// first read().
    void generatePresentationTimes();

    /// Reads a bare bitstream as if it lay in a container, by the index of its pictures, from its
    /// first packet on.
    void usePictures(std::shared_ptr<const PictureIndex> pictures);

    /// As ContainerTraits has it; true with an index of pictures.
    [[nodiscard]] bool statesPresentationTimes() const;

    /// Whether times and positions only make sense when the file is read from its start.
    [[nodiscard]] bool canOnlyReadOn() const;

    /// The dts of the last key frame that is known to be decoded at or before `timestamp`.
    [[nodiscard]] std::optional<Timestamp> keyFrameBefore(int streamIndex,
                                                          Timestamp timestamp) const;

    /// Leaves out the packets of all other streams from now on.
    void selectOnly(const std::vector<int>& streamIndexes);

    enum class Status { packet, endOfFile };
    /// The next packet of a selected stream, in file order. A file that ends early or was
    /// truncated meanwhile simply ends. Throws Error on a read error; Cancelled.
    Status read(AVPacket& packet, const std::stop_token& stop = {});

    /// Moves to the last random-access point at or before `timestamp` of the stream. False if the
    /// container cannot.
    bool seek(int streamIndex, Timestamp timestamp, const std::stop_token& stop = {});
    /// Opens the file anew, so that read() starts at its very first packet, whatever the container
    /// can or cannot do. The selection stays.
    void reopen(const std::stop_token& stop = {});

private:
    /// Throws Error if the file could not be read, or has become shorter since it was opened.
    void checkSource() const;

    void moveTo(const PictureIndex::Entry& entry);

    struct Io;
    std::shared_ptr<const PictureIndex> m_pictures;
    std::unique_ptr<Io> m_io;
    IoContextPtr m_ioContext;
    FormatContextPtr m_context;
    bool m_hasStreamInfo = false;
};

} // namespace media::ffmpeg
