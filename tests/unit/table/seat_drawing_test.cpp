// A seat on the felt: cards, name, caption, the winner's mark.

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "table/seat_drawing.h"
#include "table/table_view.h"
#include "table/whole_table.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::HasSubstr;

namespace {

struct AsientoEnMesa : MesaViva {
    AsientoEnMesa() {
        p.UsaLienzosRegistrados();
        PonMano(4, {{kOros, 1}, {kCopas, 2}, {kBastos, 3}});
    }
    std::vector<std::string> Dibujado(const std::string& que) {
        return Pintado(Control::Mesa, que);
    }
    static void PonRotulo(Integer asiento, const std::string& texto, Color color,
                          Integer parpadeos) {
        estado.RotuloSerie(asiento, 1) = texto;
        estado.ColorRotulo(asiento, 1) = color;
        estado.ParpadeoRotulo(asiento, 1) = parpadeos;
    }
};

} // namespace

TEST_F(AsientoEnMesa, LimpiaSuZonaYPintaSusCartasDeLaPrimeraALaUltima) {
    RedibujarAsiento(4);
    EXPECT_EQ(Dibujado("Fieltro").front(), "Fieltro(230, 438, 251, 162)");
    EXPECT_EQ(Dibujado("Carta"),
              (std::vector<std::string>{"Carta(230, 441; palo 1 valor 1 cara 2 orientación 1)",
                                        "Carta(304, 441; palo 2 valor 2 cara 2 orientación 1)",
                                        "Carta(378, 441; palo 4 valor 3 cara 2 orientación 1)"}));
}

TEST_F(AsientoEnMesa, UnAsientoOcultoEnsenaElDorsoAcostado) {
    PonMano(1, {{kOros, 1}});
    RedibujarAsiento(1);
    EXPECT_EQ(Dibujado("Carta"),
              (std::vector<std::string>{"Carta(18, 250; palo 1 valor 1 cara 1 orientación 2)"}));
}

TEST_F(AsientoEnMesa, LaCartaQueSeArrastraNoSePinta) {
    vista.asiento_arrastrado = 4;
    estado.ArrastraCarta = true;
    estado.CartaMovida = 2;
    RedibujarAsiento(4);
    EXPECT_EQ(Dibujado("Carta").size(), 2U);
    EXPECT_THAT(Dibujado("Carta")[1], HasSubstr("palo 4 valor 3"));
}

TEST_F(AsientoEnMesa, UnaCartaLevantadaSePintaDentroDeLaMesa) {
    estado.Mano(4, 1, 2, kAltura) = kLevantada;
    RedibujarAsiento(4);
    EXPECT_THAT(Dibujado("Carta")[1], HasSubstr("Carta(304, 421;"));
}

TEST_F(AsientoEnMesa, AlBajarLaCartaSeLimpiaTambienDondeLlegaba) {
    estado.Mano(4, 1, 2, kAltura) = kLevantada;
    RedibujarAsiento(4);
    estado.Mano(4, 1, 2, kAltura) = kEnLinea;
    p.Dibujado(Control::Mesa).Olvida();
    RedibujarAsiento(4);
    EXPECT_EQ(Dibujado("Fieltro").front(), "Fieltro(230, 418, 251, 182)");
}

TEST_F(AsientoEnMesa, UnRotuloVerdeParpadeaConSonidoYSeVa) {
    PonRotulo(4, "Servido", color::kVerde, 2);
    EmpiezaTraza();
    RedibujarAsiento(4);
    EXPECT_EQ(TrazaDe("Pausa"),
              (std::vector<std::string>{"Pausa(250)", "Pausa(500)", "Pausa(250)", "Pausa(500)"}));
    EXPECT_EQ(TrazaDe("Sonido"), (std::vector<std::string>{"Sonido(1, 12)", "Sonido(1, 12)"}));
    EXPECT_EQ(estado.ParpadeoRotulo(4, 1), 0);
    EXPECT_EQ(estado.RotuloSerie(4, 1), "");
}

TEST_F(AsientoEnMesa, UnRotuloDeOtroColorParpadeaEnSilencio) {
    PonRotulo(4, "Paso", color::kBlanco, 1);
    EmpiezaTraza();
    RedibujarAsiento(4);
    EXPECT_EQ(TrazaDe("Pausa").size(), 2U);
    EXPECT_TRUE(TrazaDe("Sonido").empty());
}

