#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// After Qt's headers: moc of Qt 6.4 fails on a header that includes <compare> before them.
#include "Media/ExportSession.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace brisklet {

/// The container of an export.
enum class ExportFormat { mp4, mov };

/// All that distinguishes one container from another.
struct ExportFormatTraits {
    ExportFormat format;
    /// What the preferences store, and the label in a picker.
    QLatin1StringView rawValue;
    /// The name of the file type in English; typeName() is for people.
    QLatin1StringView typeName;
    /// Of the exported file, without the full stop.
    QLatin1StringView extension;
    /// Another extension of files of this type.
    QLatin1StringView alternativeExtension;
    media::FileType fileType;
};

/// One row for each format, in the order in which a picker offers them. Everything that depends on
/// the format is looked up here: a further format is one more enumerator and one more row.
inline constexpr std::array kExportFormatTable{
    ExportFormatTraits{
        .format = ExportFormat::mp4,
        .rawValue = QLatin1StringView("MP4"),
        .typeName = QLatin1StringView(QT_TRANSLATE_NOOP("brisklet::ExportFormat", "MPEG-4 movie")),
        .extension = QLatin1StringView("mp4"),
        .alternativeExtension = QLatin1StringView("m4v"),
        .fileType = media::FileType::mpeg4},
    ExportFormatTraits{.format = ExportFormat::mov,
                       .rawValue = QLatin1StringView("MOV"),
                       .typeName = QLatin1StringView(
                           QT_TRANSLATE_NOOP("brisklet::ExportFormat", "QuickTime movie")),
                       .extension = QLatin1StringView("mov"),
                       .alternativeExtension = QLatin1StringView("qt"),
                       .fileType = media::FileType::quickTimeMovie},
};

/// In the order in which a picker offers them.
inline constexpr auto kAllExportFormats = [] {
    std::array<ExportFormat, kExportFormatTable.size()> formats{};
    std::ranges::transform(kExportFormatTable, formats.begin(), &ExportFormatTraits::format);
    return formats;
}();

constexpr const ExportFormatTraits& traits(ExportFormat format) {
    return kExportFormatTable.at(static_cast<std::size_t>(format));
}

static_assert(std::ranges::all_of(kAllExportFormats,
                                  [](ExportFormat each) { return traits(each).format == each; }),
              "The rows stand in the order of the enumerators.");

/// The name of the file type in the user's language.
QString typeName(const ExportFormatTraits& format);
/// "MP4" or "MOV": what is stored, and the label in a picker.
QString rawValue(ExportFormat format);
/// Exact and case-sensitive; none for any other text.
std::optional<ExportFormat> exportFormatOf(const QString& rawValue);
/// The format of files with this extension (without the full stop), in any case; none for others.
std::optional<ExportFormat> exportFormatOfExtension(const QString& extension);
/// The extensions that exports in the other formats get.
QStringList extensionsOfOtherFormats(ExportFormat format);

} // namespace brisklet
