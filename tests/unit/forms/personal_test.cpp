// The form Personal: what a seat shows, names, sliders, interlocks, the order of closing.

#include "forms/personal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/pending_rules.h"
#include "core/text.h"
#include "forms/form.h"
#include "table/messages.h"
#include "table/table_view.h"
#include "table/trace.h"
#include "tests/support/open_forms.h"

namespace {

using prueba::kAceptar;
using prueba::kCancelar;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

constexpr Integer kArriba = 2, kDerecha = 3, kPersona = 4;

class PersonalTest : public testing::Test {
protected:
    void AbreEn(Integer juego) {
        mesa.Pon(juego);
        personal::Abre();
    }
    const std::string& Titulo() { return mesa.Mensajes().back().titulo; }
    prueba::MesaConFormas mesa;
};

// ---- what is on show

TEST_F(PersonalTest, AnActiveSeatShowsEverythingAnInactiveOneItsNameAndState) {
    AbreEn(kTute);
    estado.EstadoJugador(kDerecha) = kDesactivado;
    for (int clase : {kSelCartas, kSelControl, kSelCaracter}) {
        EXPECT_TRUE(personal::SeVeSelector(clase + 1));
        EXPECT_FALSE(personal::SeVeSelector(clase + kDerecha));
    }
    EXPECT_TRUE(personal::SeVePotenciometro(personal::kNivel + 1));
    EXPECT_FALSE(personal::SeVePotenciometro(personal::kNivel + kDerecha));
    EXPECT_TRUE(personal::SeVeSelector(kSelEstado + kDerecha));
    EXPECT_TRUE(personal::SeEscribeNombre(kDerecha));
}

TEST_F(PersonalTest, InBlackJackThePanelOfSeat2ShowsOnlyBancaAndItsState) {
    AbreEn(kBlackJack);
    estado.NombreJugador(kArriba) = "Banca";
    for (int clase : {kSelCartas, kSelControl, kSelCaracter})
        EXPECT_FALSE(personal::SeVeSelector(clase + kArriba));
    EXPECT_FALSE(personal::SeVePotenciometro(personal::kNivel + kArriba));
    EXPECT_TRUE(personal::SeVeSelector(kSelEstado + kArriba));
    EXPECT_FALSE(personal::SeEscribeNombre(kArriba));
    personal::EscribeNombre(kArriba, "Ana");
    EXPECT_EQ(estado.NombreJugador(kArriba), "Banca");
    EXPECT_TRUE(personal::SeVeSelector(kSelCartas + 1));
}

TEST_F(PersonalTest, WhatIsNotOnShowDoesNothing) {
    AbreEn(kTute);
    estado.EstadoJugador(1) = kDesactivado;
    const EstadoJuego antes = estado;
    for (int control : {kSelControl + 1, kSelReparto, kSelLey, 0, 99, -1})
        personal::PulsaSelector(control);
    personal::Desliza(personal::kNivel + 1, 7);
    personal::Desliza(3, 7);
    personal::PulsaBuleano(3);
    personal::EscribeNombre(0, "Nadie");
    personal::EscribeNombre(5, "Nadie");
    EXPECT_EQ(estado, antes);
    EXPECT_THAT(mesa.Sonidos(), IsEmpty());
}

// ---- names

TEST_F(PersonalTest, ANameIsFormedAsItIsTyped) {
    EXPECT_EQ(personal::FormaNombre("ana"), "Ana");
    EXPECT_EQ(personal::FormaNombre("  mARÍA"), "María");
    EXPECT_EQ(personal::FormaNombre("ana "), "Ana ");
    EXPECT_EQ(personal::FormaNombre("ana m"), "Ana M");
    EXPECT_EQ(personal::FormaNombre("ñico"), "Ñico");
    EXPECT_EQ(personal::FormaNombre("o'neil"), "O'neil");
    EXPECT_EQ(personal::FormaNombre("josé luis garcía"), "José Luis");
    EXPECT_EQ(personal::FormaNombre("1a ELOY"), "1a Eloy");
}

TEST_F(PersonalTest, ANameHoldsNothingThatTheFileCannot) {
    EXPECT_EQ(personal::FormaNombre("ana, luis"), "Ana Luis");
    EXPECT_EQ(personal::FormaNombre(",eva"), "Eva");
    EXPECT_EQ(personal::FormaNombre("a\tb\nc"), "Abc");
    EXPECT_EQ(personal::FormaNombre("Ж ana"), "Ana");
    EXPECT_EQ(personal::FormaNombre("a\u00A0b"), "A B");
    EXPECT_EQ(personal::FormaNombre("cien €"), "Cien €");
    EXPECT_EQ(personal::FormaNombre(""), "");
}

TEST_F(PersonalTest, ClosingTrimsTheNamesAndFillsTheEmptyOnes) {
    AbreEn(kTute);
    personal::EscribeNombre(1, "ana ");
    personal::EscribeNombre(2, "   ");
    EXPECT_EQ(estado.NombreJugador(1), "Ana ");
    ASSERT_TRUE(personal::Cierra());
    EXPECT_EQ(estado.NombreJugador(1), "Ana");
    EXPECT_EQ(estado.NombreJugador(2), "Jugador2");
}

// ---- sliders, check boxes, selectors without an interlock

TEST_F(PersonalTest, ASliderStaysIn0To100AndIsStoredAtOnce) {
    AbreEn(kTute);
    personal::Desliza(personal::kNivel + kArriba, 73);
    EXPECT_EQ(estado.NivelJugador(kArriba), 73);
    personal::Desliza(personal::kNivel + kArriba, 130);
    EXPECT_EQ(estado.NivelJugador(kArriba), 100);
    personal::Desliza(personal::kVelocidad, -4);
    EXPECT_EQ(estado.VelocidadJuego, 0);
    EXPECT_EQ(personal::Potenciometro(personal::kVelocidad), 0);
}

TEST_F(PersonalTest, ALevelIsShownFrom0To10) {
    AbreEn(kTute);
    const auto texto = [](Integer nivel) {
        estado.NivelJugador(1) = nivel;
        return personal::TextoPotenciometro(personal::kNivel + 1);
    };
    EXPECT_EQ(texto(0), "0.0");
    EXPECT_EQ(texto(57), "5.7");
    EXPECT_EQ(texto(100), "10.0");
    EXPECT_EQ(personal::TextoPotenciometro(personal::kVelocidad), "50");
}

TEST_F(PersonalTest, ACheckBoxInvertsItsSettingWithSound25) {
    AbreEn(kTute);
    personal::PulsaBuleano(personal::kPausa);
    EXPECT_FALSE(estado.PausaEntreJugadas);
    EXPECT_FALSE(personal::Buleano(personal::kPausa));
    personal::PulsaBuleano(personal::kPausa);
    EXPECT_TRUE(estado.PausaEntreJugadas);
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(25, 25));
}

