// Errors, time, identities and the one arithmetic function of the kernel's interface.

#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>
#include <windows.h>

#include <cerrno>
#include <cstdlib>
#include <limits>

namespace {
thread_local DWORD t_dwLastError = ERROR_SUCCESS;
}

extern "C" {

DWORD GetLastError() { return t_dwLastError; }
void SetLastError(DWORD dwError) { t_dwLastError = dwError; }

int MulDiv(int nNumber, int nNumerator, int nDenominator) {
    if (nDenominator == 0) return -1;
    const std::int64_t product = static_cast<std::int64_t>(nNumber) * nNumerator;
    const std::int64_t divisor = std::abs(static_cast<std::int64_t>(nDenominator));
    const std::int64_t rounded = (std::abs(product) + divisor / 2) / divisor;
    // The system keeps the most negative result for itself: it answers -1 as for any overflow.
    if (rounded > std::numeric_limits<int>::max()) return -1;
    return static_cast<int>((product < 0) != (nDenominator < 0) ? -rounded : rounded);
}

DWORD GetTickCount() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<DWORD>(static_cast<std::uint64_t>(now.tv_sec) * 1000 +
                              static_cast<std::uint64_t>(now.tv_nsec) / 1000000);
}

void Sleep(DWORD dwMilliseconds) {
    timespec left{static_cast<time_t>(dwMilliseconds / 1000),
                  static_cast<long>(dwMilliseconds % 1000) * 1000000};
    while (nanosleep(&left, &left) != 0 && errno == EINTR) {
    }
}

DWORD GetCurrentThreadId() {
    static thread_local const auto id = static_cast<DWORD>(syscall(SYS_gettid));
    return id;
}

HANDLE GetCurrentProcess() { return reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1)); }

}  // extern "C"
