#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

#include <string_view>

/// Where one sector was painted and can be clicked.
struct tagmyBRAreaInfo {
    tagmyBRData data;
    RECT rect;  ///< Client pixels.
};
static_assert(sizeof(tagmyBRAreaInfo) == 52 && offsetof(tagmyBRAreaInfo, data) == 0 &&
              offsetof(tagmyBRAreaInfo, rect) == 36);

/// Sector rotation wheel: keeps sectors, title, time and selection. The exported contract is CProxy_BR.
/// Paints its background only so far; there is nothing to click, so the selection is the one that Init made.
class TavlonBR : public CWnd {
    DECLARE_DYNAMIC(TavlonBR)
public:
    int Create(CWnd* pParent, CRect rect, UINT nID);
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    int Init(CArray<tagmyBRData, tagmyBRData&>& data, const tagBlocksInfo& info);
    int Play() { return TRUE; }
    int Stop() { return TRUE; }
    void ReDraw();
    void SetUpdateTime(CTime& time);
    int SetTitle(CString& title);
    void GetBlocksInfo(tagBlocksInfo& info) const { info = m_blocksInfo; }
    int GetCurBlockData(tagmyBRData& data);
    int SetData(tagmyBRData& data);
    int SetData(int index, tagmyBRData& data);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    void SelectNamed(std::string_view name);
    void SpreadAngles();
    void ClearAreas();

    HWND m_hParent = nullptr;  ///< Told about double clicks.
    tagBlocksInfo m_blocksInfo{};
    CArray<tagmyBRData, tagmyBRData&> m_arrData;
    CUIntArray m_arrAngle;  ///< Whole degrees clockwise from twelve, all records but the last.
    CArray<tagmyBRAreaInfo, tagmyBRAreaInfo&> m_arrDotArea;
    CArray<tagmyBRAreaInfo, tagmyBRAreaInfo&> m_arrLabelArea;
    UINT m_nID = 0;
    int m_nCount = 0;
    int m_nSelect = -1;
    CTime m_tmUpdate;
    bool m_bShowTime = false;
};
