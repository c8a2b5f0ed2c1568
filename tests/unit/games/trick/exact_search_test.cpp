#include "games/common/trick_state.h"
#include "games/trick/exact_search.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <random>
#include <stdexcept>

#include "games/trick/search_state.h"
#include "tests/support/trick_hands.h"

using namespace prueba;

namespace {

// The search said plainly: every way to lay the hands down, one trick after the other, each way counted
// on its own.
class Enumeracion {
public:
    std::map<int, Long> conteo, tantos;

    Enumeracion() {
        Integer asiento = estado.JugadorSalida;
        while (static_cast<int>(orden_.size()) < estado.NumJugadores) {
            if (estado.EstadoJugador(asiento) == kActivado)
                orden_.push_back(asiento);
            SiguienteAsiento(asiento);
        }
        cartas_ = estado.NumCartas(estado.JugadorSalida, 1);
        horizonte_ = estado.CartasEnMazo == 0 ? cartas_ : 1;
        for (const Integer a : orden_) {
            for (int lugar = 1; lugar <= cartas_; ++lugar) {
                manos_[a].push_back({lugar, Carta(estado.Mano(a, 1, lugar, kPalo),
                                                  estado.Mano(a, 1, lugar, kValor))});
            }
        }
        Baza(1, estado.JugadorSalida);
    }

private:
    struct EnMano {
        int lugar;
        Carta carta;
    };
    struct Jugada {
        Integer asiento;
        EnMano que;
    };

    std::vector<Integer> orden_; // seats from the leader of the first trick on
    int cartas_ = 0, horizonte_ = 0;
    std::map<Integer, std::vector<EnMano>> manos_;
    std::map<Integer, Long> ganado_;
    std::vector<Jugada> primera_;

    static int Orden(Carta c) { return estado.OrdenCarta(c.valor); }

    static int Clase(Carta salida, Carta c) {
        if (c.palo == salida.palo)
            return Orden(c) > Orden(salida) ? 1 : 2;
        return c.palo == estado.PaloTriunfo ? 3 : 4;
    }

    static int Fuerza(Carta salida, Carta c) {
        if (c.palo == estado.PaloTriunfo)
            return Orden(c) + 20;
        return Orden(c) + (c.palo == salida.palo ? 10 : 0);
    }

    std::vector<EnMano> Permitidas(Integer asiento, const std::vector<Jugada>& baza) const {
        const std::vector<EnMano>& mano = manos_.at(asiento);
        if (baza.empty())
            return mano;
        const Carta salida = baza.front().que.carta;
        int menor = 4;
        for (const EnMano& e : mano)
            menor = std::min(menor, Clase(salida, e.carta));
        std::vector<EnMano> permitidas;
        for (const EnMano& e : mano) {
            if (Clase(salida, e.carta) == menor)
                permitidas.push_back(e);
        }
        return permitidas;
    }

    void Baza(int hondura, Integer lider) { Sigue(hondura, lider, {}); }

    void Sigue(int hondura, Integer asiento, const std::vector<Jugada>& baza) {
        if (baza.size() == orden_.size())
            return Cierra(hondura, baza);
        for (const EnMano& e : Permitidas(asiento, baza)) {
            std::vector<EnMano>& mano = manos_.at(asiento);
            const std::vector<EnMano> antes = mano;
            std::erase_if(mano, [&](const EnMano& otra) { return otra.lugar == e.lugar; });
            std::vector<Jugada> mas = baza;
            mas.push_back({asiento, e});
            const auto yo = std::find(orden_.begin(), orden_.end(), asiento);
            const Integer otro = yo + 1 == orden_.end() ? orden_.front() : *(yo + 1);
            Sigue(hondura, otro, mas);
            mano = antes;
        }
    }

    void Cierra(int hondura, const std::vector<Jugada>& baza) {
        const Carta salida = baza.front().que.carta;
        Jugada ganadora = baza.front();
        Long puntos = hondura == cartas_ ? 10 : 0;
        for (const Jugada& j : baza) {
            puntos += static_cast<Long>(estado.ValorCarta(j.que.carta.valor).Real());
            if (Fuerza(salida, j.que.carta) > Fuerza(salida, ganadora.que.carta))
                ganadora = j;
        }
        if (hondura == 1)
            primera_ = baza;
        ganado_[ganadora.asiento] += puntos;
        if (hondura == horizonte_)
            Cuenta();
        else
            Baza(hondura + 1, ganadora.asiento);
        ganado_[ganadora.asiento] -= puntos;
    }

