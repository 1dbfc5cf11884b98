/// How far the reading of a file has come, for whoever waits for it.
#pragma once

#include <windows.h>

#include <cstddef>
#include <functional>
#include <string>

namespace gallery {

/// While it lives, what the readers report goes to the given function, at most every 50 ms, once reading has
/// taken half a second. Only the newest one alive is told; with none, reports go nowhere. They come from the
/// thread that made it.
class LoadProgress {
public:
    using Tell = std::function<void(const std::string& strFile, int nPercent)>;  ///< 0 to 100, of the file.
    using Clock = std::function<DWORD()>;                                        ///< Milliseconds.

    explicit LoadProgress(Tell tell, Clock clock = ::GetTickCount);
    ~LoadProgress();
    LoadProgress(const LoadProgress&) = delete;
    LoadProgress& operator=(const LoadProgress&) = delete;

    /// For readers: so many of all the steps that the file takes are done.
    static void Report(const std::string& strFile, std::size_t nDone, std::size_t nAll);

private:
    void TellInTime(const std::string& strFile, std::size_t nDone, std::size_t nAll);

    LoadProgress* m_pOuter;
    Tell m_tell;
    Clock m_clock;
    DWORD m_dwSince;   ///< Start of the time to wait.
    DWORD m_dwToWait;  ///< Milliseconds.
};

}  // namespace gallery
