// The pop-up that puts a hand in order, by real clicks: what they hit is decided as a window would.

#include "table/options_menu.h"
#include "table/whole_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "games/cinquillo/cinquillo_choice.h"
#include "table/frames.h"
#include "table/waiting.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::HasSubstr;

namespace {

struct Menu : MesaViva {
    Menu() {
        PonMano(4, {{kBastos, 3}, {kOros, 5}, {kCopas, 7}});
        ManoEmpezada(4);
        estado.EsperandoJugada = true;
    }
    void Atiende() {
        while (!p.guion.Vacio())
            PaseDeEventos(Pase::DeEspera);
    }
    void ClicDerecho(const Punto& punto) {
        p.guion.RatonClic(punto.x, punto.y, 2);
        Atiende();
    }
    bool ALaVista() { return p.EstaVisible(Control::Pic_SelOpciones, 0); }
    Rectangulo Caja() { return p.Tablero().LugarDe({Control::Pic_SelOpciones, 0}); }
    void MueveDentro(int y) {
        p.guion.RatonMueve(Caja().x + 30, Caja().y + y);
        Atiende();
    }
    void Elige(int y) {
        p.guion.RatonClic(Caja().x + 30, Caja().y + y, 1);
        Atiende();
    }
    std::string Pintado() {
        std::string todo;
        for (const std::string& llamada : p.Dibujado(Control::Pic_SelOpciones).Llamadas())
            todo += llamada + "\n";
        return todo;
    }
};

constexpr int kEntradaManual = 10, kEntradaSola = 28; // rows of the box

} // namespace

TEST_F(Menu, SeAbreDondeElClicDerechoSobreUnaManoVisible) {
    ClicDerecho({300, 500});
    EXPECT_TRUE(ALaVista());
    EXPECT_EQ(estado.NumOpciones, 2);
    EXPECT_EQ(Caja().x, 300);
    EXPECT_EQ(Caja().y, 500);
    EXPECT_EQ(Caja().alto, 18 * 2 + 4);
}

TEST_F(Menu, NoSeSaleDeLaMesa) {
    ClicDerecho({478, 598});
    EXPECT_EQ(Caja().y + Caja().alto, 600);
    EXPECT_LE(Caja().x + Caja().ancho, 710);
}

TEST_F(Menu, SobreUnaManoOcultaNoSeAbre) {
    PonMano(1, {{kOros, 1}});
    ClicDerecho({80, 300});
    EXPECT_FALSE(ALaVista());
    EXPECT_EQ(estado.NumOpciones, 0);
}

TEST_F(Menu, EnElFieltroNoSeAbre) {
    ClicDerecho({355, 300});
    EXPECT_FALSE(ALaVista());
}

TEST_F(Menu, ConElBotonIzquierdoNoSeAbre) {
    p.guion.RatonClic(300, 500, 1);
    Atiende();
    EXPECT_FALSE(ALaVista());
}

TEST_F(Menu, EnElBlackJackNoSeAbre) {
    Juega(kBlackJack);
    ClicDerecho({300, 500});
    EXPECT_FALSE(ALaVista());
}

TEST_F(Menu, SinManoEnJuegoNoSeAbre) {
    estado.ManoEnCurso = false;
    ClicDerecho({300, 500});
    EXPECT_FALSE(ALaVista());
}

TEST_F(Menu, SinEsperaNoSeAbre) {
    estado.EsperandoJugada = false;
    ClicDerecho({300, 500});
    EXPECT_FALSE(ALaVista());
}

TEST_F(Menu, LaEntradaBajoElPunteroSeResalta) {
    p.UsaLienzosRegistrados();
    ClicDerecho({300, 500});
    MueveDentro(1);
    EXPECT_EQ(estado.OpcionResaltada, 0);
    MueveDentro(2);
    EXPECT_EQ(estado.OpcionResaltada, 1);
    MueveDentro(19);
    EXPECT_EQ(estado.OpcionResaltada, 1);
    MueveDentro(20);
    EXPECT_EQ(estado.OpcionResaltada, 2);
    MueveDentro(39);
    EXPECT_EQ(estado.OpcionResaltada, 2);
    EXPECT_THAT(Pintado(), HasSubstr("\"Ordenar cartas automáticamente\"; 12, FFFFFF"));
}

TEST_F(Menu, FueraDeLaCajaElResalteSeApaga) {
    ClicDerecho({300, 500});
    MueveDentro(kEntradaManual);
    p.guion.RatonMueve(355, 300);
    Atiende();
    EXPECT_EQ(estado.OpcionResaltada, 0);
    EXPECT_TRUE(ALaVista());
}

TEST_F(Menu, LaPrimeraEntradaPoneYQuitaElModoDeOrdenar) {
    p.UsaLienzosRegistrados();
    ClicDerecho({300, 500});
    EXPECT_THAT(Pintado(), testing::Not(HasSubstr("\"X\"")));
    Elige(kEntradaManual);
    EXPECT_TRUE(estado.ModoOrdenar);
    EXPECT_FALSE(ALaVista());
    EXPECT_EQ(estado.OpcionElegida, 4);
    p.Dibujado(Control::Pic_SelOpciones).Olvida();
    ClicDerecho({300, 500});
    EXPECT_THAT(Pintado(), HasSubstr("\"X\""));
    Elige(kEntradaManual);
    EXPECT_FALSE(estado.ModoOrdenar);
}

