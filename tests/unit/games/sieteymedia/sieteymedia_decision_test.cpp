#include "games/sieteymedia/sieteymedia_decision.h"

#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "games/common/trick_state.h"
#include "tests/support/bank_table.h"

using namespace prueba;

namespace {

struct DecisionSiete : testing::Test {
    void SetUp() override {
        MesaDeBanca(kSieteYMedia);
        SiguienteDelMazo({kBastos, 1});
    }

    static void Asiento(Integer nivel, Integer caracter, Integer resto = 200) {
        estado.NivelJugador(estado.JugadorActual) = nivel;
        estado.CaracterJugador(estado.JugadorActual) = caracter;
        AsignarResto(estado.JugadorActual, resto);
    }
    // Seat 1 shows a Siete and a Sota.
    static void OtroCanta() { PonSerie(1, 1, {{kOros, 7}, {kOros, kSota}}); }
    static void OtroLoTapa(Integer asiento, Integer serie = 1) {
        PonSerieTapada(asiento, serie, {{kCopas, kSota}, {kCopas, 7}});
    }
};

// The bets of seat 4, on its first card.
struct ApuestaSiete : DecisionSiete {
    void SetUp() override {
        DecisionSiete::SetUp();
        apuestas.FaseApuesta = kFaseApuestas;
    }
    static Integer ApuestaCon(Integer valor, double azar) {
        PonSerieTapada(4, 1, {{kBastos, valor}});
        Azar(azar);
        DecideSiete();
        return apuestas.ApuestaPropuesta;
    }
    static bool FarolCon(Integer valor, double azar) {
        series.ApuestaFuerte = false;
        ApuestaCon(valor, azar);
        return series.ApuestaFuerte;
    }
};

// Seat 4 in play.
struct JugadaSiete : DecisionSiete {
    static bool SePlanta() {
        DecideSiete();
        return series.ConsejoServido;
    }
    static bool Destapa() {
        DecideSiete();
        return series.ConsejoDestapar;
    }
    static bool Abre() {
        series.PuedeAbrir = true;
        DecideSiete();
        return series.ConsejoAbrir;
    }
    static void Cinco() { PonSerieTapada(4, 1, {{kOros, 4}, {kCopas, kAs}}); }
};

// Seat 2, the bank, in its turn.
struct BancaSiete : DecisionSiete {
    void SetUp() override {
        DecisionSiete::SetUp();
        TocaJugar(2);
        Azar(0.999); // it sees through nobody at level 100
    }
    static void TieneLaBanca(const std::vector<Carta>& cartas) { PonSerie(2, 1, cartas); }
    static bool SePlanta() {
        DecideSiete();
        return series.ConsejoServido;
    }
};

} // namespace

TEST_F(ApuestaSiete, UnTresApuestaDosDecimosYUnPocoDeAzar) {
    estado.ApuestaMaxima = 25;
    EXPECT_EQ(ApuestaCon(3, 0), 5);
    Asiento(100, kAgresivo);
    EXPECT_EQ(ApuestaCon(3, 0.999), 12); // 5 + 7.5 less a trace
}

TEST_F(ApuestaSiete, LaApuestaCreceConLaDistanciaAlTres) {
    Asiento(0, kMedio);
    const Integer kApuesta[] = {0, 10, 8, 5, 8, 10, 12, 15}; // As to Siete, halves to the even
    for (Integer valor = kAs; valor <= 7; ++valor)
        EXPECT_EQ(ApuestaCon(valor, 0), kApuesta[valor]) << valor;
    for (Integer figura : {kSota, kCaballo, kRey})
        EXPECT_EQ(ApuestaCon(figura, 0), 18) << figura;
}

// A figure and two tenths of chance twice over: 7.4 tenths of 25 are eighteen and a half.
TEST_F(ApuestaSiete, LaMitadQueDaElAzarVaAlPar) {
    Asiento(0, kMedio);
    EXPECT_EQ(ApuestaCon(kSota, 0.2), 18);
}

