#include "FocusedValues.h"

#include "Models/EditState.h"
#include "Support/MainThread.h"

namespace brisklet {

void FocusedValues::setEditState(const std::shared_ptr<EditState>& state) {
    verifyMainThread();
    if (m_editState.lock() == state)
        return;
    m_editState = state;
    Q_EMIT editStateChanged();
}

} // namespace brisklet
