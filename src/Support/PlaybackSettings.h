#pragma once

#include <QObject>
#include <QProperty>
#include <QSettings>

#include <memory>

namespace brisklet {

/// The application-wide choice whether playback loops inside the kept range. Kept in the user's
/// preferences. Main thread.
class PlaybackSettings final : public QObject {
    Q_OBJECT

public:
    /// The one instance that the program uses; created on first use.
    static PlaybackSettings& shared();

    /// Reads the preferences. Off when nothing is stored.
    PlaybackSettings();

    [[nodiscard]] bool isLoopEnabled() const { return m_isLoopEnabled; }

    /// Stores the preference at once, changed or not; observers hear only of a change.
    void setLoopEnabled(bool enabled);

Q_SIGNALS:
    void isLoopEnabledChanged();

private:
    std::unique_ptr<QSettings> m_preferences;
    Q_OBJECT_BINDABLE_PROPERTY(PlaybackSettings, bool, m_isLoopEnabled,
                               &PlaybackSettings::isLoopEnabledChanged)
};

} // namespace brisklet
