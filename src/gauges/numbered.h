#pragma once

#include <cstddef>

/// The gauges' elements (arrows, camps, levels, blocks) are numbered from 1; any other number stores nothing.
template <class Value, std::size_t nCount>
void StoreNumbered(Value (&elements)[nCount], int nWhich, Value value) {
    if (nWhich >= 1 && nWhich <= static_cast<int>(nCount)) elements[nWhich - 1] = value;
}
