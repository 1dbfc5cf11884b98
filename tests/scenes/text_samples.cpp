#include "scenes/text_samples.h"

namespace scenes {

namespace {

constexpr const char* kWords[] = {"Abc",  "12.5",    "Hello", "12.34%", "fig",    "Wjy", "x,y",
                                  "(ab)", "A-B",     "a",     "e.g.",   "don't",  "-5",  "http://a.b/c",
                                  "100,", "WWWiii.", "Qq|",   "+3.2%",  "\"end\""};
constexpr const char* kHan[] = {"上证指数", "资金流入", "价",   "更新时间", "亿",
                                "主力净买", "风险",     "仓位", "支撑"};
constexpr const char* kSigns[] = {"，", "。", "：", "（", "）", "“", "”",
                                  "《", "》", "％", "￥", "…",  "—", "！"};
constexpr const char* kRare[] = {"锕",       "瘪",
                                 "鞴",       "亃",
                                 "乿",       "○●",
                                 "◎",        "ⅠⅡ",
                                 "①⑴",       "αβ",
                                 "Дж",       "¤§",
                                 "°±×",      "─┼",
                                 "┏┛",       "ａｂｃ",
                                 "１２",     "あアー",
                                 "㈱",       "℃‰",
                                 "\x80",     "\xa8\xbb\xa8\xc0",
                                 "\xaa\xa1", "\xa2\xa3",
                                 "\xfe\x50", "\xd7\xfa"};
constexpr const char* kNames[] = {
    "A&B资金", "主力&流入", "&&",         "资金&",  "S&P 500",     "&买入净额一览",
    "A&&B C",  "万科A&",    "资金\t流入", "a\tb",   "\t",          "行\r\n二",
    "x\ny",    "A & B",     "浦发银行",   "12.34%", "ST 东方\r红", ""};
constexpr const char* kGaps[] = {" ", " ", "  ", "   ", "\n", "\r\n", "&", "&", "&&", "\n\n"};

template <std::size_t N>
std::string Join(Dice& dice, const char* const (&parts)[N], int most) {
    std::string text;
    for (int left = dice.Between(1, most); left > 0; --left) text += dice.Of(parts);
    return text;
}

HFONT Font(int height, int width, int weight, const LOGFONTA& style, int quality, const char* face) {
    return CreateFontA(height, width, 0, 0, weight, style.lfItalic, style.lfUnderline, style.lfStrikeOut,
                       DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, static_cast<DWORD>(quality),
                       DEFAULT_PITCH, face);
}

}  // namespace

HFONT UsualFont(Dice& dice) {
    const int height = dice.Between(10, 18), weight = dice.OneIn(3) ? FW_BOLD : FW_NORMAL;
    const int quality = dice.OneIn(3) ? DEFAULT_QUALITY : PROOF_QUALITY;
    return Font(height, 0, weight, {}, quality, dice.Of(kFaces));
}

HFONT AnyFont(Dice& dice) {
    constexpr int kHeights[] = {0, 1, 3, 6, 9, 12, 20, 24, 32, 41, -8, -9, -12, -16, -30};
    constexpr int kWidths[] = {0, 0, 0, 4, 7, 12};
    const int height = dice.Of(kHeights), width = dice.Of(kWidths), weight = dice.Between(0, 9) * 100;
    LOGFONTA style{};
    style.lfItalic = dice.OneIn(3);
    style.lfUnderline = dice.OneIn(3);
    style.lfStrikeOut = dice.OneIn(3);
    const int quality = dice.Between(DEFAULT_QUALITY, PROOF_QUALITY);
    return Font(height, width, weight, style, quality, dice.Of(kFaces));
}

std::string LatinText(Dice& dice) { return Join(dice, kWords, 3); }
std::string ChineseText(Dice& dice) { return Join(dice, kHan, 3); }
std::string ControlText(Dice& dice) { return dice.OneIn(3) ? MixedText(dice) : Join(dice, kNames, 3); }
std::string RareText(Dice& dice) { return Join(dice, kRare, 5); }

std::string MixedText(Dice& dice) {
    std::string text;
    for (int left = dice.Between(1, 3); left > 0; --left) {
        text += dice.Of(kHan);
        if (dice.OneIn(2)) text += dice.Of(kSigns);
        text += dice.Of(kWords);
    }
    return text;
}

std::string RawText(Dice& dice) {
    std::string text = dice.OneIn(2) ? MixedText(dice) : "";
    for (int left = dice.Between(0, 6); left > 0; --left) text += static_cast<char>(dice.Between(1, 255));
    if (dice.OneIn(2) && !text.empty())
        text.resize(static_cast<std::size_t>(dice.Between(0, static_cast<int>(text.size()))));
    return text;
}

std::string LayoutText(Dice& dice) {
    std::string text;
    for (int left = dice.Between(1, 8); left > 0; --left) {
        const int kind = dice.Between(1, 10);
        text += kind <= 3   ? dice.Of(kWords)
                : kind <= 5 ? dice.Of(kHan)
                : kind <= 7 ? dice.Of(kSigns)
                            : dice.Of(kGaps);
    }
    return text;
}

}  // namespace scenes
