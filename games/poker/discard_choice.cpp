#include "games/poker/discard_choice.h"

#include <algorithm>

#include "core/game_state.h"
#include "games/poker/discard_target.h"
#include "games/poker/hand_layout.h"
#include "games/poker/hand_reading.h"
#include "games/poker/hand_tally.h"
#include "games/poker/poker_state.h"

namespace {

struct CartaEnMano {
    Integer palo, valor;
};

CartaEnMano CartaDe(Integer asiento, int lugar) {
    return {estado.Mano(asiento, kSeriePoker, lugar, kPalo),
            estado.Mano(asiento, kSeriePoker, lugar, kValor)};
}

// Marks the cards of which se_va(valor) is true. The first joker is kept whatever it says; a second one is a card like
// any other.
template <class SeVa>
void MarcaGuardandoComodin(Integer asiento, SeVa se_va) {
    bool comodin_guardado = false;
    for (int lugar = 1; lugar <= kCartasMano; ++lugar) {
        const CartaEnMano carta = CartaDe(asiento, lugar);
        if (carta.palo == kComodin && !comodin_guardado)
            comodin_guardado = true;
        else
            poker.MarcaDescarte(lugar) = se_va(carta.valor) ? 1 : 0;
    }
}

void MarcaFueraDelGrupo(Integer asiento, Integer categoria) {
    const Integer grupo = poker.Jugadas(asiento, categoria).Cartas(1);
    MarcaGuardandoComodin(asiento, [grupo](Integer valor) { return valor != grupo; });
}

void MarcaFueraDeLasParejas(Integer asiento, Integer categoria) {
    const RegistroJugada& jugada = poker.Jugadas(asiento, categoria);
    MarcaGuardandoComodin(asiento, [&jugada](Integer valor) {
        return valor != jugada.Cartas(1) && valor != jugada.Cartas(2);
    });
}

// A single card that is worth keeping, by character.
bool MereceGuardarse(Integer valor, Integer caracter) {
    switch (caracter) {
    case kConservador:
        return EsFigura(valor);
    case kMedio:
        return valor == kValorAs || valor == kValorRey;
    default:
        return valor == kValorAs;
    }
}

// A lone high card goes too when it is not high enough for the seat, unless a joker lies before it in the hand.
void SueltaLaMayor(Integer asiento) {
    const Integer mayor = poker.Jugadas(asiento, poker.CartaMayor).Cartas(1);
    for (int lugar = 1; lugar <= kCartasMano; ++lugar) {
        const CartaEnMano carta = CartaDe(asiento, lugar);
        if (carta.palo == kComodin)
            return;
        if (carta.valor == mayor && !MereceGuardarse(mayor, estado.CaracterJugador(asiento)))
            poker.MarcaDescarte(lugar) = 1;
    }
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

void MarcaFueraDelProyecto(Integer asiento, Integer categoria) {
    OrdenaJugada(asiento, categoria);
    for (int lugar = 1; lugar <= kCartasMano; ++lugar)
        poker.MarcaDescarte(lugar) = EsClave(CartaDe(asiento, lugar)) ? 0 : 1;
}

// How the cards that go are found, by the category played for. With any other the seat is served.
struct FilaMarca {
    Integer EstadoPoker::*objetivo;
    void (*marca)(Integer asiento, Integer categoria);
};
constexpr FilaMarca kMarcas[] = {
    {&EstadoPoker::Poker, MarcaFueraDelGrupo},
    {&EstadoPoker::Trio, MarcaFueraDelGrupo},
    {&EstadoPoker::Pareja, MarcaFueraDelGrupo},
    {&EstadoPoker::DoblePareja, MarcaFueraDeLasParejas},
    {&EstadoPoker::CartaMayor, MarcaFueraDelGrupo},
    {&EstadoPoker::ProyFiguras, MarcaFueraDelProyecto},
    {&EstadoPoker::ProyEscalera, MarcaFueraDelProyecto},
    {&EstadoPoker::ProyColor, MarcaFueraDelProyecto},
    {&EstadoPoker::ProyEscalColor, MarcaFueraDelProyecto},
    {&EstadoPoker::ProyEscalera3, MarcaFueraDelProyecto},
    {&EstadoPoker::ProyEscalColor3, MarcaFueraDelProyecto},
};

} // namespace

void MarcaLoQueSobra(Integer asiento, Integer categoria) {
    poker.MarcaDescarte.Borra();
    const auto* fila = std::ranges::find_if(
        kMarcas, [=](const FilaMarca& f) { return poker.*f.objetivo == categoria; });
    if (fila != std::end(kMarcas))
        fila->marca(asiento, categoria);
}

void DecideDescarte() {
    const Integer asiento = estado.JugadorActual;
    AnalizaJugada(asiento);
    poker.JugadaObjetivo = CategoriaParaJugar();
    MarcaLoQueSobra(asiento, poker.JugadaObjetivo);
    if (poker.JugadaObjetivo == poker.CartaMayor)
        SueltaLaMayor(asiento);
}
