/// What the kinds of block transfers share.
#pragma once

#include "scenes/scene.h"

namespace scenes::blocks {

inline constexpr DWORD kMergeCopy = 0x00C000CA, kPatPaint = 0x00FB0A09;
inline constexpr DWORD kPlainCodes[] = {SRCCOPY, NOTSRCCOPY, SRCAND, SRCPAINT, SRCINVERT};
inline constexpr DWORD kNamedCodes[] = {SRCCOPY,    NOTSRCCOPY, SRCAND,    SRCPAINT,  SRCINVERT,
                                        SRCERASE,   MERGEPAINT, PATCOPY,   PATINVERT, DSTINVERT,
                                        kMergeCopy, kPatPaint,  BLACKNESS, WHITENESS, NOTSRCERASE};

/// Where a transfer goes and where it comes from.
struct Way {
    int x, y, cx, cy, xSrc, ySrc;
};
/// Anywhere on the target, from anywhere on the source, or beside either.
Way AnyWay(Dice& dice, SIZE target, SIZE source, int most);

/// What calls answered, as a row of black and white pixels at the foot of the picture.
class Answers {
public:
    explicit Answers(Stage& stage) : m_stage(stage) {}
    ~Answers();
    Answers(const Answers&) = delete;
    Answers& operator=(const Answers&) = delete;
    void Note(bool answer) { m_answers.push_back(answer); }

private:
    Stage& m_stage;
    std::vector<bool> m_answers;
};

/// A whole sheet on the stage.
void Show(Stage& stage, const Sheet& sheet, int x, int y);
/// A bitmap that is in no context, on the stage.
void Show(Stage& stage, HBITMAP bitmap, int x, int y);
/// A picture by way of two masks, as a program without a transparent transfer draws it. It is changed and put
/// back in between.
void DrawMasked(Stage& stage, HDC picture, SIZE size, POINT at, COLORREF leftOut);
/// The context's background and text colours and its brush.
void SetColours(Stage& stage, HDC hdc);
/// A clip of a few rectangles or ellipses, or none.
void SetClip(Stage& stage);

void Copies(Stage&);
void BackwardCopies(Stage&);
void Overlaps(Stage&);
void NamedCodes(Stage&);
void AllCodes(Stage&);
void OverlapsOfNamedCodes(Stage&);
void Patterns(Stage&);
void ClippedCopies(Stage&);

void ColourToMono(Stage&);
void MonoToColour(Stage&);
void MonoToMono(Stage&);
void NamedCodesAcrossDepths(Stage&);
void MonoPatterns(Stage&);
void MonoDrawing(Stage&);
void MaskedSprites(Stage&);

void Sprites(Stage&);
void StretchedSprites(Stage&);
void MonoSprites(Stage&);
void SameSize(Stage&);
void Enlargements(Stage&);
void Reductions(Stage&);
void MixedStretches(Stage&);
void MirroredStretches(Stage&);
void MergedStretches(Stage&);
void MonoStretches(Stage&);

void CreatedBitmaps(Stage&);
void Sections(Stage&);
void LoadedDibs(Stage&);
void BitsReadBack(Stage&);
void Cursors(Stage&);
void CutOutCursors(Stage&);
void MemoryCanvases(Stage&);

void ResourceBitmaps(Stage&);
void SectionSprites(Stage&);
void ResourceCursor(Stage&);

}  // namespace scenes::blocks
