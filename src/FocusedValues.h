#pragma once

#include <QObject>

#include <memory>

namespace brisklet {

class EditState;

/// Which model is the focused one: in the whole program, where each editor window publishes its own
/// when it becomes the active one, and takes it back when it goes; and for the menus of one window,
/// where it is that window's. Main thread.
class FocusedValues final : public QObject {
    Q_OBJECT

public:
    /// Null where there is none.
    [[nodiscard]] std::shared_ptr<EditState> editState() const { return m_editState.lock(); }

    void setEditState(const std::shared_ptr<EditState>& state);

Q_SIGNALS:
    void editStateChanged();

private:
    std::weak_ptr<EditState> m_editState;
};

} // namespace brisklet
