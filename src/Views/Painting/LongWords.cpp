#include "Views/Painting/LongWords.h"

namespace brisklet {

QString withBreaksInLongWords(const QString& text) {
    constexpr int kLongestWord = 40;
    QString result;
    int wordLength = 0;
    for (const QChar letter : text) {
        wordLength = letter.isSpace() ? 0 : wordLength + 1;
        if (wordLength > kLongestWord && !letter.isLowSurrogate()) {
            result += QChar(0x200b);
            wordLength = 1;
        }
        result += letter;
    }
    return result;
}

} // namespace brisklet
