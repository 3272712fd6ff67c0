#include "Platform/Updater/UpdaterSettings.h"

#include "Platform/Updater/Download.h"

#include <QSettings>
#include <QStandardPaths>
#include <QSysInfo>

namespace brisklet {

UpdaterConfiguration builtInUpdaterConfiguration() {
    constexpr qsizetype kKeyBytes = 32;
    const QUrl feed(QStringLiteral(BRISKLET_UPDATE_FEED), QUrl::StrictMode);
    const QByteArray key = QByteArray::fromBase64(BRISKLET_UPDATE_KEY);
    const bool isUsable = key.size() == kKeyBytes && isSafeAddress(feed);
    return {.feed = isUsable ? feed : QUrl(),
            .publicKey = key,
            .currentVersion = QStringLiteral(BRISKLET_VERSION),
            .systemVersion = QSysInfo::productVersion(),
            .downloadFolder =
                QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                QStringLiteral("/brisklet/updates"),
            // In a file of their own, beside the user's preferences.
            .settings =
                std::make_shared<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                            QStringLiteral("brisklet"), QStringLiteral("updates"))};
}

} // namespace brisklet
