#include "Support/QuickAction/PropertyList.h"

namespace brisklet {

namespace {

QString element(const QString& name, const QString& content) {
    return u'<' + name + u'>' + content + QStringLiteral("</") + name + u'>';
}

/// The quotation mark needs no escape between tags.
QString escaped(QStringView text) {
    QString result;
    for (const QChar letter : text) {
        if (letter == u'&')
            result += u"&amp;";
        else if (letter == u'<')
            result += u"&lt;";
        else if (letter == u'>')
            result += u"&gt;";
        else
            result += letter;
    }
    return result;
}

} // namespace

PropertyList::PropertyList() {
    line(u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    line(u"<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
         u"\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">");
    line(u"<plist version=\"1.0\">");
    beginDictionary();
}

PropertyList& PropertyList::key(QStringView name) {
    return line(element(QStringLiteral("key"), escaped(name)));
}

PropertyList& PropertyList::string(QStringView value) {
    return line(element(QStringLiteral("string"), escaped(value)));
}

PropertyList& PropertyList::boolean(bool value) {
    return line(value ? u"<true/>" : u"<false/>");
}

PropertyList& PropertyList::integer(int value) {
    return line(element(QStringLiteral("integer"), QString::number(value)));
}

PropertyList& PropertyList::emptyDictionary() {
    return line(u"<dict/>");
}

PropertyList& PropertyList::emptyArray() {
    return line(u"<array/>");
}

PropertyList& PropertyList::beginDictionary() {
    line(u"<dict>");
    ++m_level;
    return *this;
}

PropertyList& PropertyList::endDictionary() {
    --m_level;
    return line(u"</dict>");
}

PropertyList& PropertyList::beginArray() {
    line(u"<array>");
    ++m_level;
    return *this;
}

PropertyList& PropertyList::endArray() {
    --m_level;
    return line(u"</array>");
}

PropertyList& PropertyList::singleString(QStringView value) {
    return beginArray().string(value).endArray();
}

QString PropertyList::finish() {
    endDictionary();
    m_text += u"</plist>";
    return m_text;
}

PropertyList& PropertyList::line(QStringView element) {
    m_text.append(QString(m_level, u'\t')).append(element).append(u'\n');
    return *this;
}

} // namespace brisklet
