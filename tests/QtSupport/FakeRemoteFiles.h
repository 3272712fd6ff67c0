#pragma once

#include "Support/RemoteFiles.h"

#include <QHash>
#include <QList>

namespace testsupport {

/// Finds what a test says, at once.
class FakeRemoteFiles final : public brisklet::RemoteFiles {
public:
    QCoro::Task<std::optional<QUrl>> find(QUrl address) override {
        asked << address;
        std::optional<QUrl> place;
        if (places.contains(address))
            place = places.value(address);
        co_return place;
    }

    QHash<QUrl, QUrl> places;
    QList<QUrl> asked;
};

} // namespace testsupport
