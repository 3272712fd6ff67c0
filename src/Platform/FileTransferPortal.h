#pragma once

#include <QDBusConnection>
#include <QUrl>

#include <functional>

namespace brisklet {

/// Asks the document portal for the files behind the key of a file transfer, which sandboxed
/// applications send in a drag instead of file names. Calls `done` later on the main thread with
/// the files, or with none if the portal does not know the key. Main thread.
void retrieveTransferredFiles(QDBusConnection bus, const QByteArray& key,
                              std::function<void(const QList<QUrl>&)> done);

} // namespace brisklet
