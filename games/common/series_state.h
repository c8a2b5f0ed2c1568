#pragma once
// The state that the two games with a bank share, Black Jack and Siete y media. Plain data, like the block of
// core/game_state.h, and reached the same way: `series.ManoBlanda`.

struct EstadoSeries {
    // What PuntosSerie has found, in Black Jack: an As counted eleven, or none did.
    bool ManoBlanda = false;
    bool ManoDura = false;

    friend bool operator==(const EstadoSeries&, const EstadoSeries&) = default;
};

extern EstadoSeries series;
