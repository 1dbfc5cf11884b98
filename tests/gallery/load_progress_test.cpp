// What a reader of files tells the one who waits, by a clock that the test sets, and the note on the screen.
#include "gallery/core/load_progress.h"

#include <gtest/gtest.h>

#include "gallery/core/csv.h"
#include "gallery/loading_note.h"
#include "scatter/radar_window.h"
#include "wrappers/host.h"

using namespace gallery;

namespace {

using Told = std::vector<std::pair<std::string, int>>;  ///< File and percent.

class LoadProgressTest : public testing::Test {
protected:
    LoadProgress::Clock Clock() {
        return [this] { return m_dwNow; };
    }
    LoadProgress::Tell TellMe() {
        return [this](const std::string& strFile, int nPercent) { m_told.emplace_back(strFile, nPercent); };
    }

    DWORD m_dwNow = 0xFFFFFFF0;  // the count starts again from 0 in between
    Told m_told;
};

}  // namespace

TEST_F(LoadProgressTest, ToldAfterHalfASecondAndThenNowAndAgain) {
    LoadProgress::Report("nobody", 1, 2);
    const DWORD dwStart = m_dwNow;
    const LoadProgress progress(TellMe(), Clock());
    struct Case {
        const char* pszName;
        DWORD dwAfter;
        std::size_t nDone;
        Told want;
    };
    for (const Case& c : {Case{"just before", 499, 10, {}}, Case{"half a second", 500, 20, {{"f", 20}}},
                          Case{"too soon", 549, 30, {}}, Case{"again", 550, 40, {{"f", 40}}},
                          Case{"after a long wait", 9000, 100, {{"f", 100}}},
                          Case{"more than all", 9100, 300, {{"f", 100}}}}) {
        SCOPED_TRACE(c.pszName);
        m_told.clear();
        m_dwNow = dwStart + c.dwAfter;
        LoadProgress::Report("f", c.nDone, 100);
        EXPECT_EQ(c.want, m_told);
    }
    m_told.clear();
    {
        const LoadProgress inner([this](const std::string&, int) { m_told.emplace_back("inner", 0); },
                                 Clock());
        m_dwNow += 500;
        LoadProgress::Report("f", 1, 2);
    }
    LoadProgress::Report("g", 1, 2);
    EXPECT_EQ((Told{{"inner", 0}, {"g", 50}}), m_told) << "the newest one is told";
}

TEST_F(LoadProgressTest, ATableTellsHowFarItIs) {
    std::string rows = "n\n";
    for (int n = 0; n < 2000; ++n) rows += "12345\n";
    const LoadProgress progress(TellMe(), [this] { return m_dwNow += 100; });
    CsvTable::Parse(rows, "t.csv");
    ASSERT_LT(2u, m_told.size());
    for (std::size_t n = 0; n < m_told.size(); ++n) {
        EXPECT_EQ("t.csv", m_told[n].first);
        EXPECT_LT(n == 0 ? 50 : m_told[n - 1].second, m_told[n].second);
    }
    EXPECT_GE(100, m_told.back().second);
}

TEST_F(LoadProgressTest, TheNoteCoversWhatIsThereAndGoes) {
    HostWindow host;
    CProxy_TabCtrl tabs;
    ASSERT_TRUE(tabs.Create(&host, CRect(0, 0, 200, 100), 1, TAB_HORZ_BOX));
    HostWindow::Pump();
    const auto look = [&host] {
        CClientDC dc(&host);
        return ShotOf(dc, 400, 300);
    };
    const CRect rcNote(0, 50, 200, 100);
    const Shot before = look();
    {
        const LoadingNote note(host, rcNote, Clock());
        LoadProgress::Report("some/where.csv", 1, 2);
        EXPECT_EQ(before, look());
        m_dwNow += 500;
        LoadProgress::Report("some/where.csv", 1, 2);
        EXPECT_NE(CPoint(-1, -1), before.FirstDifference(look(), rcNote));
        EXPECT_EQ(CPoint(-1, -1), before.FirstDifference(look(), CRect(0, 0, 200, 50)));
        EXPECT_EQ(CPoint(-1, -1), before.FirstDifference(look(), CRect(200, 50, 400, 300)));
    }
    HostWindow::Pump();
    EXPECT_EQ(before, look());
}
