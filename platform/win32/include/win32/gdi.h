/// Device contexts, drawing objects, regions, raster operations and text.
#pragma once

#include "win32/base.h"

#define RGB(r, g, b)                                                                                    \
    (static_cast<COLORREF>(static_cast<BYTE>(r)) | (static_cast<COLORREF>(static_cast<BYTE>(g)) << 8) | \
     (static_cast<COLORREF>(static_cast<BYTE>(b)) << 16))
#define GetRValue(clr) (static_cast<BYTE>((clr)&0xff))
#define GetGValue(clr) (static_cast<BYTE>(((clr) >> 8) & 0xff))
#define GetBValue(clr) (static_cast<BYTE>(((clr) >> 16) & 0xff))
#define CLR_INVALID 0xffffffffu

#define R2_BLACK 1
#define R2_NOTMERGEPEN 2
#define R2_MASKNOTPEN 3
#define R2_NOTCOPYPEN 4
#define R2_MASKPENNOT 5
#define R2_NOT 6
#define R2_XORPEN 7
#define R2_NOTMASKPEN 8
#define R2_MASKPEN 9
#define R2_NOTXORPEN 10
#define R2_NOP 11
#define R2_MERGENOTPEN 12
#define R2_COPYPEN 13
#define R2_MERGEPENNOT 14
#define R2_MERGEPEN 15
#define R2_WHITE 16

#define SRCCOPY 0x00CC0020u
#define SRCPAINT 0x00EE0086u
#define SRCAND 0x008800C6u
#define SRCINVERT 0x00660046u
#define SRCERASE 0x00440328u
#define NOTSRCCOPY 0x00330008u
#define NOTSRCERASE 0x001100A6u
#define MERGEPAINT 0x00BB0226u
#define PATCOPY 0x00F00021u
#define PATINVERT 0x005A0049u
#define DSTINVERT 0x00550009u
#define BLACKNESS 0x00000042u
#define WHITENESS 0x00FF0062u

#define ERROR 0
#define NULLREGION 1
#define SIMPLEREGION 2
#define COMPLEXREGION 3
#define RGN_ERROR ERROR
#define RGN_AND 1
#define RGN_OR 2
#define RGN_XOR 3
#define RGN_DIFF 4
#define RGN_COPY 5

#define ALTERNATE 1
#define WINDING 2

#define TRANSPARENT 1
#define OPAQUE 2

#define TA_NOUPDATECP 0u
#define TA_UPDATECP 1u
#define TA_LEFT 0u
#define TA_RIGHT 2u
#define TA_CENTER 6u
#define TA_TOP 0u
#define TA_BOTTOM 8u
#define TA_BASELINE 24u

#define MM_TEXT 1
#define GDI_ERROR 0xffffffffu
#define HGDI_ERROR (reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(-1)))

#define WHITE_BRUSH 0
#define LTGRAY_BRUSH 1
#define GRAY_BRUSH 2
#define DKGRAY_BRUSH 3
#define BLACK_BRUSH 4
#define NULL_BRUSH 5
#define HOLLOW_BRUSH NULL_BRUSH
#define WHITE_PEN 6
#define BLACK_PEN 7
#define NULL_PEN 8
#define OEM_FIXED_FONT 10
#define ANSI_FIXED_FONT 11
#define ANSI_VAR_FONT 12
#define SYSTEM_FONT 13
#define DEVICE_DEFAULT_FONT 14
#define DEFAULT_PALETTE 15
#define SYSTEM_FIXED_FONT 16
#define DEFAULT_GUI_FONT 17

#define PS_SOLID 0
#define PS_DASH 1
#define PS_DOT 2
#define PS_DASHDOT 3
#define PS_DASHDOTDOT 4
#define PS_NULL 5
#define PS_INSIDEFRAME 6
#define BS_SOLID 0u
#define BS_NULL 1u
#define BS_HOLLOW BS_NULL

