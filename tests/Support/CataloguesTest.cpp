#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>

/// The sources of the translations: complete, and consistent with the English texts.
namespace {

struct Message {
    QString source;
    /// One, or one for each plural form.
    QStringList translations;
    bool isPlural = false;
    bool isFinished = true;
};

/// A text is known by its context, its words and what tells it from others with the same words.
using Key = std::pair<QString, QString>;
using Catalogue = std::map<Key, Message>;

QString fileOf(const QString& language) {
    return QStringLiteral(BRISKLET_SOURCE_DIR "/translations/brisklet_%1.ts").arg(language);
}

Message readMessage(QXmlStreamReader& xml, QString& disambiguation) {
    Message message;
    message.isPlural = xml.attributes().value(QStringLiteral("numerus")) == u"yes";
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            message.source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            disambiguation = xml.readElementText();
        } else if (xml.name() == u"translation") {
            message.isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            if (!message.isPlural)
                message.translations << xml.readElementText();
            while (message.isPlural && xml.readNextStartElement())
                message.translations << xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

Catalogue readCatalogue(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    Catalogue catalogue;
    xml.readNextStartElement();
    while (xml.readNextStartElement()) {
        QString context;
        while (xml.readNextStartElement()) {
            if (xml.name() == u"name") {
                context = xml.readElementText();
            } else {
                QString disambiguation;
                const Message message = readMessage(xml, disambiguation);
                catalogue.insert({{context, message.source + u'\n' + disambiguation}, message});
            }
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << xml.errorString().toStdString();
    return catalogue;
}

QStringList matches(const QString& text, const char* pattern) {
    QStringList found;
    auto all = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text);
    while (all.hasNext())
        found << all.next().captured();
    found.sort();
    return found;
}

QStringList withoutDoubles(QStringList list) {
    list.removeDuplicates();
    return list;
}

QString spaceAround(const QString& text) {
    const QString trimmed = text.trimmed();
    const qsizetype at = text.indexOf(trimmed);
    return text.left(at) + u'|' + text.mid(at + trimmed.size());
}

class Catalogues : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        m_catalogue = readCatalogue(fileOf(QString::fromLatin1(GetParam())));
        bool isBegun = false;
        for (const auto& [key, message] : m_catalogue)
            isBegun = isBegun || !message.translations.join(QString()).isEmpty();
        if (!isBegun)
            GTEST_SKIP() << "not begun";
    }

    Catalogue m_catalogue;
};

TEST_P(Catalogues, areComplete) {
    for (const auto& [key, english] : readCatalogue(fileOf(QStringLiteral("en"))))
        EXPECT_TRUE(m_catalogue.contains(key)) << english.source.toStdString();
    for (const auto& [key, message] : m_catalogue) {
        EXPECT_TRUE(message.isFinished) << message.source.toStdString();
        for (const QString& translation : message.translations)
            EXPECT_FALSE(translation.isEmpty()) << message.source.toStdString();
    }
}

TEST_P(Catalogues, keepPlaceholders) {
    for (const auto& [key, message] : m_catalogue) {
        for (const QString& translation : message.translations) {
            EXPECT_EQ(withoutDoubles(matches(translation, "%(L?[1-9]|n)")),
                      withoutDoubles(matches(message.source, "%(L?[1-9]|n)")))
                << translation.toStdString();
        }
    }
}

TEST_P(Catalogues, keepAcceleratorsAndDotsAndSpaces) {
    for (const auto& [key, message] : m_catalogue) {
        for (const QString& translation : message.translations) {
            EXPECT_EQ(translation.count(u'&'), message.source.count(u'&'))
                << translation.toStdString();
            EXPECT_EQ(translation.endsWith(u'…'), message.source.endsWith(u'…'))
                << translation.toStdString();
            // Japanese and Chinese have no spaces between words.
            if (translation.trimmed() != translation) {
                EXPECT_EQ(spaceAround(translation), spaceAround(message.source))
                    << translation.toStdString();
            }
            EXPECT_EQ(translation.endsWith(u'\n'), message.source.endsWith(u'\n'))
                << translation.toStdString();
        }
    }
}

TEST_P(Catalogues, keepTheNamesOfOptions) {
    for (const auto& [key, message] : m_catalogue) {
        for (const QString& translation : message.translations)
            EXPECT_EQ(withoutDoubles(matches(translation, "--[a-z][-a-z0-9]*")),
                      withoutDoubles(matches(message.source, "--[a-z][-a-z0-9]*")));
    }
}

TEST_P(Catalogues, keepTheToolsLinesShort) {
    constexpr qsizetype kTerminal = 80;
    for (const auto& [key, message] : m_catalogue) {
        if (!message.source.contains(u"--help"))
            continue;
        for (const QString& line : message.translations.first().split(u'\n'))
            EXPECT_LT(line.size(), kTerminal) << line.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Each, Catalogues,
                         testing::Values("de", "fr", "es", "it", "pt_BR", "nl", "pl", "sv", "cs",
                                         "uk", "tr", "ru", "ar", "ja", "zh_CN"),
                         [](const auto& language) { return std::string(language.param); });

// cmake --build --preset release --target update_translations
TEST(CatalogueSources, holdTheTextsOfTheProgram) {
    const testsupport::TemporaryFolder workplace;
    const QString root = QStringLiteral(BRISKLET_SOURCE_DIR);
    const std::string list = (workplace / "sources").string();
    const std::string fresh = (workplace / "brisklet_en.ts").string();
    QFile sources(QString::fromStdString(list));
    ASSERT_TRUE(sources.open(QIODevice::WriteOnly));
    for (const QString& part :
         {root + QStringLiteral("/src"), root + QStringLiteral("/packaging")}) {
        QDirIterator files(part, {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            sources.write(files.next().toUtf8() + '\n');
    }
    sources.close();
    const auto result =
        testsupport::runProcess({BRISKLET_LUPDATE, "-locations", "none", "-I",
                                 BRISKLET_SOURCE_DIR "/src", "@" + list, "-ts", fresh});
    ASSERT_EQ(result.exitStatus, 0) << result.errors;
    const Catalogue now = readCatalogue(QString::fromStdString(fresh));
    const Catalogue kept = readCatalogue(fileOf(QStringLiteral("en")));
    EXPECT_GT(now.size(), 100U);
    for (const auto& [key, message] : now)
        EXPECT_TRUE(kept.contains(key)) << "new: " << message.source.toStdString();
    for (const auto& [key, message] : kept)
        EXPECT_TRUE(now.contains(key)) << "gone: " << message.source.toStdString();
}

} // namespace
