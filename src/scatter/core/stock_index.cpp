#include "stock_index.h"

#include <algorithm>
#include <string_view>

#include "foundation/text_copy.h"

StockIndex::StockIndex() { m_positions.reserve(k_nMostStocks); }

std::size_t StockIndex::KeyHash::operator()(const Key& key) const {
    return std::hash<std::string_view>{}({key.data(), key.size()});
}

StockIndex::Key StockIndex::MakeKey(char cMarket, const char (&szCode)[11]) {
    const std::string_view code = FieldText(szCode);
    Key key{cMarket};
    std::copy(code.begin(), code.end(), key.begin() + 1);
    return key;
}

int StockIndex::Find(char cMarket, const char (&szCode)[11]) const {
    const auto found = m_positions.find(MakeKey(cMarket, szCode));
    return found != m_positions.end() ? found->second : -1;
}

void StockIndex::Add(char cMarket, const char (&szCode)[11], int nPosition) {
    m_positions[MakeKey(cMarket, szCode)] = nPosition;
}
