#pragma once
// The fixed tables of the game state: contiguous, checked, indexed as the rules write them.

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

// The whole numbers of the game. Integer is also what the files hold.
using Integer = std::int16_t;
using Long = std::int32_t;

// An index outside the bounds of a table: always a mistake of the caller, in every build.
struct IndiceFuera : std::out_of_range {
    using std::out_of_range::out_of_range;
};

[[noreturn]] void LanzaIndiceFuera(std::size_t dimension, long long indice, int tope);

// Tabla<T, A, B> is a table with the indices 0..A and 0..B. Most tables are used from 1 and keep the
// element 0 spare; where 0 means something (the pot, an empty key) the field's own comment says so.
// operator() answers the element; an index outside 0..tope throws IndiceFuera.
template <class T, int... Topes>
class Tabla {
public:
    using Valor = T;
    static constexpr std::size_t kDimensiones = sizeof...(Topes);
    static constexpr std::array<int, kDimensiones> kTopes{Topes...};
    static constexpr std::size_t kTotal = (static_cast<std::size_t>(Topes + 1) * ...);

    template <std::integral... I>
    requires(sizeof...(I) == sizeof...(Topes)) T& operator()(I... indices) {
        return celdas_[Celda(indices...)];
    }

    template <std::integral... I>
    requires(sizeof...(I) == sizeof...(Topes)) const T& operator()(I... indices) const {
        return celdas_[Celda(indices...)];
    }

    void Borra() { celdas_.fill(T{}); }

    // The elements under one value of the first index.
    void BorraFila(int indice) {
        if (indice < 0 || indice > kTopes[0])
            LanzaIndiceFuera(1, indice, kTopes[0]);
        constexpr std::size_t kLargo = kTotal / static_cast<std::size_t>(kTopes[0] + 1);
        std::fill_n(celdas_.begin() + static_cast<std::ptrdiff_t>(kLargo) * indice, kLargo, T{});
    }

    // The elements one after the other, the last index turning fastest.
    auto begin() { return celdas_.begin(); }
    auto end() { return celdas_.end(); }
    auto begin() const { return celdas_.begin(); }
    auto end() const { return celdas_.end(); }

    friend bool operator==(const Tabla&, const Tabla&) = default;

private:
    template <class... I>
    static std::size_t Celda(I... indices) {
        return Celda(std::make_index_sequence<kDimensiones>{}, indices...);
    }

    template <std::size_t... Dimension, class... I>
    static std::size_t Celda(std::index_sequence<Dimension...>, I... indices) {
        std::size_t celda = 0;
        ((celda = celda * (kTopes[Dimension] + 1) + Lugar<Dimension>(indices)), ...);
        return celda;
    }

    // One signed type for all: a huge unsigned index comes out below 0, and both are beyond the last place.
    template <std::size_t Dimension, class I>
    static std::size_t Lugar(I indice) {
        const auto lugar = static_cast<std::size_t>(static_cast<long long>(indice));
        if (lugar > static_cast<std::size_t>(kTopes[Dimension]))
            LanzaIndiceFuera(Dimension + 1, static_cast<long long>(indice), kTopes[Dimension]);
        return lugar;
    }

    std::array<T, kTotal> celdas_{};
};
