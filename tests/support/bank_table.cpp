#include "tests/support/bank_table.h"

#include <algorithm>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "games/common/trick_state.h"

namespace prueba {

namespace {

void PonValores(Integer juego) {
    constexpr int kDelDiez = 10;
    for (int valor = 1; valor <= kReyFrances; ++valor) {
        if (juego == kBlackJack)
            estado.ValorCarta(valor) = std::min(valor, kDelDiez);
        else
            estado.ValorCarta(valor) = valor < kSota ? Currency(valor) : Currency::DeReal(0.5);
    }
}

} // namespace

void MesaDeBanca(Integer juego) {
    estado = {};
    series = {};
    apuestas = {};
    bazas = {};
    estado.JuegoActivo = juego;
    PonValores(juego);
    estado.TotalBaraja = juego == kBlackJack ? 312 : 40;
    estado.PosicionMazo = 20;
    estado.RestoInicial = 200;
    estado.ApuestaMaxima = 25;
    estado.JugadorBanca = 2;
    apuestas.FaseApuesta = kFaseJuego;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        estado.NivelJugador(asiento) = 100;
        estado.CaracterJugador(asiento) = kMedio;
        estado.SeriesJugador(asiento) = 1;
        AsignarResto(asiento, 200);
    }
    TocaJugar(4);
    Azar(0.5);
}

void PonSerie(Integer asiento, Integer serie, const std::vector<Carta>& cartas) {
    estado.SeriesJugador(asiento) = std::max(estado.SeriesJugador(asiento), serie);
    estado.NumCartas(asiento, serie) = static_cast<Integer>(cartas.size());
    int lugar = 0;
    for (const Carta& carta : cartas) {
        ++lugar;
        estado.Mano(asiento, serie, lugar, kPalo) = carta.palo;
        estado.Mano(asiento, serie, lugar, kValor) = carta.valor;
        estado.Mano(asiento, serie, lugar, kCara) = kDescubierta;
        estado.Mano(asiento, serie, lugar, kAltura) = kEnLinea;
        estado.Mano(asiento, serie, lugar, kTapada) = 0;
    }
}

void PonSerieTapada(Integer asiento, Integer serie, const std::vector<Carta>& cartas) {
    PonSerie(asiento, serie, cartas);
    estado.Mano(asiento, serie, 1, kCara) = kDorso;
    estado.Mano(asiento, serie, 1, kTapada) = kTapadaSi;
}

void TocaJugar(Integer asiento) {
    estado.JugadorActual = asiento;
    estado.SerieActual = 1;
    estado.SerieEnJuego = 1;
}

void Apuesta(Integer asiento, Integer serie, Integer puntos) {
    apuestas.Apuesta(asiento, serie, 2) = puntos;
}

void Azar(double azar) {
    estado.AzarTurno = static_cast<float>(azar);
}

void SiguienteDelMazo(Carta carta) {
    estado.Baraja(estado.PosicionMazo, 1) = carta.palo;
    estado.Baraja(estado.PosicionMazo, 2) = carta.valor;
}

void MazoAgotado() {
    estado.PosicionMazo = static_cast<Integer>(estado.TotalBaraja + 1);
}

} // namespace prueba
