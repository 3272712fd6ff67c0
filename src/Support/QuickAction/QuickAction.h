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

    /// Whether the bundle exists, as found on first use and changed by this program since.
    [[nodiscard]] bool isInstalled() const { return m_isInstalled; }

    void setInstalled(bool installed) { m_isInstalled = installed; }

    /// The path of the bundle: in Library/Services in the user's home. Computed once.
    static const std::filesystem::path& workflowPath();

    /// Writes the whole bundle and replaces an older one. Throws std::runtime_error with a sentence
    /// for the user; a part of the bundle may remain then.
    static void writeWorkflow(const std::filesystem::path& to);

    /// Writes the bundle to its path, refreshes the system's services, and sets isInstalled().
    /// Throws as writeWorkflow() does, and changes nothing else then.
    void install();

    /// Removes the bundle, refreshes the system's services, and clears isInstalled(). Throws
    /// std::runtime_error if the bundle cannot be removed or does not exist; changes nothing then.
    void uninstall();

    /// Makes the system read its services again. Does not wait, and reports no failure.
    static void refreshServicesRegistry();

Q_SIGNALS:
    void isInstalledChanged();

private:
    Q_OBJECT_BINDABLE_PROPERTY(QuickAction, bool, m_isInstalled, &QuickAction::isInstalledChanged)
};

} // namespace brisklet
