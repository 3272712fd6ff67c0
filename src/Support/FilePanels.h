#pragma once

#include <QCoroTask>
#include <QString>
#include <QUrl>

#include <optional>

namespace brisklet {

/// What a save panel is asked for: a place for one file of one type.
struct SaveProposal {
    /// Name with extension, and the folder to begin in.
    QString fileName;
    QUrl folder;
    /// The type's name for people ("MPEG-4 movie") and its extension ("mp4"). The panel answers
    /// with no other extension.
    QString typeName;
    QString extension;
    /// The extension of the other type, which is replaced where a user types it.
    QString otherExtension;
    /// The file that the movie is made of; the panel does not let the user replace it.
    QUrl source;
};

/// Asks the user for files. The panels are modal to their window; the answer is none when the user
/// turns back. Main thread.
class FilePanels {
public:
    FilePanels() = default;
    FilePanels(const FilePanels&) = delete;
    FilePanels& operator=(const FilePanels&) = delete;
    virtual ~FilePanels() = default;

    /// One existing movie file, which may be on another computer.
    virtual QCoro::Task<std::optional<QUrl>> openMovie() = 0;
    /// Where on this computer to write a movie. Replacing an existing file has been confirmed by
    /// the user.
    virtual QCoro::Task<std::optional<QUrl>> saveMovie(SaveProposal proposal) = 0;
};

} // namespace brisklet