TEST_F(ApuestaSiete, ConMaximaDeTreintaLaApuestaVaDeCincoEnCinco) {
    estado.ApuestaMaxima = 30;
    EXPECT_EQ(ApuestaCon(3, 0), 6);
    EXPECT_EQ(ApuestaCon(2, 0), 5); // nine
    EXPECT_EQ(ApuestaCon(6, 0), 15);
}

TEST_F(ApuestaSiete, LimitanElRestoYElDeLaBancaYNuncaBajaDeUno) {
    AsignarResto(4, 9);
    EXPECT_EQ(ApuestaCon(kRey, 0), 9);
    AsignarResto(2, 4);
    EXPECT_EQ(ApuestaCon(kRey, 0), 4);
    AsignarResto(2, 0);
    EXPECT_EQ(ApuestaCon(kRey, 0), 1);
}

TEST_F(ApuestaSiete, ElFarolConCuatroPideUnAgresivoBuenoYUnaCantada) {
    OtroCanta();
    Asiento(51, kAgresivo);
    EXPECT_TRUE(FarolCon(4, 0.79));
    EXPECT_FALSE(FarolCon(4, 0.8));
    EXPECT_FALSE(FarolCon(3, 0.79));
    Asiento(50, kAgresivo);
    EXPECT_FALSE(FarolCon(4, 0.79));
    Asiento(51, kMedio);
    EXPECT_FALSE(FarolCon(4, 0.79));
    Asiento(51, kAgresivo);
    PonSerie(1, 1, {{kOros, 7}});
    EXPECT_FALSE(FarolCon(4, 0.79));
}

TEST_F(ApuestaSiete, ElFarolConCincoDependeDelCaracter) {
    Asiento(36, kAgresivo);
    EXPECT_TRUE(FarolCon(5, 0.24));
    EXPECT_FALSE(FarolCon(5, 0.25));
    Asiento(36, kMedio);
    EXPECT_TRUE(FarolCon(5, 0.09));
    EXPECT_FALSE(FarolCon(5, 0.11));
    Asiento(36, kConservador);
    EXPECT_FALSE(FarolCon(5, 0));
    Asiento(35, kAgresivo);
    EXPECT_FALSE(FarolCon(5, 0));
}

// Four tenths of 25 are ten; with the bluff, half as much again.
TEST_F(ApuestaSiete, ConFarolSeApuestaLaMitadMas) {
    Asiento(36, kMedio);
    EXPECT_EQ(ApuestaCon(5, 0), 15);
    series.ApuestaFuerte = false;
    Asiento(35, kMedio);
    EXPECT_EQ(ApuestaCon(5, 0), 10);
}

TEST_F(ApuestaSiete, ElCuatroSeConservaAPocoAzarYBuenNivel) {
    Asiento(66, kConservador);
    ApuestaCon(4, 0.2);
    EXPECT_FALSE(series.ConservaCuatro);
    ApuestaCon(5, 0.19);
    EXPECT_FALSE(series.ConservaCuatro);
    ApuestaCon(4, 0.19);
    EXPECT_TRUE(series.ConservaCuatro);
    series.ConservaCuatro = false;
    Asiento(65, kConservador);
    ApuestaCon(4, 0.19);
    EXPECT_FALSE(series.ConservaCuatro);
}

TEST_F(ApuestaSiete, FarolYCuatroConservadoQuedanHastaLasApuestasSiguientes) {
    series.ApuestaFuerte = true;
    series.ConservaCuatro = true;
    EXPECT_EQ(ApuestaCon(3, 0), 8); // five, with the bluff seven and a half
    EXPECT_TRUE(series.ApuestaFuerte);
    EXPECT_TRUE(series.ConservaCuatro);
}

TEST_F(JugadaSiete, ElTutorConCincoYUnTresDebajoSeQuedaServido) {
    Asiento(10, kAgresivo);
    Cinco();
    SiguienteDelMazo({kBastos, 3});
    Azar(0.79);
    EXPECT_FALSE(SePlanta());
    estado.TutorPulsado = true;
    EXPECT_TRUE(SePlanta());
    EXPECT_EQ(estado.NivelJugador(4), 10);
    Azar(0.8);
    EXPECT_FALSE(SePlanta());
}

