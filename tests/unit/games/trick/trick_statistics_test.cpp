#include "games/trick/trick_statistics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "games/common/trick_state.h"
#include "platform/headless/headless_platform.h"
#include "table/deck.h"
#include "tests/support/printed_text.h"
#include "tests/support/trick_hands.h"
#include "tools/common/fresh_table.h"

using namespace prueba;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

// Ana, Luis, Eva and Iñigo; copas are trumps; a hand is on and seat 4, with ten cards, on turn in its first trick.
struct EstadisticaDeBazas : testing::Test {
    EstadisticaDeBazas() {
        UsaPlataforma(p);
        PonMesaNueva();
        const char* const nombres[] = {"", "Ana", "Luis", "Eva", "Iñigo"};
        for (int asiento = 1; asiento <= 4; ++asiento)
            estado.NombreJugador(asiento) = nombres[asiento];
        Juega(kTute);
        estado.PaloTriunfo = kCopas;
        estado.ManoEnCurso = true;
        estado.NumBaza = 1;
        estado.JugadorActual = 4;
        estado.NumCartas(4, 1) = 10;
    }

    static void Juega(Integer juego) {
        estado.JuegoActivo = juego;
        ConstruirBaraja();
    }
    static void Desactiva(Integer asiento) {
        estado.EstadoJugador(asiento) = kDesactivado;
        ActivarAsientos();
        ConstruirBaraja();
    }
    // A trick as the game leaves it, the first card by seat 1.
    static void Baza(Integer baza, const std::vector<Carta>& cartas, Integer gana, int tantos) {
        Integer asiento = 0;
        for (const Carta& carta : cartas) {
            ++asiento;
            bazas.RegistroBazas(asiento + 5, baza) = carta.palo;
            bazas.RegistroBazas(asiento + 10, baza) = carta.valor;
            bazas.RegistroBazas(asiento + 15, baza) = asiento == gana ? 1 : 0;
            bazas.CartaJugada(carta.palo, carta.valor) = asiento;
        }
        bazas.TantosDeBaza(baza) = tantos;
        estado.NumBaza = static_cast<Integer>(baza + 1);
    }
    static void Canta(Integer asiento, Integer baza, Integer palo) {
        bazas.PaloCantado(palo) = asiento;
        bazas.RegistroBazas(asiento + 20, baza) = palo;
    }
    static PaginaImpresa Pagina() {
        PaginaImpresa pagina(750, 300);
        EstadisTB(pagina);
        return pagina;
    }
    static std::vector<std::string> Renglones() { return RenglonesDe(Pagina()); }

    PlataformaSinPantalla p;
};

const std::vector<Carta> kPrimera{{kOros, kAs}, {kOros, kRey}, {kCopas, kSota}, {kOros, 4}};

} // namespace

TEST_F(EstadisticaDeBazas, AntesDeAcabarLaPrimeraBazaSoloHayTitulosYBaraja) {
    Juega(kBrisca);
    const PaginaImpresa pagina = Pagina();
    EXPECT_THAT(RenglonesDe(pagina),
                ElementsAre("Baza | Ana | Luis | Eva | Iñigo | Tantos",
                            "Oros | Copas | Espadas | Bastos", "As | 1 | 1 | 1 | 1",
                            "Dos | 2 | 2 | 2 | 2", "Tres | 3 | 3 | 3 | 3", "Cuatro | 4 | 4 | 4 | 4",
                            "Cinco | 5 | 5 | 5 | 5", "Seis | 6 | 6 | 6 | 6",
                            "Siete | 7 | 7 | 7 | 7", "Sota | 10 | 10 | 10 | 10",
                            "Caballo | 11 | 11 | 11 | 11", "Rey | 12 | 12 | 12 | 12"));
    for (const Impreso& impreso : pagina.Impresos())
        EXPECT_EQ(impreso.tinta, Tinta::Negro) << impreso.texto;
}

TEST_F(EstadisticaDeBazas, EnLaBriscaNoHayAcusesNiTutes) {
    Juega(kBrisca);
    Baza(1, kPrimera, 3, 17);
    Canta(3, 1, kEspadas);
    const std::vector<std::string> renglones = Renglones();
    EXPECT_EQ(renglones[0], "Baza | Ana | Luis | Eva | Iñigo | Tantos");
    EXPECT_EQ(renglones[1], "1 | As de Oros | Rey de Oros | Sota de Copas | Cuatro de Oros | 17");
    EXPECT_EQ(renglones.back(), "Rey | 12 | 12 | 12 | 12");
    EXPECT_THAT(renglones, Each(Not(HasSubstr("Tute"))));
}

