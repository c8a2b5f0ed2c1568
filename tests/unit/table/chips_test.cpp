#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "table/chips.h"

#include <cstdio>
#include <map>

#include "table/bet_board.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/side_buttons.h"
#include "table/whole_table.h"
#include "tests/support/bet_table.h"

using namespace prueba;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

struct FichasEnLaMesa : MesaDeApuestas {
    FichasEnLaMesa() { p.UsaLienzosRegistrados(); }

    const std::vector<std::string>& Llamadas() { return p.Dibujado(Control::Mesa).Llamadas(); }
    // The calls that a drawing makes on the felt.
    template <class F>
    std::vector<std::string> Dibuja(F&& dibujo) {
        const auto antes = static_cast<std::ptrdiff_t>(Llamadas().size());
        dibujo();
        return {Llamadas().begin() + antes, Llamadas().end()};
    }
    // The boxes of the felt that a drawing takes.
    template <class F>
    std::vector<Rectangulo> Cajas(F&& dibujo) {
        std::vector<Rectangulo> cajas;
        for (const std::string& llamada : Dibuja(dibujo)) {
            Rectangulo r;
            if (std::sscanf(llamada.c_str(), "Fieltro(%d, %d, %d, %d)", &r.x, &r.y, &r.ancho,
                            &r.alto) == 4)
                cajas.push_back(r);
        }
        return cajas;
    }
    Rectangulo Donde(Control control, int indice = 0) {
        return p.Tablero().LugarDe({control, indice});
    }
};

bool SePisan(const Rectangulo& a, const Rectangulo& b) {
    return a.x < b.x + b.ancho && b.x < a.x + a.ancho && a.y < b.y + b.alto && b.y < a.y + a.alto;
}

using Sitios = std::vector<std::pair<std::string, Rectangulo>>;

void EstanAparte(const Sitios& sitios, const std::string& donde) {
    for (std::size_t i = 0; i < sitios.size(); ++i) {
        for (std::size_t j = i + 1; j < sitios.size(); ++j)
            EXPECT_FALSE(SePisan(sitios[i].second, sitios[j].second))
                << donde << ": " << sitios[i].first << " y " << sitios[j].first;
    }
}

constexpr std::pair<int, int> kTamanos[] = {{800, 600}, {1280, 800}, {1920, 1080}};

} // namespace

TEST_F(FichasEnLaMesa, EnPokerNadaPisaAOtraCosa) {
    for (const auto& [ancho, alto] : kTamanos) {
        p.Mide(ancho, alto);
        CalcularMesa();
        Apuestan(kPoker);
        apuestas.Fichas(kBote, 6) = 4;
        MostrarSugerencia(3);
        MuestraApostadora();
        Sitios sitios{{"apostadora", Donde(Control::Pic_Apostadora)},
                      {"consejo", Donde(Control::Pic_Sugerencia)},
                      {"mazo", {estado.MazoX, estado.MazoY, kAnchoCarta + 8, kAltoCarta + 13}}};
        for (const Rectangulo& caja : Cajas([] { RedibujaBote(); }))
            sitios.emplace_back("bote", caja);
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            const std::string quien = " de " + std::to_string(asiento);
            sitios.emplace_back("zona" + quien, ZonaConRealce(asiento));
            for (const Rectangulo& caja : Cajas([&] { PintarFichas(asiento, asiento - 1); }))
                sitios.emplace_back("resto" + quien, caja);
            for (const Rectangulo& caja : Cajas([&] { RedibujaApuesta(asiento); }))
                sitios.emplace_back("apuesta" + quien, caja);
        }
        EstanAparte(sitios, "póker a " + std::to_string(ancho));
    }
}

