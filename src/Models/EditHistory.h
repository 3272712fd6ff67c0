#pragma once

#include "Models/Edit.h"

#include <QObject>
#include <QUndoStack>

#include <functional>
#include <optional>

namespace brisklet {

/// What a step of an edit did, for its name in the menus.
enum class EditStep { trimStart, trimEnd, crop, removeCrop, rotate, mute, unmute };

/// The steps of the edit of one video, to be undone and redone. The model that owns it records each
/// change; what makes up one step is decided here:
/// - all changes of a gesture (EditGesture), such as a drag, are one step, and none if they end
///   where they began;
/// - changes of the same run that follow each other, such as arrow keys on one handle, are one
/// step;
/// - any other change is a step of its own.
/// A step holds the whole edit before and after it, so undoing restores each value exactly. Main
/// thread.
class EditHistory final : public QObject {
    Q_OBJECT

public:
    /// Names what the changes of a run have in common; kNoRun for a step of its own.
    static constexpr int kNoRun = 0;

    /// `restore` makes an edit the current one, without recording it.
    explicit EditHistory(std::function<void(const Edit&)> restore);

    /// Forgets all steps. The next one changes `edit`.
    void begin(const Edit& edit);

    /// Notes that the edit has become `edit`.
    void record(EditStep step, const Edit& edit, int run = kNoRun);

    /// Ends the current run: the same keys now begin a step of their own.
    void endRun() { m_run = kNoRun; }

    /// What undo() and redo() would undo and redo, if anything.
    [[nodiscard]] std::optional<EditStep> undoStep() const;
    [[nodiscard]] std::optional<EditStep> redoStep() const;

    /// Do nothing while a gesture goes on.
    void undo();
    void redo();

Q_SIGNALS:
    /// undoStep() or redoStep() may have changed.
    void changed();

private:
    friend class EditGesture;
    class Command;

    struct Change {
        EditStep step;
        Edit edit;
    };

    void beginGesture();
    void endGesture();
    void push(const Change& change, int mergeId);
    void restore(const Edit& edit);
    [[nodiscard]] std::optional<EditStep> stepAt(int index) const;

    std::function<void(const Edit&)> m_restore;
    QUndoStack m_stack;
    /// The edit after the step at which the stack is.
    Edit m_recorded;
    int m_gestures = 0;
    /// The last change of the gesture that goes on.
    std::optional<Change> m_pending;
    int m_run = kNoRun;
    /// Counts the runs, so that each can be told from an earlier one of the same kind.
    int m_runNumber = 0;
};

} // namespace brisklet
