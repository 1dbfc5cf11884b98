#pragma once

#include <memory>

/// A copy of one caption that can be asked for its characters, whatever number of bytes each has.
class CMyString {
public:
    explicit CMyString(const char* pszText);  ///< Null: empty. Empty too when there is no memory for it.
    CMyString(const CMyString&) = delete;
    CMyString& operator=(const CMyString&) = delete;
    virtual ~CMyString() = default;

    int GetLength() const { return m_nLength; }
    /// The character as a text, until the next call; null when there is none or it cannot be converted.
    const char* GetAt(int i);

private:
    std::unique_ptr<wchar_t[]> m_pWideStr;
    int m_nLength = 0;  ///< Characters, without the end.
    char m_szChar[10]{};
};
