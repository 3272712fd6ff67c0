#include "Support/Translations.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QString>

#include <algorithm>
#include <array>
#include <cstdio>
#include <stdexcept>

/// Writes the desktop entry and the AppStream metainfo with the texts of all languages, from those
/// with the English ones.
namespace {

using brisklet::translatedInto;
using brisklet::translatedLanguages;

constexpr const char* kContext = "Packaging";
/// A text that is missing here ends the build.
constexpr std::array kTexts{
    //: The kind of program, in the menus of desktops.
    QT_TRANSLATE_NOOP("Packaging", "Video Trimmer"),
    QT_TRANSLATE_NOOP("Packaging", "Trim, crop and turn videos, exact to the frame"),
    //: What people search for in the menus of desktops, in any number; a semicolon after each.
    QT_TRANSLATE_NOOP("Packaging", "cut;clip;shorten;crop;rotate;movie;mp4;mov;"),
    QT_TRANSLATE_NOOP("Packaging", "New Window"),
    //: These and the following stand in software centres.
    QT_TRANSLATE_NOOP("Packaging", "Trim, crop and turn videos"),
    QT_TRANSLATE_NOOP("Packaging",
                      "Brisklet does one thing: it makes a shorter, cropped or turned copy of a "
                      "video. Drop a file on its window, drag the two handles over the filmstrip, "
                      "export."),
    QT_TRANSLATE_NOOP("Packaging",
                      "The first picture of the export is the one you saw at the start of the "
                      "range, and the sound stays where it was."),
    QT_TRANSLATE_NOOP("Packaging",
                      "Crops and turns in the same step, with one careful resampling."),
    QT_TRANSLATE_NOOP("Packaging",
                      "Keeps colours, high dynamic range, sound tracks, chapters and dates."),
    QT_TRANSLATE_NOOP("Packaging",
                      "Writes MP4 and MOV; reads what cameras, phones and screen recorders write."),
    QT_TRANSLATE_NOOP("Packaging",
                      "Never touches the original, and never leaves a half-written file."),
};

const char* textOf(const QString& english) {
    const auto isIt = [&english](const char* text) { return english == QString::fromUtf8(text); };
    const auto found = std::ranges::find_if(kTexts, isIt);
    if (found == kTexts.end())
        throw std::runtime_error("not among the texts to translate: " + english.toStdString());
    return *found;
}

QString read(const char* name) {
    QFile file(QString::fromLocal8Bit(name));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(file.errorString().toStdString());
    return QString::fromUtf8(file.readAll());
}

void write(const char* name, const QString& text) {
    QFile file(QString::fromLocal8Bit(name));
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        throw std::runtime_error(file.errorString().toStdString());
}

/// The text with what `lineOf` makes of each translation behind each match. The last group of the
/// pattern is the English text.
template<typename LineOf>
QString withTranslations(const QString& text, const QRegularExpression& pattern, LineOf lineOf) {
    QString result;
    qsizetype done = 0;
    auto matches = pattern.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const char* english = textOf(match.captured(match.lastCapturedIndex()).simplified());
        result += text.mid(done, match.capturedEnd() - done);
        done = match.capturedEnd();
        for (const QString& language : translatedLanguages()) {
            const QString translated = translatedInto(language, kContext, english);
            if (translated != QString::fromUtf8(english))
                result += lineOf(match, language, translated);
        }
    }
    return result + text.mid(done);
}

QString localizedEntry(const QString& entry) {
    // The program is called the same everywhere.
    static const QRegularExpression lines(
        QStringLiteral("^(Name|GenericName|Comment|Keywords)=(?!Brisklet\\n)(.*)\\n"),
        QRegularExpression::MultilineOption);
    return withTranslations(entry, lines, [](const auto& match, auto language, auto translated) {
        return QStringLiteral("%1[%2]=%3\n").arg(match.captured(1), language, translated);
    });
}

QString localizedMetainfo(const QString& metainfo) {
    static const QRegularExpression elements(QStringLiteral("^( *)<(summary|p|li)>(.*?)</\\2>\\n"),
                                             QRegularExpression::MultilineOption |
                                                 QRegularExpression::DotMatchesEverythingOption);
    return withTranslations(metainfo, elements,
                            [](const auto& match, QString language, auto translated) {
                                return QStringLiteral("%1<%2 xml:lang=\"%3\">%4</%2>\n")
                                    .arg(match.captured(1), match.captured(2),
                                         language.replace(u'_', u'-'), translated.toHtmlEscaped());
                            });
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::fputs("usage: localize-texts ENTRY NEW-ENTRY METAINFO NEW-METAINFO\n", stderr);
        return 2;
    }
    try {
        write(argv[2], localizedEntry(read(argv[1])));
        write(argv[4], localizedMetainfo(read(argv[3])));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "localize-texts: %s\n", error.what());
        return 1;
    }
    return 0;
}
