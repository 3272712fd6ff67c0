#pragma once

#include <QByteArray>
#include <QString>

namespace brisklet {

/// Whether `signature` (64 bytes) is that of the key's owner over the whole file. `publicKey` is an
/// Ed25519 key of 32 bytes. False for anything malformed and for a file that cannot be read. Any
/// thread.
bool isSigned(const QString& file, const QByteArray& signature, const QByteArray& publicKey);

} // namespace brisklet
