#include "Export/ExportSettings.h"

#include "QtSupport/PreferencesFixture.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using brisklet::ExportFormat;
using brisklet::ExportResolution;
using brisklet::ExportSettings;

namespace {

class ExportSettingsTest : public testsupport::PreferencesFixture {
protected:
    const QString m_formatKey = QStringLiteral("exportFormat");
    const QString m_resolutionKey = QStringLiteral("exportResolution");
};

TEST_F(ExportSettingsTest, beginWithMp4AndTheOriginalSize) {
    const ExportSettings settings;
    EXPECT_EQ(settings.format(), ExportFormat::mp4);
    EXPECT_EQ(settings.resolution(), ExportResolution::original);
}

TEST_F(ExportSettingsTest, storeTheRawValuesAtOnce) {
    ExportSettings settings;
    settings.setResolution(ExportResolution::hd720);
    settings.setFormat(ExportFormat::mov);
    EXPECT_EQ(stored(m_resolutionKey).toString(), QStringLiteral("720"));
    EXPECT_EQ(stored(m_formatKey).toString(), QStringLiteral("MOV"));
    const ExportSettings reloaded;
    EXPECT_EQ(reloaded.resolution(), ExportResolution::hd720);
    EXPECT_EQ(reloaded.format(), ExportFormat::mov);
}

TEST_F(ExportSettingsTest, takeUnknownStoredValuesAsTheDefaultsAndLeaveThemStored) {
    for (const int number : {1000, 1, -720, 721}) {
        store(m_resolutionKey, number);
        EXPECT_EQ(ExportSettings().resolution(), ExportResolution::original) << number;
        EXPECT_EQ(stored(m_resolutionKey).toInt(), number);
    }
    for (const char* text : {"mov", "Mov", "MP4", "avi", ""}) {
        store(m_formatKey, QString::fromLatin1(text));
        EXPECT_EQ(ExportSettings().format(), ExportFormat::mp4) << text;
        EXPECT_EQ(stored(m_formatKey).toString(), QString::fromLatin1(text));
    }
}

TEST_F(ExportSettingsTest, loadEveryResolution) {
    for (const ExportResolution resolution : brisklet::kAllExportResolutions) {
        store(m_resolutionKey, brisklet::rawValue(resolution));
        EXPECT_EQ(ExportSettings().resolution(), resolution);
    }
}

TEST_F(ExportSettingsTest, rewriteThePreferenceWhenTheValueStaysTheSame) {
    store(m_formatKey, QStringLiteral("avi"));
    store(m_resolutionKey, 1000);
    ExportSettings settings;
    const QSignalSpy formatSpy(&settings, &ExportSettings::formatChanged);
    const QSignalSpy resolutionSpy(&settings, &ExportSettings::resolutionChanged);
    settings.setFormat(ExportFormat::mp4);
    settings.setResolution(ExportResolution::original);
    EXPECT_EQ(formatSpy.count(), 0);
    EXPECT_EQ(resolutionSpy.count(), 0);
    EXPECT_EQ(stored(m_formatKey).toString(), QStringLiteral("MP4"));
    EXPECT_EQ(stored(m_resolutionKey).toInt(), 0);
}

TEST_F(ExportSettingsTest, giveACopyThatLaterChangesDoNotTouch) {
    ExportSettings settings;
    settings.setFormat(ExportFormat::mov);
    settings.setResolution(ExportResolution::hd720);
    const brisklet::ExportChoice choice = settings.choice();
    settings.setFormat(ExportFormat::mp4);
    settings.setResolution(ExportResolution::original);
    EXPECT_EQ(choice.format, ExportFormat::mov);
    EXPECT_EQ(choice.resolution, ExportResolution::hd720);
}

TEST_F(ExportSettingsTest, tellObserversOfChanges) {
    ExportSettings settings;
    const QSignalSpy formatSpy(&settings, &ExportSettings::formatChanged);
    const QSignalSpy resolutionSpy(&settings, &ExportSettings::resolutionChanged);
    settings.setFormat(ExportFormat::mov);
    EXPECT_EQ(formatSpy.count(), 1);
    EXPECT_EQ(resolutionSpy.count(), 0);
    settings.setResolution(ExportResolution::sd480);
    EXPECT_EQ(resolutionSpy.count(), 1);
}

TEST(ExportResolutions, comeInThePickersOrderWithTheirLabels) {
    QStringList labels;
    for (const ExportResolution resolution : brisklet::kAllExportResolutions)
        labels << label(resolution);
    const QStringList expected{QStringLiteral("Original"), QStringLiteral("2160p"),
                               QStringLiteral("1440p"),    QStringLiteral("1080p"),
                               QStringLiteral("720p"),     QStringLiteral("480p")};
    EXPECT_EQ(labels, expected);
}

TEST(ExportResolutions, capTheShortEdgeAtTheirRawValueExceptTheOriginal) {
    EXPECT_EQ(maxShortEdge(ExportResolution::original), std::nullopt);
    for (const ExportResolution resolution : brisklet::kAllExportResolutions) {
        if (resolution != ExportResolution::original) {
            EXPECT_EQ(maxShortEdge(resolution), rawValue(resolution));
        }
    }
}

TEST(ExportResolutions, areMadeOfTheirRawValuesOnly) {
    for (const ExportResolution resolution : brisklet::kAllExportResolutions)
        EXPECT_EQ(brisklet::exportResolutionOf(rawValue(resolution)), resolution);
    EXPECT_EQ(brisklet::exportResolutionOf(1000), std::nullopt);
    EXPECT_EQ(brisklet::exportResolutionOf(-1), std::nullopt);
}

} // namespace
