#include "Platform/Updater/VersionOrder.h"

#include <QStringList>

#include <algorithm>

namespace brisklet {

namespace {

enum class Kind { number, word, separator };

Kind kindOf(QChar letter) {
    if (letter >= u'0' && letter <= u'9')
        return Kind::number;
    return letter.isLetter() ? Kind::word : Kind::separator;
}

struct Part {
    Kind kind;
    QStringView text;
};

QList<Part> partsOf(QStringView version) {
    QList<Part> parts;
    qsizetype start = 0;
    for (qsizetype end = 1; end <= version.size(); ++end) {
        const Kind kind = kindOf(version[start]);
        if (end < version.size() && kindOf(version[end]) == kind)
            continue;
        if (kind != Kind::separator)
            parts.append({kind, version.sliced(start, end - start)});
        start = end;
    }
    return parts;
}

std::strong_ordering compareNumbers(QStringView left, QStringView right) {
    // Compared as text, so that any number of digits works.
    while (left.startsWith(u'0'))
        left = left.sliced(1);
    while (right.startsWith(u'0'))
        right = right.sliced(1);
    if (left.size() != right.size())
        return left.size() <=> right.size();
    return left.compare(right) <=> 0;
}

std::strong_ordering compareParts(const Part& left, const Part& right) {
    if (left.kind != right.kind)
        return left.kind == Kind::number ? std::strong_ordering::greater
                                         : std::strong_ordering::less;
    if (left.kind == Kind::number)
        return compareNumbers(left.text, right.text);
    return left.text.compare(right.text, Qt::CaseInsensitive) <=> 0;
}

bool isZero(const Part& part) {
    return part.kind == Kind::number &&
           std::ranges::all_of(part.text, [](QChar digit) { return digit == u'0'; });
}

std::strong_ordering reversed(std::strong_ordering order) {
    if (order == std::strong_ordering::equal)
        return order;
    return order < 0 ? std::strong_ordering::greater : std::strong_ordering::less;
}

/// How a version with this part compares to one that has ended.
std::strong_ordering compareToEnd(const Part& part) {
    if (part.kind == Kind::word)
        return std::strong_ordering::less;
    return isZero(part) ? std::strong_ordering::equal : std::strong_ordering::greater;
}

} // namespace

std::strong_ordering compareVersions(QStringView left, QStringView right) {
    const QList<Part> leftParts = partsOf(left);
    const QList<Part> rightParts = partsOf(right);
    const qsizetype count = std::max(leftParts.size(), rightParts.size());
    for (qsizetype index = 0; index < count; ++index) {
        auto order = std::strong_ordering::equal;
        if (index >= leftParts.size())
            order = reversed(compareToEnd(rightParts[index]));
        else if (index >= rightParts.size())
            order = compareToEnd(leftParts[index]);
        else
            order = compareParts(leftParts[index], rightParts[index]);
        if (order != std::strong_ordering::equal)
            return order;
    }
    return std::strong_ordering::equal;
}

} // namespace brisklet
