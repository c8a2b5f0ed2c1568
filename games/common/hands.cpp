#include "games/common/hands.h"

#include <vector>

#include "betting/bet_state.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "core/session_state.h"
#include "core/text.h"
#include "games/common/match_history.h"
#include "storage/saving.h"
#include "table/announcements.h"
#include "table/button_column.h"
#include "table/chips.h"
#include "table/controls.h"
#include "table/deal.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/manual_deal.h"
#include "table/messages.h"
#include "table/notice.h"
#include "table/pending_rules.h"
#include "table/score_plate.h"
#include "table/seat_drawing.h"
#include "table/sounds.h"
#include "table/waiting.h"
#include "table/whole_table.h"

namespace {

bool EnEquipo(int asiento, Integer ganador) {
    return asiento == ganador || (PorParejas() && estado.ParejaAsiento(asiento) == ganador);
}

void SueltaJuegoMasAntiguo() {
    for (int juego = 1; juego < estado.JuegosJugados; ++juego)
        estado.Juegos(juego) = std::move(estado.Juegos(juego + 1));
    estado.Juegos(estado.JuegosJugados) = {};
    --estado.JuegosJugados;
}

void CuentaJuego() {
    if (estado.JuegosJugados > kJuegosGuardados)
        SueltaJuegoMasAntiguo();
    ++estado.JuegosJugados;
    sesion.mano_apuntada = false;
}

// The lead goes round from the second game on. A match that was cut off in its draw has none drawn yet, and its
// file may name a seat that has left since: the next one leads.
void PasaLaMano() {
    if (JuegoEnMesa().mano.pasa_la_mano != nullptr)
        return JuegoEnMesa().mano.pasa_la_mano();
    if (estado.JuegosJugados > 1)
        SiguienteAsiento(estado.JugadorMano);
    for (int paso = 0; paso < 4 && estado.EstadoJugador(estado.JugadorMano) != kActivado; ++paso)
        SiguienteAsiento(estado.JugadorMano);
}

void BorraMano() {
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        VaciaMano(asiento);
        estado.SeriesJugador(asiento) = 1;
    }
    if (!JuegoEnMesa().baraja.seguida)
        estado.Baraja.Borra();
    if (!JuegoEnMesa().dinero.hay)
        apuestas.Apuesta.Borra();
    estado.RotuloSerie.Borra();
    estado.ParpadeoRotulo.Borra();
    estado.PaloTriunfo = 0;
    estado.ValorTriunfo = 0;
    estado.NumBaza = 0;
    estado.SerieActual = 1;
    estado.SerieEnJuego = 1;
    estado.JugadoresEnMano = estado.NumJugadores;
}

// In the games with money who has none left gets nothing, and the bank that is always the same one has no turn yet.
bool SeVeAlEmpezar(Integer asiento) {
    const FilaJuego& juego = JuegoEnMesa();
    return !juego.dinero.hay || (TieneResto(asiento) && asiento != juego.asientos.banca);
}

void PonMesaDeMano() {
    BorraMano();
    if (JuegoEnMesa().mano.limpia != nullptr)
        JuegoEnMesa().mano.limpia();
    LimpiarMesa();
    OcultaTantos();
    MostrarNombres();
    PintaTanteo();
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (SeVeAlEmpezar(asiento))
            RedibujarAsiento(asiento);
        else if (JuegoEnMesa().dinero.hay && TieneResto(asiento))
            PintarFichas(asiento, kAreaRestos + asiento - 1);
    }
}

void TomaApuestaDeSalida() {
    if (JuegoEnMesa().mano.apuesta_de_salida != nullptr)
        JuegoEnMesa().mano.apuesta_de_salida();
}

// A manual deal that a change of the rules has broken off is dealt again, by whatever system holds by then.
[[nodiscard]] bool RepartirHastaCompletar() {
    bool a_mano = false;
    do {
        PonMesaDeMano();
        if (!JuegoEnMesa().mano.reparte)
            return true;
        a_mano = estado.SistemaReparto == kRepartoManual;
        if (!a_mano)
            TomaApuestaDeSalida();
        if (!Repartir())
            return false;
    } while (a_mano && !RepartoCompleto());
    if (a_mano)
        TomaApuestaDeSalida();
    return PartidaSigue();
}

bool AlguienManual() {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) == kActivado &&
            estado.ControlJugador(asiento) == kManual) {
            return true;
        }
    }
    return false;
}

bool LlegaAlLimite(Integer ganador) {
    if (estado.JuegosGanados(ganador) < estado.LimitePartida)
        return false;
    estado.GanadorPartida = ganador;
    return true;
}

// A saved match that somebody has already won only ends.
bool YaGanada() {
    if (JuegoEnMesa().partida.acabada != nullptr)
        return estado.JuegosJugados > 0 && JuegoEnMesa().partida.acabada();
    return LlegaAlLimite(1) || LlegaAlLimite(2) || LlegaAlLimite(3) || LlegaAlLimite(4);
}

