#pragma once

#include <memory>

namespace brisklet {

class EditState;

/// A drag, or anything else that changes an edit many times and is one step to undo: from the
/// making of this object to its end. Views keep one for as long as the mouse is held. Main thread.
class EditGesture final {
public:
    explicit EditGesture(std::shared_ptr<EditState> state);
    ~EditGesture();
    EditGesture(const EditGesture&) = delete;
    EditGesture& operator=(const EditGesture&) = delete;

private:
    std::shared_ptr<EditState> m_state;
};

} // namespace brisklet