TEST_F(PersonalTest, SoundSwitchedOnIsHeardAtOnce) {
    AbreEn(kTute);
    estado.SonidoActivo = false;
    personal::PulsaBuleano(personal::kSonido);
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(25));
    personal::PulsaBuleano(personal::kSonido);
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(25));
}

TEST_F(PersonalTest, APressGivesSound6AndTheNextValue) {
    AbreEn(kTute);
    estado.CaracterJugador(1) = kAgresivo;
    personal::PulsaSelector(kSelCaracter + 1);
    EXPECT_EQ(estado.CaracterJugador(1), kConservador);
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(6));
}

TEST_F(PersonalTest, TheViewIsToldOfEachChange) {
    AbreEn(kTute);
    int veces = 0;
    PonRefresco([&] { ++veces; });
    personal::PulsaSelector(kSelVentana);
    personal::PulsaBuleano(personal::kPausa);
    personal::Desliza(personal::kVelocidad, 60);
    personal::EscribeNombre(1, "Eva");
    PonRefresco({});
    EXPECT_EQ(veces, 4);
}

// ---- the direction of play

TEST_F(PersonalTest, TheDirectionChangesAtOnceWithNoHandOn) {
    AbreEn(kTute);
    personal::PulsaSelector(kSelSentido);
    EXPECT_EQ(estado.SentidoJuego, kInverso);
    EXPECT_EQ(estado.PasoSentido, -1);
    personal::PulsaSelector(kSelSentido);
    EXPECT_EQ(estado.PasoSentido, 1);
}

