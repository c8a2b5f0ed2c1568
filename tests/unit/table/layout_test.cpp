#include "table/button_column.h"
#include "table/layout.h"
#include "table/whole_table.h"

#include <gtest/gtest.h>

#include "tests/support/live_table.h"

using namespace prueba;

namespace {

struct Zona {
    int izquierda, arriba, derecha, abajo;
    friend bool operator==(const Zona&, const Zona&) = default;
};

void PrintTo(const Zona& z, std::ostream* salida) {
    *salida << z.izquierda << ',' << z.arriba << " - " << z.derecha << ',' << z.abajo;
}

Zona ZonaDelAsiento(int asiento) {
    return {estado.MesaIzquierda(asiento), estado.MesaArriba(asiento), estado.MesaDerecha(asiento),
            estado.MesaAbajo(asiento)};
}

struct Lugares : MesaViva {
    void Mide(int ancho, int alto) {
        p.Mide(ancho, alto);
        CalcularMesa();
    }
    // The corner of a card of a hand in line.
    static Rectangulo Esquina(int asiento, int lugar, int cartas) {
        ColocarCarta(asiento, lugar, cartas);
        return {estado.CartaX, estado.CartaY, 0, 0};
    }
    static Rectangulo En(int x, int y) { return {x, y, 0, 0}; }
};

bool SePisan(const Rectangulo& a, const Rectangulo& b) {
    return a.x < b.x + b.ancho && b.x < a.x + a.ancho && a.y < b.y + b.alto && b.y < a.y + a.alto;
}

} // namespace

TEST_F(Lugares, LaMesaDe800Por600) {
    EXPECT_EQ(estado.AnchoMesa, 710);
    EXPECT_EQ(estado.AltoMesa, 600);
    EXPECT_EQ(estado.CentroX, 355);
    EXPECT_EQ(estado.CentroY, 300);
    EXPECT_EQ(ZonaDelAsiento(1), (Zona{0, 175, 160, 425}));
    EXPECT_EQ(ZonaDelAsiento(2), (Zona{230, 0, 480, 160}));
    EXPECT_EQ(ZonaDelAsiento(3), (Zona{549, 175, 710, 425}));
    EXPECT_EQ(ZonaDelAsiento(4), (Zona{230, 438, 480, 599}));
}

TEST_F(Lugares, UnaPantallaMenorCuentaComoLaMinima) {
    Mide(640, 480);
    EXPECT_EQ(estado.AnchoPantalla, 800);
    EXPECT_EQ(estado.AltoPantalla, 600);
    EXPECT_EQ(ZonaDelAsiento(3), (Zona{549, 175, 710, 425}));
}

TEST_F(Lugares, AnchoDeSobraConPocoAltoSoloCreceALoAncho) {
    Mide(1024, 500);
    EXPECT_EQ(estado.AnchoMesa, 934);
    EXPECT_EQ(estado.AltoPantalla, 600);
    EXPECT_EQ(ZonaDelAsiento(2), (Zona{342, 0, 592, 160}));
    EXPECT_EQ(ZonaDelAsiento(4), (Zona{342, 438, 592, 599}));
}

TEST_F(Lugares, LosMediosPixelesVanAlPar) {
    Mide(1367, 769);
    EXPECT_EQ(estado.CentroX, 638);          // 638.5
    EXPECT_EQ(estado.CentroY, 384);          // 384.5
    EXPECT_EQ(estado.MesaIzquierda(2), 514); // 513.5
    EXPECT_EQ(estado.MesaArriba(1), 260);    // 259.5
    EXPECT_EQ(estado.MesaAbajo(1), 510);
}

TEST_F(Lugares, LosLugaresDelCentro) {
    const auto lugar = [](int asiento) {
        const Punto punto = LugarCentro(asiento);
        return En(punto.x, punto.y);
    };
    EXPECT_EQ(lugar(1), En(259, 230)); // 355 - 96, 300 - 70.5
    EXPECT_EQ(lugar(2), En(304, 164)); // 355 - 50.5, 300 - 136
    EXPECT_EQ(lugar(3), En(350, 230));
    EXPECT_EQ(lugar(4), En(304, 295));
}

