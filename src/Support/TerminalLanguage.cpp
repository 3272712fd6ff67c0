#include "Support/TerminalLanguage.h"

#include "Support/Translations.h"

#include <clocale>
#include <langinfo.h>
#include <string_view>

namespace brisklet {

namespace {

/// Whether the machine has the user's locale, and it is one that all letters can be written in. Qt
/// would complain on the terminal otherwise.
bool takeOnLocale() {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): there is no other thread yet.
    if (std::setlocale(LC_ALL, "") != nullptr &&
        std::string_view(::nl_langinfo(CODESET)) == "UTF-8")
        return true;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): there is no other thread yet.
    std::setlocale(LC_ALL, "C");
    return false;
}

} // namespace

TerminalLanguage::TerminalLanguage(int& argc, char** argv) {
    const QString catalogue = userCatalogue();
    if (catalogue.isEmpty() || !takeOnLocale())
        return;
    m_application.emplace(argc, argv);
    // Qt has taken the user's locale into the C library; numbers for machines stay as they were.
    // NOLINTNEXTLINE(concurrency-mt-unsafe): no other thread reads numbers yet.
    std::setlocale(LC_NUMERIC, "C");
    installTranslations(catalogue);
}

} // namespace brisklet
