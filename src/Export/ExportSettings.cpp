#include "Export/ExportSettings.h"

#include "Support/MainThread.h"
#include "Support/Preferences.h"

#include <QCoreApplication>

#include <algorithm>

namespace brisklet {

namespace {

QString formatKey() {
    return QStringLiteral("exportFormat");
}

QString resolutionKey() {
    return QStringLiteral("exportResolution");
}

} // namespace

std::optional<ExportResolution> exportResolutionOf(int rawValue) {
    for (const ExportResolution resolution : kAllExportResolutions) {
        if (rawValue == brisklet::rawValue(resolution))
            return resolution;
    }
    return std::nullopt;
}

QString label(ExportResolution resolution) {
    if (resolution == ExportResolution::original)
        //: The resolution of the export: that of the source.
        return QCoreApplication::translate("brisklet::ExportResolution", "Original");
    return QString::number(rawValue(resolution)) + QLatin1Char('p');
}

std::optional<int> maxShortEdge(ExportResolution resolution) {
    if (resolution == ExportResolution::original)
        return std::nullopt;
    return rawValue(resolution);
}

ExportSettings& ExportSettings::shared() {
    static ExportSettings settings;
    return settings;
}

ExportSettings::ExportSettings()
    : m_preferences(openPreferences()),
      m_format(
          exportFormatOf(m_preferences->value(formatKey()).toString()).value_or(ExportFormat::mp4)),
      m_resolution(exportResolutionOf(m_preferences->value(resolutionKey()).toInt())
                       .value_or(ExportResolution::original)) {}

void ExportSettings::setFormat(ExportFormat format) {
    verifyMainThread();
    m_format = format;
    storePreference(*m_preferences, formatKey(), rawValue(format));
}

void ExportSettings::setResolution(ExportResolution resolution) {
    verifyMainThread();
    m_resolution = resolution;
    storePreference(*m_preferences, resolutionKey(), rawValue(resolution));
}

} // namespace brisklet