TEST_F(Lugares, UnaCartaSolaQuedaEnElMedioDeSuZona) {
    EXPECT_EQ(Esquina(4, 1, 1), En(304, 441)); // 230 + 74.5
    EXPECT_EQ(Esquina(2, 1, 1), En(304, 18));
    EXPECT_EQ(Esquina(1, 1, 1), En(18, 250)); // 175 + 74.5
    EXPECT_EQ(Esquina(3, 1, 1), En(551, 250));
}

TEST_F(Lugares, DosCartasNoSePisan) {
    EXPECT_EQ(Esquina(4, 1, 2), En(254, 441));
    EXPECT_EQ(Esquina(4, 2, 2), En(355, 441));
}

TEST_F(Lugares, OnceCartasVanCadaCatorce) {
    EXPECT_EQ(Esquina(4, 1, 11), En(234, 441));  // 230 + (250 - 241) / 2
    EXPECT_EQ(Esquina(4, 2, 11), En(248, 441));  // 248.5
    EXPECT_EQ(Esquina(4, 11, 11), En(374, 441)); // 374.5
}

TEST_F(Lugares, ElPrimerLugarEsElDeArribaEnLosLados) {
    EXPECT_EQ(Esquina(1, 1, 10), En(18, 178)); // 175 + (250 - 245) / 2, half to even
    EXPECT_EQ(Esquina(1, 10, 10), En(18, 322));
    EXPECT_EQ(Esquina(3, 1, 10), En(551, 178));
    EXPECT_EQ(Esquina(3, 10, 10), En(551, 322));
}

TEST_F(Lugares, UnaManoVaciaSeColocaComoUnaCarta) {
    EXPECT_EQ(Esquina(4, 1, 0), Esquina(4, 1, 1));
}

TEST_F(Lugares, UnaCartaLevantadaEntraVeinteEnLaMesa) {
    for (int asiento = 1; asiento <= 4; ++asiento)
        estado.Mano(asiento, 1, 3, kAltura) = kLevantada;
    EXPECT_EQ(Esquina(1, 3, 5).x, 18 + 20);
    EXPECT_EQ(Esquina(2, 3, 5).y, 18 + 20);
    EXPECT_EQ(Esquina(3, 3, 5).x, 551 - 20);
    EXPECT_EQ(Esquina(4, 3, 5).y, 441 - 20);
    EXPECT_EQ(Esquina(4, 2, 5).y, 441);
}

TEST_F(Lugares, TodaCartaEnLineaCabeEnSuZona) {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const Rectangulo zona = ZonaDe(asiento);
        for (int cartas = 1; cartas <= 14; ++cartas) {
            for (int lugar = 1; lugar <= cartas; ++lugar) {
                const Rectangulo carta = Esquina(asiento, lugar, cartas);
                const bool acostada = AsientoLateral(asiento);
                EXPECT_GE(carta.x, zona.x);
                EXPECT_GE(carta.y, zona.y);
                EXPECT_LE(carta.x + (acostada ? kAltoCarta : kAnchoCarta), zona.x + zona.ancho);
                EXPECT_LE(carta.y + (acostada ? kAnchoCarta : kAltoCarta), zona.y + zona.alto);
            }
        }
    }
}

TEST_F(Lugares, LosLadosSeAcuestanYLosOtrosEstanDePie) {
    for (int asiento : {1, 3})
        EXPECT_EQ(OrientacionDe(asiento) % 2, 0) << asiento;
    for (int asiento : {2, 4})
        EXPECT_EQ(OrientacionDe(asiento) % 2, 1) << asiento;
    EXPECT_EQ(OrientacionDe(4), 1);
    EXPECT_EQ(OrientacionDe(1), 2);
    EXPECT_EQ(OrientacionDe(2), 3);
    EXPECT_EQ(OrientacionDe(3), 4);
}

