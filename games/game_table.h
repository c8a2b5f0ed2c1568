#pragma once
// The table of games: everything that the table and the match driver need to know of a game, one row each.
// A hook that is empty means the common behaviour that its comment tells.

#include <string>
#include <vector>

#include "core/tabla.h"
#include "platform/platform.h"

struct TextosSorteo {
    std::string primera; // first line of the message
    std::string antes;   // before the name; the text ends in the name and "."
};

struct FilaJuego {
    Integer id = 0;
    const char* nombre = "";

    // The whole match; returns when it is over or was left. Empty: the game cannot be played yet.
    void (*driver)() = nullptr;
    // Deck fields for the rules in force (not the image).
    void (*prepara_baraja)() = nullptr;

    Integer minimo_asientos = 2; // so many seats play at least
    bool sin_parejas = false;    // everybody plays alone, whatever ModalidadJuego was
    // The computer holds the bank there for good, and all cards lie open; 0: nowhere.
    Integer asiento_banca = 0;
    bool con_dinero = false;      // the seats get RestoInicial in chips
    bool sortea_inicio = true;    // a match begins with the draw for the first player
    bool sorteo_da_banca = false; // ... and it decides JugadorBanca instead of JugadorMano
    // The words of its message. Empty: who begins.
    TextosSorteo (*textos_sorteo)() = nullptr;
    bool mazo_seguido = false;     // the deck runs on from hand to hand; mixing it shows no pile
    bool tapa_al_repartir = false; // dealt cards are covered
    bool menu_ordenar = true;      // a right click offers to put the cards in order

    // Who receives a card in the automatic deal, and in the manual one. Empty: EstadoJugador is 1.
    bool (*recibe)(Integer asiento) = nullptr;
    bool (*recibe_a_mano)(Integer asiento) = nullptr;
    // Seats that get cards in a manual deal. Empty: NumJugadores.
    Integer (*cuenta_reparto)() = nullptr;
    // The automatic deal ends a pass ahead of this seat. Empty: only back at JugadorMano.
    bool (*corta_pasada)(int pasada, Integer asiento) = nullptr;
    // Cards that the seat's hand is laid out for in the deal. Empty: CartasReparto.
    Integer (*cartas_en_mesa)(Integer asiento) = nullptr;
    // MazoX, MazoY. Empty: the centre of the table.
    void (*coloca_mazo)() = nullptr;
    // More cards are wanted than the pile holds. Empty: nothing happens.
    void (*rellena_mazo)(Integer asiento, Integer faltan) = nullptr;
    // Drawn under the pile, and in the centre of the felt when everything is painted anew. Empty: nothing.
    void (*pinta_bajo_mazo)(int x, int y) = nullptr;
    void (*pinta_centro)() = nullptr;

    // The sort text of a card. Empty: ordena_mano does it all.
    std::string (*clave_orden)(Integer palo, Integer valor) = nullptr;
    void (*ordena_mano)(Integer asiento) = nullptr;

    // CartaLegal. Empty: every card may be played.
    bool (*carta_legal)(int lugar) = nullptr;
    // The pointer over a card of JugadorActual. Empty: 2 if CartaLegal, else 3, out of ModoApuesta.
    Puntero (*puntero_carta)(int lugar) = nullptr;
    // A change of card is on offer at the pile: pointer 5 there.
    bool (*cambio_en_mazo)() = nullptr;
    // A click on a card with pointer 2 (empty: CartaElegida takes it and the wait ends), 7 or 8, and on the pile.
    void (*clic_carta)(int lugar) = nullptr;
    void (*clic_voltear)(int lugar) = nullptr;
    void (*clic_abrir)() = nullptr;
    void (*clic_cambio)() = nullptr;

    // Second text of the green button for an automatic seat's turn, e.g. "Juega"; sets both lines.
    void (*rotulo_continuar)(std::string& primera, std::string& segunda) = nullptr;
    // The points of a serie, shown on the score plate. Empty: the game has no plates.
    float (*puntos)(int asiento, int serie) = nullptr;
    // Side buttons of a seat, after its cards.
    void (*botones_asiento)(int asiento) = nullptr;
    // The hand of JugadorActual was put in another order.
    void (*tras_reordenar)() = nullptr;
    // The tutor's advice.
    void (*tutor)() = nullptr;
    // Gives back what the hand in play has moved. Empty: nothing moves.
    void (*restaura)() = nullptr;
    // Who holds the bank when the next hand starts: that is saved after a finished hand. Empty: JugadorBanca.
    Integer (*banca_siguiente)() = nullptr;
    // More to clear at a new match.
    void (*nueva_partida)() = nullptr;

    // The page of statistics; the figure of a seat in the history; the page of the report. A report whose hook
    // is empty is not on offer for the game.
    void (*pagina_estadistica)(Lienzo& lienzo) = nullptr;
    Integer (*cifra_historico)(Integer asiento) = nullptr;
    void (*pagina_informe)(int pagina) = nullptr;
};

// The row of a game; nullptr for a number that is no game.
const FilaJuego* FilaDe(Integer juego);
// The row of JuegoActivo; std::logic_error when it is none.
const FilaJuego& JuegoEnMesa();
// The six rows, in the order of their numbers.
const std::vector<const FilaJuego*>& FilasDeJuegos();
