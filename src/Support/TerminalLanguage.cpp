#include "Support/TerminalLanguage.h"

#include "Support/Translations.h"

#include <clocale>

namespace brisklet {

TerminalLanguage::TerminalLanguage(int& argc, char** argv) {
    const QString catalogue = userCatalogue();
    if (catalogue.isEmpty())
        return;
    m_application.emplace(argc, argv);
    // Qt has taken the user's locale into the C library; numbers for machines stay as they were.
    // NOLINTNEXTLINE(concurrency-mt-unsafe): no other thread reads numbers yet.
    std::setlocale(LC_NUMERIC, "C");
    installTranslations(catalogue);
}

} // namespace brisklet
