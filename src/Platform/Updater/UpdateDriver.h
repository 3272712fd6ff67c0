#pragma once

#include "Platform/Updater/Appcast.h"

#include <functional>

namespace brisklet {

/// What the user wants with an update that is offered.
enum class UpdateChoice { install, skipThisVersion, remindLater };

/// The updater's user interface. Each call replaces what the previous one shows; the answer comes
/// at any later time, at most once. Main thread.
class UpdateDriver {
public:
    UpdateDriver() = default;
    UpdateDriver(const UpdateDriver&) = delete;
    UpdateDriver& operator=(const UpdateDriver&) = delete;
    virtual ~UpdateDriver() = default;

    virtual void askForAutomaticChecks(std::function<void(bool allowed)> answer) = 0;
    virtual void showChecking(std::function<void()> cancel) = 0;
    virtual void showUpToDate(const QString& currentVersion) = 0;
    virtual void showUpdate(const AppcastItem& item, const QString& currentVersion,
                            std::function<void(UpdateChoice)> answer) = 0;
    virtual void showDownload(const AppcastItem& item, std::function<void()> cancel) = 0;
    virtual void showDownloaded(qint64 bytes) = 0;
    virtual void showFailure(const QString& message) = 0;
    /// Closes whatever is shown.
    virtual void dismiss() = 0;
    /// Hands a checked package to the desktop's package handler; false where there is none.
    virtual bool openPackage(const QString& file) = 0;
};

} // namespace brisklet
