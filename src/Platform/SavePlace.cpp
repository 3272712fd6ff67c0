#include "Platform/SavePlace.h"

#include "Support/FileUrl.h"
#include "Support/LocalizedMessage.h"
#include "Support/MainThread.h"
#include "Support/Workers.h"

#include <QObject>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <system_error>

namespace brisklet {

namespace {

namespace fs = std::filesystem;

/// What is known about a file name on disk.
struct Taken {
    bool exists = false;
    bool isSource = false;
};

/// Follows links, and notices other names of the same file.
Taken lookAt(const fs::path& file, const fs::path& source) {
    std::error_code ignored;
    return {.exists = fs::exists(fs::symlink_status(file, ignored)),
            .isSource = fs::equivalent(file, source, ignored)};
}

bool hasExtension(const fs::path& file, const QString& extension) {
    return displayName(urlOf(file)).endsWith(u'.' + extension, Qt::CaseInsensitive);
}

/// Adds the extension to a name that was typed without it, even if the name contains another full
/// stop; replaces the extension of another file type.
fs::path withExtension(fs::path file, const SaveProposal& proposal) {
    const std::string extension = '.' + proposal.extension.toStdString();
    if (hasExtension(file, proposal.extension))
        return file;
    const auto isOfFile = [&file](const QString& other) { return hasExtension(file, other); };
    if (file.has_extension() && std::ranges::any_of(proposal.otherExtensions, isOfFile))
        return file.replace_extension(extension);
    return file += extension;
}

} // namespace

QCoro::Task<SavePlace> findSavePlace(std::shared_ptr<RemoteFiles> remoteFiles, QUrl answer,
                                     SaveProposal proposal) {
    verifyMainThread();
    SavePlace place{.file = answer, .isToBeConfirmed = false, .objection = {}};
    try {
        auto finding = findLocalDestination(remoteFiles, answer);
        const QUrl found = co_await finding;
        const fs::path named = pathOf(found);
        const fs::path file = withExtension(named, proposal);
        const fs::path source = proposal.source.isEmpty() ? fs::path() : pathOf(proposal.source);
        auto looking = runOnWorker([file, source] { return lookAt(file, source); });
        const Taken taken = co_await looking;
        place.file = urlOf(file);
        place.isToBeConfirmed = taken.exists && file != named;
        if (taken.isSource)
            place.objection =
                QObject::tr("“%1” is the video that is being edited. Choose another name.")
                    .arg(shownName(place.file));
    } catch (const std::exception& error) {
        place.objection = localizedMessage(error);
    }
    co_return place;
}

} // namespace brisklet
