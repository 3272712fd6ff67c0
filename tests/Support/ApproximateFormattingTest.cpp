#include "Support/ApproximateFormatting.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <utility>

namespace brisklet {
namespace {

class ApproximateFormatting : public testing::Test {
protected:
    ApproximateFormatting() { QLocale::setDefault(QLocale::c()); }

    ~ApproximateFormatting() override { QLocale::setDefault(m_before); }

    const QLocale m_before;
};

TEST_F(ApproximateFormatting, roundsSizesToTwoDigits) {
    for (const auto& [bytes, text] : {std::pair<std::int64_t, const char*>{0, "1 bytes"},
                                      {999, "1.0 kB"},
                                      {1'234, "1.2 kB"},
                                      {45'600, "46 kB"},
                                      {99'600, "100 kB"},
                                      {456'000, "460 kB"},
                                      {1'250'000, "1.3 MB"},
                                      {46'400'000, "46 MB"},
                                      {996'000'000, "1.0 GB"},
                                      {12'300'000'000, "12 GB"}})
        EXPECT_EQ(approximateSize(bytes).toStdString(), text) << bytes;
}

TEST_F(ApproximateFormatting, saysDurationsInEverCoarserSteps) {
    for (const auto& [seconds, text] : {std::pair<double, const char*>{-1, "1 s"},
                                        {0.2, "1 s"},
                                        {1.4, "1 s"},
                                        {8.6, "9 s"},
                                        {9.7, "10 s"},
                                        {12.4, "10 s"},
                                        {13, "15 s"},
                                        {57, "55 s"},
                                        {58.5, "60 s"},
                                        {94, "90 s"},
                                        {114, "110 s"},
                                        {116, "2 min"},
                                        {430, "7 min"},
                                        {5'990, "100 min"},
                                        {6'100, "1 h 40 min"},
                                        {7'300, "2 h"}})
        EXPECT_EQ(approximateDuration(seconds).toStdString(), text) << seconds;
}

TEST_F(ApproximateFormatting, speaksTheUsersLanguageOfNumbers) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(approximateSize(1'250'000), QStringLiteral("1,3 MB"));
}

} // namespace
} // namespace brisklet
