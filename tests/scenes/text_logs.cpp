/// What text measures.

#include "scenes/scene.h"
#include "scenes/text_samples.h"

namespace scenes {

namespace {

/// A memory context with a font of its own.
class Writer {
public:
    explicit Writer(HFONT font) : hdc(CreateCompatibleDC(nullptr)), m_font(font) { SelectObject(hdc, font); }
    ~Writer() {
        DeleteDC(hdc);
        DeleteObject(m_font);
    }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    const HDC hdc;

private:
    HFONT m_font;
};

template <class... Values>
void Note(std::string& log, Values... values) {
    ((log += std::to_string(static_cast<long long>(values)), log += ' '), ...);
    log += '\n';
}

std::string AnyText(Dice& dice) {
    constexpr std::string (*kMakers[])(Dice&) = {LatinText, ChineseText, MixedText, RareText, RawText};
    return dice.Of(kMakers)(dice);
}

HFONT AFont(Dice& dice) { return dice.OneIn(2) ? AnyFont(dice) : UsualFont(dice); }

void Extents(std::string& log, Dice& dice) {
    for (int i = 0; i < 40; ++i) {
        const Writer writer(AFont(dice));
        const std::string text = AnyText(dice);
        SIZE size{-1, -1};
        const BOOL fOk = GetTextExtentPoint32A(writer.hdc, text.data(), static_cast<int>(text.size()), &size);
        Note(log, fOk, size.cx, size.cy);
    }
}

void Metrics(std::string& log, Dice& dice) {
    for (int i = 0; i < 20; ++i) {
        const Writer writer(AFont(dice));
        TEXTMETRICA m{};
        GetTextMetricsA(writer.hdc, &m);
        Note(log, m.tmHeight, m.tmAscent, m.tmDescent, m.tmInternalLeading, m.tmExternalLeading,
             m.tmAveCharWidth, m.tmMaxCharWidth, m.tmWeight, m.tmOverhang);
        Note(log, m.tmFirstChar, m.tmLastChar, m.tmDefaultChar, m.tmBreakChar, m.tmItalic, m.tmUnderlined,
             m.tmStruckOut, m.tmPitchAndFamily, m.tmCharSet);
    }
}

void FaceNames(std::string& log, Dice& dice) {
    for (int i = 0; i < 10; ++i) {
        const Writer writer(AFont(dice));
        char szName[64] = "?";
        const int cch = GetTextFaceA(writer.hdc, dice.Between(0, 40), szName);
        Note(log, cch, GetTextFaceA(writer.hdc, 0, nullptr));
        log += szName;
        log += '\n';
    }
}

void Layout(std::string& log, Dice& dice) {
    constexpr UINT kFlags[] = {
        DT_CENTER,     DT_RIGHT,    DT_VCENTER,      DT_BOTTOM,   DT_WORDBREAK, DT_WORDBREAK,   DT_NOCLIP,
        DT_SINGLELINE, DT_NOPREFIX, DT_END_ELLIPSIS, DT_CALCRECT, DT_CALCRECT,  DT_EDITCONTROL, 0};
    for (int i = 0; i < 60; ++i) {
        const Writer writer(UsualFont(dice));
        const std::string text = dice.OneIn(4) ? AnyText(dice) : LayoutText(dice);
        UINT flags = 0;
        for (int left = dice.Between(0, 5); left > 0; --left) flags |= dice.Of(kFlags);
        const int left = dice.Between(-20, 20), top = dice.Between(-20, 20);
        const int cx = dice.Between(0, 90), cy = dice.Between(0, 70);
        RECT rc{left, top, left + cx, top + cy};
        const int nHeight = DrawTextA(writer.hdc, text.c_str(), -1, &rc, flags);
        Note(log, flags, nHeight, rc.left, rc.top, rc.right, rc.bottom);
    }
}

constexpr LogKind kKinds[] = {
    {"log_text_extents", Extents},
    {"log_text_metrics", Metrics},
    {"log_text_faces", FaceNames},
    {"log_text_layout", Layout},
};

}  // namespace

std::span<const LogKind> TextLogs() { return kKinds; }

}  // namespace scenes
