#pragma once

#include <QDBusConnection>
#include <QUrl>

#include <functional>

namespace brisklet {

/// Asks the document portal for the files behind the key of a transfer, which a sandboxed
/// application sends in a drag instead of names, and calls `done` with them on the main thread
/// later; with none where the portal does not know the key. Main thread.
void retrieveTransferredFiles(QDBusConnection bus, const QByteArray& key,
                              std::function<void(const QList<QUrl>&)> done);

} // namespace brisklet
