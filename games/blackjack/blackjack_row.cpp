#include "games/blackjack/blackjack_row.h"

#include <algorithm>

#include "betting/chips.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "games/blackjack/blackjack.h"
#include "games/blackjack/blackjack_console.h"
#include "games/blackjack/blackjack_input.h"
#include "games/blackjack/blackjack_invariants.h"
#include "games/blackjack/blackjack_statistics.h"
#include "games/blackjack/blackjack_tutor.h"
#include "games/common/money_hands.h"
#include "games/common/series.h"
#include "games/common/series_view.h"
#include "table/deck.h"
#include "table/deck_setup.h"
#include "table/game_row.h"
#include "table/layout.h"

namespace {

constexpr Integer kBanca = 2; // the seat that holds the bank
constexpr const char* kBancaFija =
    "En  el  juego  del  Black Jack  este  es  el  jugador  banca  o 'croupier'   "
    "y  no  lo  puede  desactivar,  por  tanto,  no  se  le permite modificar el "
    "valor de este selector.";
constexpr const char* kCartasFijas =
    "En  el  juego  del  Black  Jack  las  cartas  de  los  jugadores siempre  "
    "permanecen  boca arriba ,   por  lo  que  no  puede modificar el valor de "
    "este selector.";

constexpr int kBajoLaBanca = 11; // pixels between the bank's zone and the pile

void PreparaBaraja() {
    PonMedidas({.tipo = kBarajaFrancesa,
                .valores_por_palo = 13,
                .mazos = 6,
                .reparto = 2,
                .paso = 1,
                .max_mano = 11});
    PonReglasDeBanca();
    for (int valor = 1; valor <= 13; ++valor)
        estado.ValorCarta(valor) = std::min(valor, 10);
}

void ColocaMazo() {
    estado.MazoY = static_cast<Integer>(estado.MesaAbajo(kBanca) + kBajoLaBanca);
}

// The bank needs no stake. Nobody deals by hand here; a card on the pointer would still enter like this.
bool Recibe(Integer asiento, bool a_mano) {
    const bool es_banca = asiento == estado.JugadorBanca;
    if (!a_mano)
        return es_banca || ApuestaTotal(asiento, 1) > 0;
    return TieneResto(asiento) && !(es_banca && estado.NumCartas(asiento, 1) > 0);
}

// The bank holds one card until its turn.
Integer CartasDe(Integer asiento) {
    return asiento == estado.JugadorBanca ? Integer{1} : estado.CartasReparto;
}

void NuevosMazos(Integer /*asiento*/, Integer /*faltan*/) {
    Barajar();
}

} // namespace

const FilaJuego& FilaBlackJack() {
    static const FilaJuego kFila{
        .id = kBlackJack,
        .nombre = "Black Jack",
        .tema = 3120,
        .driver = ManoBlackJack,
        .asientos = {.banca = kBanca,
                     .candados = {{Candado::Ajuste::Estado, kBanca, kBancaFija},
                                  {Candado::Ajuste::Cartas, 0, kCartasFijas}}},
        .baraja = {.prepara = PreparaBaraja,
                   .seguida = true,
                   .coloca_mazo = ColocaMazo,
                   .rellena = NuevosMazos,
                   .clave_orden = ClaveDeSerie},
        .reparto = {.recibe = Recibe, .cartas_de = CartasDe},
        .sorteo = {.se_hace = false},
        .entrada = {.menu_ordenar = false,
                    .puntero = PunteroBlackJack,
                    .clic = ClicEnCartasBlackJack,
                    .clic_control = ClicEnBotonBlackJack,
                    .tutor = AconsejaBlackJack},
        .pintura = {.botones_asiento = PonBotonesBlackJack,
                    .puntos = PuntosSerie,
                    .rotulo_continuar = RotuloDeSerie},
        .dinero = {.hay = true, .reglas = {.maxima_solo_al_apostar = true, .maximas_de_techo = 12}},
        .mano = {.pasa_la_mano = PasaLaBanca, .limpia = LimpiaManoConDinero, .reparte = false},
        .partida = {.nueva = NuevaBlackJack,
                    .acabada = AcabadaBlackJack,
                    .texto_final = TextoFinalBlackJack,
                    .ganadores = GanadoresBlackJack},
        .normas = {.reglas = {Regla::RestoInicial, Regla::ApuestaMaxima}},
        .informes = {.hoja = InformesDeJuego::Hoja::Banca,
                     .cabecera = "Mano",
                     .resultado = "Resultado",
                     .perdedores = "Bancarrota",
                     .estadis = EstadisBj},
        .revision = {.paso = RevisaPasoBlackJack,
                     .mano = RevisaManoBlackJack,
                     .partida = RevisaPartidaBlackJack},
        .procedimientos = ProcedimientosDeBlackJack,
    };
    return kFila;
}
