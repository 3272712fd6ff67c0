#include "Support/PlaybackSettings.h"

#include "QtSupport/PreferencesFixture.h"

#include <QSignalSpy>

using brisklet::PlaybackSettings;

namespace {

class PlaybackSettingsTest : public testsupport::PreferencesFixture {
protected:
    const QString m_key = QStringLiteral("loopPlayback");
};

TEST_F(PlaybackSettingsTest, readsAMissingKeyAsLoopingOff) {
    EXPECT_FALSE(PlaybackSettings().isLoopEnabled());
}

TEST_F(PlaybackSettingsTest, writesTheKeyAtOnce) {
    PlaybackSettings settings;
    settings.setLoopEnabled(true);
    EXPECT_EQ(stored(m_key).toString(), QStringLiteral("true"));
    EXPECT_TRUE(PlaybackSettings().isLoopEnabled());

    settings.setLoopEnabled(false);
    EXPECT_EQ(stored(m_key).toString(), QStringLiteral("false"));
    EXPECT_FALSE(PlaybackSettings().isLoopEnabled());
}

TEST_F(PlaybackSettingsTest, tellsObserversOfChangesOnly) {
    PlaybackSettings settings;
    const QSignalSpy spy(&settings, &PlaybackSettings::isLoopEnabledChanged);
    settings.setLoopEnabled(false);
    EXPECT_EQ(spy.count(), 0);
    settings.setLoopEnabled(true);
    settings.setLoopEnabled(true);
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(PlaybackSettingsTest, writesTheKeyAgainWhenTheValueStaysTheSame) {
    PlaybackSettings settings;
    settings.setLoopEnabled(false);
    EXPECT_EQ(stored(m_key).toString(), QStringLiteral("false"));
}

TEST_F(PlaybackSettingsTest, hasOneInstanceForTheProgram) {
    EXPECT_EQ(&PlaybackSettings::shared(), &PlaybackSettings::shared());
}

} // namespace
