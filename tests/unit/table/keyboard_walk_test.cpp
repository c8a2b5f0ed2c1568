// The frame that the keys move over the table, and what they do where it is.

#include "table/keyboard_walk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/session_state.h"
#include "games/cinquillo/cinquillo_choice.h"
#include "games/common/trick_state.h"
#include "table/button_column.h"
#include "table/manual_deal.h"
#include "table/seat_drawing.h"
#include "table/whole_table.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Cartas = std::vector<Carta>;

struct Teclado : MesaViva {
    Teclado() { estado.VelocidadJuego = 100; }
    ~Teclado() override { OlvidaMarco(); }

    void Pulsa(Mando mando, int veces = 1) {
        for (int vez = 0; vez < veces; ++vez)
            DespachaEvento({.tipo = TipoEvento::Mando, .mando = mando});
    }
    void Funcion(int tecla) {
        DespachaEvento({.tipo = TipoEvento::Mando, .indice = tecla, .mando = Mando::Funcion});
    }
    static std::string Enmarcado() {
        const auto uno = ObjetivoEnmarcado();
        return uno ? uno->nombre : "";
    }
    // Seat 4 chooses in Cinquillo: the 5 de copas and the 6 de oros may be laid, the Rey de bastos may not.
    void Elige() {
        PonMano(4, {{kBastos, kRey}, {kOros, 6}, {kCopas, 5}});
        bazas.CartaJugada(kOros, 5) = 2;
        ManoEmpezada(4);
        EligeCartaCinquillo();
        estado.EligeCarta = true;
        estado.EsperandoJugada = true;
    }
    // What would move the framed card leaves the hand as it is.
    void NoSeOrdenaCon(Mando mueve) {
        const Cartas antes = ManoDe(4);
        Pulsa(Mando::Derecha);
        Pulsa(mueve);
        EXPECT_EQ(ManoDe(4), antes);
    }
    void Extiende() {
        Juega(kBrisca);
        estado.SistemaReparto = kRepartoManual;
        estado.PartidaEnCurso = true;
        ASSERT_FALSE(RepartirAMano());
        estado.PartidaEnCurso = estado.RepartoEnCurso = true;
    }
};

} // namespace

TEST_F(Teclado, LaPrimeraTeclaTraeElMarcoALoPrimeroQueSePuedeHacer) {
    Elige();
    Pulsa(Mando::Arriba);
    EXPECT_EQ(Enmarcado(), "Seis de Oros");
    EXPECT_FALSE(estado.JugadaHecha);
    ASSERT_TRUE(p.marcos.contains(Marco::DeTeclas));
    EXPECT_EQ(p.marcos[Marco::DeTeclas], ObjetivoEnmarcado()->donde);
}

TEST_F(Teclado, IzquierdaYDerechaAndanYDanLaVuelta) {
    Elige();
    Pulsa(Mando::Derecha);
    EXPECT_EQ(Enmarcado(), "Seis de Oros");
    Pulsa(Mando::Derecha);
    EXPECT_EQ(Enmarcado(), "Cinco de Copas");
    Pulsa(Mando::Derecha);
    EXPECT_EQ(Enmarcado(), "Rey de Bastos");
    Pulsa(Mando::Izquierda);
    EXPECT_EQ(Enmarcado(), "Cinco de Copas");
}

TEST_F(Teclado, DespuesDeLasCartasVieneElBotonVerde) {
    Elige();
    p.UsaLienzosRegistrados();
    PedirContinuar(1);
    Pulsa(Mando::Derecha, 3);
    EXPECT_EQ(ObjetivoEnmarcado()->control, Control::Pic_BotContinuar);
    Pulsa(Mando::Arriba);
    EXPECT_FALSE(estado.EsperandoJugada);
    EXPECT_FALSE(estado.JugadaHecha);
}

TEST_F(Teclado, ArribaJuegaLaCartaEnmarcada) {
    Elige();
    Pulsa(Mando::Derecha, 2);
    Pulsa(Mando::Arriba);
    EXPECT_TRUE(estado.JugadaHecha);
    EXPECT_EQ(estado.CartaElegida, 3);
    EXPECT_FALSE(estado.EsperandoJugada);
}

