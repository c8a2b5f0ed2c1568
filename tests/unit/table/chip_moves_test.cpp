#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "table/chip_moves.h"

#include "table/bet_board.h"
#include "table/table_view.h"
#include "table/trace.h"
#include "tests/support/bet_table.h"

using namespace prueba;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

struct FichasQueSeMueven : MesaDeApuestas {
    // Nothing of the money has changed.
    void NadaPuesto(Integer asiento) {
        EXPECT_EQ(RestoDe(asiento), 100);
        EXPECT_EQ(RestoDe(kBote), 0);
        EXPECT_EQ(apuestas.ApuestaEnCurso, 0);
        EXPECT_THAT(Puestas(asiento), IsEmpty());
    }
    CajaMensaje UnicoMensaje() {
        EXPECT_EQ(p.mensajes.size(), 1U);
        return p.mensajes.empty() ? CajaMensaje{} : p.mensajes.front();
    }
};

} // namespace

TEST_F(FichasQueSeMueven, EnPokerLaFichaVaEnseguidaAlBote) {
    Apuestan(kPoker);
    EXPECT_TRUE(PonFicha(4, 4));
    EXPECT_EQ(EnLaRonda(4), 10);
    EXPECT_EQ(apuestas.ApuestaEnCurso, 10);
    EXPECT_EQ(RestoDe(4), 90);
    EXPECT_EQ(apuestas.Fichas(kBote, 4), 1);
    EXPECT_THAT(Puestas(4), ElementsAre(4));
}

TEST_F(FichasQueSeMueven, ConBancaLaFichaSeQuedaAnteElAsiento) {
    Apuestan(kSieteYMedia);
    EXPECT_TRUE(PonFicha(4, 4));
    EXPECT_EQ(EnLaRonda(4), 10);
    EXPECT_EQ(RestoDe(4), 90);
    EXPECT_EQ(RestoDe(kBote), 0);
    EXPECT_THAT(Puestas(4), ElementsAre(4));
}

TEST_F(FichasQueSeMueven, ElAsientoSePintaAntesDelVueloYElBoteTrasEl) {
    Apuestan(kPoker);
    EmpiezaTraza();
    PonFicha(4, 4);
    EXPECT_THAT(Pasos(), ElementsAre("PonFicha(4, 4)", "RedibujarAsiento(4)", "MueveFicha(4, 4, 0)",
                                     "Sonido(1, 22)", "RedibujaBote()", "RedibujaApuesta(4)"));
}

TEST_F(FichasQueSeMueven, ConBancaNoHayBoteQuePintar) {
    Apuestan(kBlackJack);
    EmpiezaTraza();
    PonFicha(1, 3);
    EXPECT_THAT(Pasos(), ElementsAre("PonFicha(1, 3)", "RedibujarAsiento(1)", "MueveFicha(3, 1, 1)",
                                     "Sonido(1, 22)", "RedibujaApuesta(1)"));
}

TEST_F(FichasQueSeMueven, MientrasVuelaNoEstaTodaviaAnteElAsiento) {
    Apuestan(kSieteYMedia);
    p.UsaLienzosRegistrados();
    int por_llegar = 0;
    EscuchaTraza([&](const std::string& linea) {
        if (linea.starts_with("MueveFicha"))
            por_llegar = vista.fichas_de_mas(4, 5);
    });
    PonFicha(4, 5);
    EXPECT_EQ(por_llegar, -1);
    EXPECT_EQ(vista.fichas_de_mas(4, 5), 0);
}

TEST_F(FichasQueSeMueven, MasDeLaMaximaSeNiegaEnCuatroRenglones) {
    Apuestan(kPoker);
    estado.ApuestaMaxima = 25;
    EXPECT_FALSE(PonFicha(4, 6));
    NadaPuesto(4);
    EXPECT_EQ(UnicoMensaje().titulo, "Límite sobrepasado");
    EXPECT_EQ(UnicoMensaje().texto,
              "No puede sobrepasar el límite establecido como  máxima apuesta permitida en cada "
              "mano,  que tiene seleccionado actualmente un valor de  25. Si desea modificar este "
              "límite, puede hacerlo en la pantalla de Normas de Juego.");
    EXPECT_EQ(UnicoMensaje().lineas, 4);
    EXPECT_EQ(UnicoMensaje().modo, 1);
}

