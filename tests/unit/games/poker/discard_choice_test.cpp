// Which cards a seat of Póker throws away: the places that go, "..345" of five.

#include "games/poker/discard_choice.h"

#include <gtest/gtest.h>

#include "games/poker/discard_target.h"
#include "games/poker/poker_state.h"
#include "tests/support/poker_seats.h"

using namespace prueba;

namespace {

constexpr const char *kServido = ".....", *kTodas = "12345";

struct FilaDescarte {
    const char* mano;
    Integer caracter, nivel;
    const char* se_van;
};

class EleccionDeDescarte : public AsientosDePoker {
protected:
    static void Juega(const char* mano, Integer caracter, Integer nivel) {
        Da(1, mano);
        estado.CaracterJugador(1) = caracter;
        estado.NivelJugador(1) = nivel;
    }
    static void Espera(std::initializer_list<FilaDescarte> filas) {
        for (const FilaDescarte& fila : filas) {
            SCOPED_TRACE(testing::Message() << fila.mano << ", character " << fila.caracter
                                            << ", level " << fila.nivel);
            Juega(fila.mano, fila.caracter, fila.nivel);
            EXPECT_EQ(Descarta(), fila.se_van);
        }
    }
    // The same for the three characters, at the highest level and the lowest.
    static void EsperaSiempre(const char* mano, const char* se_van) {
        for (const Integer caracter : {kConservador, kMedio, kAgresivo})
            Espera({{mano, caracter, 0, se_van}, {mano, caracter, 100, se_van}});
    }
};

// The choice of a category alone, for readings of a hand that no five cards give.
class CategoriaDeDescarte : public AsientosDePoker {
protected:
    CategoriaDeDescarte() { poker.MejorJugada(1) = poker.CartaMayor; }

    static void Tiene(Integer categoria, Integer calidad = 1) {
        poker.Jugadas(1, categoria).Activa = 1;
        poker.Jugadas(1, categoria).Calidad = calidad;
    }
    static Integer Juega(Integer caracter, Integer nivel) {
        estado.CaracterJugador(1) = caracter;
        estado.NivelJugador(1) = nivel;
        return CategoriaParaJugar();
    }
};

} // namespace

// --- Hands that are played as they are

TEST_F(EleccionDeDescarte, UnaManoCompletaEstaServida) {
    EsperaSiempre("5o 6o 7o 8o 9o", kServido); // Escalera de color
    EsperaSiempre("7o 7c 7e 2b 2o", kServido); // Full
    EsperaSiempre("5o 6c 7e 8b 9o", kServido); // Escalera
    Baraja(52, 1);
    EsperaSiempre("7o 7c 7e 7b #", kServido); // Repóker
}

TEST_F(EleccionDeDescarte, DeUnPokerSobraLaSuelta) {
    EsperaSiempre("7o 7c 2e 7b 7e", "..3..");
    EXPECT_EQ(poker.JugadaObjetivo, poker.Poker);
}

TEST_F(EleccionDeDescarte, DeUnTrioSobranDos) {
    EsperaSiempre("7o Kc 7e 7b 2o", ".2..5");
    Baraja(40);
    EsperaSiempre("7o Kc 7e 7b 5o", ".2..5");
    EXPECT_EQ(poker.JugadaObjetivo, poker.Trio);
}

TEST_F(EleccionDeDescarte, LoMarcadoAntesSeBorra) {
    poker.MarcaDescarte(1) = poker.MarcaDescarte(4) = 1;
    EsperaSiempre("5o 6c 7e 8b 9o", kServido);
}

// --- Color

TEST_F(EleccionDeDescarte, ElColorSeGuardaSalvoPorLaEscaleraDeColor) {
    const char* con_cuatro = "6o 7o 8o 9o Ko";
    const char* con_tres = "7o 8o 9o Ko 2o";
    Espera({{con_cuatro, kConservador, 100, kServido},
            {con_cuatro, kMedio, 0, "....5"},
            {con_cuatro, kAgresivo, 100, kServido}, // four in a row hide the three
            {con_tres, kConservador, 100, kServido},
            {con_tres, kMedio, 100, kServido},
            {con_tres, kAgresivo, 0, "...45"}});
}

