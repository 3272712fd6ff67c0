#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QCoreApplication>
#include <QFile>
#include <QSet>
#include <QString>
#include <QTranslator>
#include <QXmlStreamReader>

#include <utility>

namespace testsupport {

/// A language that is made of the English one: in angle quotes, with accents, and sixty per cent
/// longer. Whatever is shown without quotes cannot be translated, and what is cut does not fit.
/// For as long as it lives all new texts are in it, Qt's own too; but none of ours that translators
/// do not get to see, since it is not in the template of the catalogues.
class PseudoLanguage final : public QTranslator {
public:
    /// `pathOfTemplate` is that of brisklet_en.ts.
    explicit PseudoLanguage(const QString& pathOfTemplate) : m_known(textsIn(pathOfTemplate)) {
        QCoreApplication::installTranslator(this);
    }

    ~PseudoLanguage() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* text, const char* /*disambiguation*/,
                      int /*n*/) const override {
        // The names of keys are parsed again, and these two are no texts but settings.
        const QByteArrayView where(context);
        const QString source = QString::fromUtf8(text);
        if (where == "QShortcut" || source == u"QT_LAYOUT_DIRECTION" || source.isEmpty())
            return {};
        if (where.startsWith("brisklet::") && !m_known.contains({where.toByteArray(), source}))
            return {};
        QString result;
        for (qsizetype i = 0; i < source.size(); ++i) {
            // Placeholders stay: %1, %L1, %n.
            if (source[i] == u'%' && i + 1 < source.size())
                result += source[i++];
            result += accented(source[i], i > 0 && source[i - 1] == u'%');
        }
        return u'«' + result + QString((source.size() * 6 + 9) / 10, u'~') + u'»';
    }

    /// Whether all of a text is of this language: it is between its quotes.
    static bool isWholly(const QString& text) {
        return text.startsWith(u'«') && text.endsWith(u'»');
    }

private:
    /// Contexts, each with a text.
    using Texts = QSet<std::pair<QByteArray, QString>>;

    static Texts textsIn(const QString& path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s is missing", qPrintable(path));
        QXmlStreamReader reader(&file);
        Texts texts;
        QByteArray context;
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement() && reader.name() == u"name")
                context = reader.readElementText().toUtf8();
            else if (reader.isStartElement() && reader.name() == u"source")
                texts.insert({context, reader.readElementText()});
        }
        return texts;
    }

    static QChar accented(QChar letter, bool isPlaceholder) {
        static const QString kPlain = QStringLiteral("AEIOUaeiouncCyN");
        static const QString kAccented = QStringLiteral("ÀÉÎÕÜàéîõüñçÇýÑ");
        const qsizetype at = isPlaceholder ? -1 : kPlain.indexOf(letter);
        return at < 0 ? letter : kAccented[at];
    }

    const Texts m_known;
};

} // namespace testsupport
