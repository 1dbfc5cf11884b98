#pragma once

#include <functional>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

/// A wrapper's control; null when there is no memory for it.
template <class Control>
std::shared_ptr<Control> MakeControl() {
    try {
        return std::make_shared<Control>();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

/// The one rule of every wrapper method: without a control the result is nNone, or nothing; otherwise the
/// arguments go unchanged to the control. The pointer is taken by value, so that the control outlives a call
/// in which the host destroys the wrapper.
template <int nNone = 0, class Control, class Operation, class... Args>
auto Forward(std::shared_ptr<Control> pControl, Operation operation, Args&&... args) {
    using Result = std::invoke_result_t<Operation, Control&, Args...>;
    if constexpr (std::is_void_v<Result>) {
        if (pControl) std::invoke(operation, *pControl, std::forward<Args>(args)...);
    } else {
        return pControl ? std::invoke(operation, *pControl, std::forward<Args>(args)...) : Result{nNone};
    }
}
