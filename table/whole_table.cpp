#include "table/whole_table.h"

#include <string>
#include <utility>

#include "core/game_state.h"
#include "core/numeric.h"
#include "table/bet_board.h"
#include "table/button_column.h"
#include "table/controls.h"
#include "table/frames.h"
#include "table/game_row.h"
#include "table/hand_order.h"
#include "table/keyboard_walk.h"
#include "table/layout.h"
#include "table/manual_spread.h"
#include "table/messages.h"
#include "table/notice.h"
#include "table/options_menu.h"
#include "table/pile.h"
#include "table/score_plate.h"
#include "table/seat_drawing.h"
#include "table/sheet_layout.h"
#include "table/side_buttons.h"
#include "table/table_view.h"
#include "table/trace.h"

namespace {

constexpr Control kDeLaMesa[] = {Control::Pic_Apostadora,  Control::Pic_BotDobSeg,
                                 Control::Pic_SelOpciones, Control::Pic_Mover,
                                 Control::Pic_Tanteo,      Control::Pic_Aviso};

Lienzo& Mesa() {
    return plataforma().LienzoDe(Control::Mesa, 0);
}

// Also under the column of buttons, through which the felt shows: a smaller window has what stood there below it.
void LimpiaTapete() {
    Mesa().Fieltro({0, 0, estado.AnchoPantalla, estado.AltoMesa});
}

void RedibujaSorteo() {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        if (vista.sorteada(asiento).palo == kSinCarta)
            continue;
        ColocarCarta(asiento, 1, 1);
        Mesa().Carta(estado.CartaX, estado.CartaY, vista.sorteada(asiento));
    }
}

void RedibujaMazo() {
    if (vista.cartas_mazo == 0)
        return;
    const Punto mazo = vista.mazo_centrado ? CentroDelMazo() : Punto{estado.MazoX, estado.MazoY};
    DibujarMazo(mazo.x, mazo.y, vista.cartas_mazo);
}

// The plates that show, at their places of now.
void RedibujaTantos() {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        if (plataforma().EstaVisible(Control::Pic_Tantos, asiento))
            MostrarPuntos(asiento);
    }
}

} // namespace

void CalcularMesa() {
    Traza("CalcularMesa");
    CalculaLugares();
    ColocarMazo();
    ColocaColumna();
    for (int boton = 1; boton <= 8; ++boton)
        HabilitaBoton(boton,
                      boton != kBotonNormas && boton != kBotonTutor && boton != kBotonEstadis);
    PintaColumna();
}

void CambiaTamano() {
    Oculta(Control::Pic_SelOpciones); // it would stay where the table may no longer be
    CalculaLugares();
    ColocarMazo();
    ColocaColumna();
    RedibujarMesa();
}

void PrepararImagenes() {
    Traza("PrepararImagenes");
}

void OcultaControlesMesa() {
    OcultarContinuar();
    for (Control control : kDeLaMesa)
        Oculta(control);
    for (int indice = 1; indice <= 2; ++indice) {
        Oculta(Control::Pic_BotSuperior, indice);
        Oculta(Control::Pic_BotLateral, indice);
    }
    OcultaSugerencia();
}

void LimpiarMesa() {
    OlvidaMarco();
    const VistaMesa antes = std::exchange(vista, {});
    vista.puntero_x = antes.puntero_x;
    vista.puntero_y = antes.puntero_y;
    if (plataforma().HayPantalla()) {
        LimpiaTapete();
        plataforma().Repinta();
    }
}

void RedibujarMesa() {
    if (!plataforma().HayPantalla())
        return;
    LimpiaTapete();
    RedibujaMazo();
    RedibujaSorteo();
    const FilaJuego* juego = FilaDe(estado.JuegoActivo);
    if (juego != nullptr && juego->pintura.centro != nullptr)
        juego->pintura.centro();
    if (juego != nullptr && juego->dinero.reglas.bote && !estado.RepartoEnCurso)
        RedibujaBote(); // in a manual deal the spread lies in its place
    PintaMesaVacia();   // the place of the pot, which is cleared, reaches into the emblem
    // What a finished match has left on the table stays there until the next one.
    const bool hay_asientos = estado.PartidaEnCurso || vista.nombres;
    for (int asiento = 1; asiento <= 4 && hay_asientos; ++asiento) {
        if (vista.sorteada(asiento).palo == kSinCarta)
            RedibujarAsiento(asiento);
    }
    if (estado.RepartoEnCurso)
        PintaReparto();
    RedibujaTantos();
    PintaTanteo();
    RepintaApostadora();
    PintaColumna();
    PintaSugerencia();
    PintaOpciones();
    PintaMover();
    RefrescaAviso();
    RevisaMarcos();
    plataforma().Repinta();
}

void PintaMesaVacia() {
    constexpr Fuente kLetraJuego{.alto = 30, .negrita = true}, kLetraComienzo{.alto = 14};
    constexpr int kDelEmblema = 12, kDelNombre = 46;
    const FilaJuego* juego = FilaDe(estado.JuegoActivo);
    if (!plataforma().HayPantalla() || estado.PartidaEnCurso || vista.nombres || juego == nullptr)
        return;
    const lamina::Recorte& emblema = lamina::kEmblemaPortada;
    const Rectangulo donde{estado.CentroX - emblema.ancho / 2, estado.CentroY - emblema.alto,
                           emblema.ancho, emblema.alto};
    const int debajo = donde.y + donde.alto + kDelEmblema;
    Lienzo& mesa = Mesa();
    mesa.Lamina(donde.x, donde.y, emblema);
    mesa.Velo(donde);
    mesa.Texto(estado.CentroX, debajo, juego->nombre, kLetraJuego, color::kBlanco,
               Alineacion::Centro);
    mesa.Texto(estado.CentroX, debajo + kDelNombre,
               "Para empezar, pulse el primer botón de la derecha o la barra espaciadora.",
               kLetraComienzo, color::kBlanco, Alineacion::Centro);
    plataforma().Repinta();
}
