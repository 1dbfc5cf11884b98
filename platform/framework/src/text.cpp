#include "tavlon/framework/text.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

LPCSTR OrEmpty(LPCSTR psz) { return psz ? psz : ""; }
size_t Clamped(int n, size_t nMost) { return n < 0 ? 0 : std::min(static_cast<size_t>(n), nMost); }
int Position(size_t n) { return n == std::string::npos ? -1 : static_cast<int>(n); }
int Sign(int n) { return (n > 0) - (n < 0); }

char LowerAscii(char ch) { return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch; }
char UpperAscii(char ch) { return ch >= 'a' && ch <= 'z' ? static_cast<char>(ch - 'a' + 'A') : ch; }

/// Changes the single-byte characters; the second byte of a two-byte character may look like a letter and is
/// left.
void MapAscii(std::string& str, char (*pfnMap)(char)) {
    for (size_t i = 0; i < str.size(); ++i) {
        if (static_cast<unsigned char>(str[i]) >= 0x81)
            ++i;
        else
            str[i] = pfnMap(str[i]);
    }
}

/// False when the arguments do not fit the format.
bool Formatted(std::string& strOut, LPCSTR pszFormat, va_list args) {
    va_list argsAgain;
    va_copy(argsAgain, args);
    const int nLength = std::vsnprintf(nullptr, 0, pszFormat, args);
    if (nLength >= 0) {
        strOut.resize(static_cast<size_t>(nLength));
        std::vsnprintf(strOut.data(), strOut.size() + 1, pszFormat, argsAgain);
    }
    va_end(argsAgain);
    return nLength >= 0;
}

}  // namespace

CString::CString(LPCSTR psz) : m_str(OrEmpty(psz)) {}

CString::CString(LPCSTR pch, int nLength) {
    if (pch && nLength > 0) m_str.assign(pch, strnlen(pch, static_cast<size_t>(nLength)));
}

CString::CString(char ch, int nRepeat) : m_str(static_cast<size_t>(std::max(nRepeat, 0)), ch) {}

CString& CString::operator=(LPCSTR psz) { return m_str.assign(std::string(OrEmpty(psz))), *this; }

char CString::GetAt(int nIndex) const { return nIndex >= 0 && nIndex < GetLength() ? m_str[nIndex] : '\0'; }

void CString::SetAt(int nIndex, char ch) {
    if (nIndex >= 0 && nIndex < GetLength()) m_str[nIndex] = ch;
}

CString& CString::operator+=(const CString& str) { return m_str += str.m_str, *this; }
CString& CString::operator+=(LPCSTR psz) { return m_str += OrEmpty(psz), *this; }
CString& CString::operator+=(char ch) { return m_str += ch, *this; }

void CString::FormatV(LPCSTR pszFormat, va_list args) {
    std::string strNew;  // apart, since an argument may be this text
    if (Formatted(strNew, OrEmpty(pszFormat), args)) m_str = std::move(strNew);
}

void CString::Format(LPCSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

void CString::AppendFormat(LPCSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    std::string strNew;
    if (Formatted(strNew, OrEmpty(pszFormat), args)) m_str += strNew;
    va_end(args);
}

CString CString::Left(int nCount) const { return Mid(0, nCount); }

CString CString::Right(int nCount) const {
    return Mid(GetLength() - static_cast<int>(Clamped(nCount, m_str.size())));
}

CString CString::Mid(int nFirst) const { return Mid(nFirst, GetLength()); }

CString CString::Mid(int nFirst, int nCount) const {
    CString strPart;
    const size_t nStart = Clamped(nFirst, m_str.size());
    strPart.m_str = m_str.substr(nStart, Clamped(nCount, m_str.size() - nStart));
    return strPart;
}

int CString::Find(char ch, int nStart) const {
    return Position(m_str.find(ch, Clamped(nStart, m_str.size())));
}

int CString::Find(LPCSTR pszSub, int nStart) const {
    return Position(m_str.find(OrEmpty(pszSub), Clamped(nStart, m_str.size())));
}

int CString::ReverseFind(char ch) const { return Position(m_str.rfind(ch)); }

int CString::Replace(LPCSTR pszOld, LPCSTR pszNew) {
    const std::string strOld(OrEmpty(pszOld)), strNew(OrEmpty(pszNew));
    if (strOld.empty()) return 0;
    int nReplaced = 0;
    for (size_t n = 0; (n = m_str.find(strOld, n)) != std::string::npos; n += strNew.size(), ++nReplaced)
        m_str.replace(n, strOld.size(), strNew);
    return nReplaced;
}

int CString::Delete(int nIndex, int nCount) {
    const size_t nStart = Clamped(nIndex, m_str.size());
    m_str.erase(nStart, Clamped(nCount, m_str.size() - nStart));
    return GetLength();
}

CString& CString::Trim() {
    constexpr LPCSTR pszBlanks = " \t\r\n\v\f";
    const size_t nFirst = m_str.find_first_not_of(pszBlanks);
    if (nFirst == std::string::npos) return m_str.clear(), *this;
    m_str = m_str.substr(nFirst, m_str.find_last_not_of(pszBlanks) - nFirst + 1);
    return *this;
}

CString& CString::MakeUpper() { return MapAscii(m_str, UpperAscii), *this; }
CString& CString::MakeLower() { return MapAscii(m_str, LowerAscii), *this; }

int CString::Compare(LPCSTR psz) const { return Sign(std::strcmp(m_str.c_str(), OrEmpty(psz))); }

int CString::CompareNoCase(LPCSTR psz) const {
    CString strLeft(*this), strRight(psz);
    return strLeft.MakeLower().Compare(strRight.MakeLower());
}

LPSTR CString::GetBuffer(int nMinLength) {
    if (nMinLength > GetLength()) m_str.resize(static_cast<size_t>(nMinLength));
    return m_str.data();
}

void CString::ReleaseBuffer(int nNewLength) {
    const size_t nLength =
        nNewLength < 0 ? strnlen(m_str.data(), m_str.size()) : Clamped(nNewLength, m_str.size());
    m_str.resize(nLength);
}

CString operator+(const CString& strLeft, const CString& strRight) { return CString(strLeft) += strRight; }
CString operator+(const CString& strLeft, LPCSTR pszRight) { return CString(strLeft) += pszRight; }
CString operator+(LPCSTR pszLeft, const CString& strRight) { return CString(pszLeft) += strRight; }
CString operator+(const CString& strLeft, char chRight) { return CString(strLeft) += chRight; }
