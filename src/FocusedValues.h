#pragma once

#include <QObject>

#include <memory>

namespace brisklet {

class EditState;

/// How the menu commands find the model that they act on: each editor window publishes its own
/// when it becomes the active one, and takes it back when it goes. Main thread.
class FocusedValues final : public QObject {
    Q_OBJECT

public:
    /// The model of the editor window that was active last; null where there is none.
    [[nodiscard]] std::shared_ptr<EditState> editState() const { return m_editState.lock(); }

    void setEditState(const std::shared_ptr<EditState>& state);

Q_SIGNALS:
    void editStateChanged();

private:
    std::weak_ptr<EditState> m_editState;
};

} // namespace brisklet
