#pragma once

#include <exception>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace media {

/// What can go wrong. Error.cpp has the sentence for each and does not compile without it. The
/// comments say what the arguments are, where there are any, and whether there is a cause.
enum class ErrorKind {
    // Of the source, when it is opened or read.
    notAVideo,
    unsupportedFormat,
    unsupportedCodec,
    encrypted,
    fileMissing,
    noPermissionToRead,
    fileNameTooLong,
    brokenLink,
    notARegularFile,
    isAFolder,
    fileEmpty,
    unreadableFile,  ///< Has a cause.
    unreadableVideo, ///< Has a cause.
    fileChanged,     ///< Its name.
    fileEndsTooEarly,
    videoCutShort,
    diskErrorWhileReading,
    noVideoTrack,
    noPictureDecodable,
    noPictureAtThisTime,
    unconvertiblePixelFormat, ///< The format's name.
    unconvertibleColors,
    unconvertibleScreenColors,
    sourceNotOpened,   ///< Its name; has a cause.
    keptFolderMissing, ///< The folder's name.
    keptNameTaken,
    keptFileGone, ///< Its folder's name.
    decoderStopped,

    // Of an export.
    emptyRange,
    notEnoughSpace, ///< What the video takes and what is free, each with its unit.
    noVideoTrackInSource,
    noExportSession,
    nothingToExport,
    exportOverItself,
    noPictureOfRangeDecodable,
    newFileDamaged,
    encoderMissing,
    settingRefused, ///< The encoder's name and "setting=value".
    beingExported,  ///< The new file's name.
    newFileRemoved,
    folderMissing,       ///< Its name.
    noPermissionToWrite, ///< The folder's name.
    writeProtected,      ///< The folder's name.
    destinationIsFolder,
    destinationIsNoRegularFile,
    newNameTooLong,
    diskErrorWhileWriting,
    newFileNotWritten, ///< Has a cause.
    encoderStopped,

    // Of the machine.
    notEnoughMemory,
    noMoreThreads,
    diskFull,
    fileTooLarge,
    diskError,
    engineNotFound, ///< Has a cause.
    incompleteInstallation,
    updatedMeanwhile,

    // Reasons, which stand after a colon: without a full stop, but for the first.
    reasonOnly, ///< Has a cause, which is the whole sentence.
    permissionDenied,
    notPermitted,
    noSuchFile,
    notADirectory,
    fileExists,
    isADirectory,
    invalidArgument,
    tooManyOpenFiles,
    readOnlyFileSystem,
    staleFileHandle,
    timedOut,
    busy,
    tooManyLinks,
    brokenPipe,
    noSpaceLeft,
    quotaExceeded,
    inputOutputError,
    nameTooLong,
    libraryFailed,
    notImplemented,
    otherReason, ///< The library's or the system's own words.

    count, ///< No kind: how many there are.
};

/// What went wrong, and with what.
struct Failure {
    ErrorKind kind;
    /// For %1, %2 … of the sentence: names and the like, as raw bytes, which need not be UTF-8.
    std::vector<std::string> arguments = {};
    /// Stands in for the argument after the last.
    std::shared_ptr<const Failure> cause = nullptr;
};

/// The same with a cause.
Failure becauseOf(ErrorKind kind, Failure cause, std::vector<std::string> arguments = {});

/// The reason that an errno stands for, to be put after a colon.
Failure reasonOf(int code);

/// The sentence of a kind in English, with %1, %2 … for arguments and cause. In UTF-8. It is also
/// what translations are found by: in their context "media::Error".
const char* englishText(ErrorKind kind);

/// A text with its %1, %2 … replaced.
std::string filled(const std::string& text, const std::vector<std::string>& arguments);

/// The whole sentence in English, for logs, in UTF-8 but for names that are not.
std::string englishSentence(const Failure& failure);

/// A failure to tell the person at the screen of. what() is the sentence in English; the layers
/// above, which know the person's language, make theirs from failure().
class Error : public std::runtime_error {
public:
    explicit Error(ErrorKind kind, std::vector<std::string> arguments = {})
        : Error(Failure{kind, std::move(arguments)}) {}

    explicit Error(Failure failure)
        : std::runtime_error(englishSentence(failure)),
          m_failure(std::make_shared<const Failure>(std::move(failure))) {}

    [[nodiscard]] const Failure& failure() const noexcept { return *m_failure; }

private:
    /// Shared, so that copies cannot throw.
    std::shared_ptr<const Failure> m_failure;
};

/// The end of an operation that its caller asked to stop. Never shown to anyone, and not an
/// Error, so that no handler of failures takes it for one.
class Cancelled final : public std::exception {
public:
    [[nodiscard]] const char* what() const noexcept override { return "Cancelled."; }
};

} // namespace media
