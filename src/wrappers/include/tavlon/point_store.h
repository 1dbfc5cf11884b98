#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

#include <memory>

class StockIndex;

/// The points of a radar and the block that stands out among them; a radar inherits it privately. Repaints
/// nothing.
struct PointStore {
    PointStore();
    ~PointStore();

    /// Adds a point, or replaces the one of the same stock. False, changing nothing, when the store is full,
    /// even if the item is one of those held.
    bool StorePoint(tagPointRadarItemData& item);
    int FindStockWithItemData(const tagPointRadarItemData& item) const;  ///< Index in m_arrData, or -1.
    void ClearPoints();                                ///< Deactivates the block as well; its name stays.
    void ActivateBlock(int nId, const char* pszName);  ///< Keeps 254 bytes of the name; null is empty.

    CArray<tagPointRadarItemData, tagPointRadarItemData&> m_arrData;   ///< One record a stock, at most 3000.
    CArray<tagPointRadarItemData, tagPointRadarItemData&> m_arrShown;  ///< Those in range, in drawing order.
    int m_nActiveBlockId = -1;                                         ///< -1: none.
    char m_szActiveBlock[256] = "";

private:
    std::unique_ptr<StockIndex> m_pIndex;  ///< Where in m_arrData a stock stands.
};
