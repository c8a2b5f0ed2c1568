#pragma once
// The manual deal: the deck lies spread on the table and the player hands the cards out with the mouse.

// Lays the spread, waits until every seat in the hand holds its cards and makes the rest the deck. False when
// the match was left. A change of SistemaReparto or of the deck's size ends the wait early: the hands are then
// not complete, and the hand start deals again.
[[nodiscard]] bool RepartirAMano();

// True when every seat in the hand has its cards.
bool RepartoCompleto();
