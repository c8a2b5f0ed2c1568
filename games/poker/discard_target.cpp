#include "games/poker/discard_target.h"

#include "core/game_state.h"
#include "games/poker/hand_reading.h"
#include "games/poker/poker_state.h"
#include "games/poker/seat_level.h"

namespace {

using Categoria = Integer EstadoPoker::*;

constexpr Integer kNivelQueSueltaPareja =
    60; // from here on a joker is worth more than its low pair

// Characters that a step is for, one bit each.
constexpr unsigned Solo(Integer caracter) {
    return 1U << caracter;
}
constexpr unsigned kMedios = Solo(kMedio), kAgresivos = Solo(kAgresivo);
constexpr unsigned kAudaces = kMedios | kAgresivos;
constexpr unsigned kTodos = Solo(kConservador) | kAudaces;

struct Niveles {
    Integer desde = INT16_MIN, hasta = INT16_MAX;
};

// What else a step asks of the hand.
enum class Ademas { Nada, ProyectoBueno, SinAs }; // Calidad 1 of the draw; CartaMayor is not the As

// One step from the best category toward the one that is played for. A step counts when si is in the hand, and y_si as
// well where it is named; the steps of a category run in their order, each over the one before.
struct Paso {
    Categoria mejor = nullptr;
    Categoria si = nullptr;
    unsigned caracteres = 0;
    Niveles niveles;
    Categoria objetivo = nullptr;
    Ademas ademas = Ademas::Nada;
    Categoria y_si = nullptr;
};

using P = EstadoPoker;
constexpr Niveles kTodoNivel{}, kDesde25{.desde = 25}, kDesde50{.desde = 50}, kDesde60{.desde = 60},
    kHasta49{.hasta = 49};

constexpr Paso kPasos[] = {
    {&P::Color, &P::ProyEscalColor, kMedios, kTodoNivel, &P::ProyEscalColor},
    {&P::Color, &P::ProyEscalColor3, kAgresivos, kTodoNivel, &P::ProyEscalColor3},

    {&P::Figuras, &P::Trio, kAudaces, kTodoNivel, &P::Trio},
    {&P::Figuras, &P::DoblePareja, kAudaces, kTodoNivel, &P::DoblePareja},
    {&P::Figuras, &P::Pareja, kAgresivos, kTodoNivel, &P::Pareja},
    {&P::Figuras, &P::ProyEscalColor, kAgresivos, kTodoNivel, &P::ProyEscalColor},

    {&P::DoblePareja, &P::ProyEscalColor3, kAgresivos, kTodoNivel, &P::ProyEscalColor3},

    {&P::Pareja, &P::ProyEscalColor, kMedios, kDesde50, &P::ProyEscalColor, Ademas::ProyectoBueno},
    {&P::Pareja, &P::ProyColor, kMedios, kDesde50, &P::ProyColor, Ademas::ProyectoBueno},
    {&P::Pareja, &P::ProyEscalera, kAgresivos, kDesde50, &P::ProyEscalera, Ademas::ProyectoBueno},
    {&P::Pareja, &P::ProyFiguras, kAgresivos, kDesde50, &P::ProyFiguras},
    {&P::Pareja, &P::ProyColor, kAgresivos, kDesde50, &P::ProyColor},
    {&P::Pareja, &P::ProyEscalColor, kAgresivos, kDesde50, &P::ProyEscalColor},

    // A draw of four that is not played for puts one of three out of mind as well.
    {&P::CartaMayor, &P::ProyEscalera3, kTodos, kTodoNivel, &P::ProyEscalera3},
    {&P::CartaMayor, &P::ProyEscalColor3, kTodos, kTodoNivel, &P::ProyEscalColor3},
    {&P::CartaMayor, &P::ProyFiguras, kTodos, kTodoNivel, &P::CartaMayor},
    {&P::CartaMayor, &P::ProyFiguras, kAudaces, kDesde50, &P::ProyFiguras},
    {&P::CartaMayor, &P::ProyEscalera, kTodos, kTodoNivel, &P::CartaMayor},
    {&P::CartaMayor, &P::ProyEscalera, kMedios, kDesde50, &P::ProyEscalera, Ademas::ProyectoBueno},
    {&P::CartaMayor, &P::ProyEscalera, kAgresivos, kDesde50, &P::ProyEscalera},
    {&P::CartaMayor, &P::ProyEscalera, kTodos, kHasta49, &P::ProyFiguras, Ademas::Nada,
     &P::ProyFiguras},
    {&P::CartaMayor, &P::ProyColor, kTodos, kTodoNivel, &P::CartaMayor},
    {&P::CartaMayor, &P::ProyColor, kAudaces, kDesde60, &P::ProyColor},
    {&P::CartaMayor, &P::ProyEscalColor, kTodos, kTodoNivel, &P::CartaMayor},
    {&P::CartaMayor, &P::ProyEscalColor, kAgresivos, kDesde25, &P::ProyEscalColor},
    {&P::CartaMayor, &P::ProyEscalColor, kMedios, kDesde25, &P::ProyEscalColor,
     Ademas::ProyectoBueno},
    {&P::CartaMayor, &P::ProyEscalColor, kMedios, kDesde25, &P::ProyEscalColor, Ademas::SinAs},
};

struct Jugador {
    Integer asiento, nivel;
    unsigned caracter;

    const RegistroJugada& Jugada(Categoria categoria) const {
        return poker.Jugadas(asiento, poker.*categoria);
    }
    bool Tiene(Categoria categoria) const { return Jugada(categoria).Activa != 0; }
};

bool Cumple(const Jugador& jugador, const Paso& paso) {
    switch (paso.ademas) {
    case Ademas::ProyectoBueno:
        return jugador.Jugada(paso.si).Calidad == 1;
    case Ademas::SinAs:
        return jugador.Jugada(&P::CartaMayor).Cartas(1) != kAs;
    case Ademas::Nada:
        break;
    }
    return true;
}

bool Cuenta(const Jugador& jugador, const Paso& paso) {
    return poker.MejorJugada(jugador.asiento) == poker.*paso.mejor && jugador.Tiene(paso.si) &&
           (paso.caracteres & jugador.caracter) != 0 && jugador.nivel >= paso.niveles.desde &&
           jugador.nivel <= paso.niveles.hasta && Cumple(jugador, paso) &&
           (paso.y_si == nullptr || jugador.Tiene(paso.y_si));
}

bool SueltaParejaDeComodin(const Jugador& jugador) {
    return jugador.nivel >= kNivelQueSueltaPareja && TieneComodin(jugador.asiento) &&
           jugador.Jugada(&P::Pareja).Cartas(1) != kAs;
}

} // namespace

Integer CategoriaParaJugar() {
    const Integer asiento = estado.JugadorActual;
    const Jugador jugador{asiento, NivelQueDecide(asiento), Solo(estado.CaracterJugador(asiento))};
    Integer objetivo = poker.MejorJugada(asiento);
    for (const Paso& paso : kPasos) {
        if (Cuenta(jugador, paso))
            objetivo = poker.*paso.objetivo;
    }
    const bool pareja_sin_mas =
        objetivo == poker.Pareja && poker.MejorJugada(asiento) == poker.Pareja;
    return pareja_sin_mas && SueltaParejaDeComodin(jugador) ? poker.CartaMayor : objetivo;
}