TEST_F(AsientoEnMesa, UnRotuloQuietoSeQueda) {
    PonRotulo(4, "Paso", color::kBlanco, 0);
    EmpiezaTraza();
    RedibujarAsiento(4);
    EXPECT_EQ(TrazaDe("MostrarRotulo"), (std::vector<std::string>{"MostrarRotulo(4)"}));
    EXPECT_TRUE(TrazaDe("Pausa").empty());
    EXPECT_EQ(estado.RotuloSerie(4, 1), "Paso");
    // One letter after the other: P, a, s and o.
    EXPECT_EQ(Dibujado("Texto").size(), 4U);
}

TEST_F(AsientoEnMesa, ResaltarParpadeaDosVecesElAsientoDelTurno) {
    estado.JugadorActual = 4;
    EmpiezaTraza();
    ResaltarAsiento();
    EXPECT_EQ(TrazaDe("Pausa"),
              (std::vector<std::string>{"Pausa(140)", "Pausa(340)", "Pausa(140)", "Pausa(340)"}));
    EXPECT_EQ(TrazaDe("RedibujarAsiento"),
              (std::vector<std::string>{"RedibujarAsiento(4)", "RedibujarAsiento(4)"}));
}

TEST_F(AsientoEnMesa, ResaltarEnsenaLosTantosSoloConBanca) {
    estado.JugadorActual = 1;
    EmpiezaTraza();
    ResaltarAsiento();
    EXPECT_TRUE(TrazaDe("MostrarPuntos").empty());
    Juega(kSieteYMedia);
    ResaltarAsiento();
    EXPECT_EQ(TrazaDe("MostrarPuntos"),
              (std::vector<std::string>{"MostrarPuntos(1)", "MostrarPuntos(1)"}));
}

TEST_F(AsientoEnMesa, LosNombresSonLosDeQuienJuega) {
    Desactiva({2});
    estado.NombreJugador(1) = "Ana";
    estado.NombreJugador(2) = "Luis";
    estado.NombreJugador(3) = "Eva";
    estado.NombreJugador(4) = "Íñigo";
    p.Dibujado(Control::Mesa).Olvida();
    MostrarNombres();
    EXPECT_EQ(Dibujado("Texto").size(), 3U + 3U + 5U);
    EXPECT_THAT(Dibujado("Texto").back(), HasSubstr("\"o\""));
}

TEST_F(AsientoEnMesa, LasLetrasDelNombreVanCadaOnceAloAnchoYCadaQuinceALoAlto) {
    for (int asiento : {1, 2, 3, 4})
        estado.NombreJugador(asiento) = asiento == 4 ? "Eva" : asiento == 1 ? "Ana" : "";
    MostrarNombres();
    const auto letras = Dibujado("Texto");
    ASSERT_EQ(letras.size(), 6U);
    EXPECT_THAT(letras[0], HasSubstr("Texto(9, 277, \"A\""));
    EXPECT_THAT(letras[1], HasSubstr("Texto(9, 292, \"n\""));
    EXPECT_THAT(letras[3], HasSubstr("Texto(344, 583, \"E\""));
    EXPECT_THAT(letras[4], HasSubstr("Texto(355, 583, \"v\""));
}

TEST_F(AsientoEnMesa, LaMarcaDelGanadorSePoneYSeQuita) {
    MarcaGanador(4, true);
    EXPECT_EQ(Dibujado("Lamina").size(), 1U);
    EmpiezaTraza();
    MarcaGanador(4, false);
    EXPECT_EQ(TrazaDe("RedibujarAsiento"), (std::vector<std::string>{"RedibujarAsiento(4)"}));
}

TEST_F(AsientoEnMesa, LoQueDejaUnaPartidaAcabadaSigueAhiAlRepintarLaMesa) {
    Juega(kBrisca);
    PonMano(4, {{kOros, 1}, {kCopas, 2}, {kBastos, 3}});
    MostrarNombres();
    estado.PartidaEnCurso = false;
    p.Dibujado(Control::Mesa).Olvida();
    RedibujarMesa();
    EXPECT_EQ(Dibujado("Carta").size(), 3U);
    EXPECT_FALSE(Dibujado("Texto").empty());
    LimpiarMesa();
    p.Dibujado(Control::Mesa).Olvida();
    RedibujarMesa();
    EXPECT_TRUE(Dibujado("Carta").empty());
    EXPECT_EQ(Dibujado("Texto").size(), 2U); // the words of the empty table
}

