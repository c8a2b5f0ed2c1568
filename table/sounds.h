#pragma once
// The thirteen sounds of the program, by the numbers that Sonido takes.

namespace sonido {
inline constexpr int kBotonDeApuesta = 6;       // a bet button or a button beside a seat is pressed
inline constexpr int kBoton = 9;                // a button is pressed
inline constexpr int kSePasa = 11;              // a serie goes bust
inline constexpr int kParpadeo = 12;            // a caption or a button blinks
inline constexpr int kFinMano = 14;             // the winner of a hand
inline constexpr int kBaraja = 20;              // the deck is mixed
inline constexpr int kFicha = 22;               // a chip lands
inline constexpr int kDespega = 24, kPosa = 25; // a card leaves, a card lands
inline constexpr int kConsejo = 26;             // the tutor shows a card
} // namespace sonido
