/// A page with a chart on money flows and the list of what it shows beside it: at first the largest
/// industries, of which the one that was chosen last is kept by the program.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/split.h"
#include "money_feed.h"
#include "page_chart.h"
#include "tab_captions.h"

namespace gallery {

/// How the industries of the list were chosen; a note under the chart.
inline std::string ChoiceInWords(const IndustryDay& newest, std::size_t nShown) {
    return DateInWords(newest.nDate) + "，" + std::to_string(newest.flows.size()) +
           "个行业中流入、流出之和最大的" + std::to_string(nShown) + "个";
}

template <class Chart>
class IndustriesPage : public ChartPage<Chart> {
protected:
    explicit IndustriesPage(const PageSettings& settings)
        : m_days(ReadMoneyDays(settings.dataDir)),
          m_shown(LargestFlows(Newest().flows, kMostListed)),
          m_pChoice(settings.pChoice) {}

    /// Marks what stands at that place of Shown() in the chart.
    virtual void Mark(Chart& chart, int nPlace) = 0;
    /// What is chosen, by its place; -1: nothing yet.
    virtual int Chosen() const { return m_pChoice->nListed; }
    virtual void SetChosen(int nPlace) { m_pChoice->nListed = nPlace; }
    virtual void PlaceList(const CRect& rc) {
        if (CWnd* const pList = this->GetDlgItem(kListId)) pList->MoveWindow(&rc);
    }

    const std::vector<IndustryDay>& Days() const { return m_days; }
    const IndustryDay& Newest() const { return m_days.back(); }
    /// What the list names, the largest first. The places are the ids that the chart gets.
    const std::vector<MoneyFlow>& Shown() const { return m_shown; }
    Choice& TheChoice() { return *m_pChoice; }

    /// Another list, for chart and names.
    void Show(std::vector<MoneyFlow> flows) {
        m_shown = std::move(flows);
        this->Feed(this->TheChart());
        FillList();
    }

    BOOL CreateControls() override {
        if (!ChartPage<Chart>::CreateControls()) return FALSE;
        if (!m_list.Create(this, CRect(0, 0, 0, 0), kListId, TAB_VERT_NONE)) return FALSE;
        SetNavigationColours(m_list);
        FillList();
        return TRUE;
    }

    void PlaceControls(const CRect& rcContent) override {
        CRect rcChart = rcContent;
        const CRect rcList = TakeLeft(rcChart, kListWidth);
        ChartPage<Chart>::PlaceControls(rcChart);
        PlaceList(rcList);
    }

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (LOWORD(wParam) != kListId) return ChartPage<Chart>::OnCommand(wParam, lParam);
        Choose(m_list.GetActiveId());
        return TRUE;
    }

    bool OnKey(UINT nKey) override {
        if (nKey != VK_UP && nKey != VK_DOWN) return false;
        const int nNext = Chosen() + (nKey == VK_DOWN ? 1 : -1);
        m_list.SelectTabById(std::clamp(nNext, 0, static_cast<int>(m_shown.size()) - 1));
        Choose(m_list.GetActiveId());
        return true;
    }

private:
    static constexpr UINT kListId = 101;
    static constexpr int kListWidth = 96;

    bool IsShown(int nPlace) const { return nPlace >= 0 && nPlace < static_cast<int>(m_shown.size()); }

    void FillList() {
        std::vector<std::string> names;
        names.reserve(m_shown.size());
        for (const MoneyFlow& flow : m_shown) names.push_back(flow.name);
        m_list.ClearContent();
        AddTabs(m_list, names);
        if (IsShown(Chosen())) ChooseLater();
    }

    void Choose(int nPlace) {
        if (!IsShown(nPlace)) return;
        SetChosen(nPlace);
        Mark(this->TheChart(), nPlace);
    }

    /// As if its name had been clicked, when the page is in its place.
    void ChooseLater() {
        m_list.SelectTabById(Chosen());
        this->PostMessage(WM_COMMAND, kListId);
    }

    std::vector<IndustryDay> m_days;
    std::vector<MoneyFlow> m_shown;
    std::shared_ptr<Choice> m_pChoice;
    CProxy_TabCtrl m_list;
};

}  // namespace gallery