#define OBJ_PEN 1u
#define OBJ_BRUSH 2u
#define OBJ_DC 3u
#define OBJ_PAL 5u
#define OBJ_FONT 6u
#define OBJ_BITMAP 7u
#define OBJ_REGION 8u
#define OBJ_MEMDC 10u

#define FW_DONTCARE 0
#define FW_NORMAL 400
#define FW_BOLD 700
#define ANSI_CHARSET 0
#define DEFAULT_CHARSET 1
#define SYMBOL_CHARSET 2
#define GB2312_CHARSET 134
#define OUT_DEFAULT_PRECIS 0
#define CLIP_DEFAULT_PRECIS 0
#define DEFAULT_QUALITY 0
#define DRAFT_QUALITY 1
#define PROOF_QUALITY 2
#define NONANTIALIASED_QUALITY 3
#define ANTIALIASED_QUALITY 4
#define CLEARTYPE_QUALITY 5
#define DEFAULT_PITCH 0
#define FIXED_PITCH 1
#define VARIABLE_PITCH 2
#define FF_DONTCARE 0
#define LF_FACESIZE 32
#define TMPF_FIXED_PITCH 0x01
#define TMPF_VECTOR 0x02
#define TMPF_TRUETYPE 0x04

#define ETO_OPAQUE 0x2u
#define ETO_CLIPPED 0x4u

#define DRIVERVERSION 0
#define TECHNOLOGY 2
#define HORZSIZE 4
#define VERTSIZE 6
#define HORZRES 8
#define VERTRES 10
#define BITSPIXEL 12
#define PLANES 14
#define NUMCOLORS 24
#define LOGPIXELSX 88
#define LOGPIXELSY 90
#define DT_RASDISPLAY 1

#define BLACKONWHITE 1
#define WHITEONBLACK 2
#define COLORONCOLOR 3
#define HALFTONE 4

#define BI_RGB 0u
#define DIB_RGB_COLORS 0u
#define CBM_INIT 4u

struct tagLOGPEN {
    UINT lopnStyle;
    POINT lopnWidth;
    COLORREF lopnColor;
};
using LOGPEN = tagLOGPEN;
struct tagLOGBRUSH {
    UINT lbStyle;
    COLORREF lbColor;
    ULONG_PTR lbHatch;
};
using LOGBRUSH = tagLOGBRUSH;
struct tagLOGFONTA {
    LONG lfHeight, lfWidth, lfEscapement, lfOrientation, lfWeight;
    BYTE lfItalic, lfUnderline, lfStrikeOut, lfCharSet;
    BYTE lfOutPrecision, lfClipPrecision, lfQuality, lfPitchAndFamily;
    CHAR lfFaceName[LF_FACESIZE];
};
using LOGFONTA = tagLOGFONTA;
using LOGFONT = LOGFONTA;
struct tagTEXTMETRICA {
    LONG tmHeight, tmAscent, tmDescent, tmInternalLeading, tmExternalLeading;
    LONG tmAveCharWidth, tmMaxCharWidth, tmWeight, tmOverhang, tmDigitizedAspectX, tmDigitizedAspectY;
    BYTE tmFirstChar, tmLastChar, tmDefaultChar, tmBreakChar;
    BYTE tmItalic, tmUnderlined, tmStruckOut, tmPitchAndFamily, tmCharSet;
};
using TEXTMETRICA = tagTEXTMETRICA;
using TEXTMETRIC = TEXTMETRICA;
using LPTEXTMETRICA = TEXTMETRICA*;
struct tagBITMAP {
    LONG bmType, bmWidth, bmHeight, bmWidthBytes;
    WORD bmPlanes, bmBitsPixel;
    LPVOID bmBits;  ///< Only a DIB section has bits to point at.
};
using BITMAP = tagBITMAP;
struct tagBITMAPINFOHEADER {
    DWORD biSize;
    LONG biWidth, biHeight;
    WORD biPlanes, biBitCount;
    DWORD biCompression, biSizeImage;
    LONG biXPelsPerMeter, biYPelsPerMeter;
    DWORD biClrUsed, biClrImportant;
};
using BITMAPINFOHEADER = tagBITMAPINFOHEADER;
struct tagRGBQUAD {
    BYTE rgbBlue, rgbGreen, rgbRed, rgbReserved;
};
using RGBQUAD = tagRGBQUAD;
struct tagBITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};
using BITMAPINFO = tagBITMAPINFO;
using LPBITMAPINFO = BITMAPINFO*;