TEST_F(EleccionDeDescarte, EnBarajaCortaElColorEsElMismo) {
    Baraja(40);
    Espera({{"7o 8o 9o Ko Ao", kAgresivo, 50, "...45"}, {"7o 8o 9o Ko Ao", kMedio, 50, kServido}});
    EXPECT_EQ(poker.JugadaObjetivo, poker.Color);
}

// --- Figuras

TEST_F(EleccionDeDescarte, UnasFigurasConTrioSeRompenPorElTrio) {
    const char* mano = "Jo Jc Je Qb Ko";
    Espera({{mano, kConservador, 100, kServido},
            {mano, kMedio, 0, "...45"},
            {mano, kAgresivo, 0, "...45"}});
}

// The pair that an aggressive seat plays for is the stronger one.
TEST_F(EleccionDeDescarte, UnasFigurasConDosParejasSeRompenPorEllasOPorLaMayor) {
    const char* mano = "Jo Jc Qe Qb Ko";
    Espera({{mano, kConservador, 100, kServido}, {mano, kMedio, 0, "....5"}});
    EXPECT_EQ(poker.JugadaObjetivo, poker.DoblePareja);
    Espera({{mano, kAgresivo, 0, "12..5"}});
    EXPECT_EQ(poker.JugadaObjetivo, poker.Pareja);
    Espera({{"Ao Jc Ae Jb Ko", kAgresivo, 0, ".2.45"}});
}

TEST_F(EleccionDeDescarte, UnasFigurasConParejaSoloLasRompeElAgresivo) {
    const char* mano = "Jo Jc Qe Kb Ao";
    Espera({{mano, kConservador, 100, kServido},
            {mano, kMedio, 100, kServido},
            {mano, kAgresivo, 0, "..345"}});
}

TEST_F(EleccionDeDescarte, UnasFigurasConCuatroSeguidasDelPaloSoloLasRompeElAgresivo) {
    const char* mano = "Jo Qo Ko Ao Jc";
    Espera({{mano, kConservador, 100, kServido},
            {mano, kMedio, 100, kServido},
            {mano, kAgresivo, 0, "....5"}});
}

// --- Two pairs

TEST_F(EleccionDeDescarte, DeDosParejasSobraLaSueltaSalvoPorTresSeguidasDelPalo) {
    EsperaSiempre("7o 7c 9e Kb 9o", "...4.");
    const char* con_tres = "7o 8o 9o 7c 9e";
    Espera({{con_tres, kConservador, 100, ".2..."},
            {con_tres, kMedio, 100, ".2..."},
            {con_tres, kAgresivo, 0, "...45"}});
}

// --- A pair

TEST_F(EleccionDeDescarte, DeUnaParejaSobranTres) {
    EsperaSiempre("7o 7c Ke 9b 2o", "..345");
}

TEST_F(EleccionDeDescarte, LaParejaSeRompePorCuatroSeguidasDelPalo) {
    const char* abierta = "6o 7o 8o 9o 9c";
    const char* con_hueco = "5o 6o 8o 9o 9c";
    Espera({{abierta, kConservador, 100, "123.."},
            {abierta, kMedio, 50, "....5"},
            {abierta, kMedio, 49, "123.."},
            {abierta, kAgresivo, 50, "....5"},
            {abierta, kAgresivo, 49, "123.."},
            {con_hueco, kMedio, 100, "123.."},
            {con_hueco, kAgresivo, 50, "....5"}});
}

// The edge of level 50.
TEST_F(EleccionDeDescarte, UnaParejaDeSietesConCuatroDelPaloSeRompeANivel50) {
    const char* mano = "7o 9o Jo 2o 7c";
    Espera({{mano, kMedio, 50, "....5"},
            {mano, kMedio, 49, ".234."},
            {mano, kAgresivo, 50, "....5"},
            {mano, kAgresivo, 49, ".234."},
            {mano, kConservador, 100, ".234."}});
}

