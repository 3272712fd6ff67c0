#include "Support/PlaybackSettings.h"

#include "Support/MainThread.h"
#include "Support/Preferences.h"

namespace brisklet {

namespace {

QString loopPlaybackKey() {
    return QStringLiteral("loopPlayback");
}

} // namespace

PlaybackSettings& PlaybackSettings::shared() {
    static PlaybackSettings settings;
    return settings;
}

PlaybackSettings::PlaybackSettings()
    : m_preferences(openPreferences()),
      m_isLoopEnabled(m_preferences->value(loopPlaybackKey()).toBool()) {}

void PlaybackSettings::setLoopEnabled(bool enabled) {
    verifyMainThread();
    m_isLoopEnabled = enabled;
    storePreference(*m_preferences, loopPlaybackKey(), enabled);
}

} // namespace brisklet
