#include "storage/settings_repair.h"

#include <array>

#include "betting/money_repair.h"
#include "core/default_settings.h"
#include "core/game_state.h"
#include "core/text.h"
#include "table/game_row.h"

namespace {

// A value outside its limits becomes another.
void Encaja(Integer& valor, const LimitesRegla& limites) {
    if (valor < limites.minimo || valor > limites.maximo)
        valor = limites.defecto;
}

// Who leads and who holds the bank. The seats need not be active: a hand starts at the next one that is, and a bank is
// looked at below.
constexpr ReglaConLimites kTurnos[]{
    {&EstadoJuego::JugadorMano, {1, 4, 4}},
    {&EstadoJuego::JugadorBanca, {1, 4, 4}},
};

struct Ajuste {
    Tabla<Integer, 4> EstadoJuego::*campo;
    LimitesRegla limites;
};

constexpr Ajuste kAjustes[]{
    {&EstadoJuego::EstadoJugador, {1, 2, 1}},   {&EstadoJuego::CartasJugador, {1, 2, 1}},
    {&EstadoJuego::ControlJugador, {1, 2, 1}},  {&EstadoJuego::CaracterJugador, {1, 3, 2}},
    {&EstadoJuego::NivelJugador, {0, 100, 50}}, {&EstadoJuego::JuegosGanados, {0, 999, 0}},
};

void ReparaAsientos() {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        estado.NombreJugador(asiento) = NombrePropio(Recorta(estado.NombreJugador(asiento)));
        for (const Ajuste& ajuste : kAjustes)
            Encaja((estado.*ajuste.campo)(asiento), ajuste.limites);
        if (estado.ControlJugador(asiento) == kManual)
            estado.CartasJugador(asiento) = kVisibles;
    }
}

void ImponBanca(Integer banca) {
    estado.NombreJugador(banca) = "Banca";
    estado.EstadoJugador(banca) = kActivado;
    estado.NivelJugador(banca) = 100;
    estado.ControlJugador(banca) = kAutomatico;
    for (int asiento = 1; asiento <= 4; ++asiento)
        estado.CartasJugador(asiento) = kVisibles;
    estado.SistemaReparto = kRepartoAutomatico;
}

// Too few seats for the game: all of them play.
void ReparaJugadores(const FilaJuego& juego) {
    CuentaJugadores();
    if (juego.asientos.sin_parejas)
        estado.ModalidadJuego = kIndividual;
    if (estado.NumJugadores >= juego.asientos.minimo)
        return;
    for (int asiento = 1; asiento <= 4; ++asiento)
        estado.EstadoJugador(asiento) = kActivado;
    CuentaJugadores();
}

// The seat that holds the bank in the match; 0 in a game with a pot.
Integer BancaDe(const FilaJuego& juego) {
    if (juego.asientos.banca != 0)
        return juego.asientos.banca;
    return juego.sorteo.da_banca ? estado.JugadorBanca : Integer{0};
}

// A bank that does not play hands it on.
void ReparaBanca() {
    while (estado.EstadoJugador(estado.JugadorBanca) != kActivado)
        SiguienteAsiento(estado.JugadorBanca);
}

void ReparaDinero(const FilaJuego& juego) {
    ReparaFichas();
    if (!juego.dinero.hay || !estado.PartidaEnCurso)
        return;
    if (juego.sorteo.da_banca)
        ReparaBanca();
    ReparaPartidaConDinero({.banca = BancaDe(juego), .resto_maximo = kLimitesRestoInicial.maximo});
}

} // namespace

void ReparaGeneral() {
    if (FilaDe(estado.JuegoActivo) == nullptr)
        estado.JuegoActivo = kPoker;
    Encaja(estado.VelocidadJuego, {0, 100, 50});
}

void ReparaJuego() {
    ReparaAsientos();
    for (const ReglaConLimites& regla : kReglas)
        Encaja(estado.*regla.campo, regla.limites);
    for (const ReglaConLimites& turno : kTurnos)
        Encaja(estado.*turno.campo, turno.limites);
    estado.PasoSentido = estado.SentidoJuego == kInverso ? -1 : 1;
    const FilaJuego& juego = JuegoEnMesa();
    if (juego.asientos.banca != 0)
        ImponBanca(juego.asientos.banca);
    ReparaJugadores(juego);
    ReparaDinero(juego);
}
