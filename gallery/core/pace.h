/// How fast a trading day is replayed.
#pragma once

#include <windows.h>

#include <algorithm>

namespace gallery {

/// Turns the time that has passed into minutes of trading.
class Pace {
public:
    static constexpr int kMost = 240, kUsual = 4;  // minutes of trading a second; the least is 1

    explicit Pace(int nSpeed) : m_nSpeed(nSpeed) {}

    void Start(DWORD dwNow) { m_dwLast = dwNow, m_nThousandths = 0; }  ///< dwNow: GetTickCount().
    /// Minutes that fell due since Start or the last call. More than a second in between counts as one, so
    /// that a computer that slept does not skip the day.
    int Due(DWORD dwNow) {
        const DWORD dwPassed = dwNow - m_dwLast;  // right also where the count starts again from 0
        m_dwLast = dwNow;
        m_nThousandths += static_cast<int>(std::min(dwPassed, kSecond)) * m_nSpeed;
        const int nDue = m_nThousandths / static_cast<int>(kSecond);
        m_nThousandths %= static_cast<int>(kSecond);
        return nDue;
    }

private:
    static constexpr DWORD kSecond = 1000;  // milliseconds

    int m_nSpeed;
    DWORD m_dwLast = 0;
    int m_nThousandths = 0;  // of a minute, due but not whole yet
};

}  // namespace gallery