    void Cuenta() {
        Integer mejor = 0;
        Long ganancia = 0;
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            if (ganado_[asiento] > ganancia) {
                ganancia = ganado_[asiento];
                mejor = asiento;
            }
        }
        std::array<int, 4> lugares{};
        for (std::size_t i = 0; i < primera_.size(); ++i) {
            lugares[i] = primera_[i].que.lugar;
            const int clave = ClaveBusqueda(lugares[0], lugares[1], lugares[2], lugares[3]);
            Apunta(clave, primera_[i].asiento, mejor);
            if (estado.ModalidadJuego == kDosParejas)
                Apunta(clave, primera_[(i + 2) % 4].asiento, mejor);
        }
    }

    void Apunta(int clave, Integer asiento, Integer mejor) {
        conteo[clave] += asiento == mejor ? 1 : 0;
        tantos[clave] += ganado_[asiento];
    }
};

void ReparteAlAzar(std::mt19937& azar, int cartas) {
    std::vector<Carta> baraja;
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (Integer valor = 1; valor <= kRey; ++valor) {
            if (estado.ValorEnBaraja(valor))
                baraja.push_back({palo, valor});
        }
    }
    std::shuffle(baraja.begin(), baraja.end(), azar);
    Pinta(baraja.back());
    auto siguiente = baraja.begin();
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) != kActivado)
            continue;
        PonMano(asiento, {siguiente, siguiente + cartas});
        siguiente += cartas;
    }
}

void ComparaConLaEnumeracion() {
    ExploraBazas();
    const Enumeracion plana;
    const auto de = [](const std::map<int, Long>& tabla, int clave) {
        const auto lugar = tabla.find(clave);
        return lugar == tabla.end() ? 0 : lugar->second;
    };
    for (int clave = 0; clave <= kUltimaClave; ++clave) {
        ASSERT_EQ(busqueda.ConteoBusqueda(clave), de(plana.conteo, clave)) << clave;
        ASSERT_EQ(busqueda.TantosBusqueda(clave), de(plana.tantos, clave)) << clave;
    }
}

struct Forma {
    Integer juego, jugadores;
    int cartas;
    Integer mazo, modalidad;
};

struct FrenteALaEnumeracion : testing::TestWithParam<Forma> {};

} // namespace

