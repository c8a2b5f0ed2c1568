#include "betting/bet_state.h"
#include "session/match_driver.h"
#include "table/button_column.h"
#include "table/controls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "betting/chips.h"
#include "core/session_state.h"
#include "games/cinquillo/cinquillo.h"
#include "games/common/series_state.h"
#include "games/common/trick_state.h"
#include "storage/settings.h"
#include "table/deck.h"
#include "table/waiting.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Partida : MesaViva {
    Partida() { estado.VelocidadJuego = 100; }

    // The file of Cinquillo as a match in its third game would leave it.
    void HayPartidaGuardada() {
        estado.PartidaEnCurso = true;
        estado.JuegosJugados = 2;
        estado.JugadorMano = 3;
        estado.JuegosGanados(4) = 2;
        sesion.mano_apuntada = true;
        ASSERT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
        estado.PartidaEnCurso = false;
        estado.JuegosJugados = 0;
        estado.JuegosGanados.Borra();
        estado.JugadorMano = 1;
    }
    // What stands in the file of Cinquillo, read aside.
    struct EnDisco {
        bool en_curso;
        int juegos, ganados_de_4;
    };
    static EnDisco LoGuardado() {
        const EstadoJuego antes = estado;
        const Sesion sesion_antes = sesion;
        LeerIniJuego();
        const EnDisco leido{estado.PartidaEnCurso, estado.JuegosJugados, estado.JuegosGanados(4)};
        estado = antes;
        sesion = sesion_antes;
        return leido;
    }
    void NuevaEnLaEspera() { p.guion.PulsaControl({Control::Pic_Boton, kBotonNueva}); }
};

} // namespace

TEST_F(Partida, CadaSelectorTieneSuTitulo) {
    IniciarTablas();
    EXPECT_EQ(estado.TituloSelector(1), " Sistema de reparto  ");
    EXPECT_EQ(estado.TituloSelector(2), " Ley de apertura  ");
    EXPECT_EQ(estado.TituloSelector(3), " Comodines en juego  ");
    EXPECT_EQ(estado.TituloSelector(4), " Modalidad de juego  ");
    EXPECT_EQ(estado.TituloSelector(5), " Cartas en la baraja  ");
    EXPECT_EQ(estado.TituloSelector(8), " Sentido del juego  ");
    EXPECT_EQ(estado.TituloSelector(9), " Ventana de información  ");
    for (int asiento = 1; asiento <= 4; ++asiento) {
        EXPECT_EQ(estado.TituloSelector(10 + asiento), " Estado del jugador  ");
        EXPECT_EQ(estado.TituloSelector(20 + asiento), " Cartas del jugador  ");
        EXPECT_EQ(estado.TituloSelector(24 + asiento), " Control del juego  ");
        EXPECT_EQ(estado.TituloSelector(30 + asiento), " Carácter del jugador  ");
    }
    for (int ninguno : {6, 7, 10, 15, 20, 29, 30})
        EXPECT_EQ(estado.TituloSelector(ninguno), "") << ninguno;
}

TEST_F(Partida, CadaJuegoYCadaNumeroTienenSuNombre) {
    IniciarTablas();
    EXPECT_EQ(estado.NombreJuego(kPoker), "Póker");
    EXPECT_EQ(estado.NombreJuego(kBlackJack), "Black Jack");
    EXPECT_EQ(estado.NombreJuego(kTute), "Tute");
    EXPECT_EQ(estado.NombreJuego(kBrisca), "Brisca");
    EXPECT_EQ(estado.NombreJuego(kSieteYMedia), "Siete y media");
    EXPECT_EQ(estado.NombreJuego(kCinquillo), "Cinquillo");
    const std::vector<std::string> numeros(estado.NombreNumero.begin() + 1,
                                           estado.NombreNumero.end());
    EXPECT_THAT(numeros,
                testing::ElementsAre("Una", "Dos", "Tres", "Cuatro", "Cinco", "Seis", "Siete"));
    const std::vector<Integer> fichas(apuestas.ValorFicha.begin() + 1, apuestas.ValorFicha.end());
    EXPECT_THAT(fichas, testing::ElementsAre(1, 2, 5, 10, 20, 50));
}

