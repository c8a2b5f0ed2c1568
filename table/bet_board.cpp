#include "table/bet_board.h"

#include <algorithm>
#include <array>
#include <string>

#include "betting/bet_state.h"
#include "betting/board.h"
#include "betting/chips.h"
#include "betting/placing.h"
#include "core/game_state.h"
#include "core/text.h"
#include "table/controls.h"
#include "table/drawing.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/score_plate.h"
#include "table/seat_drawing.h"
#include "table/sheet_layout.h"
#include "table/sounds.h"
#include "table/trace.h"

namespace {

constexpr int kPausaBoton = 160, kPausaAnular = 90;
constexpr int kAlBorde = 2; // the board stands so far from the table's corner
constexpr int kPrimerBoton = 50, kEntreBotones = 30;
// The head of the board: the name, and under it a caption over each display.
constexpr int kNombreY = 5, kRotuloY = 19, kCifrasY = 31;
constexpr int kCifras = 4, kAnchoVisor = 40, kAltoVisor = 17;
constexpr Fuente kLetraNombre{.alto = 13, .negrita = true, .tope = 124};
constexpr Fuente kLetraRotulo{.alto = 10, .negrita = true, .tope = 64};
constexpr Fuente kLetraBoton{.alto = 12, .negrita = true, .tope = 112};

constexpr std::array kBotones{Control::Pic_APBotPasar, Control::Pic_APBotIgualar,
                              Control::Pic_APBotApostar, Control::Pic_APBotAnular};

const ReglasApuesta& Reglas() {
    return JuegoEnMesa().dinero.reglas;
}

// From 1, in the order from the top; 0 for a control that is none of them.
int NumeroDeBoton(Control control) {
    const auto cual = std::ranges::find(kBotones, control);
    return cual == kBotones.end() ? 0 : static_cast<int>(cual - kBotones.begin()) + 1;
}

Control BotonNumero(int boton) {
    return kBotones.at(static_cast<std::size_t>(boton - 1));
}

// One display in the middle, or two side by side.
int MedioDelVisor(Control visor) {
    const int ancho = lamina::kApostadora.ancho;
    if (!Reglas().bote)
        return ancho / 2;
    return visor == Control::Pic_APApoJugAct ? ancho / 4 + 3 : ancho * 3 / 4 - 3;
}

void Coloca() {
    Plataforma& p = plataforma();
    const lamina::Recorte& tablero = lamina::kApostadora;
    p.Coloca(Control::Pic_Apostadora, 0,
             {estado.AnchoMesa - tablero.ancho - kAlBorde,
              estado.AltoMesa - tablero.alto - kAlBorde, tablero.ancho, tablero.alto});
    for (int boton = 1; boton <= kBotonesApostadora; ++boton) {
        const lamina::Recorte recorte = lamina::BotonApuesta(boton);
        p.Coloca(BotonNumero(boton), 0,
                 {(tablero.ancho - recorte.ancho) / 2, kPrimerBoton + (boton - 1) * kEntreBotones,
                  recorte.ancho, recorte.alto});
    }
    for (const Control visor : {Control::Pic_APApoJugAct, Control::Pic_APApoJugAcu}) {
        p.Coloca(visor, 0,
                 {MedioDelVisor(visor) - kAnchoVisor / 2, kCifrasY, kAnchoVisor, kAltoVisor});
    }
}

void PintaFondo() {
    const std::string& nombre = estado.NombreJugador(estado.JugadorActual);
    plataforma().Nombra(Control::Pic_Apostadora, 0, "Apuesta de " + nombre);
    if (!plataforma().HayPantalla())
        return;
    Lienzo& tablero = plataforma().LienzoDe(Control::Pic_Apostadora, 0);
    const auto rotula = [&tablero](Control visor, const char* rotulo) {
        tablero.Texto(MedioDelVisor(visor), kRotuloY, rotulo, kLetraRotulo, color::kMarfil,
                      Alineacion::Centro);
    };
    tablero.Fieltro({0, 0, lamina::kApostadora.ancho, lamina::kApostadora.alto});
    tablero.Lamina(0, 0, lamina::kApostadora);
    tablero.Texto(lamina::kApostadora.ancho / 2, kNombreY, nombre, kLetraNombre, color::kAmarillo,
                  Alineacion::Centro);
    rotula(Control::Pic_APApoJugAct, Reglas().bote ? "A c t u a l" : "A p u e s t a");
    if (Reglas().bote)
        rotula(Control::Pic_APApoJugAcu, "Acumulado");
}

void PintaCifras(Control visor, int puntos, const char* nombre) {
    plataforma().Muestra(visor, 0, true);
    plataforma().Nombra(visor, 0, nombre + Numero(puntos));
    PintarNumero(visor, 0, 0, 0, Numero(puntos), kCifras);
}

void PonBoton(int boton) {
    const Control control = BotonNumero(boton);
    const bool se_ofrece = !apuestas.TextoBoton(boton).empty();
    if (se_ofrece) {
        EstadoBoton(control, boton, 1);
        CambiarCursor(control, 0, Puntero::ManoIndice);
    }
    plataforma().Muestra(control, 0, se_ofrece);
}

void Pasa() {
    Oculta(Control::Pic_SelOpciones);
    Oculta(Control::Pic_APBotPasar);
    // With nothing to meet it passes; else it folds.
    if (apuestas.MaximaApuesta != 0)
        apuestas.ApuestaEnCurso = -1;
    estado.EsperandoJugada = false;
    estado.JugadaHecha = true;
}

void Iguala() {
    const Integer asiento = estado.JugadorActual;
    for (const int d : FichasParaApostar(asiento, LoQueIguala(asiento)))
        PonFicha(asiento, static_cast<Integer>(d));
    MuestraApostadora();
    if (RestoDe(asiento) == 0)
        PulsaApostadora(Control::Pic_APBotApostar);
}

void Apuesta() {
    if (!estado.EsperandoJugada)
        return;
    if (ApuestaInsuficiente(estado.JugadorActual)) {
        Mensaje("Apuesta insuficiente",
                "Debe subir a un mínimo de " + Formato(apuestas.MaximaApuesta, "##0") +
                    " para poder igualar la máxima apuesta y seguir jugando la mano.",
                1, 1);
        return;
    }
    estado.JugadaHecha = true;
    estado.EsperandoJugada = false;
}

void Anula() {
    AnulaApuestas(estado.JugadorActual);
    MuestraApostadora();
}

using Accion = void (*)();
constexpr std::array<Accion, kBotonesApostadora> kAcciones{Pasa, Iguala, Apuesta, Anula};

} // namespace

