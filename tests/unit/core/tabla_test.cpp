#include "core/tabla.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <string>
#include <vector>

namespace {

TEST(TablaTest, EmpiezaVaciaConElCeroDeSobra) {
    Tabla<Integer, 4> tabla;
    for (int asiento = 0; asiento <= 4; ++asiento)
        EXPECT_EQ(tabla(asiento), 0);
}

TEST(TablaTest, CadaIndiceTieneSuSitio) {
    Tabla<int, 2, 3> tabla;
    int n = 0;
    for (int i = 0; i <= 2; ++i) {
        for (int j = 0; j <= 3; ++j)
            tabla(i, j) = ++n;
    }
    std::vector<int> seguidos(12);
    std::iota(seguidos.begin(), seguidos.end(), 1);
    EXPECT_TRUE(std::equal(tabla.begin(), tabla.end(), seguidos.begin(), seguidos.end()));
    EXPECT_EQ(tabla(1, 2), 7);
}

TEST(TablaTest, UnIndiceDeCualquierTipoEntero) {
    Tabla<std::string, 4> nombres;
    nombres(std::size_t{2}) = "Ana";
    EXPECT_EQ(nombres(Integer{2}), "Ana");
    EXPECT_EQ(nombres(2L), "Ana");
}

TEST(TablaTest, FueraDeSusTopesEsUnErrorQueDiceCual) {
    Tabla<Integer, 4, 54> mano;
    EXPECT_NO_THROW(mano(4, 54));
    EXPECT_THROW(mano(5, 1), IndiceFuera);
    EXPECT_THROW(mano(1, 55), IndiceFuera);
    EXPECT_THROW(mano(-1, 1), IndiceFuera);
    EXPECT_THROW(mano(1, std::size_t(-1)), IndiceFuera);
    try {
        mano(1, 55);
        FAIL() << "no hubo error";
    } catch (const IndiceFuera& e) {
        EXPECT_STREQ(e.what(), "índice 55 fuera de 0..54 en la dimensión 2");
    }
}

TEST(TablaTest, TambienAlLeerUnaConstante) {
    const Tabla<Integer, 4> tabla;
    EXPECT_EQ(tabla(4), 0);
    EXPECT_THROW(tabla(5), IndiceFuera);
}

TEST(TablaTest, SeCopiaSeComparaYSeBorraEntera) {
    Tabla<std::string, 3> una;
    una(3) = "Eva";
    Tabla<std::string, 3> otra = una;
    EXPECT_TRUE(una == otra);
    otra(0) = "x";
    EXPECT_FALSE(una == otra);
    otra.Borra();
    EXPECT_TRUE(otra == (Tabla<std::string, 3>{}));
}

} // namespace
