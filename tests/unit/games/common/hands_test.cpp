#include "betting/bet_state.h"
#include "games/common/hands.h"
#include "games/game_rows.h"
#include "table/button_column.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/session_state.h"
#include "games/common/trick_state.h"
#include "table/table_view.h"
#include "table/whole_table.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Manos : MesaViva {
    Manos() {
        p.formas = {Forma::Personal, Forma::Normas, Forma::Marcador, Forma::Estadis};
        estado.PartidaEnCurso = true;
        estado.JugadorMano = 2;
        estado.NombreJugador(1) = "Ana";
        estado.NombreJugador(2) = "Luis";
        estado.NombreJugador(3) = "Eva";
        estado.NombreJugador(4) = "Iñigo";
    }
    static void PorParejas() { estado.ModalidadJuego = kDosParejas; }
    static bool Empieza() { return IniciarJuego(); }
};

} // namespace

TEST_F(Manos, ElPrimerJuegoLoEmpiezaElDelSorteo) {
    ASSERT_TRUE(Empieza());
    EXPECT_EQ(estado.JuegosJugados, 1);
    EXPECT_EQ(estado.JugadorMano, 2);
    EXPECT_TRUE(estado.ManoEnCurso);
}

TEST_F(Manos, DespuesLaManoPasaAlSiguiente) {
    ASSERT_TRUE(Empieza());
    ASSERT_TRUE(Empieza());
    EXPECT_EQ(estado.JuegosJugados, 2);
    EXPECT_EQ(estado.JugadorMano, 3);
}

TEST_F(Manos, EnSentidoInversoPasaAlDeAntes) {
    estado.SentidoJuego = kInverso;
    estado.PasoSentido = -1;
    ASSERT_TRUE(Empieza());
    ASSERT_TRUE(Empieza());
    EXPECT_EQ(estado.JugadorMano, 1);
}

TEST_F(Manos, QuienNoJuegaNoEsMano) {
    estado.JuegoActivo = kBrisca;
    Desactiva({3, 4});
    ASSERT_TRUE(Empieza());
    ASSERT_TRUE(Empieza());
    EXPECT_EQ(estado.JugadorMano, 1);
}

// A match that was cut off in the draw comes back with the lead of the match before.
TEST_F(Manos, QuienYaNoJuegaTampocoEmpiezaElPrimerJuego) {
    estado.JuegoActivo = kBrisca;
    Desactiva({2, 3});
    ASSERT_TRUE(Empieza());
    EXPECT_EQ(estado.JuegosJugados, 1);
    EXPECT_EQ(estado.JugadorMano, 4);
}

TEST_F(Manos, LaManoAnteriorSeBorra) {
    estado.SerieActual = estado.SerieEnJuego = 3;
    estado.NumBaza = 9;
    estado.PaloTriunfo = kCopas;
    estado.ValorTriunfo = 12;
    estado.JugadoresEnMano = 1;
    estado.Mano(1, 1, 12, kPalo) = kBastos;
    estado.RotuloSerie(1, 1) = "Paso";
    apuestas.Apuesta(1, 1, 2) = 50;
    bazas.CartaJugada(kOros, 5) = 2;
    bazas.RegistroBazas(6, 1) = 1;
    bazas.TantosJugador(2) = 30;
    bazas.PaloCantado(kOros) = 2;
    bazas.FallaPalo(kOros, 3) = true;
    bazas.TuteCantado = true;
    bazas.CartaCambio = 7;
    bazas.Arrastre = true;
    bazas.CartaEnMesa(3, 1) = kOros;
    bazas.GanadorDeBaza(9) = 4;
    bazas.TantosDeBaza(9) = 21;
    bazas.NumJugables = 2;
    ASSERT_TRUE(Empieza());
    EXPECT_EQ(estado.SerieActual, 1);
    EXPECT_EQ(estado.SerieEnJuego, 1);
    EXPECT_EQ(estado.SeriesJugador(3), 1);
    EXPECT_EQ(estado.NumBaza, 0);
    EXPECT_EQ(estado.PaloTriunfo, 0);
    EXPECT_EQ(estado.ValorTriunfo, 0);
    EXPECT_EQ(estado.JugadoresEnMano, 4);
    EXPECT_EQ(estado.Mano(1, 1, 12, kPalo), kSinCarta);
    EXPECT_EQ(estado.RotuloSerie(1, 1), "");
    EXPECT_EQ(apuestas.Apuesta(1, 1, 2), 0);
    EXPECT_EQ(bazas.CartaJugada(kOros, 5), 0);
    EXPECT_EQ(bazas.RegistroBazas(6, 1), 0);
    EXPECT_EQ(bazas.TantosJugador(2), Currency(0));
    EXPECT_EQ(bazas.PaloCantado(kOros), 0);
    EXPECT_FALSE(bazas.FallaPalo(kOros, 3));
    EXPECT_FALSE(bazas.TuteCantado);
    EXPECT_EQ(bazas.CartaCambio, 0);
    EXPECT_FALSE(bazas.Arrastre);
    EXPECT_EQ(bazas.CartaEnMesa(3, 1), kSinCarta);
    EXPECT_EQ(bazas.GanadorDeBaza(9), 0);
    EXPECT_EQ(bazas.TantosDeBaza(9), Currency(0));
    EXPECT_EQ(bazas.NumJugables, 0);
}

