/// What the kinds of ellipses, arcs, pies and elliptic regions share.
#pragma once

#include "scenes/scene.h"
#include "scenes/settled.h"

namespace scenes::curves {

/// Solid or inside the frame, thin or wide, dashed, or none at all.
void AnyPen(Stage& stage);
void SolidPen(Stage& stage, int thinnest, int widest);
/// Dashed, with what the gaps are drawn in, if anything.
void DashedPen(Stage& stage);
/// Corners as they come, or exchanged in x, in y or both.
RECT MaybeReversed(Stage& stage, const RECT& rc);

/// Sides up to the given ones, lowered until the inside is settled, whatever pen up to `margin` wide frames
/// it.
RECT SettledBox(Stage& stage, int least, int widest, int highest, int margin = 0);

void EllipsesOutlined(Stage&);
void EllipsesFilled(Stage&);
void EllipsesBorderless(Stage&);
void EllipsesWide(Stage&);
void EllipsesInsideFrame(Stage&);
void EllipsesTiny(Stage&);
void EllipsesFlat(Stage&);
void EllipsesTall(Stage&);
void EllipsesReversed(Stage&);
void EllipsesDashed(Stage&);
void EllipsesXored(Stage&);
void EllipsesOfAllOperations(Stage&);
void EllipsesClipped(Stage&);
void EllipsesHuge(Stage&);

void Arcs(Stage&);
void ArcsTiny(Stage&);
void ArcsWhole(Stage&);
void ArcsWide(Stage&);
void ArcsInsideFrame(Stage&);
void ArcsDashed(Stage&);
void ArcsXored(Stage&);
void ArcsOfAllOperations(Stage&);
void Rings(Stage&);
void ArcsOfCircles(Stage&);

void PiesFilled(Stage&);
void PiesOutlined(Stage&);
void PiesBorderless(Stage&);
void PiesWide(Stage&);
void PiesTiny(Stage&);
void PiesThin(Stage&);
void PiesSlivers(Stage&);
void PiesDashed(Stage&);
void PiesXored(Stage&);
void PiesOfAllOperations(Stage&);

void RegionsFilled(Stage&);
void RegionsTiny(Stage&);
void RegionsEmpty(Stage&);
void RegionsCombined(Stage&);
void RegionsHit(Stage&);
void RegionsAsClip(Stage&);
void RegionsOfAllOperations(Stage&);

}  // namespace scenes::curves