extern "C" {

// Device contexts
TAVLON_PLATFORM_API HDC CreateCompatibleDC(HDC hdc);
TAVLON_PLATFORM_API BOOL DeleteDC(HDC hdc);
TAVLON_PLATFORM_API int SaveDC(HDC hdc);
TAVLON_PLATFORM_API BOOL RestoreDC(HDC hdc, int nSaved);
TAVLON_PLATFORM_API int GetDeviceCaps(HDC hdc, int nIndex);
TAVLON_PLATFORM_API HGDIOBJ SelectObject(HDC hdc, HGDIOBJ hObject);
TAVLON_PLATFORM_API HGDIOBJ GetCurrentObject(HDC hdc, UINT nType);
TAVLON_PLATFORM_API BOOL GdiFlush();

// Objects
TAVLON_PLATFORM_API BOOL DeleteObject(HGDIOBJ hObject);
TAVLON_PLATFORM_API int GetObjectA(HANDLE hObject, int cbBuffer, LPVOID pBuffer);
TAVLON_PLATFORM_API DWORD GetObjectType(HGDIOBJ hObject);
TAVLON_PLATFORM_API HGDIOBJ GetStockObject(int nIndex);
TAVLON_PLATFORM_API HPEN CreatePen(int nStyle, int nWidth, COLORREF clr);
TAVLON_PLATFORM_API HPEN CreatePenIndirect(const LOGPEN* pPen);
TAVLON_PLATFORM_API HBRUSH CreateSolidBrush(COLORREF clr);
TAVLON_PLATFORM_API HBRUSH CreateBrushIndirect(const LOGBRUSH* pBrush);
TAVLON_PLATFORM_API HFONT CreateFontA(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                                      DWORD dwItalic, DWORD dwUnderline, DWORD dwStrikeOut, DWORD dwCharSet,
                                      DWORD dwOutPrecision, DWORD dwClipPrecision, DWORD dwQuality,
                                      DWORD dwPitchAndFamily, LPCSTR pszFaceName);
TAVLON_PLATFORM_API HFONT CreateFontIndirectA(const LOGFONTA* pFont);
TAVLON_PLATFORM_API HBITMAP CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitCount,
                                         const void* pBits);
TAVLON_PLATFORM_API HBITMAP CreateCompatibleBitmap(HDC hdc, int nWidth, int nHeight);
TAVLON_PLATFORM_API HBITMAP CreateDIBitmap(HDC hdc, const BITMAPINFOHEADER* pHeader, DWORD dwInit,
                                           const void* pBits, const BITMAPINFO* pInfo, UINT nUsage);
TAVLON_PLATFORM_API HBITMAP CreateDIBSection(HDC hdc, const BITMAPINFO* pInfo, UINT nUsage, void** ppBits,
                                             HANDLE hSection, DWORD dwOffset);
TAVLON_PLATFORM_API int GetDIBits(HDC hdc, HBITMAP hBitmap, UINT nStart, UINT nLines, LPVOID pBits,
                                  LPBITMAPINFO pInfo, UINT nUsage);