TEST_F(Manos, ElGanadorDeLaUltimaBazaNoSeOlvida) {
    estado.GanadorBaza = 3;
    ASSERT_TRUE(Empieza());
    EXPECT_EQ(estado.GanadorBaza, 3);
}

TEST_F(Manos, RepartidoSeHabilitanLosBotones) {
    for (int boton = 1; boton <= 8; ++boton)
        HabilitaBoton(boton, false);
    ASSERT_TRUE(Empieza());
    for (int boton = 1; boton <= 8; ++boton) {
        const bool debe = boton == 2 || boton == 3 || boton == 7 || boton == 8;
        EXPECT_EQ(BotonHabilitado(boton), debe) << boton;
    }
}

TEST_F(Manos, ElTriunfoSeDescubreTrasElRepartoYAntesDeLaMano) {
    FilaJuego con_triunfo = *FilaDe(kCinquillo);
    con_triunfo.mano.descubre = [] {
        EXPECT_EQ(estado.NumCartas(2, 1), 10);
        EXPECT_FALSE(estado.ManoEnCurso);
        estado.PaloTriunfo = kBastos;
    };
    UsaJuegos({&con_triunfo});
    EXPECT_TRUE(Empieza());
    UsaJuegos(LosJuegos());
    EXPECT_EQ(estado.PaloTriunfo, kBastos);
    EXPECT_TRUE(estado.ManoEnCurso);
}

TEST_F(Manos, LaPartidaQueSeDejaEnElRepartoNoEmpiezaLaMano) {
    p.traviesa = true;
    p.guion.Encola({.tipo = TipoEvento::Termina});
    EXPECT_FALSE(Empieza());
    EXPECT_FALSE(estado.ManoEnCurso);
}

TEST_F(Manos, ElPrimerPasoCaeEnElMano) {
    for (Integer mano = 1; mano <= 4; ++mano) {
        estado.JugadorMano = mano;
        PonAntesDelMano();
        SiguienteAsiento(estado.JugadorActual);
        EXPECT_EQ(estado.JugadorActual, mano);
    }
}

TEST_F(Manos, ElJuegoMilSueltaElPrimero) {
    estado.JuegosJugados = 1000;
    for (int juego = 1; juego <= 1000; ++juego)
        estado.Juegos(juego).Total = static_cast<Integer>(juego);
    ASSERT_TRUE(Empieza());
    EXPECT_EQ(estado.JuegosJugados, 1000);
    EXPECT_EQ(estado.Juegos(1).Total, 2);
    EXPECT_EQ(estado.Juegos(999).Total, 1000);
    EXPECT_EQ(estado.Juegos(1000).Total, 0);
}