TEST_F(PersonalTest, WithAHandOnTheStepFollowsAtTheNextHand) {
    AbreEn(kTute);
    mesa.EnPartida(2, true);
    personal::PulsaSelector(kSelSentido);
    EXPECT_EQ(estado.SentidoJuego, kInverso);
    EXPECT_EQ(estado.PasoSentido, 1);
    EXPECT_EQ(PasoDeLaProximaMano(), -1);
    AplicaReglasPendientes();
    EXPECT_EQ(estado.PasoSentido, -1);
}

TEST_F(PersonalTest, TwoTurnsOfTheDirectionInOneHandAreNone) {
    AbreEn(kTute);
    mesa.EnPartida(2, true);
    personal::PulsaSelector(kSelSentido);
    personal::PulsaSelector(kSelSentido);
    AplicaReglasPendientes();
    EXPECT_EQ(estado.PasoSentido, 1);
}

TEST_F(PersonalTest, AHandThatIsLeftAfterATurnOfTheDirectionIsDealtAnewToTheSameLeader) {
    AbreEn(kTute);
    mesa.EnPartida(3, true);
    estado.JugadorMano = 4;
    personal::PulsaSelector(kSelSentido);
    ASSERT_TRUE(personal::Cierra());
    ASSERT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
    LeerIniJuego();
    EXPECT_EQ(estado.PasoSentido, -1);
    SiguienteAsiento(estado.JugadorMano);
    EXPECT_EQ(estado.JugadorMano, 4);
}

// ---- interlocks

TEST_F(PersonalTest, InBlackJackTheBankStaysActive) {
    AbreEn(kBlackJack);
    personal::PulsaSelector(kSelEstado + kArriba);
    EXPECT_EQ(estado.EstadoJugador(kArriba), kActivado);
    EXPECT_EQ(Titulo(), "Selector desactivado");
    EXPECT_THAT(mesa.Mensajes().back().texto, testing::HasSubstr("'croupier'"));
    EXPECT_EQ(mesa.Mensajes().back().modo, 1);
    mesa.Olvida();
    personal::PulsaSelector(kSelEstado + kDerecha);
    EXPECT_EQ(estado.EstadoJugador(kDerecha), kDesactivado);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
}

TEST_F(PersonalTest, InCinquilloNobodyLeaves) {
    AbreEn(kCinquillo);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        personal::PulsaSelector(kSelEstado + asiento);
        EXPECT_EQ(estado.EstadoJugador(asiento), kActivado);
    }
    EXPECT_THAT(mesa.Mensajes(), SizeIs(4));
    EXPECT_EQ(Titulo(), "Selector desactivado");
    EXPECT_EQ(
        mesa.Mensajes().back().texto,
        "El juego del Cinquillo se juega con cuatro jugadores,  por tanto,  no  puede desactivar "
        "ninguno  y  no  se  le  permite modificar el valor de este selector.");
}

TEST_F(PersonalTest, InBlackJackCardsAreAlwaysVisible) {
    AbreEn(kBlackJack);
    estado.CartasJugador(1) = kVisibles;
    personal::PulsaSelector(kSelCartas + 1);
    EXPECT_EQ(estado.CartasJugador(1), kVisibles);
    EXPECT_EQ(Titulo(), "Selector desactivado");
    EXPECT_THAT(mesa.Mensajes().back().texto, testing::HasSubstr("boca arriba"));
}

