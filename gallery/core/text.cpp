#include "text.h"

#include <windows.h>

#include <limits>

namespace gallery {

namespace {

constexpr UINT kCodePageGbk = 936;

std::optional<std::wstring> Widen(UINT nCodePage, DWORD dwFlags, std::string_view text) {
    if (text.empty()) return std::wstring();
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) return std::nullopt;
    const int cbText = static_cast<int>(text.size());
    const int cchWide = MultiByteToWideChar(nCodePage, dwFlags, text.data(), cbText, nullptr, 0);
    if (cchWide <= 0) return std::nullopt;
    std::wstring wide(static_cast<std::size_t>(cchWide), L'\0');
    if (MultiByteToWideChar(nCodePage, dwFlags, text.data(), cbText, wide.data(), cchWide) != cchWide)
        return std::nullopt;
    return wide;
}

bool IsLeadByte(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x81 && byte <= 0xFE;
}

}  // namespace

std::optional<std::string> GbkFromUtf8(std::string_view utf8) {
    const std::optional<std::wstring> wide = Widen(CP_UTF8, MB_ERR_INVALID_CHARS, utf8);
    if (!wide) return std::nullopt;
    if (wide->empty()) return std::string();
    const int cchWide = static_cast<int>(wide->size());
    const int cbText =
        WideCharToMultiByte(kCodePageGbk, 0, wide->data(), cchWide, nullptr, 0, nullptr, nullptr);
    if (cbText <= 0) return std::nullopt;
    std::string gbk(static_cast<std::size_t>(cbText), '\0');
    WideCharToMultiByte(kCodePageGbk, 0, wide->data(), cchWide, gbk.data(), cbText, nullptr, nullptr);
    return gbk;
}

std::filesystem::path PathFromGbk(std::string_view gbk) {
    const std::optional<std::wstring> wide = Widen(kCodePageGbk, 0, gbk);
    return wide ? std::filesystem::path(*wide) : std::filesystem::path(std::string(gbk));
}

std::string_view CutWhole(std::string_view gbk, std::size_t nMax) {
    std::size_t nKept = 0;
    while (nKept < gbk.size()) {
        const std::size_t nNext = nKept + (IsLeadByte(gbk[nKept]) ? 2 : 1);
        if (nNext > nMax || nNext > gbk.size()) break;
        nKept = nNext;
    }
    return gbk.substr(0, nKept);
}

}  // namespace gallery