TEST_F(JugadaSiete, ParaQuedarseMiraLaSiguienteDesdeCincoYConNivelMasDeNoventa) {
    SiguienteDelMazo({kBastos, 7});
    Asiento(90, kAgresivo);
    Cinco();
    EXPECT_FALSE(SePlanta());
    Asiento(91, kAgresivo);
    EXPECT_TRUE(SePlanta());
    PonSerieTapada(4, 1, {{kOros, 4}, {kCopas, kSota}});
    EXPECT_FALSE(SePlanta());
}

TEST_F(JugadaSiete, UnConservadorSePlantaConCincoYNoMiraParaPedir) {
    Asiento(50, kConservador);
    Cinco();
    EXPECT_TRUE(SePlanta());
    PonSerieTapada(4, 1, {{kOros, 4}, {kCopas, kSota}});
    EXPECT_FALSE(SePlanta());
    Asiento(100, kConservador, 1000);
    Azar(0.2);
    Cinco();
    EXPECT_TRUE(SePlanta()); // the next card is an As
}

TEST_F(JugadaSiete, CadaCaracterSePlantaMediaMasTarde) {
    Asiento(50, kMedio);
    Cinco();
    EXPECT_FALSE(SePlanta());
    PonSerie(4, 1, {{kOros, 5}, {kCopas, kSota}});
    EXPECT_TRUE(SePlanta());
    Asiento(50, kAgresivo);
    EXPECT_FALSE(SePlanta());
    PonSerie(4, 1, {{kOros, 6}});
    EXPECT_TRUE(SePlanta());
}

TEST_F(JugadaSiete, CuandoOtroHaCantadoElQueSabeSePlantaAntes) {
    OtroCanta();
    Cinco();
    Asiento(60, kMedio);
    EXPECT_FALSE(SePlanta());
    Asiento(61, kMedio);
    EXPECT_TRUE(SePlanta());
}

// The threshold is then four, whatever the character.
TEST_F(JugadaSiete, APocoAzarElQueSabeSePlantaConCuatro) {
    Azar(0.14);
    PonSerieTapada(4, 1, {{kOros, 3}, {kCopas, kAs}});
    for (Integer caracter : {kConservador, kMedio, kAgresivo}) {
        Asiento(70, caracter);
        EXPECT_FALSE(SePlanta()) << "carácter " << caracter;
        Asiento(71, caracter);
        EXPECT_TRUE(SePlanta()) << "carácter " << caracter;
    }
    PonSerieTapada(4, 1, {{kOros, 3}, {kCopas, kSota}});
    EXPECT_FALSE(SePlanta());
}

TEST_F(JugadaSiete, ElFarolSePlantaConLoQueTenga) {
    PonSerieTapada(4, 1, {{kOros, 2}});
    Asiento(50, kMedio);
    EXPECT_FALSE(SePlanta());
    series.ApuestaFuerte = true;
    EXPECT_TRUE(SePlanta());
}

// Chances of a rich seat of level 81: it sees that the As does not hurt, and gives even a bluff up.
TEST_F(JugadaSiete, MirandoLaSiguientePideElQueTieneDineroDeSobra) {
    PonSerie(4, 1, {{kOros, 6}});
    Asiento(81, kMedio, 321);
    Azar(0.29);
    EXPECT_FALSE(SePlanta());
    series.ApuestaFuerte = true;
    EXPECT_FALSE(SePlanta());
    Azar(0.31);
    EXPECT_TRUE(SePlanta());
    Azar(0.29);
    Asiento(81, kMedio, 320);
    EXPECT_TRUE(SePlanta());
    Asiento(80, kMedio, 321);
    EXPECT_TRUE(SePlanta());
    Asiento(81, kMedio, 321);
    SiguienteDelMazo({kBastos, 2});
    EXPECT_TRUE(SePlanta());
}