TEST_F(EleccionDeDescarte, LaParejaSeRompePorCuatroSeguidasAbiertasSoloDelAgresivo) {
    const char* abierta = "6o 7c 8e 9b 9o";
    const char* con_hueco = "5o 6c 8e 9b 9o";
    Espera({{abierta, kAgresivo, 50, "....5"},
            {abierta, kAgresivo, 49, "123.."},
            {abierta, kMedio, 100, "123.."},
            {con_hueco, kAgresivo, 100, "123.."}});
}

TEST_F(EleccionDeDescarte, LaParejaSeRompePorCuatroFigurasSoloDelAgresivo) {
    const char* mano = "Jo Jc Qe Kb 7o";
    Espera({{mano, kAgresivo, 50, "....5"},
            {mano, kAgresivo, 49, "..345"},
            {mano, kMedio, 100, "..345"},
            {mano, kConservador, 100, "..345"}});
}

TEST_F(EleccionDeDescarte, EntreFigurasYPaloElAgresivoVaPorElPalo) {
    Espera({{"Jo Qo Ko 7o Jc", kAgresivo, 50, "....5"}});
    EXPECT_EQ(poker.JugadaObjetivo, poker.ProyColor);
}

// A joker is worth more than the low pair that it makes: it stays alone, on purpose.
TEST_F(EleccionDeDescarte, UnComodinValeMasQueSuParejaBaja) {
    Baraja(52, 1);
    const char* de_reyes = "# Kc 8e 5b 2o";
    Espera({{de_reyes, kConservador, 60, ".2345"}, {de_reyes, kMedio, 100, ".2345"}});
    EXPECT_EQ(poker.JugadaObjetivo, poker.CartaMayor);
    Espera({{de_reyes, kMedio, 59, "..345"}, {"# Ac 9e 6b 3o", kMedio, 100, "..345"}});
    EXPECT_EQ(poker.JugadaObjetivo, poker.Pareja);
}

TEST_F(EleccionDeDescarte, UnComodinCuentaEnElProyectoDeColor) {
    Baraja(52, 1);
    Espera({{"Ko 7o 3o # 9c", kMedio, 50, "....5"}, {"Ko 7o 3o # 9c", kMedio, 49, ".23.5"}});
}

// --- Nothing

TEST_F(EleccionDeDescarte, TresSeguidasSePersiguenSiempre) {
    EsperaSiempre("Ko 9c 7e 5b 2o", "1...5");
    EXPECT_EQ(poker.JugadaObjetivo, poker.ProyEscalera3);
}

TEST_F(EleccionDeDescarte, TresSeguidasDelPaloPasanPorDelante) {
    EsperaSiempre("5o 7o 9o Kc Je", "...45");
    EXPECT_EQ(poker.JugadaObjetivo, poker.ProyEscalColor3);
}

TEST_F(EleccionDeDescarte, CuatroSeguidas) {
    const char* abierta = "6o 7c 8e 9b 2o";
    const char* con_hueco = "5o 6c 8e 9b Ko";
    Espera({{abierta, kMedio, 50, "....5"},
            {abierta, kMedio, 49, kTodas},
            {abierta, kAgresivo, 50, "....5"},
            {abierta, kAgresivo, 49, kTodas},
            {con_hueco, kMedio, 100, "1234."},
            {con_hueco, kAgresivo, 50, "....5"}});
}

// 5, 6 and 7 alone would be played for; with the 9 they are four, and who does not play for four keeps a high card.
TEST_F(EleccionDeDescarte, CuatroConHuecoQuitanDeEnMedioATresSeguidas) {
    const char* mano = "5o 6c 7e 9b Ko";
    Espera({{mano, kConservador, 49, "1234."},
            {mano, kConservador, 100, "1234."},
            {mano, kMedio, 49, "1234."},
            {mano, kMedio, 100, "1234."},
            {mano, kAgresivo, 49, kTodas},
            {mano, kAgresivo, 50, "....5"}});
}

