#pragma once

#include <QApplication>

#include <clocale>

namespace brisklet {

/// Qt's application object, which takes the user's locale into the C library, but for numbers: a
/// library that reads or writes one for a machine does so in the same way everywhere. What people
/// read goes through QLocale, which knows the user's locale by itself.
///
/// All our programs with a window, and all tests, make theirs of it. Main thread.
class Application final : public QApplication {
public:
    Application(int& argc, char** argv) : QApplication(argc, argv) {
        // The desktop's plugins, some of which set the locale once more, have been loaded by now.
        // Another thread reads numbers only under a locale of its own.
        std::setlocale(LC_NUMERIC, "C"); // NOLINT(concurrency-mt-unsafe)
    }
};

} // namespace brisklet