TEST_F(JugadaSiete, ConElMazoAgotadoNoHayCartaQuePase) {
    Cinco();
    SiguienteDelMazo({kBastos, 7});
    Asiento(100, kAgresivo);
    EXPECT_TRUE(SePlanta());
    MazoAgotado();
    EXPECT_FALSE(SePlanta());
    estado.PosicionMazo = 313; // beyond any deck
    EXPECT_FALSE(SePlanta());
    estado.PosicionMazo = 0;
    EXPECT_FALSE(SePlanta());
}

TEST_F(JugadaSiete, ConSieteYMediaTapadaCantaElAtrevidoConFondos) {
    PonSerieTapada(4, 1, {{kOros, 7}, {kCopas, kSota}});
    Asiento(50, kMedio, 161);
    Azar(0.57); // two by three and a half is 0.5714
    EXPECT_TRUE(Destapa());
    EXPECT_TRUE(series.ConsejoServido);
    Azar(0.58);
    EXPECT_FALSE(Destapa());
    Azar(0.57);
    Asiento(50, kMedio, 160);
    EXPECT_FALSE(Destapa());
    Asiento(50, kMedio, 161);
    OtroCanta();
    EXPECT_TRUE(Destapa()); // the own covered one takes that of seat 1 back
    PonSerie(4, 2, {{kBastos, 7}, {kBastos, kSota}});
    EXPECT_FALSE(Destapa());
}

// Twice chance, 2 and a third of the character, to the nearest: 2, 3 and 3 without chance.
TEST_F(JugadaSiete, QuienPideVuelveLaTapadaAlta) {
    Azar(0);
    const Integer kBaja[] = {0, 2, 3, 3};
    for (Integer caracter : {kConservador, kMedio, kAgresivo}) {
        Asiento(0, caracter);
        PonSerieTapada(4, 1, {{kOros, kBaja[caracter]}});
        EXPECT_FALSE(Destapa()) << "carácter " << caracter;
        PonSerieTapada(4, 1, {{kOros, static_cast<Integer>(kBaja[caracter] + 1)}});
        EXPECT_TRUE(Destapa()) << "carácter " << caracter;
    }
}

// Three and a half goes to the even four; a figure counts half a point.
TEST_F(JugadaSiete, ElLimiteDeLaTapadaVaAlPar) {
    Asiento(0, kAgresivo);
    Azar(0.25);
    PonSerieTapada(4, 1, {{kOros, 4}});
    EXPECT_FALSE(Destapa());
    PonSerieTapada(4, 1, {{kOros, 5}});
    EXPECT_TRUE(Destapa());
    PonSerieTapada(4, 1, {{kOros, kRey}});
    EXPECT_FALSE(Destapa());
}

TEST_F(JugadaSiete, ConElCuatroConservadoONadaTapadoNoSeVuelve) {
    Asiento(0, kConservador);
    Azar(0);
    PonSerieTapada(4, 1, {{kOros, 4}});
    series.ConservaCuatro = true;
    EXPECT_FALSE(Destapa());
    series.ConservaCuatro = false;
    PonSerie(4, 1, {{kOros, 4}});
    EXPECT_FALSE(Destapa());
}

TEST_F(JugadaSiete, SeAbreConFondosSegunElCaracterYElAzar) {
    PonSerie(4, 1, {{kOros, kSota}, {kCopas, kRey}});
    Azar(0.5); // a two
    Asiento(50, kMedio, 81);
    EXPECT_TRUE(Abre());
    Asiento(50, kMedio, 80);
    EXPECT_FALSE(Abre());
    Asiento(50, kConservador, 200);
    EXPECT_FALSE(Abre());
    series.PuedeAbrir = false;
    Asiento(50, kAgresivo, 200);
    DecideSiete();
    EXPECT_FALSE(series.ConsejoAbrir);
}

TEST_F(JugadaSiete, LaCantadaPropiaYLaDeLaBancaCuentan) {
    Asiento(61, kMedio);
    Cinco();
    PonSerie(2, 1, {{kOros, 7}, {kOros, kSota}});
    EXPECT_TRUE(SePlanta());
    PonSerie(2, 1, {{kOros, 7}});
    EXPECT_FALSE(SePlanta());
    PonSerie(4, 2, {{kOros, 7}, {kOros, kSota}});
    EXPECT_TRUE(SePlanta());
}