TEST_F(Partida, LasTablasDeCadaSesion) {
    estado.SentidoJuego = kInverso;
    estado.TutorPulsado = estado.EsperandoJugada = estado.VentanaModal = true;
    series.PuedeAsegurar = series.PuedeAbrir = series.PuedeDoblar = true;
    p.Muestra(Control::Pic_BotDobSeg, 0, true);
    IniciarTablas();
    EXPECT_FALSE(p.EstaVisible(Control::Pic_BotDobSeg, 0));
    EXPECT_EQ(estado.ParejaAsiento(1), 3);
    EXPECT_EQ(estado.ParejaAsiento(4), 2);
    for (int asiento = 1; asiento <= 4; ++asiento)
        EXPECT_EQ(estado.OrientacionAsiento(asiento), asiento);
    EXPECT_EQ(estado.PasoSentido, -1);
    EXPECT_EQ(estado.TextoOrdenar(4), "Ordenar cartas manualmente");
    EXPECT_EQ(estado.TextoOrdenar(5), "Ordenar cartas automáticamente");
    EXPECT_EQ(apuestas.ValorFicha(6), 50);
    EXPECT_EQ(estado.NombreNumero(7), "Siete");
    EXPECT_EQ(estado.NombreJuego(65), "Siete y media");
    EXPECT_EQ(estado.TituloSelector(33), " Carácter del jugador  ");
    EXPECT_EQ(estado.TituloSelector(6), "");
    EXPECT_EQ(estado.Sugerencias(49).Tema, 2170);
    EXPECT_FALSE(estado.TutorPulsado);
    EXPECT_FALSE(estado.EsperandoJugada);
    EXPECT_FALSE(estado.VentanaModal);
    EXPECT_FALSE(series.PuedeAsegurar);
    EXPECT_FALSE(series.PuedeAbrir);
    EXPECT_FALSE(series.PuedeDoblar);
    EXPECT_EQ(estado.TotalBaraja, 40);
}

TEST_F(Partida, SinPartidaGuardadaLaMesaQuedaVacia) {
    ASSERT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
    p.formas = {Forma::Normas};
    p.Muestra(Control::Pic_Sugerencia, 0, true);
    p.Muestra(Control::Pic_BotDobSeg, 0, true);
    for (int indice = 1; indice <= 4; ++indice)
        p.Muestra(Control::Pic_Tantos, indice, true);
    PedirContinuar(1);
    estado.CursorTabla = 3;
    CambiarCursor(Control::Mesa, 0, Puntero::ManoRoja);
    IniciarSesion();
    EXPECT_FALSE(estado.PartidaEnCurso);
    EXPECT_THAT(p.mensajes, IsEmpty());
    EXPECT_EQ(estado.CursorTabla, 0);
    EXPECT_EQ(PunteroEnMesa(), Puntero::Flecha);
    EXPECT_TRUE(BotonHabilitado(kBotonNormas));
    EXPECT_FALSE(p.EstaVisible(Control::Pic_Sugerencia, 0));
    EXPECT_FALSE(p.EstaVisible(Control::Pic_BotDobSeg, 0));
    EXPECT_FALSE(p.EstaVisible(Control::Pic_BotContinuar, 0));
    for (int indice = 1; indice <= 4; ++indice)
        EXPECT_FALSE(p.EstaVisible(Control::Pic_Tantos, indice));
}

// A new size paints the table from the state: what lay there in the last match would come back.
TEST_F(Partida, LoJugadoEnLaSesionAnteriorNoVuelveALaMesa) {
    bazas.CartaJugada(kOros, 5) = 2;
    bazas.CartaEnMesa(2, 1) = kOros;
    IniciarSesion();
    EXPECT_EQ(bazas.CartaJugada(kOros, 5), 0);
    EXPECT_EQ(bazas.CartaEnMesa(2, 1), kSinCarta);
}

TEST_F(Partida, UnaPartidaGuardadaSigueDondeQuedo) {
    HayPartidaGuardada();
    IniciarSesion();
    ASSERT_FALSE(p.mensajes.empty());
    EXPECT_EQ(p.mensajes[0].titulo, "Continuar la partida anterior");
    EXPECT_EQ(p.mensajes[0].texto, "Continua  el  desarrollo  de  la  partida  que  no  finalizó "
                                   "en la sesión anterior.");
    // Its wait for seat 4 has found nothing to wait for, in the third game.
    EXPECT_EQ(estado.JuegosJugados, 3);
    EXPECT_EQ(estado.JugadorMano, 4);
    EXPECT_EQ(estado.JuegosGanados(4), 2);
}

