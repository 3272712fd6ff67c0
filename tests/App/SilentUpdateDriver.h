#pragma once

#include "Platform/Updater/UpdateDriver.h"

namespace testsupport {

/// Shows nothing and never answers.
class SilentUpdateDriver final : public brisklet::UpdateDriver {
public:
    void askForAutomaticChecks(std::function<void(bool)> /*answer*/) override {}

    void showChecking(std::function<void()> /*cancel*/) override { ++checkingCount; }

    void showUpToDate(const QString& /*currentVersion*/) override {}

    void showUpdate(const brisklet::AppcastItem& /*item*/, const QString& /*currentVersion*/,
                    std::function<void(brisklet::UpdateChoice)> /*answer*/) override {}

    void showDownload(const brisklet::AppcastItem& /*item*/,
                      std::function<void()> /*cancel*/) override {}

    void showDownloaded(qint64 /*bytes*/) override {}

    void showFailure(const QString& /*message*/) override {}

    void dismiss() override {}

    bool openPackage(const QString& /*file*/) override { return false; }

    int checkingCount = 0;
};

} // namespace testsupport
