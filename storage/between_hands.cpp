#include "storage/between_hands.h"

#include <algorithm>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/session_state.h"
#include "table/game_row.h"
#include "table/pending_rules.h"

namespace {

constexpr int kMaximoFichas = 99; // of one denomination, in two columns

// The money when the hand began; a game without any has none there.
bool HabiaDinero() {
    return std::any_of(apuestas.RestoPrevio.begin(), apuestas.RestoPrevio.end(),
                       [](Integer resto) { return resto != 0; });
}

void PonDineroPrevio(EntreManos& entre_manos) {
    for (int asiento = 0; asiento <= 4; ++asiento) {
        const Tabla<Integer, 6> fichas = FichasDeResto(apuestas.RestoPrevio(asiento));
        for (int d = 1; d <= 6; ++d)
            entre_manos.fichas(asiento, d) = fichas(d);
        entre_manos.apuesta(asiento) = apuestas.ApuestaPrevia(asiento, kFaseApuestas);
    }
}

// The hand start that deals it again steps forward in the direction of that moment.
Integer AsientoDelQueSeAvanza(Integer asiento) {
    const int anterior = asiento - PasoDeLaProximaMano();
    return static_cast<Integer>(anterior < 1 ? 4 : anterior > 4 ? 1 : anterior);
}

EntreManos AntesDeLaMano() {
    EntreManos entre_manos = ComoEsta();
    if (entre_manos.juegos > 1)
        entre_manos.mano = AsientoDelQueSeAvanza(entre_manos.mano);
    --entre_manos.juegos;
    if (HabiaDinero())
        PonDineroPrevio(entre_manos);
    return entre_manos;
}

EntreManos TrasLaMano() {
    EntreManos entre_manos = ComoEsta();
    const FilaJuego* juego = FilaDe(estado.JuegoActivo);
    if (juego != nullptr && juego->dinero.banca_siguiente != nullptr)
        entre_manos.banca = juego->dinero.banca_siguiente();
    return entre_manos;
}

bool SobranFichas(const EntreManos& entre_manos, int asiento) {
    for (int d = 1; d <= 6; ++d) {
        if (entre_manos.fichas(asiento, d) > kMaximoFichas)
            return true;
    }
    return false;
}

void ReagrupaFichas(EntreManos& entre_manos, int asiento) {
    int puntos = 0;
    for (std::size_t d = 1; d <= 6; ++d)
        puntos += entre_manos.fichas(asiento, d) * kValorFicha[d];
    for (std::size_t d = 6; d >= 1; --d) {
        const int fichas = std::min(puntos / kValorFicha[d], kMaximoFichas);
        entre_manos.fichas(asiento, d) = static_cast<Integer>(fichas);
        puntos -= fichas * kValorFicha[d];
    }
}

} // namespace

EntreManos ComoEsta() {
    EntreManos entre_manos{
        estado.JuegosJugados, estado.JugadorMano, estado.JugadorBanca, apuestas.Fichas, {}};
    for (int asiento = 0; asiento <= 4; ++asiento)
        entre_manos.apuesta(asiento) = apuestas.Apuesta(asiento, 1, kFaseApuestas);
    return entre_manos;
}

EntreManos LoQueSeGuarda() {
    const bool mano_a_medias = estado.JuegosJugados > 0 && !sesion.mano_apuntada;
    EntreManos entre_manos = mano_a_medias ? AntesDeLaMano() : TrasLaMano();
    for (int asiento = 0; asiento <= 4; ++asiento) {
        if (SobranFichas(entre_manos, asiento))
            ReagrupaFichas(entre_manos, asiento);
    }
    return entre_manos;
}

void Repon(const EntreManos& entre_manos) {
    estado.JuegosJugados = entre_manos.juegos;
    estado.JugadorMano = entre_manos.mano;
    estado.JugadorBanca = entre_manos.banca;
    apuestas.Fichas = entre_manos.fichas;
    apuestas.Apuesta.Borra();
    for (int asiento = 0; asiento <= 4; ++asiento)
        apuestas.Apuesta(asiento, 1, kFaseApuestas) = entre_manos.apuesta(asiento);
}

void AnotaDineroPrevio() {
    for (int asiento = 0; asiento <= 4; ++asiento) {
        apuestas.RestoPrevio(asiento) = RestoDe(asiento);
        for (int fase = 1; fase <= kNumFases; ++fase)
            apuestas.ApuestaPrevia(asiento, fase) = apuestas.Apuesta(asiento, 1, fase);
    }
}
