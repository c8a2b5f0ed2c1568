#include "core/match_driver.h"

#include "betting/chips.h"
#include "core/game_state.h"
#include "core/initial_draw.h"
#include "core/main_buttons.h"
#include "core/pending_rules.h"
#include "core/random.h"
#include "core/saving.h"
#include "core/settings.h"
#include "core/word_tables.h"
#include "games/common/trick_state.h"
#include "games/game_table.h"
#include "platform/platform.h"
#include "table/deck.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/table_ops.h"
#include "table/waiting.h"

namespace {

// A game that cannot be played yet gives way to one that can, which brings its own deck.
void TomaJuegoJugable() {
    const FilaJuego* fila = FilaDe(estado.JuegoActivo);
    if (fila == nullptr || fila->driver == nullptr) {
        estado.JuegoActivo = kCinquillo;
        sesion.baraja_pendiente = true;
    }
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
    estado.ModoApuesta = false;
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
    bazas.CartaJugada.Borra();
    bazas.CartaEnMesa.Borra();
    estado.PaloTriunfo = 0;
    estado.ValorTriunfo = 0;
    estado.GanadorBaza = 0;
    estado.AzarTurno = 0;
}

void BorraResultados() {
    estado.JuegosJugados = 0;
    for (RegistroJuego& registro : estado.Juegos)
        registro.Borra();
    estado.JuegosGanados.Borra();
    estado.GanadorPartida = 0;
    bazas.TuteCantado = false;
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
    if (juego.mazo_seguido)
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
    if (estado.PartidaEnCurso)
        ReanudaPartida();
    else
        HabilitaBoton(kBotonNormas, true);
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
    if (juego.nueva_partida != nullptr)
        juego.nueva_partida();
    SiembraDelReloj(plataforma().Reloj());
    if (juego.con_dinero)
        DaRestos();
    // From here on the abandoned match is gone from the disk too.
    GuardarPartida();
    if (juego.sortea_inicio && !SorteoInicial())
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
        if (!plataforma().EsperaEvento())
            return;
        PaseDeEventos(Pase::DeEspera);
    }
}