TEST_F(EleccionDeDescarte, CuatroDelPaloQuitanDeEnMedioATresSeguidas) {
    const char* mano = "5o 6o 7o Ko 2c";
    Espera({{mano, kConservador, 100, "123.5"},
            {mano, kMedio, 49, "123.5"},
            {mano, kMedio, 59, "123.5"},
            {mano, kMedio, 60, "....5"},
            {mano, kAgresivo, 49, kTodas},
            {mano, kAgresivo, 59, kTodas},
            {mano, kAgresivo, 60, "....5"}});
}

TEST_F(EleccionDeDescarte, ElProyectoDeColorPideNivel60) {
    const char* mano = "Ko 9o 7o 3o 2c";
    Espera({{mano, kMedio, 60, "....5"},
            {mano, kMedio, 59, ".2345"},
            {mano, kAgresivo, 60, "....5"},
            {mano, kAgresivo, 59, kTodas}});
}

TEST_F(EleccionDeDescarte, AlProyectoDeEscaleraDeColorLeBastaNivel25) {
    const char* mano = "6o 7o 8o 9o 2c";
    Espera({{mano, kMedio, 25, "....5"},
            {mano, kMedio, 24, kTodas},
            {mano, kAgresivo, 25, "....5"},
            {mano, kAgresivo, 24, kTodas}});
}

TEST_F(EleccionDeDescarte, CuatroDeEscaleraDeColorQuitanDeEnMedioATresSeguidas) {
    const char* mano = "5o 6o 7o 9o Kc";
    Espera({{mano, kConservador, 100, "1234."},
            {mano, kMedio, 24, "1234."},
            {mano, kMedio, 25, "....5"},
            {mano, kAgresivo, 24, kTodas},
            {mano, kAgresivo, 25, "....5"}});
}

TEST_F(EleccionDeDescarte, ConUnAsElMedioNoPersigueUnaEscaleraDeColorConHueco) {
    const char* con_rey = "5o 6o 8o 9o Kc";
    const char* con_as = "5o 6o 8o 9o Ac";
    Espera({{con_rey, kMedio, 25, "....5"},
            {con_as, kMedio, 100, "1234."},
            {con_as, kAgresivo, 25, "....5"},
            {"6o 7o 8o 9o Ac", kMedio, 25, "....5"}});
}

TEST_F(EleccionDeDescarte, UnConservadorNoJuegaProyectosDeCuatro) {
    Espera({{"6o 7c 8e 9b 2o", kConservador, 100, kTodas},
            {"Ko 9o 7o 3o 2c", kConservador, 100, ".2345"},
            {"6o 7o 8o 9o 2c", kConservador, 100, kTodas}});
}

// --- The card that is left of a hand of nothing

TEST_F(EleccionDeDescarte, TodosGuardanUnAs) {
    EsperaSiempre("Ao Kc 9e 6b 3o", ".2345");
}

TEST_F(EleccionDeDescarte, UnReyNoLeBastaAlAgresivo) {
    const char* mano = "Ko Jc 8e 5b 2o";
    Espera({{mano, kConservador, 50, ".2345"},
            {mano, kMedio, 50, ".2345"},
            {mano, kAgresivo, 50, kTodas}});
}

TEST_F(EleccionDeDescarte, UnaDamaSoloLeBastaAlConservador) {
    const char* mano = "Qo 10c 7e 3b 2o";
    Espera({{mano, kConservador, 50, ".2345"},
            {mano, kMedio, 50, kTodas},
            {mano, kAgresivo, 50, kTodas}});
}

TEST_F(EleccionDeDescarte, UnaJotaLeBastaAlConservadorYUnDiezNo) {
    // Four of a suit that it does not play for.
    Espera({{"Jo 9o 6o 3o 2c", kConservador, 100, ".2345"},
            {"10o 8o 5o 3o 2c", kConservador, 100, kTodas}});
}

