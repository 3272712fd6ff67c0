#include "Media/Threading/Verify.h"
#include "Platform/Updater/Appcast.h"

#include <QGuiApplication>

#include <cstdint>
#include <stdexcept>

using namespace brisklet;

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    // Qt reads release notes as documents, which have fonts.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(*argc, *argv);
    return 0;
}

/// The feed of updates: what is offered is complete.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto items = parseAppcast(
            QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
        for (const AppcastItem& item : items) {
            media::verify(item.length > 0 && item.packageUrl.isValid(), "there is a package");
            media::verify(item.signature.size() == 64 && !item.version.isEmpty(), "it is signed");
        }
        const auto newest = newestUpdate(items, QStringLiteral("1.0"), QStringLiteral("12"));
        media::verify(!newest || !items.empty(), "what is offered is in the feed");
    } catch (const std::runtime_error&) {
        // It is no feed.
    }
    return 0;
}
