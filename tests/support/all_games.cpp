// Every test program has the games at its table.

#include <gtest/gtest.h>

#include "games/game_rows.h"

namespace {

class LosSeisJuegos : public testing::Environment {
public:
    void SetUp() override { UsaJuegos(LosJuegos()); }
};

[[maybe_unused]] const testing::Environment* const kJuegos =
    testing::AddGlobalTestEnvironment(new LosSeisJuegos); // GoogleTest takes it

} // namespace
