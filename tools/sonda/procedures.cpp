#include "tools/sonda/procedures.h"

#include <unordered_map>

#include "betting/chips.h"
#include "betting/prizes.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "forms/spin.h"
#include "games/blackjack/blackjack.h"
#include "games/blackjack/blackjack_decision.h"
#include "games/cinquillo/cinquillo.h"
#include "games/cinquillo/cinquillo_choice.h"
#include "games/common/bank_hands.h"
#include "games/common/hand_queries.h"
#include "games/common/hands.h"
#include "games/common/series.h"
#include "games/poker/bet_choice.h"
#include "games/poker/combinations.h"
#include "games/poker/discard_choice.h"
#include "games/poker/hand_layout.h"
#include "games/poker/hand_order.h"
#include "games/poker/hand_reading.h"
#include "games/poker/hand_tables.h"
#include "games/poker/hand_text.h"
#include "games/poker/hand_value.h"
#include "games/poker/opening_law.h"
#include "games/poker/poker_driver.h"
#include "games/poker/rivals.h"
#include "games/sieteymedia/sieteymedia.h"
#include "games/sieteymedia/sieteymedia_cards.h"
#include "games/sieteymedia/sieteymedia_decision.h"
#include "games/trick/card_rules.h"
#include "games/trick/choice_brisca.h"
#include "games/trick/choice_tute.h"
#include "games/trick/exact_search.h"
#include "games/trick/exchange.h"
#include "games/trick/hand_end.h"
#include "games/trick/stock.h"
#include "games/trick/trick_driver.h"
#include "session/initial_draw.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "storage/settings.h"
#include "table/bet_board.h"
#include "table/button_column.h"
#include "table/controls.h"
#include "table/deal.h"
#include "table/deck.h"
#include "table/drawing.h"
#include "table/flight.h"
#include "table/hit_tests.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/options_menu.h"
#include "table/pile.h"
#include "table/seat_drawing.h"
#include "table/side_buttons.h"
#include "table/table_input.h"
#include "table/whole_table.h"

