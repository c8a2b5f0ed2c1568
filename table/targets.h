#pragma once
// What of the table can be told and touched one by one: cards, pile, chips, the buttons on offer, who sits where. It
// is read from the state alone, so that keys and screen readers meet the same table as the mouse.

#include <string>
#include <vector>

#include "core/game_state.h"
#include "platform/platform.h"
#include "table/layout.h"

enum class ClaseObjetivo {
    CartaDeMano,    // a card that its seat shows; a covered hand is told by its seat alone
    CartaDeMesa,    // played, in the centre or in a row
    CartaDeReparto, // in the spread of a manual deal
    Mazo,
    Triunfo,
    Ficha,   // a stack of chips that a click takes or gives back
    Boton,   // a control that is a button, and on view
    Opcion,  // a line of the pop-up
    Asiento, // a seat: name, cards left, chips, bet
    Rotulo,  // words on the table: a caption, the score, the bet board's displays
};

// Words on the felt that are no control.
inline constexpr Integer kRotuloBote = 1, kRotuloDescartes = 2;

// One of them. What a click does is done by the same handlers that the mouse meets, at `toque`.
struct Objetivo {
    ClaseObjetivo clase = ClaseObjetivo::Rotulo;
    Control control = Control::Mesa; // the control that it is, or that `toque` counts from
    int indice = 0;                  // of the control; of a card in the spread its row
    Integer asiento = 0;             // of a card, a chip, a seat; 0 none
    // The place in the hand, the chip's number, the line of the pop-up, the column in the spread, of a card on the table
    // its suit by 100 and its rank, of words which ones (kRotulo...); 0 none.
    Integer lugar = 0;
    Rectangulo donde;        // what is to be seen of it, table pixels
    Punto toque;             // where a click meets it and nothing that lies above it
    std::string nombre{};    // "Sota de Oros", "Asiento de Ana"
    std::string estado{};    // "se puede jugar", "le toca"; empty: nothing to say
    bool se_pulsa = false;   // a left click does something now
    bool tiene_menu = false; // a right click does something now
    // The same thing in two moments, whatever was painted between them.
    bool EsElMismo(const Objetivo& otro) const {
        return clase == otro.clase && control == otro.control && indice == otro.indice &&
               asiento == otro.asiento && lugar == otro.lugar;
    }
};

// The middle of a box; what two boxes share; a card that lies on the table, of that seat (0 nobody's).
Punto Centro(const Rectangulo& caja);
Rectangulo Corte(const Rectangulo& a, const Rectangulo& b);
Objetivo CartaEnLaMesa(Carta carta, Integer asiento, const Rectangulo& donde);

// All there is now: own cards from left to right as the player sees them and others that lie open, then what lies on
// the table, chips, the buttons on offer, the main buttons from the top, the pop-up, seats, words. Reads the state and which controls are on view; writes nothing.
std::vector<Objetivo> ObjetivosDeLaMesa();
