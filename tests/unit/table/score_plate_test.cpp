// The plate of trump and match: what it says, and where it stands.

#include "table/score_plate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "betting/chips.h"
#include "core/session_state.h"
#include "games/common/trick_state.h"
#include "games/game_rows.h"
#include "platform/headless/headless_platform.h"
#include "table/bet_board.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/side_buttons.h"
#include "table/table_view.h"
#include "table/whole_table.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

struct PlacaDeLaPartida : MesaViva {
    PlacaDeLaPartida() {
        p.UsaLienzosRegistrados();
        const char* const nombres[] = {"", "Ana", "Luis", "Eva", "Juan"};
        for (int asiento = 1; asiento <= 4; ++asiento)
            estado.NombreJugador(asiento) = nombres[asiento];
    }
    // The third hand of a match is on.
    void Empieza(Integer juego) {
        Juega(juego);
        estado.PartidaEnCurso = true;
        estado.JuegosJugados = 3;
        estado.LimitePartida = 5;
        vista.nombres = true;
        if (juego == kPoker || juego == kBlackJack || juego == kSieteYMedia) {
            for (int asiento = 1; asiento <= 4; ++asiento)
                AsignarResto(asiento, static_cast<Integer>(1000 + asiento));
        }
    }
    std::vector<std::string> Palabras() {
        std::vector<std::string> palabras;
        for (const std::string& llamada : p.Dibujado(Control::Pic_Tanteo).Llamadas()) {
            const auto abre = llamada.find('"');
            if (llamada.starts_with("Texto("))
                palabras.push_back(llamada.substr(abre + 1, llamada.rfind('"') - abre - 1));
        }
        return palabras;
    }
    // The top of the line where these words were first drawn.
    int AlturaDe(const std::string& palabras) {
        for (const std::string& llamada : p.Dibujado(Control::Pic_Tanteo).Llamadas()) {
            if (llamada.find('"' + palabras + '"') != std::string::npos)
                return std::stoi(llamada.substr(llamada.find(',') + 1));
        }
        return -1;
    }
    Rectangulo Lugar() { return p.Tablero().LugarDe({Control::Pic_Tanteo, 0}); }
    bool SeVe() { return p.EstaVisible(Control::Pic_Tanteo, 0); }
};

bool SeCortan(const Rectangulo& a, const Rectangulo& b) {
    return a.x < b.x + b.ancho && b.x < a.x + a.ancho && a.y < b.y + b.alto && b.y < a.y + a.alto;
}

struct Tamano {
    int ancho, alto;
};
constexpr Tamano kTamanos[] = {{800, 600},  {801, 601},   {800, 1200},  {1024, 600},
                               {1024, 768}, {1280, 720},  {1280, 800},  {1366, 768},
                               {1600, 900}, {1920, 1080}, {2560, 1440}, {3840, 2160}};

} // namespace

TEST_F(PlacaDeLaPartida, EnElTuteDiceElTriunfoYLasManosGanadas) {
    Empieza(kTute);
    estado.PaloTriunfo = kCopas;
    estado.JuegosGanados(2) = 2;
    PintaTanteo();
    EXPECT_TRUE(SeVe());
    EXPECT_THAT(Palabras(), ElementsAre("Mano 3", "Triunfo: Copas", "Ana", "0 de 5", "Luis",
                                        "2 de 5", "Eva", "0 de 5", "Juan", "0 de 5"));
    EXPECT_EQ(p.Tablero().NombreDe({Control::Pic_Tanteo, 0}),
              "Mano 3. Triunfo: Copas. Ana: 0 de 5. Luis: 2 de 5. Eva: 0 de 5. Juan: 0 de 5");
}

TEST_F(PlacaDeLaPartida, ElPaloDelTriunfoSeVeTambienDibujado) {
    Empieza(kBrisca);
    estado.PaloTriunfo = kOros;
    PintaTanteo();
    EXPECT_THAT(p.Dibujado(Control::Pic_Tanteo).Llamadas(), testing::Contains("Lamina(6, 18)"));
}

TEST_F(PlacaDeLaPartida, AntesDeDescubrirElTriunfoNoDiceNinguno) {
    Empieza(kBrisca);
    PintaTanteo();
    EXPECT_THAT(Palabras(), testing::Not(testing::Contains(HasSubstr("Triunfo"))));
    // Its room is kept, so that the plate stays where it is when the trump is turned.
    const Rectangulo antes = Lugar();
    estado.PaloTriunfo = kBastos;
    RefrescaTanteo();
    EXPECT_EQ(Lugar(), antes);
    EXPECT_THAT(Palabras(), testing::Contains("Triunfo: Bastos"));
}

