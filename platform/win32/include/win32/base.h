/// Types and macros that every part of the layer shares. Integer types have the widths they have on Windows.
#pragma once

#include <cstddef>
#include <cstdint>

#if defined(TAVLON_PLATFORM_BUILD) || defined(__GNUC__)
#define TAVLON_PLATFORM_API __attribute__((visibility("default")))
#else
#define TAVLON_PLATFORM_API
#endif

#define WINAPI
#define CALLBACK
#define APIENTRY
#define CONST const

using BOOL = int;
using BYTE = unsigned char;
using WORD = unsigned short;
using DWORD = unsigned int;
using LONG = int;
using ULONG = unsigned int;
using INT = int;
using UINT = unsigned int;
using SHORT = short;
using USHORT = unsigned short;
using CHAR = char;
using WCHAR = wchar_t;  ///< 32 bits wide here; code page 936 needs one unit a character either way.
using LONGLONG = std::int64_t;
using ULONGLONG = std::uint64_t;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using ATOM = WORD;
using COLORREF = DWORD;  ///< 0x00BBGGRR
using LANGID = WORD;
using VOID = void;

using LPVOID = void*;
using LPCVOID = const void*;
using LPBYTE = BYTE*;
using LPSTR = char*;
using LPCSTR = const char*;
using LPTSTR = char*;
using LPCTSTR = const char*;
using LPWSTR = WCHAR*;
using LPCWSTR = const WCHAR*;
using LPBOOL = BOOL*;
using LPDWORD = DWORD*;
using LPINT = int*;
using TCHAR = char;
#define TEXT(text) text
#define _T(text) text

/// Handles are opaque: an index and a generation, never an address. A stale or invented one is refused.
#define TAVLON_DECLARE_HANDLE(name) \
    struct name##__;                \
    using name = name##__*

using HANDLE = void*;
using HGDIOBJ = void*;
TAVLON_DECLARE_HANDLE(HWND);
TAVLON_DECLARE_HANDLE(HDC);
TAVLON_DECLARE_HANDLE(HBITMAP);
TAVLON_DECLARE_HANDLE(HBRUSH);
TAVLON_DECLARE_HANDLE(HPEN);
TAVLON_DECLARE_HANDLE(HFONT);
TAVLON_DECLARE_HANDLE(HRGN);
TAVLON_DECLARE_HANDLE(HPALETTE);
TAVLON_DECLARE_HANDLE(HMENU);
TAVLON_DECLARE_HANDLE(HICON);
TAVLON_DECLARE_HANDLE(HINSTANCE);
TAVLON_DECLARE_HANDLE(HRSRC);
TAVLON_DECLARE_HANDLE(HHOOK);
using HCURSOR = HICON;
using HMODULE = HINSTANCE;
using HGLOBAL = HANDLE;

#ifndef FALSE
#define FALSE 0
#endif
#ifndef TRUE
#define TRUE 1
#endif

struct tagPOINT {
    LONG x, y;
};
struct tagSIZE {
    LONG cx, cy;
};
struct tagRECT {
    LONG left, top, right, bottom;
};
using POINT = tagPOINT;
using LPPOINT = POINT*;
using SIZE = tagSIZE;
using LPSIZE = SIZE*;
using RECT = tagRECT;
using LPRECT = RECT*;
using LPCRECT = const RECT*;

#define MAX_PATH 260
#define LOWORD(value) (static_cast<WORD>(static_cast<DWORD_PTR>(value) & 0xffff))
#define HIWORD(value) (static_cast<WORD>((static_cast<DWORD_PTR>(value) >> 16) & 0xffff))
#define LOBYTE(value) (static_cast<BYTE>(static_cast<DWORD_PTR>(value) & 0xff))
#define HIBYTE(value) (static_cast<BYTE>((static_cast<DWORD_PTR>(value) >> 8) & 0xff))
#define MAKEWORD(low, high) \
    (static_cast<WORD>((static_cast<WORD>(low) & 0xff) | ((static_cast<WORD>(high) & 0xff) << 8)))
#define MAKELONG(low, high)                                                                 \
    (static_cast<LONG>(static_cast<DWORD>(static_cast<WORD>(static_cast<DWORD_PTR>(low))) | \
                       (static_cast<DWORD>(static_cast<WORD>(static_cast<DWORD_PTR>(high))) << 16)))
#define MAKELPARAM(low, high) (static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(low, high))))
#define MAKEWPARAM(low, high) (static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(low, high))))
#define MAKELRESULT(low, high) (static_cast<LRESULT>(static_cast<DWORD>(MAKELONG(low, high))))

#define MAKEINTRESOURCEA(id) (reinterpret_cast<LPSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(id))))
#define MAKEINTRESOURCE MAKEINTRESOURCEA
#define IS_INTRESOURCE(name) ((reinterpret_cast<ULONG_PTR>(name) >> 16) == 0)
