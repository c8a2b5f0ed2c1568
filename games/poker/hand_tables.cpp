#include "games/poker/hand_tables.h"

#include <array>
#include <string_view>

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/poker/deck_counts.h"
#include "games/poker/draw_odds.h"
#include "games/poker/poker_state.h"

namespace {

// From so many ranks left out on, a Trío beats Figuras and a Color beats a Full.
constexpr Integer kBarajaCorta = 4;

// The blanks behind the names of a short deck belong to them.
constexpr std::array<const char*, 4> kNombresLargos{"Trio", "Figuras", "Color", "Full"};
constexpr std::array<const char*, 4> kNombresCortos{"Figuras     ", "Trio        ", "Full        ",
                                                    "Color       "};

void PonNumeros(bool corta) {
    poker.ProyEscalera3 = 1;
    poker.ProyEscalColor3 = 2;
    poker.ProyFiguras = 3;
    poker.ProyEscalera = 4;
    poker.ProyColor = 5;
    poker.ProyEscalColor = 6;
    poker.CartaMayor = 7;
    poker.Pareja = 8;
    poker.DoblePareja = 9;
    poker.Trio = corta ? 11 : 10;
    poker.Figuras = corta ? 10 : 11;
    poker.Escalera = 12;
    poker.Color = corta ? 14 : 13;
    poker.Full = corta ? 13 : 14;
    poker.Poker = 15;
    poker.EscaleraColor = 16;
    poker.Repoker = 17;
}

void PonNombres(bool corta) {
    const auto& cambian = corta ? kNombresCortos : kNombresLargos;
    const std::array<const char*, kCategorias> nombres{"Proyecto 3 Escalera",
                                                       "Proy. 3 Escal.color",
                                                       "Proyecto Figuras",
                                                       "Proyecto Escalera",
                                                       "Proyecto Color",
                                                       "Proy. Escal.color",
                                                       "Carta mayor",
                                                       "Pareja",
                                                       "Doble Pareja",
                                                       cambian[0],
                                                       cambian[1],
                                                       "Escalera",
                                                       cambian[2],
                                                       cambian[3],
                                                       "Póker",
                                                       "Escalera de color",
                                                       "Repóker"};
    for (int n = 1; n <= kCategorias; ++n)
        poker.NombreJugada(n) = nombres[static_cast<std::size_t>(n - 1)];
}

void PonCuentas(const CuentasBaraja& cuentas) {
    poker.TotalCombinaciones = cuentas.Total();
    for (int n = 1; n <= kCategorias; ++n) {
        poker.CuentaJugada(n) = cuentas.De(n);
        poker.PorcJugada(n) = static_cast<double>(cuentas.De(n)) / cuentas.Total() * 100;
    }
}

} // namespace

void CargaTablasPoker() {
    const bool corta = estado.CartasBaraja >= kBarajaCorta;
    PonNumeros(corta);
    PonNombres(corta);
    PonCuentas(CuentasDe(estado.CartasBaraja, estado.ComodinesJuego));
    CargaProbabilidades();
}
