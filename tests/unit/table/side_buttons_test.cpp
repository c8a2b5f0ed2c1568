#include "table/drawing.h"
#include "table/side_buttons.h"
#include "table/whole_table.h"

#include <gtest/gtest.h>

#include "tests/support/live_table.h"

using namespace prueba;

namespace {

struct BotonesDeAsiento : MesaViva {
    BotonesDeAsiento() {
        p.UsaLienzosRegistrados();
        Juega(kBlackJack);
        estado.JugadorBanca = 2;
    }
    Rectangulo Donde(Control control, int indice) { return p.Tablero().LugarDe({control, indice}); }
    std::vector<std::string> Digitos() {
        std::vector<std::string> suyos;
        for (const std::string& llamada : p.Dibujado(Control::Pic_APBotIgualar).Llamadas())
            suyos.push_back(llamada);
        return suyos;
    }
};

bool DentroDe(const Rectangulo& r, int ancho, int alto) {
    return r.x >= 0 && r.y >= 0 && r.x + r.ancho <= ancho && r.y + r.alto <= alto;
}

bool SePisan(const Rectangulo& a, const Rectangulo& b) {
    return a.x < b.x + b.ancho && b.x < a.x + a.ancho && a.y < b.y + b.alto && b.y < a.y + a.alto;
}

} // namespace

TEST_F(BotonesDeAsiento, LosDosSuperioresEstanALaVistaYNoSePisan) {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        BotonSuperior(asiento, 1, 1);
        BotonSuperior(asiento, 1, 2);
        const Rectangulo carta = Donde(Control::Pic_BotSuperior, 1);
        const Rectangulo servido = Donde(Control::Pic_BotSuperior, 2);
        EXPECT_TRUE(p.EstaVisible(Control::Pic_BotSuperior, 1));
        EXPECT_EQ(p.PunteroDe(Control::Pic_BotSuperior, 2), Puntero::ManoIndice);
        EXPECT_FALSE(SePisan(carta, servido)) << asiento;
        EXPECT_FALSE(SePisan(carta, ZonaDe(asiento))) << asiento;
        EXPECT_TRUE(DentroDe(carta, estado.AnchoMesa, estado.AltoMesa)) << asiento;
        EXPECT_TRUE(DentroDe(servido, estado.AnchoMesa, estado.AltoMesa)) << asiento;
    }
    EXPECT_EQ(p.Tablero().NombreDe({Control::Pic_BotSuperior, 1}), "Carta");
    EXPECT_EQ(p.Tablero().NombreDe({Control::Pic_BotSuperior, 2}), "Servido");
}

TEST_F(BotonesDeAsiento, EnLaBancaVanTreintaYOchoOMasAParteParaDejarSitioAlMazo) {
    for (int indice = 1; indice <= 2; ++indice) {
        estado.JugadorBanca = 2;
        ColocarMazo();
        BotonSuperior(2, 1, indice);
        const Rectangulo de_la_banca = Donde(Control::Pic_BotSuperior, indice);
        const Rectangulo mazo{estado.MazoX, estado.MazoY, kAnchoCarta, kAltoCarta};
        EXPECT_FALSE(SePisan(de_la_banca, mazo)) << indice;
        estado.JugadorBanca = 4;
        BotonSuperior(2, 1, indice);
        const int aparte = de_la_banca.x - Donde(Control::Pic_BotSuperior, indice).x;
        EXPECT_GE(indice == 1 ? -aparte : aparte, 38) << indice;
    }
}

TEST_F(BotonesDeAsiento, LosLateralesVanUnoACadaLado) {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        BotonLateral(asiento, 1, 1);
        BotonLateral(asiento, 1, 2);
        const Rectangulo antes = Donde(Control::Pic_BotLateral, 1);
        const Rectangulo despues = Donde(Control::Pic_BotLateral, 2);
        EXPECT_FALSE(SePisan(antes, ZonaDe(asiento))) << asiento;
        EXPECT_FALSE(SePisan(despues, ZonaDe(asiento))) << asiento;
        EXPECT_LT(AsientoLateral(asiento) ? antes.y : antes.x,
                  AsientoLateral(asiento) ? despues.y : despues.x);
        EXPECT_TRUE(DentroDe(antes, estado.AnchoMesa, estado.AltoMesa)) << asiento;
        EXPECT_TRUE(DentroDe(despues, estado.AnchoMesa, estado.AltoMesa)) << asiento;
    }
}

