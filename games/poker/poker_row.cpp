#include "games/poker/poker_row.h"

#include <algorithm>
#include <string>
#include <utility>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "core/random.h"
#include "games/poker/hand_order.h"
#include "games/poker/hand_reading.h"
#include "games/poker/poker_tutor.h"
#include "table/button_column.h"
#include "table/deck_setup.h"
#include "table/game_row.h"
#include "table/messages.h"

namespace {

constexpr int kCartas = 5;

// OrdenCarta runs the other way here, from rank slot to rank: slots 1 to 12 hold the 2 to the Rey and slot 13
// the As, the highest.
void PonFuerzas() {
    for (int fuerza = 1; fuerza <= 12; ++fuerza)
        estado.OrdenCarta(fuerza) = EnteroDe(fuerza + 1);
    estado.OrdenCarta(13) = 1;
}

void PreparaBaraja() {
    const int quitados = estado.CartasBaraja - 1;
    PonMedidas({.tipo = kBarajaFrancesa,
                .valores_por_palo = EnteroDe(13 - quitados),
                .comodines = EnteroDe(estado.ComodinesJuego - 1),
                .reparto = kCartas,
                .paso = 1,
                .max_mano = kCartas});
    for (int valor = 2; valor <= estado.CartasBaraja; ++valor)
        estado.ValorEnBaraja(valor) = false;
    PonFuerzas();
    CargaTablasPoker();
}

bool HaApostado(Integer asiento) {
    return ApuestaTotal(asiento, 1) > 0;
}

// By hand the cards come before the ante.
bool Recibe(Integer asiento, bool a_mano) {
    return HaApostado(asiento) || (TieneResto(asiento) && (a_mano || estado.ApuestaSalida == 0));
}

// What is left of an earlier mixing moves to the first places behind the deck: those already dealt are free.
int JuntaLoQueQueda() {
    int detras = estado.TotalBaraja + 1;
    if (estado.PosicionMazo <= detras)
        return detras;
    for (int i = 0; i < estado.CartasEnMazo; ++i, ++detras) {
        for (int campo = 1; campo <= 2; ++campo)
            estado.Baraja(detras, campo) = estado.Baraja(estado.PosicionMazo + i, campo);
    }
    estado.PosicionMazo = EnteroDe(estado.TotalBaraja + 1);
    return detras;
}

// The earlier discards, but for the seat's own last n, are mixed behind the deck.
void MezclaDescartes(Integer /*asiento*/, Integer n) {
    Mensaje(
        "Mezclar cartas descartadas",
        "Como  no hay suficientes cartas en el mazo para cubrir los descartes de este jugador se "
        "va a proceder a mezclar las cartas de los descartes anteriores.",
        3, 1);
    const int mezcladas = std::max(estado.NumDescartes - n, 0);
    const int primero = JuntaLoQueQueda();
    for (int lugar = primero; lugar < primero + mezcladas; ++lugar)
        estado.Baraja(lugar, 1) = kSinCarta;
    for (int i = 1; i <= mezcladas; ++i) {
        int lugar = 0;
        do {
            lugar = primero - 1 + AzarEntre(mezcladas);
        } while (estado.Baraja(lugar, 1) != kSinCarta);
        estado.Baraja(lugar, 1) = estado.Descartes(i, 1);
        estado.Baraja(lugar, 2) = estado.Descartes(i, 2);
    }
    // The seat's own discards are the first of the new pile.
    for (int i = 1; i <= estado.NumDescartes - mezcladas; ++i) {
        for (int campo = 1; campo <= 2; ++campo)
            estado.Descartes(i, campo) = estado.Descartes(mezcladas + i, campo);
    }
    estado.NumDescartes = n;
    estado.CartasEnMazo = EnteroDe(estado.CartasEnMazo + mezcladas);
}

bool HayCartaLevantada(Integer asiento) {
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar) {
        if (estado.Mano(asiento, 1, lugar, kAltura) == kLevantada)
            return true;
    }
    return false;
}

void RotuloContinuar(std::string& primera, std::string& segunda) {
    const Integer asiento = estado.JugadorActual;
    const bool manual = estado.ControlJugador(asiento) == kManual;
    const Integer fase = apuestas.FaseApuesta;
    if (!manual && (fase == kFasePrimeraRonda || fase == kFaseSegundaRonda)) {
        segunda = "Apuesta";
        std::swap(primera, segunda);
    } else if (!manual && fase == kFaseDescartes) {
        segunda = "Descarta";
        std::swap(primera, segunda);
    } else if (manual && fase == kFaseDescartes && HayCartaLevantada(asiento)) {
        primera = "Descartar";
        segunda = "elegidas";
    }
}

// A click raises a card to be discarded, or puts it back in line; the green button then says what it will do.
bool AlternaDescarte(Puntero puntero, int lugar) {
    if (puntero != Puntero::ManoVerde && puntero != Puntero::ManoRoja)
        return false;
    Integer& altura = estado.Mano(estado.JugadorActual, estado.SerieActual, lugar, kAltura);
    altura = altura == kLevantada ? kEnLinea : kLevantada;
    estado.JugadaHecha = true;
    PedirContinuar(1);
    return true;
}

// Midway between seat 1's zone and the table's centre, less 10.
void ColocaMazo() {
    estado.MazoX =
        Redondea((estado.MesaDerecha(1) + estado.CentroX) / 2.0 - 10 - kAnchoCarta / 2.0);
}

} // namespace

const FilaJuego& FilaPoker() {
    static const FilaJuego kFila{
        .id = kPoker,
        .nombre = "Póker",
        .sin_terminar = true,
        .baraja = {.prepara = PreparaBaraja, .coloca_mazo = ColocaMazo, .rellena = MezclaDescartes, .ordena_mano = OrdenaCartasSeat},
        .reparto = {.recibe = Recibe},
        .entrada = {.clic = AlternaDescarte, .tutor = ConsejoTutor},
        .pintura = {.rotulo_continuar = RotuloContinuar},
        .dinero = {.hay = true, .reglas = {.bote = true}},
        .normas = {.encabezado = "Baraja Francesa",
                   .reglas = {Regla::Reparto, Regla::Baraja, Regla::Comodines, Regla::Ley,
                              Regla::RestoInicial, Regla::ApuestaSalida, Regla::ApuestaMaxima}},
    };
    return kFila;
}
