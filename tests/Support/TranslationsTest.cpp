#include "Support/Translations.h"

#include "Support/LocalizedMessage.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <exception>
#include <stdexcept>
#include <string>
#include <system_error>

namespace brisklet {
namespace {

/// The environment's language for as long as it lives.
class Environment final {
public:
    Environment(const char* locale, const char* languages = nullptr) {
        for (const char* name : kNames)
            qunsetenv(name);
        qputenv("LC_ALL", locale);
        if (languages != nullptr)
            qputenv("LANGUAGE", languages);
    }

    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

    ~Environment() {
        for (std::size_t i = 0; i < kNames.size(); ++i) {
            if (m_before[i].isNull())
                qunsetenv(kNames[i]);
            else
                qputenv(kNames[i], m_before[i]);
        }
    }

private:
    static constexpr std::array kNames{"LC_ALL", "LANGUAGE", "LC_MESSAGES", "LANG"};
    std::array<QByteArray, kNames.size()> m_before{qgetenv(kNames[0]), qgetenv(kNames[1]),
                                                   qgetenv(kNames[2]), qgetenv(kNames[3])};
};

/// The only text of its language: that a file does not exist.
class OneText final : public QTranslator {
public:
    OneText() { QCoreApplication::installTranslator(this); }

    ~OneText() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* text, const char* /*disambiguation*/,
                      int /*n*/) const override {
        if (QLatin1String(context) != QLatin1String("media::Error"))
            return {};
        if (text == std::string("The file doesn’t exist."))
            return QStringLiteral("Die Datei ist nicht vorhanden.");
        if (text == std::string("Couldn't open “%1”: %2"))
            return QStringLiteral("%2 (beim Öffnen von „%1“)");
        if (text == std::string("%1"))
            return QStringLiteral("unerwartet (Details: %1)");
        return {};
    }
};

const QStringList kCatalogues{QStringLiteral("de"), QStringLiteral("fr"), QStringLiteral("pt_BR"),
                              QStringLiteral("ru"), QStringLiteral("zh_CN")};

QString catalogueIn(const QStringList& languages) {
    return catalogueFor(languages, kCatalogues);
}

TEST(Translations, serveEachCountryThatWritesTheLanguage) {
    EXPECT_EQ(catalogueIn({QStringLiteral("de-AT")}), QStringLiteral("de"));
    EXPECT_EQ(catalogueIn({QStringLiteral("pt-PT")}), QStringLiteral("pt_BR"));
    EXPECT_EQ(catalogueIn({QStringLiteral("zh-CN")}), QStringLiteral("zh_CN"));
    EXPECT_EQ(catalogueIn({QStringLiteral("zh-Hans-SG")}), QStringLiteral("zh_CN"));
}

TEST(Translations, serveNobodyInAScriptOfOthers) {
    EXPECT_EQ(catalogueIn({QStringLiteral("zh-TW")}), QString());
    EXPECT_EQ(catalogueIn({QStringLiteral("uz-Cyrl"), QStringLiteral("ru")}), QStringLiteral("ru"));
}

TEST(Translations, takeTheFirstLanguageThatThereIs) {
    EXPECT_EQ(catalogueIn({QStringLiteral("hu"), QStringLiteral("de")}), QStringLiteral("de"));
    EXPECT_EQ(catalogueIn({QStringLiteral("en-GB"), QStringLiteral("de")}), QString());
    EXPECT_EQ(catalogueIn({QStringLiteral("hu")}), QString());
    EXPECT_EQ(catalogueIn({}), QString());
}

TEST(Translations, areNotForScripts) {
    for (const char* locale : {"C", "C.UTF-8", "POSIX"}) {
        const Environment script(locale, "de");
        EXPECT_EQ(userCatalogue(), QString()) << locale;
    }
}

TEST(LocalizedMessage, isTheEnglishSentenceWhereThereIsNoOther) {
    const media::Error error(
        becauseOf(media::ErrorKind::newFileNotWritten, {media::ErrorKind::diskFull}));
    EXPECT_EQ(localizedMessage(error).toStdString(), error.what());
    EXPECT_STREQ(error.what(),
                 "The new file can’t be written: There is not enough space on the disk.");
    EXPECT_EQ(localizedMessage(std::runtime_error("Über")), QStringLiteral("Über"));
}

TEST(LocalizedMessage, translatesTheCauseToo) {
    const OneText german;
    const media::Error error(becauseOf(media::ErrorKind::sourceNotOpened,
                                       {media::ErrorKind::fileMissing}, {"100 %2.mp4"}));
    EXPECT_EQ(localizedMessage(error),
              QStringLiteral("Die Datei ist nicht vorhanden. (beim Öffnen von „100 %2.mp4“)"));
    EXPECT_STREQ(error.what(), "Couldn't open “100 %2.mp4”: The file doesn’t exist.");
}

TEST(LocalizedMessage, translatesWhatWasThrownWithACause) {
    const OneText german;
    try {
        try {
            throw media::Error(media::ErrorKind::fileEmpty);
        } catch (...) {
            std::throw_with_nested(media::Error(media::ErrorKind::fileMissing));
        }
    } catch (const std::exception& error) {
        EXPECT_EQ(localizedMessage(error), QStringLiteral("Die Datei ist nicht vorhanden."));
    }
}

TEST(LocalizedMessage, namesForeignWordsAsDetails) {
    const std::error_code rare(EL2HLT, std::generic_category());
    EXPECT_EQ(localizedReason(rare).toStdString(), rare.message());
    const OneText german;
    EXPECT_EQ(localizedReason(rare).toStdString(), "unerwartet (Details: " + rare.message() + ")");
}

TEST(UiLocale, isOfTheLanguageOfTheProgram) {
    EXPECT_EQ(uiLocale().language(), QLocale::English);
}

} // namespace
} // namespace brisklet
