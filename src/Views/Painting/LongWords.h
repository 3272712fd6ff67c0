#pragma once

#include <QString>

namespace brisklet {

/// The same text with places for line breaks inside words that are longer than a line: a file name
/// can have 255 letters and no space.
QString withBreaksInLongWords(const QString& text);

} // namespace brisklet
