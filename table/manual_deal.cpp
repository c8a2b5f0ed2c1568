#include "table/manual_deal.h"

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/random.h"
#include "core/session_state.h"
#include "games/game_table.h"
#include "table/deck.h"
#include "table/messages.h"
#include "table/table_input.h"
#include "table/table_ops.h"
#include "table/waiting.h"

namespace {

constexpr int kPasoColumna = 29, kHueco = 3, kMasFila = 2;
constexpr int kSonidoPosa = 25;
constexpr Integer kValorComodin = 90;

int total_al_empezar = 0;

Lienzo& Mesa() {
    return plataforma().LienzoDe(Control::Mesa, 0);
}

int PasoFila() {
    return estado.AltoMiniCarta + kMasFila;
}

// A place of the spread as a card: the fifth row holds the jokers.
Integer ValorDe(int fila, int columna) {
    return EnteroDe(fila == kComodin ? kValorComodin + columna : columna);
}

int ColumnaDe(Integer palo, Integer valor) {
    return palo == kComodin ? valor - kValorComodin : valor;
}

bool EnLaBaraja(int fila, int columna) {
    return fila == kComodin ? columna <= estado.ComodinesBaraja : estado.ValorEnBaraja(columna);
}

template <class F>
void PorElReparto(F&& visita) {
    for (int fila = 1; fila <= estado.FilasReparto; ++fila) {
        for (int columna = 1; columna <= estado.ColumnasBaraja; ++columna) {
            if (EnLaBaraja(fila, columna))
                visita(fila, columna);
        }
    }
}

void PintaLugar(int fila, int columna) {
    if (!plataforma().HayPantalla())
        return;
    const int x = estado.ReparteX + (columna - 1) * kPasoColumna;
    const int y = estado.ReparteY + (fila - 1) * PasoFila();
    const int ancho = kPasoColumna - kHueco;
    const int alto = PasoFila() - kHueco;
    const bool colgada =
        estado.ArrastraReparto && fila == estado.FilaReparto && columna == estado.ColumnaReparto;
    if (estado.CartaEnReparto(fila, columna) && !colgada) {
        Mesa().MiniCarta(x, y, ancho, alto,
                         {.palo = EnteroDe(fila),
                          .valor = ValorDe(fila, columna),
                          .cara = kDescubierta,
                          .orientacion = 1});
    } else {
        Mesa().Fieltro({x, y, ancho, alto});
    }
}

void Extiende() {
    PorElReparto([](int fila, int columna) {
        estado.CartaEnReparto(fila, columna) = true;
        PintaLugar(fila, columna);
        if (plataforma().HayPantalla())
            plataforma().Repinta();
        Pausa(fila == kComodin ? 40 : 25);
    });
}

void CentraReparto() {
    estado.ReparteX = Redondea(estado.AnchoMesa / 2.0 - estado.ColumnasBaraja * kPasoColumna / 2.0);
    estado.ReparteY = Redondea(estado.AltoMesa / 2.0 - PasoFila() * estado.FilasReparto / 2.0);
}

void PreparaMesa() {
    estado.CursorTabla = 0;
    CambiarCursor(Control::Mesa, 0, Puntero::Flecha);
    HabilitaBoton(kBotonSalir, true);
    HabilitaBoton(kBotonTutor, false);
    HabilitaBoton(kBotonEstadis, false);
    estado.RepartoEnCurso = true;
    estado.ArrastraReparto = false;
    estado.FilasReparto = static_cast<Integer>(estado.ComodinesBaraja > 0 ? 5 : 4);
    estado.CartasEnMazo = estado.TotalBaraja;
    estado.NumDescartes = 0;
    estado.Baraja.Borra();
    estado.CartaEnReparto.Borra();
    CentraReparto();
}

int Repartidas() {
    int cartas = 0;
    for (int asiento = 1; asiento <= 4; ++asiento)
        cartas += estado.NumCartas(asiento, 1);
    return cartas;
}

// The deal was broken off by a change of the rules.
bool RepartoRoto() {
    return estado.SistemaReparto == kRepartoAutomatico || estado.TotalBaraja != total_al_empezar;
}

void DescubreManos() {
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar)
            estado.Mano(asiento, 1, lugar, kCara) = estado.CartasJugador(asiento);
        RedibujarAsiento(asiento);
    }
}

