#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

namespace brisklet {

/// The languages that there are catalogues of, without those that nobody has begun: "de", "pt_BR" …
/// English is the language of the sources and not among them.
QStringList translatedLanguages();

/// The one of the catalogues for someone who reads these languages, the first best: "de" for
/// {"de-AT", "fr"}. Empty for English, which also stands for what there is no catalogue of. A
/// catalogue serves all countries that write the language in the same script.
QString catalogueFor(const QStringList& languages, const QStringList& catalogues);

/// The catalogue for the user. Who has asked for the C locale, as scripts do, gets English,
/// whatever LANGUAGE says; otherwise LANGUAGE, LC_ALL, LC_MESSAGES and LANG count as for other
/// programs. Needs no application object.
QString userCatalogue();

/// Makes the application speak that language, Qt's own texts included, from right to left where it
/// is written so. To be called on the main thread once the application object is there, before
/// there are widgets; does nothing for English.
void installTranslations(const QString& catalogue);

/// The locale for what people read beside translated texts: numbers, sizes, dates, lists. The
/// user's own if it is of the language that the program speaks. Any thread.
QLocale uiLocale();

/// A text in another language than the program's, for files that others show to the user. The text
/// itself where there is no translation. Main thread.
QString translatedInto(const QString& catalogue, const char* context, const char* text);

} // namespace brisklet
