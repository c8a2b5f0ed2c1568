#pragma once
// What the choice of a card in Tute and in Brisca have in common: the look at the table, the sorted list
// of scores, the cards that are still about, and the noise by which a weak player goes astray.

#include <array>
#include <cstdint>

#include "core/game_state.h"

// A set of cards: a bit for each valor of each suit.
class Naipes {
public:
    void Pon(Carta naipe) { mapa_[Fila(naipe.palo)] |= Bit(naipe.valor); }
    bool Tiene(Carta naipe) const { return (mapa_[Fila(naipe.palo)] & Bit(naipe.valor)) != 0; }
    bool VacioDe(Integer palo) const { return mapa_[Fila(palo)] == 0; }
    Integer Cuantos(Integer palo) const;
    Integer CuantosDelValor(Integer valor) const;
    // The highest OrdenCarta of the suit, 0 when there is none.
    Integer OrdenMasAlto(Integer palo) const;
    // The OrdenCarta of the last card by valor, 1 to 12, among those of the suit above orden; 0 if none.
    Integer UltimoPorEncima(Integer palo, Integer orden) const;
    friend Naipes operator-(Naipes una, const Naipes& otra);

private:
    static std::size_t Fila(Integer palo);
    static std::uint16_t Bit(Integer valor) { return static_cast<std::uint16_t>(1U << valor); }
    std::array<std::uint16_t, 5> mapa_{};
};

// The cards that a seat holds; the cards of the deck in play that have no place in CartaJugada yet, those
// of the trick under way included.
Naipes NaipesDe(Integer asiento);
Naipes NaipesSinJugar();

// The turn as its player sees it, read afresh from the state.
struct VistaTurno {
    Integer asiento = 0, nivel = 0, caracter = 0;
    Integer cartas = 0;    // in the hand
    Integer pareja = 0;    // the partner in pairs mode, otherwise 0
    bool sale = false;     // leads the trick
    bool ultimo = false;   // UltimoEnBaza
    bool hay_mazo = false; // the stock is not empty
    Integer mejor_mesa =
        0; // highest PotenciaCarta on the table, and whose card it is; 0 without cards
    Integer asiento_mejor = 0;
    Currency puntos_rivales, puntos_pareja; // on the table
};
// What JugadorActual sees now. Reads the state only.
VistaTurno MiraTurno();

// The card of JugadorActual at a place of the hand, and at a place of CartasJugables.
Carta CartaEnMano(Integer lugar);
Carta CartaJugable(Integer puesto);

// The rank that the exchange counts for: whether this is the card that could take the trump card, the 7
// when that one scores points, the 2 when it does not.
bool PuedeCambiarse(Carta naipe);

// CartasJugables: emptied; a card put at its place by score, behind equal scores. NumJugables counts.
void VaciaJugables();
void AnotaJugable(Integer puntuacion, Integer lugar);

// The first place from NumJugables downward whose card beats mejor_mesa; si_no when none does.
Integer UltimoQueGana(Integer mejor_mesa, Integer si_no);

// True when the highest trump still about among the given ones is above the card at place NumJugables,
// and that card beats the table.
bool ConvieneElMasAlto(const VistaTurno& vista, const Naipes& fuera);

// Unplayed cards that neither the seat nor, in pairs, its partner holds.
Naipes FueraDeLaPareja(const VistaTurno& vista);

// How far a rival's points have to exceed one's own for a winning card to be worth while, by level and
// character; and whether it is, for a card of puntos points.
Integer MargenDe(const VistaTurno& vista);
bool CompensaGanar(const VistaTurno& vista, Currency puntos);

// The least that a trick has to hold for a trump, by AzarTurno and character.
Integer UmbralDeTriunfo(const VistaTurno& vista);

// The place after the noise of the level: unless level is 90 at least or AzarTurno within it, a place
// between 1 and k.
Integer TrasElRuido(Integer k, Integer nivel);