TEST_F(Teclado, ArribaNoJuegaLoQueNoSePuede) {
    Elige();
    Pulsa(Mando::Izquierda, 2);
    ASSERT_EQ(Enmarcado(), "Rey de Bastos");
    Pulsa(Mando::Arriba);
    EXPECT_FALSE(estado.JugadaHecha);
    EXPECT_TRUE(estado.EsperandoJugada);
}

TEST_F(Teclado, LoQueNoSePuedePulsarLlevaOtroMarco) {
    Elige();
    Pulsa(Mando::Izquierda);
    ASSERT_EQ(Enmarcado(), "Seis de Oros");
    EXPECT_TRUE(p.marcos.contains(Marco::DeTeclas));
    EXPECT_FALSE(p.marcos.contains(Marco::DeTeclasVedado));
    Pulsa(Mando::Izquierda);
    ASSERT_EQ(Enmarcado(), "Rey de Bastos");
    EXPECT_FALSE(p.marcos.contains(Marco::DeTeclas));
    EXPECT_EQ(p.marcos[Marco::DeTeclasVedado], ObjetivoEnmarcado()->donde);
    Pulsa(Mando::Derecha);
    EXPECT_TRUE(p.marcos.contains(Marco::DeTeclas));
    EXPECT_FALSE(p.marcos.contains(Marco::DeTeclasVedado));
}

TEST_F(Teclado, ElMarcoCambiaCuandoLaCartaYaNoSePuedeJugar) {
    Elige();
    Pulsa(Mando::Derecha);
    ASSERT_TRUE(p.marcos.contains(Marco::DeTeclas));
    estado.EligeCarta = false;
    RedibujarAsiento(4);
    EXPECT_EQ(Enmarcado(), "Seis de Oros");
    EXPECT_FALSE(p.marcos.contains(Marco::DeTeclas));
    EXPECT_TRUE(p.marcos.contains(Marco::DeTeclasVedado));
}

TEST_F(Teclado, ElMarcoDeLoVedadoSeVaConElRaton) {
    Elige();
    Pulsa(Mando::Izquierda, 2);
    ASSERT_TRUE(p.marcos.contains(Marco::DeTeclasVedado));
    Mueve(300, 300);
    EXPECT_FALSE(p.marcos.contains(Marco::DeTeclasVedado));
    EXPECT_EQ(Enmarcado(), "");
}

TEST_F(Teclado, AlMoverElRatonElMarcoSeVaYVuelveDondeEstaba) {
    Elige();
    Pulsa(Mando::Derecha, 2);
    Mueve(300, 300);
    EXPECT_EQ(Enmarcado(), "");
    EXPECT_FALSE(p.marcos.contains(Marco::DeTeclas));
    Pulsa(Mando::Izquierda);
    EXPECT_EQ(Enmarcado(), "Cinco de Copas");
}

TEST_F(Teclado, UnClicSinMoverElRatonTambienQuitaElMarco) {
    Elige();
    Mueve(300, 300);
    Pulsa(Mando::Derecha);
    ASSERT_EQ(Enmarcado(), "Seis de Oros");
    Mueve(300, 300);
    EXPECT_EQ(Enmarcado(), "Seis de Oros");
    Aprieta(300, 300);
    EXPECT_EQ(Enmarcado(), "");
}

TEST_F(Teclado, LasTeclasNoMuevenElPuntero) {
    Elige();
    Mueve(300, 300);
    Pulsa(Mando::Derecha);
    Pulsa(Mando::Abajo);
    EXPECT_EQ(PunteroEnMesa(), Puntero::Flecha);
}

TEST_F(Teclado, AbajoAbreElMenuYLasFlechasLoRecorren) {
    Elige();
    Pulsa(Mando::Derecha);
    Pulsa(Mando::Abajo);
    EXPECT_TRUE(p.EstaVisible(Control::Pic_SelOpciones, 0));
    EXPECT_EQ(Enmarcado(), "Ordenar cartas manualmente");
    Pulsa(Mando::Derecha);
    EXPECT_EQ(Enmarcado(), "Ordenar cartas automáticamente");
    EXPECT_EQ(estado.OpcionResaltada, 2);
    Pulsa(Mando::Arriba);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_SelOpciones, 0));
    EXPECT_EQ(ManoDe(4), (Cartas{{kOros, 6}, {kCopas, 5}, {kBastos, kRey}}));
    EXPECT_EQ(ObjetivoEnmarcado()->clase, ClaseObjetivo::CartaDeMano);
}