// On purpose: seats are looked at from 1 to 4, and a covered seven and a half undoes what was seen before.
TEST_F(JugadaSiete, UnaSieteYMediaTapadaBorraLaCantadaDeUnAsientoAnterior) {
    Asiento(61, kMedio);
    Cinco();
    OtroCanta();
    EXPECT_TRUE(SePlanta());
    OtroLoTapa(3);
    EXPECT_FALSE(SePlanta());
    PonSerie(1, 1, {{kOros, 7}});
    PonSerie(4, 2, {{kOros, 7}, {kOros, kSota}}); // seat 4 comes after seat 3
    EXPECT_TRUE(SePlanta());
}

TEST_F(JugadaSiete, SoloLaTapadaDeLaPrimeraSerieBorraLaCantada) {
    Asiento(61, kMedio);
    Cinco();
    OtroCanta();
    PonSerie(3, 1, {{kOros, kSota}});
    OtroLoTapa(3, 2);
    EXPECT_TRUE(SePlanta());
}

TEST_F(JugadaSiete, AnotaDeQuienEsCadaCartaQueEnsenaLaCara) {
    bazas.CartaJugada(kBastos, 2) = 3;
    PonSerie(1, 1, {{kOros, 7}});
    PonSerieTapada(3, 1, {{kCopas, 6}, {kEspadas, kRey}});
    PonSerie(4, 2, {{kBastos, 5}});
    estado.Mano(4, 1, 1, kTapada) = 0;
    DecideSiete();
    EXPECT_EQ(bazas.CartaJugada(kOros, 7), 1);
    EXPECT_EQ(bazas.CartaJugada(kEspadas, kRey), 3);
    EXPECT_EQ(bazas.CartaJugada(kBastos, 5), 4);
    EXPECT_EQ(bazas.CartaJugada(kCopas, 6), 0);
    EXPECT_EQ(bazas.CartaJugada(kBastos, 2), 0);
}

// A seat with its cards open shows its covered card too, only marked.
TEST_F(JugadaSiete, LaTapadaDeUnAsientoVisibleTambienSeAnota) {
    PonSerieTapada(1, 1, {{kCopas, 6}});
    estado.Mano(1, 1, 1, kCara) = kDescubierta;
    DecideSiete();
    EXPECT_EQ(bazas.CartaJugada(kCopas, 6), 1);
}

TEST_F(BancaSiete, ConTodoACeroPide) {
    TieneLaBanca({{kOros, 7}});
    PonSerieTapada(1, 1, {{kCopas, 2}});
    PonSerieTapada(4, 1, {{kCopas, 3}});
    EXPECT_FALSE(SePlanta());
}

TEST_F(BancaSiete, SePlantaSiVaGanandoEnDinero) {
    TieneLaBanca({{kOros, 6}});
    PonSerieTapada(1, 1, {{kCopas, 2}}); // one card of a Medio: six
    Apuesta(1, 1, 10);
    EXPECT_TRUE(SePlanta());
    PonSerieTapada(4, 1, {{kCopas, 3}, {kOros, 5}}); // seven at most
    Apuesta(4, 1, 10);
    EXPECT_FALSE(SePlanta());
    Apuesta(4, 1, 9);
    EXPECT_TRUE(SePlanta());
}

TEST_F(BancaSiete, UnaSolaCartaValeCuatroMasElCaracter) {
    PonSerieTapada(1, 1, {{kCopas, 7}});
    Apuesta(1, 1, 10);
    estado.CaracterJugador(1) = kConservador;
    TieneLaBanca({{kOros, 5}});
    EXPECT_TRUE(SePlanta());
    estado.CaracterJugador(1) = kMedio;
    EXPECT_FALSE(SePlanta());
}