TEST_F(Partida, AlContinuarSePintaLaMesaAntesDeSeguir) {
    estado.LimitePartida = 2; // won already: the match has nothing more to draw
    HayPartidaGuardada();
    p.UsaLienzosRegistrados();
    EmpiezaTraza();
    IniciarSesion();
    EXPECT_THAT(TrazaDe("RedibujarAsiento"),
                ElementsAre("RedibujarAsiento(1)", "RedibujarAsiento(2)", "RedibujarAsiento(3)",
                            "RedibujarAsiento(4)"));
}

// The deal is left before the hand's own start enables it.
TEST_F(Partida, AlContinuarSePuedeEmpezarOtraDesdeElReparto) {
    HayPartidaGuardada();
    HabilitaBoton(kBotonNueva, false);
    p.traviesa = true;
    p.guion.Encola({.tipo = TipoEvento::Termina});
    IniciarSesion();
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
    EXPECT_TRUE(BotonHabilitado(kBotonNueva));
}

TEST_F(Partida, LoQueLaPartidaGuardadaNoDiceEmpiezaDeNuevo) {
    HayPartidaGuardada();
    estado.AzarTurno = 0.9F;
    estado.GanadorBaza = 2;
    TodoSolo();
    estado.ModoOrdenar = apuestas.ModoApuesta = estado.ManoEnCurso = true;
    PonMano(1, {{kOros, 1}});
    ASSERT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
    IniciarSesion();
    EXPECT_EQ(estado.AzarTurno, 0);
    EXPECT_EQ(estado.GanadorBaza, 0);
    EXPECT_FALSE(estado.ModoOrdenar);
    EXPECT_FALSE(apuestas.ModoApuesta);
    EXPECT_FALSE(estado.ManoEnCurso);
    EXPECT_THAT(ManoDe(1), IsEmpty());
}

TEST_F(Partida, ConElLimiteYaGanadoAcabaEnSeguida) {
    HayPartidaGuardada();
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 3;
    estado.JuegosGanados(4) = 3;
    ASSERT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
    IniciarSesion();
    EXPECT_THAT(Titulos(), ElementsAre("Continuar la partida anterior", "Final de Partida",
                                       "Histórico de partidas jugadas"));
    EXPECT_EQ(p.mensajes[1].texto, "Jugador4, has ganado la partida. ");
    EXPECT_FALSE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.GanadorPartida, 4);
    EXPECT_FALSE(LoGuardado().en_curso);
}

TEST_F(Partida, UnNumeroQueNoEsJuegoTomaElCinquillo) {
    estado.JuegoActivo = 2;
    IniciarSesion();
    EXPECT_EQ(estado.JuegoActivo, kCinquillo);
}

TEST_F(Partida, TambienUnaPartidaNuevaTomaElCinquilloYSuBaraja) {
    estado.JuegoActivo = kPoker;
    ConstruirBaraja();
    estado.JuegoActivo = 2;
    NuevaPartida();
    EXPECT_EQ(estado.JuegoActivo, kCinquillo);
    EXPECT_EQ(estado.CartasNormales, 40);
    EXPECT_FALSE(estado.ValorEnBaraja(8));
}

// The deal is left before the hand's own start enables it.
TEST_F(Partida, TrasElSorteoSePuedeEmpezarOtra) {
    HabilitaBoton(kBotonNueva, false);
    p.al_preguntar = [this](const CajaMensaje&) {
        p.traviesa = true;
        p.guion.Encola({.tipo = TipoEvento::Termina});
    };
    NuevaPartida();
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
    EXPECT_TRUE(BotonHabilitado(kBotonNueva));
}

TEST_F(Partida, EnUnJuegoSinDineroNadieRecibeResto) {
    NuevaPartida();
    for (int asiento = 0; asiento <= 4; ++asiento)
        EXPECT_EQ(RestoDe(asiento), 0);
}