TEST_F(Teclado, AbajoCierraElMenuYElMarcoVuelveALaCarta) {
    Elige();
    Pulsa(Mando::Derecha);
    Pulsa(Mando::Abajo, 2);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_SelOpciones, 0));
    EXPECT_EQ(Enmarcado(), "Seis de Oros");
    EXPECT_FALSE(estado.ModoOrdenar);
}

TEST_F(Teclado, MayusYFlechaMuevenLaCartaUnLugar) {
    Elige();
    Pulsa(Mando::Derecha);
    Pulsa(Mando::MayusIzquierda);
    EXPECT_EQ(ManoDe(4), (Cartas{{kOros, 6}, {kBastos, kRey}, {kCopas, 5}}));
    EXPECT_EQ(Enmarcado(), "Seis de Oros");
    Pulsa(Mando::MayusIzquierda); // the first place is the end
    EXPECT_EQ(ManoDe(4), (Cartas{{kOros, 6}, {kBastos, kRey}, {kCopas, 5}}));
    Pulsa(Mando::MayusDerecha, 2);
    EXPECT_EQ(ManoDe(4), (Cartas{{kBastos, kRey}, {kCopas, 5}, {kOros, 6}}));
    EXPECT_EQ(Enmarcado(), "Seis de Oros");
}

TEST_F(Teclado, TrasOrdenarSeSigueSabiendoQueSePuedeJugar) {
    Elige();
    Pulsa(Mando::Derecha);
    Pulsa(Mando::MayusDerecha);
    Pulsa(Mando::Arriba);
    EXPECT_TRUE(estado.JugadaHecha);
    EXPECT_EQ(estado.CartaElegida, 3);
}

TEST_F(Teclado, UnaManoTapadaNoSeOrdena) {
    Elige();
    estado.CartasJugador(4) = kOcultas;
    NoSeOrdenaCon(Mando::MayusIzquierda);
}

TEST_F(Teclado, EnBlackJackNoSeOrdena) {
    Juega(kBlackJack);
    PonMano(4, {{kOros, 1}, {kOros, 2}});
    ManoEmpezada(4);
    estado.EsperandoJugada = true;
    NoSeOrdenaCon(Mando::MayusDerecha);
}

TEST_F(Teclado, LasFichasSePonenConArriba) {
    Juega(kPoker);
    ManoEmpezada(4);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        AsignarResto(asiento, 100);
        PonMano(asiento, {{kOros, asiento}});
    }
    estado.ApuestaMaxima = 500;
    estado.LeyApertura = 14;
    apuestas.ModoApuesta = true;
    apuestas.FaseApuesta = kFasePrimeraRonda;
    estado.EsperandoJugada = true;
    Pulsa(Mando::Derecha);
    EXPECT_EQ(Enmarcado(), "Ficha de 1 punto");
    Pulsa(Mando::Arriba);
    EXPECT_EQ(RestoDe(4), 99);
    EXPECT_EQ(ApuestaTotal(4, 1), 1);
}

TEST_F(Teclado, ElCambioDelTriunfoSeHaceEnElMazo) {
    Juega(kBrisca);
    PonMano(4, {{kBastos, 7}, {kOros, 2}, {kCopas, 3}});
    ManoEmpezada(4);
    Pinta({kBastos, kRey});
    estado.CartasEnMazo = 24;
    estado.EligeCarta = estado.EsperandoJugada = true;
    bazas.CartaCambio = 7;
    Pulsa(Mando::Derecha, 4);
    ASSERT_EQ(Enmarcado(), "Triunfo: Rey de Bastos");
    Pulsa(Mando::Arriba);
    EXPECT_EQ(estado.ValorTriunfo, 7);
    EXPECT_EQ(ManoDe(4)[0], (Carta{kBastos, kRey}));
}

