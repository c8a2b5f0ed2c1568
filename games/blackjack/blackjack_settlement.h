#pragma once
// The settlement of a hand of Black Jack.

// Every serie that has not gone over, and every insurance, against the bank's hand, from JugadorMano to the bank. What
// the bank pays ends where its funds end; whoever comes later gets back the stake. Writes the money of all, and Marcas of
// the record for a serie that has won.
void LiquidaBlackJack();
