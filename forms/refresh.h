#pragma once
// What the logic of every form needs of its view: that it shows what has changed, and the sounds.

#include <functional>

// Sounds of the forms: a number steps, a selector turns, what is linked to it turns too, the exit, a check box.
inline constexpr int kSonidoSpin = 4, kSonidoSelector = 6, kSonidoEnlace = 7, kSonidoSalir = 9,
                     kSonidoPagina = 10, kSonidoCasilla = 25;

// The view of the open form: called after each change that the player can see. Without one nothing happens. Answers the
// one before, which a form that lies over another gives back when it closes.
std::function<void()> PonRefresco(std::function<void()> refresco);
void RefrescaForma();
