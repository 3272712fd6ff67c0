#include "Models/EditKeeper.h"

#include "Media/Error.h"
#include "Models/EditState.h"
#include "Support/MainThread.h"
#include "Support/Workers.h"

#include <QPointer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace brisklet {

namespace {

using namespace std::chrono_literals;

/// From a change to its writing. No later change puts that off. A disk may take as long again until
/// two seconds are over.
constexpr auto kSaveDelay = 1s;

} // namespace

EditKeeper::EditKeeper(const std::filesystem::path& folder, QObject* parent)
    : QObject(parent), m_store(std::make_shared<EditStore>(folder)) {
    m_saving.setSingleShot(true);
    m_saving.setInterval(kSaveDelay);
    connect(&m_saving, &QTimer::timeout, this, &EditKeeper::save);
}

EditKeeper::~EditKeeper() {
    verifyMainThread();
    for (const auto& watched : m_states) {
        if (const auto state = watched.lock())
            state->disconnect(this);
    }
}

void EditKeeper::watch(const std::shared_ptr<EditState>& state) {
    verifyMainThread();
    std::erase_if(m_states, [](const auto& watched) { return watched.expired(); });
    m_states.push_back(state);
    EditState* model = state.get();
    connect(model, &EditState::editBegan, this, [this, model] { begin(*model); });
    connect(model, &EditState::editEnded, this, [this, model] { end(*model); });
    connect(model, &EditState::editChanged, &m_saving, [this] {
        if (!m_saving.isActive())
            m_saving.start();
    });
    connect(model, &EditState::currentTimeChanged, this, [this, model] { changed(*model); });
    connect(model, &EditState::isPlayingChanged, this, [this, model] { changed(*model); });
    connect(model, &EditState::reopenFailed, this, &EditKeeper::failed);
}

void EditKeeper::release(const std::shared_ptr<EditState>& state) {
    verifyMainThread();
    if (std::erase_if(m_states, [&](const auto& each) { return each.lock() == state; }) == 0)
        return;
    state->disconnect(this);
    state->disconnect(&m_saving);
    if (const auto reopening = m_reopening.extract(state.get()))
        m_store->keep(reopening.mapped(), EditStore::Place::closed);
    if (state->videoURL())
        end(*state);
    else
        write();
}

void EditKeeper::begin(EditState& state) {
    const auto reopening = m_reopening.find(&state);
    if (reopening == m_reopening.end() || reopening->second.id != state.editId())
        return;
    m_noted.insert_or_assign(state.editId(), reopening->second);
    m_failed.erase(state.editId());
    m_reopening.erase(reopening);
}

/// The playhead alone: while it plays it is not worth a word, and without an edit there is nothing
/// to keep.
void EditKeeper::changed(const EditState& state) {
    if (!state.isPlaying() && !m_saving.isActive() && state.unfinishedEdit())
        m_saving.start();
}

void EditKeeper::end(const EditState& state) {
    const auto noted = m_noted.extract(state.editId());
    if (const auto kept = state.unfinishedEdit())
        m_store->keep(*kept, EditStore::Place::closed);
    else if (noted)
        m_store->remove(state.editId());
    write();
}

void EditKeeper::failed(std::uint64_t id) {
    const auto reopening = std::ranges::find_if(
        m_reopening, [id](const auto& entry) { return entry.second.id == id; });
    if (reopening == m_reopening.end())
        return;
    m_failed.insert(id);
    giveBack(m_reopening.extract(reopening).mapped());
}

void EditKeeper::note(const EditState& state) {
    const auto kept = state.unfinishedEdit();
    const auto noted = m_noted.find(state.editId());
    if (!kept) {
        if (noted == m_noted.end())
            return;
        m_store->remove(noted->first);
        m_noted.erase(noted);
    } else if (noted == m_noted.end() || noted->second != *kept) {
        m_store->keep(*kept, EditStore::Place::open);
        m_noted.insert_or_assign(kept->id, *kept);
    }
}

void EditKeeper::save() {
    for (const auto& watched : m_states) {
        if (const auto state = watched.lock())
            note(*state);
    }
    write();
}

void EditKeeper::write() {
    if (!m_store->beginWrite())
        return;
    const auto work = [store = m_store, self = QPointer(this)] {
        store->write();
        postToMainThread([self] {
            if (self)
                self->showCanReopen();
        });
    };
    try {
        startWorker(work);
    } catch (const media::Error&) {
        // The system starts no more threads; an edit that waits for the disk is better than a lost
        // one.
        work();
    }
}

void EditKeeper::refresh() {
    write();
}

void EditKeeper::showCanReopen() {
    if (std::exchange(m_canReopen, m_store->hasClosed()) != m_canReopen)
        Q_EMIT canReopenChanged();
}

EditStore::Ids EditKeeper::openIds() const {
    EditStore::Ids ids;
    for (const auto& watched : m_states) {
        if (const auto state = watched.lock())
            ids.insert(state->editId());
    }
    for (const auto& [state, kept] : m_reopening)
        ids.insert(kept.id);
    return ids;
}

QCoro::Task<std::optional<KeptEdit>> EditKeeper::takeLast() {
    const QPointer<EditKeeper> self = this;
    auto taking = runOnWorker([store = m_store, open = openIds(), failed = m_failed] {
        return store->takeLast(open, failed);
    });
    const std::optional<KeptEdit> taken = co_await taking;
    if (self)
        self->showCanReopen();
    co_return taken;
}

void EditKeeper::reopen(const std::shared_ptr<EditState>& state, const KeptEdit& kept) {
    m_reopening.insert_or_assign(state.get(), kept);
    state->reopen(kept);
}

void EditKeeper::giveBack(const KeptEdit& kept) {
    m_store->keep(kept, EditStore::Place::closed);
    write();
}

} // namespace brisklet
