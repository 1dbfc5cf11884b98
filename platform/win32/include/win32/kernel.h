/// Errors, modules and their resources, text conversion, time.
#pragma once

#include "win32/base.h"

#define ERROR_SUCCESS 0u
#define ERROR_INVALID_HANDLE 6u
#define ERROR_NOT_ENOUGH_MEMORY 8u
#define ERROR_INVALID_PARAMETER 87u
#define ERROR_INSUFFICIENT_BUFFER 122u
#define ERROR_NO_UNICODE_TRANSLATION 1113u
#define ERROR_INVALID_WINDOW_HANDLE 1400u
#define ERROR_INVALID_MENU_HANDLE 1401u
#define ERROR_CANNOT_FIND_WND_CLASS 1407u
#define ERROR_CLASS_ALREADY_EXISTS 1410u
#define ERROR_CLASS_DOES_NOT_EXIST 1411u
#define ERROR_CLASS_HAS_WINDOWS 1412u
#define ERROR_INVALID_INDEX 1413u
#define ERROR_TLW_WITH_WSCHILD 1406u
#define ERROR_RESOURCE_DATA_NOT_FOUND 1812u
#define ERROR_RESOURCE_TYPE_NOT_FOUND 1813u
#define ERROR_RESOURCE_NAME_NOT_FOUND 1814u

#define CP_ACP 0u
#define CP_UTF8 65001u
#define MB_PRECOMPOSED 0x1u
#define MB_ERR_INVALID_CHARS 0x8u

#define RT_CURSOR MAKEINTRESOURCEA(1)
#define RT_BITMAP MAKEINTRESOURCEA(2)
#define RT_ICON MAKEINTRESOURCEA(3)
#define RT_MENU MAKEINTRESOURCEA(4)
#define RT_GROUP_CURSOR MAKEINTRESOURCEA(12)

extern "C" {

TAVLON_PLATFORM_API DWORD GetLastError();
TAVLON_PLATFORM_API void SetLastError(DWORD dwError);

TAVLON_PLATFORM_API HMODULE GetModuleHandleA(LPCSTR pszName);  ///< Null: the host program.
TAVLON_PLATFORM_API DWORD GetModuleFileNameA(HMODULE hModule, LPSTR pszFile, DWORD cchFile);
TAVLON_PLATFORM_API HRSRC FindResourceA(HMODULE hModule, LPCSTR pszName, LPCSTR pszType);
TAVLON_PLATFORM_API HGLOBAL LoadResource(HMODULE hModule, HRSRC hResource);
TAVLON_PLATFORM_API LPVOID LockResource(HGLOBAL hData);
TAVLON_PLATFORM_API DWORD SizeofResource(HMODULE hModule, HRSRC hResource);

TAVLON_PLATFORM_API UINT GetACP();  ///< Always 936.
/// Code pages 936 (also as CP_ACP) and UTF-8. cb/cch -1: up to and with the terminator. 0 on failure.
TAVLON_PLATFORM_API int MultiByteToWideChar(UINT nCodePage, DWORD dwFlags, LPCSTR pszText, int cbText,
                                            LPWSTR pwszWide, int cchWide);
TAVLON_PLATFORM_API int WideCharToMultiByte(UINT nCodePage, DWORD dwFlags, LPCWSTR pwszWide, int cchWide,
                                            LPSTR pszText, int cbText, LPCSTR pszDefault,
                                            LPBOOL pbUsedDefault);
TAVLON_PLATFORM_API BOOL IsDBCSLeadByte(BYTE bTest);

TAVLON_PLATFORM_API int MulDiv(int nNumber, int nNumerator, int nDenominator);
TAVLON_PLATFORM_API DWORD GetTickCount();
TAVLON_PLATFORM_API void Sleep(DWORD dwMilliseconds);
TAVLON_PLATFORM_API DWORD GetCurrentThreadId();
TAVLON_PLATFORM_API HANDLE GetCurrentProcess();

}  // extern "C"

#define GetModuleHandle GetModuleHandleA
#define GetModuleFileName GetModuleFileNameA
#define FindResource FindResourceA
