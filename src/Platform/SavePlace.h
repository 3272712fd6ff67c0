#pragma once

#include "Support/FilePanels.h"
#include "Support/RemoteFiles.h"

#include <QCoroTask>
#include <QString>
#include <QUrl>

#include <memory>

namespace brisklet {

/// Where a file is saved that the user named in a save panel.
struct SavePlace {
    /// The local file to write, with the extension of the file type.
    QUrl file;
    /// Another file has that name, and the user has not been asked whether to replace it.
    bool isToBeConfirmed = false;
    /// Why the file cannot be written there, as a sentence for the user; empty where it can.
    QString objection;
};

/// Examines the answer of a save panel. File system calls run on another thread. Never throws. Main
/// thread.
QCoro::Task<SavePlace> findSavePlace(std::shared_ptr<RemoteFiles> remoteFiles, QUrl answer,
                                     SaveProposal proposal);

} // namespace brisklet