// Attributes
TAVLON_PLATFORM_API COLORREF SetTextColor(HDC hdc, COLORREF clr);
TAVLON_PLATFORM_API COLORREF GetTextColor(HDC hdc);
TAVLON_PLATFORM_API COLORREF SetBkColor(HDC hdc, COLORREF clr);
TAVLON_PLATFORM_API COLORREF GetBkColor(HDC hdc);
TAVLON_PLATFORM_API int SetBkMode(HDC hdc, int nMode);
TAVLON_PLATFORM_API int GetBkMode(HDC hdc);
TAVLON_PLATFORM_API UINT SetTextAlign(HDC hdc, UINT nAlign);
TAVLON_PLATFORM_API UINT GetTextAlign(HDC hdc);
TAVLON_PLATFORM_API int SetROP2(HDC hdc, int nMode);
TAVLON_PLATFORM_API int GetROP2(HDC hdc);
TAVLON_PLATFORM_API int SetPolyFillMode(HDC hdc, int nMode);
TAVLON_PLATFORM_API int GetPolyFillMode(HDC hdc);
TAVLON_PLATFORM_API int SetStretchBltMode(HDC hdc, int nMode);
TAVLON_PLATFORM_API int GetStretchBltMode(HDC hdc);
TAVLON_PLATFORM_API int SetMapMode(HDC hdc, int nMode);  ///< MM_TEXT alone is offered.
TAVLON_PLATFORM_API int GetMapMode(HDC hdc);
TAVLON_PLATFORM_API BOOL SetViewportOrgEx(HDC hdc, int x, int y, LPPOINT pOld);
TAVLON_PLATFORM_API BOOL GetViewportOrgEx(HDC hdc, LPPOINT pPoint);
TAVLON_PLATFORM_API BOOL OffsetViewportOrgEx(HDC hdc, int x, int y, LPPOINT pOld);
TAVLON_PLATFORM_API BOOL SetWindowOrgEx(HDC hdc, int x, int y, LPPOINT pOld);
TAVLON_PLATFORM_API BOOL GetWindowOrgEx(HDC hdc, LPPOINT pPoint);
TAVLON_PLATFORM_API BOOL DPtoLP(HDC hdc, LPPOINT pPoints, int nCount);
TAVLON_PLATFORM_API BOOL LPtoDP(HDC hdc, LPPOINT pPoints, int nCount);
TAVLON_PLATFORM_API BOOL GetCurrentPositionEx(HDC hdc, LPPOINT pPoint);

// Lines and shapes
TAVLON_PLATFORM_API BOOL MoveToEx(HDC hdc, int x, int y, LPPOINT pOld);
TAVLON_PLATFORM_API BOOL LineTo(HDC hdc, int x, int y);
TAVLON_PLATFORM_API BOOL Polyline(HDC hdc, const POINT* pPoints, int nCount);
TAVLON_PLATFORM_API BOOL Polygon(HDC hdc, const POINT* pPoints, int nCount);
TAVLON_PLATFORM_API BOOL Rectangle(HDC hdc, int nLeft, int nTop, int nRight, int nBottom);
TAVLON_PLATFORM_API BOOL Ellipse(HDC hdc, int nLeft, int nTop, int nRight, int nBottom);
TAVLON_PLATFORM_API BOOL Arc(HDC hdc, int nLeft, int nTop, int nRight, int nBottom, int xStart, int yStart,
                             int xEnd, int yEnd);
TAVLON_PLATFORM_API BOOL Pie(HDC hdc, int nLeft, int nTop, int nRight, int nBottom, int xStart, int yStart,
                             int xEnd, int yEnd);
TAVLON_PLATFORM_API COLORREF GetPixel(HDC hdc, int x, int y);
TAVLON_PLATFORM_API COLORREF SetPixel(HDC hdc, int x, int y, COLORREF clr);
TAVLON_PLATFORM_API BOOL SetPixelV(HDC hdc, int x, int y, COLORREF clr);

// Block operations
TAVLON_PLATFORM_API BOOL BitBlt(HDC hdcDst, int x, int y, int cx, int cy, HDC hdcSrc, int xSrc, int ySrc,
                                DWORD dwRop);
TAVLON_PLATFORM_API BOOL StretchBlt(HDC hdcDst, int x, int y, int cx, int cy, HDC hdcSrc, int xSrc, int ySrc,
                                    int cxSrc, int cySrc, DWORD dwRop);
