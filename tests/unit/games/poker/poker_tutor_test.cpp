// What the tutor of Póker says and shows.

#include "games/poker/poker_tutor.h"
#include "table/button_column.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "games/poker/poker_state.h"
#include "platform/canvas.h"
#include "table/trace.h"
#include "tests/support/live_table.h"
#include "tests/support/poker_seats.h"

using namespace prueba;

namespace {

constexpr Integer kPrimera = 3, kDescartes = 4, kSegunda = 5;

// Seat 4, by hand, on turn; the others wait with hands of nothing. 100 points a hand, 50 in the first round.
class TutorDePoker : public MesaViva {
protected:
    TutorDePoker() {
        Juega(kPoker);
        ManoEmpezada(4);
        HabilitaBoton(kBotonTutor, true);
        estado.SonidoActivo = true;
        estado.LeyApertura = 14;
        estado.ApuestaMaxima = 100;
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            AsignarResto(asiento, 200);
            estado.CaracterJugador(asiento) = kMedio;
            PonMano(asiento, Cartas("Ao Qc Je 9b 7o"));
        }
        estado.NivelJugador(4) = 20;
        estado.AzarTurno = 0;
    }

    void Tiene(const std::string& mano) {
        PonMano(4, Cartas(mano));
        for (int lugar = 1; lugar <= 5; ++lugar)
            estado.Mano(4, 1, lugar, kAltura) = kEnLinea;
    }
    static void Ronda(Integer fase, Integer puesto, Integer maxima) {
        apuestas.FaseApuesta = fase;
        apuestas.Apuesta(4, 1, fase) = puesto;
        apuestas.MaximaApuesta = maxima;
    }
    // The words for a bet in the first round.
    static std::string Palabras(Integer propuesta, Integer puesto, Integer maxima) {
        Ronda(kPrimera, puesto, maxima);
        apuestas.ApuestaPropuesta = propuesta;
        return TextoConsejo();
    }
    // Presses the tutor's button, and answers the advice as it is told.
    std::string Consejo() {
        p.anuncios.clear();
        p.sonidos.clear();
        EmpiezaTraza();
        PulsaBoton(kBotonTutor);
        return p.anuncios.empty() ? "" : p.anuncios.back();
    }
    void EligeAMano(int lugar) {
        estado.Mano(4, 1, lugar, kAltura) = kLevantada;
        estado.JugadaHecha = true;
    }
    static std::string Alturas() {
        std::string alturas;
        for (int lugar = 1; lugar <= 5; ++lugar)
            alturas += estado.Mano(4, 1, lugar, kAltura) == kLevantada ? "^" : "_";
        return alturas;
    }
    // What the flash did, call by call.
    std::vector<std::string> Destello() {
        std::vector<std::string> pasos;
        for (const std::string& linea : traza) {
            if (!linea.starts_with("Pausa(60)") && !linea.starts_with("CambiarCursor"))
                pasos.push_back(linea);
        }
        return pasos;
    }
};

} // namespace

// --- The words

TEST_F(TutorDePoker, CadaPropuestaTieneSusPalabras) {
    EXPECT_EQ(Palabras(-1, 0, 10), "Tirar las cartas");
    EXPECT_EQ(Palabras(0, 0, 0), "Reservarse");
    EXPECT_EQ(Palabras(12, 0, 0), "Apostar 12");
    EXPECT_EQ(Palabras(10, 0, 10), "Igualar a 10");
    EXPECT_EQ(Palabras(6, 4, 10), "Igualar a 10");
    EXPECT_EQ(Palabras(20, 4, 10), "Subir a 24");
}

TEST_F(TutorDePoker, LoQueSumaMasQueLaMayorApuestaTambienEsSubir) {
    EXPECT_EQ(Palabras(8, 4, 10), "Subir a 12") << "8 alone would not be above 10";
}

