/// Where in a chart's data list a stock stands.
#pragma once

#include <array>
#include <cstddef>
#include <unordered_map>

/// Stocks that a radar takes; the star chart takes one more.
inline constexpr int k_nMostStocks = 3000;

/// Finds list positions by market byte and code. Codes are compared as texts that end at a zero or with their
/// field.
class StockIndex {
public:
    StockIndex();

    int Find(char cMarket, const char (&szCode)[11]) const;  ///< -1 when the stock is not there.
    void Add(char cMarket, const char (&szCode)[11], int nPosition);
    void Clear() { m_positions.clear(); }

private:
    using Key = std::array<char, 12>;  ///< Market and code; zero after the code's end.
    struct KeyHash {
        std::size_t operator()(const Key& key) const;
    };
    static Key MakeKey(char cMarket, const char (&szCode)[11]);

    std::unordered_map<Key, int, KeyHash> m_positions;
};
