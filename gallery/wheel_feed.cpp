#include "wheel_feed.h"

#include <algorithm>

#include "core/text.h"

namespace gallery {

namespace {
constexpr char kFile[] = "industries_2025-09-22.csv";
constexpr char kTitle[] = "行业主力净占比(%)";
}  // namespace

std::vector<Sector> ReadWheelSectors(const std::filesystem::path& dataDir) {
    return ReadSectors(dataDir / kFile);
}

void FeedWheel(CProxy_BR& wheel, const std::vector<Sector>& sectors, const std::string& wanted) {
    const Sector* pSelected = FindSector(sectors, SelectedSector(wheel));
    if (!pSelected) pSelected = FindSector(sectors, wanted);
    CArray<tagmyBRData, tagmyBRData&> records;
    for (const Sector& sector : sectors) {
        tagmyBRData record{};
        CopyToField(record.name, sector.name);
        record.value = static_cast<float>(MainShare(sector));
        records.Add(record);
    }
    tagBlocksInfo info{};
    CopyToField(info.title, kTitle);
    if (!sectors.empty()) CopyToField(info.current, (pSelected ? *pSelected : sectors.front()).name);
    wheel.Init(records, info);
    CTime close(2025, 9, 22, 15, 0, 0);
    wheel.SetUpdateTime(close);
    wheel.ReDraw();
}

const Sector* FindSector(const std::vector<Sector>& sectors, const std::string& name) {
    const auto it = std::ranges::find(sectors, name, &Sector::name);
    return it == sectors.end() ? nullptr : &*it;
}

std::string SelectedSector(CProxy_BR& wheel) {
    tagmyBRData record{};
    return wheel.GetCurBlockData(record) ? record.name : std::string();
}

}  // namespace gallery
