#pragma once

#include "Support/FilePanels.h"
#include "Support/RemoteFiles.h"

#include <QCoroTask>
#include <QString>
#include <QUrl>

#include <memory>

namespace brisklet {

/// What becomes of a name that the user gave to a save panel.
struct SavePlace {
    /// The file to write: on this computer, with the extension that was asked for.
    QUrl file;
    /// Another file of that name is there, and the user has not been asked about replacing it.
    bool isToBeConfirmed = false;
    /// Why the file cannot be written there, as a sentence for the user; empty where it can.
    QString objection;
};

/// Looks at what a save panel answered. The disk is asked on another thread. Never throws. Main
/// thread.
QCoro::Task<SavePlace> findSavePlace(std::shared_ptr<RemoteFiles> remoteFiles, QUrl answer,
                                     SaveProposal proposal);

} // namespace brisklet