TEST_F(PersonalTest, AManualSeatSetToOcultasAndCancelarShowsVisiblesAgain) {
    AbreEn(kTute);
    mesa.Responde(kCancelar);
    personal::PulsaSelector(kSelCartas + kPersona);
    EXPECT_EQ(TextoActual(kSelCartas + kPersona), "Visibles");
    EXPECT_EQ(TextoActual(kSelControl + kPersona), "Manual");
    EXPECT_EQ(Titulo(), "Selecciones incompatibles");
    EXPECT_TRUE(mesa.Mensajes().back().aceptar);
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(6, 9, 7));
}

TEST_F(PersonalTest, AManualSeatSetToOcultasAndAceptarPlaysByItself) {
    AbreEn(kTute);
    mesa.Responde(kAceptar);
    personal::PulsaSelector(kSelCartas + kPersona);
    EXPECT_EQ(TextoActual(kSelCartas + kPersona), "Ocultas");
    EXPECT_EQ(TextoActual(kSelControl + kPersona), "Automático");
}

TEST_F(PersonalTest, AHiddenSeatSetToManualAndAceptarBecomesVisible) {
    AbreEn(kTute);
    mesa.Responde(kAceptar);
    personal::PulsaSelector(kSelControl + 1);
    EXPECT_EQ(TextoActual(kSelCartas + 1), "Visibles");
    EXPECT_EQ(TextoActual(kSelControl + 1), "Manual");
    EXPECT_TRUE(estado.EligeCarta);
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(6, 9, 7));
}

TEST_F(PersonalTest, AHiddenSeatSetToManualAndCancelarStaysAutomatic) {
    AbreEn(kTute);
    mesa.Responde(kCancelar);
    personal::PulsaSelector(kSelControl + 1);
    EXPECT_EQ(TextoActual(kSelCartas + 1), "Ocultas");
    EXPECT_EQ(TextoActual(kSelControl + 1), "Automático");
    EXPECT_FALSE(estado.EligeCarta);
}

TEST_F(PersonalTest, AManualSeatWithHiddenCardsCannotBeReachedOnAnyPath) {
    // Both selectors of a seat, pressed in every order of eight, with every answer.
    for (unsigned camino = 0; camino < 1U << 16; ++camino) {
        if (camino == 0)
            AbreEn(kTute);
        estado.CartasJugador(1) = kOcultas;
        estado.ControlJugador(1) = kAutomatico;
        mesa.Olvida();
        for (unsigned paso = 0; paso < 8; ++paso) {
            const unsigned como = camino >> (2 * paso) & 3U;
            mesa.LaPlataforma().respuestas = {(como & 2U) != 0 ? kAceptar : kCancelar};
            personal::PulsaSelector((como & 1U) != 0 ? kSelCartas + 1 : kSelControl + 1);
            ASSERT_FALSE(estado.ControlJugador(1) == kManual && estado.CartasJugador(1) == kOcultas)
                << "path " << camino << ", step " << paso;
        }
    }
}

// ---- the cards on the table

TEST_F(PersonalTest, CardsOnTheTableFollowTheSettingsOfTheirSeats) {
    AbreEn(kTute);
    mesa.EnPartida(1, true);
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        mesa.DaCarta(asiento, kDorso);
    personal::PulsaSelector(kSelCartas + kArriba);
    EXPECT_EQ(mesa.CaraDe(1), kDorso);
    EXPECT_EQ(mesa.CaraDe(kArriba), kDescubierta);
    EXPECT_EQ(mesa.CaraDe(kPersona), kDescubierta);
    personal::PulsaSelector(kSelCartas + kArriba);
    EXPECT_EQ(mesa.CaraDe(kArriba), kDorso);
}

TEST_F(PersonalTest, CardsOfEverySerieTurn) {
    AbreEn(kSieteYMedia);
    mesa.EnPartida(1, true);
    PonCarta(kArriba, 3, 1, kCopas, 7, kDorso);
    estado.Mano(kArriba, 3, 1, kTapada) = 1;
    personal::PulsaSelector(kSelCartas + kArriba);
    EXPECT_EQ(estado.Mano(kArriba, 3, 1, kCara), kDescubierta);
}

