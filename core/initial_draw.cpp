#include "core/initial_draw.h"

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/random.h"
#include "core/session_state.h"
#include "games/game_table.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/table_ops.h"
#include "table/table_view.h"
#include "table/waiting.h"

namespace {

constexpr Integer kAs = 1;
constexpr int kUltimoValor = 13;

void PonEnLugarLibre(Integer palo, Integer valor) {
    int lugar = AzarEntre(estado.CartasNormales);
    while (estado.Baraja(lugar, 1) != kSinCarta) {
        lugar = AzarEntre(estado.CartasNormales);
    }
    estado.Baraja(lugar, 1) = palo;
    estado.Baraja(lugar, 2) = valor;
}

// One deck's cards at random places: the draw needs no more, whatever the game deals from.
void MezclaParaSorteo() {
    estado.Baraja.Borra();
    SiembraDelReloj(plataforma().Reloj());
    for (Integer valor = 1; valor <= kUltimoValor; ++valor) {
        for (Integer palo = kOros; palo <= kBastos && estado.ValorEnBaraja(valor); ++palo) {
            PonEnLugarLibre(palo, valor);
        }
    }
}

void DaCarta(Integer asiento, const Punto& mazo, int lugar) {
    const Integer palo = estado.Baraja(lugar, 1);
    const Integer valor = estado.Baraja(lugar, 2);
    DibujarMazo(mazo.x, mazo.y, estado.CartasNormales - lugar);
    ColocarCarta(asiento, 1, 1);
    MoverCarta(palo, valor, mazo.x, mazo.y, 1, kDescubierta, estado.CartaX, estado.CartaY,
               OrientacionDe(asiento), kDescubierta, 0);
    vista.sorteada(asiento) = {
        .palo = palo, .valor = valor, .cara = kDescubierta, .orientacion = OrientacionDe(asiento)};
}

void Anuncia(Integer asiento) {
    const FilaJuego& juego = JuegoEnMesa();
    const TextosSorteo textos =
        juego.textos_sorteo != nullptr
            ? juego.textos_sorteo()
            : TextosSorteo{"Se  ha  sorteado  el  jugador  que  comienza  la  partida.", "Sale "};
    Mensaje("Comienza la Partida",
            textos.primera + estado.SaltoLinea + textos.antes + estado.NombreJugador(asiento) + ".",
            2, 1);
}

} // namespace

bool SorteoInicial() {
    const Punto mazo{Redondea(estado.AnchoMesa / 2.0 - kAnchoCarta / 2.0),
                     Redondea(estado.AltoMesa / 2.0 - kAltoCarta / 2.0)};
    vista.mazo_centrado = true;
    DibujarMazo(mazo.x, mazo.y, estado.CartasNormales);
    MezclaParaSorteo();
    MostrarNombres();
    estado.JugadorActual = 4;
    for (int lugar = 1; lugar <= estado.CartasNormales; ++lugar) {
        SiguienteAsiento(estado.JugadorActual);
        if (estado.EstadoJugador(estado.JugadorActual) != kActivado) {
            continue;
        }
        DaCarta(estado.JugadorActual, mazo, lugar);
        PaseDeEventos(Pase::DePaso);
        if (!PartidaSigue()) {
            return false;
        }
        if (estado.Baraja(lugar, 2) == kAs) {
            break;
        }
        Pausa(120);
    }
    (JuegoEnMesa().sorteo_da_banca ? estado.JugadorBanca : estado.JugadorMano) =
        estado.JugadorActual;
    Anuncia(estado.JugadorActual);
    return PartidaSigue();
}