void MuestraApostadora() {
    Traza("MuestraApostadora");
    RotulaApostadora(estado.JugadorActual, Reglas());
    Coloca();
    PintaFondo();
    for (int boton = 1; boton <= kBotonesApostadora; ++boton)
        PonBoton(boton);
    plataforma().Muestra(Control::Pic_APApoJugAcu, 0, Reglas().bote);
    plataforma().Muestra(Control::Pic_Apostadora, 0, true);
    ActualizaApostadora();
}

void ActualizaApostadora() {
    Traza("ActualizaApostadora");
    if (!plataforma().EstaVisible(Control::Pic_Apostadora, 0))
        return;
    const Integer asiento = estado.JugadorActual, serie = estado.SerieActual;
    PintaCifras(Control::Pic_APApoJugAct, apuestas.Apuesta(asiento, serie, apuestas.FaseApuesta),
                "Apuesta actual: ");
    if (Reglas().bote)
        PintaCifras(Control::Pic_APApoJugAcu, ApuestaTotal(asiento, serie), "Acumulado: ");
    plataforma().Repinta();
}

void OcultaApostadora() {
    Oculta(Control::Pic_Apostadora);
}

void RepintaApostadora() {
    if (plataforma().EstaVisible(Control::Pic_Apostadora, 0))
        MuestraApostadora();
}

void EstadoBoton(Control control, int indice, int estado_boton) {
    Traza("EstadoBoton", NombreDe(control), indice, estado_boton);
    const std::string& texto = apuestas.TextoBoton(indice);
    plataforma().Nombra(control, 0, texto);
    if (!plataforma().HayPantalla())
        return;
    const bool pulsado = estado_boton == 2;
    const lamina::Recorte recorte = lamina::BotonApuesta(indice, pulsado);
    const int hundido = pulsado ? 1 : 0;
    Lienzo& boton = plataforma().LienzoDe(control, 0);
    boton.Fieltro({0, 0, recorte.ancho, recorte.alto});
    boton.Lamina(0, 0, recorte);
    boton.Texto(recorte.ancho / 2 + hundido, 5 + hundido, texto, kLetraBoton, color::kBlanco,
                Alineacion::Centro);
    plataforma().Repinta();
}

void AnulaApuestas(Integer asiento) {
    Traza("AnulaApuestas", asiento);
    AnulaApuestas(asiento, Reglas(), [asiento](const FichaMovida& ficha) {
        if (Reglas().bote)
            RedibujaBote();
        RedibujaApuesta(asiento);
        MueveFicha(ficha);
        PintarFichas(asiento, kAreaRestos + asiento - 1);
        RefrescaTanteo();
    });
    RedibujarAsiento(asiento);
    ActualizaApostadora();
    Pausa(kPausaAnular);
}

void PulsaApostadora(Control control) {
    const int boton = NumeroDeBoton(control);
    if (boton == 0 || estado.JugadaHecha)
        return;
    EstadoBoton(control, boton, 2);
    Sonido(1, sonido::kBotonDeApuesta);
    Pausa(kPausaBoton);
    EstadoBoton(control, boton, 1);
    kAcciones.at(static_cast<std::size_t>(boton - 1))();
}

bool SePuedenPonerFichas() {
    const Integer asiento = estado.JugadorActual;
    return asiento != 0 && estado.ControlJugador(asiento) == kManual && apuestas.ModoApuesta &&
           estado.SerieActual == estado.SerieEnJuego && !estado.ModoOrdenar &&
           !estado.RepartoEnCurso;
}

void PulsaFicha() {
    const Integer d = estado.FichaBajoCursor;
    if (!apuestas.ModoApuesta || d == 0 || estado.JugadaHecha)
        return;
    const auto permite = JuegoEnMesa().dinero.permite_ficha;
    if (permite != nullptr && !permite())
        return;
    PonFicha(estado.JugadorActual, d);
    MuestraApostadora();
}

void DetectaFicha(int x, int y) {
    estado.FichaBajoCursor = 0;
    if (!SePuedenPonerFichas())
        return;
    for (Integer d = 1; d <= kDenominaciones && estado.FichaBajoCursor == 0; ++d) {
        const Rectangulo pila = PilaDe(estado.JugadorActual, d);
        if (x >= pila.x && x < pila.x + pila.ancho && y >= pila.y && y < pila.y + pila.alto)
            estado.FichaBajoCursor = d;
    }
}
