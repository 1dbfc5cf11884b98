#include "my_string.h"

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <new>

CMyString::CMyString(const char* pszText) {
    const int nWide = pszText != nullptr ? ::MultiByteToWideChar(CP_ACP, 0, pszText, -1, nullptr, 0) : 0;
    if (nWide <= 1) return;  // with its end
    m_pWideStr.reset(new (std::nothrow) wchar_t[nWide]);
    if (m_pWideStr == nullptr) return;
    const int nWritten = ::MultiByteToWideChar(CP_ACP, 0, pszText, -1, m_pWideStr.get(), nWide);
    m_nLength = std::max(nWritten - 1, 0);
}

const char* CMyString::GetAt(int i) {
    if (i < 0 || i >= m_nLength) return nullptr;
    std::memset(m_szChar, 0, sizeof m_szChar);
    const wchar_t szOne[] = {m_pWideStr[i], L'\0'};
    const int nBytes =
        ::WideCharToMultiByte(CP_ACP, 0, szOne, 2, m_szChar, sizeof m_szChar - 1, nullptr, nullptr);
    if (nBytes <= 0) return nullptr;
    m_szChar[nBytes] = '\0';
    return m_szChar;
}
