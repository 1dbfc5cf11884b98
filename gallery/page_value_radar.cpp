// The value radar on all A shares: growth of sales against price to sales.
#include <utility>

#include "core/error.h"
#include "core/frame.h"
#include "core/stocks.h"
#include "core/text.h"
#include "pages.h"

namespace gallery {

namespace {

constexpr char kFile[] = "stocks_2018-09-21.csv";
constexpr Frame kFrame{-100, 200, 0, 30};
constexpr std::size_t kRadarLimit = 3000;  // points that the control takes
constexpr char kMarkedSector[] = "生物制药";
constexpr double kGateGrowth = 30, kGatePs = 3;  // growing fast and priced low
constexpr UINT kRadarId = 100;

CTime DataTime() { return CTime(2018, 9, 21, 15, 0, 0); }

tagPointRadarItemData RecordOf(const Stock& stock) {
    tagPointRadarItemData record{};
    record.cMarket = stock.cMarket;
    CopyToField(record.szCode, stock.code);
    CopyToField(record.szName, stock.name);
    record.dX = stock.revenueGrowth.value();
    record.dY = stock.priceToSales.value();
    record.nBlockId = stock.sectorId.value_or(0);  // sectors count from 1
    return record;
}

std::vector<std::string> NotesOn(const FrameSelection& chosen) {
    const auto text = [](std::size_t n) { return std::to_string(n); };
    return {"2018年9月21日收盘，横轴为2018年上半年营收同比增长率(%)",
            "沪深A股" + text(chosen.nAll) + "只，范围内" + text(chosen.nInside) + "只，显示市值最大的" +
                text(chosen.shown.size()) + "只",
            "未显示：超出控件上限" + text(chosen.nOverLimit) + "只，范围(-100~200%，市销率0~30)外" +
                text(chosen.nOutside) + "只，增长率或市销率未知" + text(chosen.nUnknown) + "只"};
}

class ValueRadarPage : public Page {
public:
    explicit ValueRadarPage(std::vector<Stock> stocks)
        : m_stocks(std::move(stocks)), m_nSector(SectorId(m_stocks, kMarkedSector)) {}

private:
    BOOL CreateControls() override {
        const FrameSelection chosen = SelectForFrame(m_stocks, kFrame, kRadarLimit);
        SetNotes(NotesOn(chosen));
        if (!m_radar.Create(this, ContentRect(), kRadarId)) return FALSE;
        Feed(chosen);
        return TRUE;
    }

    void PlaceControls(const CRect& rcContent) override {
        if (CWnd* const pRadar = GetDlgItem(kRadarId)) pRadar->MoveWindow(&rcContent);
    }

    void Feed(const FrameSelection& chosen) {
        m_radar.Init();
        for (const std::size_t n : chosen.shown) m_radar.SetData(RecordOf(m_stocks[n]));
        m_radar.ActiveBlockByInfo(m_nSector, kMarkedSector);
        m_radar.Play();
        m_radar.SetGate(kGateGrowth, kGatePs);  // after Play, which moves the gate away
        CTime time = DataTime();
        m_radar.SetUpdateTime(time);
    }

    std::vector<Stock> m_stocks;
    int m_nSector;
    CProxy_RoePointCtrl m_radar;
};

}  // namespace

std::unique_ptr<Page> MakeValueRadarPage(const std::filesystem::path& dataDir) {
    return std::make_unique<ValueRadarPage>(ReadStocks(dataDir / kFile));
}

}  // namespace gallery
