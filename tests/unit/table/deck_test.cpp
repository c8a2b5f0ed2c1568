#include "table/deck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "core/random.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

constexpr Integer kValorComodin1 = 91, kValorComodin2 = 92;

struct BarajaTest : MesaViva {
    static int CuantasDe(Integer palo, Integer valor) {
        int cuantas = 0;
        for (int lugar = 1; lugar <= estado.TotalBaraja; ++lugar)
            cuantas += estado.Baraja(lugar, 1) == palo && estado.Baraja(lugar, 2) == valor ? 1 : 0;
        return cuantas;
    }
    static std::vector<int> ValoresQueHay() {
        std::vector<int> valores;
        for (int valor = 1; valor <= 13; ++valor) {
            if (estado.ValorEnBaraja(valor))
                valores.push_back(valor);
        }
        return valores;
    }
    void ConJugadores(Integer juego, std::initializer_list<Integer> fuera) {
        estado.JuegoActivo = juego;
        Desactiva(fuera);
    }
};

struct Medidas {
    Integer juego = 0;
    std::initializer_list<Integer> fuera;
    int tipo = 0, por_palo = 0, normales = 0, mazos = 0, reparto = 0, paso = 0, max_mano = 0;
};

const Medidas kMedidas[] = {
    {kPoker, {}, kBarajaFrancesa, 13, 52, 1, 5, 1, 5},
    {kBlackJack, {}, kBarajaFrancesa, 13, 312, 6, 2, 1, 11},
    {kSieteYMedia, {}, kBarajaEspanola, 10, 40, 1, 1, 1, 14},
    {kTute, {1, 3}, kBarajaEspanola, 10, 40, 1, 6, 3, 6},
    {kTute, {2}, kBarajaEspanola, 9, 36, 1, 12, 3, 12},
    {kTute, {}, kBarajaEspanola, 10, 40, 1, 10, 5, 10},
    {kBrisca, {1, 3}, kBarajaEspanola, 10, 40, 1, 3, 1, 3},
    {kBrisca, {2}, kBarajaEspanola, 9, 36, 1, 3, 1, 3},
    {kBrisca, {}, kBarajaEspanola, 10, 40, 1, 3, 1, 3},
    {kCinquillo, {}, kBarajaEspanola, 10, 40, 1, 10, 5, 10},
};

const std::vector<int> kEspanola{1, 2, 3, 4, 5, 6, 7, 10, 11, 12};

} // namespace

TEST_F(BarajaTest, LasMedidasDeCadaJuego) {
    for (const Medidas& caso : kMedidas) {
        for (int asiento = 1; asiento <= 4; ++asiento)
            estado.EstadoJugador(asiento) = kActivado;
        ConJugadores(caso.juego, caso.fuera);
        SCOPED_TRACE(testing::Message() << "juego " << caso.juego << " con " << caso.normales);
        EXPECT_EQ(estado.TipoBaraja, caso.tipo);
        EXPECT_EQ(estado.ValoresPorPalo, caso.por_palo);
        EXPECT_EQ(estado.CartasNormales, caso.normales);
        EXPECT_EQ(estado.TotalBaraja, caso.normales);
        EXPECT_EQ(estado.ComodinesBaraja, 0);
        EXPECT_EQ(estado.MazosBaraja, caso.mazos);
        EXPECT_EQ(estado.CartasReparto, caso.reparto);
        EXPECT_EQ(estado.PasoReparto, caso.paso);
        EXPECT_EQ(estado.MaxCartasMano, caso.max_mano);
        EXPECT_EQ(estado.ColumnasBaraja, caso.tipo == kBarajaFrancesa ? 13 : 12);
        EXPECT_EQ(estado.AltoMiniCarta, caso.tipo == kBarajaFrancesa ? 38 : 46);
    }
}

TEST_F(BarajaTest, DesdeElSieteConDosComodinesSonTreintaYCuatroCartas) {
    estado.CartasBaraja = 6;
    estado.ComodinesJuego = 3;
    Juega(kPoker);
    EXPECT_EQ(estado.ComodinesBaraja, 2);
    EXPECT_EQ(estado.TotalBaraja, 34);
    EXPECT_EQ(ValoresQueHay(), (std::vector<int>{1, 7, 8, 9, 10, 11, 12, 13}));
}

TEST_F(BarajaTest, DesdeElTresSoloQuitaElDos) {
    estado.CartasBaraja = 2;
    Juega(kPoker);
    EXPECT_EQ(estado.TotalBaraja, 48);
    EXPECT_EQ(ValoresQueHay(), (std::vector<int>{1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}));
}

TEST_F(BarajaTest, LaBriscaDeTresJuegaSinDoses) {
    ConJugadores(kBrisca, {1});
    EXPECT_EQ(estado.TotalBaraja, 36);
    EXPECT_EQ(ValoresQueHay(), (std::vector<int>{1, 3, 4, 5, 6, 7, 10, 11, 12}));
}

