#pragma once

#include <windows.h>

#include <compare>
#include <cstdarg>
#include <string>

#include "export.h"

/// Text as bytes of code page 936. Positions and lengths count bytes; a position or length outside the text
/// is moved to its nearest end, a null pointer is the empty text. Cutting may split a two-byte character.
class TAVLON_FRAMEWORK_API CString {
public:
    CString() = default;
    CString(LPCSTR psz);
    CString(LPCSTR pch, int nLength);  ///< At most nLength bytes, fewer when the text ends before.
    CString(char ch, int nRepeat = 1);

    CString& operator=(LPCSTR psz);
    operator LPCSTR() const { return m_str.c_str(); }
    LPCSTR GetString() const { return m_str.c_str(); }
    int GetLength() const { return static_cast<int>(m_str.size()); }
    BOOL IsEmpty() const { return m_str.empty(); }
    void Empty() { m_str.clear(); }

    char GetAt(int nIndex) const;     ///< 0 outside the text.
    void SetAt(int nIndex, char ch);  ///< Ignored outside the text.
    char operator[](int nIndex) const { return GetAt(nIndex); }

    CString& operator+=(const CString& str);
    CString& operator+=(LPCSTR psz);
    CString& operator+=(char ch);

    /// As printf; a null format gives the empty text, one that cannot be formatted leaves the text as it was.
    void Format(LPCSTR pszFormat, ...) __attribute__((format(printf, 2, 3)));
    void AppendFormat(LPCSTR pszFormat, ...) __attribute__((format(printf, 2, 3)));
    void FormatV(LPCSTR pszFormat, va_list args) __attribute__((format(printf, 2, 0)));

    CString Left(int nCount) const;
    CString Right(int nCount) const;
    CString Mid(int nFirst) const;
    CString Mid(int nFirst, int nCount) const;

    int Find(char ch, int nStart = 0) const;  ///< Byte position, or -1.
    int Find(LPCSTR pszSub, int nStart = 0) const;
    int ReverseFind(char ch) const;
    int Replace(LPCSTR pszOld, LPCSTR pszNew);  ///< Number of replacements.
    int Delete(int nIndex, int nCount = 1);     ///< Length that is left.
    CString& Trim();                            ///< Removes blanks at both ends.
    CString& MakeUpper();                       ///< ASCII letters only, never half of a two-byte character.
    CString& MakeLower();

    int Compare(LPCSTR psz) const;        ///< -1, 0 or 1, by bytes.
    int CompareNoCase(LPCSTR psz) const;  ///< The same, without regard to the case of ASCII letters.

    /// Room for at least nMinLength bytes (besides the terminator), until ReleaseBuffer.
    LPSTR GetBuffer(int nMinLength = 0);
    /// Ends the direct writing; -1 takes the bytes up to the first zero.
    void ReleaseBuffer(int nNewLength = -1);

private:
    std::string m_str;
};

TAVLON_FRAMEWORK_API CString operator+(const CString& strLeft, const CString& strRight);
TAVLON_FRAMEWORK_API CString operator+(const CString& strLeft, LPCSTR pszRight);
TAVLON_FRAMEWORK_API CString operator+(LPCSTR pszLeft, const CString& strRight);
TAVLON_FRAMEWORK_API CString operator+(const CString& strLeft, char chRight);

inline bool operator==(const CString& strLeft, const CString& strRight) {
    return strLeft.Compare(strRight) == 0;
}
inline bool operator==(const CString& strLeft, LPCSTR pszRight) { return strLeft.Compare(pszRight) == 0; }
inline std::strong_ordering operator<=>(const CString& strLeft, const CString& strRight) {
    return strLeft.Compare(strRight) <=> 0;
}
inline std::strong_ordering operator<=>(const CString& strLeft, LPCSTR pszRight) {
    return strLeft.Compare(pszRight) <=> 0;
}