TEST_F(Partida, UnaPartidaNuevaBorraLaAnterior) {
    estado.JuegosJugados = 5;
    estado.Juegos(2).Inicio = "Eva";
    estado.JuegosGanados(2) = 2;
    estado.GanadorPartida = 2;
    estado.AzarTurno = 0.9F;
    estado.GanadorBaza = 3;
    bazas.TuteCantado = true;
    p.al_preguntar = [](const CajaMensaje& caja) {
        ASSERT_EQ(caja.titulo, "Comienza la Partida");
        EXPECT_TRUE(estado.PartidaEnCurso);
        EXPECT_FALSE(estado.ManoEnCurso);
        EXPECT_EQ(estado.JuegosJugados, 0);
        EXPECT_EQ(estado.Juegos(2).Inicio, "");
        EXPECT_EQ(estado.JuegosGanados(2), 0);
        EXPECT_EQ(estado.AzarTurno, 0);
        EXPECT_EQ(estado.GanadorBaza, 0);
        EXPECT_FALSE(bazas.TuteCantado);
    };
    NuevaPartida();
    EXPECT_EQ(p.mensajes.size(), 1U);
    EXPECT_EQ(estado.JuegosJugados, 1);
}

TEST_F(Partida, SinNadieAManoNiPausasCorreSolaHastaElFin) {
    TodoSolo();
    NuevaPartida();
    EXPECT_FALSE(sesion.sin_eventos);
    EXPECT_FALSE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.JuegosGanados(estado.GanadorPartida), 3);
    std::vector<std::string> debidos{"Comienza la Partida"};
    debidos.insert(debidos.end(), static_cast<std::size_t>(estado.JuegosJugados),
                   "Final de la mano");
    debidos.insert(debidos.end(), {"Final de Partida", "Histórico de partidas jugadas"});
    EXPECT_EQ(Titulos(), debidos);
}

TEST_F(Partida, ConPausasCadaAsientoAutomaticoEsperaElBotonVerde) {
    TodoSolo();
    estado.PausaEntreJugadas = true;
    p.siempre_continua = true;
    estado.LimitePartida = 1;
    EmpiezaTraza();
    NuevaPartida();
    const auto peticiones = TrazaDe("PedirContinuar");
    const auto jugadas = std::ranges::count(bazas.CartaJugada, Integer{0});
    const auto tendidas =
        static_cast<long>(bazas.CartaJugada.end() - bazas.CartaJugada.begin()) - jugadas;
    // Each laid card waited once, and the end of the hand too.
    EXPECT_EQ(std::ranges::count(peticiones, "PedirContinuar(1)"), tendidas + 1);
}

TEST_F(Partida, EnElDiscoVaDetrasDeCadaManoAcabada) {
    TodoSolo();
    std::vector<int> juegos;
    p.al_preguntar = [&](const CajaMensaje& caja) {
        if (caja.titulo == "Final de la mano") {
            EXPECT_TRUE(LoGuardado().en_curso);
            juegos.push_back(LoGuardado().juegos);
        }
    };
    NuevaPartida();
    for (std::size_t i = 0; i < juegos.size(); ++i)
        EXPECT_EQ(juegos[i], static_cast<int>(i));
    EXPECT_GE(juegos.size(), 3U);
    EXPECT_FALSE(LoGuardado().en_curso);
}

TEST_F(Partida, LaPartidaAbandonadaYaNoEstaEnElDiscoDesdeElSorteo) {
    HayPartidaGuardada();
    p.al_preguntar = [](const CajaMensaje&) {
        EXPECT_TRUE(LoGuardado().en_curso);
        EXPECT_EQ(LoGuardado().juegos, 0);
        EXPECT_EQ(LoGuardado().ganados_de_4, 0);
    };
    NuevaPartida();
    EXPECT_EQ(p.mensajes.size(), 1U);
}

TEST_F(Partida, OtraPartidaEnUnaEsperaNoSigueConLaPrimera) {
    NuevaEnLaEspera();
    NuevaPartida();
    EXPECT_EQ(sesion.peticion, Peticion::NuevaPartida);
    EXPECT_EQ(estado.JuegosJugados, 1);
    // The first driver has returned: what is asked for runs alone, to its own first wait.
    EXPECT_TRUE(AtiendePeticiones());
    EXPECT_EQ(estado.JuegosJugados, 1);
    EXPECT_THAT(Titulos(), ElementsAre("Comienza la Partida", "Abandonar la partida en curso",
                                       "Comienza la Partida"));
}

