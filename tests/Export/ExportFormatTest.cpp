#include "Export/ExportFormat.h"
#include "Export/ExportRequest.h"

#include <gmock/gmock.h>

namespace {

using namespace brisklet;
using testing::ElementsAre;

TEST(ExportFormat, comesInTheOrderOfThePicker) {
    EXPECT_THAT(kAllExportFormats, ElementsAre(ExportFormat::mp4, ExportFormat::mov));
}

TEST(ExportFormat, isStoredAndShownByItsRawValue) {
    EXPECT_EQ(rawValue(ExportFormat::mp4), QStringLiteral("MP4"));
    EXPECT_EQ(rawValue(ExportFormat::mov), QStringLiteral("MOV"));
    for (const ExportFormat format : kAllExportFormats)
        EXPECT_EQ(exportFormatOf(rawValue(format)), format);
    for (const char* other : {"mov", "Mp4", "AVI", ""})
        EXPECT_EQ(exportFormatOf(QString::fromLatin1(other)), std::nullopt) << other;
}

TEST(ExportFormat, isWrittenAsItsFileTypeUnderItsExtension) {
    EXPECT_EQ(traits(ExportFormat::mp4).fileType, media::FileType::mpeg4);
    EXPECT_EQ(traits(ExportFormat::mp4).extension, QStringLiteral("mp4"));
    EXPECT_EQ(traits(ExportFormat::mov).fileType, media::FileType::quickTimeMovie);
    EXPECT_EQ(traits(ExportFormat::mov).extension, QStringLiteral("mov"));
}

TEST(ExportFormat, isKnownByTheExtensionsOfItsFiles) {
    struct Case {
        const char* extension;
        std::optional<ExportFormat> format;
    };

    for (const Case& each : {Case{"mp4", ExportFormat::mp4},
                             {"MP4", ExportFormat::mp4},
                             {"m4v", ExportFormat::mp4},
                             {"mov", ExportFormat::mov},
                             {"Qt", ExportFormat::mov},
                             {"", std::nullopt},
                             {".mp4", std::nullopt},
                             {"avi", std::nullopt}})
        EXPECT_EQ(exportFormatOfExtension(QString::fromLatin1(each.extension)), each.format)
            << each.extension;
}

TEST(ExportFormat, knowsTheExtensionsOfAllOthers) {
    EXPECT_THAT(extensionsOfOtherFormats(ExportFormat::mp4), ElementsAre(QStringLiteral("mov")));
    EXPECT_THAT(extensionsOfOtherFormats(ExportFormat::mov), ElementsAre(QStringLiteral("mp4")));
}

TEST(ExportRequest, countsACropWithinAThousandthOfThePictureAsNone) {
    struct Case {
        media::Rect crop;
        bool coversPicture;
    };

    for (const Case& each : {Case{{0, 0, 1, 1}, true},
                             {{0.0009, 0.0009, 0.9982, 0.9982}, true},
                             {{0.0011, 0, 0.9989, 1}, false},
                             {{0, 0, 1, 0.9989}, false},
                             {{0.25, 0.25, 0.5, 0.5}, false}})
        EXPECT_EQ(coversPicture(each.crop), each.coversPicture) << each.crop.x << each.crop.height;
}

} // namespace
