/// Random figures that are the same on every platform for the same seed.
#pragma once

#include <windows.h>

#include <cstddef>
#include <random>

namespace scenes {

class Dice {
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}

    /// A whole number in [low, high]. The library's own distributions may differ from one to another.
    int Between(int low, int high) {
        const auto count = static_cast<std::mt19937::result_type>(high - low + 1);
        return low + static_cast<int>(m_engine() % count);
    }
    bool OneIn(int n) { return Between(1, n) == 1; }
    template <class T, std::size_t N>
    const T& Of(const T (&choices)[N]) {
        return choices[Between(0, static_cast<int>(N) - 1)];
    }
    COLORREF Colour() {
        // One after the other: arguments of one call have no order.
        const int red = Between(0, 255), green = Between(0, 255), blue = Between(0, 255);
        return RGB(red, green, blue);
    }

private:
    std::mt19937 m_engine;
};

}  // namespace scenes
