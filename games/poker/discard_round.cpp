#include "games/poker/discard_round.h"

#include <string>

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/text.h"
#include "games/common/card_turn.h"
#include "games/common/hands.h"
#include "games/poker/credited_hand.h"
#include "games/poker/discard_choice.h"
#include "games/poker/discard_pile.h"
#include "games/poker/poker_state.h"
#include "games/poker/poker_tips.h"
#include "games/poker/seat_turn.h"
#include "table/button_column.h"
#include "table/controls.h"
#include "table/deal.h"
#include "table/hand_order.h"
#include "table/messages.h"
#include "table/pile.h"
#include "table/seat_drawing.h"
#include "table/side_buttons.h"
#include "table/sounds.h"
#include "table/table_input.h"
#include "table/waiting.h"

namespace {

constexpr int kElegidas = 1, kServido = 2; // of Pic_BotSuperior
constexpr int kArriba = 1, kPulsado = 2;
constexpr int kPausaFase = 1000, kPausaTirar = 600, kPausaPulsado = 160;

// One of the two buttons has ended the choice: then it was made by hand, also with no card raised.
bool cerrado_con_boton = false;

bool EligeDescarte(Integer asiento) {
    return estado.EligeCarta && asiento == estado.JugadorActual &&
           apuestas.FaseApuesta == kFaseDescartes;
}

void AbreDescarte(Integer asiento) {
    const bool manual = EsManual(asiento);
    DejaDeOrdenar();
    estado.JugadaHecha = false;
    estado.EligeCarta = manual;
    cerrado_con_boton = false;
    HabilitaBoton(kBotonTutor, manual);
    PonBotonesDeDescarte(asiento);
    if (!manual)
        return;
    SugiereEnDescarte();
    RefrescaPuntero();
}

// False when the match was left.
[[nodiscard]] bool EsperaDescarte(Integer asiento) {
    return !(EsManual(asiento) || estado.PausaEntreJugadas) || EsperaContinuar();
}

void CierraDescarte(Integer asiento) {
    estado.EligeCarta = false;
    DejaDeOrdenar();
    HabilitaBoton(kBotonTutor, false);
    PonBotonesDeDescarte(asiento);
    RefrescaPuntero();
}

void PonAlturas(Integer asiento, bool (*levanta)(int lugar)) {
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, kSeriePoker); ++lugar)
        estado.Mano(asiento, kSeriePoker, lugar, kAltura) = levanta(lugar) ? kLevantada : kEnLinea;
    RedibujarAsiento(asiento);
}

// Who has put every card back in line and takes the green button, which offers the automatic play again, has chosen
// nothing.
bool EligioAMano(Integer asiento) {
    return estado.JugadaHecha && (cerrado_con_boton || HayCartaLevantada(asiento));
}

std::string TextoDeDescarte(Integer cartas) {
    if (cartas == 0)
        return "No quiero cartas";
    return "Descarto " + Numero(cartas) + (cartas > 1 ? " cartas" : " carta");
}

void Descarta(Integer asiento) {
    const Integer tiradas = TiraLasLevantadas(asiento);
    if (tiradas > 0)
        Pausa(kPausaTirar);
    PonRotulo(asiento, TextoDeDescarte(tiradas));
    RobarCartas(asiento, tiradas, 0);
    AnotaJugadaCreida(asiento, tiradas);
}

// False when the match was left.
[[nodiscard]] bool TurnoDeDescarte() {
    PasaAlSiguienteConCartas();
    const Integer asiento = estado.JugadorActual;
    ++poker.DescartesHechos;
    if (!AnunciaTurno())
        return false;
    AbreDescarte(asiento);
    const bool sigue = EsperaDescarte(asiento);
    CierraDescarte(asiento);
    if (!sigue)
        return false;
    DecideDescarte();
    if (!EligioAMano(asiento))
        PonAlturas(asiento, [](int lugar) { return poker.MarcaDescarte(lugar) != 0; });
    Descarta(asiento);
    ApagaNombre();
    return true;
}

} // namespace

bool RondaDeDescartes() {
    apuestas.FaseApuesta = kFaseDescartes;
    Pausa(kPausaFase);
    RedibujaLosQueJuegan();
    poker.DescartesHechos = 0;
    PonAntesDelMano();
    while (poker.DescartesHechos < estado.JugadoresEnMano) {
        if (!TurnoDeDescarte())
            return false;
    }
    Pausa(kPausaFase);
    DibujarMazo(estado.MazoX, estado.MazoY, estado.CartasEnMazo);
    return true;
}

bool HayCartaLevantada(Integer asiento) {
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, kSeriePoker); ++lugar) {
        if (estado.Mano(asiento, kSeriePoker, lugar, kAltura) == kLevantada)
            return true;
    }
    return false;
}

bool AlternaDescarte(Puntero puntero, int lugar) {
    if (puntero != Puntero::ManoVerde && puntero != Puntero::ManoRoja)
        return false;
    Integer& altura = estado.Mano(estado.JugadorActual, estado.SerieActual, lugar, kAltura);
    altura = altura == kLevantada ? kEnLinea : kLevantada;
    estado.JugadaHecha = true;
    PedirContinuar(1);
    return true;
}

void PonBotonesDeDescarte(int asiento) {
    if (asiento != estado.JugadorActual)
        return;
    for (const int indice : {kElegidas, kServido}) {
        if (EligeDescarte(estado.JugadorActual))
            BotonSuperior(asiento, kArriba, indice);
        else
            Oculta(Control::Pic_BotSuperior, indice);
    }
}

void PulsaBotonDeDescarte(Control control, int indice) {
    const Integer asiento = estado.JugadorActual;
    if (control != Control::Pic_BotSuperior || !EligeDescarte(asiento) || !estado.EsperandoJugada)
        return;
    BotonSuperior(asiento, kPulsado, indice);
    Sonido(0, sonido::kBotonDeApuesta);
    Pausa(kPausaPulsado);
    BotonSuperior(asiento, kArriba, indice);
    if (indice == kServido)
        PonAlturas(asiento, [](int) { return false; });
    cerrado_con_boton = true;
    estado.JugadaHecha = true;
    estado.EsperandoJugada = false;
}
