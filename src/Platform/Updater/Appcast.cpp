#include "Platform/Updater/Appcast.h"

#include "Platform/Updater/VersionOrder.h"

#include <QCoreApplication>
#include <QTextDocumentFragment>
#include <QXmlStreamReader>

#include <stdexcept>

namespace brisklet {

namespace {

constexpr qsizetype kSignatureBytes = 64;

/// The namespace of the elements and attributes that an update needs beyond RSS.
QString appcastNamespace() {
    return QStringLiteral("http://www.andymatuschak.org/xml-namespaces/sparkle");
}

class FeedReader {
public:
    explicit FeedReader(const QByteArray& document) : m_xml(document) {}

    std::vector<AppcastItem> read();

private:
    void readChannel();
    void readItem();
    void readOwnElement(AppcastItem& item);
    void readEnclosure(AppcastItem& item);
    QString text();

    QXmlStreamReader m_xml;
    std::vector<AppcastItem> m_items;
    bool m_isForLinux = true;
};

std::vector<AppcastItem> FeedReader::read() {
    bool isFeed = false;
    if (m_xml.readNextStartElement() && m_xml.name() == u"rss") {
        while (m_xml.readNextStartElement()) {
            isFeed = isFeed || m_xml.name() == u"channel";
            if (m_xml.name() == u"channel")
                readChannel();
            else
                m_xml.skipCurrentElement();
        }
    }
    if (m_xml.hasError() || !isFeed)
        throw std::runtime_error(
            QCoreApplication::translate("brisklet::Updater", "The update feed is damaged.")
                .toStdString());
    return m_items;
}

void FeedReader::readChannel() {
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() == u"item")
            readItem();
        else
            m_xml.skipCurrentElement();
    }
}

void FeedReader::readItem() {
    AppcastItem item;
    m_isForLinux = true;
    while (m_xml.readNextStartElement()) {
        if (m_xml.namespaceUri() == appcastNamespace())
            readOwnElement(item);
        else if (m_xml.name() == u"description")
            item.releaseNotes = QTextDocumentFragment::fromHtml(text()).toPlainText().trimmed();
        else if (m_xml.name() == u"enclosure")
            readEnclosure(item);
        else
            m_xml.skipCurrentElement();
    }
    if (item.shortVersion.isEmpty())
        item.shortVersion = item.version;
    const bool isComplete = !item.version.isEmpty() && item.packageUrl.isValid() &&
                            item.length > 0 && item.signature.size() == kSignatureBytes;
    if (isComplete && m_isForLinux)
        m_items.push_back(item);
}

void FeedReader::readOwnElement(AppcastItem& item) {
    if (m_xml.name() == u"version")
        item.version = text();
    else if (m_xml.name() == u"shortVersionString")
        item.shortVersion = text();
    else if (m_xml.name() == u"minimumSystemVersion")
        item.minimumSystemVersion = text();
    else
        m_xml.skipCurrentElement();
}

void FeedReader::readEnclosure(AppcastItem& item) {
    const QXmlStreamAttributes attributes = m_xml.attributes();
    const auto own = [&attributes](const char* name) {
        return attributes.value(appcastNamespace(), QString::fromLatin1(name)).toString();
    };
    // Older feeds have the versions as attributes of the enclosure.
    if (item.version.isEmpty())
        item.version = own("version");
    if (item.shortVersion.isEmpty())
        item.shortVersion = own("shortVersionString");
    const QString system = own("os");
    m_isForLinux = system.isEmpty() || system == u"linux";
    item.packageUrl = QUrl(attributes.value(QStringLiteral("url")).toString(), QUrl::StrictMode);
    item.length = attributes.value(QStringLiteral("length")).toLongLong();
    const auto signature = QByteArray::fromBase64Encoding(
        own("edSignature").toLatin1(),
        QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    item.signature = signature ? signature.decoded : QByteArray();
    m_xml.skipCurrentElement();
}

QString FeedReader::text() {
    return m_xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
}

} // namespace

std::vector<AppcastItem> parseAppcast(const QByteArray& document) {
    return FeedReader(document).read();
}

std::optional<AppcastItem> newestUpdate(const std::vector<AppcastItem>& items,
                                        const QString& currentVersion,
                                        const QString& systemVersion) {
    std::optional<AppcastItem> newest;
    for (const AppcastItem& item : items) {
        const bool runsHere = item.minimumSystemVersion.isEmpty() ||
                              compareVersions(item.minimumSystemVersion, systemVersion) <= 0;
        const QString& toBeat = newest ? newest->version : currentVersion;
        if (runsHere && compareVersions(item.version, toBeat) > 0)
            newest = item;
    }
    return newest;
}

} // namespace brisklet