TEST_F(BotonesDeAsiento, DoblarYSeguroDicenLoQueSon) {
    BotonDobSeg(4, 1, "D o b l a r");
    EXPECT_EQ(p.Tablero().NombreDe({Control::Pic_BotDobSeg, 0}), "Doblar");
    BotonDobSeg(4, 1, "S e g u r o");
    EXPECT_EQ(p.Tablero().NombreDe({Control::Pic_BotDobSeg, 0}), "Seguro");
    EXPECT_TRUE(p.EstaVisible(Control::Pic_BotDobSeg, 0));
}

TEST_F(BotonesDeAsiento, UnNumeroVaALaDerechaConDigitosDeDiezPixeles) {
    PintarNumero(Control::Pic_APBotIgualar, 0, 5, 7, "42", 4);
    EXPECT_EQ(Digitos(), (std::vector<std::string>{"Lamina(5, 7)", "Lamina(15, 7)", "Lamina(25, 7)",
                                                   "Lamina(35, 7)"}));
}

TEST_F(BotonesDeAsiento, UnMarcoTieneDosExtremosYSuTira) {
    PintarMarco(Control::Pic_APBotIgualar, 0, 0, 0, 20, 30);
    // The pieces are 24 high and stand in the middle of the 30.
    EXPECT_EQ(Digitos().front(), "Lamina(0, 3)");
    EXPECT_EQ(Digitos().back(), "Lamina(15, 3)");
    EXPECT_EQ(Digitos().size(), 2U + 10U);
}

TEST_F(BotonesDeAsiento, LaPlacaDeTantosSoloSaleDondeSeCuenta) {
    PonMano(4, {{kOros, 5}});
    MostrarPuntos(4);
    EXPECT_TRUE(p.EstaVisible(Control::Pic_Tantos, 4));
    Juega(kCinquillo);
    MostrarPuntos(3);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_Tantos, 3));
}

TEST_F(BotonesDeAsiento, SinTantosYParaLaBancaSinTurnoNoHayPlaca) {
    Juega(kBlackJack);
    estado.JugadorBanca = 2;
    estado.JugadorActual = 4;
    PonMano(2, {{kOros, 5}});
    for (const int asiento : {2, 4}) {
        MostrarPuntos(asiento);
        EXPECT_FALSE(p.EstaVisible(Control::Pic_Tantos, asiento)) << "asiento " << asiento;
    }
    estado.JugadorActual = 2;
    MostrarPuntos(2);
    EXPECT_TRUE(p.EstaVisible(Control::Pic_Tantos, 2));
    PonMano(2, {});
    MostrarPuntos(2);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_Tantos, 2));
}

TEST_F(BotonesDeAsiento, FueraDeSuTurnoUnAsientoEnsenaSuUltimaSerie) {
    Juega(kBlackJack);
    estado.JugadorActual = 4;
    estado.SeriesJugador(1) = 3;
    estado.SeriesJugador(4) = 3;
    estado.SerieActual = 2;
    EXPECT_EQ(SerieALaVista(1), 3);
    EXPECT_EQ(SerieALaVista(4), 2);
    Juega(kPoker);
    EXPECT_EQ(SerieALaVista(1), estado.SerieActual);
}

TEST_F(BotonesDeAsiento, ConOtroTamanoLaPlacaDeTantosSigueAsuAsiento) {
    PonMano(3, {{kOros, 5}});
    MostrarPuntos(3);
    const Rectangulo antes = Donde(Control::Pic_Tantos, 3);
    p.Mide(1000, 700);
    CambiaTamano();
    const Rectangulo despues = Donde(Control::Pic_Tantos, 3);
    EXPECT_EQ(despues.x, antes.x + 200);
    EXPECT_EQ(despues.y, antes.y + 50);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_Tantos, 4));
}