TEST_F(Manos, LasPalabrasDelGanador) {
    EXPECT_EQ(TextoGana(1, "la mano"), "Ha ganado la mano Ana");
    EXPECT_EQ(TextoGana(4, "la mano"), "Iñigo, has ganado la mano. ");
    EXPECT_EQ(TextoGana(3, "la partida"), "Ha ganado la partida Eva");
    PorParejas();
    EXPECT_EQ(TextoGana(1, "la mano"), "Han ganado la mano Ana y Eva");
    EXPECT_EQ(TextoGana(2, "la partida"), "Luis y Iñigo, habéis ganado la partida. ");
}

TEST_F(Manos, LaMarcaDelGanadorParpadeaCuatroVeces) {
    estado.GanadorMano = 3;
    EmpiezaTraza();
    ParpadeaGanador();
    EXPECT_EQ(traza.front(), "Sonido(1, 14)");
    EXPECT_THAT(TrazaDe("Pausa"),
                ElementsAre("Pausa(490)", "Pausa(200)", "Pausa(490)", "Pausa(200)", "Pausa(490)",
                            "Pausa(200)", "Pausa(490)", "Pausa(200)"));
    EXPECT_EQ(TrazaDe("MarcaGanador").size(), 8U);
    EXPECT_EQ(TrazaDe("MarcaGanador")[0], "MarcaGanador(3, 1)");
    // It stays until the table is cleared for the next hand.
    EXPECT_TRUE(vista.ganador(3));
    EXPECT_FALSE(vista.ganador(1));
    LimpiarMesa();
    EXPECT_FALSE(vista.ganador(3));
}

TEST_F(Manos, PorParejasParpadeanLosDos) {
    PorParejas();
    estado.GanadorMano = 2;
    EmpiezaTraza();
    ParpadeaGanador();
    EXPECT_EQ(TrazaDe("MarcaGanador")[0], "MarcaGanador(2, 1)");
    EXPECT_EQ(TrazaDe("MarcaGanador")[1], "MarcaGanador(4, 1)");
    EXPECT_EQ(TrazaDe("MarcaGanador").size(), 16U);
}

TEST_F(Manos, AlFinalSeEsperaSiHayAlguienAMano) {
    estado.PausaEntreJugadas = false;
    EmpiezaTraza();
    EXPECT_FALSE(CuentaFinalMano("x"));
    EXPECT_TRUE(sesion.sin_eventos);
    EXPECT_EQ(traza.front(), "Pausa(750)");
    EXPECT_EQ(TrazaDe("PedirContinuar").size(), 1U);
}

TEST_F(Manos, AlFinalSeEsperaConPausaEntreJugadas) {
    TodoSolo();
    estado.PausaEntreJugadas = true;
    p.siempre_continua = true;
    EmpiezaTraza();
    EXPECT_TRUE(CuentaFinalMano("x"));
    EXPECT_EQ(TrazaDe("PedirContinuar").front(), "PedirContinuar(1)");
}

TEST_F(Manos, SiNadieEsperaHayUnaPausaDeQuinientos) {
    TodoSolo();
    EmpiezaTraza();
    EXPECT_TRUE(CuentaFinalMano("una\r\ndos"));
    EXPECT_THAT(TrazaDe("Pausa"), ElementsAre("Pausa(750)", "Pausa(500)"));
    EXPECT_THAT(TrazaDe("PedirContinuar"), IsEmpty());
    EXPECT_EQ(p.mensajes[0].titulo, "Final de la mano");
    EXPECT_EQ(p.mensajes[0].lineas, 2);
}

TEST_F(Manos, QuienJuegaAManoPeroNoEstaEnLaMesaNoHaceEsperar) {
    estado.PausaEntreJugadas = false;
    Desactiva({4});
    EXPECT_TRUE(CuentaFinalMano("x"));
}

