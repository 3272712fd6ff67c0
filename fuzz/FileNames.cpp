#include "Media/Threading/Verify.h"
#include "Support/FileNames.h"
#include "Support/FileUrl.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <stdexcept>
#include <string>

using namespace brisklet;

/// Names of files are any bytes, and come through URLs unchanged; shortened ones fit.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const int maxBytes = input.ConsumeIntegralInRange(0, 300);
    const QString suffix = QString::fromStdString(input.ConsumeRandomLengthString(32));
    std::string name = input.ConsumeRemainingBytesAsString().substr(0, 1024);
    std::ranges::replace(name, '\0', '_');

    const QString base = QString::fromStdString(name);
    const QString shortened = truncatedName(base, suffix, maxBytes);
    const auto room = std::max<qsizetype>(maxBytes, suffix.toUtf8().size());
    media::verify(shortened.toUtf8().size() <= room, "the name fits");
    media::verify(shortened.endsWith(suffix), "the suffix stays");

    // A second slash in front is one too many for a URL.
    const std::string path = "/folder/" + name;
    const QUrl url = urlOf(path);
    media::verify(url.isValid() && isOnThisComputer(url), "a path has a URL");
    media::verify(pathOf(url).string() == path, "a path comes through its URL");
    static_cast<void>(displayName(url));
    static_cast<void>(displayBaseName(url));
    try {
        static_cast<void>(pathOf(urlOfArgument(name)));
    } catch (const std::runtime_error&) {
        // It is elsewhere.
    }
    return 0;
}
