// The kept file of the odds against drawing plainly: every hand of a kind, every draw, one at a time.

#include "tools/draw_odds/odds.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "games/poker/hand_reading.h"
#include "tests/support/poker_hands.h"

using namespace prueba;

namespace {

TablaDeDescartes Guardadas() {
    ArchivosDisco disco;
    const Lectura lectura =
        disco.Lee(std::string(std::getenv("ZOVIN_SOURCE")) + "/assets/tables/PkFDes.ZOV");
    EXPECT_EQ(lectura.error, ErrorArchivo::Ninguno);
    return LeeProbabilidades(lectura.contenido, estado.CartasNormales, estado.ComodinesBaraja);
}

const RegistroDescarte* Busca(const TablaDeDescartes& tabla, Integer categoria, Integer calidad) {
    for (const RegistroDescarte& registro : tabla) {
        if (registro.JugadaMantenida == categoria && registro.CalidadMantenida == calidad)
            return &registro;
    }
    return nullptr;
}

using Casos = std::array<long long, kCategorias + 1>;

void CuentaDraws(const std::vector<Carta>& resto, std::size_t desde, std::vector<int> huecos,
                 Casos& casos) {
    if (huecos.empty()) {
        AnalizaJugada(1);
        ++casos[static_cast<std::size_t>(poker.MejorJugada(1))];
        return;
    }
    const int lugar = huecos.back();
    huecos.pop_back();
    for (std::size_t i = desde; i < resto.size(); ++i) {
        estado.Mano(1, 1, lugar, kPalo) = resto[i].palo;
        estado.Mano(1, 1, lugar, kValor) = resto[i].valor;
        CuentaDraws(resto, i + 1, huecos, casos);
    }
}

// A group of one or two ranks stays, and a joker; everything else is drawn anew.
Casos CasosPlanos(const BarajaDePoker& baraja, Integer categoria, Integer calidad) {
    Casos casos{};
    CadaMano(baraja, 1, [&] {
        AnalizaJugada(1);
        const RegistroJugada jugada = poker.Jugadas(1, categoria);
        if (jugada.Activa == 0 || jugada.Calidad != calidad)
            return;
        const auto segunda = categoria == poker.DoblePareja ? jugada.Cartas(2) : jugada.Cartas(1);
        std::vector<Carta> mano;
        std::vector<int> huecos;
        for (int lugar = 1; lugar <= 5; ++lugar) {
            mano.emplace_back(estado.Mano(1, 1, lugar, kPalo), estado.Mano(1, 1, lugar, kValor));
            const Carta& carta = mano.back();
            if (carta.palo != kComodin && carta.valor != jugada.Cartas(1) && carta.valor != segunda)
                huecos.push_back(lugar);
        }
        std::vector<Carta> resto;
        for (const Carta& carta : baraja.Cartas()) {
            if (std::ranges::find(mano, carta) == mano.end())
                resto.push_back(carta);
        }
        CuentaDraws(resto, 0, huecos, casos);
    });
    return casos;
}

void EsComoElPlano(const BarajaDePoker& baraja, Integer categoria, Integer calidad) {
    const TablaDeDescartes guardadas = Guardadas();
    const RegistroDescarte* registro = Busca(guardadas, categoria, calidad);
    ASSERT_NE(registro, nullptr);
    const Casos casos = CasosPlanos(baraja, categoria, calidad);
    long long todos = 0;
    for (const long long n : casos)
        todos += n;
    for (int n = 7; n <= kCategorias; ++n) {
        const double esperados = static_cast<double>(casos[static_cast<std::size_t>(n)]) /
                                 static_cast<double>(todos) * registro->CasosDescarte;
        EXPECT_LT(std::abs(registro->CasosResultado(n) - esperados), 1.0)
            << "de " << categoria << " a " << n;
    }
}

} // namespace

TEST(TablaDeProbabilidades, LosGruposDe32CartasSonLosDeRobarUnaAUna) {
    const BarajaDePoker baraja(6, 1);
    EsComoElPlano(baraja, poker.Poker, 1);
    EsComoElPlano(baraja, poker.DoblePareja, 1);
    EsComoElPlano(baraja, poker.DoblePareja, 2);
    EsComoElPlano(baraja, poker.Trio, 1);
    EsComoElPlano(baraja, poker.Trio, 2);
}

TEST(TablaDeProbabilidades, ConUnComodinElPokerGuardaElComodin) {
    const BarajaDePoker baraja(6, 2);
    EsComoElPlano(baraja, poker.Poker, 2);
    EsComoElPlano(baraja, poker.Trio, 3);
}

TEST(TablaDeProbabilidades, CadaBarajaTieneUnRegistroPorClaseYSusCasosSuman) {
    for (Integer comodines = 1; comodines <= 3; ++comodines) {
        for (Integer n = 1; n <= 6; ++n) {
            const BarajaDePoker baraja(n, comodines);
            std::set<std::pair<Integer, Integer>> clases;
            CadaMano(baraja, 1, [&] {
                AnalizaJugada(1);
                for (Integer c = 1; c <= kCategorias; ++c) {
                    if (poker.Jugadas(1, c).Activa != 0)
                        clases.emplace(c, poker.Jugadas(1, c).Calidad);
                }
            });
            std::set<std::pair<Integer, Integer>> guardadas;
            for (const RegistroDescarte& registro : Guardadas()) {
                if (registro.CasosDescarte == 0)
                    continue;
                guardadas.emplace(registro.JugadaMantenida, registro.CalidadMantenida);
                Long suma = 0;
                for (const Long casos : registro.CasosResultado)
                    suma += casos;
                EXPECT_EQ(suma, registro.CasosDescarte);
            }
            EXPECT_EQ(guardadas, clases) << n << " " << comodines;
        }
    }
}