TEST_F(Menu, LaSegundaOrdenaLaManoYRehaceLoJugable) {
    EligeCartaCinquillo();
    EXPECT_TRUE(LugarJugable(2));
    ClicDerecho({300, 500});
    Elige(kEntradaSola);
    EXPECT_EQ(estado.OpcionElegida, 5);
    EXPECT_EQ(ManoDe(4), (std::vector<Carta>{{kOros, 5}, {kCopas, 7}, {kBastos, 3}}));
    EXPECT_TRUE(LugarJugable(1));
    EXPECT_FALSE(LugarJugable(2));
    EXPECT_FALSE(ALaVista());
}

TEST_F(Menu, SeOrdenaLaManoSobreLaQueSeAbrio) {
    estado.CartasJugador(2) = kVisibles;
    PonMano(2, {{kEspadas, 12}, {kOros, 1}});
    ClicDerecho({355, 80});
    Elige(kEntradaSola);
    EXPECT_EQ(ManoDe(2), (std::vector<Carta>{{kOros, 1}, {kEspadas, 12}}));
    EXPECT_EQ(ManoDe(4).front(), (Carta{kBastos, 3}));
}

TEST_F(Menu, SinNadaResaltadoSoltarNoEligeNada) {
    ClicDerecho({300, 500});
    Elige(1);
    EXPECT_TRUE(ALaVista());
    EXPECT_EQ(estado.OpcionElegida, 0);
}

TEST_F(Menu, AlPintarTodoDeNuevoElMenuAbiertoTambien) {
    p.UsaLienzosRegistrados();
    ClicDerecho({300, 500});
    MueveDentro(kEntradaSola);
    p.Dibujado(Control::Pic_SelOpciones).Olvida();
    RedibujarMesa();
    EXPECT_THAT(Pintado(), HasSubstr("Ordenar cartas manualmente"));
    EXPECT_THAT(Pintado(), HasSubstr("Ordenar cartas automáticamente\"; 12, FFFFFF"));
}

TEST_F(Menu, ConOtroTamanoSeCierra) {
    ClicDerecho({300, 500});
    p.Mide(900, 700);
    CambiaTamano();
    EXPECT_FALSE(ALaVista());
}

// The box opens with its corner at the click: its words begin beyond what the pointer covers there.
TEST_F(Menu, ElPunteroNoTapaSusPalabras) {
    constexpr int kFlecha = 18;
    p.UsaLienzosRegistrados();
    estado.ModoOrdenar = true;
    ClicDerecho({300, 500});
    int palabras = 0;
    for (const std::string& llamada : p.Dibujado(Control::Pic_SelOpciones).Llamadas()) {
        if (!llamada.starts_with("Texto("))
            continue;
        ++palabras;
        EXPECT_GE(std::stoi(llamada.substr(6)), kFlecha) << llamada;
    }
    EXPECT_EQ(palabras, 3);
}

// At the right edge the box has no room beside the click: all of it stands at the other side.
TEST_F(Menu, EnElAsientoDeLaDerechaSeCorreHaciaAtras) {
    estado.CartasJugador(3) = kVisibles;
    PonMano(3, {{kEspadas, 12}, {kOros, 1}, {kCopas, 4}});
    ClicDerecho({estado.AnchoMesa - 2, 300});
    ASSERT_TRUE(ALaVista());
    EXPECT_EQ(Caja().x + Caja().ancho, estado.AnchoMesa);
    p.guion.RatonMueve(estado.AnchoMesa - 2, 310);
    Atiende();
    EXPECT_EQ(estado.OpcionResaltada, 1);
}

TEST_F(Menu, EnElAsientoDeLaDerechaElPunteroTampocoLasTapa) {
    estado.CartasJugador(3) = kVisibles;
    PonMano(3, {{kEspadas, 12}, {kOros, 1}, {kCopas, 4}});
    ColocarCarta(3, 2, 3);
    const Punto carta{estado.CartaX + 30, estado.CartaY + 10};
    ClicDerecho(carta);
    ASSERT_TRUE(ALaVista());
    EXPECT_EQ(Caja().x + Caja().ancho,
              carta.x + 20); // the click is in the box, where no words stand
    Elige(kEntradaSola);
    EXPECT_EQ(ManoDe(3).front(), (Carta{kOros, 1}));
}

// The pointer lies where the line was that has been chosen.
TEST_F(Menu, AlElegirElPunteroEsElDeLoQueHayDebajo) {
    ClicDerecho({240, 480});
    MueveDentro(kEntradaManual);
    Elige(kEntradaManual);
    EXPECT_TRUE(estado.ModoOrdenar);
    EXPECT_EQ(p.PunteroDe(Control::Mesa, 0), Puntero::Ordenar);
}

TEST_F(Menu, SobreElMenuNoSeContorneaNingunaCarta) {
    estado.ModoOrdenar = true;
    const Punto carta = SobreCarta(4, 1);
    Mueve(carta.x, carta.y);
    ASSERT_TRUE(HayMarco(Marco::DePuntero));
    ClicDerecho(carta);
    ASSERT_TRUE(ALaVista());
    EXPECT_FALSE(HayMarco(Marco::DePuntero));
}
