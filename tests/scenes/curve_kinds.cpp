/// Ellipses, arcs, pies and elliptic regions.
#include "scenes/curve_scenes.h"

namespace scenes {

namespace {

using namespace curves;

constexpr PictureKind kKinds[] = {
    {"ellipses_outlined", {200, 150}, EllipsesOutlined},
    {"ellipses_filled", {200, 150}, EllipsesFilled},
    {"ellipses_borderless", {200, 150}, EllipsesBorderless},
    {"ellipses_wide", {200, 150}, EllipsesWide},
    {"ellipses_inside_frame", {200, 150}, EllipsesInsideFrame},
    {"ellipses_tiny", {120, 90}, EllipsesTiny},
    {"ellipses_flat", {200, 150}, EllipsesFlat},
    {"ellipses_tall", {200, 150}, EllipsesTall},
    {"ellipses_reversed", {200, 150}, EllipsesReversed},
    {"ellipses_dashed", {200, 150}, EllipsesDashed},
    {"ellipses_xored", {200, 150}, EllipsesXored},
    {"ellipses_of_all_operations", {200, 150}, EllipsesOfAllOperations},
    {"ellipses_clipped", {200, 150}, EllipsesClipped},
    {"ellipses_huge", {200, 150}, EllipsesHuge},
    {"arcs", {200, 150}, Arcs},
    {"arcs_tiny", {120, 90}, ArcsTiny},
    {"arcs_whole", {200, 150}, ArcsWhole},
    {"arcs_wide", {200, 150}, ArcsWide},
    {"arcs_inside_frame", {200, 150}, ArcsInsideFrame},
    {"arcs_dashed", {200, 150}, ArcsDashed},
    {"arcs_xored", {200, 150}, ArcsXored},
    {"arcs_of_all_operations", {200, 150}, ArcsOfAllOperations},
    {"arcs_rings", {200, 150}, Rings},
    {"arcs_of_circles", {200, 150}, ArcsOfCircles},
    {"pies_filled", {200, 150}, PiesFilled},
    {"pies_outlined", {200, 150}, PiesOutlined},
    {"pies_borderless", {200, 150}, PiesBorderless},
    {"pies_wide", {200, 150}, PiesWide},
    {"pies_tiny", {120, 90}, PiesTiny},
    {"pies_thin", {200, 150}, PiesThin},
    {"pies_slivers", {200, 150}, PiesSlivers},
    {"pies_dashed", {200, 150}, PiesDashed},
    {"pies_xored", {200, 150}, PiesXored},
    {"pies_of_all_operations", {200, 150}, PiesOfAllOperations},
    {"elliptic_regions_filled", {200, 150}, RegionsFilled},
    {"elliptic_regions_tiny", {120, 90}, RegionsTiny},
    {"elliptic_regions_empty", {200, 150}, RegionsEmpty},
    {"elliptic_regions_combined", {200, 150}, RegionsCombined},
    {"elliptic_regions_hit", {200, 150}, RegionsHit},
    {"elliptic_regions_as_clip", {200, 150}, RegionsAsClip},
    {"elliptic_regions_of_all_operations", {200, 150}, RegionsOfAllOperations},
};

}  // namespace

std::span<const PictureKind> CurveKinds() { return kKinds; }

}  // namespace scenes
