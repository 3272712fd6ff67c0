#include "Media/Threading/Verify.h"
#include "Platform/Updater/VersionOrder.h"

#include <QString>
#include <fuzzer/FuzzedDataProvider.h>

using brisklet::compareVersions;

/// The order of versions is one: the same both ways round, and the same over a third one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const auto next = [&] { return QString::fromStdString(input.ConsumeRandomLengthString(64)); };
    const QString a = next();
    const QString b = next();
    const QString c = next();
    media::verify(compareVersions(a, a) == 0, "a version is as new as itself");
    media::verify((compareVersions(a, b) < 0) == (compareVersions(b, a) > 0), "both ways round");
    if (compareVersions(a, b) <= 0 && compareVersions(b, c) <= 0)
        media::verify(compareVersions(a, c) <= 0, "over a third version");
    return 0;
}