TEST_F(AsientoEnMesa, UnaCartaTapadaALaVistaVaMedioCubierta) {
    estado.Mano(4, 1, 2, kTapada) = 1;
    RedibujarAsiento(4);
    EXPECT_THAT(Dibujado("Carta")[1], HasSubstr("palo 2 valor 2 cara 2 orientación 1 tapada"));
    EXPECT_THAT(Dibujado("Carta")[2], testing::Not(HasSubstr("tapada")));
}

TEST_F(AsientoEnMesa, UnRotuloSeAnunciaCuandoLlegaYUnaVez) {
    PonRotulo(2, "No quiero cartas", color::kBlanco, 0);
    RedibujarAsiento(2);
    RedibujarAsiento(2);
    EXPECT_EQ(p.anuncios, (std::vector<std::string>{"Jugador2: No quiero cartas"}));
    PonRotulo(2, "Descarto 2 cartas", color::kBlanco, 0);
    RedibujarAsiento(2);
    EXPECT_EQ(p.anuncios.size(), 2U);
}

TEST_F(AsientoEnMesa, UnRotuloQueParpadeaSeAnunciaCadaVezQueVuelve) {
    for (int vez = 0; vez < 2; ++vez) {
        PonRotulo(3, "P a s o", color::kVerde, 3);
        RedibujarAsiento(3);
    }
    EXPECT_EQ(p.anuncios, (std::vector<std::string>{"Jugador3: Paso", "Jugador3: Paso"}));
}

namespace {

struct NombreEncendido : AsientoEnMesa {
    NombreEncendido() {
        for (int asiento = 1; asiento <= 4; ++asiento)
            estado.NombreJugador(asiento) = asiento == 4 ? "Eva" : "Ana";
        MostrarNombres();
        p.Dibujado(Control::Mesa).Olvida();
    }
    bool Hay(const std::string& que) {
        for (const std::string& llamada : p.Dibujado(Control::Mesa).Llamadas()) {
            if (llamada.find(que) != std::string::npos)
                return true;
        }
        return false;
    }
    // Where so many yellow lines end, each place once: the points of arrows.
    std::vector<Punto> Apices(int lineas) {
        std::vector<Punto> fines, apices;
        for (const Trazo& trazo : Trazos())
            fines.push_back(trazo.hasta);
        for (const Punto& fin : fines) {
            if (std::ranges::count(fines, fin) == lineas && !std::ranges::count(apices, fin))
                apices.push_back(fin);
        }
        return apices;
    }
    // How often five yellow lines, each from where the one before it ended, come back to where they began.
    int Estrellas() {
        int estrellas = 0, seguidas = 0;
        Punto fin;
        for (const Trazo& trazo : Trazos()) {
            seguidas = seguidas > 0 && trazo.desde == fin ? seguidas + 1 : 1;
            fin = trazo.hasta;
            estrellas += seguidas % 5 == 0 ? 1 : 0;
        }
        return estrellas;
    }

private:
    struct Trazo {
        Punto desde, hasta;
    };
    std::vector<Trazo> Trazos() {
        std::vector<Trazo> trazos;
        for (const std::string& llamada : Dibujado("Linea")) {
            Trazo t;
            EXPECT_EQ(std::sscanf(llamada.c_str(), "Linea(%d, %d, %d, %d;", &t.desde.x, &t.desde.y,
                                  &t.hasta.x, &t.hasta.y),
                      4);
            if (llamada.find("; 00FFFF, ") != std::string::npos)
                trazos.push_back(t);
        }
        return trazos;
    }
};

constexpr int kLineasDePunta = 9;

} // namespace

TEST_F(NombreEncendido, ElDelTurnoLoEstaPorColorYPorSusSenales) {
    estado.JugadorActual = 4;
    EnciendeTurno();
    EXPECT_TRUE(Hay("\"E\"; 14 negrita hasta 11, 00FFFF"));
    // One at each side of the name, which is three letters of 11 pixels around 355; both look at it.
    const std::vector<Punto> apices = Apices(kLineasDePunta);
    ASSERT_EQ(apices.size(), 2U);
    EXPECT_EQ(apices[0].y, apices[1].y);
    EXPECT_GT(apices[0].x, 355 - 17 - 20);
    EXPECT_LT(apices[0].x, 355 - 17);
    EXPECT_GT(apices[1].x, 355 + 17);
    EXPECT_LT(apices[1].x, 355 + 17 + 20);
}

