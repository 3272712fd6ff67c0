#pragma once

#include <QCoroTask>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace brisklet {

/// What a save panel proposes: a name and a folder for one file of one type.
struct SaveProposal {
    /// Name with extension, and the folder to begin in.
    QString fileName;
    QUrl folder;
    /// The type's name for people ("MPEG-4 movie") and its extension ("mp4"), which the answer
    /// always has.
    QString typeName;
    QString extension;
    /// The extensions of the other types; `extension` replaces them where the user types one.
    QStringList otherExtensions;
    /// The file that the movie is made from; the panel does not let the user replace it.
    QUrl source;
};

/// Asks the user for files. The panels are modal to their window; the answer is none if the user
/// cancels. Main thread.
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