TAVLON_PLATFORM_API BOOL PatBlt(HDC hdc, int x, int y, int cx, int cy, DWORD dwRop);
TAVLON_PLATFORM_API BOOL TransparentBlt(HDC hdcDst, int x, int y, int cx, int cy, HDC hdcSrc, int xSrc,
                                        int ySrc, int cxSrc, int cySrc, UINT clrTransparent);

// Regions and clipping
TAVLON_PLATFORM_API HRGN CreateRectRgn(int nLeft, int nTop, int nRight, int nBottom);
TAVLON_PLATFORM_API HRGN CreateRectRgnIndirect(const RECT* pRect);
TAVLON_PLATFORM_API HRGN CreateEllipticRgn(int nLeft, int nTop, int nRight, int nBottom);
TAVLON_PLATFORM_API HRGN CreateEllipticRgnIndirect(const RECT* pRect);
TAVLON_PLATFORM_API HRGN CreatePolygonRgn(const POINT* pPoints, int nCount, int nMode);
TAVLON_PLATFORM_API BOOL SetRectRgn(HRGN hRgn, int nLeft, int nTop, int nRight, int nBottom);
TAVLON_PLATFORM_API int CombineRgn(HRGN hDst, HRGN hSrc1, HRGN hSrc2, int nMode);
TAVLON_PLATFORM_API int OffsetRgn(HRGN hRgn, int x, int y);
TAVLON_PLATFORM_API BOOL EqualRgn(HRGN hRgn1, HRGN hRgn2);
TAVLON_PLATFORM_API BOOL PtInRegion(HRGN hRgn, int x, int y);
TAVLON_PLATFORM_API BOOL RectInRegion(HRGN hRgn, const RECT* pRect);
TAVLON_PLATFORM_API int GetRgnBox(HRGN hRgn, LPRECT pRect);
TAVLON_PLATFORM_API BOOL FillRgn(HDC hdc, HRGN hRgn, HBRUSH hBrush);
TAVLON_PLATFORM_API int SelectClipRgn(HDC hdc, HRGN hRgn);
TAVLON_PLATFORM_API int ExtSelectClipRgn(HDC hdc, HRGN hRgn, int nMode);
TAVLON_PLATFORM_API int GetClipRgn(HDC hdc, HRGN hRgn);
TAVLON_PLATFORM_API int IntersectClipRect(HDC hdc, int nLeft, int nTop, int nRight, int nBottom);
TAVLON_PLATFORM_API int ExcludeClipRect(HDC hdc, int nLeft, int nTop, int nRight, int nBottom);
TAVLON_PLATFORM_API int GetClipBox(HDC hdc, LPRECT pRect);
TAVLON_PLATFORM_API BOOL PtVisible(HDC hdc, int x, int y);
TAVLON_PLATFORM_API BOOL RectVisible(HDC hdc, const RECT* pRect);

// Text
TAVLON_PLATFORM_API BOOL TextOutA(HDC hdc, int x, int y, LPCSTR pszText, int cbText);
TAVLON_PLATFORM_API BOOL ExtTextOutA(HDC hdc, int x, int y, UINT nOptions, const RECT* pRect, LPCSTR pszText,
                                     UINT cbText, const INT* pDx);
TAVLON_PLATFORM_API BOOL GetTextExtentPoint32A(HDC hdc, LPCSTR pszText, int cbText, LPSIZE pSize);
TAVLON_PLATFORM_API BOOL GetTextMetricsA(HDC hdc, LPTEXTMETRICA pMetrics);
TAVLON_PLATFORM_API int GetTextFaceA(HDC hdc, int cchName, LPSTR pszName);
TAVLON_PLATFORM_API int GetTextCharacterExtra(HDC hdc);

}  // extern "C"

#define GetObject GetObjectA
#define CreateFont CreateFontA
#define CreateFontIndirect CreateFontIndirectA
#define TextOut TextOutA
#define ExtTextOut ExtTextOutA
#define GetTextExtentPoint32 GetTextExtentPoint32A
#define GetTextMetrics GetTextMetricsA
#define GetTextFace GetTextFaceA
