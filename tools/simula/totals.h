#pragma once
// What a run of matches adds up to. Adding two runs gives the totals of both in whatever order they were
// played, so the work may be shared out.

#include <array>
#include <cstdint>

struct Totales {
    std::int64_t partidas = 0;
    std::int64_t manos = 0;
    std::array<std::int64_t, 5> ganadas{}; // matches won, by seat 1..4 (by pair 1..2)
    std::uint64_t firma = 0;

    Totales& operator+=(const Totales& otros) {
        partidas += otros.partidas;
        manos += otros.manos;
        for (std::size_t i = 0; i < ganadas.size(); ++i)
            ganadas[i] += otros.ganadas[i];
        firma += otros.firma;
        return *this;
    }
    friend bool operator==(const Totales&, const Totales&) = default;
};