// Which fonts a desktop has does not matter to them.
TEST_F(NombreEncendido, LasSenalesNoSonLetras) {
    estado.JugadorActual = 4;
    EnciendeTurno();
    EnciendeBaza(4);
    ASSERT_FALSE(Dibujado("Texto").empty());
    for (const std::string& letra : Dibujado("Texto"))
        EXPECT_THAT(letra,
                    testing::AnyOf(HasSubstr("\"E\""), HasSubstr("\"v\""), HasSubstr("\"a\"")));
}

TEST_F(NombreEncendido, AlosLadosLasSenalesMiranAlNombreDesdeArribaYDesdeAbajo) {
    estado.JugadorActual = 1;
    EnciendeTurno();
    const std::vector<Punto> apices = Apices(kLineasDePunta);
    ASSERT_EQ(apices.size(), 2U);
    EXPECT_EQ(apices[0].x, 9);
    EXPECT_EQ(apices[1].x, 9);
    EXPECT_LT(apices[0].y, ZonaDe(1).y + ZonaDe(1).alto / 2 - 22);
    EXPECT_GT(apices[1].y, ZonaDe(1).y + ZonaDe(1).alto / 2 + 22);
}

TEST_F(NombreEncendido, SigueEncendidoCuandoElAsientoSeRepinta) {
    estado.JugadorActual = 4;
    ResaltarAsiento();
    p.Dibujado(Control::Mesa).Olvida();
    RedibujarAsiento(4);
    EXPECT_EQ(Apices(kLineasDePunta).size(), 2U);
}

TEST_F(NombreEncendido, SoloHayUno) {
    estado.JugadorActual = 4;
    EnciendeTurno();
    estado.JugadorActual = 2;
    p.Dibujado(Control::Mesa).Olvida();
    EnciendeTurno();
    EXPECT_TRUE(Hay("\"E\"; 14 negrita hasta 11, FFFFFF"));
    EXPECT_EQ(vista.asiento_encendido, 2);
}

TEST_F(NombreEncendido, ElQueGanaLaBazaLlevaOtraSenal) {
    EnciendeBaza(4);
    EXPECT_EQ(Estrellas(), 2);
    EXPECT_TRUE(Apices(kLineasDePunta).empty());
    p.Dibujado(Control::Mesa).Olvida();
    ApagaNombre();
    EXPECT_EQ(Estrellas(), 0);
    EXPECT_TRUE(Hay("FFFFFF"));
}

TEST_F(AsientoEnMesa, LaMarcaDelGanadorSigueCuandoElAsientoSeRepinta) {
    MarcaGanador(4, true);
    EXPECT_EQ(Dibujado("Lamina"), (std::vector<std::string>{"Lamina(309, 473)"}));
    p.Dibujado(Control::Mesa).Olvida();
    RedibujarAsiento(4);
    EXPECT_EQ(Dibujado("Lamina").size(), 1U);
    MarcaGanador(4, false);
    p.Dibujado(Control::Mesa).Olvida();
    RedibujarAsiento(4);
    EXPECT_TRUE(Dibujado("Lamina").empty());
}

TEST_F(AsientoEnMesa, ElCanteSeLeeDelanteDeLasCartasLevantadas) {
    for (const int asiento : {1, 2, 3, 4}) {
        p.Dibujado(Control::Mesa).Olvida();
        MuestraCante(asiento, "Veinte en Oros");
        const Rectangulo zona = ZonaConRealce(asiento);
        const int fuera = asiento == 1   ? zona.x + zona.ancho
                          : asiento == 2 ? zona.y + zona.alto
                          : asiento == 3 ? zona.x - 20
                                         : zona.y - 20;
        const Rectangulo banda =
            asiento == 1 || asiento == 3
                ? Rectangulo{fuera, ZonaDe(asiento).y, 18, ZonaDe(asiento).alto}
                : Rectangulo{ZonaDe(asiento).x, fuera, ZonaDe(asiento).ancho, 18};
        EXPECT_THAT(Dibujado("Caja").front(),
                    HasSubstr(fmt::format("Caja({}, {}, {}, {};", banda.x, banda.y, banda.ancho,
                                          banda.alto)))
            << asiento;
        QuitaCante(asiento);
        EXPECT_EQ(Dibujado("Fieltro").back(), fmt::format("Fieltro({}, {}, {}, {})", banda.x,
                                                          banda.y, banda.ancho, banda.alto));
    }
}
