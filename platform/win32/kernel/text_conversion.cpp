// MultiByteToWideChar, WideCharToMultiByte and the questions about the code page.

#include <windows.h>

#include <cstring>
#include <cwchar>

#include "kernel/code_page.h"

namespace tavlon::win32 {
namespace {

constexpr DWORD kErrorInvalidFlags = 1004;
constexpr DWORD kMultiByteFlags = 0xf;  // precomposed, composite, glyph characters, refuse invalid
constexpr DWORD kWideFlags = 0x6f0;     // the documented flags of the other direction
constexpr DWORD kRefuseInvalidWide = 0x80;

int Fail(DWORD dwError) {
    SetLastError(dwError);
    return 0;
}

bool IsKnown(UINT nCodePage) {
    return nCodePage == CP_ACP || nCodePage == kCodePage936 || nCodePage == CP_UTF8;
}

/// Counts what is stored, and stores nothing in the query form (capacity 0).
template <class Unit>
class Output {
public:
    Output(Unit* units, int capacity) : m_units(units), m_capacity(capacity) {}

    /// False when a whole character of `count` units no longer fits.
    template <class Source>
    bool Put(const Source* source, int count) {
        if (m_capacity != 0 && count > m_capacity - m_count) return false;
        for (int i = 0; m_capacity != 0 && i < count; ++i)
            m_units[m_count + i] = static_cast<Unit>(source[i]);
        m_count += count;
        return true;
    }
    int Count() const { return m_count; }

private:
    Unit* m_units;
    int m_capacity;
    int m_count = 0;
};

/// The character of the replacement text given by the caller, or '?'.
std::string_view DefaultText(LPCSTR pszDefault) { return pszDefault && *pszDefault ? pszDefault : "?"; }

}  // namespace
}  // namespace tavlon::win32

using namespace tavlon::win32;

extern "C" {

UINT GetACP() { return kCodePage936; }

BOOL IsDBCSLeadByte(BYTE bTest) { return IsLeadByte936(bTest); }

int MultiByteToWideChar(UINT nCodePage, DWORD dwFlags, LPCSTR pszText, int cbText, LPWSTR pwszWide,
                        int cchWide) {
    if (!pszText || cbText == 0 || cchWide < 0 || (cchWide > 0 && !pwszWide) || !IsKnown(nCodePage))
        return Fail(ERROR_INVALID_PARAMETER);
    if (dwFlags & ~kMultiByteFlags) return Fail(kErrorInvalidFlags);
    std::string_view text(pszText, cbText < 0 ? std::strlen(pszText) + 1 : static_cast<std::size_t>(cbText));
    Output<WCHAR> out(pwszWide, cchWide);
    while (!text.empty()) {
        const DecodedCharacter next = nCodePage == CP_UTF8 ? DecodeUtf8(text) : Decode936(text);
        if (!next.valid && (dwFlags & MB_ERR_INVALID_CHARS)) return Fail(ERROR_NO_UNICODE_TRANSLATION);
        if (!out.Put(&next.character, 1)) return Fail(ERROR_INSUFFICIENT_BUFFER);
        text.remove_prefix(static_cast<std::size_t>(next.bytes));
    }
    return out.Count();
}

int WideCharToMultiByte(UINT nCodePage, DWORD dwFlags, LPCWSTR pwszWide, int cchWide, LPSTR pszText,
                        int cbText, LPCSTR pszDefault, LPBOOL pbUsedDefault) {
    if (!pwszWide || cchWide == 0 || cbText < 0 || (cbText > 0 && !pszText) || !IsKnown(nCodePage))
        return Fail(ERROR_INVALID_PARAMETER);
    if (dwFlags & ~kWideFlags) return Fail(kErrorInvalidFlags);
    const std::size_t count = cchWide < 0 ? std::wcslen(pwszWide) + 1 : static_cast<std::size_t>(cchWide);
    const std::string_view standIn = DefaultText(pszDefault);
    Output<char> out(pszText, cbText);
    BOOL bUsedDefault = FALSE;
    for (std::size_t i = 0; i < count; ++i) {
        const auto c = static_cast<char32_t>(pwszWide[i]);
        const EncodedCharacter bytes = nCodePage == CP_UTF8 ? EncodeUtf8(c) : Encode936(c);
        if (nCodePage == CP_UTF8 && c >= 0xd800 && c <= 0xdfff && (dwFlags & kRefuseInvalidWide))
            return Fail(ERROR_NO_UNICODE_TRANSLATION);
        bUsedDefault |= bytes.count == 0;
        const bool fits = bytes.count ? out.Put(bytes.bytes, bytes.count)
                                      : out.Put(standIn.data(), static_cast<int>(standIn.size()));
        if (!fits) return Fail(ERROR_INSUFFICIENT_BUFFER);
    }
    if (pbUsedDefault) *pbUsedDefault = bUsedDefault;
    return out.Count();
}

}  // extern "C"
