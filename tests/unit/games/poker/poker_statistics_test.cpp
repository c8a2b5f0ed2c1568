#include "games/poker/poker_statistics.h"

#include <gmock/gmock.h>

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "games/poker/hand_reading.h"
#include "games/poker/poker_state.h"
#include "tests/support/poker_seats.h"
#include "tests/support/printed_text.h"

using namespace prueba;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

struct EstadisticaDePoker : AsientosDePoker {
    // No odds but those that a test gives.
    EstadisticaDePoker() { poker.TablaDescartes.Borra(); }

    static PaginaImpresa Pagina() {
        PaginaImpresa pagina(750, 300);
        EstadisPoker(pagina);
        return pagina;
    }
    static std::vector<std::string> Renglones() { return RenglonesDe(Pagina()); }
    // What becomes of a category and quality, from the seventh category on.
    static void Probabilidad(int lugar, Integer categoria, Integer calidad, Long casos,
                             const std::vector<Long>& resultados) {
        RegistroDescarte& registro = poker.TablaDescartes(lugar);
        registro = {};
        registro.JugadaMantenida = categoria;
        registro.CalidadMantenida = calidad;
        registro.CasosDescarte = casos;
        int n = 7;
        for (const Long resultado : resultados)
            registro.CasosResultado(n++) = resultado;
    }
};

constexpr const char* kLineaBaraja =
    "Cartas normales:     Comodines:     Total cartas baraja:      Combinaciones posibles:";

} // namespace

TEST_F(EstadisticaDePoker, LaPrimeraLineaCuentaLaBaraja) {
    EXPECT_THAT(Renglones(), ElementsAre(std::string(kLineaBaraja) + " | 52 | 0 | 52 | 2,598,960"));
    Baraja(32, 2);
    EXPECT_THAT(Renglones(), ElementsAre(std::string(kLineaBaraja) + " | 32 | 2 | 34 | 278,256"));
}

// Each figure stands behind its own words.
TEST_F(EstadisticaDePoker, LosNumerosVanTrasSuRotulo) {
    std::vector<int> columnas;
    const PaginaImpresa pagina = Pagina();
    for (const Impreso& impreso : pagina.Impresos())
        columnas.push_back(impreso.x / 7);
    EXPECT_THAT(columnas, ElementsAre(0, 17, 32, 57, 86));
}

TEST_F(EstadisticaDePoker, SinCincoCartasNoHayNadaMas) {
    Da(1, "Ao Ac Ae 7b");
    EXPECT_THAT(Pagina().Impresos(), SizeIs(5));
}

TEST_F(EstadisticaDePoker, CadaJugadaConSusCartasSuNumeroYSuParte) {
    Da(1, "Ao 7b Kc Ae Kb");
    const std::vector<std::string> renglones = Renglones();
    EXPECT_EQ(renglones[1], "     Jugada              Cartas         Nro.Orden  % Orden");
    EXPECT_EQ(renglones[2], "Proyecto Figuras | A | A | K | K | 7");
    // The best of all pairs: 1,302,540 hands without any and 1,096,704 with one.
    EXPECT_EQ(renglones[3], "Pareja | A | A | K | K | 7 | 2,399,244 | 92.3155");
    // Below it lie 2,399,244 hands without two pairs, and of the 121,824 with them those with an 8, a 9 or a 10 beside
    // Ases and Reyes are higher.
    EXPECT_EQ(renglones[4], "Doble Pareja | A | A | K | K | 7 | 2,520,636 | 96.9863");
}

TEST_F(EstadisticaDePoker, LasCartasDeLaJugadaVanSubrayadas) {
    Da(1, "Ao 7b Kc Ae Jb");
    const PaginaImpresa pagina = Pagina();
    const std::vector<Impreso> rayas = ItemsDe(pagina, ClaseImpreso::Linea);
    int y_pareja = 0;
    for (const Impreso& impreso : pagina.Impresos()) {
        if (impreso.texto == "Pareja" && y_pareja == 0)
            y_pareja = impreso.y;
    }
    std::vector<int> columnas;
    for (const Impreso& raya : rayas) {
        if (raya.y == y_pareja + 15)
            columnas.push_back(raya.x / 7);
    }
    EXPECT_THAT(columnas, ElementsAre(20, 24)); // both Ases
}

TEST_F(EstadisticaDePoker, CadaCartaLlevaElDibujoDeSuPaloYElComodinNinguno) {
    Baraja(52, 1);
    Da(1, "Ao 10c 8e 6b #");
    const std::vector<Impreso> palos = ItemsDe(Pagina(), ClaseImpreso::Palo);
    std::vector<std::string> signos;
    for (const Impreso& palo : palos)
        signos.push_back(palo.texto);
    ASSERT_GE(signos.size(), 4U);
    EXPECT_THAT(std::vector(signos.begin(), signos.begin() + 4), Contains("♦"));
    EXPECT_THAT(std::vector(signos.begin(), signos.begin() + 4), Contains("♣"));
    EXPECT_EQ(signos.size() % 4, 0U);
    EXPECT_THAT(Renglones(), Contains(StartsWith("Pareja | A | # | 10 | 8 | 6 | ")));
}