// --- Jokers

TEST_F(EleccionDeDescarte, ElComodinDeUnGrupoSeQueda) {
    Baraja(52, 1);
    EsperaSiempre("7o 7c 2e # 7e", "..3..");
    EsperaSiempre("7o 7c # Kb 2o", "...45");
}

TEST_F(EleccionDeDescarte, ElSegundoComodinSePuedeIr) {
    Baraja(52, 2);
    Espera({{"# ## Kc 8e 5b", kConservador, 59, ".2.45"},
            {"# ## Kc 8e 5b", kConservador, 60, ".2345"},
            {"Kc ## 8e # 5b", kConservador, 60, "1.345"}});
    EsperaSiempre("7o 7c # ## 2e", "...45"); // a Trío, of the pair and the first one
}

TEST_F(EleccionDeDescarte, UnProyectoGuardaSoloSuComodin) {
    Baraja(52, 2);
    Espera({{"Ko 7o 3o # ##", kMedio, 50, "...4."}});
    EXPECT_EQ(poker.JugadaObjetivo, poker.ProyColor);
}

// --- Tutor

TEST_F(EleccionDeDescarte, ElTutorDescartaComoANivel100) {
    Juega("7o 9o Jo 2o 7c", kMedio, 0);
    EXPECT_EQ(Descarta(), ".234.");
    estado.TutorPulsado = true;
    EXPECT_EQ(Descarta(), "....5");
    EXPECT_EQ(estado.NivelJugador(1), 0);
}

// --- Draws for Figuras without a pair: As, Rey, Dama and Jota are four in a row as well, and that hides them

TEST_F(CategoriaDeDescarte, SoloCuatroFigurasSinPareja) {
    Tiene(poker.ProyEscalera3);
    Tiene(poker.ProyFiguras);
    EXPECT_EQ(Juega(kMedio, 50), poker.ProyFiguras);
    EXPECT_EQ(Juega(kAgresivo, 50), poker.ProyFiguras);
    EXPECT_EQ(Juega(kMedio, 49), poker.CartaMayor);
    EXPECT_EQ(Juega(kAgresivo, 49), poker.CartaMayor);
    EXPECT_EQ(Juega(kConservador, 100), poker.CartaMayor);
}

TEST_F(CategoriaDeDescarte, CuatroFigurasJuntoACuatroSeguidas) {
    Tiene(poker.ProyFiguras);
    Tiene(poker.ProyEscalera, 2);
    for (const Integer caracter : {kConservador, kMedio, kAgresivo})
        EXPECT_EQ(Juega(caracter, 49), poker.ProyFiguras);
    EXPECT_EQ(Juega(kConservador, 50), poker.CartaMayor);
    EXPECT_EQ(Juega(kMedio, 50), poker.CartaMayor);
    EXPECT_EQ(Juega(kAgresivo, 50), poker.ProyEscalera);
}

TEST_F(CategoriaDeDescarte, UnProyectoDeColorQuitaDeEnMedioLasFiguras) {
    Tiene(poker.ProyFiguras);
    Tiene(poker.ProyColor);
    EXPECT_EQ(Juega(kMedio, 59), poker.CartaMayor);
    EXPECT_EQ(Juega(kMedio, 60), poker.ProyColor);
}

TEST_F(CategoriaDeDescarte, UnProyectoDeEscaleraDeColorQuitaDeEnMedioElColor) {
    Tiene(poker.ProyColor);
    Tiene(poker.ProyEscalColor, 2);
    poker.Jugadas(1, poker.CartaMayor).Cartas(1) = 1;
    EXPECT_EQ(Juega(kMedio, 100), poker.CartaMayor);
    EXPECT_EQ(Juega(kAgresivo, 24), poker.CartaMayor);
    EXPECT_EQ(Juega(kAgresivo, 25), poker.ProyEscalColor);
}
