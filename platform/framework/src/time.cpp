#include "tavlon/framework/time.h"

#include <string>

namespace {

constexpr long long nLastMoment = 32535215999LL;  // 3000-12-31 23:59:59 UTC

bool HasFields(time_t time) { return time >= 0 && static_cast<long long>(time) <= nLastMoment; }

bool InRange(int n, int nFirst, int nLast) { return n >= nFirst && n <= nLast; }

bool PlausibleFields(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) {
    return InRange(nYear, 1970, 3000) && InRange(nMonth, 1, 12) && InRange(nDay, 1, 31) &&
           InRange(nHour, 0, 23) && InRange(nMin, 0, 59) && InRange(nSec, 0, 59);
}

tm LocalTm(const CTime& time) {
    tm fields = {};
    time.GetLocalTm(&fields);
    return fields;
}

}  // namespace

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDst) {
    if (!PlausibleFields(nYear, nMonth, nDay, nHour, nMin, nSec)) return;
    tm fields = {};
    fields.tm_year = nYear - 1900, fields.tm_mon = nMonth - 1, fields.tm_mday = nDay;
    fields.tm_hour = nHour, fields.tm_min = nMin, fields.tm_sec = nSec, fields.tm_isdst = nDst;
    const time_t time = std::mktime(&fields);
    if (HasFields(time) && fields.tm_mon == nMonth - 1) m_time = time;  // 31 April has become 1 May
}

CTime CTime::GetCurrentTime() { return CTime(std::time(nullptr)); }

BOOL CTime::GetLocalTm(struct tm* ptm) const {
    if (!ptm) return FALSE;
    const tm* pFields = HasFields(m_time) ? std::localtime(&m_time) : nullptr;
    *ptm = pFields ? *pFields : tm{};
    return pFields != nullptr;
}

// An absent moment must give 0 for the fields that are stored with an offset.
int CTime::GetYear() const {
    tm fields;
    return GetLocalTm(&fields) ? fields.tm_year + 1900 : 0;
}

int CTime::GetMonth() const {
    tm fields;
    return GetLocalTm(&fields) ? fields.tm_mon + 1 : 0;
}

int CTime::GetDayOfWeek() const {
    tm fields;
    return GetLocalTm(&fields) ? fields.tm_wday + 1 : 0;
}

int CTime::GetDay() const { return LocalTm(*this).tm_mday; }
int CTime::GetHour() const { return LocalTm(*this).tm_hour; }
int CTime::GetMinute() const { return LocalTm(*this).tm_min; }
int CTime::GetSecond() const { return LocalTm(*this).tm_sec; }

CString CTime::Format(LPCSTR pszFormat) const {
    tm fields;
    if (!pszFormat || !*pszFormat || !GetLocalTm(&fields)) return CString();
    char szText[256];
    return CString(szText, static_cast<int>(std::strftime(szText, sizeof szText, pszFormat, &fields)));
}
