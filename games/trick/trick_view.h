#pragma once
// What Tute and Brisca show in the middle of the felt: the turned card sideways under the pile, the cards
// of the trick, cards of a hand that blink.

#include <string>
#include <vector>

#include "core/tabla.h"
#include "table/layout.h"
#include "table/targets.h"

// The turned card, as long as it lies under the pile; (x, y) is the pile's corner. Draws only.
void PintaTriunfo(int x, int y);
// The corner of the turned card, and the orientation it lies in.
Punto LugarTriunfo();
inline constexpr Integer kOrientacionTriunfo = 2;

// While the last cards are drawn the turned card lies there without a pile over it.
void DejaTriunfoSinMazo(bool solo);

// The pile over the turned card, and the trick over both.
void PintaMazo();

// The cards of the trick in the order in which they were laid, until the trick has been gathered. sin: the
// seat whose card is left out, 0 none. Draws only.
void PintaBaza();
void PintaBazaSin(Integer sin);

// The middle of the felt without a trick: pile and turned card as they stand.
void RecogeMesa();

// The winner's card blinks on the table.
void ParpadeaBaza();

// The turned card, which a click changes while that is on offer, and the cards of the trick in the order in which they
// were laid.
void AgregaBazaYTriunfo(std::vector<Objetivo>& todos);

// The cards at these places of the seat's hand blink three times face up, raised out of it, and go back to the
// seat's face setting; as long as they do the words stand before them. Writes CaraCarta and AlturaCarta of those places.
void ParpadeaCartas(Integer asiento, const std::vector<Integer>& lugares,
                    const std::string& palabras = "");
