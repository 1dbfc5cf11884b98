#pragma once

#include <algorithm>
#include <type_traits>
#include <vector>

#include "exceptions.h"

/// A list with checked access: an index outside it raises CInvalidArgException and changes nothing.
/// New elements are value-initialised (records are all zero). Growth is geometric.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject {
    static_assert(!std::is_same_v<TYPE, bool>, "use BOOL elements: a list of bool has no element addresses");

public:
    CArray() = default;

    INT_PTR GetSize() const { return static_cast<INT_PTR>(m_items.size()); }
    INT_PTR GetCount() const { return GetSize(); }
    INT_PTR GetUpperBound() const { return GetSize() - 1; }  ///< -1 when empty.
    BOOL IsEmpty() const { return m_items.empty(); }

    /// nGrowBy below 0 keeps the growth as it was; above 0 it is the least number of elements to grow by.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    void RemoveAll() { m_items.clear(); }
    void FreeExtra() { m_items.shrink_to_fit(); }

    TYPE& GetAt(INT_PTR nIndex) { return m_items[Checked(nIndex)]; }
    const TYPE& GetAt(INT_PTR nIndex) const { return m_items[Checked(nIndex)]; }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { m_items[Checked(nIndex)] = newElement; }
    TYPE& ElementAt(INT_PTR nIndex) { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return GetAt(nIndex); }
    const TYPE& operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE* GetData() { return m_items.data(); }
    const TYPE* GetData() const { return m_items.data(); }

    INT_PTR Add(ARG_TYPE newElement);                     ///< Index of the new element.
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement);  ///< Grows the list when the index is beyond it.
    INT_PTR Append(const CArray& src);                    ///< Index of the first appended element.
    void Copy(const CArray& src) { m_items = src.m_items; }

    /// An index beyond the end first grows the list up to it.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1);
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1);

    // Range-based for loops.
    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    size_t Checked(INT_PTR nIndex) const {
        if (nIndex < 0 || nIndex >= GetSize()) [[unlikely]]
            AfxThrowInvalidArgException();
        return static_cast<size_t>(nIndex);
    }
    void Require(INT_PTR nSize);

    std::vector<TYPE> m_items;
    INT_PTR m_nGrowBy = 0;
};

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Require(INT_PTR nSize) {
    const size_t nWanted = static_cast<size_t>(nSize);
    if (nWanted > m_items.max_size()) AfxThrowMemoryException();
    if (nWanted <= m_items.capacity()) return;
    const size_t nGrown = m_items.size() + std::max(m_items.size(), static_cast<size_t>(m_nGrowBy));
    m_items.reserve(std::min(std::max(nWanted, nGrown), m_items.max_size()));
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy) {
    if (nNewSize < 0) AfxThrowInvalidArgException();
    if (nGrowBy >= 0) m_nGrowBy = std::min<INT_PTR>(nGrowBy, 1 << 20);
    Require(nNewSize);
    m_items.resize(static_cast<size_t>(nNewSize));
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::Add(ARG_TYPE newElement) {
    m_items.push_back(newElement);
    return GetUpperBound();
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement) {
    if (nIndex < 0) AfxThrowInvalidArgException();
    TYPE item(newElement);  // the argument may be an element of this list, which growing moves
    if (nIndex >= GetSize()) SetSize(nIndex + 1);
    m_items[static_cast<size_t>(nIndex)] = item;
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::Append(const CArray& src) {
    const INT_PTR nOldSize = GetSize();
    const std::vector<TYPE> items(src.m_items);  // a copy: the source may be this list
    m_items.insert(m_items.end(), items.begin(), items.end());
    return nOldSize;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount) {
    if (nIndex < 0 || nCount < 0) AfxThrowInvalidArgException();
    if (nCount == 0) return;
    const TYPE item(newElement);
    if (nIndex > GetSize()) SetSize(nIndex);
    m_items.insert(m_items.begin() + nIndex, static_cast<size_t>(nCount), item);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::RemoveAt(INT_PTR nIndex, INT_PTR nCount) {
    if (nIndex < 0 || nCount < 0 || nCount > GetSize() || nIndex > GetSize() - nCount)
        AfxThrowInvalidArgException();
    m_items.erase(m_items.begin() + nIndex, m_items.begin() + nIndex + nCount);
}

/// A list of unsigned numbers.
class CUIntArray : public CArray<UINT, UINT> {};
