#pragma once

#include <QString>

#include <string_view>

namespace brisklet {

/// Writes an XML property list as text in the standard layout: one element per line, a tab for each
/// level below the root dictionary, keys in the order of the calls. Inside a dictionary a call of
/// key() precedes each value. Usable on any thread.
class PropertyList final {
public:
    /// Opens the document and its root dictionary.
    PropertyList();

    PropertyList& key(QStringView name);
    PropertyList& string(QStringView value);
    PropertyList& boolean(bool value);
    PropertyList& integer(int value);
    PropertyList& emptyDictionary();
    PropertyList& emptyArray();
    PropertyList& beginDictionary();
    PropertyList& endDictionary();
    PropertyList& beginArray();
    PropertyList& endArray();

    /// An array of this one string.
    PropertyList& singleString(QStringView value);

    /// Closes the root dictionary and returns the document, without a line feed at its end.
    [[nodiscard]] QString finish();

private:
    PropertyList& line(QStringView element);

    QString m_text;
    int m_level = 0;
};

} // namespace brisklet