TEST_F(EstadisticaDePoker, LosProyectosDeTresNoSalen) {
    Da(1, "4o 5o 6o Jb Kc");
    AnalizaJugada(1);
    ASSERT_NE(poker.Jugadas(1, poker.ProyEscalColor3).Activa, 0);
    EXPECT_THAT(Renglones(), Each(Not(HasSubstr("Proy. 3"))));
    EXPECT_THAT(Renglones(), Contains(StartsWith("Carta mayor | K | J | 6 | 5 | 4 | ")));
}

TEST_F(EstadisticaDePoker, UnProyectoNoTieneNumeroDeOrden) {
    Da(1, "4o 5c 6o 7b Kc");
    EXPECT_THAT(Renglones(), Contains("Proyecto Escalera | 7 | 6 | 5 | 4 | K"));
}

TEST_F(EstadisticaDePoker, LosNombresDeLaBarajaCortaSalenSinSusBlancos) {
    Baraja(40);
    Da(1, "Ao Ac Ae 7b 9c");
    EXPECT_THAT(Renglones(), Contains(StartsWith("Trio | A | A | A | 9 | 7 | ")));
}

TEST_F(EstadisticaDePoker, LosTitulosSiguenElOrdenDeLasCategorias) {
    Da(1, "Ao 10c 8e 6b 4c");
    Baraja(44);
    EXPECT_THAT(Renglones(), Contains("  se  mantiene    mayor  ja   parej  Trio  ras  lera  Color "
                                      " Full Póker Color poker   Menor Igual Mayor"));
    EXPECT_THAT(Renglones(), Contains("   Jugada que     Carta Pare  Doble       Figu  Esca      "
                                      "              Escal  Re      obtener  jugada"));
    Baraja(40);
    EXPECT_THAT(Renglones(), Contains("  se  mantiene    mayor  ja   parej  ras   Trio lera   Full "
                                      "Color Póker Color poker   Menor Igual Mayor"));
    EXPECT_THAT(Renglones(), Contains("   Jugada que     Carta Pare  Doble Figu        Esca      "
                                      "              Escal  Re      obtener  jugada "));
}

TEST_F(EstadisticaDePoker, SinDescartesPorDelanteNoHayProbabilidades) {
    Da(1, "Ao Ac 8e 6b 4c");
    constexpr const char* kTitulo =
        "Probabilidades de obtener estas jugadas                Probabilidades de";
    Ronda(kFaseDescartes, 0, 0.5);
    EXPECT_THAT(Renglones(), Contains(kTitulo));
    Ronda(kFaseSegundaRonda, 0, 0.5);
    EXPECT_THAT(Renglones(), Each(Not(StartsWith("Probabilidades"))));
}

// Of 20,000 draws with a pair of figures one ends in a straight flush; the best hand is that pair.
TEST_F(EstadisticaDePoker, CadaResultadoEnSuColumna) {
    Da(1, "Ao Ac 8e 6b 4c");
    Probabilidad(1, poker.Pareja, 1, 100, {100});
    Probabilidad(2, poker.Pareja, 2, 20000, {0, 14000, 3000, 2000, 0, 0, 0, 999, 0, 1, 0});
    Probabilidad(3, poker.Pareja, 2, 50, {50});
    const PaginaImpresa pagina = Pagina();
    EXPECT_THAT(RenglonesDe(pagina), Contains("Pareja | 70.00 | 15.00 | 10.00 | 5.00 | <0.01 | "
                                              "0.00 | 70.00 | 30.00"));
    std::vector<int> finales;
    for (const Impreso& impreso : pagina.Impresos()) {
        if (impreso.texto == "70.00" || impreso.texto == "<0.01" || impreso.texto == "30.00")
            finales.push_back(impreso.x2 / 7);
    }
    // "ja" is the column that ends at 29; "Color" of the straight flush at 77; "Igual" and "Mayor".
    EXPECT_THAT(finales, ElementsAre(29, 77, 97, 103));
}

TEST_F(EstadisticaDePoker, ExactamenteCienSaleSinDecimales) {
    Da(1, "Ao 2o 3o 4o 5o");
    Probabilidad(1, poker.EscaleraColor, 1, 1, {0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0});
    EXPECT_THAT(Renglones(), Contains("Escalera de color | 100.00 | 0.00 | 100  | 0.00"));
}

TEST_F(EstadisticaDePoker, SinRegistroLaLineaQuedaEnBlanco) {
    Da(1, "Ao Ac 8e 6b 4c");
    Probabilidad(1, poker.Pareja, 1, 100, {100}); // figures have Calidad 2
    EXPECT_THAT(Renglones(), Contains("Pareja"));
}
