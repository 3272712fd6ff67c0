#pragma once

#include "Media/FFmpeg/Handles.h"
#include "Media/FFmpeg/SourceFile.h"

namespace media::ffmpeg {

/// What is encrypted looks like damage to a decoder; these tell the two apart, by what the file
/// states and never by its media. All throw Error with a sentence for the user.

/// Throws if the opened file states that a track or the whole of it is encrypted.
void expectNoEncryption(const AVFormatContext& context);
/// Throws if the packet comes with what its decryption needs.
void expectNoEncryption(const AVPacket& packet);
/// For a file whose headers could not be read: throws if it is an MP4 or QuickTime file with an
/// encrypted track.
void expectNoEncryption(const SourceFile& file);

} // namespace media::ffmpeg
