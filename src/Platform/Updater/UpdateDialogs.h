#pragma once

#include "Platform/Updater/UpdateDriver.h"

#include <QCoreApplication>
#include <QDialog>
#include <QPointer>

class QProgressBar;

namespace brisklet {

/// The updater's small dialogs. They block no window. Main thread.
class UpdateDialogs final : public UpdateDriver {
    Q_DECLARE_TR_FUNCTIONS(brisklet::UpdateDialogs)

public:
    UpdateDialogs() = default;
    ~UpdateDialogs() override;

    void askForAutomaticChecks(std::function<void(bool allowed)> answer) override;
    void showChecking(std::function<void()> cancel) override;
    void showUpToDate(const QString& currentVersion) override;
    void showUpdate(const AppcastItem& item, const QString& currentVersion,
                    std::function<void(UpdateChoice)> answer) override;
    void showDownload(const AppcastItem& item, std::function<void()> cancel) override;
    void showDownloaded(qint64 bytes) override;
    void showFailure(const QString& message) override;
    void dismiss() override;
    bool openPackage(const QString& file) override;

private:
    void showMessage(const QString& title, const QString& text);
    void showProgress(const QString& text, std::function<void()> cancel);
    void present(QDialog* dialog);

    QPointer<QDialog> m_dialog;
    QPointer<QProgressBar> m_bar;
    qint64 m_expectedBytes = 0;
};

} // namespace brisklet
