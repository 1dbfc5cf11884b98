#include "held_error.h"

#include <exception>
#include <utility>

#include "tavlon/framework/exceptions.h"
#include "thread_state.h"

void HoldCurrentError() {
    ThreadState& state = GetThreadState();
    if (!state.heldError) {
        state.heldError = std::current_exception();
        return;
    }
    try {
        throw;
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
    }
}

bool IsErrorHeld() { return GetThreadState().heldError != nullptr; }

void RaiseHeldError() {
    if (IsErrorHeld()) std::rethrow_exception(std::exchange(GetThreadState().heldError, nullptr));
}
