#pragma once

#include "TestSupport/Process.h"

#include <clocale>
#include <string>
#include <vector>

namespace testsupport {

/// Locales of other decimal signs, other digits and other rules for capitals than English.
inline constexpr auto kForeignLocales = {"de_DE.UTF-8", "fr_FR.UTF-8", "tr_TR.UTF-8",
                                         "ar_EG.UTF-8", "fa_IR.UTF-8", "ja_JP.UTF-8"};

/// Whether the machine has the locale.
inline bool isInstalled(const char* locale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const bool isThere = std::setlocale(LC_ALL, locale) != nullptr;
    std::setlocale(LC_ALL, before.c_str());
    return isThere;
}

/// Runs a program of ours as somebody who has set the locale, without a display.
inline ProcessResult runInLocale(const char* locale, const std::vector<std::string>& arguments,
                                 std::vector<std::string> environment = {}) {
    environment.insert(environment.end(),
                       {std::string("LC_ALL=") + locale, "LANGUAGE=", "QT_QPA_PLATFORM=offscreen"});
    return runProcess(arguments, {.additionalEnvironment = environment});
}

} // namespace testsupport
