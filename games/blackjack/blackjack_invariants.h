#pragma once
// What must hold in Black Jack, told from the cards alone, apart from the code that played them.

// At any moment. After a settlement: every seat has what its hands are worth against the bank's.
void RevisaPasoBlackJack();
// Play has ended: each hand was played under the rules, the bank's too. Reckons what the settlement will have to pay.
void RevisaManoBlackJack();
// The match that has just ended: who is left without chips, and that the bank's gains sum up to what it has.
void RevisaPartidaBlackJack(int manos);
