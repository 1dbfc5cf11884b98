/// A page with a chart on the money of the largest industries and the list of them beside it. The industry
/// that was chosen last is kept by the program: every page of this kind starts with it.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/industry_days.h"
#include "core/split.h"
#include "page_chart.h"
#include "tab_captions.h"

namespace gallery {

constexpr char kIndustryFile[] = "industry_flow_2026-08.csv";

/// How the industries of the list were chosen; a note under the chart.
inline std::string ChoiceInWords(const IndustryDay& newest, std::size_t nShown) {
    return DateInWords(newest.nDate) + "，" + std::to_string(newest.flows.size()) +
           "个行业中流入、流出之和最大的" + std::to_string(nShown) + "个";
}

template <class Chart>
class IndustriesPage : public ChartPage<Chart> {
protected:
    IndustriesPage(std::vector<IndustryDay> days, std::shared_ptr<int> pChosen)
        : m_days(std::move(days)),
          m_shown(LargestFlows(Newest().flows, kMostIndustries)),
          m_pChosen(std::move(pChosen)) {}

    /// Marks the industry at that place of Shown() in the chart.
    virtual void Mark(Chart& chart, int nIndustry) = 0;

    const std::vector<IndustryDay>& Days() const { return m_days; }
    const IndustryDay& Newest() const { return m_days.back(); }
    /// The industries of the list, the largest of the newest day first, as they were on that day. Their
    /// places are the ids that the chart gets.
    const std::vector<IndustryFlow>& Shown() const { return m_shown; }

    BOOL CreateControls() override {
        if (!ChartPage<Chart>::CreateControls()) return FALSE;
        if (!m_list.Create(this, CRect(0, 0, 0, 0), kListId, TAB_VERT_NONE)) return FALSE;
        std::vector<std::string> names;
        names.reserve(m_shown.size());
        for (const IndustryFlow& flow : m_shown) names.push_back(flow.name);
        AddTabs(m_list, names);
        SetNavigationColours(m_list);
        if (IsShown(*m_pChosen)) ChooseLater();
        return TRUE;
    }

    void PlaceControls(const CRect& rcContent) override {
        CRect rcChart = rcContent;
        const CRect rcList = TakeLeft(rcChart, kListWidth);
        ChartPage<Chart>::PlaceControls(rcChart);
        if (CWnd* const pList = this->GetDlgItem(kListId)) pList->MoveWindow(&rcList);
    }

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (LOWORD(wParam) != kListId) return ChartPage<Chart>::OnCommand(wParam, lParam);
        Choose(m_list.GetActiveId());
        return TRUE;
    }

    bool OnKey(UINT nKey) override {
        if (nKey != VK_UP && nKey != VK_DOWN) return false;
        const int nNext = *m_pChosen + (nKey == VK_DOWN ? 1 : -1);
        m_list.SelectTabById(std::clamp(nNext, 0, static_cast<int>(m_shown.size()) - 1));
        Choose(m_list.GetActiveId());
        return true;
    }

private:
    static constexpr UINT kListId = 101;
    static constexpr int kListWidth = 96;
    static constexpr std::size_t kMostIndustries = 10;

    bool IsShown(int nIndustry) const {
        return nIndustry >= 0 && nIndustry < static_cast<int>(m_shown.size());
    }

    void Choose(int nIndustry) {
        if (!IsShown(nIndustry)) return;
        *m_pChosen = nIndustry;
        Mark(this->TheChart(), nIndustry);
    }

    /// As if its name had been clicked, when the page is in its place.
    void ChooseLater() {
        m_list.SelectTabById(*m_pChosen);
        this->PostMessage(WM_COMMAND, kListId);
    }

    std::vector<IndustryDay> m_days;
    std::vector<IndustryFlow> m_shown;
    std::shared_ptr<int> m_pChosen;
    CProxy_TabCtrl m_list;
};

}  // namespace gallery