struct DondeElMazo {
    Integer juego, banca;
    int x, y;
};

TEST_F(Lugares, ElMazoDeCadaJuego) {
    const DondeElMazo donde[] = {
        {kTute, 2, 304, 230},        {kBrisca, 2, 304, 230},      {kCinquillo, 2, 304, 230},
        {kBlackJack, 2, 304, 171},   {kSieteYMedia, 2, 304, 171}, {kSieteYMedia, 1, 178, 230},
        {kSieteYMedia, 3, 422, 230}, {kPoker, 2, 197, 230},
    };
    for (const DondeElMazo& caso : donde) {
        estado.JuegoActivo = caso.juego;
        estado.JugadorBanca = caso.banca;
        ColocarMazo();
        EXPECT_EQ(estado.MazoX, caso.x) << caso.juego << " banca " << caso.banca;
        EXPECT_EQ(estado.MazoY, caso.y) << caso.juego << " banca " << caso.banca;
    }
}

TEST_F(Lugares, LasFichasDeCadaAreaVanEnDosColumnasDeTresPilasCada38) {
    for (int area = 0; area <= 14; ++area) {
        for (int ficha = 1; ficha <= 6; ++ficha) {
            EXPECT_EQ(estado.PosFichaX(area, ficha) - estado.PosFichaX(area, 1),
                      ficha <= 3 ? 0 : 38);
            EXPECT_EQ(estado.PosFichaY(area, ficha) - estado.PosFichaY(area, 1),
                      (ficha - 1) % 3 * 38);
        }
    }
}

TEST_F(Lugares, LaPilaNoPisaNingunaZona) {
    for (Integer juego : {kPoker, kBlackJack, kTute, kBrisca, kSieteYMedia, kCinquillo}) {
        for (Integer banca = 1; banca <= 4; ++banca) {
            estado.JuegoActivo = juego;
            estado.JugadorBanca = juego == kBlackJack ? Integer{2} : banca;
            ColocarMazo();
            // Forty cards lie in ten steps of one pixel.
            const Rectangulo pila{estado.MazoX, estado.MazoY, kAnchoCarta + 10, kAltoCarta + 13};
            for (int asiento = 1; asiento <= 4; ++asiento)
                EXPECT_FALSE(SePisan(pila, ZonaDe(asiento)))
                    << "juego " << juego << ", banca " << banca << ", asiento " << asiento;
        }
    }
}

TEST_F(Lugares, ConOtroTamanoElMazoSigueEnSuSitio) {
    Mide(1366, 768);
    EXPECT_EQ(estado.MazoX, 588); // 638 - 50.5
    EXPECT_EQ(estado.MazoY, 314); // 384 - 70.5
}

TEST_F(Lugares, UnTamanoNuevoNoTocaLoQueEstaHabilitado) {
    HabilitaBoton(kBotonNueva, false);
    HabilitaBoton(kBotonTutor, true);
    p.Mide(1366, 768);
    CambiaTamano();
    EXPECT_EQ(estado.AnchoMesa, 1276);
    EXPECT_FALSE(BotonHabilitado(kBotonNueva));
    EXPECT_TRUE(BotonHabilitado(kBotonTutor));
    EXPECT_EQ(p.Tablero().LugarDe({Control::Pic_Botonera, 0}).x, 1276);
}

TEST_F(Lugares, CalcularMesaDeshabilitaTutorNormasYEstadisticas) {
    p.formas = {Forma::Personal, Forma::Normas, Forma::Marcador, Forma::Estadis};
    CalcularMesa();
    for (int boton = 1; boton <= 8; ++boton)
        EXPECT_EQ(BotonHabilitado(boton), boton != 3 && boton != 4 && boton != 8) << boton;
}
