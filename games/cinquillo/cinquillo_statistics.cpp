#include "games/cinquillo/cinquillo_statistics.h"

#include <algorithm>
#include <array>

#include "core/game_state.h"
#include "core/text.h"
#include "games/common/played_cards.h"

namespace {

constexpr int kPrimerAsiento = 8, kEntreAsientos = 19; // columns

using Rueda = std::array<Integer, 4>;

Rueda AsientosDesdeElMano() {
    Rueda rueda{};
    Integer asiento = std::clamp<Integer>(estado.JugadorMano, 1, 4);
    for (Integer& cual : rueda) {
        cual = asiento;
        SiguienteAsiento(asiento);
    }
    return rueda;
}

int ColumnaDe(std::size_t orden) {
    return Columna(kPrimerAsiento + kEntreAsientos * static_cast<int>(orden));
}

// A pass leaves its place empty.
void ImprimeVuelta(PaginaImpresa& pagina, const Rueda& rueda, Integer vuelta, int y) {
    pagina.Texto(0, y, Formato(vuelta, "#0"), Tinta::RojoOscuro);
    for (std::size_t i = 0; i < rueda.size(); ++i) {
        const Carta carta = CartaEnBaza(rueda[i], vuelta);
        if (carta.palo != kSinCarta)
            pagina.Texto(ColumnaDe(i), y, NombreDeCarta(carta), Tinta::Negro);
    }
}

} // namespace

void EstadisC(PaginaImpresa& pagina) {
    const Rueda rueda = AsientosDesdeElMano();
    pagina.Texto(0, 0, "Vuelta", Tinta::Negro, kLetraDeTitulo);
    for (std::size_t i = 0; i < rueda.size(); ++i)
        pagina.Texto(ColumnaDe(i), 0, estado.NombreJugador(rueda[i]), Tinta::Negro, kLetraDeTitulo);
    int y = 0;
    const Integer vueltas = std::min(estado.NumBaza, kBazasAnotadas);
    for (Integer vuelta = 1; vuelta <= vueltas; ++vuelta) {
        y += kRenglon;
        ImprimeVuelta(pagina, rueda, vuelta, y);
    }
    ImprimeCartasJugadas(pagina, y + 2 * kRenglon);
}
