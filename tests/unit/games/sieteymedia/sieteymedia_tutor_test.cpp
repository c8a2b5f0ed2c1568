// What the tutor shows in Siete y media when its button is pressed.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/tutored_table.h"

using namespace prueba;

namespace {

using Lineas = std::vector<std::string>;

struct TutorSiete : MesaConTutor {
    void SetUp() override {
        TocaA4(kSieteYMedia, 0.5);
        estado.PosicionMazo = 20;
        SiguienteDelMazo({kBastos, 3});
    }
    static void Visible(const std::vector<Carta>& cartas) {
        PonSerieTapada(4, 1, cartas);
        estado.Mano(4, 1, 1, kCara) = kDescubierta;
    }
    // The button that was pressed: 1 "Carta", 2 "Servido".
    bool Destella(int boton) const {
        const std::string pulsado = "BotonSuperior(4, 2, " + std::to_string(boton) + ")";
        int veces = 0;
        for (const std::string& linea : TrazaDe("BotonSuperior"))
            veces += linea == pulsado ? 1 : 0;
        return veces == 2;
    }
};

} // namespace

TEST_F(TutorSiete, EnLasApuestasDiceLaSuma) {
    apuestas.FaseApuesta = kFaseApuestas;
    Visible({{kOros, 3}});
    Aconseja();
    EXPECT_EQ(p.anuncios, Lineas{"Jugador4: Apostar 8"});
    EXPECT_EQ(estado.NivelJugador(4), 10);
}

TEST_F(TutorSiete, ElCuatroSeCambiaSalvoQueSeConserve) {
    apuestas.FaseApuesta = kFaseApuestas;
    series.PuedeCambiarCuatro = true;
    Visible({{kOros, 4}});
    Aconseja();
    EXPECT_EQ(p.anuncios, Lineas{"Jugador4: Cambiar el cuatro"});
    p.anuncios.clear();
    Azar(0.125);
    Aconseja();
    EXPECT_TRUE(series.ConservaCuatro);
    EXPECT_EQ(p.anuncios, Lineas{"Jugador4: Apostar 8"});
}

TEST_F(TutorSiete, ConCincoYUnTresDebajoDestellaServido) {
    Visible({{kOros, 5}});
    Aconseja();
    EXPECT_TRUE(Destella(2));
    EXPECT_FALSE(Destella(1));
    EXPECT_TRUE(estado.EsperandoJugada);
}

TEST_F(TutorSiete, LaTapadaSeVeDescubiertaMientrasDestella) {
    Visible({{kOros, 5}});
    SiguienteDelMazo({kBastos, 1});
    EmpiezaTraza();
    Aconseja();
    EXPECT_TRUE(Destella(1));
    // Uncovered, covered again, and the drawing that ends the advice.
    EXPECT_EQ(TrazaDe("RedibujarAsiento").size(), 3U);
    EXPECT_EQ(estado.Mano(4, 1, 1, kTapada), kTapadaSi);
}

TEST_F(TutorSiete, UnaTapadaBajaSigueTapada) {
    Visible({{kOros, 2}});
    Aconseja();
    EXPECT_TRUE(Destella(1));
    EXPECT_EQ(TrazaDe("RedibujarAsiento").size(), 1U);
}

TEST_F(TutorSiete, DosMediasSeAbren) {
    PonSerie(4, 1, {{kOros, kSota}, {kCopas, kRey}});
    series.PuedeAbrir = true;
    Aconseja();
    EXPECT_EQ(p.anuncios, Lineas{"Jugador4: Abrir la jugada"});
    EXPECT_FALSE(Destella(1));
    EXPECT_EQ(estado.SeriesJugador(4), 1);
}

TEST_F(TutorSiete, LaBancaTieneUnCuatroQueCambiar) {
    estado.JugadorBanca = 4;
    series.PuedeCambiarCuatro = true;
    PonSerie(4, 1, {{kOros, 4}});
    Aconseja();
    EXPECT_EQ(p.anuncios, Lineas{"Jugador4: Cambiar el cuatro"});
    EXPECT_FALSE(Destella(1));
    EXPECT_FALSE(Destella(2));
}

// In play only the bank changes its Four: a seat has had its time for that.
TEST_F(TutorSiete, EnJuegoUnAsientoYaNoCambiaElCuatro) {
    series.PuedeCambiarCuatro = true;
    Visible({{kOros, 4}});
    Aconseja();
    EXPECT_TRUE(Destella(1));
    EXPECT_EQ(p.anuncios, Lineas{"El tutor aconseja pedir carta"});
}