TEST_F(BancaSiete, ConPocoALaVistaValeCincoMasMedioCaracter) {
    PonSerieTapada(1, 1, {{kCopas, 7}, {kOros, 3}});
    Apuesta(1, 1, 10);
    estado.CaracterJugador(1) = kAgresivo;
    TieneLaBanca({{kOros, 6}});
    EXPECT_FALSE(SePlanta());
    TieneLaBanca({{kOros, 6}, {kEspadas, kSota}});
    EXPECT_TRUE(SePlanta());
}

TEST_F(BancaSiete, ConMasALaVistaSeSumaElCaracterHastaSiete) {
    PonSerieTapada(1, 1, {{kCopas, 2}, {kOros, 4}});
    Apuesta(1, 1, 10);
    estado.CaracterJugador(1) = kConservador;
    TieneLaBanca({{kOros, 5}});
    EXPECT_TRUE(SePlanta());
    estado.CaracterJugador(1) = kMedio;
    EXPECT_FALSE(SePlanta());
    PonSerieTapada(1, 1, {{kCopas, 2}, {kOros, 6}});
    TieneLaBanca({{kOros, 7}});
    EXPECT_TRUE(SePlanta());
}

// 130 times chance below the level: the true total counts.
TEST_F(BancaSiete, LaBancaQueSabeVeLoTapado) {
    PonSerieTapada(1, 1, {{kCopas, 2}});
    Apuesta(1, 1, 10);
    TieneLaBanca({{kOros, 3}});
    EXPECT_FALSE(SePlanta());
    Azar(0.76);
    EXPECT_TRUE(SePlanta());
    Azar(0.77);
    EXPECT_FALSE(SePlanta());
    estado.NivelJugador(2) = 10;
    Azar(0.5);
    EXPECT_FALSE(SePlanta());
    estado.TutorPulsado = true;
    EXPECT_TRUE(SePlanta());
    EXPECT_EQ(estado.NivelJugador(2), 10);
}

TEST_F(BancaSiete, LaSieteYMediaALaVistaNoSeDiscute) {
    OtroCanta();
    Apuesta(1, 1, 10);
    AsignarResto(2, 100);
    TieneLaBanca({{kBastos, 7}});
    EXPECT_FALSE(SePlanta());
    TieneLaBanca({{kBastos, 7}, {kBastos, kSota}});
    EXPECT_TRUE(SePlanta());
}

TEST_F(BancaSiete, ConUnaCantadaYDineroDeSobraArriesga) {
    OtroCanta();
    PonSerieTapada(4, 1, {{kCopas, 2}});
    Apuesta(4, 1, 25);
    TieneLaBanca({{kBastos, 7}});
    AsignarResto(2, 320);
    EXPECT_TRUE(SePlanta());
    AsignarResto(2, 321);
    EXPECT_FALSE(SePlanta());
}

// On purpose: the second serie's own stake of 50 is not looked at; both count 10.
TEST_F(BancaSiete, CadaSerieCuentaConLaApuestaDeLaPrimera) {
    TieneLaBanca({{kOros, 6}});
    PonSerieTapada(1, 1, {{kCopas, 2}}); // six
    Apuesta(1, 1, 10);
    PonSerieTapada(1, 2, {{kCopas, 3}, {kOros, 5}}); // seven
    Apuesta(1, 2, 50);
    PonSerieTapada(4, 1, {{kBastos, 2}}); // six
    Apuesta(4, 1, 1);
    EXPECT_TRUE(SePlanta());
}

TEST_F(BancaSiete, LaBancaNiAbreNiDestapa) {
    series.PuedeAbrir = series.ConsejoAbrir = series.ConsejoDestapar = true;
    TieneLaBanca({{kOros, 2}});
    DecideSiete();
    EXPECT_FALSE(series.ConsejoAbrir);
    EXPECT_FALSE(series.ConsejoDestapar);
}

TEST_F(DecisionSiete, FueraDeApuestasYJuegoNoDecideNada) {
    PonSerie(4, 1, {{kOros, 7}});
    apuestas.FaseApuesta = 5;
    DecideSiete();
    EXPECT_EQ(apuestas.ApuestaPropuesta, 0);
    EXPECT_FALSE(series.ConsejoServido);
}
