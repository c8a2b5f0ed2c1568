#include "session/main_buttons.h"

#include "core/game_state.h"
#include "core/session_state.h"
#include "storage/saving.h"
#include "table/bet_board.h"
#include "table/button_column.h"
#include "table/controls.h"
#include "table/deck.h"
#include "table/frames.h"
#include "table/game_row.h"
#include "table/hand_order.h"
#include "table/keyboard_walk.h"
#include "table/manual_spread.h"
#include "table/messages.h"
#include "table/options_menu.h"
#include "table/score_plate.h"
#include "table/sounds.h"
#include "table/table_input.h"
#include "table/table_view.h"
#include "table/whole_table.h"

namespace {

void BotonNueva() {
    if (ConfirmarNueva())
        sesion.peticion = Peticion::NuevaPartida;
}

// The forms that change what is played.
template <Forma forma>
void BotonDeForma() {
    AntesDeLaForma();
    plataforma().Abre(forma);
    TrasLaForma();
}

void BotonTutor() {
    const FilaJuego& juego = JuegoEnMesa();
    estado.TutorPulsado = true;
    Pausa(60);
    if (juego.entrada.tutor != nullptr)
        juego.entrada.tutor();
    estado.TutorPulsado = false;
    estado.JugadaHecha = false;
}

void BotonInforme() {
    plataforma().Abre(Forma::Marcador);
}

void BotonAyuda() {
    plataforma().Ayuda(0);
}

void BotonSalir() {
    if (ConfirmarSalida())
        GuardarYSalir();
}

void BotonEstadistica() {
    if (estado.JuegosJugados > 0)
        plataforma().Abre(Forma::Estadis);
}

using Accion = void (*)();
constexpr Accion kAcciones[] = {nullptr,
                                BotonNueva,
                                BotonDeForma<Forma::Personal>,
                                BotonDeForma<Forma::Normas>,
                                BotonTutor,
                                BotonInforme,
                                BotonAyuda,
                                BotonSalir,
                                BotonEstadistica};

// What hangs on the pointer goes back to its place before anything else happens.
void SueltaLoColgado() {
    if (estado.ArrastraReparto)
        DevuelveAlReparto();
    AbandonaArrastre();
}

void PulsaBotonDeAsiento(Control control, int indice) {
    const auto clic_control = JuegoEnMesa().entrada.clic_control;
    if (clic_control != nullptr)
        clic_control(control, indice);
}

void ClicEnControl(const Evento& evento) {
    if (!plataforma().EstaVisible(evento.control, evento.indice))
        return;
    switch (evento.control) {
    case Control::Pic_Boton:
        PulsaBoton(evento.indice);
        break;
    case Control::Pic_BotContinuar:
        if (ValeElClicVerde(evento.desde))
            PulsaContinuar();
        break;
    case Control::Pic_MasAyuda:
        plataforma().Ayuda(estado.TemaActual);
        break;
    case Control::Bot_CerrarSuge:
        CierraSugerencia();
        break;
    case Control::Pic_APBotPasar:
    case Control::Pic_APBotIgualar:
    case Control::Pic_APBotApostar:
    case Control::Pic_APBotAnular:
        PulsaApostadora(evento.control);
        break;
    case Control::Pic_BotSuperior:
    case Control::Pic_BotLateral:
    case Control::Pic_BotDobSeg:
        PulsaBotonDeAsiento(evento.control, evento.indice);
        break;
    default:
        break;
    }
}

void RatonEnMesa(const Evento& evento) {
    switch (evento.tipo) {
    case TipoEvento::RatonMueve:
        Form_MouseMove(evento.x, evento.y);
        break;
    case TipoEvento::RatonPulsa:
        Form_MouseDown(evento.boton, evento.x, evento.y);
        break;
    case TipoEvento::RatonSuelta:
        Form_MouseUp();
        break;
    default:
        Form_Click();
        break;
    }
}

void RatonEnControl(const Evento& evento) {
    if (evento.control == Control::Pic_SelOpciones) {
        ApuntaEnOpciones(evento.x, evento.y);
        if (evento.tipo == TipoEvento::RatonMueve) {
            Opciones_MouseMove(evento.y);
        } else if (evento.tipo == TipoEvento::RatonSuelta) {
            Opciones_MouseUp();
            RefrescaPuntero();
        }
    } else if (evento.control == Control::Pic_Botonera && evento.tipo == TipoEvento::RatonMueve) {
        vista.puntero_x = vista.puntero_y = -1; // on no card any more
        estado.CursorTabla = 0;
        CambiarCursor(Control::Mesa, 0, Puntero::Flecha);
    }
}

void Tecla(const Evento& evento) {
    if (!TeclaActiva(evento.tecla))
        return;
    if (!estado.PartidaEnCurso)
        PulsaBoton(kBotonNueva);
    else if (ValeElClicVerde(evento.desde))
        PulsaContinuar();
}

void PulsaFuncion(int tecla) {
    constexpr int kAyuda = 1;
    if (tecla == kAyuda)
        plataforma().Ayuda(JuegoEnMesa().tema);
    else
        PulsaBoton(BotonDesdeArriba(tecla - kAyuda));
}

void Despacha(const Evento& evento);

// The pointer on the screen is still where it was, unless a card hangs on it now.
void SigueElPuntero(const Punto& donde) {
    if (estado.ArrastraReparto)
        return;
    vista.puntero_x = donde.x;
    vista.puntero_y = donde.y;
    RefrescaPuntero();
}

void Manda(const Evento& evento) {
    if (evento.mando == Mando::Funcion)
        return PulsaFuncion(evento.indice);
    const Punto puntero{vista.puntero_x, vista.puntero_y};
    for (const Evento& uno : EventosDeMando(evento.mando, evento.desde))
        Despacha(uno);
    SigueElPuntero(puntero);
}

// It moves, or one of its buttons goes down.
bool UsaElRaton(const Evento& evento) {
    const bool quieto = evento.control == Control::Mesa && evento.x == vista.puntero_x &&
                        evento.y == vista.puntero_y;
    return evento.tipo == TipoEvento::RatonPulsa ||
           (evento.tipo == TipoEvento::RatonMueve && !quieto);
}

void CierraVentana() {
    if (BotonHabilitado(kBotonSalir))
        PulsaBoton(kBotonSalir);
    else
        sesion.cierre_pendiente = true;
}

void Despacha(const Evento& evento) {
    switch (evento.tipo) {
    case TipoEvento::RatonMueve:
    case TipoEvento::RatonPulsa:
    case TipoEvento::RatonSuelta:
    case TipoEvento::RatonClic:
        if (evento.control == Control::Mesa)
            RatonEnMesa(evento);
        else
            RatonEnControl(evento);
        break;
    case TipoEvento::Clic:
        ClicEnControl(evento);
        break;
    case TipoEvento::Tecla:
        Tecla(evento);
        break;
    case TipoEvento::Mando:
        Manda(evento);
        break;
    case TipoEvento::Tamano:
        CambiaTamano();
        break;
    case TipoEvento::CierraVentana:
        CierraVentana();
        break;
    case TipoEvento::Termina:
        GuardarYSalir();
        break;
    }
}

} // namespace

