#pragma once

#include "Export/ExportFormat.h"

#include <QObject>
#include <QProperty>
#include <QSettings>
#include <QString>

#include <array>
#include <memory>
#include <optional>

namespace brisklet {

/// The largest allowed short edge of an exported picture in pixels; 0 for no cap.
enum class ExportResolution {
    original = 0,
    uhd2160 = 2160,
    qhd1440 = 1440,
    fhd1080 = 1080,
    hd720 = 720,
    sd480 = 480,
};

/// In the order in which a picker offers them.
inline constexpr std::array kAllExportResolutions{
    ExportResolution::original, ExportResolution::uhd2160, ExportResolution::qhd1440,
    ExportResolution::fhd1080,  ExportResolution::hd720,   ExportResolution::sd480};

constexpr int rawValue(ExportResolution resolution) {
    return static_cast<int>(resolution);
}

/// None for a number that is no resolution's raw value.
std::optional<ExportResolution> exportResolutionOf(int rawValue);

/// "Original", "2160p" …
QString label(ExportResolution resolution);

/// What the exporter is told: none for the original size.
std::optional<int> maxShortEdge(ExportResolution resolution);

/// The container and size that one export is made in.
struct ExportChoice {
    ExportFormat format = ExportFormat::mp4;
    ExportResolution resolution = ExportResolution::original;
};

/// The application-wide choice of container and size for exports, kept in the user's preferences.
/// Main thread.
class ExportSettings final : public QObject {
    Q_OBJECT

public:
    /// The one instance that the program uses; created on first use.
    static ExportSettings& shared();

    /// Reads the preferences. An unknown stored value counts as the default (MP4, original size),
    /// and stays stored until that setting is next set.
    ExportSettings();

    [[nodiscard]] ExportFormat format() const { return m_format; }

    [[nodiscard]] ExportResolution resolution() const { return m_resolution; }

    /// A copy of both, for an export that must not change with the settings of other windows.
    [[nodiscard]] ExportChoice choice() const { return {format(), resolution()}; }

    /// Both store the preference at once, changed or not; observers hear only of a change.
    void setFormat(ExportFormat format);
    void setResolution(ExportResolution resolution);

Q_SIGNALS:
    void formatChanged();
    void resolutionChanged();

private:
    std::unique_ptr<QSettings> m_preferences;
    Q_OBJECT_BINDABLE_PROPERTY(ExportSettings, brisklet::ExportFormat, m_format,
                               &ExportSettings::formatChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ExportSettings, brisklet::ExportResolution, m_resolution,
                               &ExportSettings::resolutionChanged)
};

} // namespace brisklet
