#include "games/common/trick_state.h"
#include "tools/sonda/field_access.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "session/state_blocks.h"

namespace {

using testing::ElementsAre;

struct CamposPorNombre : testing::Test {
    CamposPorNombre() { BorraEstado(); }

    static Ruta De(std::string_view texto) { return Lector(texto).RutaDeCampo(); }
    static void Pon(std::string_view campo, const Literal& valor) { PonCampo(De(campo), valor); }
    // The elements that are not empty, as the console would answer them.
    static std::vector<std::string> Di(std::string_view campo) {
        std::vector<std::string> lineas;
        VisitaCampo(De(campo), [&](const std::string& nombre, Hoja hoja) {
            lineas.push_back(nombre + " = " + Escrito(hoja));
        });
        return lineas;
    }
};

TEST_F(CamposPorNombre, SeEscribenYSeLeenDeTodosLosTipos) {
    Pon("NumBaza", 7.0);
    Pon("PartidaEnCurso", true);
    Pon("AzarTurno", 0.25);
    Pon("ValorCarta(12)", 0.5);
    Pon("ColorRotulo(3,1)", 65535.0);
    Pon("NombreJugador(2)", std::string("Ana"));
    Pon("Mano(4,1,10,2)", 12.0);
    EXPECT_EQ(estado.NumBaza, 7);
    EXPECT_TRUE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.AzarTurno, 0.25f);
    EXPECT_EQ(estado.ValorCarta(12), Currency::DeDiezmilesimas(5000));
    EXPECT_EQ(estado.ColorRotulo(3, 1), 65535);
    EXPECT_EQ(estado.NombreJugador(2), "Ana");
    EXPECT_EQ(estado.Mano(4, 1, 10, kValor), 12);
    EXPECT_THAT(Di("Mano(4,1,10,2)"), ElementsAre("Mano(4,1,10,2) = 12"));
}

TEST_F(CamposPorNombre, LlegaALosBloquesDeLosJuegos) {
    Pon("CartaJugada(1,5)", 3.0);
    EXPECT_EQ(bazas.CartaJugada(kOros, 5), 3);
}

TEST_F(CamposPorNombre, LlegaDentroDeLosRegistros) {
    Pon("Juegos(3).Texto1(2)", std::string("Trio"));
    Pon("Juegos(3).Marcas(2,1)", 1.0);
    EXPECT_EQ(estado.Juegos(3).Texto1(2), "Trio");
    EXPECT_THAT(Di("Juegos(3)"),
                ElementsAre("Juegos(3).Marcas(2,1) = 1", "Juegos(3).Texto1(2) = \"Trio\""));
    EXPECT_THAT(Di("Juegos"),
                ElementsAre("Juegos(3).Marcas(2,1) = 1", "Juegos(3).Texto1(2) = \"Trio\""));
    EXPECT_THAT(Di("Juegos(3).Texto1"), ElementsAre("Juegos(3).Texto1(2) = \"Trio\""));
}

TEST_F(CamposPorNombre, UnaTablaSeRecorreConElUltimoIndiceMasRapido) {
    Pon("NumCartas(2,1)", 5.0);
    Pon("NumCartas(1,4)", 4.0);
    Pon("NumCartas(0,0)", 9.0);
    EXPECT_THAT(Di("NumCartas"),
                ElementsAre("NumCartas(0,0) = 9", "NumCartas(1,4) = 4", "NumCartas(2,1) = 5"));
}

TEST_F(CamposPorNombre, SoloUnElementoEsUnico) {
    const auto nada = [](const std::string&, Hoja) {};
    EXPECT_TRUE(VisitaCampo(De("JuegoActivo"), nada));
    EXPECT_TRUE(VisitaCampo(De("Fichas(0,6)"), nada));
    EXPECT_TRUE(VisitaCampo(De("Juegos(1).Total"), nada));
    EXPECT_FALSE(VisitaCampo(De("Fichas"), nada));
    EXPECT_FALSE(VisitaCampo(De("Juegos(1)"), nada));
    EXPECT_THROW(Pon("Fichas", 1.0), ErrorConsola);
}

TEST_F(CamposPorNombre, FuerzaValorEsElOrdenDeLasCartas) {
    Pon("FuerzaValor(13)", 1.0);
    EXPECT_EQ(estado.OrdenCarta(13), 1);
    EXPECT_THAT(Di("FuerzaValor"), ElementsAre("FuerzaValor(13) = 1"));
}

TEST_F(CamposPorNombre, LoQueNoExisteOSeSaleEsUnError) {
    EXPECT_THROW(Di("Nadie"), ErrorConsola);
    EXPECT_THROW(Di("Mano(5,1,1,1)"), IndiceFuera);
    EXPECT_THROW(Di("Mano(-1,1,1,1)"), IndiceFuera);
    EXPECT_THROW(Di("Mano(1,1)"), ErrorConsola);
    EXPECT_THROW(Di("JuegoActivo(1)"), ErrorConsola);
    EXPECT_THROW(Di("JuegoActivo.Algo"), ErrorConsola);
    EXPECT_THROW(Di("Juegos.Total"), ErrorConsola);
    EXPECT_THROW(Di("Juegos(1).Nadie"), ErrorConsola);
    EXPECT_THROW(Pon("NumBaza", std::string("7")), ErrorConsola);
}

TEST_F(CamposPorNombre, ElEstadoEnteroVaEnElOrdenDeSuLista) {
    estado.Juegos(2000).Total = 9;
    estado.PartidaEnCurso = true;
    estado.OrientacionAsiento(4) = 4;
    estado.OrientacionAsiento(3) = 3;
    estado.PasoSentido = -1;
    bazas.CartaJugada(kOros, 5) = 2;
    const std::vector<std::string> puestos{"PasoSentido",           "OrientacionAsiento(3)",
                                           "OrientacionAsiento(4)", "PartidaEnCurso",
                                           "Juegos(2000).Total",    "CartaJugada(1,5)"};
    std::vector<std::string> nombres;
    VisitaEstado([&](const std::string& nombre, Hoja) { nombres.push_back(nombre); });

    std::erase_if(nombres, [&](const std::string& nombre) {
        return std::find(puestos.begin(), puestos.end(), nombre) == puestos.end();
    });
    EXPECT_EQ(nombres, puestos);
}

} // namespace
