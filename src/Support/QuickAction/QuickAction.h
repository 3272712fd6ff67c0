#pragma once

#include <QObject>
#include <QProperty>

#include <filesystem>

namespace brisklet {

/// The Finder Quick Action "Trim Video": a service workflow bundle in the user's Services folder
/// that opens the selected videos in this program. Main thread.
class QuickAction final : public QObject {
    Q_OBJECT

public:
    /// The one instance that the program uses. Its first use decides isInstalled() from the disk.
    static QuickAction& shared();

    QuickAction();

    /// Whether the bundle is believed to exist. Follows this program's own steps from then on.
    [[nodiscard]] bool isInstalled() const { return m_isInstalled; }

    void setInstalled(bool installed) { m_isInstalled = installed; }

    /// Where the bundle stands: Library/Services in the user's home. Computed once.
    static const std::filesystem::path& workflowPath();

    /// Writes the whole bundle in the place of whatever is there. Throws std::runtime_error with a
    /// sentence for the user; a part of the bundle may remain then.
    static void writeWorkflow(const std::filesystem::path& to);

    /// Writes the bundle to its place, tells the system, and isInstalled() holds. Throws as
    /// writeWorkflow() does, changing nothing else.
    void install();

    /// Removes the bundle, tells the system, and isInstalled() is over. Throws std::runtime_error
    /// where the bundle cannot be removed, also because it is gone, and changes nothing then.
    void uninstall();

    /// Has the system read its services anew. Neither waits nor reports.
    static void refreshServicesRegistry();

Q_SIGNALS:
    void isInstalledChanged();

private:
    Q_OBJECT_BINDABLE_PROPERTY(QuickAction, bool, m_isInstalled, &QuickAction::isInstalledChanged)
};

} // namespace brisklet
