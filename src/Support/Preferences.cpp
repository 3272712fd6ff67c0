#include "Support/Preferences.h"

#include "Support/MainThread.h"

#include <QVariant>

namespace brisklet {

std::unique_ptr<QSettings> openPreferences() {
    verifyMainThread();
    auto preferences =
        std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                    QStringLiteral("brisklet"), QStringLiteral("brisklet"));
    preferences->setFallbacksEnabled(false);
    return preferences;
}

void storePreference(QSettings& preferences, const QString& key, const QVariant& value) {
    verifyMainThread();
    preferences.setValue(key, value);
    preferences.sync();
}

} // namespace brisklet
