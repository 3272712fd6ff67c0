#pragma once

#include <QByteArray>

class QFile;

namespace brisklet {

/// Whether `signature` (64 bytes) is that of the key's owner over the whole file, which is open for
/// reading. `publicKey` is an Ed25519 key of 32 bytes. False for anything malformed and for a file
/// that cannot be read. The thread of the file.
bool isSigned(QFile& package, const QByteArray& signature, const QByteArray& publicKey);

} // namespace brisklet