TEST_F(EstadisticaDeBazas, ConTresJugadoresLaBarajaNoTieneFilaDelDos) {
    Desactiva(4);
    EXPECT_THAT(Renglones(), Each(Not(StartsWith("Dos"))));
    EXPECT_THAT(Renglones(), Contains("Tres | 3 | 3 | 3 | 3"));
}

TEST_F(EstadisticaDeBazas, EnElTuteLosTitulosLlevanLosAcuses) {
    EXPECT_EQ(Renglones()[0], "Baza | Ana | Luis | Eva | Iñigo | Tantos | Acuses");
}

TEST_F(EstadisticaDeBazas, QuienNoJuegaNoTieneColumna) {
    Desactiva(2);
    Baza(1, {{kOros, kAs}, {}, {kCopas, kSota}, {kOros, 4}}, 3, 13);
    EXPECT_EQ(Renglones()[0], "Baza | Ana | Eva | Iñigo | Tantos | Acuses");
    EXPECT_EQ(Renglones()[1], "1 | As de Oros | Sota de Copas | Cuatro de Oros | 13");
}

TEST_F(EstadisticaDeBazas, LaCartaQueGanaVaEnAzulYLasDemasEnGris) {
    Baza(1, kPrimera, 3, 17);
    const PaginaImpresa pagina = Pagina();
    EXPECT_THAT(TintasDe(pagina, "Sota de Copas"), ElementsAre(Tinta::Azul));
    EXPECT_THAT(TintasDe(pagina, "As de Oros"), ElementsAre(Tinta::Gris));
    EXPECT_THAT(TintasDe(pagina, "Cuatro de Oros"), ElementsAre(Tinta::Gris));
    EXPECT_THAT(TintasDe(pagina, "17"), ElementsAre(Tinta::RojoOscuro));
    EXPECT_EQ(TintasDe(pagina, "1")[0], Tinta::RojoOscuro);
}

TEST_F(EstadisticaDeBazas, LaBazaEnJuegoNoSeCuentaHastaQueLaManoAcaba) {
    Baza(1, kPrimera, 3, 17);
    Baza(2, {{kBastos, kAs}, {kBastos, 7}, {kBastos, 6}, {kBastos, 5}}, 1, 0);
    estado.NumBaza = 2;
    EXPECT_THAT(Renglones(), Each(Not(HasSubstr("As de Bastos"))));
    estado.ManoEnCurso = false;
    EXPECT_EQ(Renglones()[2],
              "2 | As de Bastos | Siete de Bastos | Seis de Bastos | Cinco de Bastos | 0");
}

TEST_F(EstadisticaDeBazas, UnCanteDiceVeinteYElDelTriunfoCuarenta) {
    Baza(1, kPrimera, 3, 37);
    Baza(2, {{kBastos, kAs}, {kBastos, 7}, {kBastos, 6}, {kBastos, 5}}, 1, 51);
    Canta(3, 1, kEspadas);
    Canta(1, 2, kCopas);
    const PaginaImpresa pagina = Pagina();
    EXPECT_THAT(RenglonesDe(pagina)[1], HasSubstr(" | 37 | Veinte en Espadas"));
    EXPECT_THAT(RenglonesDe(pagina)[2], HasSubstr(" | 51 | Cuarenta en Copas"));
    EXPECT_THAT(TintasDe(pagina, "Veinte en Espadas"), ElementsAre(Tinta::Azul));
}

TEST_F(EstadisticaDeBazas, DosCantesEnUnaBazaSonSoloLosPalos) {
    estado.ModalidadJuego = kDosParejas;
    Baza(1, kPrimera, 3, 77);
    Canta(3, 1, kCopas);
    Canta(1, 1, kBastos);
    EXPECT_THAT(Renglones()[1], HasSubstr(" | 77 | Bastos y Copas"));
}

