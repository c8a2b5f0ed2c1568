#include "betting/money_repair.h"

#include <algorithm>
#include <limits>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "betting/stakes.h"
#include "core/game_state.h"

namespace {

// All chips of the table, and all bets, have to fit in one amount.
constexpr int kMaximo = std::numeric_limits<Integer>::max();

bool Juega(int asiento) {
    return estado.EstadoJugador(asiento) == kActivado;
}

// A seat alone may hold more than fits in an amount, so nothing here goes through RestoDe.
int TodoElDinero() {
    int suma = 0;
    for (int asiento = 0; asiento <= 4; ++asiento) {
        for (int d = 1; d <= kDenominaciones; ++d)
            suma += apuestas.Fichas(asiento, d) * ValorDe(d);
    }
    return suma;
}

// Only these are in a file.
int TodasLasApuestas() {
    int suma = 0;
    for (int asiento = 1; asiento <= 4; ++asiento)
        suma += apuestas.Apuesta(asiento, 1, kFaseApuestas);
    return suma;
}

void EmpiezaDeNuevo() {
    AsignarResto(kBote, 0);
    for (int asiento = 1; asiento <= 4; ++asiento)
        AsignarResto(asiento, Juega(asiento) ? estado.RestoInicial : Integer{0});
    apuestas.Apuesta.Borra();
}

void Traslada(int de, int a) {
    SumaAlResto(a, RestoDe(de));
    AsignarResto(de, 0);
}

void RecogeLoDeNadie(Integer destino) {
    for (int asiento = 0; asiento <= 4; ++asiento) {
        const bool de_nadie = asiento == kBote ? destino != kBote : !Juega(asiento);
        if (de_nadie && RestoDe(asiento) > 0)
            Traslada(asiento, destino);
    }
}

// To the active seats in equal parts, the odd points one each from the first on.
void ReparteBote() {
    const int parte = RestoDe(kBote) / estado.NumJugadores;
    int sueltos = RestoDe(kBote) % estado.NumJugadores;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        if (!Juega(asiento))
            continue;
        SumaAlResto(asiento, parte + (sueltos > 0 ? 1 : 0));
        --sueltos;
    }
    AsignarResto(kBote, 0);
}

} // namespace

void ReparaFichas() {
    for (Integer& fichas : apuestas.Fichas)
        fichas = std::max<Integer>(fichas, 0);
    for (Integer& puntos : apuestas.Apuesta)
        puntos = std::max<Integer>(puntos, 0);
    if (TodoElDinero() > kMaximo || TodasLasApuestas() > kMaximo)
        EmpiezaDeNuevo();
}

void ReparaPartidaConDinero(const MesaConDinero& mesa) {
    const int total = TodoElDinero();
    if (total == 0 || total > mesa.resto_maximo * estado.NumJugadores)
        return EmpiezaDeNuevo();
    RecogeLoDeNadie(mesa.banca);
    if (CuentaConResto() == 0)
        ReparteBote();
    // After a hand that was paid the bets stand beside an empty pot, until the next one begins.
    const Integer bote = RestoDe(kBote);
    if (bote > 0 && bote < TodasLasApuestas())
        apuestas.Apuesta.Borra();
}
