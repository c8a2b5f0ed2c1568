#pragma once
// What a hand of the two games with a bank has in common: its walks round the table, its captions, the steps of the
// settlement, its messages and its record. Seats 1..4, series 1..4, amounts in points. What is placed
// or moves is that of JugadorActual in SerieActual unless a seat is named.

#include <string>
#include <vector>

#include "core/tabla.h"
#include "games/common/bank_marks.h"

// From JugadorMano round the table: the seats that come before the bank, or all four, whatever they hold.
std::vector<Integer> AsientosAntesDeLaBanca();
std::vector<Integer> AsientosEnRueda();

// The seat on turn is played by hand.
bool JuegaUnaPersona();

// The seat is on turn (or settled) with that serie: writes JugadorActual, SerieActual and SerieEnJuego.
void PonEnJuego(Integer asiento, Integer serie);

// A caption on SerieActual of JugadorActual, drawn at once: it blinks and is gone. AnunciaSerie: "Serie " and its
// number, cyan, one blink.
void Rotula(const std::string& texto, Long color, Integer parpadeos);
void AnunciaSerie();

// The bank's name goes into the record of the game that begins.
void ApuntaBanca();

// The flash of the bust, SerieTerminada of the serie, which the table shows from then on, and the stake goes to the bank: all of it, or all but the insurance, which
// waits for the settlement.
void PierdeAlPasarse();

// JugadoresEnMano: the series with cards that are not SerieTerminada, the bank's among them.
void CuentaManosVivas();

// Play is over: stage 5, ManoEnCurso cleared, and the buttons that would leave the match disabled.
void CierraElJuego();

// What a serie with more than 0 points has come to, in words.
using Palabra = std::string (*)(Integer asiento, Integer serie);

// The dialog "Final de la mano" after a pause: a line for each serie with points, round from JugadorMano, the bank
// among them. False when the match was left.
[[nodiscard]] bool CuentaResultados(int pausa, Palabra palabra);

// The settlement: for each seat before the bank, and each of its series for which toca answers true, it is put in play,
// announced where the seat has several, and liquida is called; then the seat's chips are regrouped.
void LiquidaSeries(bool (*toca)(Integer asiento, Integer serie),
                   void (*liquida)(Integer asiento, Integer serie));

// Of SerieActual of JugadorActual: the whole stake goes to the bank, or comes back. Whoever wins is paid as much of
// premio as the bank has, gets the stake back and is marked in the record.
void PierdeLaSerie();
void RecuperaLaSerie();
void GanaLaSerie(Integer premio);

// The record of the hand, and the files are written: each serie's word cut to 7 characters, two a text; Cifra the
// number of series; whether the bank has won, and what it has won or lost.
void RegistraSeries(Palabra palabra);
