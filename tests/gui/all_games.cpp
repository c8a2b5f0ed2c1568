// Every test of the window has the games at its table.

#include "games/game_rows.h"

namespace {

[[maybe_unused]] const bool kConJuegos = [] {
    UsaJuegos(LosJuegos());
    return true;
}();

} // namespace
