#include "gauge_exhibits.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numeric>

#include "core/error.h"
#include "core/index_closes.h"

namespace gallery {

namespace {

constexpr char kIndexFile[] = "sh_index_2025-09-22.csv";
constexpr std::size_t kLongDays = 100, kShortDays = 20;
constexpr int kLongTerm = 1, kShortTerm = 2;  // arrows of the risk gauge

constexpr char kFlowFile[] = "main_flow_2025-09-22.csv";
constexpr int kLeastRises[] = {0, 1, 2};  // percent, by camp

constexpr char kLadderCode[] = "600004";
constexpr std::size_t kRecentMinutes = 60;

constexpr char kOrderFile[] = "large_orders_2019-02-01.csv";
constexpr double kTenThousand = 1e4, kMillion = 1e6;
constexpr ClassRule kFullRule{20 * kTenThousand, 10 * kTenThousand, 20};
constexpr ClassRule kHalfRule{20 * kTenThousand, 20 * kTenThousand, 10};

std::string Hundredths(double dNumber) {
    char szText[64];
    std::snprintf(szText, sizeof szText, "%.2f", dNumber);
    return szText;
}

std::string InTenThousands(double dYuan) {
    return std::to_string(std::lround(dYuan / kTenThousand)) + "万元";
}

std::string Describe(const RiskReading& risk, const char* pszTerm) {
    return pszTerm + std::to_string(risk.nDays) + "日：最高" + Hundredths(risk.dHighest) + "，最低" +
           Hundredths(risk.dLowest) + "，第" + std::to_string(risk.Step()) + "档";
}

RiskReading RiskOfDays(const std::vector<double>& closes, std::size_t nDays,
                       const std::filesystem::path& file) {
    if (closes.size() < nDays) throw Error(file.string() + ": fewer than " + std::to_string(nDays) + " days");
    return ReadRisk(closes, nDays);
}

std::string Describe(const OrderClass& one) {
    const std::string strFrom = InTenThousands(one.dFrom), strOrders = std::to_string(one.nOrders) + "笔";
    if (std::isinf(one.dTo)) return strFrom + "以上，" + strOrders;
    return strFrom + "至不足" + InTenThousands(one.dTo) + "，" + strOrders;
}

std::size_t CountOf(const std::vector<OrderClass>& classes) {
    const auto add = [](std::size_t nSum, const OrderClass& one) { return nSum + one.nOrders; };
    return std::accumulate(classes.begin(), classes.end(), std::size_t{0}, add);
}

int FullestOf(const std::vector<OrderClass>& classes) {
    return static_cast<int>(std::ranges::max_element(classes, {}, &OrderClass::nOrders) - classes.begin());
}

/// Takes the bars away, and the value scale with them: an empty chart would keep the one that it had before.
void ForgetScale(CProxy_HistogramCtrl& histogram) {
    tagHistogramData bar{.dXValue = 1, .dYValue = 1, .nId = 0};
    histogram.Init();
    histogram.SetData(bar);  // now Play looks for the largest bar again, even if none is left
    histogram.Init();
}

std::string DayUntil(const Replay& replay) {
    return "2019年2月1日" + (replay.IsUnderWay() ? "至" + TimeReached(replay) : std::string());
}

}  // namespace

RiskExhibit::RiskExhibit(const std::filesystem::path& dataDir) {
    const std::filesystem::path file = dataDir / kIndexFile;
    const std::vector<double> closes = ReadIndexCloses(file);
    m_longTerm = RiskOfDays(closes, kLongDays, file);
    m_shortTerm = RiskOfDays(closes, kShortDays, file);
}

void RiskExhibit::Feed(Control& gauge) const {
    gauge.SetData(m_longTerm.Step(), kLongTerm);
    gauge.SetData(m_shortTerm.Step(), kShortTerm);
    gauge.ReDraw();
}

std::vector<std::string> RiskExhibit::Notes() const {
    return {
        "推算，非公布指数：上证指数2025年9月22日收于" + Hundredths(m_longTerm.dLast) + "，愈近高点风险愈大",
        "档＝1＋5×(收盘－最低)÷(最高－最低)取整，至多5，最高、最低取各日收盘",
        Describe(m_longTerm, "中长期") + "；" + Describe(m_shortTerm, "短期")};
}

std::string RiskExhibit::Brief() const {
    return "风险：上证指数收盘在" + std::to_string(m_longTerm.nDays) + "日、" +
           std::to_string(m_shortTerm.nDays) + "日高低点之间第几档，2025年9月22日，推算";
}

PositionExhibit::PositionExhibit(const std::filesystem::path& dataDir) {
    const std::vector<Flow> flows = ReadFlows(dataDir / kFlowFile);
    std::ranges::transform(kLeastRises, m_camps.begin(),
                           [&](int nLeast) { return CountRises(flows, nLeast); });
}

void PositionExhibit::Feed(Control& bar) const {
    int nCamp = 0;
    for (const RiseCount& count : m_camps) bar.SetData(count.Percent(), ++nCamp);
    bar.ReDraw();
}

std::vector<std::string> PositionExhibit::Notes() const {
    const auto reached = [this](std::size_t nCamp) {
        return "达" + std::to_string(kLeastRises[nCamp]) + "%者" + std::to_string(m_camps[nCamp].nReached) +
               "只";
    };
    return {"推算，非调查所得：2025年9月22日涨幅达到该派要求的股票占比，四舍五入到整数",
            "有涨幅的沪深股票" + std::to_string(m_camps[0].nStocks) + "只。激进派：涨幅" + reached(0),
            "稳健派：涨幅" + reached(1) + "；保守派：涨幅" + reached(2)};
}

std::string PositionExhibit::Brief() const {
    return "持仓：涨幅达0、1、2%的沪深股票占比，2025年9月22日，推算，非调查所得";
}

LadderExhibit::LadderExhibit(const std::filesystem::path& dataDir) {
    const std::filesystem::path file = dataDir / kMinuteFile;
    m_days = ReadMinuteDays(file);
    const auto it = std::ranges::find(m_days, kLadderCode, &MinuteDay::code);
    if (it == m_days.end()) throw Error(file.string() + ": no minutes of " + kLadderCode);
    m_nUsual = static_cast<std::size_t>(it - m_days.begin());
}

const MinuteDay& LadderExhibit::DayOf(const std::string& strStock) const {
    const MinuteDay* const pDay = FindDay(m_days, strStock);
    return pDay ? *pDay : m_days[m_nUsual];
}

void LadderExhibit::Feed(Control& ladder, const std::string& strStock, int nMinutes) const {
    const PriceLevels levels = LevelsOf(FirstMinutes(DayOf(strStock), nMinutes), kRecentMinutes);
    int nLevel = 0;
    for (const double dPrice : levels.FromTheTop()) ladder.SetPriceData(static_cast<float>(dPrice), ++nLevel);
    ladder.ReDraw();
}

std::vector<std::string> LadderExhibit::Notes(const std::string& strStock, const Replay& replay) const {
    const MinuteDay& day = DayOf(strStock);
    const std::string strWhat =
        "推算，非公布价位：" + day.name + "(" + day.code + ")2019年2月1日各分钟末的成交价";
    const std::string strMinutes = std::to_string(kRecentMinutes) + "分钟最高、最低，当前为";
    if (replay.Minutes() == 0) return {strWhat, "开盘前还没有成交价，控件以0.00表示", InWords(replay)};
    if (replay.IsUnderWay())
        return {strWhat, "中期压力、支撑为开盘以来最高、最低，短期为最近" + strMinutes + "最新价",
                InWords(replay)};
    const PriceLevels levels = LevelsOf(day.minutes, kRecentMinutes);
    return {strWhat, "中期压力、支撑为全天最高、最低，短期为最后" + strMinutes + "收盘价",
            "横条长度与价格成正比，所以几乎一样长：全天高低点只差" +
                Hundredths(levels.dDayHigh - levels.dDayLow) + "元"};
}

std::string LadderExhibit::Brief(const std::string& strStock, const Replay& replay) const {
    const bool bWhole = !replay.IsUnderWay();
    return "压力支撑：" + DayOf(strStock).name + (bWhole ? "全天与最后" : "开盘以来与最近") +
           std::to_string(kRecentMinutes) + "分钟的最高、最低(各分钟末价)，" + DayUntil(replay) + "，推算";
}

HistogramExhibit::HistogramExhibit(const std::filesystem::path& dataDir, Detail detail)
    : m_rule(detail == Detail::Full ? kFullRule : kHalfRule) {
    const std::filesystem::path file = dataDir / kOrderFile;
    m_orders = ReadOrders(file);
    if (CountOf(ClassesAfter(kMinutesOfDay)) == 0) throw Error(file.string() + ": no large orders");
}

std::vector<OrderClass> HistogramExhibit::ClassesAfter(int nMinutes) const {
    return CountByClass(m_orders, m_rule, nMinutes);
}

void HistogramExhibit::Feed(Control& histogram, int nMinutes, int nClass) const {
    const std::vector<OrderClass> classes = ClassesAfter(nMinutes);
    ForgetScale(histogram);
    char szYTitle[] = "笔数", szXTitle[] = "百万元";
    histogram.SetYTitle(szYTitle);
    histogram.SetXTitle(szXTitle);
    tagHistogramData bar{};
    for (const OrderClass& one : classes) {
        bar.dXValue = one.dFrom / kMillion;
        bar.dYValue = static_cast<double>(one.nOrders);
        if (one.nOrders > 0) histogram.SetData(bar);
        ++bar.nId;
    }
    histogram.Play();
    // By position: the bars had to be in their order before.
    histogram.SetIndex(nClass == kFullest ? FullestOf(classes) : nClass);
}

int HistogramExhibit::NextClass(int nMinutes, int nClass, bool bAbove) const {
    const std::vector<OrderClass> classes = ClassesAfter(nMinutes);
    const int nFrom = nClass == kFullest ? FullestOf(classes) : nClass;
    const int nBy = bAbove ? 1 : -1, nAll = static_cast<int>(classes.size());
    for (int n = nFrom + nBy; n >= 0 && n < nAll; n += nBy)
        if (classes[static_cast<std::size_t>(n)].nOrders > 0) return n;
    return nClass;
}

std::vector<std::string> HistogramExhibit::Notes(const Replay& replay, int nClass) const {
    const std::vector<OrderClass> classes = ClassesAfter(replay.Minutes());
    if (nClass == kFullest) nClass = FullestOf(classes);
    return {
        "平安银行2019年2月1日" + InTenThousands(m_rule.dFirst) + "以上的成交" +
            std::to_string(CountOf(classes)) + "笔，每" + InTenThousands(m_rule.dWidth) +
            "一档，末档不设上限",
        replay.IsUnderWay() ? InWords(replay) : "柱下为档的下限。源数据约三秒汇成一笔，所以只是大单的估计",
        "左右键换档。亮柱：" + Describe(classes[static_cast<std::size_t>(nClass)])};
}

std::string HistogramExhibit::Brief(const Replay& replay) const {
    return "大单：平安银行" + InTenThousands(m_rule.dFirst) + "以上的成交，每" +
           InTenThousands(m_rule.dWidth) + "一档，末档不设上限，" + DayUntil(replay);
}

}  // namespace gallery
