#include "Platform/Updater/PackageSignature.h"

#include <QFile>

#include <sodium.h>

namespace brisklet {

namespace {

const unsigned char* bytesOf(const QByteArray& array) {
    return reinterpret_cast<const unsigned char*>(array.constData());
}

} // namespace

std::optional<bool> isSigned(QFile& package, const QByteArray& signature,
                             const QByteArray& publicKey) {
    if (signature.size() != qsizetype{crypto_sign_BYTES} ||
        publicKey.size() != qsizetype{crypto_sign_PUBLICKEYBYTES} || sodium_init() < 0)
        return false;
    if (package.size() == 0)
        return false;
    // Memory-mapped, so that the package does not have to fit into memory.
    const uchar* content = package.map(0, package.size());
    if (content == nullptr)
        return std::nullopt;
    return crypto_sign_verify_detached(bytesOf(signature), content,
                                       static_cast<unsigned long long>(package.size()),
                                       bytesOf(publicKey)) == 0;
}

} // namespace brisklet