TEST_F(Teclado, ElRepartoAManoSeHaceConLasTeclas) {
    Extiende();
    Pulsa(Mando::Derecha, 2);
    ASSERT_EQ(Enmarcado(), "Dos de Oros");
    Pulsa(Mando::Arriba);
    EXPECT_TRUE(estado.ArrastraReparto);
    EXPECT_EQ(ObjetivoEnmarcado()->asiento, 1);
    Pulsa(Mando::Derecha);
    Pulsa(Mando::Arriba);
    EXPECT_EQ(ManoDe(2), (Cartas{{kOros, 2}}));
    EXPECT_EQ(Enmarcado(), "Tres de Oros");
    // The seat that took the last card comes first.
    Pulsa(Mando::Arriba);
    EXPECT_EQ(ObjetivoEnmarcado()->asiento, 2);
    Pulsa(Mando::Abajo);
    EXPECT_FALSE(estado.ArrastraReparto);
    EXPECT_EQ(Enmarcado(), "Tres de Oros");
}

TEST_F(Teclado, EnElRepartoMayusCambiaDeFila) {
    Extiende();
    Pulsa(Mando::Derecha, 2);
    Pulsa(Mando::MayusDerecha);
    EXPECT_EQ(Enmarcado(), "Dos de Copas");
    Pulsa(Mando::MayusIzquierda, 2);
    EXPECT_EQ(Enmarcado(), "Dos de Bastos");
}

TEST_F(Teclado, UnaCartaDadaSeDevuelve) {
    Extiende();
    Pulsa(Mando::Derecha);
    Pulsa(Mando::Arriba, 2);
    ASSERT_EQ(ManoDe(1), (Cartas{{kOros, 1}}));
    Pulsa(Mando::Izquierda);
    ASSERT_EQ(ObjetivoEnmarcado()->clase, ClaseObjetivo::CartaDeMano);
    Pulsa(Mando::Arriba);
    EXPECT_THAT(ManoDe(1), IsEmpty());
    EXPECT_TRUE(estado.CartaEnReparto(kOros, 1));
}

TEST_F(Teclado, TodaLaManoDeBriscaSeReparteConTeclas) {
    Extiende();
    Pulsa(Mando::Derecha);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        for (int carta = 0; carta < 3; ++carta)
            Pulsa(Mando::Arriba, 2);
    }
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        EXPECT_EQ(estado.NumCartas(asiento, 1), 3) << asiento;
    EXPECT_TRUE(RepartoCompleto());
}

TEST_F(Teclado, ElMarcoSigueALaCartaYNoQuedaDondeNoHayNada) {
    Elige();
    Pulsa(Mando::Derecha, 2);
    ASSERT_EQ(Enmarcado(), "Cinco de Copas");
    PonMano(4, {{kBastos, kRey}, {kOros, 6}});
    RedibujarAsiento(4);
    EXPECT_EQ(Enmarcado(), "Seis de Oros");
    PonMano(4, {});
    RedibujarAsiento(4);
    EXPECT_FALSE(p.marcos.contains(Marco::DeTeclas));
}

TEST_F(Teclado, UnBotonVerdeQueJugariaPorMiPierdeElMarco) {
    Elige();
    p.UsaLienzosRegistrados();
    estado.JugadorActual = 2;
    PedirContinuar(1);
    Pulsa(Mando::Derecha);
    while (ObjetivoEnmarcado()->clase != ClaseObjetivo::Boton)
        Pulsa(Mando::Derecha);
    estado.JugadorActual = 4;
    PedirContinuar(1);
    RedibujarAsiento(4);
    EXPECT_EQ(Enmarcado(), "");
    Pulsa(Mando::Arriba);
    EXPECT_TRUE(estado.EsperandoJugada);
    EXPECT_EQ(Enmarcado(), "Seis de Oros");
}

TEST_F(Teclado, LasPulsacionesQueEsperabanNoJueganLaCartaQueApareceEnmarcada) {
    Elige();
    const auto arriba = [](Milisegundos desde) {
        DespachaEvento({.tipo = TipoEvento::Mando, .desde = desde, .mando = Mando::Arriba});
    };
    p.DuermeHasta(1000);
    arriba(900);
    EXPECT_EQ(Enmarcado(), "Seis de Oros");
    arriba(950);
    EXPECT_FALSE(estado.JugadaHecha);
    p.DuermeHasta(2000);
    arriba(1500);
    EXPECT_TRUE(estado.JugadaHecha);
}

