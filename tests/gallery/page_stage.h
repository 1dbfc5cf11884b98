/// Pages in a window of a test, on files of its own.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "gallery/page.h"
#include "scatter/radar_window.h"
#include "wrappers/host.h"

constexpr UINT kChartId = 100;  ///< Of a page's first control.

class PageStage : public testing::Test {
protected:
    using Maker = std::unique_ptr<gallery::Page> (*)(const gallery::PageSettings&);

    PageStage() { std::filesystem::create_directories(m_settings.dataDir); }
    ~PageStage() override { std::filesystem::remove_all(m_settings.dataDir); }

    void Write(const char* pszName, const std::string& text) const {
        std::ofstream(m_settings.dataDir / pszName, std::ios::binary) << text;
    }

    std::unique_ptr<gallery::Page> Open(Maker pfnMake, const CRect& rc = CRect(0, 0, 400, 300)) {
        std::unique_ptr<gallery::Page> pPage = pfnMake(m_settings);
        EXPECT_TRUE(pPage->CreateOn(m_host, rc));
        HostWindow::Pump();
        return pPage;
    }

    /// A control of the page, painted anew.
    static Shot Look(const gallery::Page& page, UINT nId = kChartId) {
        const HWND hWnd = ControlIn(page, nId);
        ::InvalidateRect(hWnd, nullptr, TRUE);
        ::UpdateWindow(hWnd);
        CRect rc;
        ::GetClientRect(hWnd, &rc);
        CClientDC dc(CWnd::FromHandle(hWnd));
        return ShotOf(dc, rc.Width(), rc.Height());
    }

    static void Press(const gallery::Page& page, UINT nKey, int nTimes = 1) {
        MSG msg{};
        msg.hwnd = ControlIn(page, kChartId), msg.message = WM_KEYDOWN, msg.wParam = nKey;
        for (int n = 0; n < nTimes; ++n) EXPECT_TRUE(AfxPreTranslateMessage(&msg));
    }

    static void Click(const gallery::Page& page, UINT nId, CPoint pt) {
        ::SendMessage(ControlIn(page, nId), WM_LBUTTONDOWN, 0, MAKELPARAM(pt.x, pt.y));
        HostWindow::Pump();
    }

    /// Tests run at the same time.
    static std::filesystem::path FolderOfTheTest() {
        const testing::TestInfo* const pTest = testing::UnitTest::GetInstance()->current_test_info();
        return std::filesystem::temp_directory_path() /
               ("tavlon_" + std::string(pTest->test_suite_name()) + "_" + pTest->name());
    }

    gallery::PageSettings m_settings{.dataDir = FolderOfTheTest()};
    HostWindow m_host;
};
