#include "thread_state.h"

#include <utility>

namespace {

thread_local ThreadState* t_pState = nullptr;

struct ThreadEnd {
    bool bArmed = false;
    ~ThreadEnd() { delete std::exchange(t_pState, nullptr); }
};
thread_local ThreadEnd t_end;

void MakeThreadState() {
    t_pState = new ThreadState;
    t_end.bArmed = true;  // the first use arranges for the destructor
}

}  // namespace

ThreadState& GetThreadState() {
    if (!t_pState) [[unlikely]]
        MakeThreadState();
    return *t_pState;
}

ThreadState* FindThreadState() { return t_pState; }

void ThreadState::FreeTemporaries() {
    std::apply([](auto&... maps) { (maps.Free(), ...); }, temporaries);
}

size_t ThreadState::TemporaryCount() const {
    return std::apply([](const auto&... maps) { return (maps.Size() + ...); }, temporaries);
}
