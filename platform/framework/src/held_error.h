#pragma once

/// An exception must not pass through the system's own calls, which send messages in their middle (WM_SIZE,
/// WM_PAINT, WM_DESTROY ...). What the handler of such a message throws is held, and raised when the system
/// has returned: by the member of CWnd that made the call, else by the message loop.

/// In a catch clause: keeps the exception; one more while one is held is dropped.
void HoldCurrentError();
bool IsErrorHeld();
/// Raises what is held, if anything.
void RaiseHeldError();

/// Runs one call of the system; afterwards raises what it left behind.
template <class Call>
auto WithHeldErrors(Call call) {
    const bool bOlder = IsErrorHeld();
    const auto result = call();
    if (!bOlder) RaiseHeldError();
    return result;
}
