#pragma once
// What must hold at the end of each hand and of each match, whatever was played.

#include <stdexcept>
#include <string>

// A match that broke a rule of its own; what() says which.
struct InvarianteRoto : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// The cards and the points of the hand that has just ended. Reads the state only.
void RevisaFinalDeMano();

// The games won, the records and the winner of the match that has just ended.
void RevisaFinalDePartida();