TEST_F(Manos, LaCartaAconsejadaSeLevantaDosVeces) {
    PonMano(1, {{kOros, 5}, {kCopas, 2}});
    estado.JugadorActual = 1;
    EmpiezaTraza();
    AconsejaCarta([] { estado.CartaElegida = 2; });
    EXPECT_THAT(traza,
                ElementsAre("RedibujarAsiento(1)", "Pausa(180)", "Sonido(1, 26)", "Pausa(420)",
                            "RedibujarAsiento(1)", "RedibujarAsiento(1)", "Pausa(180)",
                            "Sonido(1, 26)", "Pausa(420)", "RedibujarAsiento(1)"));
    EXPECT_EQ(estado.Mano(1, 1, 2, kAltura), kEnLinea);
}

TEST_F(Manos, LaManoGanadaCuentaYSeGuarda) {
    estado.JuegosJugados = 1;
    estado.GanadorMano = 3;
    sesion.mano_apuntada = false;
    GanaMano();
    EXPECT_EQ(estado.JuegosGanados(3), 1);
    EXPECT_TRUE(sesion.mano_apuntada);
    EXPECT_TRUE(p.EnMemoria().contenidos.contains("./ZOV7031.INI"));
}

namespace {

// A hand that goes to GanadorMano at once.
bool ManoCorta() {
    ++estado.JuegosJugados;
    GanaMano();
    return true;
}

bool ManoQueSeDeja() {
    ++estado.JuegosJugados;
    return false;
}

} // namespace

TEST_F(Manos, GanaLaPartidaQuienLlegaAlLimite) {
    estado.LimitePartida = 3;
    estado.JuegosGanados(2) = 1;
    estado.GanadorMano = 2;
    JuegaPartida(ManoCorta);
    EXPECT_EQ(estado.JuegosJugados, 2);
    EXPECT_EQ(estado.GanadorPartida, 2);
    EXPECT_FALSE(estado.PartidaEnCurso);
}

// A limit that was lowered in the middle of a hand: who has the hands does not win by another seat's hand.
TEST_F(Manos, SoloGanaLaPartidaQuienGanaLaMano) {
    estado.LimitePartida = 5;
    estado.JuegosGanados(1) = 3;
    estado.JuegosGanados(3) = 0;
    estado.GanadorMano = 3;
    JuegaPartida([] {
        estado.LimitePartida = 2;
        return ManoCorta();
    });
    EXPECT_EQ(estado.JuegosJugados, 2);
    EXPECT_EQ(estado.GanadorPartida, 3);
}

TEST_F(Manos, LaManoQueSeDejaNoCierraLaPartida) {
    estado.LimitePartida = 3;
    JuegaPartida(ManoQueSeDeja);
    EXPECT_EQ(estado.JuegosJugados, 1);
    EXPECT_TRUE(p.mensajes.empty());
    EXPECT_TRUE(estado.PartidaEnCurso);
}

TEST_F(Manos, ElFinalDeLaPartida) {
    estado.GanadorPartida = 4;
    for (int asiento = 1; asiento <= 4; ++asiento)
        p.Muestra(Control::Pic_Tantos, asiento, true);
    p.Muestra(Control::Pic_BotContinuar, 0, true);
    p.Muestra(Control::Pic_Sugerencia, 0, true);
    for (int boton = 1; boton <= 8; ++boton)
        HabilitaBoton(boton, false);
    FinalPartida();
    EXPECT_THAT(Titulos(), ElementsAre("Final de Partida", "Histórico de partidas jugadas"));
    EXPECT_EQ(p.mensajes[0].texto, "Iñigo, has ganado la partida. ");
    EXPECT_EQ(p.mensajes[1].texto, "¿Se actualiza el Histórico de partidas?");
    EXPECT_EQ(p.mensajes[1].modo, 2);
    EXPECT_FALSE(estado.PartidaEnCurso);
    for (int asiento = 1; asiento <= 4; ++asiento)
        EXPECT_FALSE(p.EstaVisible(Control::Pic_Tantos, asiento));
    EXPECT_FALSE(p.EstaVisible(Control::Pic_BotContinuar, 0));
    EXPECT_FALSE(p.EstaVisible(Control::Pic_Sugerencia, 0));
    for (int boton = 1; boton <= 8; ++boton)
        EXPECT_EQ(BotonHabilitado(boton), boton == 1 || boton == 3 || boton == 7) << boton;
}