TEST_F(FichasEnLaMesa, ConCadaBancaNadaPisaAOtraCosa) {
    for (const auto& [ancho, alto] : kTamanos) {
        for (Integer banca = 1; banca <= 4; ++banca) {
            p.Mide(ancho, alto);
            CalcularMesa();
            Apuestan(kSieteYMedia);
            estado.JugadorBanca = banca;
            ColocarMazo();
            MostrarSugerencia(21);
            MuestraApostadora();
            // The box that the pile clears when it is drawn.
            Sitios sitios{{"apostadora", Donde(Control::Pic_Apostadora)},
                          {"consejo", Donde(Control::Pic_Sugerencia)},
                          {"mazo", {estado.MazoX - 18, estado.MazoY, 133, 155}}};
            for (Integer asiento = 1; asiento <= 4; ++asiento) {
                const std::string quien = " de " + std::to_string(asiento);
                MostrarPuntos(asiento);
                sitios.emplace_back("puntos" + quien, Donde(Control::Pic_Tantos, asiento));
                for (const Rectangulo& caja : Cajas([&] { PintarFichas(asiento, asiento - 1); }))
                    sitios.emplace_back("resto" + quien, caja);
                for (const Rectangulo& caja : Cajas([&] { RedibujaApuesta(asiento); }))
                    sitios.emplace_back("apuesta" + quien, caja);
            }
            for (Integer turno = 1; turno <= 4; ++turno) {
                Sitios con_botones = sitios;
                // The bank's buttons stand by the cards themselves.
                con_botones[2].second = {estado.MazoX, estado.MazoY, kAnchoCarta, kAltoCarta};
                for (int indice = 1; indice <= 2; ++indice) {
                    BotonSuperior(turno, 1, indice);
                    BotonLateral(turno, 1, indice);
                    con_botones.emplace_back("superior", Donde(Control::Pic_BotSuperior, indice));
                    con_botones.emplace_back("lateral", Donde(Control::Pic_BotLateral, indice));
                }
                EstanAparte(con_botones, "banca " + std::to_string(banca) + ", turno de " +
                                             std::to_string(turno) + " a " + std::to_string(ancho));
            }
        }
    }
}

TEST_F(FichasEnLaMesa, DoblarNoTapaLoApostado) {
    Apuestan(kBlackJack);
    for (const Integer asiento : {Integer{1}, Integer{3}, Integer{4}}) {
        BotonDobSeg(asiento, 1, "D o b l a r");
        for (const Rectangulo& caja : Cajas([&] { RedibujaApuesta(asiento); }))
            EXPECT_FALSE(SePisan(caja, Donde(Control::Pic_BotDobSeg))) << asiento;
    }
}

TEST_F(FichasEnLaMesa, CadaFichaDeLaPilaSeDibuja) {
    Apuestan(kPoker);
    apuestas.Fichas.Borra();
    apuestas.Fichas(4, 2) = 3;
    const int x = estado.PosFichaX(3, 2), y = estado.PosFichaY(3, 2);
    const auto lamina = [](int px, int py) {
        return "Lamina(" + std::to_string(px) + ", " + std::to_string(py) + ")";
    };
    const auto dibujo = Dibuja([] { PintarFichas(4, 3); });
    EXPECT_THAT(dibujo, testing::IsSupersetOf({lamina(x, y), lamina(x, y - 2), lamina(x, y - 4)}));
    EXPECT_EQ(dibujo.size(), 4U); // with the felt below
}

TEST_F(FichasEnLaMesa, UnaPilaMasAltaDiceCuantasTiene) {
    Apuestan(kPoker);
    apuestas.Fichas(4, 6) = 24;
    EXPECT_THAT(Dibuja([] { PintarFichas(4, 3); }), Contains(HasSubstr("\"×24\"")));
    apuestas.Fichas(4, 6) = 6;
    EXPECT_THAT(Dibuja([] { PintarFichas(4, 3); }), Not(Contains(HasSubstr("×"))));
}

TEST_F(FichasEnLaMesa, ElBoteDiceSusPuntosYVacioNoDiceNada) {
    Apuestan(kPoker);
    apuestas.Fichas(kBote, 4) = 3;
    apuestas.Fichas(kBote, 1) = 1;
    EXPECT_THAT(Dibuja([] { RedibujaBote(); }), Contains(HasSubstr("\"31\"")));
    apuestas.Fichas.Borra();
    EXPECT_THAT(Dibuja([] { RedibujaBote(); }), Not(Contains(HasSubstr("Texto"))));
}

TEST_F(FichasEnLaMesa, LaEtiquetaDiceLoPuestoEnTodaLaMano) {
    Apuestan(kPoker);
    apuestas.Fichas(kBote, 5) = 2;
    apuestas.Apuesta(3, 1, kFaseSalida) = 5;
    apuestas.Apuesta(3, 1, kFasePrimeraRonda) = 12;
    EXPECT_THAT(Dibuja([] { RedibujaApuesta(3); }), Contains(HasSubstr("\"17\"")));
}

TEST_F(FichasEnLaMesa, PagadoElBoteLasEtiquetasSeVan) {
    Apuestan(kPoker);
    apuestas.Apuesta(3, 1, kFaseSalida) = 5;
    EXPECT_THAT(Dibuja([] { RedibujaApuesta(3); }), Not(Contains(HasSubstr("Texto"))));
}

