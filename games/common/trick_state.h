#pragma once
// The state that the games of laying cards share: Tute, Brisca and Cinquillo. Plain data, like the block
// of core/game_state.h, and reached the same way: `bazas.CartaJugada(palo, valor)`.

#include "core/currency.h"
#include "core/tabla.h"

// RegistroBazas(asiento + row, trick): the suit and the rank that the seat played, whether it won, the suit it sang after it.
inline constexpr int kFilaPalo = 5, kFilaValor = 10, kFilaGana = 15, kFilaCante = 20;

struct EstadoBazas {
    // The trick.
    Currency TantosBaza;
    Integer PaloSalida = 0;
    bool Arrastre = false;
    Integer CartaCambio = 0;
    Tabla<Integer, 4, 2> CartaEnMesa; // asiento; 1 palo, 2 valor
    Tabla<Integer, 4> JugadaBaza;     // turn in the trick: hand position played

    // The hand so far.
    Tabla<Integer, 5, 13> CartaJugada; // palo, valor: the seat that played it
    Tabla<bool, 4, 4> FallaPalo;       // palo, asiento
    Tabla<Integer, 4> PaloCantado;     // palo: the seat that sang it
    Tabla<Currency, 4> TantosJugador;
    Tabla<Integer, 40> GanadorDeBaza;
    Tabla<Currency, 40> TantosDeBaza;
    Tabla<Integer, 25, 41> RegistroBazas; // row, trick

    // What a look at a hand has found.
    Integer TuteEnMano = 0;
    bool HayCante = false;
    Tabla<bool, 4> PaloCantable;
    Tabla<Integer, 4, 13> MapaMano; // palo, valor
    Integer LugarCarta = 0;         // where BuscaCarta found the card
    Integer JugadorCante = 0;
    bool TuteCantado = false;

    // The choice of a card: CartasJugables(lugar, 1 score, 2 hand position), best first.
    Tabla<Integer, 26, 2> CartasJugables;
    Integer NumJugables = 0;
    Integer CartaBusqueda = 0;
    bool BusquedaActiva = false;

    friend bool operator==(const EstadoBazas&, const EstadoBazas&) = default;
};

extern EstadoBazas bazas;

// What a hand leaves behind is cleared before the next one; at the beginning of a match and of a session, what still
// lies on the table from another one.
void BorraBazas();
void OlvidaBazas();