TEST_F(Teclado, EnLaMesaVaciaSeRecorrenLosBotones) {
    Pulsa(Mando::Derecha);
    EXPECT_EQ(Enmarcado(), "Nueva partida");
    Pulsa(Mando::Arriba);
    EXPECT_EQ(sesion.peticion, Peticion::NuevaPartida);
}

TEST_F(Teclado, ElMarcoRodeaElBotonDondeSeDibuja) {
    Pulsa(Mando::Derecha, 2);
    ASSERT_EQ(Enmarcado(), "Personalizar");
    EXPECT_EQ(p.marcos[Marco::DeTeclas], (Rectangulo{730, 125, 50, 50}));
}

TEST_F(Teclado, LasFuncionesSonLosBotonesDesdeArriba) {
    Funcion(6); // the tutor has nobody to advise
    EXPECT_FALSE(estado.TutorPulsado);
    Funcion(7);
    EXPECT_THAT(p.formas_abiertas, ElementsAre(Forma::Marcador));
    Funcion(4);
    EXPECT_EQ(p.formas_abiertas.back(), Forma::Personal);
    Funcion(8);
    EXPECT_THAT(p.temas_ayuda, ElementsAre(0));
    sesion.peticion = Peticion::Ninguna;
    Funcion(9);
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
}

TEST_F(Teclado, UnBotonApagadoNoTieneTecla) {
    HabilitaBoton(kBotonMarcador, false);
    Funcion(7);
    EXPECT_THAT(p.formas_abiertas, IsEmpty());
}

TEST_F(Teclado, F1AbreLaAyudaDelJuegoDeLaMesa) {
    for (const Integer juego : {kPoker, kBlackJack, kTute, kBrisca, kSieteYMedia, kCinquillo}) {
        Juega(juego);
        Funcion(1);
    }
    EXPECT_THAT(p.temas_ayuda, ElementsAre(3110, 3120, 3130, 3140, 3150, 3160));
}

TEST_F(Teclado, CadaPasoSeDiceEnVozAlta) {
    Elige();
    Pulsa(Mando::Derecha, 3);
    EXPECT_THAT(p.anuncios,
                ElementsAre("Seis de Oros, se puede jugar", "Cinco de Copas, se puede jugar",
                            "Rey de Bastos, no se puede jugar"));
}

// The outline of the card under the pointer.

TEST_F(Teclado, LaCartaQueSePuedeTocarSeContornea) {
    Elige();
    const Punto seis = SobreCarta(4, 2), rey = SobreCarta(4, 1);
    Mueve(seis.x, seis.y);
    ASSERT_TRUE(p.marcos.contains(Marco::DePuntero));
    EXPECT_EQ(p.marcos[Marco::DePuntero], CartaALaVista(4, 2, 3));
    Mueve(rey.x, rey.y);
    EXPECT_FALSE(p.marcos.contains(Marco::DePuntero));
}

TEST_F(Teclado, ElContornoNoSobreviveALaJugada) {
    Elige();
    const Punto seis = SobreCarta(4, 2);
    Clic(seis.x, seis.y);
    ASSERT_TRUE(estado.JugadaHecha);
    estado.EligeCarta = false;
    RedibujarAsiento(4);
    EXPECT_FALSE(p.marcos.contains(Marco::DePuntero));
}

TEST_F(Teclado, ConElMarcoDeLasTeclasNoHayContorno) {
    Elige();
    const Punto seis = SobreCarta(4, 2);
    Mueve(seis.x, seis.y);
    Pulsa(Mando::Derecha);
    EXPECT_FALSE(p.marcos.contains(Marco::DePuntero));
    Mueve(seis.x + 1, seis.y);
    EXPECT_TRUE(p.marcos.contains(Marco::DePuntero));
    EXPECT_FALSE(p.marcos.contains(Marco::DeTeclas));
}

TEST_F(Teclado, AlOrdenarSeContorneaLaQueSePuedeMover) {
    Elige();
    estado.ModoOrdenar = true;
    const Punto rey = SobreCarta(4, 1);
    Mueve(rey.x, rey.y);
    EXPECT_EQ(p.marcos[Marco::DePuntero], CartaALaVista(4, 1, 3));
    Aprieta(rey.x, rey.y);
    EXPECT_FALSE(p.marcos.contains(Marco::DePuntero));
}
