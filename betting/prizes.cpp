#include "betting/prizes.h"

#include <algorithm>
#include <vector>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "core/game_state.h"
#include "core/numeric.h"

namespace {

int EnJuego(Integer asiento) {
    return ApuestaTotal(asiento, 1);
}

int MayorApuesta() {
    int mayor = 0;
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        mayor = std::max(mayor, EnJuego(asiento));
    return mayor;
}

std::vector<Integer> ConPuesto(Integer puesto) {
    std::vector<Integer> asientos;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (apuestas.PuestoJugador(asiento) == puesto)
            asientos.push_back(asiento);
    }
    return asientos;
}

// All in for less than another has bet: it can win no more than its own stake from each.
bool EsCorto(Integer asiento, int mayor) {
    return estado.NumCartas(asiento, 1) > 0 && RestoDe(asiento) == 0 && EnJuego(asiento) < mayor;
}

// What every winner has a right to: of each stake as much as the shortest winner has put in.
int ParteComun(const std::vector<Integer>& ganadores, int mayor) {
    int minimo = mayor;
    for (const Integer asiento : ganadores) {
        if (EsCorto(asiento, mayor))
            minimo = std::min(minimo, EnJuego(asiento));
    }
    int suma = 0;
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        suma += std::min(EnJuego(asiento), minimo);
    // A file may have told of bets that its pot does not hold: nobody is paid what is not there.
    return std::min(suma, static_cast<int>(RestoDe(kBote)));
}

void Premia(Integer asiento, int puntos) {
    apuestas.PremioJugador(asiento) = EnteroDe(apuestas.PremioJugador(asiento) + puntos);
}

// Beyond the common part the full winners share, to the nearest point: the first winner of all settles the
// difference, and may so be a point short. One that has nothing to be short of leaves it to the first full one.
void PremiaPlenos(const std::vector<Integer>& plenos, Integer primero, int resto) {
    const int cuantos = static_cast<int>(plenos.size());
    const int extra = Redondea(static_cast<double>(resto) / cuantos);
    const int sobra = resto - extra * cuantos;
    for (const Integer asiento : plenos)
        Premia(asiento, extra);
    const bool sin_nada = apuestas.PremioJugador(primero) == 0;
    Premia(sobra < 0 && sin_nada ? plenos.front() : primero, sobra);
}

// With short winners alone the rest goes to the seats behind them, short or not, which is meant; when all of
// those have folded, to the first winner.
void PremiaSegundos(Integer primero, int resto) {
    std::vector<Integer> segundos = ConPuesto(2);
    if (segundos.empty())
        segundos.push_back(primero);
    const int cuantos = static_cast<int>(segundos.size());
    for (const Integer asiento : segundos)
        Premia(asiento, resto / cuantos);
    Premia(segundos.front(), resto % cuantos);
}

} // namespace

void RepartePremios() {
    apuestas.PremioJugador.Borra();
    const std::vector<Integer> ganadores = ConPuesto(1);
    if (ganadores.empty())
        return;
    const int mayor = MayorApuesta();
    const int cuota = ParteComun(ganadores, mayor) / static_cast<int>(ganadores.size());
    const int resto = RestoDe(kBote) - cuota * static_cast<int>(ganadores.size());
    for (const Integer asiento : ganadores)
        Premia(asiento, cuota);

    std::vector<Integer> plenos = ganadores;
    std::erase_if(plenos, [mayor](Integer asiento) { return EsCorto(asiento, mayor); });
    if (plenos.empty())
        PremiaSegundos(ganadores.front(), resto);
    else
        PremiaPlenos(plenos, ganadores.front(), resto);
}

void PagaBote(const AlMoverFicha& al_mover, const std::function<void()>& al_vaciar) {
    std::vector<Integer> premiados;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (apuestas.PremioJugador(asiento) > 0)
            premiados.push_back(asiento);
    }
    if (premiados.empty())
        return;
    for (int d = 1; d <= kDenominaciones; ++d) {
        if (apuestas.Fichas(kBote, d) == 0)
            continue;
        for (const Integer asiento : premiados)
            al_mover({d, {kBote}, {asiento}, 0});
        apuestas.Fichas(kBote, d) = 0;
        al_vaciar();
    }
    for (const Integer asiento : premiados) {
        Desglosa(apuestas.PremioJugador(asiento));
        for (int d = 1; d <= kDenominaciones; ++d)
            apuestas.Fichas(asiento, d) =
                EnteroDe(apuestas.Fichas(asiento, d) + apuestas.DesgloseFichas(d));
    }
}
