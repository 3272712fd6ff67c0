#pragma once

#include <QSettings>

#include <memory>

namespace brisklet {

/// Opens the user's preferences: one INI file, brisklet/brisklet.ini in the configuration folder
/// (XDG_CONFIG_HOME), its keys at top level. Main thread.
std::unique_ptr<QSettings> openPreferences();

/// Writes one value to disk at once.
void storePreference(QSettings& preferences, const QString& key, const QVariant& value);

} // namespace brisklet
