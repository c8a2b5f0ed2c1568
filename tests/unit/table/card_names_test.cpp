#include "table/card_names.h"

#include <gtest/gtest.h>

#include "tests/support/live_table.h"

using namespace prueba;

struct NombresDeCartas : MesaViva {};

TEST_F(NombresDeCartas, LaBarajaEspanola) {
    Juega(kBrisca);
    EXPECT_EQ(NombreDeCarta({kEspadas, kSota}), "Sota de Espadas");
    EXPECT_EQ(NombreDeCarta({kOros, kAs}), "As de Oros");
    EXPECT_STREQ(NombreDePalo(kBastos), "Bastos");
}

TEST_F(NombresDeCartas, LaBarajaFrancesa) {
    Juega(kPoker);
    EXPECT_EQ(NombreDeCarta({kOros, 10}), "Diez de Diamantes");
    EXPECT_EQ(NombreDeCarta({kCopas, 12}), "Dama de Corazones");
    EXPECT_EQ(NombreDeCarta({kEspadas, kAs}), "As de Picas");
    EXPECT_EQ(NombreDeCarta({kBastos, 13}), "Rey de Tréboles");
    EXPECT_EQ(NombreDeCarta({kComodin, 92}), "Comodín");
}

TEST_F(NombresDeCartas, LoQueNoEsPaloNoTieneNombre) {
    EXPECT_STREQ(NombreDePalo(kSinCarta), "");
    EXPECT_STREQ(NombreDePalo(kComodin), "");
}