TEST_F(PersonalTest, InSieteYMediaAnOpenCardStaysFaceUp) {
    AbreEn(kSieteYMedia);
    mesa.EnPartida(1, true);
    mesa.DaCarta(1, kDorso, 1);
    mesa.DaCarta(1, kDescubierta, 0);
    estado.CartasJugador(1) = kVisibles;
    personal::PulsaSelector(kSelCartas + 1);
    EXPECT_EQ(mesa.CaraDe(1, 1), kDorso);
    EXPECT_EQ(mesa.CaraDe(1, 2), kDescubierta);
}

TEST_F(PersonalTest, ASeatThatBecomesManualSeesItsCardsAtOnce) {
    AbreEn(kTute);
    mesa.EnPartida(1, true);
    mesa.DaCarta(1, kDorso);
    mesa.Responde(kAceptar);
    personal::PulsaSelector(kSelControl + 1);
    EXPECT_EQ(mesa.CaraDe(1), kDescubierta);
}

TEST_F(PersonalTest, WithNoMatchOnNoCardTurns) {
    AbreEn(kTute);
    mesa.DaCarta(1, kDescubierta);
    estado.CartasJugador(1) = kVisibles;
    personal::PulsaSelector(kSelCartas + 1);
    EXPECT_EQ(mesa.CaraDe(1), kDescubierta);
}

TEST_F(PersonalTest, InTheDrawTheDrawnCardsStayOnTheTable) {
    AbreEn(kTute);
    mesa.EnPartida(0, false);
    vista.sorteada(1) = {.palo = kOros, .valor = 7, .cara = kDorso, .orientacion = 2};
    mesa.LaPlataforma().UsaLienzosRegistrados();
    personal::PulsaSelector(kSelCartas + 1);
    EXPECT_THAT(mesa.LaPlataforma().Dibujado(Control::Mesa).Llamadas(), IsEmpty())
        << "no hand has been dealt, and nothing is wiped away";
}

TEST_F(PersonalTest, InAManualDealTheDealtCardsStayOpen) {
    AbreEn(kTute);
    mesa.EnPartida(1, false);
    estado.RepartoEnCurso = true;
    mesa.DaCarta(1, kDescubierta);
    estado.CartasJugador(1) = kVisibles;
    personal::PulsaSelector(kSelCartas + 1);
    EXPECT_EQ(mesa.CaraDe(1), kDescubierta);
}

// ---- closing

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
    PonCarta(1, 1, 1, kCopas, 9, kDescubierta);
    estado.NumCartas(1, 1) = 1;
    PonCarta(kDerecha, 2, 1, kBastos, 5, kDescubierta);
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

TEST_F(PersonalTest, WithNothingAwaitedTheTutorStaysAsItIs) {
    AbreEn(kTute);
    mesa.EnPartida(1, true);
    HabilitaBoton(kBotonTutor, false);
    estado.EsperandoJugada = false;
    EXPECT_TRUE(personal::Cierra());
    EXPECT_FALSE(BotonHabilitado(kBotonTutor)) << "cards are on their way";
}

TEST_F(PersonalTest, BetweenHandsTheTutorStaysClosed) {
    AbreEn(kTute);
    mesa.EnPartida(2, false);
    HabilitaBoton(kBotonTutor, false);
    estado.EsperandoJugada = true;
    EXPECT_TRUE(personal::Cierra());
    EXPECT_FALSE(BotonHabilitado(kBotonTutor));
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
    EXPECT_EQ(estado.NombreJugador(kDerecha), "Jugador3");
    EXPECT_FALSE(personal::Abierta());
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        EXPECT_EQ(estado.EstadoJugador(asiento), kActivado);
    EXPECT_FALSE(estado.JugadoresCambiados);
}

} // namespace
