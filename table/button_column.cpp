#include "table/button_column.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "core/game_state.h"
#include "core/session_state.h"
#include "table/controls.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/sheet_layout.h"
#include "table/table_view.h"
#include "table/trace.h"

namespace {

constexpr int kLadoBoton = 50;
constexpr int kColumnaDeBotones = 20;
constexpr int kAnchoContinuar = 86, kAltoContinuar = 36;
constexpr int kMargenAbajo = 16;
// A long name with its serie is drawn narrower rather than over the button's rim.
constexpr Fuente kLetraContinuar{.alto = 12, .negrita = true, .tope = 78};

struct BotonPrincipal {
    int x = 0, y = 0;
    const char* nombre = "";
    // What it opens, where that may not be there.
    std::optional<Forma> forma = std::nullopt;
};

constexpr std::array<BotonPrincipal, 9> kBotones{{
    {},
    {20, 5, "Nueva partida"},
    {24, 125, "Personalizar", Forma::Personal},
    {20, 65, "Normas", Forma::Normas},
    {20, 245, "Tutor de juego"},
    {20, 305, "Marcador", Forma::Marcador},
    {20, 365, "Ayuda"},
    {20, 425, "Salir"},
    {20, 185, "Estadísticas", Forma::Estadis},
}};

bool TieneLoSuyo(int boton) {
    const std::optional<Forma> forma = kBotones.at(static_cast<std::size_t>(boton)).forma;
    return !forma || plataforma().TieneForma(*forma);
}

// All of them are drawn in one line, also the one whose place is a little to the right: it is drawn on the column, and
// its control, which takes the clicks, lies over the drawing with nothing on it.
void PintaBoton(int boton) {
    const auto aspecto =
        BotonHabilitado(boton) ? lamina::Aspecto::Arriba : lamina::Aspecto::Apagado;
    const BotonPrincipal& este = kBotones[static_cast<std::size_t>(boton)];
    const bool en_linea = este.x == kColumnaDeBotones;
    Lienzo& lienzo = en_linea ? plataforma().LienzoDe(Control::Pic_Boton, boton)
                              : plataforma().LienzoDe(Control::Pic_Botonera, 0);
    const int x = en_linea ? 0 : kColumnaDeBotones;
    const int y = en_linea ? 0 : este.y;
    lienzo.Fieltro({x, y, kLadoBoton, kLadoBoton});
    lienzo.Lamina(x, y, lamina::BotonPrincipal(boton, aspecto));
}

constexpr const char* kSolo =
    "automático"; // the second line when the program would play for a person

struct RotuloVerde {
    std::string primera = "Continuar";
    std::string segunda;
    bool JugariaSolo() const { return segunda == kSolo; }
    std::string Entero() const { return segunda.empty() ? primera : primera + " " + segunda; }
};

RotuloVerde ElRotuloVerde() {
    RotuloVerde rotulo;
    if (!estado.ManoEnCurso)
        return rotulo;
    rotulo.primera = estado.NombreJugador(estado.JugadorActual);
    rotulo.segunda = kSolo;
    const FilaJuego& juego = JuegoEnMesa();
    if (juego.pintura.rotulo_continuar != nullptr)
        juego.pintura.rotulo_continuar(rotulo.primera, rotulo.segunda);
    return rotulo;
}

lamina::Recorte CaraVerde(bool solo, bool pulsado) {
    if (solo)
        return pulsado ? lamina::kContinuarSoloPulsado : lamina::kContinuarSoloArriba;
    return pulsado ? lamina::kContinuarPulsado : lamina::kContinuarArriba;
}

void PintaContinuar(int kind) {
    const RotuloVerde rotulo = ElRotuloVerde();
    const bool pulsado = kind == 2;
    Lienzo& boton = plataforma().LienzoDe(Control::Pic_BotContinuar, 0);
    boton.Fieltro({0, 0, kAnchoContinuar, kAltoContinuar});
    boton.Lamina(0, 0, CaraVerde(rotulo.JugariaSolo(), pulsado));
    const int hundido = pulsado ? 1 : 0;
    const auto renglon = [&](int y, const std::string& texto) {
        boton.Texto(kAnchoContinuar / 2 + hundido, y + hundido, texto, kLetraContinuar,
                    color::kAmarillo, Alineacion::Centro);
    };
    if (rotulo.segunda.empty()) {
        renglon(10, rotulo.primera);
    } else {
        renglon(3, rotulo.primera);
        renglon(18, rotulo.segunda);
    }
    plataforma().Nombra(Control::Pic_BotContinuar, 0,
                        rotulo.Entero() +
                            (rotulo.JugariaSolo() ? ": el programa juega por este jugador" : ""));
}

// The words of the button are new from now on, or the same as before.
void AnotaRotuloVerde() {
    const std::string rotulo = ElRotuloVerde().Entero();
    if (rotulo == vista.verde && plataforma().EstaVisible(Control::Pic_BotContinuar, 0))
        return;
    vista.verde = rotulo;
    vista.verde_desde = plataforma().Reloj();
}

} // namespace

