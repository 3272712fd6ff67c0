#include "Platform/Updater/VersionOrder.h"

#include <QString>

#include <gtest/gtest.h>

namespace {

using brisklet::compareVersions;

TEST(VersionOrder, comparesPartByPart) {
    struct Row {
        const char16_t* older;
        const char16_t* newer;
    };

    for (const Row& row :
         {Row{u"1.0", u"1.1"}, Row{u"1.9", u"1.10"}, Row{u"1.0", u"1.0.1"}, Row{u"1.0b1", u"1.0"},
          Row{u"1.0a2", u"1.0b1"}, Row{u"1.0rc1", u"1.0rc2"}, Row{u"0.9", u"1"}, Row{u"", u"1"},
          Row{u"1.0-beta", u"1.0-1"}, Row{u"9", u"99999999999999999999999999"}}) {
        EXPECT_TRUE(compareVersions(row.older, row.newer) < 0)
            << QStringView(row.older).toString().toStdString() << " "
            << QStringView(row.newer).toString().toStdString();
        EXPECT_TRUE(compareVersions(row.newer, row.older) > 0)
            << QStringView(row.older).toString().toStdString() << " "
            << QStringView(row.newer).toString().toStdString();
    }
}

TEST(VersionOrder, takesTheSameVersionInOtherWordsAsEqual) {
    EXPECT_TRUE(compareVersions(u"1.0", u"1.0") == 0);
    EXPECT_TRUE(compareVersions(u"1.0", u"1-00") == 0);
    EXPECT_TRUE(compareVersions(u"1", u"1.0.0") == 0);
    EXPECT_TRUE(compareVersions(u"1.0RC1", u"1.0rc1") == 0);
    EXPECT_TRUE(compareVersions(u"", u"") == 0);
}

} // namespace