TEST_P(FrenteALaEnumeracion, MismosConteosYTantos) {
    const Forma forma = GetParam();
    std::mt19937 azar(20260);
    for (int vez = 0; vez < 6; ++vez) {
        MesaDeBazas(forma.juego, forma.jugadores);
        estado.PasoSentido = static_cast<Integer>(vez % 2 == 0 ? 1 : -1);
        estado.ModalidadJuego = forma.modalidad;
        estado.CartasEnMazo = forma.mazo;
        ReparteAlAzar(azar, forma.cartas);
        estado.JugadorSalida = static_cast<Integer>(vez % 3 == 0 ? 2 : 4);
        if (forma.jugadores == 3)
            estado.JugadorSalida = static_cast<Integer>(1 + vez % 3);
        ComparaConLaEnumeracion();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Formas, FrenteALaEnumeracion,
    testing::Values(Forma{kTute, 2, 5, 0, kIndividual}, Forma{kTute, 2, 2, 0, kIndividual},
                    Forma{kTute, 3, 4, 0, kIndividual}, Forma{kTute, 4, 3, 0, kIndividual},
                    Forma{kTute, 4, 3, 0, kDosParejas}, Forma{kTute, 4, 2, 0, kDosParejas},
                    Forma{kBrisca, 2, 3, 0, kIndividual}, Forma{kBrisca, 2, 3, 20, kIndividual},
                    Forma{kBrisca, 3, 3, 0, kIndividual}, Forma{kBrisca, 3, 3, 9, kIndividual},
                    Forma{kBrisca, 4, 3, 0, kDosParejas}, Forma{kBrisca, 4, 3, 12, kDosParejas},
                    Forma{kBrisca, 4, 3, 12, kIndividual}, Forma{kBrisca, 4, 2, 0, kIndividual},
                    Forma{kBrisca, 4, 3, 0, kIndividual}, Forma{kBrisca, 2, 5, 0, kIndividual},
                    Forma{kBrisca, 3, 4, 0, kIndividual}, Forma{kTute, 2, 5, 20, kIndividual}));

namespace {

// Two seats, 2 and 4, seat 2 to lead with no trump about.
struct Busqueda : testing::Test {
    void SetUp() override {
        MesaDeBazas(kTute, 2);
        busqueda = {};
        Pinta({kBastos, 4});
        bazas.Arrastre = true;
        estado.NivelJugador(2) = 100;
        estado.NivelJugador(4) = 100;
    }
    static void ManosDe(const std::vector<Carta>& del_2, const std::vector<Carta>& del_4) {
        PonMano(2, del_2);
        PonMano(4, del_4);
        TocaA(2);
        ExploraBazas();
    }
    static void SonJugables(const std::vector<Integer>& lugares) {
        bazas.CartasJugables.Borra();
        bazas.NumJugables = 0;
        for (const Integer lugar : lugares) {
            ++bazas.NumJugables;
            bazas.CartasJugables(bazas.NumJugables, 2) = lugar;
        }
    }
};

} // namespace

// Leading the As of Oros takes the 7 and 11 points; the Copas then lose the last trick and its 10 points
// to the Rey: 11 against 14. Leading the Copas first loses 4 and wins 11 and 10: 21 against 4.
TEST_F(Busqueda, DosCartasContadasAMano) {
    ManosDe({{kOros, kAs}, {kCopas, 2}}, {{kOros, 7}, {kCopas, kRey}});
    EXPECT_EQ(busqueda.ConteoBusqueda(ClaveBusqueda(1)), 0);
    EXPECT_EQ(busqueda.TantosBusqueda(ClaveBusqueda(1)), 11);
    EXPECT_EQ(busqueda.ConteoBusqueda(ClaveBusqueda(1, 1)), 1);
    EXPECT_EQ(busqueda.TantosBusqueda(ClaveBusqueda(1, 1)), 14);
    EXPECT_EQ(busqueda.ConteoBusqueda(ClaveBusqueda(2)), 1);
    EXPECT_EQ(busqueda.TantosBusqueda(ClaveBusqueda(2)), 21);
    EXPECT_EQ(busqueda.ConteoBusqueda(ClaveBusqueda(2, 2)), 0);
    EXPECT_EQ(busqueda.TantosBusqueda(ClaveBusqueda(2, 2)), 4);
}

TEST_F(Busqueda, LaUltimaBazaValeDiezTambienEnBrisca) {
    estado.JuegoActivo = kBrisca;
    ManosDe({{kOros, 7}, {kOros, 6}}, {{kCopas, 7}, {kCopas, 6}});
    EXPECT_EQ(busqueda.TantosBusqueda(ClaveBusqueda(1)), 2 * 10);
    EXPECT_EQ(busqueda.ConteoBusqueda(ClaveBusqueda(1)), 2);
}

TEST_F(Busqueda, ConMazoSoloSeMiraUnaBaza) {
    estado.JuegoActivo = kBrisca;
    estado.CartasEnMazo = 10;
    ManosDe({{kOros, kAs}, {kCopas, 2}, {kEspadas, 2}}, {{kOros, 7}, {kCopas, kRey}, {kCopas, 4}});
    EXPECT_EQ(busqueda.ConteoBusqueda(ClaveBusqueda(1)), 1);
    EXPECT_EQ(busqueda.TantosBusqueda(ClaveBusqueda(1)), 11);
    EXPECT_EQ(busqueda.TantosBusqueda(ClaveBusqueda(2, 2)), 4);
}

// In Brisca nobody has to follow at the table, but the search takes it that they do.
TEST_F(Busqueda, EnBriscaTambienSigueLaReglaEstricta) {
    estado.JuegoActivo = kBrisca;
    estado.CartasEnMazo = 10;
    ManosDe({{kOros, kAs}, {kCopas, 2}}, {{kOros, 7}, {kBastos, 2}});
    EXPECT_EQ(busqueda.TantosBusqueda(ClaveBusqueda(1, 1)), 0);
    EXPECT_EQ(busqueda.ConteoBusqueda(ClaveBusqueda(1)), 1);
    EXPECT_EQ(busqueda.ConteoBusqueda(ClaveBusqueda(1, 2)), 0);
}

TEST_F(Busqueda, UnaBazaSinTantosNoTieneMejorYNoSeProponeNada) {
    estado.JuegoActivo = kBrisca;
    estado.CartasEnMazo = 10;
    ManosDe({{kOros, 7}, {kOros, 6}, {kOros, 5}}, {{kCopas, 7}, {kCopas, 6}, {kCopas, 5}});
    EXPECT_EQ(busqueda.ConteoBusqueda(ClaveBusqueda(1)), 0);
    SonJugables({1, 2, 3});
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 0);
}