TEST_F(FichasEnLaMesa, ConBancaLaApuestaSonSusFichasYSuEtiqueta) {
    Apuestan(kSieteYMedia);
    ColocaApuesta(1, 17); // 10, 5, 2
    const auto dibujo = Dibuja([] { RedibujaApuesta(1); });
    EXPECT_THAT(dibujo, Contains(HasSubstr("\"17\"")));
    EXPECT_EQ(
        std::ranges::count_if(dibujo, [](const std::string& s) { return s.starts_with("Lamina"); }),
        3);
}

TEST_F(FichasEnLaMesa, LaBancaNoTieneSitioDeApuesta) {
    Apuestan(kSieteYMedia);
    EXPECT_THAT(Cajas([] { RedibujaApuesta(estado.JugadorBanca); }), testing::IsEmpty());
}

// In the middle of an empty place; beside the chips that still lie there, which are of an insurance.
TEST_F(FichasEnLaMesa, LaMarcaDeQuienSePasaEstaEnSuSitioDeApuesta) {
    Apuestan(kBlackJack);
    const int area = kAreaApuestas + 3;
    const int medio = estado.PosFichaX(area, 1) + (38 + 33 - 32) / 2, y = estado.PosFichaY(area, 1);
    const auto lamina = [y](int x) {
        return "Lamina(" + std::to_string(x) + ", " + std::to_string(y) + ")";
    };
    EXPECT_THAT(Dibuja([] { RedibujaApuesta(4); }), Not(Contains(lamina(medio))));
    estado.SerieTerminada(4, 1) = true;
    EXPECT_THAT(Dibuja([] { RedibujaApuesta(4); }), Contains(lamina(medio)));
    apuestas.FichasPuestas(4, 1, 1) = 3;
    apuestas.NumFichasPuestas(4, 1) = 1;
    EXPECT_THAT(Dibuja([] { RedibujaApuesta(4); }), Contains(lamina(medio + (97 - 32) / 2 + 1)));
}

TEST_F(FichasEnLaMesa, LaMarcaDeLaBancaQueSePasaEstaEnSusCartas) {
    Apuestan(kBlackJack);
    estado.SerieTerminada(2, 1) = true;
    const Rectangulo zona = ZonaDe(2);
    const std::string marca = "Lamina(" + std::to_string(zona.x + (zona.ancho - 32) / 2) + ", " +
                              std::to_string(zona.y + (zona.alto - 32) / 2) + ")";
    EXPECT_THAT(Dibuja([] { RedibujarAsiento(2); }), Contains(marca));
}

TEST_F(FichasEnLaMesa, LaEtiquetaCambiaCuandoLlegaLaFicha) {
    Apuestan(kSieteYMedia);
    apuestas.Apuesta(4, 1, kFaseApuestas) = 5;
    apuestas.FichasPuestas(4, 1, 1) = 3;
    apuestas.NumFichasPuestas(4, 1) = 1;
    std::vector<std::string> etiquetas;
    for (const std::string& llamada : Dibuja([] { PonFicha(4, 4); })) {
        for (const char* numero : {"\"5\"", "\"15\""}) {
            if (llamada.starts_with("Texto") && llamada.find(numero) != std::string::npos)
                etiquetas.emplace_back(numero);
        }
    }
    EXPECT_THAT(etiquetas, testing::ElementsAre("\"5\"", "\"15\""));
}

TEST_F(FichasEnLaMesa, LaFichaVuelaDeSuPilaAlBoteYDesaparece) {
    Apuestan(kPoker);
    EmpiezaTraza();
    MueveFicha({4, {4}, {kBote}, 0});
    EXPECT_FALSE(p.EstaVisible(Control::Pic_NumerosCristal, 0));
    const Rectangulo fin = Donde(Control::Pic_NumerosCristal);
    EXPECT_EQ(fin.x, estado.PosFichaX(13, 4));
    EXPECT_EQ(fin.y, estado.PosFichaY(13, 4));
    const int lejos = std::max(std::abs(estado.PosFichaX(3, 4) - fin.x),
                               std::abs(estado.PosFichaY(3, 4) - fin.y));
    EXPECT_EQ(std::ranges::count(traza, "Pausa(12)"), (lejos + 25) / 26);
    EXPECT_EQ(traza.back(), "Sonido(1, 22)");
}

TEST_F(FichasEnLaMesa, AlRepintarLaMesaVuelvenElBoteYLasApuestas) {
    Apuestan(kPoker);
    ColocaApuesta(4, 20);
    EmpiezaTraza();
    p.Mide(1280, 800);
    CambiaTamano();
    EXPECT_EQ(TrazaDe("RedibujaBote").size(), 1U);
    EXPECT_EQ(TrazaDe("RedibujaApuesta").size(), 4U);
}
