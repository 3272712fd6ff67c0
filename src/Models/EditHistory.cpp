#include "Models/EditHistory.h"

#include "Support/MainThread.h"

#include <QUndoCommand>

#include <utility>

namespace brisklet {

namespace {

constexpr int kNeverMerged = -1;

} // namespace

class EditHistory::Command final : public QUndoCommand {
public:
    Command(EditHistory& history, int mergeId, Edit before, Change change)
        : m_history(history),
          m_mergeId(mergeId),
          m_before(std::move(before)),
          m_change(std::move(change)) {}

    [[nodiscard]] EditStep step() const { return m_change.step; }

    void undo() override { m_history.restore(m_before); }

    void redo() override { m_history.restore(m_change.edit); }

    [[nodiscard]] int id() const override { return m_mergeId; }

    bool mergeWith(const QUndoCommand* next) override {
        m_change = static_cast<const Command*>(next)->m_change;
        setObsolete(m_change.edit == m_before);
        return true;
    }

private:
    EditHistory& m_history;
    int m_mergeId;
    Edit m_before;
    Change m_change;
};

EditHistory::EditHistory(std::function<void(const Edit&)> restore) : m_restore(std::move(restore)) {
    connect(&m_stack, &QUndoStack::indexChanged, this, &EditHistory::changed);
}

void EditHistory::begin(const Edit& edit) {
    verifyMainThread();
    m_recorded = edit;
    m_pending.reset();
    endRun();
    m_stack.clear();
}

void EditHistory::record(EditStep step, const Edit& edit, int run) {
    verifyMainThread();
    if (m_gestures > 0) {
        m_pending = Change{step, edit};
        return;
    }
    if (run == kNoRun || run != m_run)
        ++m_runNumber;
    m_run = run;
    push({step, edit}, run == kNoRun ? kNeverMerged : m_runNumber);
}

void EditHistory::push(const Change& change, int mergeId) {
    if (change.edit == m_recorded)
        return;
    const Edit before = std::exchange(m_recorded, change.edit);
    m_stack.push(new Command(*this, mergeId, before, change));
}

void EditHistory::restore(const Edit& edit) {
    // A step is pushed after it was made.
    if (edit == m_recorded)
        return;
    m_recorded = edit;
    m_restore(edit);
}

void EditHistory::beginGesture() {
    verifyMainThread();
    ++m_gestures;
    endRun();
}

void EditHistory::endGesture() {
    if (--m_gestures > 0)
        return;
    if (const auto change = std::exchange(m_pending, std::nullopt))
        push(*change, kNeverMerged);
}

std::optional<EditStep> EditHistory::stepAt(int index) const {
    const auto* command = static_cast<const Command*>(m_stack.command(index));
    return command != nullptr ? std::optional(command->step()) : std::nullopt;
}

std::optional<EditStep> EditHistory::undoStep() const {
    return stepAt(m_stack.index() - 1);
}

std::optional<EditStep> EditHistory::redoStep() const {
    return stepAt(m_stack.index());
}

void EditHistory::undo() {
    if (m_gestures > 0)
        return;
    endRun();
    m_stack.undo();
}

void EditHistory::redo() {
    if (m_gestures > 0)
        return;
    endRun();
    m_stack.redo();
}

} // namespace brisklet
