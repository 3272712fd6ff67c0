#include "Support/FileUrl.h"

#include "Support/FileNames.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QStringDecoder>
#include <QSysInfo>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <system_error>

namespace brisklet {

namespace {

QString textOf(const std::filesystem::path& path) {
    return QString::fromUtf8(QByteArray::fromStdString(path.string()));
}

/// The path of any URL, also of one whose file is elsewhere.
std::filesystem::path pathWithin(const QUrl& url) {
    const QByteArray encoded = url.path(QUrl::FullyEncoded).toLatin1();
    return {QByteArray::fromPercentEncoding(encoded).toStdString()};
}

bool isHere(const QString& host) {
    if (host.isEmpty() || host == u"localhost")
        return true;
    // The machine may know itself by its full name or by the first part of that.
    const QString own = QSysInfo::machineHostName();
    return host.compare(own, Qt::CaseInsensitive) == 0 ||
           host.compare(own.section(u'.', 0, 0), Qt::CaseInsensitive) == 0;
}

} // namespace

QUrl urlOf(const std::filesystem::path& path) {
    // Where the current folder has been deleted no relative path leads anywhere; whoever opens the
    // file tells so.
    std::error_code hasNoFolder;
    const std::filesystem::path absolute = std::filesystem::absolute(path, hasNoFolder);
    QByteArray bytes = QByteArray::fromStdString(
        (hasNoFolder ? std::filesystem::path("/") / path : absolute).string());
    // Two leading slashes would be read as the name of a host.
    while (bytes.startsWith("//"))
        bytes.remove(0, 1);

    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    if (!decoder.hasError())
        return QUrl::fromLocalFile(text);
    return QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/"), QUrl::StrictMode);
}

bool looksLikeUrl(std::string_view text) {
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const auto isOfScheme = [&](char c) {
        return isLetter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
    };
    const std::size_t end = text.find(":/");
    return end != std::string_view::npos && end > 0 && isLetter(text.front()) &&
           std::ranges::all_of(text.substr(0, end), isOfScheme);
}

QUrl urlOfArgument(std::string_view argument) {
    const std::filesystem::path path(argument);
    std::error_code ignored;
    if (looksLikeUrl(argument) && !std::filesystem::exists(path.parent_path(), ignored)) {
        const auto size = static_cast<qsizetype>(argument.size());
        QUrl url = QUrl::fromEncoded(QByteArray(argument.data(), size));
        if (url.isValid())
            return url;
    }
    return urlOf(path);
}

bool isOnThisComputer(const QUrl& url) {
    return (url.scheme().isEmpty() || url.scheme() == u"file") && isHere(url.host());
}

std::filesystem::path pathOf(const QUrl& url) {
    if (!isOnThisComputer(url))
        throw std::runtime_error(notOnThisComputerMessage(url).toStdString());
    return pathWithin(url);
}

QString notOnThisComputerMessage(const QUrl& url) {
    // Without a password that may stand in it.
    return QCoreApplication::translate(
               "brisklet::FileUrl", "“%1” is not on this computer, and no folder here leads to it.")
        .arg(legible(url.toDisplayString()));
}

QString displayName(const QUrl& url) {
    const std::filesystem::path path = pathWithin(url);
    // A folder may well be given with a slash at its end.
    return textOf(path.has_filename() ? path.filename() : path.parent_path().filename());
}

QString shownName(const QUrl& url) {
    return legible(displayName(url));
}

QString displayBaseName(const QUrl& url) {
    return textOf(pathWithin(url).stem());
}

} // namespace brisklet