TEST_F(BarajaTest, LaEspanolaNoTieneOchosNiNueves) {
    for (Integer juego : {kTute, kBrisca, kSieteYMedia, kCinquillo}) {
        Juega(juego);
        EXPECT_EQ(ValoresQueHay(), kEspanola);
    }
}

TEST_F(BarajaTest, LosTantosDeCadaJuego) {
    Juega(kTute);
    EXPECT_EQ(estado.ValorCarta(1), Currency(11));
    EXPECT_EQ(estado.ValorCarta(3), Currency(10));
    EXPECT_EQ(estado.ValorCarta(12), Currency(4));
    EXPECT_EQ(estado.ValorCarta(7), Currency(0));
    Juega(kSieteYMedia);
    EXPECT_EQ(estado.ValorCarta(7), Currency(7));
    EXPECT_EQ(estado.ValorCarta(10), Currency::DeReal(0.5));
    EXPECT_EQ(estado.ValorCarta(12), Currency::DeReal(0.5));
    Juega(kBlackJack);
    EXPECT_EQ(estado.ValorCarta(9), Currency(9));
    EXPECT_EQ(estado.ValorCarta(13), Currency(10));
    EXPECT_EQ(estado.ValorCarta(1), Currency(1));
}

TEST_F(BarajaTest, ElOrdenDeLasCartasEnLasBazasVaDelAsAlDos) {
    Juega(kBrisca);
    const std::vector<int> de_mas_a_menos{1, 3, 12, 11, 10, 7, 6, 5, 4, 2};
    for (std::size_t i = 0; i < de_mas_a_menos.size(); ++i)
        EXPECT_EQ(estado.OrdenCarta(de_mas_a_menos[i]), 10 - static_cast<int>(i));
}

TEST_F(BarajaTest, EnElPokerLaFuerzaSenalaElValorYElAsEsLaMasAlta) {
    Juega(kPoker);
    EXPECT_EQ(estado.OrdenCarta(1), 2);
    EXPECT_EQ(estado.OrdenCarta(12), 13);
    EXPECT_EQ(estado.OrdenCarta(13), 1);
}

TEST_F(BarajaTest, LosJuegosDeBancaImponenBarajaCompletaYSinLey) {
    for (Integer juego : {kBlackJack, kSieteYMedia}) {
        estado.CartasBaraja = 4;
        estado.LeyApertura = 6;
        Juega(juego);
        EXPECT_TRUE(estado.JuegoConBanca);
        EXPECT_EQ(estado.CartasBaraja, 1);
        EXPECT_EQ(estado.LeyApertura, 14);
    }
    Juega(kTute);
    EXPECT_FALSE(estado.JuegoConBanca);
}

TEST_F(BarajaTest, LosNombresDeLosValores) {
    Juega(kPoker);
    EXPECT_EQ(estado.NombreValorPlural(10), "Dieces");
    EXPECT_EQ(estado.NombreValorPlural(14), "Ases");
    EXPECT_EQ(estado.NombreValor(11), "Jota");
    Juega(kTute);
    EXPECT_EQ(estado.NombreValorPlural(11), "Caballos");
    EXPECT_EQ(estado.NombreValor(12), "Rey");
    EXPECT_EQ(estado.NombreValor(13), "");
}

TEST_F(BarajaTest, BarajarPoneCadaCartaUnaVez) {
    for (Integer juego : {kPoker, kTute, kSieteYMedia, kCinquillo}) {
        Juega(juego);
        Barajar();
        for (Integer palo = kOros; palo <= kBastos; ++palo) {
            for (Integer valor = 1; valor <= 13; ++valor)
                EXPECT_EQ(CuantasDe(palo, valor), estado.ValorEnBaraja(valor) ? 1 : 0);
        }
    }
}

TEST_F(BarajaTest, EnElBlackJackCadaCartaEstaSeisVeces) {
    Juega(kBlackJack);
    Barajar();
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (Integer valor = 1; valor <= 13; ++valor)
            EXPECT_EQ(CuantasDe(palo, valor), 6);
    }
}

TEST_F(BarajaTest, LosComodinesVanEnCualquierLugar) {
    estado.ComodinesJuego = 3;
    Juega(kPoker);
    Barajar();
    EXPECT_EQ(estado.TotalBaraja, 54);
    EXPECT_EQ(CuantasDe(kComodin, kValorComodin1), 1);
    EXPECT_EQ(CuantasDe(kComodin, kValorComodin2), 1);
}

TEST_F(BarajaTest, UnLugarOcupadoVuelveASortearse) {
    // The As de oros takes place 3; the 2 finds it taken twice and settles in place 40.
    EncolaAzar({2.5 / 40, 2.1 / 40, 2.9 / 40, 39.5 / 40});
    Barajar();
    EXPECT_EQ(estado.Baraja(3, 1), kOros);
    EXPECT_EQ(estado.Baraja(3, 2), 1);
    EXPECT_EQ(estado.Baraja(40, 1), kOros);
    EXPECT_EQ(estado.Baraja(40, 2), 2);
}

