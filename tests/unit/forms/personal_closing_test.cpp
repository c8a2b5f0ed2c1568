// Closing the form Personal: the seats as they are now, the questions, what is drawn, the tutor.

#include <gmock/gmock.h>

#include "table/button_column.h"
#include "table/deck.h"
#include "table/messages.h"
#include "table/trace.h"
#include "tests/support/personal_form.h"

namespace {

using namespace prueba;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

TEST_F(PersonalTest, OneActiveSeatIsTooFewAndTheFormStaysOpen) {
    AbreEn(kTute);
    mesa.EnPartida(1, true);
    estado.EstadoJugador(1) = kDesactivado;
    personal::Abre(); // three seats
    personal::PulsaSelector(kSelEstado + kArriba);
    personal::PulsaSelector(kSelEstado + kDerecha);
    mesa.Olvida();
    EXPECT_FALSE(personal::Cierra());
    EXPECT_EQ(Titulo(), "Número de Jugadores");
    EXPECT_TRUE(personal::Abierta());
    EXPECT_FALSE(estado.JugadoresCambiados);
    EXPECT_EQ(mesa.Sonidos().front(), 9);
    personal::PulsaSelector(kSelEstado + kArriba);
    EXPECT_TRUE(personal::Cierra());
    EXPECT_TRUE(estado.JugadoresCambiados);
    EXPECT_EQ(estado.NumJugadores, 2);
}

TEST_F(PersonalTest, InALaterGameAnotherSetOfSeatsIsAskedFor) {
    AbreEn(kTute);
    mesa.EnPartida(2, true);
    mesa.DaCarta(1, kDorso);
    mesa.Responde(kAceptar);
    personal::PulsaSelector(kSelEstado + 1);
    EXPECT_TRUE(personal::Cierra());
    EXPECT_EQ(Titulo(), "Jugadores Activados");
    EXPECT_TRUE(mesa.Mensajes().back().aceptar);
    EXPECT_TRUE(estado.JugadoresCambiados);
    EXPECT_EQ(estado.NumJugadores, 3);
    EXPECT_EQ(estado.NumCartas(1, 1), 0);
}

TEST_F(PersonalTest, CancelarKeepsTheSeatsAndTheMatch) {
    AbreEn(kTute);
    mesa.EnPartida(2, true);
    mesa.DaCarta(1, kDorso);
    mesa.Responde(kCancelar);
    personal::PulsaSelector(kSelEstado + 1);
    EXPECT_TRUE(personal::Cierra());
    EXPECT_EQ(estado.EstadoJugador(1), kActivado);
    EXPECT_EQ(estado.NumJugadores, 4);
    EXPECT_EQ(estado.NumCartas(1, 1), 1);
    EXPECT_FALSE(estado.JugadoresCambiados);
}

TEST_F(PersonalTest, InTheFirstGameTheNewSetIsTakenWithoutAQuestionAndANewMatchStarts) {
    AbreEn(kTute);
    mesa.EnPartida(1, true);
    AntesDeLaForma();
    personal::PulsaSelector(kSelEstado + 1);
    EXPECT_TRUE(personal::Cierra());
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_TRUE(estado.JugadoresCambiados);
    TrasLaForma();
    EXPECT_EQ(sesion.peticion, Peticion::NuevaPartida);
    EXPECT_EQ(estado.TotalBaraja, 36) << "three play without the Doses";
}

TEST_F(PersonalTest, WithNoMatchOnTheNewSetIsTakenAndNothingStarts) {
    AbreEn(kBrisca);
    personal::PulsaSelector(kSelEstado + 1);
    EXPECT_TRUE(personal::Cierra());
    EXPECT_FALSE(estado.JugadoresCambiados);
    EXPECT_EQ(estado.NumJugadores, 3);
    EXPECT_EQ(estado.TotalBaraja, 36) << "the next match finds its deck";
}

TEST_F(PersonalTest, ASeatSwitchedOffAndOnAgainIsNoChange) {
    AbreEn(kTute);
    mesa.EnPartida(5, true);
    personal::PulsaSelector(kSelEstado + 1);
    personal::PulsaSelector(kSelEstado + 1);
    EXPECT_TRUE(personal::Cierra());
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_FALSE(estado.JugadoresCambiados);
}

TEST_F(PersonalTest, PairsEndWithTheFourthSeat) {
    AbreEn(kTute);
    estado.ModalidadJuego = kDosParejas;
    personal::PulsaSelector(kSelEstado + 1);
    EXPECT_TRUE(personal::Cierra());
    EXPECT_EQ(estado.ModalidadJuego, kIndividual);
}

TEST_F(PersonalTest, PairsThatCannotBeEndOnClosingAlsoWithTheSeatsAsTheyWere) {
    AbreEn(kBrisca);
    estado.EstadoJugador(kArriba) = kDesactivado;
    personal::Abre();
    estado.ModalidadJuego = kDosParejas;
    EXPECT_TRUE(personal::Cierra());
    EXPECT_EQ(estado.ModalidadJuego, kIndividual);
    EXPECT_EQ(estado.NumJugadores, 3);
}

TEST_F(PersonalTest, AnInformationWindowThatIsNotClosedStays) {
    AbreEn(kTute);
    MostrarSugerencia(15);
    EXPECT_TRUE(personal::Cierra());
    EXPECT_TRUE(mesa.LaPlataforma().EstaVisible(Control::Pic_Sugerencia, 0));
}

TEST_F(PersonalTest, AClosedInformationWindowLeavesTheTable) {
    AbreEn(kTute);
    MostrarSugerencia(15);
    ASSERT_TRUE(mesa.LaPlataforma().EstaVisible(Control::Pic_Sugerencia, 0));
    personal::PulsaSelector(kSelVentana);
    EXPECT_TRUE(personal::Cierra());
    EXPECT_FALSE(mesa.LaPlataforma().EstaVisible(Control::Pic_Sugerencia, 0));
}

std::vector<std::string> TrazaDelCierre() {
    std::vector<std::string> traza;
    EscuchaTraza([&](const std::string& linea) { traza.push_back(linea); });
    EXPECT_TRUE(personal::Cierra());
    EscuchaTraza({});
    return traza;
}

TEST_F(PersonalTest, WithAHandOnTheSeatsAreDrawnAndTheGreenButtonIsShown) {
    AbreEn(kTute);
    mesa.EnPartida(1, true);
    estado.EstadoJugador(kDerecha) = kDesactivado;
    personal::Abre();
    EXPECT_THAT(TrazaDelCierre(),
                ElementsAre("Sonido(0, 9)", "RedibujarAsiento(1)", "RedibujarAsiento(2)",
                            "RedibujarAsiento(4)", "PedirContinuar(1)"));
    EXPECT_TRUE(estado.EsperandoJugada);
}

TEST_F(PersonalTest, WithoutThePauseOrInAManualDealTheGreenButtonIsNotShown) {
    AbreEn(kTute);
    mesa.EnPartida(1, true);
    estado.PausaEntreJugadas = false;
    EXPECT_THAT(TrazaDelCierre(), Not(Contains("PedirContinuar(1)")));
    AbreEn(kTute);
    mesa.EnPartida(1, false);
    estado.RepartoEnCurso = true;
    EXPECT_THAT(TrazaDelCierre(), Not(Contains("PedirContinuar(1)")));
}

TEST_F(PersonalTest, WithNoMatchOnTheTableIsLeftAlone) {
    AbreEn(kTute);
    EXPECT_THAT(TrazaDelCierre(), ElementsAre("Sonido(0, 9)"));
}

TEST_F(PersonalTest, BetweenHandsTheTableIsDrawnOnlyWhenNothingIsAwaited) {
    AbreEn(kTute);
    mesa.EnPartida(2, false);
    mesa.LaPlataforma().UsaLienzosRegistrados();
    const LienzoRegistrado& tapete = mesa.LaPlataforma().Dibujado(Control::Mesa);
    estado.EsperandoJugada = true;
    EXPECT_TRUE(personal::Cierra());
    EXPECT_THAT(tapete.Llamadas(), IsEmpty());
    personal::Abre();
    estado.EsperandoJugada = false;
    EXPECT_TRUE(personal::Cierra());
    EXPECT_THAT(tapete.Llamadas(), Not(IsEmpty()));
}

TEST_F(PersonalTest, InTheGamesWithABankTheOtherSeatsShowTheirFirstSerie) {
    AbreEn(kBlackJack);
    mesa.EnPartida(1, true);
    estado.JugadorActual = kDerecha;
    estado.SerieEnJuego = 2;
    PonCarta(1, 1, 1, {kCopas, 9}, kDescubierta);
    estado.NumCartas(1, 1) = 1;
    PonCarta(kDerecha, 2, 1, {kBastos, 5}, kDescubierta);
    estado.NumCartas(kDerecha, 2) = 1;
    mesa.LaPlataforma().UsaLienzosRegistrados();
    EXPECT_TRUE(personal::Cierra());
    const auto& dibujado = mesa.LaPlataforma().Dibujado(Control::Mesa).Llamadas();
    EXPECT_THAT(dibujado, Contains(testing::HasSubstr("palo 2 valor 9")));
    EXPECT_THAT(dibujado, Contains(testing::HasSubstr("palo 4 valor 5")));
}

TEST_F(PersonalTest, InTheGamesWithABankTheSeatOnTurnShowsTheSerieInPlay) {
    AbreEn(kBlackJack);
    mesa.EnPartida(1, true);
    estado.JugadorActual = kDerecha;
    estado.SerieActual = 1; // looked back at
    estado.SerieEnJuego = 2;
    EXPECT_TRUE(personal::Cierra());
    EXPECT_EQ(estado.SerieActual, 2);
}

TEST_F(PersonalTest, TheTutorGoesWithWhoeverNowPlaysTheSeatOnTurn) {
    AbreEn(kTute);
    mesa.EnPartida(1, true);
    estado.EsperandoJugada = true;
    estado.JugadorActual = 1;
    mesa.Responde(kAceptar);
    personal::PulsaSelector(kSelControl + 1);
    EXPECT_TRUE(personal::Cierra());
    EXPECT_TRUE(BotonHabilitado(kBotonTutor));
    personal::Abre();
    personal::PulsaSelector(kSelControl + 1);
    EXPECT_TRUE(personal::Cierra());
    EXPECT_FALSE(BotonHabilitado(kBotonTutor));
}

// Cards are on their way, or the hand is over: nobody is to be advised.
TEST_F(PersonalTest, WithNobodyToAdviseTheTutorStaysClosed) {
    for (const bool mano : {true, false}) {
        AbreEn(kTute);
        mesa.EnPartida(2, mano);
        HabilitaBoton(kBotonTutor, false);
        estado.EsperandoJugada = !mano;
        EXPECT_TRUE(personal::Cierra());
        EXPECT_FALSE(BotonHabilitado(kBotonTutor)) << mano;
    }
}

TEST_F(PersonalTest, ChangesOfLevelAndCharacterStandAtTheNextDecision) {
    AbreEn(kTute);
    mesa.EnPartida(1, true);
    personal::Desliza(personal::kNivel + 1, 20);
    personal::PulsaSelector(kSelCaracter + 1);
    EXPECT_TRUE(personal::Cierra());
    EXPECT_EQ(estado.NivelJugador(1), 20);
    EXPECT_EQ(estado.CaracterJugador(1), kAgresivo);
    EXPECT_TRUE(estado.ManoEnCurso);
}

TEST_F(PersonalTest, NothingIsWrittenToFileByTheForm) {
    AbreEn(kTute);
    personal::PulsaSelector(kSelCaracter + 1);
    EXPECT_TRUE(personal::Cierra());
    EXPECT_FALSE(mesa.Hay("ZOV5131.INI"));
    EXPECT_FALSE(mesa.Hay("ZOV31.INI"));
}

TEST_F(PersonalTest, ClosedFromOutsideTheSeatsStayAsTheyWere) {
    AbreEn(kTute);
    mesa.EnPartida(1, true);
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        personal::PulsaSelector(kSelEstado + asiento);
    personal::EscribeNombre(kDerecha, "   ");
    personal::Deja();
    EXPECT_EQ(estado.NombreJugador(kDerecha), "");
    EXPECT_FALSE(personal::Abierta());
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        EXPECT_EQ(estado.EstadoJugador(asiento), kActivado);
    EXPECT_FALSE(estado.JugadoresCambiados);
}

} // namespace
