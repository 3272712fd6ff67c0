#include "Support/Preferences.h"

#include <QVariant>

namespace brisklet {

std::unique_ptr<QSettings> openPreferences() {
    auto preferences =
        std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                    QStringLiteral("brisklet"), QStringLiteral("brisklet"));
    preferences->setFallbacksEnabled(false);
    return preferences;
}

void storePreference(QSettings& preferences, const QString& key, const QVariant& value) {
    preferences.setValue(key, value);
    preferences.sync();
}

} // namespace brisklet
