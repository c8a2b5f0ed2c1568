#pragma once
// The bets of a serie in the two games with a bank.

// How a game asks for the bets of a serie.
struct TurnoDeApuesta {
    void (*decide)() = nullptr; // fills ApuestaPropuesta
    // Tips, by AzarTurno: of an automatic seat below 0.2; of a manual one below each of the two bounds, and above.
    int tip_automatico = 0, tip_manual = 0;
    float hasta_tip_manual = 0, hasta_tip_reglas = 0;
    int pausa = 0; // where nobody waits
    // A seat that bets by itself: before it decides for good. Empty: nothing.
    void (*antes_de_decidir)() = nullptr;
};

// The bets of SerieActual, in ModoApuesta and at the stage of the bets, which the caller sets: the board for a manual
// seat, the tip, the wait; what was placed by hand and not closed comes back, and the seat bets ApuestaPropuesta.
// Writes AzarTurno, JugadaHecha and what is placed. False when the match was left.
[[nodiscard]] bool ApuestaLaSerie(const TurnoDeApuesta& turno);
