/// Seeded hostile values for any argument of an exported method or a message.
#pragma once

#include <tavlon/tavlon.h>

#include <climits>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <type_traits>

class Dice {
public:
    Dice(unsigned nSeed, CWnd*& pParent) : m_engine(nSeed), m_pParent(pParent) {}

    /// A whole number in [nLow, nHigh].
    int Between(int nLow, int nHigh) { return std::uniform_int_distribution<int>(nLow, nHigh)(m_engine); }
    bool OneIn(int n) { return Between(1, n) == 1; }
    std::uint64_t Bits() { return m_engine(); }

    /// A value of type T: plausible half the time, hostile otherwise.
    template <class T>
    T Make() {
        if constexpr (std::is_same_v<T, bool>) {
            return OneIn(2);
        } else if constexpr (std::is_enum_v<T>) {
            return static_cast<T>(Between(-1, 4));
        } else if constexpr (std::is_floating_point_v<T>) {
            return static_cast<T>(Real());
        } else if constexpr (std::is_integral_v<T>) {
            return static_cast<T>(Whole());
        } else if constexpr (std::is_same_v<T, CRect>) {
            return Rect();
        } else if constexpr (std::is_same_v<T, CTime>) {
            return CTime(
                static_cast<time_t>(OneIn(2) ? Between(0, INT_MAX) : static_cast<std::int64_t>(Bits())));
        } else if constexpr (std::is_same_v<T, CString>) {
            return CString(Text());
        } else if constexpr (std::is_same_v<T, char*> || std::is_same_v<T, const char*>) {
            return OneIn(8) ? nullptr : Text();
        } else if constexpr (std::is_same_v<T, CWnd*>) {
            return OneIn(8) ? nullptr : m_pParent;
        } else {
            return Record<T>();
        }
    }

private:
    int Whole() {
        static constexpr int kOdd[] = {INT_MIN, INT_MAX, -1, 0, 1, INT_MIN + 1, 32767, 32768, 65536, -32769};
        return OneIn(3) ? kOdd[Between(0, std::size(kOdd) - 1)] : Between(-20, 400);
    }

    double Real() {
        using Limits = std::numeric_limits<double>;
        static constexpr double kOdd[] = {Limits::quiet_NaN(),
                                          Limits::infinity(),
                                          -Limits::infinity(),
                                          1e308,
                                          -1e308,
                                          Limits::denorm_min(),
                                          -0.0,
                                          2147483648.0,
                                          1e16};
        return OneIn(4) ? kOdd[Between(0, std::size(kOdd) - 1)] : Between(-100000, 300000) / 1000.0;
    }

    CRect Rect() {
        if (OneIn(12)) return CRect(Whole(), Whole(), Whole(), Whole());
        return CRect(0, 0, Between(0, 300), Between(0, 200));
    }

    /// Terminated text of any bytes, at most a little longer than the longest field.
    char* Text() {
        const std::size_t cb = static_cast<std::size_t>(OneIn(4) ? Between(0, 600) : Between(0, 12));
        m_text.resize(cb);
        for (char& ch : m_text) ch = static_cast<char>(Between(1, 255));
        return m_text.data();
    }

    /// An interface record of random bytes, or one in which numbers are likely and text has no terminator.
    template <class T>
    T Record() {
        static_assert(std::is_trivially_copyable_v<T>);
        T record;
        auto* pBytes = reinterpret_cast<unsigned char*>(&record);
        const bool bAnyBytes = OneIn(2);
        for (std::size_t i = 0; i < sizeof record; ++i)
            pBytes[i] = static_cast<unsigned char>(bAnyBytes ? Between(0, 255) : Between('A', 'C'));
        if constexpr (requires { record.dX, record.dY; }) record.dX = Real(), record.dY = Real();
        if constexpr (requires { record.dValue; }) record.dValue = Real();
        if constexpr (requires { record.dXValue; }) record.dXValue = Real(), record.dYValue = Real();
        if constexpr (requires { record.fPrice; }) record.fPrice = static_cast<float>(Real());
        if constexpr (requires { record.nTime; }) record.nTime = static_cast<unsigned>(Whole());
        if constexpr (requires { record.nDecimal; }) record.nDecimal = Whole();
        if constexpr (requires { record.nIndex; }) record.nIndex = Between(-1, 8);
        return record;
    }

    std::mt19937_64 m_engine;
    CWnd*& m_pParent;
    std::string m_text;
};
