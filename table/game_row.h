#pragma once
// What the table wants to know of a game: its row, a plain struct of hooks in groups, and the registry of the rows.
// A hook that is empty means the common behaviour that its comment tells. The games stand above the table: whoever
// starts the program hands their rows down with UsaJuegos.

#include <array>
#include <string>
#include <vector>

#include "betting/limits.h"
#include "core/tabla.h"
#include "platform/platform.h"

struct ProcedimientoConNombre; // table/procedure_call.h
using ListaDeProcedimientos = std::vector<ProcedimientoConNombre>;

class PaginaImpresa;
struct Objetivo; // table/targets.h

// What the form "Normas" can set.
enum class Regla {
    Reparto,
    Ley,
    Comodines,
    Modalidad,
    Baraja,
    RestoInicial,
    ApuestaSalida,
    ApuestaMaxima,
    Limite
};

// A selector of the form "Personal" that the game does not let the player change, and what is said then.
struct Candado {
    enum class Ajuste { Estado, Cartas } ajuste = Ajuste::Estado;
    Integer asiento = 0; // 0: of any seat
    const char* aviso = "";
};

// Who sits at the table.
struct AsientosDeJuego {
    Integer minimo = 2;       // so many seats play at least
    bool sin_parejas = false; // everybody plays alone, whatever ModalidadJuego was
    Integer banca = 0; // the computer holds the bank there for good, all cards lie open; 0: nowhere
    std::vector<Candado> candados{};
};

struct BarajaDeJuego {
    // Deck fields for the rules in force (not the image). Every game has one.
    void (*prepara)() = nullptr;
    bool seguida = false; // the deck runs on from hand to hand; mixing it shows no pile
    // MazoX, MazoY. Empty: the centre of the table.
    void (*coloca_mazo)() = nullptr;
    // More cards are wanted than the pile holds. Empty: nothing happens.
    void (*rellena)(Integer asiento, Integer faltan) = nullptr;
    // The sort text of a card. Empty: ordena_mano does it all.
    std::string (*clave_orden)(Integer palo, Integer valor) = nullptr;
    void (*ordena_mano)(Integer asiento) = nullptr;
};

struct RepartoDeJuego {
    bool tapa = false; // dealt cards are covered
    // The seat gets cards in this hand, dealt by the computer or by hand. Empty: EstadoJugador is 1.
    bool (*recibe)(Integer asiento, bool a_mano) = nullptr;
    // Cards that the automatic deal gives the seat: a pass ends ahead of who has all of them. Empty: CartasReparto.
    Integer (*cartas_de)(Integer asiento) = nullptr;
};

// The draw for the first player, at the start of a match.
struct SorteoDeJuego {
    bool se_hace = true;
    bool da_banca = false; // it decides JugadorBanca instead of JugadorMano
    // The words of its message, which ends in the name and ".".
    const char* primera = "Se  ha  sorteado  el  jugador  que  comienza  la  partida.";
    const char* antes = "Sale ";
};

struct EntradaDeJuego {
    bool menu_ordenar = true; // a right click offers to put the cards in order
    // CartaLegal. Empty: every card may be played.
    bool (*carta_legal)(int lugar) = nullptr;
    // The pointer over a card of JugadorActual. Empty: 2 if CartaLegal, else 3, out of ModoApuesta.
    Puntero (*puntero)(int lugar) = nullptr;
    // A change of card is on offer at the pile: pointer 5 there.
    bool (*cambio_en_mazo)() = nullptr;
    // A click of the seat on turn with that pointer; true when the game takes it. Empty, or false: a legal card is
    // chosen (CartaElegida) and the wait ends; any other pointer does nothing.
    bool (*clic)(Puntero puntero, int lugar) = nullptr;
    // A click on a side button of the seat (Pic_BotSuperior, Pic_BotLateral, Pic_BotDobSeg). Empty: nothing.
    void (*clic_control)(Control control, int indice) = nullptr;
    // The hand of JugadorActual was put in another order. Empty: nothing.
    void (*tras_reordenar)() = nullptr;
    // The tutor's advice. Empty: none.
    void (*tutor)() = nullptr;
};

// A button with its caption, and what a screen reader calls it.
struct RotuloBoton {
    const char* rotulo = "";
    const char* nombre = "";
};

// The trump of a hand, and its name for the player.
struct Triunfo {
    Integer palo = 0; // 0: none, or not yet
    const char* nombre = "";
};

struct PinturaDeJuego {
    // Drawn under the pile, and in the centre of the felt when everything is painted anew. Empty: nothing.
    void (*bajo_mazo)(int x, int y) = nullptr;
    void (*centro)() = nullptr;
    // The trump, for the plate of the match. Empty: the game has none.
    Triunfo (*triunfo)() = nullptr;
    // Side buttons of a seat, after its cards. Empty: none.
    void (*botones_asiento)(int asiento) = nullptr;
    // Pic_BotSuperior(1, 2).
    std::array<RotuloBoton, 2> superiores{{{"  C a r t a", "Carta"}, {"S e r v i d o", "Servido"}}};
    // Piles lie before the seats at the sides: their Pic_BotSuperior stand above and below.
    bool mazos_a_los_lados = false;
    // The points of a serie, shown on the score plate. Empty: the game has no plates.
    float (*puntos)(int asiento, int serie) = nullptr;
    // Both lines of the green button in a hand. Empty: the name, and "automático".
    void (*rotulo_continuar)(std::string& primera, std::string& segunda) = nullptr;
};

