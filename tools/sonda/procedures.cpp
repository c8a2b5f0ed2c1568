#include "tools/sonda/procedures.h"

#include <unordered_map>

#include "betting/chips.h"
#include "betting/prizes.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "forms/spin.h"
#include "games/common/bank_hands.h"
#include "games/common/hand_queries.h"
#include "games/common/hands.h"
#include "games/common/series.h"
#include "reports/marcador.h"
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
#include "table/game_row.h"
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

// The page button under the pointer, which stands where the line says or else where the mouse was last.
std::optional<std::string> BuscaBoton(const Argumentos& lugar) {
    static const Llamada kBusca = Llama(&CualBoton);
    const Argumentos raton{static_cast<double>(estado.RatonX), static_cast<double>(estado.RatonY)};
    return kBusca(lugar.empty() ? raton : lugar);
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

// One line a procedure that every game shares.
const std::unordered_map<std::string, Llamada>& LosComunes() { // NOLINT(readability-function-size)
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

        // The page buttons of Marcador.
        {"CualBoton", BuscaBoton},

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

        // Hands, and the tutor of the game in play.
        {"ExaminaMano", Llama(&ExaminaMano)},
        {"CuentaPalo", Llama(&CuentaPalo)},
        {"BuscaCarta", Llama(&BuscaCarta)},
        {"PotenciaCarta", Llama(&PotenciaCarta)},
        {"IniciarJuego", LlamaPasos(&IniciarJuego)},
        {"FinalPartida", Llama(&FinalPartida)},
        {"ConsejoTutor", Llama(&PideConsejo)},
        {"IniciaMano", LlamaPasos(&IniciarJuego)},
    };
    return kTabla;
}

// ... and those that the games in use have of their own.
std::unordered_map<std::string, Llamada> ConLosDeLosJuegos() {
    std::unordered_map<std::string, Llamada> tabla = LosComunes();
    for (const FilaJuego* fila : FilasDeJuegos()) {
        if (fila->procedimientos == nullptr)
            continue;
        for (const ProcedimientoConNombre& uno : fila->procedimientos())
            tabla.emplace(uno.nombre, uno.llamada);
    }
    return tabla;
}

} // namespace

const Llamada& Procedimiento(const std::string& nombre) {
    static const std::unordered_map<std::string, Llamada> kTabla = ConLosDeLosJuegos();
    const auto sitio = kTabla.find(nombre);
    if (sitio == kTabla.end())
        throw ErrorConsola("el procedimiento " + nombre + " no existe");
    return sitio->second;
}
