#include "Media/Error.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <system_error>

/// Marks a text for the translators, as Qt's macro of this name does, without Qt.
#define QT_TRANSLATE_NOOP(context, text) text

namespace media {

namespace {

struct Sentence {
    ErrorKind kind;
    const char* english;
};

constexpr std::array kSentences{
    //: About a file that the sentence before has named.
    Sentence{ErrorKind::notAVideo,
             QT_TRANSLATE_NOOP("media::Error", "It is not a video file, or it is damaged.")},
    //: About a file that the sentence before has named.
    Sentence{ErrorKind::unsupportedFormat,
             QT_TRANSLATE_NOOP("media::Error", "Its format isn’t supported.")},
    //: About a file that the sentence before has named.
    Sentence{ErrorKind::unsupportedCodec,
             QT_TRANSLATE_NOOP("media::Error", "Its video codec isn’t supported.")},
    //: About a file that the sentence before has named.
    Sentence{ErrorKind::encrypted,
             QT_TRANSLATE_NOOP("media::Error", "It is encrypted or copy-protected.")},
    Sentence{ErrorKind::fileMissing, QT_TRANSLATE_NOOP("media::Error", "The file doesn’t exist.")},
    Sentence{ErrorKind::noPermissionToRead,
             QT_TRANSLATE_NOOP("media::Error", "You don’t have permission to read this file.")},
    Sentence{ErrorKind::fileNameTooLong,
             QT_TRANSLATE_NOOP("media::Error", "The file name is too long.")},
    Sentence{ErrorKind::brokenLink,
             QT_TRANSLATE_NOOP("media::Error", "The link to the file leads nowhere.")},
    //: About a file that the sentence before has named. “Regular” is the system’s word for a file
    //: that is neither a folder nor a device nor a pipe.
    Sentence{ErrorKind::notARegularFile,
             QT_TRANSLATE_NOOP("media::Error", "It is not a regular file.")},
    //: About a file that the sentence before has named.
    Sentence{ErrorKind::isAFolder,
             QT_TRANSLATE_NOOP("media::Error", "It is a folder, not a video file.")},
    Sentence{ErrorKind::fileEmpty, QT_TRANSLATE_NOOP("media::Error", "The file is empty.")},
    //: %1: the reason, without a full stop.
    Sentence{ErrorKind::unreadableFile,
             QT_TRANSLATE_NOOP("media::Error", "The file can’t be read: %1.")},
    //: %1: the reason, a whole sentence.
    Sentence{ErrorKind::unreadableVideo,
             QT_TRANSLATE_NOOP("media::Error", "The video can’t be read: %1")},
    //: %1: the file’s name.
    Sentence{ErrorKind::fileChanged,
             QT_TRANSLATE_NOOP("media::Error", "“%1” was changed after it was opened.")},
    Sentence{ErrorKind::fileEndsTooEarly,
             QT_TRANSLATE_NOOP("media::Error", "The file ends too early.")},
    Sentence{ErrorKind::videoCutShort,
             QT_TRANSLATE_NOOP("media::Error", "The video was cut short while it was being read.")},
    Sentence{ErrorKind::diskErrorWhileReading,
             QT_TRANSLATE_NOOP("media::Error",
                               "The disk reported an error while the video was being read.")},
    Sentence{ErrorKind::noVideoTrack,
             QT_TRANSLATE_NOOP("media::Error", "The file contains no video track.")},
    Sentence{ErrorKind::noPictureDecodable,
             QT_TRANSLATE_NOOP("media::Error", "Not one picture in this file can be decoded.")},
    Sentence{ErrorKind::noPictureAtThisTime,
             QT_TRANSLATE_NOOP("media::Error", "There is no picture at this time.")},
    //: %1: FFmpeg’s name of the format, such as “yuv420p”.
    Sentence{ErrorKind::unconvertiblePixelFormat,
             QT_TRANSLATE_NOOP("media::Error",
                               "Pictures in the pixel format “%1” cannot be converted.")},
    Sentence{ErrorKind::unconvertibleColors,
             QT_TRANSLATE_NOOP("media::Error", "The colors of the pictures cannot be converted.")},
    Sentence{ErrorKind::unconvertibleScreenColors,
             QT_TRANSLATE_NOOP("media::Error", "The colours of the picture cannot be converted.")},
    //: %1: the file’s name; %2: the reason, a whole sentence.
    Sentence{ErrorKind::sourceNotOpened,
             QT_TRANSLATE_NOOP("media::Error", "Couldn't open “%1”: %2")},
    //: About a video that the sentence before has named. %1: the folder’s name.
    Sentence{ErrorKind::keptFolderMissing,
             QT_TRANSLATE_NOOP("media::Error", "The folder “%1” is not there.")},
    //: About a video that the sentence before has named.
    Sentence{ErrorKind::keptNameTaken,
             QT_TRANSLATE_NOOP("media::Error", "Another file has its name now.")},
    //: About a video that the sentence before has named. %1: the folder’s name.
    Sentence{ErrorKind::keptFileGone,
             QT_TRANSLATE_NOOP("media::Error", "It is no longer in the folder “%1”.")},
    Sentence{ErrorKind::decoderStopped,
             QT_TRANSLATE_NOOP("media::Error", "The video decoder has stopped unexpectedly.")},
    Sentence{ErrorKind::emptyRange,
             QT_TRANSLATE_NOOP("media::Error", "The range to export is empty.")},
    //: %1 and %2: sizes with their units, such as “46 MB”.
    Sentence{ErrorKind::notEnoughSpace,
             QT_TRANSLATE_NOOP("media::Error", "There is not enough free space: the video takes "
                                               "about %1, and %2 are free.")},
    Sentence{ErrorKind::noVideoTrackInSource,
             QT_TRANSLATE_NOOP("media::Error", "The source file contains no video track.")},
    Sentence{
        ErrorKind::noExportSession,
        QT_TRANSLATE_NOOP("media::Error", "Couldn't create an export session for this video.")},
    Sentence{ErrorKind::nothingToExport,
             QT_TRANSLATE_NOOP("media::Error", "There is no video to export.")},
    Sentence{ErrorKind::exportOverItself,
             QT_TRANSLATE_NOOP("media::Error", "The video can’t be exported over itself.")},
    Sentence{ErrorKind::noPictureOfRangeDecodable,
             QT_TRANSLATE_NOOP("media::Error", "Not one picture of this range can be decoded.")},
    Sentence{ErrorKind::newFileDamaged,
             QT_TRANSLATE_NOOP("media::Error", "The new file was damaged while it was written.")},
    Sentence{
        ErrorKind::encoderMissing,
        QT_TRANSLATE_NOOP("media::Error", "An encoder that the export needs isn’t installed.")},
    //: %1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.
    Sentence{ErrorKind::settingRefused,
             QT_TRANSLATE_NOOP("media::Error", "The encoder %1 doesn’t take the setting “%2”.")},
    //: %1: the new file’s name.
    Sentence{ErrorKind::beingExported,
             QT_TRANSLATE_NOOP("media::Error", "“%1” is being written by another export.")},
    Sentence{ErrorKind::newFileRemoved,
             QT_TRANSLATE_NOOP("media::Error",
                               "The unfinished new file was removed by another program.")},
    Sentence{ErrorKind::folderMissing,
             QT_TRANSLATE_NOOP("media::Error", "The folder “%1” for the new file doesn’t exist.")},
    Sentence{ErrorKind::noPermissionToWrite,
             QT_TRANSLATE_NOOP("media::Error",
                               "You don’t have permission to write to the folder “%1”.")},
    Sentence{
        ErrorKind::writeProtected,
        QT_TRANSLATE_NOOP("media::Error", "The disk with the folder “%1” is write-protected.")},
    Sentence{ErrorKind::destinationIsFolder,
             QT_TRANSLATE_NOOP("media::Error", "A folder has the name of the new file.")},
    Sentence{
        ErrorKind::destinationIsNoRegularFile,
        QT_TRANSLATE_NOOP("media::Error",
                          "Something that is not a regular file has the name of the new file.")},
    Sentence{ErrorKind::newNameTooLong,
             QT_TRANSLATE_NOOP("media::Error", "The name of the new file is too long.")},
    Sentence{ErrorKind::diskErrorWhileWriting,
             QT_TRANSLATE_NOOP("media::Error",
                               "The disk reported an error while the new file was being written.")},
    //: %1: the reason, a whole sentence.
    Sentence{ErrorKind::newFileNotWritten,
             QT_TRANSLATE_NOOP("media::Error", "The new file can’t be written: %1")},
    Sentence{ErrorKind::encoderStopped,
             QT_TRANSLATE_NOOP("media::Error", "The video encoder has stopped unexpectedly. "
                                               "Nothing of the new file is left behind.")},
    Sentence{ErrorKind::notEnoughMemory,
             QT_TRANSLATE_NOOP("media::Error", "There is not enough memory.")},
    Sentence{ErrorKind::noMoreThreads,
             QT_TRANSLATE_NOOP("media::Error",
                               "The system is too busy: it can’t start another thread.")},
    Sentence{ErrorKind::diskFull,
             QT_TRANSLATE_NOOP("media::Error", "There is not enough space on the disk.")},
    Sentence{ErrorKind::fileTooLarge,
             QT_TRANSLATE_NOOP("media::Error", "The file would be too large for this disk.")},
    Sentence{ErrorKind::diskError,
             QT_TRANSLATE_NOOP("media::Error", "The disk reported an error.")},
    //: %1: the reason, without a full stop.
    Sentence{ErrorKind::engineNotFound,
             QT_TRANSLATE_NOOP("media::Error", "The media engine can’t be found: %1.")},
    Sentence{ErrorKind::incompleteInstallation,
             QT_TRANSLATE_NOOP("media::Error",
                               "Brisklet is not completely installed. Install it again.")},
    Sentence{ErrorKind::updatedMeanwhile,
             QT_TRANSLATE_NOOP("media::Error", "Brisklet has been updated. Start it again.")},
    //: %1: a reason, which stands alone or after a colon. Only the full stop is yours.
    Sentence{ErrorKind::reasonOnly, QT_TRANSLATE_NOOP("media::Error", "%1.")},
    //: A reason after a colon, as the system words it; so are the following.
    Sentence{ErrorKind::permissionDenied, QT_TRANSLATE_NOOP("media::Error", "Permission denied")},
    Sentence{ErrorKind::notPermitted, QT_TRANSLATE_NOOP("media::Error", "Operation not permitted")},
    Sentence{ErrorKind::noSuchFile, QT_TRANSLATE_NOOP("media::Error", "No such file or directory")},
    Sentence{ErrorKind::notADirectory, QT_TRANSLATE_NOOP("media::Error", "Not a directory")},
    Sentence{ErrorKind::fileExists, QT_TRANSLATE_NOOP("media::Error", "File exists")},
    Sentence{ErrorKind::isADirectory, QT_TRANSLATE_NOOP("media::Error", "Is a directory")},
    Sentence{ErrorKind::invalidArgument, QT_TRANSLATE_NOOP("media::Error", "Invalid argument")},
    Sentence{ErrorKind::tooManyOpenFiles, QT_TRANSLATE_NOOP("media::Error", "Too many open files")},
    Sentence{ErrorKind::readOnlyFileSystem,
             QT_TRANSLATE_NOOP("media::Error", "Read-only file system")},
    //: The file was on a network disk, where it is not any more.
    Sentence{ErrorKind::staleFileHandle, QT_TRANSLATE_NOOP("media::Error", "Stale file handle")},
    Sentence{ErrorKind::timedOut, QT_TRANSLATE_NOOP("media::Error", "Connection timed out")},
    Sentence{ErrorKind::busy, QT_TRANSLATE_NOOP("media::Error", "Device or resource busy")},
    Sentence{ErrorKind::tooManyLinks,
             QT_TRANSLATE_NOOP("media::Error", "Too many levels of symbolic links")},
    //: The program that reads what is written has ended.
    Sentence{ErrorKind::brokenPipe, QT_TRANSLATE_NOOP("media::Error", "Broken pipe")},
    Sentence{ErrorKind::noSpaceLeft, QT_TRANSLATE_NOOP("media::Error", "No space left on device")},
    Sentence{ErrorKind::quotaExceeded, QT_TRANSLATE_NOOP("media::Error", "Disk quota exceeded")},
    Sentence{ErrorKind::inputOutputError, QT_TRANSLATE_NOOP("media::Error", "Input/output error")},
    Sentence{ErrorKind::nameTooLong, QT_TRANSLATE_NOOP("media::Error", "File name too long")},
    Sentence{ErrorKind::libraryFailed,
             QT_TRANSLATE_NOOP("media::Error", "Generic error in an external library")},
    Sentence{ErrorKind::notImplemented,
             QT_TRANSLATE_NOOP("media::Error", "Not yet implemented in FFmpeg, patches welcome")},
    //: %1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected
    //: error (details: %1)”.
    Sentence{ErrorKind::otherReason, QT_TRANSLATE_NOOP("media::Error", "%1")},
};

constexpr bool isComplete() {
    for (std::size_t i = 0; i < kSentences.size(); ++i) {
        if (static_cast<std::size_t>(kSentences.at(i).kind) != i)
            return false;
    }
    return kSentences.size() == static_cast<std::size_t>(ErrorKind::count);
}

static_assert(isComplete(), "Each kind has its sentence, in the order of the enumerators.");

struct Reason {
    int code;
    ErrorKind kind;
};

constexpr std::array kReasons{
    Reason{EACCES, ErrorKind::permissionDenied},  Reason{EPERM, ErrorKind::notPermitted},
    Reason{ENOENT, ErrorKind::noSuchFile},        Reason{ENOTDIR, ErrorKind::notADirectory},
    Reason{EEXIST, ErrorKind::fileExists},        Reason{EISDIR, ErrorKind::isADirectory},
    Reason{EINVAL, ErrorKind::invalidArgument},   Reason{EMFILE, ErrorKind::tooManyOpenFiles},
    Reason{EROFS, ErrorKind::readOnlyFileSystem}, Reason{ESTALE, ErrorKind::staleFileHandle},
    Reason{ETIMEDOUT, ErrorKind::timedOut},       Reason{EBUSY, ErrorKind::busy},
    Reason{ELOOP, ErrorKind::tooManyLinks},       Reason{EPIPE, ErrorKind::brokenPipe},
    Reason{ENOSPC, ErrorKind::noSpaceLeft},       Reason{EDQUOT, ErrorKind::quotaExceeded},
    Reason{EIO, ErrorKind::inputOutputError},     Reason{ENAMETOOLONG, ErrorKind::nameTooLong}};

} // namespace

Failure becauseOf(ErrorKind kind, Failure cause, std::vector<std::string> arguments) {
    return {kind, std::move(arguments), std::make_shared<const Failure>(std::move(cause))};
}

Failure reasonOf(int code) {
    const auto known = std::ranges::find(kReasons, code, &Reason::code);
    if (known != kReasons.end())
        return {known->kind};
    return {ErrorKind::otherReason, {std::generic_category().message(code)}};
}

const char* englishText(ErrorKind kind) {
    return kSentences.at(static_cast<std::size_t>(kind)).english;
}

std::string filled(const std::string& text, const std::vector<std::string>& arguments) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char digit = text[i] == '%' && i + 1 < text.size() ? text[i + 1] : '0';
        const auto number = static_cast<std::size_t>(digit - '0');
        if (digit < '1' || digit > '9' || number > arguments.size()) {
            result += text[i];
            continue;
        }
        result += arguments[number - 1];
        ++i;
    }
    return result;
}

std::string englishSentence(const Failure& failure) {
    std::vector<std::string> arguments = failure.arguments;
    if (failure.cause)
        arguments.push_back(englishSentence(*failure.cause));
    return filled(englishText(failure.kind), arguments);
}

} // namespace media