bool Acabada() {
    const auto acabada = JuegoEnMesa().partida.acabada;
    return acabada != nullptr ? acabada() : LlegaAlLimite(estado.GanadorMano);
}

std::string TextoFinalPartida() {
    const auto texto = JuegoEnMesa().partida.texto_final;
    return texto != nullptr ? texto() : TextoGana(estado.GanadorPartida, "la partida");
}

std::vector<int> Ganadores() {
    std::vector<int> ganadores;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        if (EnEquipo(asiento, estado.GanadorMano))
            ganadores.push_back(asiento);
    }
    return ganadores;
}

std::string Equipo(int uno) {
    return estado.NombreJugador(uno) + " y " + estado.NombreJugador(uno + 2);
}

void PonAltura(Integer altura) {
    estado.Mano(estado.JugadorActual, estado.SerieActual, estado.CartaElegida, kAltura) = altura;
    RedibujarAsiento(estado.JugadorActual);
}

} // namespace

bool IniciarJuego() {
    AplicaReglasPendientes();
    CuentaJuego();
    PasaLaMano();
    Di("Mano " + Numero(estado.JuegosJugados));
    if (!RepartirHastaCompletar())
        return false;
    if (JuegoEnMesa().mano.descubre != nullptr)
        JuegoEnMesa().mano.descubre();
    RefrescaTanteo();
    estado.ManoEnCurso = true;
    for (int boton : {kBotonPersonal, kBotonNormas, kBotonSalir, kBotonEstadis})
        HabilitaBoton(boton, true);
    return true;
}

void RotuloDeJuega(std::string& primera, std::string& segunda) {
    if (estado.ControlJugador(estado.JugadorActual) == kManual)
        return;
    segunda = primera;
    primera = "Juega";
}

void PonAntesDelMano() {
    estado.JugadorActual = estado.JugadorMano;
    AsientoAnterior(estado.JugadorActual);
}

void ParpadeaGanador() {
    Sonido(1, sonido::kFinMano);
    for (int vez = 0; vez < 4; ++vez) {
        for (const bool visible : {true, false}) {
            for (const int asiento : Ganadores())
                MarcaGanador(asiento, visible);
            Pausa(visible ? 490 : 200);
        }
    }
    for (const int asiento : Ganadores())
        DejaMarcaGanador(asiento);
}

std::string TextoGana(Integer ganador, const std::string& que) {
    if (PorParejas()) {
        return ganador == 2 ? Equipo(2) + ", habéis ganado " + que + ". "
                            : "Han ganado " + que + " " + Equipo(1);
    }
    const std::string& nombre = estado.NombreJugador(ganador);
    return ganador == 4 ? nombre + ", has ganado " + que + ". " : "Ha ganado " + que + " " + nombre;
}

bool CuentaFinalMano(const std::string& texto) {
    Pausa(750);
    Mensaje("Final de la mano", texto, LineasDe(texto), 1);
    return EsperaOtraMano();
}

bool EsperaOtraMano() {
    if (estado.PausaEntreJugadas || AlguienManual())
        return EsperaContinuar();
    PaseDeEventos(Pase::DePaso);
    Pausa(500);
    return PartidaSigue();
}

void GanaMano() {
    ++estado.JuegosGanados(estado.GanadorMano);
    ApuntaMano();
}

void ApuntaMano() {
    sesion.mano_apuntada = true;
    RefrescaTanteo();
    GuardarPartida();
}

void FinalPartida() {
    const std::string texto = TextoFinalPartida();
    Mensaje("Final de Partida", texto, LineasDe(texto), 1);
    PreguntaPorHistorico();
    OcultaTantos();
    OcultarContinuar();
    OcultaSugerencia();
    estado.PartidaEnCurso = false;
    GuardarPartida();
    for (int boton : {kBotonSalir, kBotonNueva, kBotonNormas})
        HabilitaBoton(boton, true);
    RefrescaAviso();
}

void JuegaPartida(bool (*mano)()) {
    bool ganada = YaGanada();
    while (!ganada) {
        if (!mano())
            return;
        ganada = Acabada();
    }
    FinalPartida();
}

void AconsejaCarta(void (*elige)()) {
    elige();
    if (estado.CartaElegida == 0)
        return;
    if (const auto carta = ALaVista(estado.JugadorActual, estado.CartaElegida, 1); !carta.empty())
        Di("El tutor aconseja " + Enumera(carta));
    for (int vez = 0; vez < 2; ++vez) {
        PonAltura(kLevantada);
        Pausa(180);
        Sonido(1, sonido::kConsejo);
        Pausa(420);
        PonAltura(kEnLinea);
    }
}
