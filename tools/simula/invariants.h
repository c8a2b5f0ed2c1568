#pragma once
// What must hold at the end of each hand and of each match, whatever was played.

#include <fmt/format.h>

#include <stdexcept>

// A match that broke a rule of its own; what() says which.
struct InvarianteRoto : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// InvarianteRoto when the rule does not hold; its words are put together only then.
template <class... A>
void Exige(bool cumple, fmt::format_string<const A&...> regla, const A&... datos) {
    if (!cumple)
        throw InvarianteRoto(fmt::format(regla, datos...));
}

// What must hold at any moment of a match. Reads the state only.
void RevisaPaso();

// The cards and the points of the hand that has just ended. Reads the state only.
void RevisaFinalDeMano();

// The games won, the records and the winner of the match that has just ended after so many hands: of a long one the
// records are fewer.
void RevisaFinalDePartida(int manos);
