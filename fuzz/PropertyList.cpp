#include "Media/Threading/Verify.h"
#include "Support/QuickAction/PropertyList.h"

#include <QXmlStreamReader>

#include <cstdint>

using brisklet::PropertyList;

namespace {

/// What XML can hold as it is (XML 1.0, 2.2 and 2.11).
QString writable(const QString& text) {
    QString result;
    for (const char32_t letter : text.toUcs4()) {
        const bool isControl = letter < 0x20 && letter != '\t' && letter != '\n';
        if (!isControl && letter != 0xfffe && letter != 0xffff)
            result += QString::fromUcs4(&letter, 1);
    }
    return result;
}

} // namespace

/// The text of a property list is read back by an XML reader as it was written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString text = writable(QString::fromUtf8(bytes));
    PropertyList list;
    const QString document =
        list.key(text).string(text).key(u"array").singleString(text).key(u"n").integer(1).finish();
    QXmlStreamReader reader(document);
    int same = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && (reader.name() == u"key" || reader.name() == u"string"))
            same += reader.readElementText() == text ? 1 : 0;
    }
    media::verify(!reader.hasError(), "the document is well-formed");
    media::verify(same >= 3, "the texts come through");
    return 0;
}
