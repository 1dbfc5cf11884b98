#pragma once

#include <tavlon/owned.h>

#include <functional>
#include <new>
#include <type_traits>
#include <utility>

/// A wrapper's control; none when there is no memory for it.
template <class Control>
Owned<Control> MakeControl() {
    try {
        return Owned<Control>(std::make_shared<Control>());
    } catch (const std::bad_alloc&) {
        return {};
    }
}

/// The one rule of every wrapper method: without a control the result is nNone, or nothing; otherwise the
/// arguments go unchanged to the control. The share is taken by value, so that the control outlives a call
/// in which the host destroys the wrapper.
template <int nNone = 0, class Control, class Operation, class... Args>
auto Forward(Owned<Control> control, Operation operation, Args&&... args) {
    using Result = std::invoke_result_t<Operation, Control&, Args...>;
    if constexpr (std::is_void_v<Result>) {
        if (control) std::invoke(operation, *control, std::forward<Args>(args)...);
    } else {
        return control ? std::invoke(operation, *control, std::forward<Args>(args)...) : Result{nNone};
    }
}