TEST_F(FichasQueSeMueven, LaMaximaCuentaLoPuestoEnTodaLaMano) {
    Apuestan(kPoker);
    estado.ApuestaMaxima = 25;
    apuestas.FaseApuesta = kFaseSegundaRonda;
    apuestas.Apuesta(4, 1, kFaseSalida) = 5;
    apuestas.Apuesta(4, 1, kFasePrimeraRonda) = 20;
    EXPECT_FALSE(PonFicha(4, 1));
    EXPECT_EQ(UnicoMensaje().lineas, 4);
    NadaPuesto(4);
}

TEST_F(FichasQueSeMueven, ConTodosLosRivalesSinRestoSoloSePuedeIgualar) {
    Apuestan(kPoker);
    for (Integer rival = 1; rival <= 3; ++rival)
        AsignarResto(rival, 0);
    apuestas.Apuesta(1, 1, kFasePrimeraRonda) = 5;
    apuestas.MaximaApuesta = 5;
    EXPECT_FALSE(PonFicha(4, 4));
    NadaPuesto(4);
    EXPECT_EQ(UnicoMensaje().titulo, "No puede subir la apuesta");
    EXPECT_EQ(UnicoMensaje().texto,
              "Todos los demás jugadores han ido con su resto, por lo tanto,  no puede subir la "
              "apuesta,  sólo  puede igualar la máxima apuesta realizada.");
    EXPECT_EQ(UnicoMensaje().lineas, 3);
    EXPECT_TRUE(PonFicha(4, 3));
}

TEST_F(FichasQueSeMueven, NoSePasaDelRestoDelRivalMasRico) {
    Apuestan(kPoker);
    AsignarResto(1, 10);
    AsignarResto(2, 30);
    AsignarResto(3, 20);
    EXPECT_FALSE(PonFicha(4, 6));
    NadaPuesto(4);
    EXPECT_EQ(UnicoMensaje().titulo, "Límite sobrepasado");
    EXPECT_EQ(UnicoMensaje().texto,
              "Su apuesta acumulada no puede ser superior al resto de Jugador2, que es el mayor "
              "resto (30) de entre los otros jugadores que están en juego.");
    EXPECT_EQ(UnicoMensaje().lineas, 3);
}

TEST_F(FichasQueSeMueven, EnSieteYMediaNoSePasaDelRestoDeLaBanca) {
    Apuestan(kSieteYMedia);
    AsignarResto(2, 1250);
    AsignarResto(4, 100);
    apuestas.Apuesta(4, 1, kFaseApuestas) = 1245;
    estado.ApuestaMaxima = 2000;
    EXPECT_FALSE(PonFicha(4, 4));
    EXPECT_EQ(RestoDe(4), 100);
    EXPECT_EQ(UnicoMensaje().titulo, "Límite sobrepasado");
    EXPECT_EQ(UnicoMensaje().texto,
              "Su apuesta en esta mano no puede ser superior al resto del jugador banca (1,250).");
    EXPECT_EQ(UnicoMensaje().lineas, 2);
}

TEST_F(FichasQueSeMueven, EnBlackJackElTechoEsDoceVecesLaMaxima) {
    Apuestan(kBlackJack);
    estado.ApuestaMaxima = 5;
    apuestas.FaseApuesta = kFaseDoblar;
    apuestas.Apuesta(4, 1, kFaseApuestas) = 55;
    EXPECT_FALSE(PonFicha(4, 4));
    EXPECT_THAT(UnicoMensaje().texto, HasSubstr("banca (60)."));
    EXPECT_TRUE(PonFicha(4, 3)); // 60
}

TEST_F(FichasQueSeMueven, LoQueNoSeTieneSeNiegaEnSilencio) {
    Apuestan(kPoker);
    AsignarResto(4, 4);
    EmpiezaTraza();
    EXPECT_FALSE(PonFicha(4, 3));
    EXPECT_THAT(Pasos(), ElementsAre("PonFicha(4, 3)"));
    EXPECT_THAT(p.mensajes, IsEmpty());
    EXPECT_EQ(RestoDe(4), 4);
}

