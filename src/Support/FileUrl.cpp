#include "Support/FileUrl.h"

#include <QByteArray>
#include <QStringDecoder>

#include <string>

namespace brisklet {

namespace {

QString textOf(const std::filesystem::path& path) {
    return QString::fromUtf8(QByteArray::fromStdString(path.string()));
}

} // namespace

QUrl urlOf(const std::filesystem::path& path) {
    QByteArray bytes = QByteArray::fromStdString(std::filesystem::absolute(path).string());
    // Two leading slashes would be read as the name of a host.
    while (bytes.startsWith("//"))
        bytes.remove(0, 1);

    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    if (!decoder.hasError())
        return QUrl::fromLocalFile(text);
    return QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/"), QUrl::StrictMode);
}

std::filesystem::path pathOf(const QUrl& url) {
    const QByteArray encoded = url.path(QUrl::FullyEncoded).toLatin1();
    return {QByteArray::fromPercentEncoding(encoded).toStdString()};
}

QString displayName(const QUrl& url) {
    const std::filesystem::path path = pathOf(url);
    // A folder may well be given with a slash at its end.
    return textOf(path.has_filename() ? path.filename() : path.parent_path().filename());
}

QString displayBaseName(const QUrl& url) {
    return textOf(pathOf(url).stem());
}

} // namespace brisklet