void DespachaEvento(const Evento& evento) {
    if (UsaElRaton(evento))
        QuitaMarco();
    Despacha(evento);
    RevisaMarcos();
}

void PulsaBoton(int indice) {
    if (indice < kBotonNueva || indice > kBotonEstadis || !BotonHabilitado(indice))
        return;
    SueltaLoColgado();
    Oculta(Control::Pic_SelOpciones);
    PonModoOrdenar(false);
    CambiarCursor(Control::Mesa, 0, Puntero::RelojArena);
    if (indice != kBotonTutor)
        Sonido(0, sonido::kBoton);
    kAcciones[indice]();
    estado.CursorTabla = 0;
    CambiarCursor(Control::Mesa, 0, Puntero::Flecha);
}

void AntesDeLaForma() {
    estado.VentanaModal = true;
    estado.JugadoresCambiados = false;
    estado.JuegoPrevio = estado.JuegoActivo;
}

void TrasLaForma() {
    estado.VentanaModal = false;
    if (estado.JuegoActivo != estado.JuegoPrevio) {
        sesion.peticion = Peticion::NuevaSesion;
    } else if (estado.JugadoresCambiados) {
        ConstruirBaraja();
        sesion.peticion = Peticion::NuevaPartida;
    } else {
        RefrescaTanteo();
        GuardarPartida();
    }
}

void PulsaContinuar() {
    Oculta(Control::Pic_SelOpciones);
    if (!estado.EsperandoJugada)
        return;
    SueltaLoColgado();
    Sonido(0, sonido::kBoton);
    PedirContinuar(2);
    Pausa(420);
    estado.EsperandoJugada = false;
    if (!estado.PausaEntreJugadas)
        Oculta(Control::Pic_BotContinuar);
}

bool ConfirmarNueva() {
    if (!estado.PartidaEnCurso)
        return true;
    Mensaje("Abandonar la partida en curso",
            "¿Desea  abandonar  la  partida  que  está  jugando  para comenzar una nueva partida?",
            2, 2);
    return estado.RespuestaMensaje;
}

bool ConfirmarSalida() {
    if (!estado.PartidaEnCurso)
        return true;
    Mensaje(
        "Posponer la partida en curso",
        "¿Desea  abandonar  el  programa  para  continuar  en  otro momento la partida que está "
        "jugando?",
        2, 2);
    return estado.RespuestaMensaje;
}

void GuardarYSalir() {
    // After a change of game both files are as they should be, and the state still holds the old game's match.
    const bool ya_guardada = sesion.peticion == Peticion::NuevaSesion;
    sesion.fallo_contado = false;
    if (!ya_guardada)
        AnulaMano();
    if (!ya_guardada && !GuardarPartida())
        sesion.estado_salida = 1;
    sesion.peticion = Peticion::Salir;
}