TEST_F(Partida, DiezMilPartidasNuevasDejanLaPilaComoUna) {
    constexpr int kPartidas = 10000;
    p.registra = false;
    std::uintptr_t alta = 0;
    std::uintptr_t baja = ~std::uintptr_t{0};
    int sorteos = 0;
    p.al_preguntar = [&](const CajaMensaje& caja) {
        if (caja.titulo != "Comienza la Partida")
            return;
        const char aqui = 0;
        const auto donde = reinterpret_cast<std::uintptr_t>(&aqui);
        alta = std::max(alta, donde);
        baja = std::min(baja, donde);
        ++sorteos;
    };
    estado.JuegoActivo = kCinquillo;
    for (int partida = 0; partida < kPartidas; ++partida)
        NuevaEnLaEspera();
    NuevaPartida();
    EXPECT_TRUE(AtiendePeticiones());
    EXPECT_EQ(sorteos, kPartidas + 1);
    EXPECT_LT(alta - baja, 4096U);
}

TEST_F(Partida, OtroJuegoEnLasNormasDejaElDeAntesYTomaElSuyo) {
    p.formas = {Forma::Normas};
    p.al_abrir = [](Forma) { estado.JuegoActivo = kBrisca; };
    p.guion.PulsaControl({Control::Pic_Boton, kBotonNormas});
    NuevaPartida();
    EXPECT_EQ(sesion.peticion, Peticion::NuevaSesion);
    EXPECT_TRUE(AtiendePeticiones());
    EXPECT_EQ(estado.JuegoActivo, kBrisca);
    EXPECT_FALSE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.JuegosJugados, 0);
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        EXPECT_THAT(ManoDe(asiento), IsEmpty());
    // The match left behind waits in its own file.
    estado.JuegoActivo = kCinquillo;
    EXPECT_TRUE(LoGuardado().en_curso);
}

TEST_F(Partida, LaMesaOciosaEmpiezaConUnaTeclaYAcabaConSalir) {
    p.guion.Tecla('x');
    p.guion.PulsaControl({Control::Pic_Boton, kBotonSalir});
    BucleSesion();
    EXPECT_THAT(Titulos(), ElementsAre("Comienza la Partida", "Posponer la partida en curso"));
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
}

TEST_F(Partida, LaMesaOciosaSinNadaQueEsperarAcaba) {
    BucleSesion();
    EXPECT_EQ(sesion.peticion, Peticion::Ninguna);
    EXPECT_THAT(p.mensajes, IsEmpty());
}

TEST_F(Partida, ElTutorDelTurnoQueSeDejaNoQuedaParaElSorteo) {
    std::vector<bool> abierto;
    p.al_preguntar = [&](const CajaMensaje&) { abierto.push_back(BotonHabilitado(kBotonTutor)); };
    HabilitaBoton(kBotonTutor, true);
    NuevaPartida();
    EXPECT_THAT(Titulos(), ElementsAre("Comienza la Partida"));
    EXPECT_THAT(abierto, ElementsAre(false));
}

// Also under the first box of a game whose file is not there yet.
TEST_F(Partida, LaMesaSeLlamaComoSuJuego) {
    std::vector<std::string> nombres;
    p.al_preguntar = [&](const CajaMensaje&) {
        nombres.push_back(p.Tablero().NombreDe({Control::Mesa, 0}));
    };
    for (const Integer juego : {kTute, kBrisca}) {
        estado.JuegoActivo = juego;
        IniciarSesion();
    }
    EXPECT_THAT(nombres, ElementsAre("Tute", "Brisca"));
}

TEST_F(Partida, AlFinQuedanHabilitadosNuevaNormasYSalir) {
    p.formas = {Forma::Personal, Forma::Normas, Forma::Marcador, Forma::Estadis};
    TodoSolo();
    estado.LimitePartida = 1;
    NuevaPartida();
    EXPECT_TRUE(BotonHabilitado(kBotonNueva));
    EXPECT_TRUE(BotonHabilitado(kBotonNormas));
    EXPECT_TRUE(BotonHabilitado(kBotonSalir));
    EXPECT_FALSE(BotonHabilitado(kBotonTutor));
}
