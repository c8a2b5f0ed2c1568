// The sheet of small images: no piece hides another, and the places that the table counts on.

#include "table/sheet_layout.h"

#include <gtest/gtest.h>

namespace {

using lamina::Recorte;

bool SeTocan(const Recorte& a, const Recorte& b) {
    return a.x < b.x + b.ancho && b.x < a.x + a.ancho && a.y < b.y + b.alto && b.y < a.y + a.alto;
}

TEST(SheetLayout, EveryPieceLiesOnTheSheet) {
    for (const lamina::Pieza& pieza : lamina::kPiezas) {
        SCOPED_TRACE(pieza.archivo);
        const Recorte& sitio = pieza.sitio;
        EXPECT_GE(sitio.x, 0);
        EXPECT_GE(sitio.y, 0);
        EXPECT_GT(sitio.ancho, 0);
        EXPECT_GT(sitio.alto, 0);
        EXPECT_LE(sitio.x + sitio.ancho, lamina::kAncho);
        EXPECT_LE(sitio.y + sitio.alto, lamina::kAlto);
    }
}

TEST(SheetLayout, NoPieceHidesAnotherAndNoDrawingStandsTwice) {
    for (std::size_t i = 0; i < lamina::kPiezas.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const lamina::Pieza &una = lamina::kPiezas.at(i), &otra = lamina::kPiezas.at(j);
            EXPECT_FALSE(SeTocan(una.sitio, otra.sitio)) << una.archivo << " over " << otra.archivo;
            EXPECT_NE(una.archivo, otra.archivo);
        }
    }
}

TEST(SheetLayout, TheMainButtonsStand51ApartInTheTopRow) {
    EXPECT_EQ(lamina::BotonPrincipal(1), (Recorte{0, 0, 50, 50}));
    EXPECT_EQ(lamina::BotonPrincipal(2), (Recorte{51, 0, 50, 50}));
    EXPECT_EQ(lamina::BotonPrincipal(8), (Recorte{357, 0, 50, 50}));
}

TEST(SheetLayout, TheGreenButtonIsPressed87FurtherRight) {
    EXPECT_EQ(lamina::kContinuarArriba, (Recorte{0, 135, 86, 36}));
    EXPECT_EQ(lamina::kContinuarPulsado, (Recorte{87, 135, 86, 36}));
}

TEST(SheetLayout, AnIndexOutOfBoundsTakesTheNearestPiece) {
    EXPECT_EQ(lamina::BotonPrincipal(0), lamina::BotonPrincipal(1));
    EXPECT_EQ(lamina::Ficha(7), lamina::Ficha(6));
    EXPECT_EQ(lamina::Digito(-1), lamina::Digito(0));
}

TEST(SheetLayout, ThePointOfEachPointerLiesInItsPicture) {
    for (const lamina::Puntero& puntero : lamina::kPunteros) {
        SCOPED_TRACE(puntero.nombre);
        EXPECT_GE(puntero.puntaX, 0);
        EXPECT_LT(puntero.puntaX, lamina::kLadoPuntero);
        EXPECT_GE(puntero.puntaY, 0);
        EXPECT_LT(puntero.puntaY, lamina::kLadoPuntero);
    }
}

} // namespace
