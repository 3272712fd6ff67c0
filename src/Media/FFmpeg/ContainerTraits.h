#pragma once

#include "Media/FFmpeg/Handles.h"

namespace media::ffmpeg {

/// What can be relied on in files of one container format, as libav's demuxer of it reads them. Of
/// formats that are not known here nothing is. A value type, usable on any thread.
struct ContainerTraits {
    /// How a file says that it is encrypted, where packets and sample entries do not tell.
    enum class EncryptionMark {
        none,
        /// In the metadata of the file (ASF).
        fileMetadata,
        /// In the metadata of each track (Matroska).
        trackMetadata,
    };

    /// Every packet has its presentation time by itself, so that none need be parsed to find it,
    /// and the demuxer comes back to a position exactly.
    bool statesPresentationTimes = false;
    /// Decoding times are the file's own: libav works them out for other containers, and may take a
    /// picture for one that is shown as soon as it is decoded.
    bool statesDecodingTimes = false;
    /// The headers may state all that decoders have to know of a track.
    bool statesParameters = false;
    /// The index lists every sample of every track.
    bool indexesEverySample = false;
    /// The index knows positions by the picture track only.
    bool isIndexedByPictures = false;
    /// Times count what only prepares a decoder of sound: the samples that Opus drops at the
    /// beginning, the first packet of Vorbis.
    bool countsSoundPriming = false;
    /// No container at all: times and positions only make sense when it is read from its start.
    bool isBareBitstream = false;
    /// Such a bitstream, of a codec whose packets tell the order of their pictures.
    bool hasOrderedPictures = false;
    /// One still picture.
    bool isStillPicture = false;
    EncryptionMark encryptionMark = EncryptionMark::none;
};

ContainerTraits containerTraits(const AVInputFormat& format);

} // namespace media::ffmpeg
