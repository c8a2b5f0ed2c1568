#include "tools/sonda/line_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Lector, LaRutaDeUnCampoEnUnRegistroTieneDosTramos) {
    Lector lector("Jugadas( 4 , 8 ).Cartas(1) = 13");
    const Ruta ruta = lector.RutaDeCampo();
    ASSERT_EQ(ruta.size(), 2u);
    EXPECT_EQ(ruta[0].nombre, "Jugadas");
    EXPECT_THAT(ruta[0].indices, ElementsAre(4, 8));
    EXPECT_EQ(ruta[1].nombre, "Cartas");
    EXPECT_THAT(ruta[1].indices, ElementsAre(1));
    lector.Exige('=');
    EXPECT_EQ(std::get<double>(lector.Valor()), 13);
    EXPECT_TRUE(lector.Fin());
}

TEST(Lector, UnEscalarNoLlevaIndices) {
    Lector lector("JuegoActivo");
    EXPECT_THAT(lector.RutaDeCampo()[0].indices, IsEmpty());
}

TEST(Lector, LosValoresSonNumerosLogicosYTextos) {
    EXPECT_EQ(std::get<double>(Lector(" -7.5").Valor()), -7.5);
    EXPECT_EQ(std::get<bool>(Lector("true").Valor()), true);
    EXPECT_EQ(std::get<bool>(Lector("false)").Valor()), false);
    EXPECT_EQ(std::get<std::string>(Lector("\"As de  Oros\"").Valor()), "As de  Oros");
}

TEST(Lector, EnUnTextoLasComillasVanDobladasYLosSaltosEscritos) {
    EXPECT_EQ(std::get<std::string>(Lector(R"("el ""Tute""")").Valor()), "el \"Tute\"");
    EXPECT_EQ(std::get<std::string>(Lector(R"("una\r\ndos")").Valor()), "una\r\ndos");
    EXPECT_EQ(std::get<std::string>(Lector(R"("a\b")").Valor()), "a\\b");
    EXPECT_EQ(std::get<std::string>(Lector(R"("")").Valor()), "");
}

TEST(Lector, LosArgumentosPuedenFaltar) {
    EXPECT_THAT(Lector("").Argumentos(), IsEmpty());
    EXPECT_THAT(Lector("()").Argumentos(), IsEmpty());
    const auto tres = Lector(R"(("Título, con coma", 2, true))").Argumentos();
    ASSERT_EQ(tres.size(), 3u);
    EXPECT_EQ(std::get<std::string>(tres[0]), "Título, con coma");
    EXPECT_EQ(std::get<double>(tres[1]), 2);
    EXPECT_EQ(std::get<bool>(tres[2]), true);
}

TEST(Lector, ElRestoGuardaSusBlancos) {
    Lector lector("eco   dos  blancos ");
    EXPECT_EQ(lector.Palabra(), "eco");
    EXPECT_EQ(lector.Resto(), "  dos  blancos ");
    EXPECT_TRUE(lector.Fin());
}

TEST(Lector, LoQueFaltaOSobraEsUnError) {
    EXPECT_THROW(Lector("9x").RutaDeCampo(), ErrorConsola);
    EXPECT_THROW(Lector("Mano(1").RutaDeCampo(), ErrorConsola);
    EXPECT_THROW(Lector("Mano()").RutaDeCampo(), ErrorConsola);
    EXPECT_THROW(Lector("Juegos(1).").RutaDeCampo(), ErrorConsola);
    EXPECT_THROW(Lector("12x").Valor(), ErrorConsola);
    EXPECT_THROW(Lector("nan").Valor(), ErrorConsola);
    EXPECT_THROW(Lector("1e999").Valor(), ErrorConsola);
    EXPECT_THROW(Lector("truco").Valor(), ErrorConsola);
    EXPECT_THROW(Lector("\"abierto").Valor(), ErrorConsola);
    EXPECT_THROW(Lector("3.5").Entero(), ErrorConsola);
    EXPECT_THROW(Lector("(1,)").Argumentos(), ErrorConsola);
    EXPECT_THROW(Lector(" algo").ExigeFin(), ErrorConsola);
}

} // namespace