TEST_F(Busqueda, AIgualGananciaElAsientoMenor) {
    MesaDeBazas(kTute, 2);
    Pinta({kBastos, 4});
    ManosDe({{kOros, kAs}, {kCopas, 2}}, {{kOros, 2}, {kCopas, kCaballo}});
    // Oros: 11 for seat 2, then 3 and 10 for seat 4: 11 against 13. Copas: 3 for seat 4, 21 for seat 2.
    EXPECT_EQ(busqueda.ConteoBusqueda(ClaveBusqueda(1, 1)), 1);
    estado.ValorCarta(kCaballo) = 1;
    ManosDe({{kOros, kAs}, {kCopas, 2}}, {{kOros, 2}, {kCopas, kCaballo}});
    EXPECT_EQ(busqueda.ConteoBusqueda(ClaveBusqueda(1)), 1);
    EXPECT_EQ(busqueda.ConteoBusqueda(ClaveBusqueda(1, 1)), 0);
}

TEST_F(Busqueda, SeProponeLaCartaQueMasGana) {
    ManosDe({{kOros, kAs}, {kCopas, 2}}, {{kOros, 7}, {kCopas, kRey}});
    SonJugables({1, 2});
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 2);
}

// Card 1 wins three times in four with one point in a hundred, card 2 once in two with ninety.
TEST_F(Busqueda, GanarMasVecesVaAntesQueLosTantos) {
    busqueda.ConteoBusqueda(ClaveBusqueda(1)) = 3;
    busqueda.ConteoBusqueda(ClaveBusqueda(1, 1)) = 1;
    busqueda.TantosBusqueda(ClaveBusqueda(1)) = 1;
    busqueda.TantosBusqueda(ClaveBusqueda(1, 1)) = 99;
    busqueda.ConteoBusqueda(ClaveBusqueda(2)) = 1;
    busqueda.ConteoBusqueda(ClaveBusqueda(2, 1)) = 1;
    busqueda.TantosBusqueda(ClaveBusqueda(2)) = 90;
    busqueda.TantosBusqueda(ClaveBusqueda(2, 1)) = 10;
    PonMano(2, {{kOros, kAs}, {kCopas, kAs}});
    TocaA(2);
    SonJugables({2, 1});
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 1);
}

// 1 of 800 is 0.125 %, and so is 1.2 of 1000: both are shown as 0.12, and the order decides.
TEST_F(Busqueda, LosPorcentajesSeRedondeanAlPar) {
    busqueda.ConteoBusqueda(ClaveBusqueda(1)) = 1;
    busqueda.ConteoBusqueda(ClaveBusqueda(1, 1)) = 799;
    busqueda.ConteoBusqueda(ClaveBusqueda(2)) = 12;
    busqueda.ConteoBusqueda(ClaveBusqueda(2, 1)) = 9988;
    PonMano(2, {{kOros, kAs}, {kCopas, kAs}});
    TocaA(2);
    SonJugables({2, 1});
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 2);
    SonJugables({1, 2});
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 1);
}

// The totals of a pair are counted twice, so they are halved; the half of 3 is 2.
TEST_F(Busqueda, EnParejasLosTotalesSePartenPorDos) {
    estado.ModalidadJuego = kDosParejas;
    busqueda.ConteoBusqueda(ClaveBusqueda(1)) = 1;
    busqueda.ConteoBusqueda(ClaveBusqueda(1, 1)) = 2;
    busqueda.ConteoBusqueda(ClaveBusqueda(2)) = 1;
    busqueda.ConteoBusqueda(ClaveBusqueda(2, 1)) = 3;
    PonMano(2, {{kOros, kAs}, {kCopas, kAs}});
    TocaA(2);
    SonJugables({2, 1});
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 2);
    busqueda.ConteoBusqueda(ClaveBusqueda(2, 1)) = 5;
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 1);
}

