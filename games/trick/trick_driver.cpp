#include "games/trick/trick_driver.h"

#include "core/game_state.h"
#include "games/common/hands.h"
#include "games/common/trick_state.h"
#include "games/trick/cantes.h"
#include "games/trick/hand_end.h"
#include "games/trick/stock.h"
#include "games/trick/trick.h"
#include "games/trick/trick_rules.h"
#include "table/button_column.h"

namespace {

constexpr int kSerie = 1;

[[nodiscard]] bool EmpiezaMano() {
    if (!IniciarJuego())
        return false;
    HabilitaBoton(kBotonNueva, true);
    estado.Juegos(estado.JuegosJugados).Inicio = estado.NombreJugador(estado.JugadorMano);
    estado.JugadorSalida = estado.JugadorMano;
    PonAntesDelMano();
    return true;
}

// Four Reyes or Caballos in the first hand end it before a card is played.
void CantaTuteDeSalida() {
    const Integer asiento = AsientoConTute();
    if (asiento == 0)
        return;
    estado.GanadorBaza = asiento;
    CantaTrasBaza();
}

[[nodiscard]] bool JuegaBazas() {
    while (!bazas.TuteCantado && estado.NumCartas(estado.JugadorSalida, kSerie) > 0) {
        if (!JuegaBaza())
            return false;
        if (ReglasEnMesa().canta)
            CantaTrasBaza();
        if (!bazas.TuteCantado)
            RobaCartas();
    }
    return true;
}

// One hand from the deal to its record; false when the match was left.
[[nodiscard]] bool JuegaMano() {
    if (!EmpiezaMano())
        return false;
    if (ReglasEnMesa().canta)
        CantaTuteDeSalida();
    return JuegaBazas() && FinalMano();
}

} // namespace

void ManoTute() {
    JuegaPartida(JuegaMano);
}

void ManoBrisca() {
    JuegaPartida(JuegaMano);
}
