#include "Support/Translations.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <algorithm>
#include <atomic>
#include <map>
#include <memory>

namespace brisklet {

namespace {

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
        // One without a single text does not load, and translates nothing.
        static_cast<void>(
            translator->load(QStringLiteral("brisklet_") + language, catalogueFolder()));
    }
    return *translator;
}

} // namespace

QStringList translatedLanguages() {
    QStringList languages;
    const QStringList files = QDir(catalogueFolder()).entryList({QStringLiteral("brisklet_*.qm")});
    for (const QString& file : files) {
        const QString language = file.section(u'.', 0, 0).section(u'_', 1);
        if (language != u"en")
            languages << language;
    }
    return languages;
}

QString catalogueFor(const QStringList& languages) {
    const QStringList catalogues = translatedLanguages();
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
    return isCLocale() ? QString() : catalogueFor(QLocale::system().uiLanguages());
}

void installTranslations(const QString& catalogue) {
    // English has plural forms to choose from.
    load(QStringLiteral("brisklet_") + (catalogue.isEmpty() ? QStringLiteral("en") : catalogue),
         catalogueFolder());
    if (catalogue.isEmpty())
        return;
    spokenLocale() = QLocale(catalogue);
    load(QStringLiteral("qtbase_") + catalogue, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr)
        QGuiApplication::setLayoutDirection(spokenLocale().textDirection());
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
