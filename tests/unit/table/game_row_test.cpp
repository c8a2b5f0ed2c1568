#include "table/game_row.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "games/game_rows.h"

namespace {

using testing::HasSubstr;

class Registro : public testing::Test {
protected:
    FilaJuego fila{.id = 7, .nombre = "Siete", .driver = [] {}, .baraja = {.prepara = [] {}}};

    void TearDown() override { UsaJuegos(LosJuegos()); }

    // What is said of the row that lacks something; empty when it is taken.
    std::string Queja() {
        try {
            UsaJuegos({&fila});
            return "";
        } catch (const std::invalid_argument& fallo) {
            return fallo.what();
        }
    }
};

} // namespace

TEST_F(Registro, UnaFilaEnteraSeUsa) {
    EXPECT_EQ(Queja(), "");
    EXPECT_EQ(FilaDe(7), &fila);
    EXPECT_EQ(FilasDeJuegos().size(), 1U);
}

TEST_F(Registro, SinDriverNoEmpiezaSalvoQueLoDiga) {
    fila.driver = nullptr;
    EXPECT_THAT(Queja(), HasSubstr("el juego 7 (Siete) no tiene quien lo juegue"));
    fila.sin_terminar = true;
    EXPECT_EQ(Queja(), "");
    EXPECT_FALSE(SePuedeJugar(fila));
}

TEST_F(Registro, SinBarajaNoEmpieza) {
    fila.baraja.prepara = nullptr;
    EXPECT_THAT(Queja(), HasSubstr("no tiene baraja"));
}

TEST_F(Registro, SinNombreONumeroNoEmpieza) {
    fila.nombre = "";
    EXPECT_THAT(Queja(), HasSubstr("no tiene nombre"));
    fila.nombre = "Siete";
    for (const int id : {-1, 0, 100}) {
        fila.id = static_cast<Integer>(id);
        EXPECT_THAT(Queja(), HasSubstr("no tiene un número de 1 a 99"));
    }
}

TEST_F(Registro, DosNoTienenElMismoNumero) {
    const FilaJuego otra = fila;
    EXPECT_THROW(UsaJuegos({&fila, &otra}), std::invalid_argument);
}

TEST_F(Registro, UnaListaQueNoValeDejaLaDeAntes) {
    fila.baraja.prepara = nullptr;
    EXPECT_NE(Queja(), "");
    EXPECT_EQ(FilasDeJuegos(), LosJuegos());
}

TEST_F(Registro, LosNumerosQueNoSonJuegoNoTienenFila) {
    for (const int juego : {-1, 0, 2, 99, 100})
        EXPECT_EQ(FilaDe(static_cast<Integer>(juego)), nullptr) << juego;
}
