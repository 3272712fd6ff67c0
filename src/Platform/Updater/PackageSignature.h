#pragma once

#include <QByteArray>

#include <optional>

class QFile;

namespace brisklet {

/// Whether `signature` (64 bytes) is that of the key's owner over the whole file, which is open for
/// reading. `publicKey` is an Ed25519 key of 32 bytes. False for anything malformed; none if the
/// file cannot be read, whose error then says why. The thread of the file.
std::optional<bool> isSigned(QFile& package, const QByteArray& signature,
                             const QByteArray& publicKey);

} // namespace brisklet
