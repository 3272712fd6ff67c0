#include "Support/FileNames.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <unistd.h>

namespace brisklet {

namespace {

/// On most file systems; those that count otherwise than in bytes state more than they take.
constexpr int kUsualLongestName = 255;
constexpr QChar kJoiner(0x200d);

/// Joined pictures are one letter, also for an older table of letters.
bool isInsideJoined(const QString& text, qsizetype position) {
    return position > 0 && position < text.size() &&
           (text[position] == kJoiner || text[position - 1] == kJoiner);
}

} // namespace

int longestNameIn(const std::filesystem::path& folder) {
    const long stated = ::pathconf(folder.c_str(), _PC_NAME_MAX);
    return stated > 0 ? static_cast<int>(std::min<long>(stated, kUsualLongestName))
                      : kUsualLongestName;
}

QString fittedName(const QString& base, const QString& ending, int mostBytes) {
    const qsizetype room = mostBytes - ending.toUtf8().size();
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, base);
    letters.toEnd();
    qsizetype end = base.size();
    while (end > 0 && (isInsideJoined(base, end) || base.left(end).toUtf8().size() > room))
        end = std::max<qsizetype>(letters.toPreviousBoundary(), 0);
    return base.left(end) + ending;
}

} // namespace brisklet
