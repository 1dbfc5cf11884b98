/// Gives a sector wheel the main force's money by industry of 2025-09-22.
#pragma once

#include <tavlon/tavlon.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/sectors.h"

namespace gallery {

/// Posted by the wheel to its parent on a double click on a sector.
constexpr UINT kSectorChosen = WM_USER + 301;

std::vector<Sector> ReadWheelSectors(const std::filesystem::path& dataDir);

/// The sector that was selected stays so if it is still there; else the wanted one is, else the first.
void FeedWheel(CProxy_BR& wheel, const std::vector<Sector>& sectors, const std::string& wanted);

/// Nothing when there is none of that name.
const Sector* FindSector(const std::vector<Sector>& sectors, const std::string& name);

/// What the wheel gives back of the sector that was chosen: its name, empty when there is none.
std::string SelectedSector(CProxy_BR& wheel);

}  // namespace gallery
