// What the sector wheel keeps.
#include "foundation/control_window.h"
#include "foundation/library.h"
#include "foundation/text_copy.h"
#include "resources/resource.h"
#include "wheel_ctrl.h"

int TavlonBR::Init(CArray<tagmyBRData, tagmyBRData&>& data, const tagBlocksInfo& info) {
    m_blocksInfo = info;
    m_nCount = 0;  // should there be no memory for the lists
    m_bNew = true;
    const int nCount = static_cast<int>(data.GetSize());
    m_arrData.SetSize(nCount);
    for (int i = 0; i < nCount; ++i) m_arrData[i] = data[i];
    m_arrAngle.RemoveAll();
    for (const UINT nAngle : SpokeAngles(nCount)) m_arrAngle.Add(nAngle);
    ClearAreas();
    m_nCount = nCount;
    SelectNamed(FieldText(m_blocksInfo.current));
    LoadDot();
    return TRUE;
}

/// The last record of that name; without one the selection stays, as long as its record does.
void TavlonBR::SelectNamed(std::string_view name) {
    if (m_nSelect >= m_nCount) m_nSelect = -1;
    if (name.empty()) return;
    for (int i = 0; i < m_nCount; ++i) {
        if (EqualIgnoringCase(FieldText(m_arrData[i].name), name)) m_nSelect = i;
    }
}

void TavlonBR::ClearAreas() {
    for (auto* pAreas : {&m_arrDotArea, &m_arrLabelArea}) {
        pAreas->RemoveAll();
        pAreas->SetSize(m_arrData.GetSize());
    }
}

/// A wheel without the bitmap has no dots to be seen.
void TavlonBR::LoadDot() {
    m_bmpDot.DeleteObject();
    const HANDLE hDot = ::LoadImage(LibraryInstance(), MAKEINTRESOURCE(IDB_POINT_RED_BIG), IMAGE_BITMAP, 0, 0,
                                    LR_CREATEDIBSECTION);
    if (hDot != nullptr) m_bmpDot.Attach(hDot);
}

int TavlonBR::AngleOf(int nSector) const {
    return nSector < m_nCount - 1 ? static_cast<int>(m_arrAngle[nSector]) : 0;
}

void TavlonBR::SetUpdateTime(CTime& time) {
    m_tmUpdate = time;
    m_bShowTime = true;
    Invalidate();
}

int TavlonBR::SetTitle(CString& title) {
    if (title.GetLength() >= static_cast<int>(sizeof m_blocksInfo.title)) return FALSE;
    CopyText(m_blocksInfo.title, title);
    m_bNew = true;
    return TRUE;
}

int TavlonBR::GetCurBlockData(tagmyBRData& data) {
    if (m_nSelect < 0 || m_nSelect >= m_arrData.GetSize()) return FALSE;
    data = m_arrData[m_nSelect];
    return TRUE;
}

int TavlonBR::SetData(tagmyBRData& data) {
    const std::string_view name = FieldText(data.name);
    if (name.empty()) return FALSE;
    for (int i = 0; i < m_nCount; ++i) {
        if (EqualIgnoringCase(FieldText(m_arrData[i].name), name)) return SetData(i, data);
    }
    return FALSE;
}

int TavlonBR::SetData(int index, tagmyBRData& data) {
    if (index < 0 || index >= m_nCount || FieldText(data.name).empty()) return FALSE;
    m_arrData[index] = data;
    m_bNew = true;
    return TRUE;
}
