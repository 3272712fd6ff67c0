#include "Models/EditGesture.h"

#include "Models/EditState.h"
#include "Support/MainThread.h"

#include <utility>

namespace brisklet {

EditGesture::EditGesture(std::shared_ptr<EditState> state) : m_state(std::move(state)) {
    verifyMainThread();
    m_state->history().beginGesture();
}

EditGesture::~EditGesture() {
    m_state->history().endGesture();
}

} // namespace brisklet