TEST_F(BarajaTest, BarajarEmpiezaElMazoDeNuevo) {
    estado.CartasEnMazo = 3;
    estado.NumDescartes = 8;
    estado.PosicionMazo = 38;
    EmpiezaTraza();
    Barajar();
    EXPECT_EQ(estado.CartasEnMazo, 40);
    EXPECT_EQ(estado.NumDescartes, 0);
    EXPECT_EQ(estado.PosicionMazo, 1);
    EXPECT_EQ(traza, (std::vector<std::string>{"Sonido(1, 20)", "Pausa(400)",
                                               "DibujarMazo(304, 230, 40)"}));
}

TEST_F(BarajaTest, EnElBlackJackNoSeEnsenaLaPilaAlBarajar) {
    Juega(kBlackJack);
    EmpiezaTraza();
    Barajar();
    EXPECT_TRUE(TrazaDe("DibujarMazo").empty());
}

TEST_F(BarajaTest, CompactarCierraLosHuecosConTodosLosCamposYEnOrden) {
    PonMano(2, {{kOros, 7}, {kCopas, 2}, {kBastos, 5}, {kEspadas, 12}});
    estado.Mano(2, 1, 3, kCara) = kDescubierta;
    estado.Mano(2, 1, 3, kAltura) = kLevantada;
    estado.Mano(2, 1, 3, kTapada) = 1;
    for (int lugar : {1, 2}) {
        for (int campo = 0; campo <= 5; ++campo)
            estado.Mano(2, 1, lugar, campo) = 0;
    }
    CompactarMano(2);
    EXPECT_EQ(estado.Mano(2, 1, 1, kPalo), kBastos);
    EXPECT_EQ(estado.Mano(2, 1, 1, kValor), 5);
    EXPECT_EQ(estado.Mano(2, 1, 1, kCara), kDescubierta);
    EXPECT_EQ(estado.Mano(2, 1, 1, kAltura), kLevantada);
    EXPECT_EQ(estado.Mano(2, 1, 1, kTapada), 1);
    EXPECT_EQ(estado.Mano(2, 1, 2, kPalo), kEspadas);
    EXPECT_EQ(estado.Mano(2, 1, 3, kPalo), kSinCarta);
    EXPECT_EQ(estado.Mano(2, 1, 4, kPalo), kSinCarta);
}

TEST_F(BarajaTest, ElTuteSeOrdenaPorPaloYFuerza) {
    Juega(kTute);
    PonMano(4, {{kBastos, 2}, {kOros, kRey}, {kBastos, kAs}, {kOros, kTres}, {kOros, 7}});
    OrdenarMano(4);
    EXPECT_EQ(ManoDe(4),
              (std::vector<Carta>{
                  {kOros, kTres}, {kOros, kRey}, {kOros, 7}, {kBastos, kAs}, {kBastos, 2}}));
}

TEST_F(BarajaTest, LaManoOrdenadaSeVuelveAPintar) {
    PonMano(3, {{kBastos, 2}, {kOros, kRey}});
    EmpiezaTraza();
    OrdenarMano(3);
    EXPECT_EQ(TrazaDe("RedibujarAsiento"), (std::vector<std::string>{"RedibujarAsiento(3)"}));
}

TEST_F(BarajaTest, ElCinquilloSeOrdenaPorPaloYNumero) {
    PonMano(4, {{kBastos, 2}, {kOros, kRey}, {kBastos, kAs}, {kOros, kTres}, {kOros, 7}});
    OrdenarMano(4);
    EXPECT_EQ(ManoDe(4),
              (std::vector<Carta>{
                  {kOros, kTres}, {kOros, 7}, {kOros, kRey}, {kBastos, kAs}, {kBastos, 2}}));
}

TEST_F(BarajaTest, SieteYMediaSeOrdenaPorNumeroYPalo) {
    Juega(kSieteYMedia);
    PonMano(4, {{kBastos, 2}, {kOros, kRey}, {kCopas, 2}, {kOros, kSota}});
    OrdenarMano(4);
    EXPECT_EQ(ManoDe(4),
              (std::vector<Carta>{{kCopas, 2}, {kBastos, 2}, {kOros, kSota}, {kOros, kRey}}));
}

TEST_F(BarajaTest, AlOrdenarCadaCartaLlevaSuCaraYSuAltura) {
    PonMano(4, {{kCopas, 6}, {kOros, 4}});
    estado.Mano(4, 1, 1, kAltura) = kLevantada;
    estado.Mano(4, 1, 2, kCara) = kDorso;
    OrdenarMano(4);
    EXPECT_EQ(estado.Mano(4, 1, 1, kValor), 4);
    EXPECT_EQ(estado.Mano(4, 1, 1, kCara), kDorso);
    EXPECT_EQ(estado.Mano(4, 1, 1, kAltura), kEnLinea);
    EXPECT_EQ(estado.Mano(4, 1, 2, kValor), 6);
    EXPECT_EQ(estado.Mano(4, 1, 2, kAltura), kLevantada);
}
