#pragma once

#include <windows.h>

#include <compare>
#include <ctime>

#include "export.h"
#include "text.h"

// An old macro of the system's header would take the place of the member of this name.
#undef GetCurrentTime

/// A moment, in whole seconds since 1970-01-01 00:00:00 UTC. The fields are local time. Moments before 1970
/// or after the year 3000 have no fields: every getter gives 0 for them.
class TAVLON_FRAMEWORK_API CTime {
public:
    CTime() = default;  ///< 1970-01-01 00:00:00 UTC
    CTime(time_t time) : m_time(time) {}
    /// Local time; years 1970 to 3000, and fields that name a moment, else the moment 0.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDst = -1);

    static CTime GetCurrentTime();

    time_t GetTime() const { return m_time; }
    BOOL GetLocalTm(struct tm* ptm) const;  ///< FALSE, and all zero, when the moment has no fields.
    int GetYear() const;
    int GetMonth() const;  ///< 1 to 12
    int GetDay() const;    ///< 1 to 31
    int GetHour() const;
    int GetMinute() const;
    int GetSecond() const;
    int GetDayOfWeek() const;  ///< 1 = Sunday

    CString Format(LPCSTR pszFormat) const;  ///< As strftime; empty when the moment has no fields.

    auto operator<=>(const CTime&) const = default;

private:
    time_t m_time = 0;
};
