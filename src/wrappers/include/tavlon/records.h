#pragma once

/// @file
/// Interface records: the host fills them, the library reads them. Text fields are code page 936 bytes,
/// normally ended by a zero; the library never reads past a field that has none. Sizes and offsets are part
/// of the interface.

#include <cstddef>

/// One sector of the rotation wheel, 36 bytes.
struct tagmyBRData {
    char name[32];  ///< Sector name, compared without regard to ASCII case; SetData refuses an empty one.
    float value;    ///< Main-force share of the sector, any number; shown as it is, with two decimals.
};

/// What the wheel knows about the whole sector set, 96 bytes.
struct tagBlocksInfo {
    unsigned int dwHost;  ///< The host's own; carried unread.
    char title[32];       ///< Title above the wheel.
    char current[60];     ///< Sector that CProxy_BR::Init selects; empty for none.
};

#pragma pack(push, 4)
/// One stock of the value radar and of the point radar, 76 bytes. Market byte and code, case-sensitive,
/// together identify it.
struct tagPointRadarItemData {
    char cMarket;     ///< Market byte.
    char szCode[11];  ///< Stock code.
    char szName[44];  ///< Stock name.
    double dX;        ///< X value (value radar: revenue growth; point radar: limit-up coefficient).
    double dY;        ///< Y value (value radar: price-to-sales ratio; point radar: price change in percent).
    int nBlockId;     ///< Block (sector) the stock belongs to; not -1, which is active while no block is.
};
#pragma pack(pop)

/// One star of the star chart, 76 bytes. Market byte and code, case-sensitive, together identify the stock.
struct tagmyStarData {
    char cMarket;           ///< Market byte.
    char szCode[11];        ///< Stock code.
    char szName[36];        ///< Stock name.
    float fCheckA;          ///< Must not be negative; only checked.
    unsigned int dwSpare;   ///< Not read.
    unsigned int dwCheckB;  ///< Must not be 0; only checked.
    float fNetBuy;          ///< Y value: net buying.
    float fEnergy;          ///< X value: energy.
    float fCheckC;          ///< Must not be negative; only checked.
    float fSignValue;       ///< Its sign picks the colour: above 0 red, below 0 green, 0 white.
};

/// The stock that the minute chart shows, 56 bytes.
struct tagStockItem {
    char cReserved;   ///< Not read.
    char szCode[11];  ///< Stock code.
    char szName[36];  ///< Stock name.
    float fPreClose;  ///< Previous close: middle of the price scale.
    int nDecimal;     ///< Decimals of every price text; a negative value suppresses grid and scales.
};

/// One minute of the minute chart, 36 bytes.
struct tagmyMinuteData {
    unsigned int dwKey;        ///< Must not be 0.
    unsigned int nTime;        ///< HHMMSS, for example 93100; must not be 0.
    unsigned int dwReserved1;  ///< Not read.
    unsigned int dwReserved2;  ///< Not read.
    unsigned int dwReserved3;  ///< Not read.
    float fPrice;              ///< Price, at least 0.0001.
    float fVolume;             ///< Volume figure of the minute in shares, not negative.
    unsigned int dwReserved4;  ///< Not read.
    float fMainNetBuy;         ///< Main-force net buying in units of 10 000; 0 has no mark, below 1 no text.
};

/// Accepted and ignored by the minute chart, 12 bytes.
struct tagJueShaMinuteData {
    unsigned int dwData[3];  ///< Not read.
};

/// One item of the money-flow pies, 216 bytes.
struct tagPieChartData {
    double dValue;     ///< Amount, finite and not negative.
    char szName[200];  ///< Item name, not empty.
    int nId;           ///< Item id; one id may stand in both groups.
    int nType;         ///< 0: inflow (upper pie); anything else: outflow (lower pie).
};

/// One item of the price radar, 24 bytes.
struct tagPriceRadarItemData {
    double dValue;  ///< Amount, finite and above 0.
    int nId;        ///< Item id, matched by CProxy_PriceRadarCtrl::SetSelectId.
    int nType;      ///< 0: upper pie of its column; anything else: lower pie.
    int nIndex;     ///< Column 0 to 7, 0 being the rightmost.
    int nDate;      ///< Date as YYYYMMDD; shown of items of type 0.
};

#pragma pack(push, 4)
/// One bar of the histogram, 20 bytes.
struct tagHistogramData {
    double dXValue;  ///< Position value, finite and above 0; orders the bars.
    double dYValue;  ///< Height value, finite and above 0.
    int nId;         ///< Host's id, matched by CProxy_HistogramCtrl::SetIndex.
};
#pragma pack(pop)

#pragma pack(push, 1)
/// One tab of the tab strip, 259 bytes.
struct tagTabItemData {
    int nId;           ///< Host's id of the tab.
    char szText[255];  ///< Caption; 254 bytes are kept.
};
#pragma pack(pop)

/// Layout and look of a tab strip, fixed when it is created.
enum tagTabCtrlStyle : int {
    TAB_HORZ_CHAMFER = 0,  ///< Side by side, lower corners cut.
    TAB_HORZ_BOX = 1,      ///< Side by side, plain boxes.
    TAB_VERT_CHAMFER = 2,  ///< Stacked, left corners cut, vertical captions.
    TAB_VERT_NONE = 3      ///< Stacked captions without a tab shape; a bar marks the active one.
};