TEST_F(TutorDePoker, LoQueNoLlegaALaMayorApuestaSeApuesta) {
    EXPECT_EQ(Palabras(3, 4, 10), "Apostar 3");
}

TEST_F(TutorDePoker, IrConElRestoPasaPorDelanteDeTodo) {
    AsignarResto(4, 12);
    EXPECT_EQ(Palabras(12, 0, 0), "Ir con el resto de 12");
    EXPECT_EQ(Palabras(12, 0, 12), "Ir con el resto de 12");
    EXPECT_EQ(Palabras(12, 4, 10), "Ir con el resto de 12");
    EXPECT_EQ(Palabras(12, 0, 40), "Ir con el resto de 12");
    EXPECT_EQ(Palabras(11, 0, 0), "Apostar 11");
    EXPECT_EQ(Palabras(-1, 0, 40), "Tirar las cartas");
}

// --- In the bets

TEST_F(TutorDePoker, ElConsejoParpadeaDosVecesEnVerdeEnElAsiento) {
    Tiene("7o 7c 7e Kb 2o");
    Ronda(kPrimera, 0, 0);
    EXPECT_EQ(Consejo(), "Jugador4: Apostar 10") << "50 of 5";
    EXPECT_EQ(estado.ColorRotulo(4, 1), color::kVerde);
    EXPECT_EQ(p.sonidos, (std::vector<SonidoPedido>{{12, false}, {12, false}}));
    EXPECT_EQ(TrazaDe("Pausa"), (std::vector<std::string>{"Pausa(60)", "Pausa(250)", "Pausa(500)",
                                                          "Pausa(250)", "Pausa(500)"}));
    EXPECT_EQ(estado.RotuloSerie(4, 1), "");
}

TEST_F(TutorDePoker, AconsejaEnLasDosRondas) {
    Tiene("5o 6c 7e 8b 9o");
    Ronda(kSegunda, 0, 0);
    EXPECT_EQ(Consejo(), "Jugador4: Apostar 20");
    Tiene("7o 7c 7e Kb 2o");
    Ronda(kPrimera, 0, 12);
    EXPECT_EQ(Consejo(), "Jugador4: Igualar a 12");
    Tiene("Ko Jc 8e 5b 2o");
    estado.CaracterJugador(4) = kConservador;
    estado.AzarTurno = 0.5F;
    EXPECT_EQ(Consejo(), "Jugador4: Tirar las cartas");
    Ronda(kPrimera, 0, 0);
    EXPECT_EQ(Consejo(), "Jugador4: Reservarse");
}

TEST_F(TutorDePoker, EnLaSalidaDiceQueSeReserve) {
    Tiene("7o 7c 7e Kb 2o");
    Ronda(2, 0, 0);
    EXPECT_EQ(Consejo(), "Jugador4: Reservarse");
}

TEST_F(TutorDePoker, ElConsejoEsElDeUnNivel100YElAsientoConservaElSuyo) {
    Tiene("7o 7c Ke 9b 2o");
    Ronda(kPrimera, 0, 25); // half of what can go in: too dear above level 80
    EXPECT_EQ(Consejo(), "Jugador4: Tirar las cartas");
    EXPECT_EQ(estado.NivelJugador(4), 20);
    EXPECT_FALSE(estado.TutorPulsado);
}

TEST_F(TutorDePoker, ElConsejoNoApuestaNiTerminaElTurno) {
    Tiene("7o 7c 7e Kb 2o");
    Ronda(kPrimera, 3, 12);
    estado.EsperandoJugada = true;
    Consejo();
    EXPECT_EQ(apuestas.Apuesta(4, 1, kPrimera), 3);
    EXPECT_EQ(RestoDe(4), 200);
    EXPECT_TRUE(estado.EsperandoJugada);
    EXPECT_EQ(ManoDe(4), Cartas("7o 7c 7e Kb 2o"));
}

// --- In the discards

