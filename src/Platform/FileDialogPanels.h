#pragma once

#include "Support/FilePanels.h"

#include <QPointer>
#include <QWidget>

namespace brisklet {

/// The desktop's own file dialogs where it has them, Qt's otherwise; modal to one window. A window
/// that goes away takes its open panel along, which then answers nothing. The folder in which a
/// movie was picked last is kept in the user's preferences. Main thread.
class FileDialogPanels final : public FilePanels {
public:
    explicit FileDialogPanels(QWidget* window);

    QCoro::Task<std::optional<QUrl>> openMovie() override;
    QCoro::Task<std::optional<QUrl>> saveMovie(SaveProposal proposal) override;

private:
    QPointer<QWidget> m_window;
};

} // namespace brisklet
