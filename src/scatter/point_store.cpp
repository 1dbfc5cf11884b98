#include <tavlon/point_store.h>

#include <cstdio>

#include "scatter/core/stock_index.h"

PointStore::PointStore() : m_pIndex(std::make_unique<StockIndex>()) {}

PointStore::~PointStore() = default;

bool PointStore::StorePoint(tagPointRadarItemData& item) {
    if (m_arrData.GetSize() >= k_nMostStocks) return false;
    const int nHeld = FindStockWithItemData(item);
    if (nHeld >= 0)
        m_arrData[nHeld] = item;
    else
        m_pIndex->Add(item.cMarket, item.szCode, static_cast<int>(m_arrData.Add(item)));
    return true;
}

int PointStore::FindStockWithItemData(const tagPointRadarItemData& item) const {
    return m_pIndex->Find(item.cMarket, item.szCode);
}

void PointStore::ClearPoints() {
    m_nActiveBlockId = -1;
    m_arrData.RemoveAll();
    m_arrShown.RemoveAll();
    m_pIndex->Clear();
}

void PointStore::ActivateBlock(int nId, const char* pszName) {
    constexpr int k_nNameLength = 254;
    m_nActiveBlockId = nId;
    std::snprintf(m_szActiveBlock, sizeof m_szActiveBlock, "%.*s", k_nNameLength,
                  pszName != nullptr ? pszName : "");
}
