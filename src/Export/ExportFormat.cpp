#include "Export/ExportFormat.h"

namespace brisklet {

QString typeName(const ExportFormatTraits& format) {
    return QCoreApplication::translate("brisklet::ExportFormat", format.typeName.data());
}

QString rawValue(ExportFormat format) {
    return traits(format).rawValue;
}

std::optional<ExportFormat> exportFormatOf(const QString& rawValue) {
    for (const ExportFormatTraits& row : kExportFormatTable) {
        if (rawValue == row.rawValue)
            return row.format;
    }
    return std::nullopt;
}

std::optional<ExportFormat> exportFormatOfExtension(const QString& extension) {
    for (const ExportFormatTraits& row : kExportFormatTable) {
        // Compares Unicode case folding, the same in every locale.
        if (extension.compare(row.extension, Qt::CaseInsensitive) == 0 ||
            extension.compare(row.alternativeExtension, Qt::CaseInsensitive) == 0)
            return row.format;
    }
    return std::nullopt;
}

QStringList extensionsOfOtherFormats(ExportFormat format) {
    QStringList extensions;
    for (const ExportFormatTraits& row : kExportFormatTable) {
        if (row.format != format)
            extensions << row.extension;
    }
    return extensions;
}

} // namespace brisklet