TEST_F(FichasQueSeMueven, UnaCantidadSePoneDeMayorAMenorConSusPausas) {
    Apuestan(kPoker);
    EmpiezaTraza();
    ColocaApuesta(4, 37);
    EXPECT_THAT(TrazaDe("PonFicha"), ElementsAre("PonFicha(4, 5)", "PonFicha(4, 4)",
                                                 "PonFicha(4, 3)", "PonFicha(4, 2)"));
    EXPECT_EQ(TrazaDe("Pausa(140").size(), 0U);
    EXPECT_EQ(std::ranges::count(traza, "Pausa(140)"), 4);
    EXPECT_EQ(traza.back(), "Pausa(90)");
    EXPECT_EQ(EnLaRonda(4), 37);
    EXPECT_EQ(RestoDe(kBote), 37);
}

TEST_F(FichasQueSeMueven, ColocarCeroNoPoneNada) {
    Apuestan(kPoker);
    EmpiezaTraza();
    ColocaApuesta(4, 0);
    EXPECT_THAT(TrazaDe("PonFicha"), IsEmpty());
    NadaPuesto(4);
}

TEST_F(FichasQueSeMueven, UnaFichaNegadaFaltaSinMas) {
    Apuestan(kPoker);
    estado.ApuestaMaxima = 12;
    ColocaApuesta(4, 17); // 10, 5, 2
    EXPECT_THAT(Puestas(4), ElementsAre(4, 2));
    EXPECT_EQ(EnLaRonda(4), 12);
    EXPECT_EQ(p.mensajes.size(), 1U);
}

TEST_F(FichasQueSeMueven, AnularDeshaceDeLaUltimaALaPrimera) {
    Apuestan(kPoker);
    PonFicha(4, 5);
    PonFicha(4, 3);
    EmpiezaTraza();
    AnulaApuestas(4);
    EXPECT_THAT(Pasos(), ElementsAre("AnulaApuestas(4)", "RedibujaBote()", "RedibujaApuesta(4)",
                                     "MueveFicha(3, 0, 4)", "Sonido(1, 22)", "RedibujaBote()",
                                     "RedibujaApuesta(4)", "MueveFicha(5, 0, 4)", "Sonido(1, 22)",
                                     "RedibujarAsiento(4)", "ActualizaApostadora()", "Pausa(90)"));
    NadaPuesto(4);
    EXPECT_EQ(EnLaRonda(4), 0);
}

TEST_F(FichasQueSeMueven, AnularConBancaDevuelveLoQueEstabaAnteElAsiento) {
    Apuestan(kSieteYMedia);
    ColocaApuesta(4, 15);
    EmpiezaTraza();
    AnulaApuestas(4);
    EXPECT_THAT(TrazaDe("RedibujaBote"), IsEmpty());
    EXPECT_THAT(TrazaDe("MueveFicha"), ElementsAre("MueveFicha(3, 4, 4)", "MueveFicha(4, 4, 4)"));
    NadaPuesto(4);
}

TEST_F(FichasQueSeMueven, ElBoteSePagaPorDenominacionesYAsientos) {
    Apuestan(kPoker);
    apuestas.Fichas(kBote, 1) = 1;
    apuestas.Fichas(kBote, 4) = 3;
    apuestas.PremioJugador(1) = 15;
    apuestas.PremioJugador(3) = 16;
    EmpiezaTraza();
    PagaBote();
    EXPECT_THAT(TrazaDe("MueveFicha"), ElementsAre("MueveFicha(1, 0, 1)", "MueveFicha(1, 0, 3)",
                                                   "MueveFicha(4, 0, 1)", "MueveFicha(4, 0, 3)"));
    EXPECT_EQ(TrazaDe("RedibujaBote").size(), 2U); // once a denomination
    EXPECT_EQ(RestoDe(1), 115);
    EXPECT_EQ(RestoDe(3), 116);
    EXPECT_EQ(RestoDe(4), 100);
    EXPECT_EQ(RestoDe(kBote), 0);
}

