// The form Personal: what a seat shows, names, sliders, interlocks, the cards that turn.

#include "forms/personal.h"
#include "forms/refresh.h"
#include "table/deck.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/form.h"
#include "table/pending_rules.h"
#include "table/table_view.h"
#include "tests/support/personal_form.h"

namespace {

using namespace prueba;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

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

TEST_F(PersonalTest, ClosingTrimsTheNamesAndAnEmptyOneStaysEmpty) {
    AbreEn(kTute);
    personal::EscribeNombre(1, "ana ");
    personal::EscribeNombre(2, "   ");
    EXPECT_EQ(estado.NombreJugador(1), "Ana ");
    ASSERT_TRUE(personal::Cierra());
    EXPECT_EQ(estado.NombreJugador(1), "Ana");
    EXPECT_EQ(estado.NombreJugador(2), "");
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
    PonCarta(kArriba, 3, 1, {kCopas, 7}, kDorso);
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

} // namespace
