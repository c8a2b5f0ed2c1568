#include "table/manual_spread.h"

#include "core/numeric.h"
#include "table/controls.h"
#include "table/deck.h"
#include "table/game_row.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/sounds.h"
#include "table/spread_layout.h"

namespace {

constexpr Integer kValorComodin = 90;

Lienzo& Mesa() {
    return plataforma().LienzoDe(Control::Mesa, 0);
}

int ColumnaDe(Integer palo, Integer valor) {
    return palo == kComodin ? valor - kValorComodin : valor;
}

bool Admite(Integer asiento) {
    return estado.NumCartas(asiento, 1) < estado.CartasReparto && RecibeAMano(asiento);
}

int PrimerLugarLibre(Integer asiento) {
    for (int lugar = 1; lugar <= estado.MaxCartasMano; ++lugar) {
        if (estado.Mano(asiento, 1, lugar, kPalo) == kSinCarta)
            return lugar;
    }
    return 0;
}

void SueltaColgada() {
    estado.ArrastraReparto = false;
    Oculta(Control::Pic_Mover);
}

} // namespace

bool RecibeAMano(Integer asiento) {
    const FilaJuego& juego = JuegoEnMesa();
    return juego.reparto.recibe != nullptr ? juego.reparto.recibe(asiento, true)
                                           : estado.EstadoJugador(asiento) == kActivado;
}

Carta CartaDelReparto(int fila, int columna) {
    return {EnteroDe(fila), EnteroDe(fila == kComodin ? kValorComodin + columna : columna)};
}

bool EstaEnLaBaraja(int fila, int columna) {
    return fila == kComodin ? columna <= estado.ComodinesBaraja : estado.ValorEnBaraja(columna);
}

void CentraReparto() {
    estado.ReparteX = Redondea(estado.AnchoMesa / 2.0 - estado.ColumnasBaraja * kPasoColumna / 2.0);
    estado.ReparteY = Redondea(estado.AltoMesa / 2.0 - PasoFila() * estado.FilasReparto / 2.0);
}

Rectangulo LugarEnReparto(int fila, int columna) {
    return {estado.ReparteX + (columna - 1) * kPasoColumna,
            estado.ReparteY + (fila - 1) * PasoFila(), kPasoColumna - kHuecoReparto,
            PasoFila() - kHuecoReparto};
}

void PintaLugarDelReparto(int fila, int columna) {
    if (!plataforma().HayPantalla())
        return;
    const auto [x, y, ancho, alto] = LugarEnReparto(fila, columna);
    const Carta carta = CartaDelReparto(fila, columna);
    const bool colgada =
        estado.ArrastraReparto && fila == estado.FilaReparto && columna == estado.ColumnaReparto;
    if (estado.CartaEnReparto(fila, columna) && !colgada) {
        Mesa().MiniCarta(
            x, y, ancho, alto,
            {.palo = carta.palo, .valor = carta.valor, .cara = kDescubierta, .orientacion = 1});
    } else {
        Mesa().Fieltro({x, y, ancho, alto});
    }
}

void PintaReparto() {
    CentraReparto();
    PorElReparto(PintaLugarDelReparto);
}

bool EnElReparto(int x, int y) {
    return x >= estado.ReparteX && x < estado.ReparteX + estado.CartasImagen / 4 * kPasoColumna &&
           y >= estado.ReparteY && y < estado.ReparteY + PasoFila() * estado.FilasReparto;
}

bool TomaDelReparto() {
    const int fila = estado.FilaReparto;
    const int columna = estado.ColumnaReparto;
    if (fila == 0 || columna == 0 || !estado.CartaEnReparto(fila, columna))
        return false;
    estado.ArrastraReparto = true;
    PintaLugarDelReparto(fila, columna);
    return true;
}

Carta LaCartaColgada() {
    return estado.ArrastraReparto ? CartaDelReparto(estado.FilaReparto, estado.ColumnaReparto)
                                  : Carta{};
}

bool AdmiteLaColgada(Integer asiento) {
    return estado.ArrastraReparto && Admite(asiento) && PrimerLugarLibre(asiento) != 0;
}

bool DaCartaA(Integer asiento) {
    if (!AdmiteLaColgada(asiento))
        return false;
    const int lugar = PrimerLugarLibre(asiento);
    const Carta carta = LaCartaColgada();
    PonCarta(asiento, 1, lugar, carta, kDescubierta);
    if (JuegoEnMesa().reparto.tapa)
        estado.Mano(asiento, 1, lugar, kTapada) = 1;
    ++estado.NumCartas(asiento, 1);
    estado.CartaEnReparto(estado.FilaReparto, estado.ColumnaReparto) = false;
    estado.UltimoRecibe = asiento;
    SueltaColgada();
    RedibujarAsiento(asiento);
    Sonido(0, sonido::kPosa);
    return true;
}

void DevuelveAlReparto() {
    const int fila = estado.FilaReparto;
    const int columna = estado.ColumnaReparto;
    SueltaColgada();
    PintaLugarDelReparto(fila, columna);
    Sonido(0, sonido::kPosa);
}

void RecogeDeMano(Integer asiento, int lugar) {
    Pausa(100);
    const Integer palo = estado.Mano(asiento, 1, lugar, kPalo);
    const int columna = ColumnaDe(palo, estado.Mano(asiento, 1, lugar, kValor));
    estado.CartaEnReparto(palo, columna) = true;
    PintaLugarDelReparto(palo, columna);
    for (int campo = 0; campo <= 5; ++campo)
        estado.Mano(asiento, 1, lugar, campo) = 0;
    --estado.NumCartas(asiento, 1);
    CompactarMano(asiento);
    RedibujarAsiento(asiento);
}
