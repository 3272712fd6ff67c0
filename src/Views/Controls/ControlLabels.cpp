#include "Views/Controls/ControlLabels.h"

#include "Support/ApproximateFormatting.h"
#include "Support/TimeFormatting.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace brisklet {

namespace {

/// In whole pixels. Limited, since a damaged file may state any size.
int wholePixels(double length) {
    constexpr double kMost = 1e9;
    return std::isnan(length) ? 0 : static_cast<int>(std::round(std::clamp(length, 0.0, kMost)));
}

} // namespace

QString cropLabel(media::Size picture, const std::optional<media::Rect>& crop) {
    if (!crop)
        return {};
    return QStringLiteral("%1×%2")
        .arg(wholePixels(picture.width * crop->width))
        .arg(wholePixels(picture.height * crop->height));
}

QString exportLabel(ExportFormat format, ExportResolution resolution) {
    QString choice = rawValue(format);
    if (resolution != ExportResolution::original)
        choice += QStringLiteral(" · %1").arg(label(resolution));
    //: A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.
    return QCoreApplication::translate("brisklet::ControlsView", "Export %1…").arg(choice);
}

QString forecastLabel(double seconds, media::Size picture,
                      const std::optional<media::ExportForecast>& forecast) {
    QStringList parts{
        formatTime(seconds),
        QStringLiteral("%1 × %2").arg(wholePixels(picture.width)).arg(wholePixels(picture.height))};
    if (forecast) {
        const auto about = [](const QString& what) {
            //: %1: a size, such as “46 MB”, or a time, such as “20 s”.
            return QCoreApplication::translate("brisklet::ControlsView", "about %1").arg(what);
        };
        parts << about(approximateSize(forecast->bytes))
              << about(approximateDuration(forecast->seconds));
    }
    return parts.join(QStringLiteral(" · "));
}

} // namespace brisklet
