#include "games/blackjack/blackjack_decision.h"

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "games/blackjack/strategy_tables.h"
#include "games/common/bank_decision.h"
#include "games/common/series.h"

namespace {

// The bet, in tenths of ApuestaMaxima: a seat at ease that does not play well enough to be careful puts in more.
constexpr int kDecimosDeApuesta = 2, kDecimosConHolgura = 4;
constexpr Integer kNivelPrudente = 75;

// The insurance: taken with these points, left with eleven by those who play well.
constexpr int kMinimoConSeguro = 12, kMaximoConSeguro = 18, kPuntosSinSeguro = 11;
constexpr Integer kNivelSinSeguro = 75;

// A level below this, once for each step of character, opens and doubles against the table.
constexpr int kNivelTorpe = 25;
// Whoever loses his nerve does so from this sum on, and one more for each step of character.
constexpr int kSumaConNervios = 13;

// The hand as it lies.
struct Jugada {
    int puntos = 0;
    bool blanda = false;
    Integer primera = 0; // the valor of its first card
    Integer banca = 0;   // the valor of the bank's first card
};

Jugada JugadaDelTurno(Integer asiento) {
    const auto puntos = static_cast<int>(PuntosSerie(asiento, estado.SerieActual));
    return {.puntos = puntos,
            .blanda = series.ManoBlanda,
            .primera = estado.Mano(asiento, estado.SerieActual, 1, kValor),
            .banca = estado.Mano(estado.JugadorBanca, 1, 1, kValor)};
}

Integer ProponApuesta(const Criterio& quien) {
    const Integer maxima = estado.ApuestaMaxima;
    const bool holgado = quien.resto > quien.reserva && quien.nivel < kNivelPrudente;
    const int decimos = (holgado ? kDecimosConHolgura : kDecimosDeApuesta) + quien.caracter;
    Integer apuesta = RedondeaCociente(1LL * maxima * decimos, 10);
    if (quien.nivel < kNivelPrudente || quien.resto > 2 * quien.reserva) {
        const long long decimo = (quien.caracter * quien.azar + kAzarEntero) * 1LL * maxima;
        apuesta = RedondeaCociente(decimo + 10LL * kAzarEntero * apuesta, 10LL * kAzarEntero);
    }
    return ApuestaAdmisible(apuesta, quien.resto);
}

bool Asegura(const Criterio& quien, const Jugada& mano) {
    if (mano.puntos == kPuntosSinSeguro && quien.caracter != kConservador &&
        quien.nivel > kNivelSinSeguro) {
        return false;
    }
    return quien.resto < quien.reserva ||
           (mano.puntos >= kMinimoConSeguro && mano.puntos <= kMaximoConSeguro);
}

// What costs a stake: where the table says so, if the funds are enough for comfort or chance makes bold; against the
// table, by whoever has money and plays badly. That is on purpose, and more so with a bolder character.
bool Arriesga(const Criterio& quien, bool segun_tabla, bool holgado) {
    if (segun_tabla)
        return holgado || quien.Dado() < quien.caracter;
    return quien.resto > quien.reserva && quien.nivel < kNivelTorpe * quien.caracter;
}

bool Abre(const Criterio& quien, const Jugada& mano) {
    const auto cuenta = static_cast<int>(estado.ValorCarta(mano.primera).Real());
    const bool segun_tabla = kTablaAbrirElPar.Letra(cuenta, mano.banca) == 'S';
    return Arriesga(quien, segun_tabla, 2 * quien.resto >= quien.reserva);
}

// The printed table leaves two doubles out that are made all the same, on purpose: 9 against a 2, and 11 against an
// As, which the rules never offer.
bool DoblaSegunTabla(const Jugada& mano) {
    return kTablaManoDura.Letra(mano.puntos, mano.banca) == 'D' ||
           (mano.puntos == 9 && mano.banca == 2) || (mano.puntos == 11 && mano.banca == kAs);
}

bool Dobla(const Criterio& quien, const Jugada& mano) {
    return Arriesga(quien, DoblaSegunTabla(mano), 3 * quien.resto >= 2 * quien.reserva);
}

// Whatever has no row stands: so do two Ases that cannot be opened, a soft 12, on purpose.
bool PideSegunTabla(const Jugada& mano) {
    const TablaEstrategia& tabla = mano.blanda ? kTablaManoBlanda : kTablaManoDura;
    const char letra = tabla.Letra(mano.puntos, mano.banca);
    return letra == 'C' || letra == 'D';
}

bool PierdeLosNervios(const Criterio& quien, const Jugada& mano) {
    return 1 + quien.azar / kAzarCentesima > quien.nivel &&
           mano.puntos >= quien.caracter + kSumaConNervios;
}

void DecideJugada(const Criterio& quien) {
    const Jugada mano = JugadaDelTurno(quien.asiento);
    series.ConsejoSeguro = series.PuedeAsegurar && Asegura(quien, mano);
    series.ConsejoAbrir = series.PuedeAbrir && Abre(quien, mano);
    series.ConsejoDoblar = series.PuedeDoblar && Dobla(quien, mano);
    series.ConsejoServido =
        series.ConsejoAbrir || !PideSegunTabla(mano) || PierdeLosNervios(quien, mano);
}

} // namespace

void DecideBlackJack() {
    const Criterio quien = CriterioDelTurno();
    if (apuestas.FaseApuesta == kFaseApuestas)
        apuestas.ApuestaPropuesta = ProponApuesta(quien);
    else if (apuestas.FaseApuesta == kFaseJuego)
        DecideJugada(quien);
}