struct DineroDeJuego {
    bool hay = false; // the seats get RestoInicial in chips
    ReglasApuesta reglas{};
    // A manual seat clicks a chip: the game may refuse it, with its own message. Empty: it is placed if the limits
    // allow it.
    bool (*permite_ficha)() = nullptr;
    // Who holds the bank when the next hand starts: that is saved after a finished hand. Empty: JugadorBanca.
    Integer (*banca_siguiente)() = nullptr;
};

// The steps of a hand that differ; the rest is IniciarJuego's.
struct ManoDeJuego {
    // JugadorMano, when the game has been counted. Empty: it moves on from the second game of the match, and off a
    // seat that does not play.
    void (*pasa_la_mano)() = nullptr;
    // What the game itself keeps of a hand is cleared, before the deal. Empty: nothing.
    void (*limpia)() = nullptr;
    // The hand is dealt at its start; false: the game deals when it wants to.
    bool reparte = true;
    // What every seat puts in at the start: before the cards, but after them when they are dealt by hand. Empty: nothing.
    void (*apuesta_de_salida)() = nullptr;
    // Between the deal and ManoEnCurso: the trump is turned. Empty: nothing.
    void (*descubre)() = nullptr;
};

struct PartidaDeJuego {
    // At the beginning of a match and of a session: what of its own one hand hands on to the next is cleared. Empty:
    // nothing.
    void (*nueva)() = nullptr;
    // After a hand, and when a saved match goes on: whether somebody has won the match; sets GanadorPartida. Empty:
    // GanadorMano has LimitePartida hands.
    bool (*acabada)() = nullptr;
    // The words that end the match. Empty: "Ha ganado la partida" and the name.
    std::string (*texto_final)() = nullptr;
    // The seats that have won it, for the history. Empty: GanadorPartida, in pairs both seats of that team.
    std::vector<Integer> (*ganadores)() = nullptr;
};

struct NormasDeJuego {
    const char* encabezado = ""; // above its line in the list of games
    std::vector<Regla> reglas{}; // from the top of the form
};

// How the reports show what the games of a match have left in their records.
struct InformesDeJuego {
    enum class Hoja {
        Manos,  // for each active seat its points and cantes, and a note below
        Jugada, // for each seat two texts, and the result of the hand
        Series, // the same, the texts in groups of 7 for four series
        Banca,  // series too, the seats in their order from the one after the bank
    };
    Hoja hoja = Hoja::Manos;
    const char* cabecera = "Mano   Sale";
    const char* resultado = "";  // the title of the last column
    bool en_contra = false;      // points count against the seat, and the note is no honour
    bool sin_nota = false;       // the line of points stands alone
    const char* perdedores = ""; // what the history says of the losers instead of their figures
    bool cuenta_parejas = false; // the history has a heading for what the pairs have won
    // The statistics: the figures of the hand in progress, on an empty page. Empty: there are none to show.
    void (*estadis)(PaginaImpresa& pagina) = nullptr;
};

// What keys and screen readers are told beyond hands, pile, chips and controls (table/targets.h).
struct ObjetivosDeJuego {
    // Cards and words in the middle of the table, appended. Empty: none.
    void (*en_la_mesa)(std::vector<Objetivo>& todos) = nullptr;
    // A card of the seat on turn that a click chooses, and one that has been chosen.
    const char* elegible = "se puede jugar";
    const char* elegida = "elegida";
    // Everybody can reckon how many cards the pile holds.
    bool mazo_contado = false;
};

// What must hold, told apart from the code that played it. InvarianteRoto when something does not.
struct RevisionDeJuego {
    // At any moment of a match. Empty: nothing.
    void (*paso)() = nullptr;
    // The cards and the points of the hand that has just ended. Every game that is played has one.
    void (*mano)() = nullptr;
    // The records and the result of the match that has just ended after so many hands. Every game that is played has one.
    void (*partida)(int manos) = nullptr;
};

struct FilaJuego {
    Integer id = 0;
    const char* nombre = "";
    Integer tema = 0; // its page in the help
    // The whole match; returns when it is over or was left.
    void (*driver)() = nullptr;
    // Its deck and its place at the table are there, and it cannot be played yet: no driver.
    bool sin_terminar = false;

    AsientosDeJuego asientos{};
    BarajaDeJuego baraja{};
    RepartoDeJuego reparto{};
    SorteoDeJuego sorteo{};
    EntradaDeJuego entrada{};
    PinturaDeJuego pintura{};
    DineroDeJuego dinero{};
    ManoDeJuego mano{};
    PartidaDeJuego partida{};
    NormasDeJuego normas{};
    InformesDeJuego informes{};
    ObjetivosDeJuego objetivos{};
    RevisionDeJuego revision{};
    // What the line console can call by name of this game alone. Empty: nothing.
    const ListaDeProcedimientos& (*procedimientos)() = nullptr;
};

// The games of the table, in the order of their numbers (1 to 99). std::invalid_argument, with nothing taken, when
// one lacks what every game must have (a name, a deck, and a driver unless it is unfinished) or two have one number.
void UsaJuegos(const std::vector<const FilaJuego*>& filas);

// The rows in use. std::logic_error before UsaJuegos.
const std::vector<const FilaJuego*>& FilasDeJuegos();
// The row of a game; nullptr for a number that is no game.
const FilaJuego* FilaDe(Integer juego);
// The row of JuegoActivo; std::logic_error when it is none.
const FilaJuego& JuegoEnMesa();
// Two teams play the game on the table: hands and matches are won by 1 or 2. In the games with money everybody wins
// alone.
bool PorParejas();
// The game can be played.
bool SePuedeJugar(const FilaJuego& juego);
