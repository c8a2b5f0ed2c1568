#include "core/literal.h"

#include <gtest/gtest.h>

namespace {

TEST(Literal, UnEnteroNoAdmiteFraccionesNiDesbordarse) {
    EXPECT_EQ(Convierte<Integer>(Literal(-32768.0)), -32768);
    EXPECT_EQ(Convierte<Integer>(Literal(32767.0)), 32767);
    EXPECT_THROW(Convierte<Integer>(Literal(32768.0)), ErrorConsola);
    EXPECT_THROW(Convierte<Integer>(Literal(0.5)), ErrorConsola);
    EXPECT_EQ(Convierte<Long>(Literal(32768.0)), 32768);
    EXPECT_THROW(Convierte<Integer>(Literal(std::string("1"))), ErrorConsola);
}

TEST(Literal, UnLogicoEsTambienMenosUnoYCero) {
    EXPECT_TRUE(Convierte<bool>(Literal(true)));
    EXPECT_TRUE(Convierte<bool>(Literal(-1.0)));
    EXPECT_FALSE(Convierte<bool>(Literal(0.0)));
    EXPECT_THROW(Convierte<bool>(Literal(1.0)), ErrorConsola);
    EXPECT_EQ(Convierte<Integer>(Literal(true)), -1);
}

TEST(Literal, UnTextoSoloEsUnTexto) {
    EXPECT_EQ(Convierte<std::string>(Literal(std::string("Ana"))), "Ana");
    EXPECT_THROW(Convierte<std::string>(Literal(3.0)), ErrorConsola);
}

TEST(Literal, CurrencyTieneCuatroDecimales) {
    EXPECT_EQ(Convierte<Currency>(Literal(0.5)), Currency::DeDiezmilesimas(5000));
    EXPECT_EQ(Convierte<Currency>(Literal(0.00004)), Currency());
}

TEST(Literal, UnNumeroCortoNoAdmiteLosEnormes) {
    EXPECT_EQ(Convierte<float>(Literal(0.25)), 0.25f);
    EXPECT_THROW(Convierte<float>(Literal(1e39)), ErrorConsola);
    EXPECT_THROW(Convierte<Currency>(Literal(1e300)), std::range_error);
}

TEST(Escrito, ElTextoMasCortoQueSeLeeIgual) {
    EXPECT_EQ(Escrito(12LL), "12");
    EXPECT_EQ(Escrito(true), "-1");
    EXPECT_EQ(Escrito(false), "0");
    EXPECT_EQ(Escrito(0.1f), "0.1");
    EXPECT_EQ(Escrito(18.0f), "18");
    EXPECT_EQ(Escrito(7.5), "7.5");
    EXPECT_EQ(Escrito(Currency::DeDiezmilesimas(5000)), "0.5");
}

TEST(Escrito, LosTextosCabenEnUnaLinea) {
    EXPECT_EQ(Escrito(std::string_view("Rey de Copas")), "\"Rey de Copas\"");
    EXPECT_EQ(Escrito(std::string_view("uno\r\nel \"dos\"")), "\"uno\\r\\nel \"\"dos\"\"\"");
}

} // namespace
