#include "games/poker/hand_text.h"

#include "core/game_state.h"
#include "core/text.h"
#include "games/poker/poker_state.h"

namespace {

constexpr Integer kJota = 11, kDama = 12, kRey = 13, kAsAlto = 14;

bool EsComodin(Integer valor) {
    return valor > kAsAlto;
}

bool VaPorGrupos(Integer n) {
    const auto& p = poker;
    return n == p.Repoker || n == p.Poker || n == p.Full || n == p.Trio || n == p.DoblePareja ||
           n == p.Pareja;
}

bool VaPorDosGrupos(Integer n) {
    return n == poker.Full || n == poker.DoblePareja;
}

bool EsEscalera(Integer n) {
    return n == poker.EscaleraColor || n == poker.Escalera;
}

// The highest card. Above a Rey a joker closes a straight as the As.
Integer Tope(const RegistroJugada& jugada, bool escalera) {
    if (!EsComodin(jugada.Cartas(1)))
        return jugada.Cartas(1);
    return static_cast<Integer>(jugada.Cartas(2) + (escalera ? 1 : 0));
}

std::string NombreDe(Integer valor) {
    return estado.NombreValor(valor > kRey ? 1 : valor);
}

} // namespace

std::string TextoJugada(Integer asiento, Integer categoria) {
    const RegistroJugada& jugada = poker.Jugadas(asiento, categoria);
    const std::string nombre = Recorta(poker.NombreJugada(categoria));
    if (VaPorGrupos(categoria)) {
        const std::string primero = nombre + " de " + estado.NombreValorPlural(jugada.Cartas(1));
        return VaPorDosGrupos(categoria)
                   ? primero + " y " + estado.NombreValorPlural(jugada.Cartas(2))
                   : primero;
    }
    const Integer tope = Tope(jugada, EsEscalera(categoria));
    return nombre + (tope == kJota || tope == kDama ? " a la " : " al ") + NombreDe(tope);
}
