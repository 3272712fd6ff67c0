#pragma once

#include "Models/EditStore.h"
#include "Models/KeptEdit.h"

#include <QCoroTask>
#include <QObject>
#include <QTimer>

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace brisklet {

class EditState;

/// Keeps what is edited in the program's windows, so that nothing is lost when a window closes,
/// another video is opened in it, or the program ends in whatever way: an edit that is unfinished
/// (EditState::unfinishedEdit()) is on disk within two seconds of a change, and when it is closed.
/// Brings closed edits back, the latest first.
///
/// Main thread. The disk is touched by workers only, which outlive this where they have something
/// to write: the program waits for them before it ends. While nothing changes no timer runs.
class EditKeeper final : public QObject {
    Q_OBJECT

public:
    /// Touches no disk; canReopen() is right after the first refresh().
    explicit EditKeeper(const std::filesystem::path& folder, QObject* parent = nullptr);
    ~EditKeeper() override;

    /// Follows the model of a window that opens. Holds it weakly.
    void watch(const std::shared_ptr<EditState>& state);
    /// Takes leave of the model of a window that closes; its edit is now a closed one.
    void release(const std::shared_ptr<EditState>& state);

    /// Whether there is a closed edit. Other programs may change that unseen until refresh().
    [[nodiscard]] bool canReopen() const { return m_canReopen; }

    /// Looks at the disk anew, and tells of it a moment later.
    void refresh();

    /// The latest closed edit, none if there is none. It must be given to reopen() or giveBack().
    QCoro::Task<std::optional<KeptEdit>> takeLast();
    /// Has a watched model go on with an edit. One whose video is not found is tried again after
    /// all others.
    void reopen(const std::shared_ptr<EditState>& state, const KeptEdit& kept);
    void giveBack(const KeptEdit& kept);

Q_SIGNALS:
    void canReopenChanged();

private:
    void begin(EditState& state);
    void changed(const EditState& state);
    void end(const EditState& state);
    void failed(std::uint64_t id);
    void note(const EditState& state);
    void save();
    void write();
    void showCanReopen();
    [[nodiscard]] EditStore::Ids openIds() const;

    std::shared_ptr<EditStore> m_store;
    std::vector<std::weak_ptr<EditState>> m_states;
    /// The open edits as they were last given to the store.
    std::map<std::uint64_t, KeptEdit> m_noted;
    /// Edits whose video is being opened, by the model that does so.
    std::map<const EditState*, KeptEdit> m_reopening;
    EditStore::Ids m_failed;
    /// Runs from a change until it is saved.
    QTimer m_saving{this};
    bool m_canReopen = false;
};

} // namespace brisklet
