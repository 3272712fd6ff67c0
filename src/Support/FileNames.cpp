#include "Support/FileNames.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <unistd.h>

namespace brisklet {

namespace {

/// What most file systems allow. Those that do not count in bytes report more than they accept.
constexpr int kUsualMaxNameBytes = 255;
constexpr QChar kZeroWidthJoiner(0x200d);

/// Joined emoji are one letter, but not for every version of the Unicode tables.
bool isInsideJoinedEmoji(const QString& text, qsizetype position) {
    return position > 0 && position < text.size() &&
           (text[position] == kZeroWidthJoiner || text[position - 1] == kZeroWidthJoiner);
}

bool isExplicitDirection(QChar letter) {
    return (letter >= QChar(0x202a) && letter <= QChar(0x202e)) ||
           (letter >= QChar(0x2066) && letter <= QChar(0x2069));
}

bool actsOnText(QChar letter) {
    const auto category = letter.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph || isExplicitDirection(letter);
}

} // namespace

QString legible(QString text) {
    std::ranges::replace_if(text, actsOnText, QChar(QChar::ReplacementCharacter));
    return text;
}

int maxNameBytesIn(const std::filesystem::path& folder) {
    const long reported = ::pathconf(folder.c_str(), _PC_NAME_MAX);
    return reported > 0 ? static_cast<int>(std::min<long>(reported, kUsualMaxNameBytes))
                        : kUsualMaxNameBytes;
}

QString truncatedName(const QString& base, const QString& suffix, int maxBytes) {
    const qsizetype room = maxBytes - suffix.toUtf8().size();
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, base);
    letters.toEnd();
    qsizetype end = base.size();
    while (end > 0 && (isInsideJoinedEmoji(base, end) || base.left(end).toUtf8().size() > room))
        end = std::max<qsizetype>(letters.toPreviousBoundary(), 0);
    return base.left(end) + suffix;
}

} // namespace brisklet