TEST_F(EstadisticaDeBazas, LasCartasJugadasSeMarcanEnRojoOscuro) {
    Juega(kBrisca);
    Baza(1, kPrimera, 3, 17);
    const PaginaImpresa pagina = Pagina();
    const auto en = [&](Integer palo, const std::string& numero) {
        for (const Impreso& impreso : pagina.Impresos()) {
            if (impreso.texto == numero && impreso.x == 63 + 77 * (palo - 1) && impreso.y > 32)
                return impreso.tinta;
        }
        return Tinta::Blanco;
    };
    EXPECT_EQ(en(kOros, "1"), Tinta::RojoOscuro);
    EXPECT_EQ(en(kOros, "12"), Tinta::RojoOscuro);
    EXPECT_EQ(en(kOros, "4"), Tinta::RojoOscuro);
    EXPECT_EQ(en(kCopas, "10"), Tinta::RojoOscuro);
    EXPECT_EQ(en(kCopas, "1"), Tinta::Negro);
    EXPECT_EQ(en(kBastos, "12"), Tinta::Negro);
}

// The head of the table is black, the line below it tells.
TEST_F(EstadisticaDeBazas, CadaPaloDiceSiYaSeHaCantadoOYaNoSePuede) {
    Baza(1, {{kOros, kRey}, {kEspadas, kCaballo}, {kCopas, kRey}, {kOros, 4}}, 3, 11);
    Canta(3, 1, kCopas);
    const PaginaImpresa pagina = Pagina();
    EXPECT_THAT(TintasDe(pagina, "Oros"), ElementsAre(Tinta::Negro, Tinta::Rojo));
    EXPECT_THAT(TintasDe(pagina, "Copas"), ElementsAre(Tinta::Negro, Tinta::RojoOscuro));
    EXPECT_THAT(TintasDe(pagina, "Espadas"), ElementsAre(Tinta::Negro, Tinta::Rojo));
    EXPECT_THAT(TintasDe(pagina, "Bastos"), ElementsAre(Tinta::Negro, Tinta::Negro));
}

TEST_F(EstadisticaDeBazas, AlPrincipioLosDosTutesSonPosibles) {
    EXPECT_EQ(Renglones().back(), "Oros | Copas | Espadas | Bastos");
}

TEST_F(EstadisticaDeBazas, UnReyJugadoQuitaElTuteDeReyes) {
    bazas.CartaJugada(kBastos, kRey) = 2;
    const PaginaImpresa pagina = Pagina();
    EXPECT_EQ(RenglonesDe(pagina).back(), "Imposible conseguir Tute de Reyes");
    EXPECT_THAT(TintasDe(pagina, "Imposible conseguir Tute de Reyes"), ElementsAre(Tinta::Rojo));
    EXPECT_THAT(TintasDe(pagina, "Imposible conseguir Tute de Caballos"), IsEmpty());
}

TEST_F(EstadisticaDeBazas, ConMenosDeCuatroCartasNoHayTute) {
    estado.NumCartas(4, 1) = 4;
    EXPECT_THAT(Renglones(), Each(Not(HasSubstr("Imposible"))));
    estado.NumCartas(4, 1) = 3;
    const std::vector<std::string> renglones = Renglones();
    ASSERT_GE(renglones.size(), 2U);
    EXPECT_EQ(renglones[renglones.size() - 2], "Imposible conseguir Tute de Caballos");
    EXPECT_EQ(renglones.back(), "Imposible conseguir Tute de Reyes");
}

TEST_F(EstadisticaDeBazas, SiHanCantadoDosAsientosNoHayTute) {
    bazas.PaloCantado(kOros) = 2;
    bazas.PaloCantado(kCopas) = 2;
    EXPECT_THAT(Renglones(), Each(Not(HasSubstr("Imposible"))));
    bazas.PaloCantado(kEspadas) = 3;
    EXPECT_THAT(Renglones(), Contains("Imposible conseguir Tute de Caballos"));
    EXPECT_THAT(Renglones(), Contains("Imposible conseguir Tute de Reyes"));
}

TEST_F(EstadisticaDeBazas, NoCambiaNadaDelEstado) {
    Baza(1, kPrimera, 3, 17);
    const EstadoJuego antes = estado;
    const EstadoBazas bazas_antes = bazas;
    Pagina();
    EXPECT_TRUE(estado == antes);
    EXPECT_TRUE(bazas == bazas_antes);
}