TEST_F(PlacaDeLaPartida, PorParejasSeCuentaElDeLaPareja) {
    estado.ModalidadJuego = kDosParejas;
    Empieza(kTute);
    estado.JuegosGanados(1) = 4;
    PintaTanteo();
    EXPECT_THAT(Palabras(),
                ElementsAre("Mano 3", "Ana y", "Eva", "4 de 5", "Luis y", "Juan", "0 de 5"));
    EXPECT_EQ(TextoDelTanteo(), "Mano 3. Ana y Eva: 4 de 5. Luis y Juan: 0 de 5");
}

// A line for each name, as high as with four seats: what the pair has won stands in the line of the second.
TEST_F(PlacaDeLaPartida, LosNombresDeUnaParejaVanUnoBajoOtro) {
    Empieza(kBrisca);
    PintaTanteo();
    const Rectangulo sueltos = Lugar();
    estado.ModalidadJuego = kDosParejas;
    p.Dibujado(Control::Pic_Tanteo).Olvida();
    PintaTanteo();
    EXPECT_EQ(Lugar(), sueltos);
    EXPECT_EQ(AlturaDe("Eva"), AlturaDe("Ana y") + 15);
    EXPECT_EQ(AlturaDe("Luis y"), AlturaDe("Eva") + 15);
    EXPECT_EQ(AlturaDe("0 de 5"), AlturaDe("Eva"));
}

TEST_F(PlacaDeLaPartida, QuienNoJuegaNoEsta) {
    Desactiva({2, 3});
    Empieza(kBrisca);
    PintaTanteo();
    EXPECT_THAT(Palabras(), ElementsAre("Mano 3", "Ana", "0 de 5", "Juan", "0 de 5"));
}

TEST_F(PlacaDeLaPartida, LosTantosDeLaManoNoSeDicen) {
    Empieza(kTute);
    const std::string antes = TextoDelTanteo();
    bazas.TantosJugador(1) = 47;
    bazas.TantosBaza = 11;
    EXPECT_EQ(TextoDelTanteo(), antes);
}

TEST_F(PlacaDeLaPartida, EnElPokerDiceLoQueTieneCadaUno) {
    Empieza(kPoker);
    PintaTanteo();
    EXPECT_THAT(Palabras(), ElementsAre("Mano 3", "Ana", "1,001", "Luis", "1,002", "Eva", "1,003",
                                        "Juan", "1,004"));
}

TEST_F(PlacaDeLaPartida, ConBancaDiceQuienLaTiene) {
    Empieza(kSieteYMedia);
    estado.JugadorBanca = 3;
    PintaTanteo();
    EXPECT_THAT(Palabras(), testing::Contains("Eva (banca)"));
    EXPECT_THAT(Palabras(), testing::Contains("Ana"));
}

TEST_F(PlacaDeLaPartida, LaBancaQueSeLlamaAsiNoLoDiceDosVeces) {
    Empieza(kBlackJack);
    estado.NombreJugador(2) = "Banca";
    estado.JugadorBanca = 2;
    PintaTanteo();
    EXPECT_THAT(Palabras(), testing::Contains("Banca"));
    EXPECT_THAT(Palabras(), testing::Not(testing::Contains(HasSubstr("(banca)"))));
}

TEST_F(PlacaDeLaPartida, SigueALasFichasQueSeMueven) {
    Empieza(kPoker);
    PintaTanteo();
    AsignarResto(4, 900);
    RedibujarAsiento(4);
    EXPECT_THAT(p.Tablero().NombreDe({Control::Pic_Tanteo, 0}), HasSubstr("Juan: 900"));
}

TEST_F(PlacaDeLaPartida, SinPartidaNoHayPlaca) {
    Empieza(kCinquillo);
    PintaTanteo();
    ASSERT_TRUE(SeVe());
    LimpiarMesa();
    PintaTanteo();
    EXPECT_FALSE(SeVe());
}

TEST_F(PlacaDeLaPartida, AlEmpezarOtraPartidaSeQuitaLaDeAntes) {
    Empieza(kCinquillo);
    PintaTanteo();
    OcultaControlesMesa();
    EXPECT_FALSE(SeVe());
}

TEST_F(PlacaDeLaPartida, UnaManoGanadaSeVeEnElla) {
    Juega(kCinquillo);
    TodoSolo();
    estado.LimitePartida = 1;
    estado.PausaEntreJugadas = false;
    p.siempre_continua = true;
    NuevaPartida();
    EXPECT_THAT(p.Tablero().NombreDe({Control::Pic_Tanteo, 0}), HasSubstr("1 de 1"));
}

TEST_F(PlacaDeLaPartida, QuienLlevaLaMarcaLaTieneYaGanadaAntesDeQueSeApunte) {
    const auto dicho = [&] { return p.Tablero().NombreDe({Control::Pic_Tanteo, 0}); };
    Empieza(kTute);
    estado.JuegosGanados(2) = 1;
    sesion.mano_apuntada = false;
    PintaTanteo();
    EXPECT_THAT(dicho(), HasSubstr("Luis: 1 de 5"));
    DejaMarcaGanador(2);
    EXPECT_THAT(dicho(), HasSubstr("Luis: 2 de 5"));
    EXPECT_THAT(dicho(), HasSubstr("Eva: 0 de 5"));
    estado.JuegosGanados(2) = 2; // the player goes on
    sesion.mano_apuntada = true;
    PintaTanteo();
    EXPECT_THAT(dicho(), HasSubstr("Luis: 2 de 5"));
}

