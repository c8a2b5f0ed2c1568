// A page of a report: where its items stand, what they are called, how they are painted and copied.

#include "table/printed_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/headless/recorded_canvas.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(PrintedPage, ATextStandsByItsLeftEdgeItsMiddleOrItsRightEdge) {
    PaginaImpresa pagina(720, 500);
    pagina.Texto(100, 20, "Peña", Tinta::Negro);
    pagina.Texto(100, 20, "Peña", Tinta::Negro, {}, Alineacion::Centro);
    pagina.Texto(100, 20, "Peña", Tinta::Negro, {}, Alineacion::Derecha);
    // Four characters of seven points.
    EXPECT_THAT(LineasDe(pagina),
                ElementsAre("100, 20, negro, normal, \"Peña\"", "86, 20, negro, normal, \"Peña\"",
                            "72, 20, negro, normal, \"Peña\""));
}

TEST(PrintedPage, TheLettersWidthFollowsTheirHeight) {
    EXPECT_EQ(AnchoLetra({.cuerpo = 10}), 6);
    EXPECT_EQ(AnchoLetra({.cuerpo = 12}), 7);
    EXPECT_EQ(AnchoLetra({.cuerpo = 15, .negrita = true}), 9);
    EXPECT_EQ(AnchoTexto("Bastos", {.cuerpo = 10}), 36);
}

TEST(PrintedPage, RulesAndBoxesAreNamedWithTheirLastPoint) {
    PaginaImpresa pagina(720, 500);
    pagina.Linea(0, 40, 719, 40, Tinta::GrisClaro);
    pagina.Caja(133, 50, 195, 64, Tinta::RojoOscuro);
    pagina.Relleno(1, 2, 3, 4, Tinta::Amarillo);
    pagina.Texto(5, 6, "\"A\"", Tinta::AzulOscuro, {.negrita = true});
    EXPECT_THAT(LineasDe(pagina), ElementsAre("0, 40, gris claro, normal, regla 719 40",
                                              "133, 50, rojo oscuro, normal, caja 195 64",
                                              "1, 2, amarillo, normal, caja 3 4",
                                              "5, 6, azul oscuro, negrita, \"\"\"A\"\"\""));
}

TEST(PrintedPage, ThePictureOfASuitIsPaintedAndHasNoLine) {
    PaginaImpresa pagina(720, 500);
    pagina.Texto(5, 6, "10", Tinta::Negro);
    pagina.Palo(19, 6, 2);
    pagina.Palo(26, 6, 5);
    EXPECT_THAT(LineasDe(pagina), ElementsAre("5, 6, negro, normal, \"10\""));
    ASSERT_THAT(pagina.Impresos(), SizeIs(2)); // a joker has no suit
    EXPECT_EQ(pagina.Impresos()[1].clase, ClaseImpreso::Palo);
    EXPECT_EQ(pagina.Impresos()[1].tinta, Tinta::Rojo);
    EXPECT_EQ(pagina.Impresos()[1].x2, 26);
    LienzoRegistrado lienzo;
    PintaPagina(pagina, lienzo);
    EXPECT_THAT(lienzo.Llamadas(), SizeIs(2));
}

TEST(PrintedPage, AnEmptyTextLeavesNothing) {
    PaginaImpresa pagina(720, 500);
    pagina.Texto(5, 6, "", Tinta::Negro);
    EXPECT_THAT(pagina.Impresos(), IsEmpty());
    EXPECT_EQ(TextoDe(pagina), "");
}

TEST(PrintedPage, IsPaintedItemByItemFromItsCorner) {
    PaginaImpresa pagina(720, 500);
    pagina.Linea(0, 40, 719, 40, Tinta::Negro);
    pagina.Caja(10, 10, 19, 14, Tinta::Negro);
    pagina.Texto(5, 6, "As", Tinta::Rojo);
    LienzoRegistrado lienzo, esperado;
    PintaPagina(pagina, lienzo, 100, 200);
    esperado.Linea(100, 240, 819, 240, ColorDe(Tinta::Negro), 1);
    esperado.Borde({110, 210, 10, 5}, ColorDe(Tinta::Negro), 1);
    esperado.Texto(105, 206, "As", {.alto = 12, .fija = true, .tope = 14}, ColorDe(Tinta::Rojo),
                   Alineacion::Izquierda);
    EXPECT_THAT(lienzo.Llamadas(), SizeIs(3));
    EXPECT_EQ(lienzo.Llamadas(), esperado.Llamadas());
}

TEST(PrintedPage, IsCopiedInItsLinesAndColumns) {
    PaginaImpresa pagina(720, 500);
    pagina.Texto(70, 20, "Ana", Tinta::Negro);
    pagina.Texto(7, 20, "Mano", Tinta::Negro);
    pagina.Linea(0, 30, 719, 30, Tinta::Negro);
    pagina.Texto(7, 40, "1 ", Tinta::Negro);
    pagina.Texto(7, 10, "INFORME", Tinta::Negro);
    EXPECT_EQ(TextoDe(pagina), " INFORME\n Mano     Ana\n 1\n");
}

} // namespace
