#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

#include <string_view>

#include "wheel_geometry.h"

/// Where one sector was painted and can be clicked.
struct tagmyBRAreaInfo {
    tagmyBRData data;
    RECT rect;  ///< Client pixels.
};
static_assert(sizeof(tagmyBRAreaInfo) == 52 && offsetof(tagmyBRAreaInfo, data) == 0 &&
              offsetof(tagmyBRAreaInfo, rect) == 36);

/// Sector rotation wheel: one spoke a sector, its share as a dot. The exported contract is CProxy_BR.
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
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    using AreaArray = CArray<tagmyBRAreaInfo, tagmyBRAreaInfo&>;

    void SelectNamed(std::string_view name);
    void ClearAreas();
    void LoadDot();
    int AngleOf(int nSector) const;  ///< Whole degrees clockwise from twelve.
    int HitTest(CPoint point);       ///< The sector at that point, or -1.

    // Paint.
    void DrawInfo(CDC& dc);
    void DrawTitleBand(CDC& dc);
    CString SelectionText();
    void DrawWheel(CDC& dc);
    void DrawRings(CDC& dc, const WheelCircle& circle);
    void DrawSpokes(CDC& dc, const WheelCircle& circle, int nTextHeight);
    void DrawName(CDC& dc, int nSector, const NamePlace& place);
    void DrawTopSpoke(CDC& dc, const WheelCircle& circle, int nTextHeight);
    void DrawScale(CDC& dc, const WheelCircle& circle, const ShareRange& shares, int nTextHeight);
    void DrawDots(CDC& dc, const WheelCircle& circle, const ShareRange& shares);
    ShareRange GetValueRange();

    HWND m_hParent = nullptr;  ///< Told about double clicks.
    tagBlocksInfo m_blocksInfo{};
    CArray<tagmyBRData, tagmyBRData&> m_arrData;
    CUIntArray m_arrAngle;  ///< Of all records but the last, which stands at twelve.
    AreaArray m_arrDotArea;
    AreaArray m_arrLabelArea;
    CBitmap m_bmpDot;
    UINT m_nID = 0;
    int m_nCount = 0;
    int m_nSelect = -1;
    WheelLayout m_layout;
    CTime m_tmUpdate;
    bool m_bShowTime = false;
    bool m_bNew = false;  ///< What is kept has changed since the last paint.
};
