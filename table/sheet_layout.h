#pragma once
// Where every small image lies on the sheet (Pic_BmpVario), told once: the program cuts by these
// rectangles, each painted from the drawing of the same name in assets/sheet. Units are table pixels.
//
// Nothing here reads or writes the state. Indices outside their bounds are clamped to the nearest
// piece, so a bad one can only show the wrong picture.

#include <algorithm>
#include <array>
#include <string_view>

namespace lamina {

struct Recorte {
    int x = 0;
    int y = 0;
    int ancho = 0;
    int alto = 0;
    friend constexpr bool operator==(const Recorte&, const Recorte&) = default;
};

// How a button is drawn.
enum class Aspecto { Arriba, Pulsado, Apagado };

inline constexpr int kRadioEsquinaCarta = 6; // beyond it the corner of a card belongs to the felt
inline constexpr int kEscala = 3;            // the deck images are kept three times as large
inline constexpr int kAncho = 512;
inline constexpr int kAlto = 560;

// Round main button 1..8, 51 apart in the top row; the other two looks have a row each.
constexpr Recorte BotonPrincipal(int numero, Aspecto aspecto = Aspecto::Arriba) {
    const int y = aspecto == Aspecto::Arriba ? 0 : aspecto == Aspecto::Apagado ? 172 : 223;
    return {51 * (std::clamp(numero, 1, 8) - 1), y, 50, 50};
}

// Digit 0..9 of the score displays.
constexpr Recorte Digito(int cifra) {
    return {11 * std::clamp(cifra, 0, 9), 52, 10, 17};
}

// Chip of denomination 1..6 (1, 2, 5, 10, 20, 50 points), upright.
constexpr Recorte Ficha(int denominacion) {
    return {34 * (std::clamp(denominacion, 1, 6) - 1), 101, 33, 33};
}

// The four buttons of the bet board, in the order Pasar, Igualar, Apostar, Anular.
constexpr Recorte BotonApuesta(int numero, bool pulsado = false) {
    return {126 * (std::clamp(numero, 1, 4) - 1), pulsado ? 333 : 304, 124, 27};
}

// Arrow that browses series: 1 back, 2 on; lateral for the seats at the sides, where it points
// up and down instead of left and right.
constexpr Recorte BotonLateral(int numero, bool vertical, bool pulsado = false) {
    const int lugar = (vertical ? 2 : 0) + std::clamp(numero, 1, 2) - 1;
    return {48 * lugar + (pulsado ? 24 : 0), 274, 23, 23};
}

inline constexpr Recorte kDigitoVacio{110, 52, 10, 17}; // a display place with no figure lit
inline constexpr Recorte kMarcaPasado{188, 52, 32, 32}; // the burst over a bust stake
inline constexpr Recorte kMarcaTurno{221, 52, 32, 32};

inline constexpr Recorte kCerrarArriba{320, 52, 16, 16};
inline constexpr Recorte kCerrarPulsado{337, 52, 16, 16};
inline constexpr Recorte kMasAyudaArriba{354, 52, 76, 20};
inline constexpr Recorte kMasAyudaPulsado{431, 52, 76, 20};

inline constexpr Recorte kSpinSubeArriba{0, 72, 15, 9};
inline constexpr Recorte kSpinSubePulsado{16, 72, 15, 9};
inline constexpr Recorte kSpinBajaArriba{0, 82, 15, 9};
inline constexpr Recorte kSpinBajaPulsado{16, 82, 15, 9};
inline constexpr Recorte kCasillaVacia{34, 74, 16, 16};
inline constexpr Recorte kCasillaMarcada{51, 74, 16, 16};
inline constexpr Recorte kOpcionVacia{68, 74, 16, 16};
inline constexpr Recorte kOpcionMarcada{85, 74, 16, 16};

inline constexpr Recorte kSelectorArriba{320, 74, 22, 22}; // the arrow that advances a selector
inline constexpr Recorte kSelectorPulsado{343, 74, 22, 22};
inline constexpr Recorte kCarrilDeslizador{366, 80, 110, 9};
inline constexpr Recorte kPomoDeslizador{478, 74, 13, 22};

// A frame bar of any length: an end, a strip repeated, the other end.
inline constexpr Recorte kMarcoExtremoIzquierdo{206, 101, 5, 24};
inline constexpr Recorte kMarcoTira{213, 101, 1, 24};
inline constexpr Recorte kMarcoExtremoDerecho{216, 101, 5, 24};
// A panel of any size: kBordePanel pixels of rim on each side stay as they are, the rest stretches.
inline constexpr int kBordePanel = 9;
inline constexpr Recorte kPanelMadera{224, 101, 30, 30};
inline constexpr Recorte kPanelPergamino{256, 101, 30, 30};
inline constexpr Recorte kPanelHundido{288, 101, 30, 30};
inline constexpr Recorte kPlacaTantos{320, 101, 66, 27};
inline constexpr Recorte kVisor{388, 101, 66, 27};

inline constexpr Recorte kContinuarArriba{0, 135, 86, 36};
inline constexpr Recorte kContinuarPulsado{87, 135, 86, 36};
inline constexpr Recorte kBotonSuperiorArriba{176, 135, 90, 24};
inline constexpr Recorte kBotonSuperiorPulsado{267, 135, 90, 24};
inline constexpr Recorte kBotonDobSegArriba{358, 135, 76, 24};
inline constexpr Recorte kBotonDobSegPulsado{435, 135, 76, 24};

inline constexpr Recorte kMensajeArriba{194, 274, 84, 28};
inline constexpr Recorte kMensajePulsado{279, 274, 84, 28};

inline constexpr Recorte kMarcaGanador{0, 462, 92, 92};
// The green button when the program would play for the person.
inline constexpr Recorte kContinuarSoloArriba{94, 486, 86, 36};
inline constexpr Recorte kContinuarSoloPulsado{94, 523, 86, 36};

// The sign of a suit 1..4 on a tile.
constexpr Recorte Palo(int palo) {
    return {94 + 24 * (std::clamp(palo, 1, 4) - 1), 462, 22, 22};
}

inline constexpr Recorte kSentidoDirecto{0, 364, 96, 96};
inline constexpr Recorte kSentidoInverso{97, 364, 96, 96};
inline constexpr Recorte kEmblemaPortada{194, 364, 150, 150};
inline constexpr Recorte kApostadora{346, 364, 146, 172}; // the bet board

// A drawing of assets/sheet and its place.
struct Pieza {
    std::string_view archivo; // without ".svg"
    Recorte sitio;
};

inline constexpr std::array kPiezas{
    Pieza{"boton1_arriba", BotonPrincipal(1)},
    Pieza{"boton2_arriba", BotonPrincipal(2)},
    Pieza{"boton3_arriba", BotonPrincipal(3)},
    Pieza{"boton4_arriba", BotonPrincipal(4)},
    Pieza{"boton5_arriba", BotonPrincipal(5)},
    Pieza{"boton6_arriba", BotonPrincipal(6)},
    Pieza{"boton7_arriba", BotonPrincipal(7)},
    Pieza{"boton8_arriba", BotonPrincipal(8)},
    Pieza{"boton1_apagado", BotonPrincipal(1, Aspecto::Apagado)},
    Pieza{"boton2_apagado", BotonPrincipal(2, Aspecto::Apagado)},
    Pieza{"boton3_apagado", BotonPrincipal(3, Aspecto::Apagado)},
    Pieza{"boton4_apagado", BotonPrincipal(4, Aspecto::Apagado)},
    Pieza{"boton5_apagado", BotonPrincipal(5, Aspecto::Apagado)},
    Pieza{"boton6_apagado", BotonPrincipal(6, Aspecto::Apagado)},
    Pieza{"boton7_apagado", BotonPrincipal(7, Aspecto::Apagado)},
    Pieza{"boton8_apagado", BotonPrincipal(8, Aspecto::Apagado)},
    Pieza{"boton1_pulsado", BotonPrincipal(1, Aspecto::Pulsado)},
    Pieza{"boton2_pulsado", BotonPrincipal(2, Aspecto::Pulsado)},
    Pieza{"boton3_pulsado", BotonPrincipal(3, Aspecto::Pulsado)},
    Pieza{"boton4_pulsado", BotonPrincipal(4, Aspecto::Pulsado)},
    Pieza{"boton5_pulsado", BotonPrincipal(5, Aspecto::Pulsado)},
    Pieza{"boton6_pulsado", BotonPrincipal(6, Aspecto::Pulsado)},
    Pieza{"boton7_pulsado", BotonPrincipal(7, Aspecto::Pulsado)},
    Pieza{"boton8_pulsado", BotonPrincipal(8, Aspecto::Pulsado)},
    Pieza{"digito0", Digito(0)},
    Pieza{"digito1", Digito(1)},
    Pieza{"digito2", Digito(2)},
    Pieza{"digito3", Digito(3)},
    Pieza{"digito4", Digito(4)},
    Pieza{"digito5", Digito(5)},
    Pieza{"digito6", Digito(6)},
    Pieza{"digito7", Digito(7)},
    Pieza{"digito8", Digito(8)},
    Pieza{"digito9", Digito(9)},
    Pieza{"digito_vacio", kDigitoVacio},
    Pieza{"ficha1", Ficha(1)},
    Pieza{"ficha2", Ficha(2)},
    Pieza{"ficha5", Ficha(3)},
    Pieza{"ficha10", Ficha(4)},
    Pieza{"ficha20", Ficha(5)},
    Pieza{"ficha50", Ficha(6)},
    Pieza{"marca_ganador", kMarcaGanador},
    Pieza{"marca_pasado", kMarcaPasado},
    Pieza{"marca_turno", kMarcaTurno},
    Pieza{"cerrar_arriba", kCerrarArriba},
    Pieza{"cerrar_pulsado", kCerrarPulsado},
    Pieza{"mas_ayuda_arriba", kMasAyudaArriba},
    Pieza{"mas_ayuda_pulsado", kMasAyudaPulsado},
    Pieza{"spin_sube_arriba", kSpinSubeArriba},
    Pieza{"spin_sube_pulsado", kSpinSubePulsado},
    Pieza{"spin_baja_arriba", kSpinBajaArriba},
    Pieza{"spin_baja_pulsado", kSpinBajaPulsado},
    Pieza{"casilla_vacia", kCasillaVacia},
    Pieza{"casilla_marcada", kCasillaMarcada},
    Pieza{"opcion_vacia", kOpcionVacia},
    Pieza{"opcion_marcada", kOpcionMarcada},
    Pieza{"selector_arriba", kSelectorArriba},
    Pieza{"selector_pulsado", kSelectorPulsado},
    Pieza{"carril_deslizador", kCarrilDeslizador},
    Pieza{"pomo_deslizador", kPomoDeslizador},
    Pieza{"marco_extremo_izquierdo", kMarcoExtremoIzquierdo},
    Pieza{"marco_tira", kMarcoTira},
    Pieza{"marco_extremo_derecho", kMarcoExtremoDerecho},
    Pieza{"panel_madera", kPanelMadera},
    Pieza{"panel_pergamino", kPanelPergamino},
    Pieza{"panel_hundido", kPanelHundido},
    Pieza{"placa_tantos", kPlacaTantos},
    Pieza{"visor", kVisor},
    Pieza{"continuar_arriba", kContinuarArriba},
    Pieza{"continuar_pulsado", kContinuarPulsado},
    Pieza{"continuar_solo_arriba", kContinuarSoloArriba},
    Pieza{"continuar_solo_pulsado", kContinuarSoloPulsado},
    Pieza{"palo_oros", Palo(1)},
    Pieza{"palo_copas", Palo(2)},
    Pieza{"palo_espadas", Palo(3)},
    Pieza{"palo_bastos", Palo(4)},
    Pieza{"boton_superior_arriba", kBotonSuperiorArriba},
    Pieza{"boton_superior_pulsado", kBotonSuperiorPulsado},
    Pieza{"boton_dobseg_arriba", kBotonDobSegArriba},
    Pieza{"boton_dobseg_pulsado", kBotonDobSegPulsado},
    Pieza{"lateral_izquierda_arriba", BotonLateral(1, false)},
    Pieza{"lateral_izquierda_pulsado", BotonLateral(1, false, true)},
    Pieza{"lateral_derecha_arriba", BotonLateral(2, false)},
    Pieza{"lateral_derecha_pulsado", BotonLateral(2, false, true)},
    Pieza{"lateral_sube_arriba", BotonLateral(1, true)},
    Pieza{"lateral_sube_pulsado", BotonLateral(1, true, true)},
    Pieza{"lateral_baja_arriba", BotonLateral(2, true)},
    Pieza{"lateral_baja_pulsado", BotonLateral(2, true, true)},
    Pieza{"mensaje_arriba", kMensajeArriba},
    Pieza{"mensaje_pulsado", kMensajePulsado},
    Pieza{"apuesta1_arriba", BotonApuesta(1)},
    Pieza{"apuesta1_pulsado", BotonApuesta(1, true)},
    Pieza{"apuesta2_arriba", BotonApuesta(2)},
    Pieza{"apuesta2_pulsado", BotonApuesta(2, true)},
    Pieza{"apuesta3_arriba", BotonApuesta(3)},
    Pieza{"apuesta3_pulsado", BotonApuesta(3, true)},
    Pieza{"apuesta4_arriba", BotonApuesta(4)},
    Pieza{"apuesta4_pulsado", BotonApuesta(4, true)},
    Pieza{"sentido_directo", kSentidoDirecto},
    Pieza{"sentido_inverso", kSentidoInverso},
    Pieza{"emblema_portada", kEmblemaPortada},
    Pieza{"apostadora", kApostadora},
};

// A pointer of the table: the drawing of assets/cursors and the pixel that points.
struct Puntero {
    std::string_view nombre;  // as the program asks for it
    std::string_view archivo; // without ".svg"
    int puntaX = 0;
    int puntaY = 0;
};

inline constexpr int kLadoPuntero = 32;

inline constexpr std::array kPunteros{
    Puntero{"ManoIndice", "mano_indice", 13, 2}, Puntero{"ManoVerde", "mano_verde", 15, 3},
    Puntero{"ManoRoja", "mano_roja", 15, 3},     Puntero{"Ordenar", "ordenar", 15, 2},
    Puntero{"Cambiar", "cambiar", 15, 16},       Puntero{"ManoCerrada", "mano_cerrada", 16, 14},
    Puntero{"Voltear", "voltear", 19, 19},       Puntero{"Abrirse", "abrirse", 16, 15},
};

} // namespace lamina