namespace {

// The mouse handlers have the state of the shift keys among their arguments; the game never reads it.
void RatonMueve(int, int, int x, int y) {
    Form_MouseMove(x, y);
}

void RatonPulsa(int boton, int, int x, int y) {
    Form_MouseDown(boton, x, y);
}

void RatonSuelta(int, int, int, int) {
    Form_MouseUp();
}

void Tecla(int tecla) {
    DespachaEvento({.tipo = TipoEvento::Tecla, .tecla = tecla});
}

// A pointer by the name of its cursor.
void CambiaCursorPorNombre(Control control, const std::string& nombre) {
    for (int i = 1; i <= static_cast<int>(Puntero::Abrirse); ++i) {
        if (nombre == NombreDe(static_cast<Puntero>(i)))
            return CambiarCursor(control, 0, static_cast<Puntero>(i));
    }
    throw ErrorConsola("el cursor " + nombre + " no existe");
}

// A number or a frame on a control that comes once; the number stands at its left edge.
void PintaNumero(Control control, const std::string& numero) {
    PintarNumero(control, 0, 0, 0, numero, static_cast<int>(numero.size()));
}

void PintaMarco(Control control, int x, int y, int ancho, int alto) {
    PintarMarco(control, 0, x, y, ancho, alto);
}

// A flight with all that it takes in one line.
void MoverCarta(Integer palo, Integer valor, int desdeX, int desdeY, Integer desdeOrientacion,
                Integer desdeCara, int hastaX, int hastaY, Integer hastaOrientacion,
                Integer hastaCara, int tapada) {
    MueveCarta({palo, valor}, {desdeX, desdeY, desdeOrientacion, desdeCara},
               {hastaX, hastaY, hastaOrientacion, hastaCara}, tapada == 1);
}

// The tutor as its button asks it, be the button enabled or not.
void PideConsejo() {
    const bool habilitado = BotonHabilitado(kBotonTutor);
    HabilitaBoton(kBotonTutor, true);
    PulsaBoton(kBotonTutor);
    HabilitaBoton(kBotonTutor, habilitado);
}

// Of the moves of chips those that are seen, without a listener of the caller's.
void AnulaLasApuestas(Integer asiento) {
    AnulaApuestas(asiento);
}

void PagaElBote() {
    PagaBote();
}

void PagaLaBanca(Integer asiento, Integer cantidad) {
    PagaDeBanca(asiento, cantidad);
}

void DevuelveLaApuesta(Integer asiento, Integer destino, Integer modo) {
    DevuelveApuesta(asiento, destino, modo);
}

// One line a procedure that the console knows.
const std::unordered_map<std::string, Llamada>& LaTabla() { // NOLINT(readability-function-size)
    static const std::unordered_map<std::string, Llamada> kTabla{
        // State and match.
        {"SiguienteAsiento", Llama(&SiguienteAsiento)},
        {"AsientoAnterior", Llama(&AsientoAnterior)},
        {"ActivarAsientos", Llama(&ActivarAsientos)},
        {"IniciarSesion", Llama(&IniciarSesion)},
        {"NuevaPartida", Llama(&NuevaPartida)},
        {"SorteoInicial", LlamaPasos(&SorteoInicial)},
        {"IniciarTablas", Llama(&IniciarTablas)},
        {"ConfirmarNueva", Llama(&ConfirmarNueva)},
        {"ConfirmarSalida", Llama(&ConfirmarSalida)},
        {"RestaurarApuestas", Llama(&RestauraMano)},
        {"RestauraMano", Llama(&RestauraMano)},
        {"GuardarYSalir", Llama(&GuardarYSalir)},

        // Settings files.
        {"LeerIniGeneral", Llama(&LeerIniGeneral)},
        {"LeerIniJuego", Llama(&LeerIniJuego)},
        {"GrabarIniGeneral", LlamaPasos(&GrabarIniGeneral)},
        {"GrabarIniJuego", LlamaPasos(&GrabarIniJuego)},

        // The numbers of Normas.
        {"LimitesSpin", Llama(&LimitesSpin)},
        {"ActualizaSpin", Llama(&ActualizaSpin)},

        // The deck.
        {"ConstruirBaraja", Llama(&ConstruirBaraja)},
        {"Barajar", Llama(&Barajar)},
        {"Repartir", LlamaPasos(&Repartir)},
        {"RobarCartas", Llama(&RobarCartas)},
        {"OrdenarMano", Llama(&OrdenarMano)},
        {"CompactarMano", Llama(&CompactarMano)},
        {"ColocarMazo", Llama(&ColocarMazo)},

        // Table operations.
        {"CalcularMesa", Llama(&CalcularMesa)},
        {"PrepararImagenes", Llama(&PrepararImagenes)},
        {"DibujarMazo", Llama(&DibujarMazo)},
        {"DibujarCarta", Llama(&DibujarCarta)},
        {"ColocarCarta", Llama(&ColocarCarta)},
        {"MoverCarta", Llama(&MoverCarta)},
        {"RedibujarAsiento", Llama(&RedibujarAsiento)},
        {"ResaltarAsiento", Llama(&ResaltarAsiento)},
        {"MostrarRotulo", Llama(&MostrarRotulo)},
        {"MostrarNombres", Llama(&MostrarNombres)},
        {"DibujarCaja", Llama(&DibujarCaja)},
        {"MostrarPuntos", Llama(&MostrarPuntos)},
        {"PintarNumero", Llama(&PintaNumero)},
        {"PintarMarco", Llama(&PintaMarco)},
        {"BotonLateral", Llama(&BotonLateral)},
        {"BotonSuperior", Llama(&BotonSuperior)},
        {"BotonDobSeg", Llama(&BotonDobSeg)},
        {"PedirContinuar", Llama(&PedirContinuar)},
        {"OcultarContinuar", Llama(&OcultarContinuar)},
        {"CambiarCursor", Llama(&CambiaCursorPorNombre)},

        // Input.
        {"DetectaJdorYCar", Llama(&DetectaJdorYCar)},
        {"DetectaZonaCartas", Llama(&DetectaZonaCartas)},
        {"HallaFilyCol", Llama(&HallaFilyCol)},
        {"CartaLegal", Llama(&CartaLegal)},
        {"MuestraOpciones", Llama(&MuestraOpciones)},
        {"Form_MouseMove", Llama(&RatonMueve)},
        {"Form_MouseDown", Llama(&RatonPulsa)},
        {"Form_MouseUp", Llama(&RatonSuelta)},
        {"Form_Click", Llama(&Form_Click)},
        {"Form_KeyPress", Llama(&Tecla)},

        // Messages, tips and pacing.
        {"Mensaje", Llama(&Mensaje)},
        {"MostrarSugerencia", Llama(&MostrarSugerencia)},
        {"Pausa", Llama(&Pausa)},
        {"Sonido", Llama(&Sonido)},

        // Chips and series. Outside the games with series a seat has only the first.
        {"RestoDe", Llama(&RestoDe)},
        {"ApuestaTotal", Llama(&ApuestaTotal, {1.0})},
        {"Desglosa", Llama(&Desglosa)},
        {"AsignarResto", Llama(&AsignarResto)},
        {"RepartePremios", Llama(&RepartePremios)},
        {"PuntosSerie", Llama(&PuntosSerie)},
        {"AbreSerie", Llama(&AbreSerie)},
        {"DecideBlackJack", Llama(&DecideBlackJack)},
        {"DecideSiete", Llama(&DecideSiete)},

        // Matches of Black Jack.
        {"ManoBlackJack", Llama(&ManoBlackJack)},
        {"DestellaBust", Llama(&DestellaBust)},

        // Chips on the table and the bet board.
        {"PonFicha", LlamaPasos(&PonFicha)},
        {"ColocaApuesta", Llama(&ColocaApuesta)},
        {"AnulaApuestas", Llama(&AnulaLasApuestas)},
        {"MuestraApostadora", Llama(&MuestraApostadora)},
        {"ActualizaApostadora", Llama(&ActualizaApostadora)},
        {"EstadoBoton", Llama(&EstadoBoton)},
        {"PagaBote", Llama(&PagaElBote)},
        {"PagaDeBanca", Llama(&PagaLaBanca)},
        {"DevuelveApuesta", Llama(&DevuelveLaApuesta)},

        // Hands of the games of laying cards.
        {"ExaminaMano", Llama(&ExaminaMano)},
        {"CuentaPalo", Llama(&CuentaPalo)},
        {"BuscaCarta", Llama(&BuscaCarta)},
        {"PotenciaCarta", Llama(&PotenciaCarta)},
        {"IniciarJuego", LlamaPasos(&IniciarJuego)},
        {"FinalPartida", Llama(&FinalPartida)},
        {"ManoCinquillo", Llama(&ManoCinquillo)},
        {"EligeCartaCinquillo", Llama(&EligeCartaCinquillo)},

        // Tute and Brisca.
        {"ManoTute", Llama(&ManoTute)},
        {"ManoBrisca", Llama(&ManoBrisca)},
        {"EligeCartaTute", Llama(&EligeCartaTute)},
        {"EligeCartaBrisca", Llama(&EligeCartaBrisca)},
        {"ExploraBazas", Llama(&ExploraBazas)},
        {"ValoraExploracion", Llama(&ValoraExploracion)},
        {"ResuelveBaza", Llama(&ResuelveBaza)},
        {"RobaCartas", Llama(&RobaCartas)},
        {"CambiaTriunfo", Llama(&CambiaTriunfo)},
        {"FinalMano", LlamaPasos(&FinalMano)},

        // Hands of Póker.
        {"CargaTablasPoker", Llama(&CargaTablasPoker)},
        {"AnalizaJugada", Llama(&AnalizaJugada)},
        {"OrdenaJugada", Llama(&OrdenaJugada)},
        {"ValorJugada", Llama(&ValorJugada)},
        {"TextoJugada", Llama(&TextoJugada)},
        {"EsFigura", Llama(&EsFigura)},
        {"Combinaciones", Llama(&Combinaciones)},
        {"TieneComodin", Llama(&TieneComodin)},
        {"OrdenaCartasSeat", Llama(&OrdenaCartasSeat)},

        // Bets and discards of Póker, and the tutor of the game in play.
        {"CalculaApuesta", Llama(&CalculaApuesta)},
        {"ActitudMesa", Llama(&ActitudMesa)},
        {"LeyAperturaCumplida", Llama(&LeyAperturaCumplida)},
        {"RivalesSinResto", Llama(&RivalesSinResto)},
        {"DecideDescarte", Llama(&DecideDescarte)},
        {"ConsejoTutor", Llama(&PideConsejo)},

        // Matches of Póker.
        {"ManoPoker", Llama(&ManoPoker)},
        {"IniciaMano", LlamaPasos(&IniciarJuego)},

        // Siete y media.
        {"ManoSieteYMedia", Llama(&ManoSieteYMedia)},
        {"DestapaSerie", Llama(&DestapaSerie)},
        {"CambiaCuatro", Llama(&CambiaCuatro)},
    };
    return kTabla;
}

} // namespace

const Llamada& Procedimiento(const std::string& nombre) {
    const auto sitio = LaTabla().find(nombre);
    if (sitio == LaTabla().end())
        throw ErrorConsola("el procedimiento " + nombre + " no existe");
    return sitio->second;
}
