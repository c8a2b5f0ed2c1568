// What the tutor shows in Black Jack when its button is pressed.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/tutored_table.h"

using namespace prueba;

namespace {

struct TutorBlackJack : MesaConTutor {
    void SetUp() override {
        TocaA4(kBlackJack, 0.9);
        PonSerie(2, 1, {{kOros, 6}});
    }
    void Mano(Integer una, Integer otra) { PonSerie(4, 1, {{kOros, una}, {kCopas, otra}}); }
};

using Lineas = std::vector<std::string>;

// A flash as the table draws it: pressed, up, and once more.
Lineas Destello(const std::string& operacion, const std::string& despues) {
    const std::string pulsado = operacion + "(4, 2, " + despues + ")";
    const std::string arriba = operacion + "(4, 1, " + despues + ")";
    return {pulsado, arriba, pulsado, arriba};
}

// The first four calls: the drawing of the seat at the end calls again.
Lineas Primeras(Lineas lineas) {
    lineas.resize(std::min<std::size_t>(lineas.size(), 4));
    return lineas;
}

} // namespace

TEST_F(TutorBlackJack, EnLasApuestasDiceLaSumaEnVerde) {
    apuestas.FaseApuesta = kFaseApuestas;
    Aconseja();
    EXPECT_EQ(p.anuncios, Lineas{"Jugador4: Apostar 10"});
    EXPECT_EQ(TrazaDe("Sonido"), (Lineas{"Sonido(1, 12)", "Sonido(1, 12)"}));
    EXPECT_EQ(estado.RotuloSerie(4, 1), "");
    EXPECT_EQ(estado.NivelJugador(4), 10);
    EXPECT_FALSE(estado.TutorPulsado);
}

TEST_F(TutorBlackJack, DestellaElBotonDeLaJugada) {
    Mano(10, 8);
    Aconseja();
    EXPECT_EQ(Primeras(TrazaDe("BotonSuperior")), Destello("BotonSuperior", "2"));
    EXPECT_EQ(TrazaDe("Pausa"), (Lineas{"Pausa(60)", "Pausa(180)", "Pausa(420)", "Pausa(180)",
                                        "Pausa(420)", "Pausa(180)"}));
    EXPECT_EQ(TrazaDe("Sonido"), (Lineas{"Sonido(1, 12)", "Sonido(1, 12)"}));
    Mano(6, 2);
    Aconseja();
    EXPECT_EQ(Primeras(TrazaDe("BotonSuperior")), Destello("BotonSuperior", "1"));
}

// At level 10 the seat would stand on 16 by itself.
TEST_F(TutorBlackJack, AconsejaComoNivelCien) {
    PonSerie(2, 1, {{kOros, 10}});
    Mano(10, 6);
    Aconseja();
    EXPECT_EQ(Primeras(TrazaDe("BotonSuperior")), Destello("BotonSuperior", "1"));
    EXPECT_EQ(estado.NivelJugador(4), 10);
}

TEST_F(TutorBlackJack, ElSeguroVaAntesQueTodo) {
    PonSerie(2, 1, {{kOros, kAs}});
    Mano(8, 8);
    series.PuedeAsegurar = series.PuedeAbrir = true;
    Aconseja();
    EXPECT_EQ(Primeras(TrazaDe("BotonDobSeg")), Destello("BotonDobSeg", "\"S e g u r o\""));
    EXPECT_EQ(p.anuncios, Lineas{"El tutor aconseja asegurarse"});
}

TEST_F(TutorBlackJack, AbrirElParVaAntesQueDoblar) {
    Mano(8, 8);
    series.PuedeAbrir = series.PuedeDoblar = true;
    Aconseja();
    EXPECT_EQ(p.anuncios, Lineas{"Jugador4: Abrir el par"});
    // The button that is on offer stands there, and does not flash.
    EXPECT_EQ(TrazaDe("BotonDobSeg"), Lineas{"BotonDobSeg(4, 1, \"D o b l a r\")"});
}

TEST_F(TutorBlackJack, DoblarVaAntesQuePedir) {
    Mano(6, 5);
    series.PuedeDoblar = true;
    Aconseja();
    EXPECT_EQ(Primeras(TrazaDe("BotonDobSeg")), Destello("BotonDobSeg", "\"D o b l a r\""));
}

TEST_F(TutorBlackJack, NoOrdenaNadaYSigueElTurno) {
    Mano(10, 8);
    Aconseja();
    EXPECT_TRUE(estado.EsperandoJugada);
    EXPECT_FALSE(series.OrdenServido);
    EXPECT_FALSE(series.OrdenPedir);
    EXPECT_EQ(estado.NumCartas(4, 1), 2);
}

TEST_F(TutorBlackJack, VuelveALaSerieEnJuego) {
    Mano(10, 8);
    PonSerie(4, 2, {{kBastos, 6}, {kBastos, 2}});
    estado.SerieActual = 2;
    Aconseja();
    EXPECT_EQ(estado.SerieActual, 1);
    EXPECT_EQ(Primeras(TrazaDe("BotonSuperior")).back(), "BotonSuperior(4, 1, 2)");
    EXPECT_TRUE(series.ConsejoServido);
}