TEST_F(Busqueda, ElNivelDecideSiSeVe) {
    ManosDe({{kOros, kAs}, {kCopas, kAs}}, {{kOros, 7}, {kCopas, kRey}});
    SonJugables({1, 2});
    estado.NivelJugador(2) = 50;
    estado.AzarTurno = 0.49F;
    ValoraExploracion();
    EXPECT_NE(bazas.CartaBusqueda, 0);
    estado.AzarTurno = 0.5F;
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 0);
}

TEST_F(Busqueda, AIgualCuentaVaAntesLaDeMenosPuntuacion) {
    ManosDe({{kOros, kAs}, {kCopas, kAs}}, {{kOros, 7}, {kCopas, 7}});
    SonJugables({2, 1});
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 2);
    SonJugables({1, 2});
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 1);
}

TEST_F(Busqueda, UnaSolaEntradaNoBasta) {
    busqueda.ConteoBusqueda(ClaveBusqueda(1)) = 1;
    PonMano(2, {{kOros, kAs}, {kCopas, kAs}});
    TocaA(2);
    SonJugables({1, 2});
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 0);
    busqueda.ConteoBusqueda(ClaveBusqueda(2)) = 1;
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 1);
}

TEST_F(Busqueda, ElSegundoSabeQueHaJugadoElPrimero) {
    ManosDe({{kOros, kAs}, {kCopas, 2}}, {{kCopas, kRey}, {kCopas, 7}});
    EnMesa(2, {kCopas, 2});
    bazas.JugadaBaza(1) = 2;
    estado.CartasEnBaza = 2;
    estado.JugadorActual = 4;
    SonJugables({1, 2});
    ValoraExploracion();
    // Either card wins, and the other one then takes the As that cannot follow: all the points.
    EXPECT_EQ(busqueda.TantosBusqueda(ClaveBusqueda(2, 1)), 4 + 11 + 10);
    EXPECT_EQ(busqueda.TantosBusqueda(ClaveBusqueda(2, 2)), 4 + 11 + 10);
    EXPECT_EQ(bazas.CartaBusqueda, 1);
}

TEST_F(Busqueda, EnBriscaConMazoLosTantosNoCuentan) {
    estado.JuegoActivo = kBrisca;
    busqueda.ConteoBusqueda(ClaveBusqueda(1)) = 1;
    busqueda.ConteoBusqueda(ClaveBusqueda(2)) = 1;
    busqueda.TantosBusqueda(ClaveBusqueda(1)) = 5;
    busqueda.TantosBusqueda(ClaveBusqueda(2)) = 20;
    busqueda.TantosBusqueda(ClaveBusqueda(2, 1)) = 30;
    PonMano(2, {{kOros, kAs}, {kCopas, kAs}});
    TocaA(2);
    SonJugables({2, 1});
    estado.CartasEnMazo = 9;
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 2);
    estado.CartasEnMazo = 0;
    ValoraExploracion();
    EXPECT_EQ(bazas.CartaBusqueda, 1);
}

TEST_F(Busqueda, CadaBusquedaBorraLaAnterior) {
    busqueda.ConteoBusqueda(kUltimaClave) = 7;
    ManosDe({{kOros, kAs}, {kCopas, 2}}, {{kOros, 7}, {kCopas, kRey}});
    EXPECT_EQ(busqueda.ConteoBusqueda(kUltimaClave), 0);
    const EstadoBusqueda primera = busqueda;
    ManosDe({{kOros, kAs}, {kCopas, 2}, {kEspadas, 2}}, {{kOros, 7}, {kCopas, kRey}, {kCopas, 4}});
    ManosDe({{kOros, kAs}, {kCopas, 2}}, {{kOros, 7}, {kCopas, kRey}});
    EXPECT_TRUE(busqueda.ConteoBusqueda == primera.ConteoBusqueda);
    EXPECT_TRUE(busqueda.TantosBusqueda == primera.TantosBusqueda);
}

TEST_F(Busqueda, UnaManoDemasiadoLargaEsUnError) {
    const std::vector<Carta> seis = {{kOros, 2}, {kOros, 4}, {kOros, 5},
                                     {kOros, 6}, {kOros, 7}, {kOros, kSota}};
    EXPECT_THROW(ManosDe(seis, seis), std::logic_error);
    estado.NumJugadores = 5;
    EXPECT_THROW(ManosDe({{kOros, 2}}, {{kOros, 4}}), std::logic_error);
}
