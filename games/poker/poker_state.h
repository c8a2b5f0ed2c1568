#pragma once
// The state of Póker: what is read out of each hand, the tables of the deck in play, and what a seat is about to
// do. Plain data, reached as `poker.Jugadas(asiento, categoria)`.

#include <string>

#include "core/tabla.h"

inline constexpr int kCategorias = 17;
inline constexpr int kSeriePoker = 1;          // the one serie that a seat plays
inline constexpr int kRegistrosDescarte = 180; // of PkFDes.ZOV, those of the deck in play

// One category of a seat's hand: index of Jugadas is the seat 1..4 and the category's number 1..17.
struct RegistroJugada {
    Integer Activa = 0;
    Tabla<Integer, 5> Cartas; // valores, most significant first; a joker is 91 or 92
    Integer PaloJugada = 0;
    Integer Calidad = 0;
    Integer ValorComodin = 0;
    friend bool operator==(const RegistroJugada&, const RegistroJugada&) = default;
};

// One line of the odds of the draw: what becomes of a category and quality that is kept.
struct RegistroDescarte {
    Integer JugadaMantenida = 0;
    Integer CalidadMantenida = 0;
    Long CasosDescarte = 0;
    Tabla<Long, kCategorias> CasosResultado;  // 7..17
    Tabla<double, kCategorias> PorcResultado; // 7..17
    friend bool operator==(const RegistroDescarte&, const RegistroDescarte&) = default;
};

struct EstadoPoker {
    // The numbers of the categories: two pairs of them change places in short decks.
    Integer ProyEscalera3 = 0;
    Integer ProyEscalColor3 = 0;
    Integer ProyFiguras = 0;
    Integer ProyEscalera = 0;
    Integer ProyColor = 0;
    Integer ProyEscalColor = 0;
    Integer CartaMayor = 0;
    Integer Pareja = 0;
    Integer DoblePareja = 0;
    Integer Trio = 0;
    Integer Figuras = 0;
    Integer Escalera = 0;
    Integer Color = 0;
    Integer Full = 0;
    Integer Poker = 0;
    Integer EscaleraColor = 0;
    Integer Repoker = 0;
    Tabla<std::string, kCategorias> NombreJugada;

    // The deck's hands: how many there are, how many of each category.
    Long TotalCombinaciones = 0;
    Tabla<Long, kCategorias> CuentaJugada;
    Tabla<double, kCategorias> PorcJugada;
    Tabla<RegistroDescarte, kRegistrosDescarte> TablaDescartes;

    // What was read out of the hands, the best category of each, and one hand in the order in which it is shown.
    Tabla<RegistroJugada, 4, kCategorias> Jugadas;
    Tabla<Integer, 4> MejorJugada;
    Tabla<Integer, 5, 2> JugadaOrdenada; // place; 1 palo, 2 valor
    Integer CartasClave = 0;

    // Bets: the most that the seat may put in this round; what the others believe of a seat after its discard.
    Integer TopeApuesta = 0;
    Tabla<Integer, 4> JugadaCreidaMin;
    Tabla<Integer, 4> JugadaCreidaMax;

    // Discards: the category played for, and the places of the hand that go.
    Integer JugadaObjetivo = 0;
    Tabla<Integer, 5> MarcaDescarte;

    // The round of bets and of discards.
    Integer DescartesHechos = 0;
    Integer UltimoSubidor = 0;
    Integer TurnosRonda = 0;
    bool ManoNula = false;
    Integer ApuestaColocada = 0;

    friend bool operator==(const EstadoPoker&, const EstadoPoker&) = default;
};

extern EstadoPoker poker;
