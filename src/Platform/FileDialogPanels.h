#pragma once

#include "Support/FilePanels.h"
#include "Support/RemoteFiles.h"

#include <QPointer>
#include <QWidget>

#include <memory>

namespace brisklet {

/// The desktop's own file dialogs where it has them, Qt's otherwise; modal to one window. When the
/// window goes away its open dialog is closed without an answer. The folder in which a movie was
/// picked last is kept in the user's preferences. Main thread.
class FileDialogPanels final : public FilePanels {
public:
    /// `remoteFiles` maps remote addresses to mounted folders for saving; without it they are
    /// refused.
    explicit FileDialogPanels(QWidget* window, std::shared_ptr<RemoteFiles> remoteFiles = nullptr);

    QCoro::Task<std::optional<QUrl>> openMovie() override;
    QCoro::Task<std::optional<QUrl>> saveMovie(SaveProposal proposal) override;

private:
    QPointer<QWidget> m_window;
    std::shared_ptr<RemoteFiles> m_remoteFiles;
};

} // namespace brisklet
