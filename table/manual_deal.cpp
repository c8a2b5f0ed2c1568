#include "table/manual_deal.h"

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/random.h"
#include "core/session_state.h"
#include "table/button_column.h"
#include "table/controls.h"
#include "table/manual_spread.h"
#include "table/messages.h"
#include "table/notice.h"
#include "table/pile.h"
#include "table/seat_drawing.h"
#include "table/waiting.h"
#include "table/whole_table.h"

namespace {

int total_al_empezar = 0;

void Extiende() {
    PorElReparto([](int fila, int columna) {
        estado.CartaEnReparto(fila, columna) = true;
        PintaLugarDelReparto(fila, columna);
        if (plataforma().HayPantalla())
            plataforma().Repinta();
        Pausa(fila == kComodin ? 40 : 25);
    });
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
    RefrescaAviso();
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

// Everyone who may take cards is dealt a whole hand, also who is in with a bet of before and has no chips left.
Integer CuantosReciben() {
    int cuantos = 0;
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        cuantos += RecibeAMano(asiento) ? 1 : 0;
    return EnteroDe(cuantos);
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
        const Carta carta = CartaDelReparto(fila, columna);
        estado.Baraja(lugar, 1) = carta.palo;
        estado.Baraja(lugar, 2) = carta.valor;
    });
}

void AcabaElReparto() {
    estado.RepartoEnCurso = false;
    RefrescaAviso();
}

void CierraReparto() {
    const int repartidas = Repartidas();
    AcabaElReparto();
    RedibujarMesa();
    DescubreManos();
    estado.CartasEnMazo = EnteroDe(estado.CartasEnMazo - repartidas);
    estado.PosicionMazo = EnteroDe(estado.TotalBaraja - estado.CartasEnMazo + 1);
    HazBaraja(repartidas);
    // Cards will fly from there, as after a deal by the program.
    if (estado.CartasEnMazo > 0)
        DibujarMazo(estado.MazoX, estado.MazoY, estado.CartasEnMazo);
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
    estado.JugadoresEnMano = CuantosReciben();
    estado.UltimoRecibe = 0;
    if (!EsperaHasta([] { return RepartoRoto() || RepartoCompleto(); })) {
        AcabaElReparto();
        return false;
    }
    if (RepartoRoto()) {
        AcabaElReparto();
        return true;
    }
    CierraReparto();
    return true;
}