TEST_F(TutorDePoker, LasCartasQueSobranDestellanDosVeces) {
    Tiene("7o Kc 7e 7b 2o");
    apuestas.FaseApuesta = kDescartes;
    Consejo();
    EXPECT_EQ(Destello(), (std::vector<std::string>{
                              "RedibujarAsiento(4)", "Pausa(180)", "Sonido(1, 26)", "Pausa(420)",
                              "RedibujarAsiento(4)", "RedibujarAsiento(4)", "Pausa(180)",
                              "Sonido(1, 26)", "Pausa(420)", "RedibujarAsiento(4)"}));
    EXPECT_EQ(poker.MarcaDescarte(2), 1);
    EXPECT_EQ(poker.MarcaDescarte(5), 1);
    EXPECT_EQ(Alturas(), "_____");
}

TEST_F(TutorDePoker, MientrasDestellanEstanLevantadas) {
    Tiene("7o Kc 7e 7b 2o");
    apuestas.FaseApuesta = kDescartes;
    std::vector<std::string> vistas;
    EscuchaTraza([&](const std::string& linea) {
        if (linea == "Pausa(180)" || linea == "Pausa(420)")
            vistas.push_back(Alturas());
    });
    PulsaBoton(kBotonTutor);
    EXPECT_EQ(vistas, (std::vector<std::string>{"_^__^", "_^__^", "_^__^", "_^__^"}));
}

TEST_F(TutorDePoker, SiNoSobraNingunaDestellaServido) {
    Tiene("5o 6c 7e 8b 9o");
    apuestas.FaseApuesta = kDescartes;
    Consejo();
    EXPECT_EQ(Destello(), (std::vector<std::string>{
                              "BotonSuperior(4, 2, 2)", "Pausa(180)", "Sonido(1, 12)", "Pausa(420)",
                              "BotonSuperior(4, 1, 2)", "BotonSuperior(4, 2, 2)", "Pausa(180)",
                              "Sonido(1, 12)", "Pausa(420)", "BotonSuperior(4, 1, 2)"}));
}

TEST_F(TutorDePoker, LoElegidoAManoSeQuitaAntes) {
    p.UsaLienzosRegistrados();
    Tiene("5o 6c 7e 8b 9o");
    apuestas.FaseApuesta = kDescartes;
    estado.EsperandoJugada = true;
    EligeAMano(1);
    EligeAMano(3);
    PedirContinuar(1);
    EXPECT_EQ(p.Tablero().NombreDe({Control::Pic_BotContinuar, 0}), "Descartar elegidas");
    Consejo();
    EXPECT_EQ(Alturas(), "_____");
    EXPECT_FALSE(estado.JugadaHecha);
    EXPECT_TRUE(estado.EsperandoJugada);
    EXPECT_EQ(p.Tablero().NombreDe({Control::Pic_BotContinuar, 0}),
              "Jugador4 automático: el programa juega por este jugador");
}

TEST_F(TutorDePoker, QuitarLaSeleccionNoAbreUnaEspera) {
    Tiene("5o 6c 7e 8b 9o");
    apuestas.FaseApuesta = kDescartes;
    EligeAMano(1);
    Consejo();
    EXPECT_EQ(Alturas(), "_____");
    EXPECT_FALSE(estado.EsperandoJugada);
}

// A seat of level 20 would keep its pair.
TEST_F(TutorDePoker, ElDescarteQueAconsejaEsElDeUnNivel100) {
    Tiene("7o 9o Jo 2o 7c");
    apuestas.FaseApuesta = kDescartes;
    Consejo();
    EXPECT_EQ(poker.JugadaObjetivo, poker.ProyColor);
    EXPECT_EQ(poker.MarcaDescarte(5), 1);
    EXPECT_EQ(estado.NivelJugador(4), 20);
}

TEST_F(TutorDePoker, FueraDeLasRondasYLosDescartesCalla) {
    apuestas.FaseApuesta = 1;
    EXPECT_EQ(Consejo(), "");
    EXPECT_TRUE(Destello().empty());
}