namespace {

struct PlacaATodosLosTamanos : PlacaDeLaPartida {
    // In every game, by seats and by pairs, at every size.
    template <class Mira>
    void Siempre(Mira mira) {
        for (const Integer juego : {kPoker, kBlackJack, kTute, kBrisca, kSieteYMedia, kCinquillo}) {
            for (const Integer modalidad : {kIndividual, kDosParejas}) {
                estado.ModalidadJuego = modalidad;
                Empieza(juego);
                ACadaTamano(mira);
            }
        }
    }
    void NoCorta(const Rectangulo& otro, const char* que) {
        EXPECT_FALSE(SeCortan(Lugar(), otro)) << que << ' ' << otro.x << ',' << otro.y;
    }
    void NoTapa(Control control, int indice) {
        NoCorta(p.Tablero().LugarDe({control, indice}), NombreDe(control));
    }
    void NoTapaLasFichas(int area) {
        for (int ficha = 1; ficha <= 6; ++ficha) {
            NoCorta({estado.PosFichaX(area, ficha), estado.PosFichaY(area, ficha) - kCreceFicha,
                     kLadoFicha, kLadoFicha + kCreceFicha},
                    "fichas");
        }
    }

private:
    template <class Mira>
    void ACadaTamano(Mira mira) {
        for (const Tamano& tamano : kTamanos) {
            SCOPED_TRACE(testing::Message()
                         << estado.JuegoActivo << " a " << tamano.ancho << 'x' << tamano.alto);
            p.Mide(tamano.ancho, tamano.alto);
            CalcularMesa();
            PintaTanteo();
            mira();
        }
    }
};

} // namespace

TEST_F(PlacaATodosLosTamanos, EstaEnteraEnLaMesa) {
    Siempre([this] {
        EXPECT_GE(Lugar().x, 0);
        EXPECT_GE(Lugar().y, 0);
        EXPECT_LE(Lugar().x + Lugar().ancho, estado.AnchoMesa);
        EXPECT_LE(Lugar().y + Lugar().alto, estado.AltoMesa);
    });
}

TEST_F(PlacaATodosLosTamanos, NoTapaCartasNiConsejos) {
    Siempre([this] {
        for (int asiento = 1; asiento <= 4; ++asiento) {
            const Punto centro = LugarCentro(asiento);
            NoCorta(ZonaConRealce(asiento), "zona");
            NoCorta({centro.x, centro.y, kAltoCarta, kAltoCarta}, "baza");
        }
        NoCorta({estado.MazoX - 18, estado.MazoY, 133, 155}, "mazo");
        estado.VentanaInfo = 1;
        MostrarSugerencia(15);
        NoTapa(Control::Pic_Sugerencia, 0);
    });
}

TEST_F(PlacaATodosLosTamanos, NoTapaLosBotonesDeNingunAsiento) {
    Siempre([this] {
        for (int asiento = 1; asiento <= 4; ++asiento) {
            for (int indice = 1; indice <= 2; ++indice) {
                BotonSuperior(asiento, 1, indice);
                NoTapa(Control::Pic_BotSuperior, indice);
                BotonLateral(asiento, 1, indice);
                NoTapa(Control::Pic_BotLateral, indice);
            }
            BotonDobSeg(asiento, 1, "D o b l a r");
            NoTapa(Control::Pic_BotDobSeg, 0);
        }
    });
}

TEST_F(PlacaATodosLosTamanos, NoTapaElDinero) {
    Siempre([this] {
        if (!JuegoEnMesa().dinero.hay)
            return;
        estado.JugadorActual = 4;
        MuestraApostadora();
        NoTapa(Control::Pic_Apostadora, 0);
        for (int asiento = 1; asiento <= 4; ++asiento) {
            NoTapaLasFichas(kAreaRestos + asiento - 1);
            NoTapaLasFichas(kAreaApuestas + asiento - 1);
        }
        NoTapaLasFichas(kAreaBote);
    });
}

// The score plates of the series stand beside the zones.
TEST_F(PlacaATodosLosTamanos, NoTapaLosTantosDeLasSeries) {
    Siempre([this] {
        if (estado.JuegoActivo != kBlackJack)
            return;
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            estado.JugadorActual = asiento;
            PonMano(asiento, {{kOros, 10}, {kCopas, 7}});
            MostrarPuntos(asiento);
            NoTapa(Control::Pic_Tantos, asiento);
        }
    });
}
