#pragma once
// The form "Personalizar": the four seats and the settings of the table. Plain procedures over the state; what
// the player sees and clicks is the view's. Settings are written to their fields at once and to no file.
//
// Controls go by the indices of forms/selector.h: selectors 8 and 9 and those of the seats; check boxes 1 and 2;
// sliders 1 (speed) and 10 + seat (level). A control that is not on show, and an index that is none, do nothing.

#include <string>
#include <string_view>

#include "core/tabla.h"

namespace personal {

inline constexpr int kSonido = 1, kPausa = 2;               // check boxes
inline constexpr int kVelocidad = 1, kNivel = 10;           // sliders; kNivel plus the seat
inline constexpr int kMinimo = 0, kMaximo = 100, kPaso = 1; // of a slider
inline constexpr int kLetrasNombre = 9;

// Opening: remembers which seats are active.
void Abre();
// Between Abre and Cierra or Deja.
bool Abierta();

// The exit button: asks what is to be asked, brings the seats into force and the table up to date. False: the
// form stays open. Writes JugadoresCambiados, NumJugadores, ModalidadJuego and, of a seat that left, its hand.
[[nodiscard]] bool Cierra();
// Closed from outside, without a question: the active seats stay as they were.
void Deja();

// What is on show. A seat shows its name and state always, the rest while it is active; the bank of Black Jack
// shows nothing but its name, which stays what it is, and its state.
bool SeVeSelector(int control);
bool SeVePotenciometro(int control);
bool SeEscribeNombre(Integer asiento);

// A press on a selector: sound 6, the next value, and what that entails.
void PulsaSelector(int control);
// A click on a check box: the setting is inverted, sound 25.
void PulsaBuleano(int control);
// Whether it is checked.
bool Buleano(int control);
// The knob of a slider stands at valor, brought into 0..100.
void Desliza(int control, int valor);
// Where it stands.
int Potenciometro(int control);
// What the slider shows: a level as 0.0 to 10.0, the speed as a whole number.
std::string TextoPotenciometro(int control);

// The text typed so far into the name of a seat: it becomes NombreJugador, as FormaNombre makes it.
void EscribeNombre(Integer asiento, std::string_view texto);
// A name out of typed text: without leading blanks, each word with one capital, without what a settings file
// cannot hold (a comma above all), at most 9 characters.
std::string FormaNombre(std::string_view texto);

} // namespace personal
