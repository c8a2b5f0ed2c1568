#include "games/cinquillo/cinquillo.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/random.h"
#include "core/session_state.h"
#include "core/text.h"
#include "games/cinquillo/cinquillo_choice.h"
#include "games/cinquillo/cinquillo_table.h"
#include "games/common/card_turn.h"
#include "games/common/hands.h"
#include "games/common/trick_state.h"
#include "table/announcements.h"
#include "table/button_column.h"
#include "table/hand_order.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/table_input.h"
#include "table/waiting.h"

namespace {

constexpr int kTipTutor = 50, kTipReglas = 15;

using Negativos = std::array<Integer, 5>;

// The tip of a turn's beginning goes by the number of the turn before.
void SugiereAlEmpezar() {
    if (estado.AzarTurno < 0.25F)
        MostrarSugerencia(kTipTutor);
    else if (estado.AzarTurno < 0.8F)
        MostrarSugerencia(kTipReglas);
}

void PreparaEleccion(Integer asiento) {
    AbreEleccion(asiento);
    if (!EsManual(asiento))
        Pausa(300);
    EligeCartaCinquillo();
    if (EsManual(asiento)) {
        RefrescaPuntero();
        if (estado.AzarTurno < 0.4F)
            MostrarSugerencia(kTipTutor);
    }
}

// The chosen card goes from the hand to its place on the table.
void ExtiendeCarta(Integer asiento) {
    const Carta carta = CartaElegidaDe(asiento);
    const Punto lugar = LugarTendido(carta.palo, carta.valor);
    JuegaElegida(asiento, {lugar.x, lugar.y});
    bazas.RegistroBazas(asiento + kFilaPalo, estado.NumBaza) = carta.palo;
    bazas.RegistroBazas(asiento + kFilaValor, estado.NumBaza) = carta.valor;
    bazas.CartaJugada(carta.palo, carta.valor) = asiento;
    PintaTendido();
    Pausa(500);
}

// One turn; a seat that cannot lay passes without a sign to be seen. False when the match was left.
[[nodiscard]] bool TurnoDeAsiento() {
    SiguienteAsiento(estado.JugadorActual);
    const Integer asiento = estado.JugadorActual;
    if (EsManual(asiento))
        SugiereAlEmpezar();
    PaseDeEventos(Pase::DePaso);
    if (!PartidaSigue())
        return false;
    if (asiento == estado.JugadorMano) {
        ++estado.NumBaza;
        estado.CartasEnBaza = 0;
    }
    ++estado.CartasEnBaza;
    estado.AzarTurno = AzarDeTurno();
    EligeCartaCinquillo();
    if (bazas.NumJugables == 0) {
        DiDe(asiento, "pasa");
        return true;
    }
    ResaltarAsiento();
    PreparaEleccion(asiento);
    const bool elegida = EsperaEleccion(asiento, EligeCartaCinquillo);
    CierraEleccion();
    if (!elegida)
        return false;
    ExtiendeCarta(asiento);
    return true;
}

Integer PuntosDeCarta(Integer valor) {
    return EnteroDe(6 - std::abs(RangoSeguido(valor) - 5));
}

Negativos CuentaNegativos() {
    Negativos negativos{};
    int total = 0;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        Integer& suyos = negativos[static_cast<std::size_t>(asiento)];
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar)
            suyos = EnteroDe(suyos + PuntosDeCarta(estado.Mano(asiento, 1, lugar, kValor)));
        total += suyos;
    }
    negativos[static_cast<std::size_t>(estado.GanadorMano)] = EnteroDe(total);
    return negativos;
}

std::string TextoFinal(const Negativos& negativos) {
    std::vector<int> perdedores;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        if (asiento != estado.GanadorMano)
            perdedores.push_back(asiento);
    }
    const auto puntos = [&](int asiento) { return negativos[static_cast<std::size_t>(asiento)]; };
    std::ranges::stable_sort(perdedores, {}, puntos);
    std::string texto;
    for (int asiento : perdedores) {
        texto += estado.NombreJugador(asiento) + " : " + Numero(puntos(asiento)) +
                 (puntos(asiento) == 1 ? " punto negativo." : " puntos negativos.") +
                 estado.SaltoLinea;
    }
    return texto + estado.SaltoLinea + TextoGana(estado.GanadorMano, "la mano");
}

std::string CartasQueQuedan(int asiento) {
    std::string texto;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar) {
        const Integer valor = estado.Mano(asiento, 1, lugar, kValor);
        texto += (valor == 1 ? "A" : Numero(valor)) + " ";
    }
    return texto;
}

void RegistraMano(const Negativos& negativos) {
    RegistroJuego& registro = estado.Juegos(estado.JuegosJugados);
    registro.Marcas(estado.GanadorMano, 1) = 1;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        registro.Texto1(asiento) = Numero(negativos[static_cast<std::size_t>(asiento)]);
        registro.Texto2(asiento) = CartasQueQuedan(asiento);
    }
}

void DescubreManos() {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar)
            estado.Mano(asiento, 1, lugar, kCara) = kDescubierta;
        RedibujarAsiento(asiento);
    }
}

void CierraBotones() {
    for (int boton : {1, 3, 7, 8})
        HabilitaBoton(boton, false);
    if (estado.SistemaReparto == kRepartoAutomatico)
        HabilitaBoton(kBotonPersonal, false);
}

[[nodiscard]] bool CierreDeMano() {
    estado.GanadorMano = estado.JugadorActual;
    CierraBotones();
    estado.ManoEnCurso = false;
    DescubreManos();
    ParpadeaGanador();
    const Negativos negativos = CuentaNegativos();
    if (!CuentaFinalMano(TextoFinal(negativos)))
        return false;
    RegistraMano(negativos);
    GanaMano();
    return true;
}

// One hand from the deal to its record; false when the match was left.
[[nodiscard]] bool JuegaMano() {
    if (!IniciarJuego())
        return false;
    HabilitaBoton(kBotonNueva, true);
    PintaTendido();
    estado.Juegos(estado.JuegosJugados).Inicio = estado.NombreJugador(estado.JugadorMano);
    PonAntesDelMano();
    do {
        if (!TurnoDeAsiento())
            return false;
    } while (estado.NumCartas(estado.JugadorActual, 1) > 0);
    return CierreDeMano();
}

} // namespace

void ManoCinquillo() {
    JuegaPartida(JuegaMano);
}
