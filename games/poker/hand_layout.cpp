#include "games/poker/hand_layout.h"

#include <algorithm>
#include <array>

#include "core/game_state.h"
#include "games/poker/poker_state.h"

namespace {

constexpr int kCartas = 5;
constexpr Integer kAsAlto = 14;

struct CartaSuelta {
    Integer palo = 0, valor = 0;
};

CartaSuelta CartaDe(Integer asiento, int lugar) {
    return {estado.Mano(asiento, 1, lugar, kPalo), estado.Mano(asiento, 1, lugar, kValor)};
}

// How the cards of a category are laid: so many in front, and where each of them belongs.
enum class Reparto { PorValores, UnGrupo, DosGrupos };

struct Orden {
    Reparto reparto = Reparto::PorValores;
    int clave = 0;
    bool de_palo = false; // only cards of PaloJugada, and jokers
    int segundo = 0;      // first place of the second group
    int comodin = 0;      // place of a joker in the groups
};

Orden OrdenDe(Integer n) {
    const auto& p = poker;
    if (n == p.ProyEscalera3 || n == p.ProyEscalColor3)
        return {.clave = 3, .de_palo = n == p.ProyEscalColor3};
    if (n < p.CartaMayor)
        return {.clave = 4, .de_palo = n == p.ProyColor || n == p.ProyEscalColor};
    if (n == p.DoblePareja)
        return {.reparto = Reparto::DosGrupos, .clave = 4, .segundo = 3};
    if (n == p.Full)
        return {.reparto = Reparto::DosGrupos, .clave = 5, .segundo = 4, .comodin = 3};
    const std::array<Integer, 5> grupos{p.CartaMayor, p.Pareja, p.Trio, p.Poker, p.Repoker};
    const auto* const grupo = std::ranges::find(grupos, n);
    if (grupo != grupos.end()) {
        const int clave = static_cast<int>(grupo - grupos.begin()) + 1;
        return {.reparto = Reparto::UnGrupo, .clave = clave, .comodin = clave};
    }
    return {.clave = kCartas, .de_palo = n == p.EscaleraColor};
}

bool EstaLibre(int puesto) {
    return poker.JugadaOrdenada(puesto, 1) == kSinCarta;
}

void Coloca(int puesto, const CartaSuelta& carta) {
    poker.JugadaOrdenada(puesto, 1) = carta.palo;
    poker.JugadaOrdenada(puesto, 2) = carta.valor;
}

// The first free place of desde..hasta; 0 when all are taken.
int PrimerLibre(int desde, int hasta) {
    for (int puesto = desde; puesto <= hasta; ++puesto) {
        if (EstaLibre(puesto))
            return puesto;
    }
    return 0;
}

int PuestoPorValor(const RegistroJugada& jugada, const Orden& orden, const CartaSuelta& carta) {
    if (orden.de_palo && carta.palo != kComodin && carta.palo != jugada.PaloJugada)
        return 0;
    for (int puesto = 1; puesto <= orden.clave; ++puesto) {
        if (jugada.Cartas(puesto) == carta.valor && EstaLibre(puesto))
            return puesto;
    }
    return 0;
}

int PuestoEnGrupos(const RegistroJugada& jugada, const Orden& orden, const CartaSuelta& carta) {
    if (carta.palo == kComodin)
        return orden.comodin != 0 && EstaLibre(orden.comodin) ? orden.comodin : 0;
    const int primero_acaba = orden.segundo != 0 ? orden.segundo - 1 : orden.clave;
    if (carta.valor == jugada.Cartas(1))
        return PrimerLibre(1, primero_acaba);
    if (orden.segundo != 0 && carta.valor == jugada.Cartas(2))
        return PrimerLibre(orden.segundo, orden.clave);
    return 0;
}

Integer Altura(int puesto) {
    const Integer valor = poker.JugadaOrdenada(puesto, 2);
    return valor == kAs ? kAsAlto : valor;
}

// Highest first; a joker is higher than any card.
void OrdenaSueltas(int desde) {
    for (int i = desde + 1; i <= kCartas; ++i) {
        for (int puesto = i; puesto > desde && Altura(puesto) > Altura(puesto - 1); --puesto) {
            std::swap(poker.JugadaOrdenada(puesto, 1), poker.JugadaOrdenada(puesto - 1, 1));
            std::swap(poker.JugadaOrdenada(puesto, 2), poker.JugadaOrdenada(puesto - 1, 2));
        }
    }
}

} // namespace

void OrdenaJugada(Integer asiento, Integer categoria) {
    const Orden orden = OrdenDe(categoria);
    const RegistroJugada& jugada = poker.Jugadas(asiento, categoria);
    poker.JugadaOrdenada.Borra();
    poker.CartasClave = static_cast<Integer>(orden.clave);
    for (int lugar = 1; lugar <= kCartas; ++lugar) {
        const CartaSuelta carta = CartaDe(asiento, lugar);
        int puesto = orden.reparto == Reparto::PorValores ? PuestoPorValor(jugada, orden, carta)
                                                          : PuestoEnGrupos(jugada, orden, carta);
        if (puesto == 0)
            puesto = PrimerLibre(orden.clave + 1, kCartas);
        // A category that the hand does not fill leaves cards over.
        if (puesto != 0)
            Coloca(puesto, carta);
    }
    OrdenaSueltas(orden.clave + 1);
}