// Dealt cards fill the low places in order, the others lie at random above them.
void HazBaraja(int repartidas) {
    int bajo = 1;
    PorElReparto([&](int fila, int columna) {
        int lugar = bajo;
        if (estado.CartaEnReparto(fila, columna)) {
            do {
                lugar = AzarEntre(estado.CartasEnMazo) + repartidas;
            } while (estado.Baraja(lugar, 1) != kSinCarta);
        } else {
            ++bajo;
        }
        estado.Baraja(lugar, 1) = EnteroDe(fila);
        estado.Baraja(lugar, 2) = ValorDe(fila, columna);
    });
}

void CierraReparto() {
    const int repartidas = Repartidas();
    estado.RepartoEnCurso = false;
    RedibujarMesa();
    DescubreManos();
    estado.CartasEnMazo = EnteroDe(estado.CartasEnMazo - repartidas);
    estado.PosicionMazo = EnteroDe(estado.TotalBaraja - estado.CartasEnMazo + 1);
    HazBaraja(repartidas);
}

bool Admite(Integer asiento) {
    if (estado.NumCartas(asiento, 1) >= estado.CartasReparto)
        return false;
    const FilaJuego& juego = JuegoEnMesa();
    return juego.recibe_a_mano != nullptr ? juego.recibe_a_mano(asiento)
                                          : estado.EstadoJugador(asiento) == kActivado;
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
    RefrescaPuntero();
}

} // namespace

bool RepartoCompleto() {
    return Repartidas() == estado.CartasReparto * estado.JugadoresEnMano;
}

bool RepartirAMano() {
    PreparaMesa();
    total_al_empezar = estado.TotalBaraja;
    Extiende();
    for (int asiento = 1; asiento <= 4; ++asiento)
        RedibujarAsiento(asiento);
    MostrarNombres();
    HabilitaBoton(kBotonNueva, true);
    HabilitaBoton(kBotonNormas, true);
    const FilaJuego& juego = JuegoEnMesa();
    estado.JugadoresEnMano =
        juego.cuenta_reparto != nullptr ? juego.cuenta_reparto() : estado.NumJugadores;
    estado.UltimoRecibe = 0;
    if (!EsperaHasta([] { return RepartoRoto() || RepartoCompleto(); })) {
        estado.RepartoEnCurso = false;
        return false;
    }
    if (RepartoRoto()) {
        estado.RepartoEnCurso = false;
        return true;
    }
    CierraReparto();
    return true;
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
    PintaLugar(fila, columna);
    return true;
}

CartaColgada LaCartaColgada() {
    if (!estado.ArrastraReparto)
        return {};
    return {estado.FilaReparto, ValorDe(estado.FilaReparto, estado.ColumnaReparto)};
}

bool DaCartaA(Integer asiento) {
    const int lugar = PrimerLugarLibre(asiento);
    if (!Admite(asiento) || lugar == 0)
        return false;
    const CartaColgada carta = LaCartaColgada();
    PonCarta(asiento, 1, lugar, carta.palo, carta.valor, kDescubierta);
    if (JuegoEnMesa().tapa_al_repartir)
        estado.Mano(asiento, 1, lugar, kTapada) = 1;
    ++estado.NumCartas(asiento, 1);
    estado.CartaEnReparto(estado.FilaReparto, estado.ColumnaReparto) = false;
    estado.UltimoRecibe = asiento;
    SueltaColgada();
    RedibujarAsiento(asiento);
    Sonido(0, kSonidoPosa);
    return true;
}

void DevuelveAlReparto() {
    const int fila = estado.FilaReparto;
    const int columna = estado.ColumnaReparto;
    SueltaColgada();
    PintaLugar(fila, columna);
    Sonido(0, kSonidoPosa);
}

void RecogeDeMano(Integer asiento, int lugar) {
    Pausa(100);
    const Integer palo = estado.Mano(asiento, 1, lugar, kPalo);
    const int columna = ColumnaDe(palo, estado.Mano(asiento, 1, lugar, kValor));
    estado.CartaEnReparto(palo, columna) = true;
    PintaLugar(palo, columna);
    for (int campo = 0; campo <= 5; ++campo)
        estado.Mano(asiento, 1, lugar, campo) = 0;
    --estado.NumCartas(asiento, 1);
    CompactarMano(asiento);
    RedibujarAsiento(asiento);
    RefrescaPuntero();
}

void PintaReparto() {
    CentraReparto();
    PorElReparto(PintaLugar);
}
