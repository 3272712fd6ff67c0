#include "Support/Translations.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <map>
#include <memory>

namespace brisklet {

namespace {

/// Texts of Qt’s that the program shows. Qt comes without a catalogue for some languages, and may
/// be installed without any; where it has one, that is asked first.
[[maybe_unused]] constexpr std::array kTextsOfQt{
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),
    //: The names of keys, as they are on keyboards.
    QT_TRANSLATE_NOOP("QShortcut", "Ctrl"),
    QT_TRANSLATE_NOOP("QShortcut", "Shift"),
    QT_TRANSLATE_NOOP("QShortcut", "Esc"),
    QT_TRANSLATE_NOOP("QShortcut", "Space"),
    QT_TRANSLATE_NOOP("QShortcut", "Left"),
    QT_TRANSLATE_NOOP("QShortcut", "Right"),
    QT_TRANSLATE_NOOP("QShortcut", "Alt"),
    QT_TRANSLATE_NOOP("QShortcut", "Up"),
    QT_TRANSLATE_NOOP("QShortcut", "Down"),
    QT_TRANSLATE_NOOP("QShortcut", "Home"),
    QT_TRANSLATE_NOOP("QShortcut", "End"),
    QT_TRANSLATE_NOOP("QShortcut", "PgUp"),
    QT_TRANSLATE_NOOP("QShortcut", "PgDown"),
    //: Closes a dialog that only tells something.
    QT_TRANSLATE_NOOP("QPlatformTheme", "Close"),
};

QString catalogueFolder() {
    return QStringLiteral(":/translations");
}

/// The language that installTranslations() was told; English until then.
QLocale& spokenLocale() {
    static QLocale locale(QLocale::English, QLocale::UnitedStates);
    return locale;
}

/// Whether the texts are for programs, not for people.
bool isCLocale() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QByteArray value = qgetenv(name);
        if (!value.isEmpty())
            return value == "C" || value == "POSIX" || value.startsWith("C.");
    }
    return true;
}

bool load(const QString& name, const QString& folder) {
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    return translator->load(name, folder) &&
           QCoreApplication::installTranslator(translator.release());
}

const QTranslator& catalogue(const QString& language) {
    static std::map<QString, std::unique_ptr<QTranslator>> loaded;
    std::unique_ptr<QTranslator>& translator = loaded[language];
    if (!translator) {
        translator = std::make_unique<QTranslator>();
        if (!translator->load(QStringLiteral("brisklet_") + language, catalogueFolder()))
            qFatal("The catalogue %s is damaged.", qPrintable(language));
    }
    return *translator;
}

} // namespace

QStringList translatedLanguages() {
    // Of a catalogue without a text: its header and the rule of its plural forms.
    constexpr qint64 kMostBytesOfNothing = 128;
    QStringList languages;
    const QFileInfoList files =
        QDir(catalogueFolder()).entryInfoList({QStringLiteral("brisklet_*.qm")});
    for (const QFileInfo& file : files) {
        const QString language = file.completeBaseName().section(u'_', 1);
        if (language != u"en" && file.size() > kMostBytesOfNothing)
            languages << language;
    }
    return languages;
}

QString catalogueFor(const QStringList& languages, const QStringList& catalogues) {
    for (const QString& language : languages) {
        const QLocale wanted(language);
        if (wanted.language() == QLocale::English)
            return {};
        if (catalogues.contains(wanted.name()))
            return wanted.name();
        const auto isReadable = [&wanted](const QString& name) {
            const QLocale locale(name);
            return locale.language() == wanted.language() && locale.script() == wanted.script();
        };
        const auto found = std::ranges::find_if(catalogues, isReadable);
        if (found != catalogues.end())
            return *found;
    }
    return {};
}

QString userCatalogue() {
    return isCLocale() ? QString()
                       : catalogueFor(QLocale::system().uiLanguages(), translatedLanguages());
}

void installTranslations(const QString& catalogue) {
    // English has plural forms to choose from.
    load(QStringLiteral("brisklet_") + (catalogue.isEmpty() ? QStringLiteral("en") : catalogue),
         catalogueFolder());
    if (!catalogue.isEmpty()) {
        spokenLocale() = QLocale(catalogue);
        load(QStringLiteral("qtbase_") + catalogue,
             QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr)
            QGuiApplication::setLayoutDirection(spokenLocale().textDirection());
    }
    // Numbers and sizes in the language of the texts around them.
    if (!isCLocale())
        QLocale::setDefault(uiLocale());
}

QLocale uiLocale() {
    const QLocale system = QLocale::system();
    const QLocale& spoken = spokenLocale();
    const bool isUsersOwn =
        system.language() == spoken.language() && system.script() == spoken.script();
    return isUsersOwn ? system : spoken;
}

QString translatedInto(const QString& catalogue, const char* context, const char* text) {
    const QString translated = brisklet::catalogue(catalogue).translate(context, text);
    return translated.isEmpty() ? QString::fromUtf8(text) : translated;
}

} // namespace brisklet