/// @cond
/// The layout is checked where the record is compiled, in the host as in the library.
#define TAVLON_SIZE(Record, nBytes) static_assert(sizeof(Record) == (nBytes), #Record " has another size")
#define TAVLON_OFFSET(Record, Field, nBytes) \
    static_assert(offsetof(Record, Field) == (nBytes), #Record "::" #Field " has another offset")

static_assert(sizeof(char) == 1 && sizeof(int) == 4 && sizeof(float) == 4 && sizeof(double) == 8);

TAVLON_SIZE(tagmyBRData, 36);
TAVLON_OFFSET(tagmyBRData, name, 0);
TAVLON_OFFSET(tagmyBRData, value, 32);

TAVLON_SIZE(tagBlocksInfo, 96);
TAVLON_OFFSET(tagBlocksInfo, dwHost, 0);
TAVLON_OFFSET(tagBlocksInfo, title, 4);
TAVLON_OFFSET(tagBlocksInfo, current, 36);

TAVLON_SIZE(tagPointRadarItemData, 76);
TAVLON_OFFSET(tagPointRadarItemData, cMarket, 0);
TAVLON_OFFSET(tagPointRadarItemData, szCode, 1);
TAVLON_OFFSET(tagPointRadarItemData, szName, 12);
TAVLON_OFFSET(tagPointRadarItemData, dX, 56);
TAVLON_OFFSET(tagPointRadarItemData, dY, 64);
TAVLON_OFFSET(tagPointRadarItemData, nBlockId, 72);

TAVLON_SIZE(tagmyStarData, 76);
TAVLON_OFFSET(tagmyStarData, cMarket, 0);
TAVLON_OFFSET(tagmyStarData, szCode, 1);
TAVLON_OFFSET(tagmyStarData, szName, 12);
TAVLON_OFFSET(tagmyStarData, fCheckA, 48);
TAVLON_OFFSET(tagmyStarData, dwSpare, 52);
TAVLON_OFFSET(tagmyStarData, dwCheckB, 56);
TAVLON_OFFSET(tagmyStarData, fNetBuy, 60);
TAVLON_OFFSET(tagmyStarData, fEnergy, 64);
TAVLON_OFFSET(tagmyStarData, fCheckC, 68);
TAVLON_OFFSET(tagmyStarData, fSignValue, 72);

TAVLON_SIZE(tagStockItem, 56);
TAVLON_OFFSET(tagStockItem, cReserved, 0);
TAVLON_OFFSET(tagStockItem, szCode, 1);
TAVLON_OFFSET(tagStockItem, szName, 12);
TAVLON_OFFSET(tagStockItem, fPreClose, 48);
TAVLON_OFFSET(tagStockItem, nDecimal, 52);

TAVLON_SIZE(tagmyMinuteData, 36);
TAVLON_OFFSET(tagmyMinuteData, dwKey, 0);
TAVLON_OFFSET(tagmyMinuteData, nTime, 4);
TAVLON_OFFSET(tagmyMinuteData, dwReserved1, 8);
TAVLON_OFFSET(tagmyMinuteData, dwReserved2, 12);
TAVLON_OFFSET(tagmyMinuteData, dwReserved3, 16);
TAVLON_OFFSET(tagmyMinuteData, fPrice, 20);
TAVLON_OFFSET(tagmyMinuteData, fVolume, 24);
TAVLON_OFFSET(tagmyMinuteData, dwReserved4, 28);
TAVLON_OFFSET(tagmyMinuteData, fMainNetBuy, 32);

TAVLON_SIZE(tagJueShaMinuteData, 12);
TAVLON_OFFSET(tagJueShaMinuteData, dwData, 0);

TAVLON_SIZE(tagPieChartData, 216);
TAVLON_OFFSET(tagPieChartData, dValue, 0);
TAVLON_OFFSET(tagPieChartData, szName, 8);
TAVLON_OFFSET(tagPieChartData, nId, 208);
TAVLON_OFFSET(tagPieChartData, nType, 212);

TAVLON_SIZE(tagPriceRadarItemData, 24);
TAVLON_OFFSET(tagPriceRadarItemData, dValue, 0);
TAVLON_OFFSET(tagPriceRadarItemData, nId, 8);
TAVLON_OFFSET(tagPriceRadarItemData, nType, 12);
TAVLON_OFFSET(tagPriceRadarItemData, nIndex, 16);
TAVLON_OFFSET(tagPriceRadarItemData, nDate, 20);

TAVLON_SIZE(tagHistogramData, 20);
TAVLON_OFFSET(tagHistogramData, dXValue, 0);
TAVLON_OFFSET(tagHistogramData, dYValue, 8);
TAVLON_OFFSET(tagHistogramData, nId, 16);

TAVLON_SIZE(tagTabItemData, 259);
TAVLON_OFFSET(tagTabItemData, nId, 0);
TAVLON_OFFSET(tagTabItemData, szText, 4);

static_assert(sizeof(tagTabCtrlStyle) == 4, "tagTabCtrlStyle has another size");

#undef TAVLON_SIZE
#undef TAVLON_OFFSET
/// @endcond
