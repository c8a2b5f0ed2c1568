#include "games/poker/poker_row.h"

#include <string>
#include <utility>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "games/common/money_hands.h"
#include "games/poker/discard_pile.h"
#include "games/poker/discard_round.h"
#include "games/poker/hand_order.h"
#include "games/poker/hand_tables.h"
#include "games/poker/opening_law.h"
#include "games/poker/poker_console.h"
#include "games/poker/poker_driver.h"
#include "games/poker/poker_invariants.h"
#include "games/poker/poker_statistics.h"
#include "games/poker/poker_tutor.h"
#include "table/deck_setup.h"
#include "table/game_row.h"

namespace {

constexpr int kCartas = 5;

// OrdenCarta runs the other way here, from rank slot to rank: slots 1 to 12 hold the 2 to the Rey and slot 13
// the As, the highest.
void PonFuerzas() {
    for (int fuerza = 1; fuerza <= 12; ++fuerza)
        estado.OrdenCarta(fuerza) = EnteroDe(fuerza + 1);
    estado.OrdenCarta(13) = 1;
}

void PreparaBaraja() {
    const int quitados = estado.CartasBaraja - 1;
    PonMedidas({.tipo = kBarajaFrancesa,
                .valores_por_palo = EnteroDe(13 - quitados),
                .comodines = EnteroDe(estado.ComodinesJuego - 1),
                .reparto = kCartas,
                .paso = 1,
                .max_mano = kCartas});
    for (int valor = 2; valor <= estado.CartasBaraja; ++valor)
        estado.ValorEnBaraja(valor) = false;
    PonFuerzas();
    CargaTablasPoker();
}

bool HaApostado(Integer asiento) {
    return ApuestaTotal(asiento, 1) > 0;
}

// By hand the cards come before the ante.
bool Recibe(Integer asiento, bool a_mano) {
    return HaApostado(asiento) || (TieneResto(asiento) && (a_mano || estado.ApuestaSalida == 0));
}

void RotuloContinuar(std::string& primera, std::string& segunda) {
    const Integer asiento = estado.JugadorActual;
    const bool manual = estado.ControlJugador(asiento) == kManual;
    const Integer fase = apuestas.FaseApuesta;
    if (!manual && (fase == kFasePrimeraRonda || fase == kFaseSegundaRonda)) {
        segunda = "Apuesta";
        std::swap(primera, segunda);
    } else if (!manual && fase == kFaseDescartes) {
        segunda = "Descarta";
        std::swap(primera, segunda);
    } else if (manual && fase == kFaseDescartes && HayCartaLevantada(asiento)) {
        primera = "Descartar";
        segunda = "elegidas";
    }
}

// Midway between seat 1's zone and the table's centre, less 10.
void ColocaMazo() {
    estado.MazoX =
        Redondea((estado.MesaDerecha(1) + estado.CentroX) / 2.0 - 10 - kAnchoCarta / 2.0);
}

} // namespace

const FilaJuego& FilaPoker() {
    static const FilaJuego kFila{
        .id = kPoker,
        .nombre = "Póker",
        .tema = 3110,
        .driver = ManoPoker,
        .baraja = {.prepara = PreparaBaraja,
                   .coloca_mazo = ColocaMazo,
                   .rellena = MezclaDescartes,
                   .ordena_mano = OrdenaCartasSeat},
        .reparto = {.recibe = Recibe},
        .entrada = {.clic = AlternaDescarte,
                    .clic_control = PulsaBotonDeDescarte,
                    .tutor = ConsejoTutor},
        .pintura = {.centro = PintaDescartes,
                    .botones_asiento = PonBotonesDeDescarte,
                    .superiores = {{{"Descartar  elegidas", "Descartar elegidas"},
                                    {"Servido", "Servido"}}},
                    .mazos_a_los_lados = true,
                    .rotulo_continuar = RotuloContinuar},
        .dinero = {.hay = true, .reglas = {.bote = true}, .permite_ficha = LeyPermiteFicha},
        .mano = {.pasa_la_mano = PasaLaManoConResto,
                 .limpia = LimpiaManoDePoker,
                 .apuesta_de_salida = PonApuestaDeSalida},
        .partida = {.nueva = BorraDescartes, .acabada = AcabaPoker, .texto_final = TextoFinalPoker},
        .normas = {.encabezado = "Baraja Francesa",
                   .reglas = {Regla::Reparto, Regla::Baraja, Regla::Comodines, Regla::Ley,
                              Regla::RestoInicial, Regla::ApuestaSalida, Regla::ApuestaMaxima}},
        .informes = {.hoja = InformesDeJuego::Hoja::Jugada,
                     .cabecera = "Mano   Sale        ",
                     .resultado = "Ganancias",
                     .cuenta_parejas = true,
                     .estadis = EstadisPoker},
        .objetivos = {.en_la_mesa = AgregaDescartes,
                      .elegible = "se puede descartar",
                      .elegida = "elegida para descartar"},
        .revision = {.paso = RevisaPasoPoker,
                     .mano = RevisaManoPoker,
                     .partida = RevisaPartidaPoker},
        .procedimientos = ProcedimientosDePoker,
    };
    return kFila;
}
