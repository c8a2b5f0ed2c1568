#pragma once
// Currency: a fixed-point number of 64 bits with four decimals, for the points of the cards.

#include <compare>
#include <cstdint>

class Currency {
public:
    static constexpr std::int64_t kUnidad = 10000;

    constexpr Currency() = default;
    constexpr Currency(int entero) : diezmilesimas_(std::int64_t{entero} * kUnidad) {}

    // From ten-thousandths: DeDiezmilesimas(5000) is one half.
    static constexpr Currency DeDiezmilesimas(std::int64_t n) {
        Currency c;
        c.diezmilesimas_ = n;
        return c;
    }
    // The nearest Currency, halves to the even neighbour.
    static Currency DeReal(double valor);

    constexpr std::int64_t Diezmilesimas() const { return diezmilesimas_; }
    constexpr double Real() const { return static_cast<double>(diezmilesimas_) / kUnidad; }

    constexpr Currency& operator+=(Currency otro) {
        diezmilesimas_ += otro.diezmilesimas_;
        return *this;
    }
    constexpr Currency& operator-=(Currency otro) {
        diezmilesimas_ -= otro.diezmilesimas_;
        return *this;
    }
    friend constexpr Currency operator+(Currency a, Currency b) { return a += b; }
    friend constexpr Currency operator-(Currency a, Currency b) { return a -= b; }
    friend constexpr auto operator<=>(Currency, Currency) = default;

private:
    std::int64_t diezmilesimas_ = 0;
};
