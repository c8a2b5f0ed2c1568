#include "games/common/bank_decision.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "betting/chips.h"
#include "core/game_state.h"
#include "core/numeric.h"

namespace {

constexpr Integer kNivelTutor = 100;
// The reserve in tenths of RestoInicial, by character.
constexpr std::array<int, 4> kDecimosDeReserva{0, 12, 8, 5};
// Bets are made in fives from this ApuestaMaxima on, and above this part of it.
constexpr Integer kMaximaConCincos = 30, kParteSinCincos = 5;

Integer ReservaDe(Integer caracter) {
    const int decimos = kDecimosDeReserva.at(static_cast<std::size_t>(caracter));
    return RedondeaCociente(1LL * estado.RestoInicial * decimos, 10);
}

int EnMillonesimas(float azar) {
    return std::min(static_cast<int>(std::lround(EnDecimal(azar) * kAzarEntero)), kAzarEntero - 1);
}

} // namespace

int Criterio::Dado() const {
    return 1 + 3 * azar / kAzarEntero;
}

Criterio CriterioDelTurno() {
    const Integer asiento = estado.JugadorActual;
    const Integer caracter = estado.CaracterJugador(asiento);
    return {.asiento = asiento,
            .nivel = estado.TutorPulsado ? kNivelTutor : estado.NivelJugador(asiento),
            .caracter = caracter,
            .resto = RestoDe(asiento),
            .reserva = ReservaDe(caracter),
            .azar = EnMillonesimas(estado.AzarTurno)};
}

Integer ApuestaAdmisible(Integer apuesta, Integer resto) {
    const Integer maxima = estado.ApuestaMaxima;
    if (kParteSinCincos * apuesta > maxima && maxima >= kMaximaConCincos)
        apuesta = static_cast<Integer>(apuesta - apuesta % 5);
    return std::max(std::min({apuesta, maxima, resto, RestoDe(estado.JugadorBanca)}), Integer{1});
}
