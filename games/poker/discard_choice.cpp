#include "games/poker/discard_choice.h"

#include <algorithm>

#include "betting/phases.h"
#include "core/game_state.h"
#include "games/poker/discard_target.h"
#include "games/poker/hand_layout.h"
#include "games/poker/hand_reading.h"
#include "games/poker/poker_state.h"

namespace {

constexpr int kCartasMano = 5;
constexpr Integer kRey = 13;

struct CartaEnMano {
    Integer palo, valor;
};

CartaEnMano CartaDe(Integer asiento, int lugar) {
    return {estado.Mano(asiento, kSeriePoker, lugar, kPalo),
            estado.Mano(asiento, kSeriePoker, lugar, kValor)};
}

// Marks the cards of which se_va(valor, comodin_guardado) is true. The first joker is kept whatever it says; a second
// one is a card like any other.
template <class SeVa>
void MarcaGuardandoComodin(Integer asiento, SeVa se_va) {
    bool comodin_guardado = false;
    for (int lugar = 1; lugar <= kCartasMano; ++lugar) {
        const CartaEnMano carta = CartaDe(asiento, lugar);
        if (carta.palo == kComodin && !comodin_guardado)
            comodin_guardado = true;
        else
            poker.MarcaDescarte(lugar) = se_va(carta.valor, comodin_guardado) ? 1 : 0;
    }
}

const RegistroJugada& JugadaBuscada(Integer asiento) {
    return poker.Jugadas(asiento, poker.JugadaObjetivo);
}

void MarcaFueraDelGrupo(Integer asiento) {
    const Integer grupo = JugadaBuscada(asiento).Cartas(1);
    MarcaGuardandoComodin(asiento, [&](Integer valor, bool) { return valor != grupo; });
}

void MarcaFueraDeLasParejas(Integer asiento) {
    const RegistroJugada& jugada = JugadaBuscada(asiento);
    MarcaGuardandoComodin(asiento, [&](Integer valor, bool) {
        return valor != jugada.Cartas(1) && valor != jugada.Cartas(2);
    });
}

// A single card that is worth keeping, by character.
bool MereceGuardarse(Integer valor, Integer caracter) {
    switch (caracter) {
    case kConservador:
        return EsFigura(valor);
    case kMedio:
        return valor == kAs || valor == kRey;
    default:
        return valor == kAs;
    }
}

void MarcaTodasMenosLaMayor(Integer asiento) {
    const Integer mayor = JugadaBuscada(asiento).Cartas(1);
    const Integer caracter = estado.CaracterJugador(asiento);
    MarcaGuardandoComodin(asiento, [&](Integer valor, bool comodin_guardado) {
        return valor != mayor || (!comodin_guardado && !MereceGuardarse(valor, caracter));
    });
}

bool EsClave(const CartaEnMano& carta) {
    for (int clave = 1; clave <= poker.CartasClave; ++clave) {
        if (poker.JugadaOrdenada(clave, kPalo) == carta.palo &&
            poker.JugadaOrdenada(clave, kValor) == carta.valor) {
            return true;
        }
    }
    return false;
}

void MarcaFueraDelProyecto(Integer asiento) {
    OrdenaJugada(asiento, poker.JugadaObjetivo);
    for (int lugar = 1; lugar <= kCartasMano; ++lugar)
        poker.MarcaDescarte(lugar) = EsClave(CartaDe(asiento, lugar)) ? 0 : 1;
}

// How the cards that go are found, by the category played for. With any other the seat is served.
struct FilaMarca {
    Integer EstadoPoker::*objetivo;
    void (*marca)(Integer asiento);
};
constexpr FilaMarca kMarcas[] = {
    {&EstadoPoker::Poker, MarcaFueraDelGrupo},
    {&EstadoPoker::Trio, MarcaFueraDelGrupo},
    {&EstadoPoker::Pareja, MarcaFueraDelGrupo},
    {&EstadoPoker::DoblePareja, MarcaFueraDeLasParejas},
    {&EstadoPoker::CartaMayor, MarcaTodasMenosLaMayor},
    {&EstadoPoker::ProyFiguras, MarcaFueraDelProyecto},
    {&EstadoPoker::ProyEscalera, MarcaFueraDelProyecto},
    {&EstadoPoker::ProyColor, MarcaFueraDelProyecto},
    {&EstadoPoker::ProyEscalColor, MarcaFueraDelProyecto},
    {&EstadoPoker::ProyEscalera3, MarcaFueraDelProyecto},
    {&EstadoPoker::ProyEscalColor3, MarcaFueraDelProyecto},
};

} // namespace

void DecideDescarte() {
    const Integer asiento = estado.JugadorActual;
    AnalizaJugada(asiento);
    poker.JugadaObjetivo = CategoriaParaJugar();
    poker.MarcaDescarte.Borra();
    const auto* fila = std::ranges::find_if(
        kMarcas, [](const FilaMarca& f) { return poker.*f.objetivo == poker.JugadaObjetivo; });
    if (fila != std::end(kMarcas))
        fila->marca(asiento);
}
