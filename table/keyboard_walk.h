#pragma once
// The table by keys: a frame goes over what can be clicked, and a click there is the mouse events that it would be.
// What the frame is on is remembered while it is hidden.

#include <optional>
#include <vector>

#include "platform/platform.h"
#include "table/targets.h"

// What the key asks for, to be handled in this order; empty when it has moved the frame or a card, or does nothing.
// Without a frame any key but Mando::Funcion, which is not the walk's, only brings it. desde: when the press began, by
// Reloj(); one of Arriba or Abajo that began before another one has brought the frame was not meant for what it is on.
std::vector<Evento> EventosDeMando(Mando mando, std::optional<Milisegundos> desde = std::nullopt);

// The mouse events that a click at the target would be (boton 1 left, 2 right), in their order; empty where it does
// nothing now.
std::vector<Evento> EventosDeClic(const Objetivo& donde, int boton);

// The mouse takes over: the frame is hidden until the next key.
void QuitaMarco();
// The table is cleared: nothing is remembered.
void OlvidaMarco();
// What the frame is on; nothing while it is hidden.
std::optional<Objetivo> ObjetivoEnmarcado();