void ColocaColumna() {
    Plataforma& p = plataforma();
    p.Coloca(Control::Pic_Botonera, 0,
             {estado.AnchoPantalla - kAnchoBotonera, 0, kAnchoBotonera, estado.AltoPantalla});
    for (int boton = 1; boton <= 8; ++boton) {
        const BotonPrincipal& este = kBotones[static_cast<std::size_t>(boton)];
        p.Coloca(Control::Pic_Boton, boton, {este.x, este.y, kLadoBoton, kLadoBoton});
        p.Nombra(Control::Pic_Boton, boton, este.nombre);
        p.Muestra(Control::Pic_Boton, boton, true);
    }
    p.Coloca(Control::Pic_BotContinuar, 0,
             {(kAnchoBotonera - kAnchoContinuar) / 2,
              estado.AltoPantalla - kAltoContinuar - kMargenAbajo, kAnchoContinuar,
              kAltoContinuar});
}

void PintaColumna() {
    if (!plataforma().HayPantalla())
        return;
    Lienzo& columna = plataforma().LienzoDe(Control::Pic_Botonera, 0);
    columna.Fieltro({0, 0, kAnchoBotonera, estado.AltoPantalla});
    columna.Linea(0, 0, 0, estado.AltoPantalla, color::kBordePanel, 1);
    columna.Linea(1, 0, 1, estado.AltoPantalla, color::kBordePanelClaro, 1);
    for (int boton = 1; boton <= 8; ++boton)
        PintaBoton(boton);
    if (plataforma().EstaVisible(Control::Pic_BotContinuar, 0))
        PintaContinuar(1);
}

void HabilitaBoton(int indice, bool habilitado) {
    const bool puede = habilitado && TieneLoSuyo(indice);
    plataforma().PonPuntero(Control::Pic_Boton, indice,
                            puede ? Puntero::ManoIndice : Puntero::Prohibido);
    if (plataforma().HayPantalla())
        PintaBoton(indice);
}

int BotonDesdeArriba(int n) {
    std::array<int, 8> botones{1, 2, 3, 4, 5, 6, 7, 8};
    std::ranges::sort(botones, {},
                      [](int boton) { return kBotones.at(static_cast<std::size_t>(boton)).y; });
    return botones.at(static_cast<std::size_t>(n - 1));
}

int TeclaDelBoton(int indice) {
    int n = 1;
    while (BotonDesdeArriba(n) != indice)
        ++n;
    return n + 1;
}

int CorridoDelBoton(int indice) {
    return kColumnaDeBotones - kBotones.at(static_cast<std::size_t>(indice)).x;
}

bool BotonHabilitado(int indice) {
    return plataforma().PunteroDe(Control::Pic_Boton, indice) != Puntero::Prohibido;
}

void PedirContinuar(int kind) {
    Traza("PedirContinuar", kind);
    AnotaRotuloVerde();
    plataforma().PonPuntero(Control::Pic_BotContinuar, 0, Puntero::ManoIndice);
    plataforma().Muestra(Control::Pic_BotContinuar, 0, true);
    if (plataforma().HayPantalla()) {
        PintaContinuar(kind);
        plataforma().Repinta();
    }
    estado.EsperandoJugada = true;
}

void OcultarContinuar() {
    Traza("OcultarContinuar");
    Oculta(Control::Pic_BotContinuar);
    estado.EsperandoJugada = false;
}

bool ValeElClicVerde(std::optional<Milisegundos> desde) {
    return !desde || *desde >= vista.verde_desde || !ElRotuloVerde().JugariaSolo();
}
