#include "games/common/played_cards.h"

#include "core/text.h"
#include "games/common/trick_state.h"

namespace {

CeldaDeBaraja CartaConSuMarca(Carta carta) {
    const bool jugada = bazas.CartaJugada(carta.palo, carta.valor) != 0;
    return {Numero(carta.valor), jugada ? Tinta::RojoOscuro : Tinta::Negro, jugada};
}

} // namespace

Carta CartaEnBaza(Integer asiento, Integer baza) {
    return {bazas.RegistroBazas(asiento + kFilaPalo, baza),
            bazas.RegistroBazas(asiento + kFilaValor, baza)};
}

int ImprimeCartasJugadas(PaginaImpresa& pagina, int y) {
    return ImprimeTablaDeBaraja(pagina, y, CartaConSuMarca);
}