TEST_F(FichasQueSeMueven, LaBancaPagaFichaAFicha) {
    Apuestan(kBlackJack);
    EmpiezaTraza();
    PagaDeBanca(4, 15);
    EXPECT_THAT(Pasos(),
                ElementsAre("PagaDeBanca(4, 15)", "RedibujarAsiento(4)", "MueveFicha(4, 2, 4)",
                            "Sonido(1, 22)", "RedibujarAsiento(4)", "RedibujarAsiento(2)",
                            "Pausa(70)", "MueveFicha(3, 2, 4)", "Sonido(1, 22)",
                            "RedibujarAsiento(4)", "RedibujarAsiento(2)", "Pausa(70)"));
    EXPECT_EQ(RestoDe(4), 115);
    EXPECT_EQ(RestoDe(2), 85);
}

TEST_F(FichasQueSeMueven, LaBancaNoPagaMasDeLoQueTiene) {
    Apuestan(kSieteYMedia);
    AsignarResto(2, 8);
    PagaDeBanca(4, 20);
    EXPECT_EQ(RestoDe(4), 108);
    EXPECT_EQ(RestoDe(2), 0);
}

TEST_F(FichasQueSeMueven, AlPagarUnaSegundaSerieLaBancaNoPierdeSusCartasDeVista) {
    Apuestan(kBlackJack);
    estado.SeriesJugador(4) = 2;
    estado.SerieActual = 2;
    EmpiezaTraza();
    PagaDeBanca(4, 5);
    EXPECT_THAT(TrazaDe("RedibujarAsiento"),
                ElementsAre("RedibujarAsiento(4)", "RedibujarAsiento(4)"));
}

TEST_F(FichasQueSeMueven, LaApuestaPerdidaVaALaBancaDesdeLaUltimaFicha) {
    Apuestan(kSieteYMedia);
    ColocaApuesta(4, 15);
    EmpiezaTraza();
    DevuelveApuesta(4, 2, 1);
    EXPECT_THAT(TrazaDe("MueveFicha"), ElementsAre("MueveFicha(3, 4, 2)", "MueveFicha(4, 4, 2)"));
    EXPECT_EQ(TrazaDe("RedibujarAsiento").size(), 2U);
    EXPECT_EQ(RestoDe(2), 115);
    EXPECT_EQ(RestoDe(4), 85);
    EXPECT_EQ(EnLaRonda(4), 0);
    EXPECT_THAT(Puestas(4), IsEmpty());
}

TEST_F(FichasQueSeMueven, ElModoDosDevuelveElSeguroYElTresLoDemas) {
    Apuestan(kBlackJack);
    ColocaApuesta(4, 20);
    apuestas.FaseApuesta = kFaseSeguro;
    ColocaApuesta(4, 10);
    DevuelveApuesta(4, 4, 2);
    EXPECT_EQ(ApuestaTotal(4, 1), 20);
    EXPECT_THAT(Puestas(4), ElementsAre(5));
    ColocaApuesta(4, 10);
    DevuelveApuesta(4, 2, 3);
    EXPECT_EQ(ApuestaTotal(4, 1), 10);
    EXPECT_THAT(Puestas(4), ElementsAre(4));
    EXPECT_EQ(RestoDe(2), 120);
}

TEST_F(FichasQueSeMueven, MientrasSeDevuelveLasQueQuedanSiguenALaVista) {
    Apuestan(kBlackJack);
    ColocaApuesta(4, 15);
    std::vector<int> quedan_de_diez;
    EscuchaTraza([&](const std::string& linea) {
        if (linea.starts_with("MueveFicha"))
            quedan_de_diez.push_back(vista.fichas_de_mas(4, 4));
    });
    DevuelveApuesta(4, 4, 1);
    EXPECT_THAT(quedan_de_diez, ElementsAre(1, 0)); // the 5 goes first
    EXPECT_EQ(vista.fichas_de_mas(4, 4), 0);
}

TEST_F(FichasQueSeMueven, OtroModoDeDevolverNoExiste) {
    Apuestan(kBlackJack);
    EXPECT_THROW(DevuelveApuesta(4, 4, 0), IndiceFuera);
    EXPECT_THROW(DevuelveApuesta(4, 4, 4), IndiceFuera);
}
