#include "session/match_driver.h"

#include <algorithm>
#include <stdexcept>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "core/game_state.h"
#include "core/random.h"
#include "games/common/series_state.h"
#include "platform/platform.h"
#include "session/initial_draw.h"
#include "session/main_buttons.h"
#include "session/word_tables.h"
#include "storage/saving.h"
#include "storage/settings.h"
#include "table/button_column.h"
#include "table/controls.h"
#include "table/deck.h"
#include "table/frames.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/pending_rules.h"
#include "table/waiting.h"
#include "table/whole_table.h"

namespace {

// A game that cannot be played yet gives way to one that can, which brings its own deck.
void TomaJuegoJugable() {
    const FilaJuego* fila = FilaDe(estado.JuegoActivo);
    if (fila != nullptr && SePuedeJugar(*fila))
        return;
    const auto& filas = FilasDeJuegos();
    const auto ultimo = std::find_if(filas.rbegin(), filas.rend(),
                                     [](const FilaJuego* otra) { return SePuedeJugar(*otra); });
    if (ultimo == filas.rend())
        throw std::logic_error("no hay ningún juego que se pueda jugar");
    estado.JuegoActivo = (*ultimo)->id;
    sesion.baraja_pendiente = true;
}

// The tutor may have been on in the turn that was left: there is nobody to advise yet.
void LimpiaTodo() {
    HabilitaBoton(kBotonTutor, false);
    OcultaTantos();
    LimpiarMesa();
    OcultaControlesMesa();
}

void BajaBanderas() {
    estado.ManoEnCurso = false;
    estado.ModoOrdenar = false;
    apuestas.ModoApuesta = false;
    estado.RepartoEnCurso = false;
    estado.ArrastraReparto = false;
    estado.ArrastraCarta = false;
    estado.EligeCarta = false;
}

void OfreceDescripcion() {
    Mensaje(
        "Descripción general",
        "Si   desea   consultar   una   descripción   general   de   este programa  para  conocer  "
        "rápidamente  su  funcionamiento, pulse el botón de Ayuda.",
        3, 3);
    if (estado.AyudaPulsada)
        plataforma().Ayuda(0);
    estado.PrimeraVez = false;
}

void AnunciaContinuacion() {
    Mensaje("Continuar la partida anterior",
            "Continua  el  desarrollo  de  la  partida  que  no  finalizó en la sesión anterior.",
            2, 1);
    HabilitaBoton(kBotonNueva, true);
}

// What one hand hands on to the next is nothing at the beginning of a match or of a session.
void BorraManos() {
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        VaciaMano(asiento);
    estado.PaloTriunfo = 0;
    estado.ValorTriunfo = 0;
    estado.GanadorBaza = 0;
    estado.AzarTurno = 0;
    if (JuegoEnMesa().partida.nueva != nullptr)
        JuegoEnMesa().partida.nueva();
}

void BorraResultados() {
    estado.JuegosJugados = 0;
    for (RegistroJuego& registro : estado.Juegos)
        registro.Borra();
    estado.JuegosGanados.Borra();
    estado.GanadorPartida = 0;
    sesion.mano_apuntada = true;
}

void DaRestos() {
    for (int asiento = 0; asiento <= 4; ++asiento) {
        const bool juega = asiento != 0 && estado.EstadoJugador(asiento) == kActivado;
        AsignarResto(asiento, juega ? estado.RestoInicial : Integer{0});
    }
}

void ReanudaPartida() {
    const FilaJuego& juego = JuegoEnMesa();
    sesion.mano_apuntada = true;
    RedibujarMesa();
    if (juego.baraja.seguida)
        Barajar();
    juego.driver();
}

} // namespace

void IniciarTablas() {
    estado.PasoSentido = static_cast<Integer>(estado.SentidoJuego == kInverso ? -1 : 1);
    PonTablasDePalabras();
    // Every seat shows its first serie until a hand says otherwise.
    estado.SerieActual = 1;
    estado.SerieEnJuego = 1;
    estado.JuegoConBanca = false;
    estado.EsperandoJugada = false;
    estado.TutorPulsado = false;
    series.PuedeAsegurar = series.PuedeAbrir = series.PuedeDoblar = false;
    estado.VentanaModal = false;
    Oculta(Control::Pic_BotDobSeg);
    CargaSugerencias();
    ConstruirBaraja();
    PrepararImagenes();
}

void IniciarSesion() {
    TomaJuegoJugable();
    plataforma().Nombra(Control::Mesa, 0, JuegoEnMesa().nombre);
    ColocarMazo();
    LeerIniJuego();
    IniciarTablas();
    // The pile of some games stands by the bank, which came with the file.
    ColocarMazo();
    estado.CursorTabla = 0;
    CambiarCursor(Control::Mesa, 0, Puntero::Flecha);
    LimpiaTodo();
    BajaBanderas();
    BorraManos();
    sesion.sentido_pendiente = sesion.baraja_pendiente = false;
    SiembraDelReloj(plataforma().Reloj());
    if (estado.PartidaEnCurso)
        AnunciaContinuacion();
    if (estado.PrimeraVez)
        OfreceDescripcion();
    if (estado.PartidaEnCurso) {
        ReanudaPartida();
    } else {
        PintaMesaVacia();
        HabilitaBoton(kBotonNormas, true);
    }
}

void NuevaPartida() {
    TomaJuegoJugable();
    AplicaReglasPendientes();
    const FilaJuego& juego = JuegoEnMesa();
    estado.PartidaEnCurso = true;
    LimpiaTodo();
    BajaBanderas();
    BorraManos();
    BorraResultados();
    SiembraDelReloj(plataforma().Reloj());
    if (juego.dinero.hay)
        DaRestos();
    // From here on the abandoned match is gone from the disk too.
    GuardarPartida();
    if (juego.sorteo.se_hace && !SorteoInicial())
        return;
    HabilitaBoton(kBotonNueva, true);
    GuardarPartida();
    juego.driver();
}

bool AtiendePeticiones() {
    while (sesion.peticion != Peticion::Ninguna) {
        const Peticion pedida = sesion.peticion;
        if (pedida == Peticion::Salir)
            return false;
        sesion.peticion = Peticion::Ninguna;
        if (pedida == Peticion::NuevaPartida)
            NuevaPartida();
        else
            IniciarSesion();
    }
    return true;
}

void BucleSesion() {
    while (AtiendePeticiones()) {
        // The end of a match may have enabled the exit that a closed window still waits for.
        AtiendeCierrePendiente();
        if (sesion.peticion != Peticion::Ninguna)
            continue;
        RevisaMarcos();
        if (!plataforma().EsperaEvento())
            return;
        PaseDeEventos(Pase::DeEspera);
    }
}
