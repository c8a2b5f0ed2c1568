// The form Normas: what it shows for each game, its interlocks, its numbers, the change of game.

#include "betting/bet_state.h"
#include "forms/normas.h"
#include "forms/refresh.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "betting/chips.h"
#include "core/text.h"
#include "forms/form.h"
#include "forms/spin.h"
#include "storage/between_hands.h"
#include "table/game_row.h"
#include "table/pending_rules.h"
#include "tests/support/open_forms.h"

namespace {

using prueba::kAceptar;
using prueba::kCancelar;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr int kResto = 21, kSalida = 22, kApuesta = 23, kLimite = 24;

class NormasTest : public testing::Test {
protected:
    void AbreEn(Integer juego) {
        mesa.Pon(juego);
        normas::Abre();
    }
    prueba::MesaConFormas mesa;
};

// A game that is not on the table and can be played.
Integer OtroJugable(Integer juego) {
    for (const FilaJuego* fila : FilasDeJuegos()) {
        if (fila->id != juego && fila->driver != nullptr)
            return fila->id;
    }
    return 0;
}

TEST_F(NormasTest, EachGameShowsWhatAppliesToIt) {
    AbreEn(kPoker);
    EXPECT_THAT(normas::Controles(), ElementsAre(kSelReparto, kSelBaraja, kSelComodines, kSelLey,
                                                 kResto, kSalida, kApuesta));
    AbreEn(kTute);
    EXPECT_THAT(normas::Controles(), ElementsAre(kSelReparto, kSelModalidad, kLimite));
    AbreEn(kBrisca);
    EXPECT_THAT(normas::Controles(), ElementsAre(kSelReparto, kSelModalidad, kLimite));
    AbreEn(kSieteYMedia);
    EXPECT_THAT(normas::Controles(), ElementsAre(kSelReparto, kResto, kApuesta));
    AbreEn(kCinquillo);
    EXPECT_THAT(normas::Controles(), ElementsAre(kSelReparto, kLimite));
}

TEST_F(NormasTest, BlackJackShowsOnlyTheListTheStakeAndTheHighestBet) {
    AbreEn(kBlackJack);
    EXPECT_THAT(normas::Controles(), ElementsAre(kResto, kApuesta));
    normas::PulsaSelector(kSelReparto);
    EXPECT_EQ(estado.SistemaReparto, kRepartoAutomatico);
    EXPECT_THAT(mesa.Sonidos(), IsEmpty());
}

TEST_F(NormasTest, TuteWithThreeSeatsShowsNoModality) {
    mesa.Pon(kTute);
    estado.EstadoJugador(2) = kDesactivado;
    ActivarAsientos();
    normas::Abre();
    EXPECT_THAT(normas::Controles(), ElementsAre(kSelReparto, kLimite));
    normas::PulsaSelector(kSelModalidad);
    EXPECT_EQ(estado.ModalidadJuego, kIndividual);
}

TEST_F(NormasTest, TheListHasItsHeadingsBeforePokerAndTute) {
    EXPECT_STREQ(normas::Encabezado(kPoker), "Baraja Francesa");
    EXPECT_STREQ(normas::Encabezado(kTute), "Baraja Española");
    for (Integer juego : {kBlackJack, kBrisca, kSieteYMedia, kCinquillo})
        EXPECT_STREQ(normas::Encabezado(juego), "");
}

TEST_F(NormasTest, AGameWithoutADriverIsListedAndCannotBeChosen) {
    for (const FilaJuego* fila : FilasDeJuegos())
        EXPECT_EQ(normas::SePuedeElegir(fila->id), fila->driver != nullptr) << fila->nombre;
    EXPECT_FALSE(normas::SePuedeElegir(50));
}

TEST_F(NormasTest, APressGivesSound6AndTheNextValue) {
    AbreEn(kCinquillo);
    normas::PulsaSelector(kSelReparto);
    EXPECT_EQ(estado.SistemaReparto, kRepartoManual);
    normas::PulsaSelector(kSelReparto);
    EXPECT_EQ(estado.SistemaReparto, kRepartoAutomatico);
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(6, 6));
}

TEST_F(NormasTest, TheLawStepsOverThePairsThatTheDeckDoesNotHave) {
    AbreEn(kPoker);
    estado.CartasBaraja = 4;
    estado.LeyApertura = 14;
    normas::PulsaSelector(kSelLey);
    EXPECT_EQ(estado.LeyApertura, 4);
    EXPECT_EQ(TextoActual(kSelLey), "Mínimo pareja de 5");
    normas::PulsaSelector(kSelLey);
    EXPECT_EQ(estado.LeyApertura, 5);
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(6, 6));
}

TEST_F(NormasTest, ALawThatIsNotAppliedKeepsItsPlaceWhenTheDeckChanges) {
    AbreEn(kPoker);
    estado.LeyApertura = 14;
    for (int vez = 0; vez < 6; ++vez) {
        normas::PulsaSelector(kSelBaraja);
        EXPECT_EQ(estado.LeyApertura, 14);
    }
    EXPECT_EQ(estado.CartasBaraja, 1);
    EXPECT_THAT(mesa.Sonidos(), testing::Each(6));
}

TEST_F(NormasTest, ADeckFromThe7LiftsTheLawToAPairOf7) {
    AbreEn(kPoker);
    estado.CartasBaraja = 5;
    estado.LeyApertura = 2;
    normas::PulsaSelector(kSelBaraja);
    EXPECT_EQ(TextoActual(kSelBaraja), "Desde el 7");
    EXPECT_EQ(TextoActual(kSelLey), "Mínimo pareja de 7");
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(6, 7));
}

TEST_F(NormasTest, TheDeckIsBuiltAnewWithItsRulesAndJokers) {
    AbreEn(kPoker);
    for (int vez = 0; vez < 5; ++vez)
        normas::PulsaSelector(kSelBaraja);
    EXPECT_EQ(estado.TotalBaraja, 32);
    normas::PulsaSelector(kSelComodines);
    normas::PulsaSelector(kSelComodines);
    EXPECT_EQ(estado.TotalBaraja, 34);
    EXPECT_FALSE(estado.ValorEnBaraja(6));
}

TEST_F(NormasTest, WithAHandOnTheDeckWaitsForTheNextOne) {
    AbreEn(kPoker);
    mesa.EnPartida(3, true);
    normas::PulsaSelector(kSelReparto);
    EXPECT_FALSE(sesion.baraja_pendiente) << "how it is dealt is nothing to the deck";
    normas::PulsaSelector(kSelBaraja);
    normas::PulsaSelector(kSelComodines);
    EXPECT_EQ(estado.CartasBaraja, 2);
    EXPECT_EQ(estado.TotalBaraja, 52);
    AplicaReglasPendientes();
    EXPECT_EQ(estado.TotalBaraja, 49);
    EXPECT_FALSE(sesion.baraja_pendiente);
}

TEST_F(NormasTest, InAManualDealTheDeckChangesAtOnce) {
    AbreEn(kPoker);
    mesa.EnPartida(3, false);
    estado.RepartoEnCurso = true;
    normas::PulsaSelector(kSelBaraja);
    EXPECT_EQ(estado.TotalBaraja, 48);
    EXPECT_FALSE(sesion.baraja_pendiente);
}

TEST_F(NormasTest, WhileCardsAreDealtByThemselvesTheDeckWaits) {
    AbreEn(kPoker);
    mesa.EnPartida(3, false);
    const OrdenFirme reparto;
    normas::PulsaSelector(kSelComodines);
    EXPECT_EQ(estado.TotalBaraja, 52);
    EXPECT_TRUE(sesion.baraja_pendiente);
}

TEST_F(NormasTest, AnArrowStepsWithSound4UntilTheExtreme) {
    AbreEn(kCinquillo);
    estado.LimitePartida = 997;
    int pasos = 0;
    while (normas::PulsaSpin(kLimite, true))
        ++pasos;
    EXPECT_EQ(pasos, 2);
    EXPECT_EQ(estado.LimitePartida, 999);
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(4, 4));
    EXPECT_FALSE(normas::PulsaSpin(kResto, true)) << "Cinquillo has no stake";
}

TEST_F(NormasTest, ATyped4Stays4UntilClosingAndThenBecomes5) {
    AbreEn(kBlackJack);
    EXPECT_EQ(normas::EscribeSpin(kResto, "4"), "4");
    EXPECT_EQ(estado.RestoInicial, 4);
    normas::Cierra();
    EXPECT_EQ(estado.RestoInicial, 5);
}

TEST_F(NormasTest, ATyped7Stays7) {
    AbreEn(kBlackJack);
    normas::EscribeSpin(kResto, "7");
    normas::Cierra();
    EXPECT_EQ(estado.RestoInicial, 7);
}

TEST_F(NormasTest, FromATyped7TheArrowsGive10And0AndClosingRaisesIt) {
    AbreEn(kBlackJack);
    normas::EscribeSpin(kResto, "7");
    normas::PulsaSpin(kResto, true);
    EXPECT_EQ(estado.RestoInicial, 10);
    normas::EscribeSpin(kResto, "7");
    normas::PulsaSpin(kResto, false);
    EXPECT_EQ(estado.RestoInicial, 0);
    normas::Cierra();
    EXPECT_EQ(estado.RestoInicial, 5);
}

TEST_F(NormasTest, ANumberOverTheMaximumShowsTheMaximumAtOnce) {
    AbreEn(kPoker);
    EXPECT_EQ(normas::EscribeSpin(kResto, "996"), "995");
    EXPECT_EQ(normas::EscribeSpin(kResto, "0995"), "0995");
    EXPECT_EQ(normas::EscribeSpin(kSalida, "12345678901234567890"), "999");
    EXPECT_EQ(estado.RestoInicial, 995);
    EXPECT_EQ(estado.ApuestaSalida, 999);
}

TEST_F(NormasTest, WhatIsNoNumberStaysOnShowAndReadsAs0) {
    AbreEn(kPoker);
    EXPECT_EQ(normas::EscribeSpin(kApuesta, "doce"), "doce");
    EXPECT_EQ(normas::EscribeSpin(kSalida, "-3"), "-3");
    EXPECT_EQ(estado.ApuestaMaxima, 0);
    EXPECT_EQ(estado.ApuestaSalida, 0);
    normas::Cierra();
    EXPECT_EQ(estado.ApuestaMaxima, 5);
    EXPECT_EQ(estado.ApuestaSalida, 0);
}

TEST_F(NormasTest, ClosingBringsAllFourNumbersIntoTheirRanges) {
    AbreEn(kPoker);
    estado.LimitePartida = 0; // on show in no Póker form
    normas::EscribeSpin(kResto, "1");
    mesa.Olvida();
    normas::Cierra();
    EXPECT_EQ(estado.LimitePartida, 1);
    EXPECT_EQ(estado.RestoInicial, 5);
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(9));
    EXPECT_FALSE(normas::Abierta());
}

// ---- the change of game

TEST_F(NormasTest, AnotherGameIsMarkedAndAskedFor) {
    AbreEn(kTute);
    Integer marcado_al_preguntar = 0;
    PonRefresco([&] { marcado_al_preguntar = normas::JuegoMarcado(); });
    mesa.Responde(kAceptar);
    const Milisegundos antes = mesa.LaPlataforma().Reloj();
    normas::PulsaJuego(OtroJugable(kTute));
    PonRefresco({});
    ASSERT_THAT(mesa.Mensajes(), SizeIs(1));
    EXPECT_EQ(mesa.Mensajes()[0].titulo, "Lista 'Juego Activado'");
    EXPECT_TRUE(mesa.Mensajes()[0].aceptar);
    EXPECT_EQ(marcado_al_preguntar, OtroJugable(kTute));
    EXPECT_EQ(mesa.LaPlataforma().Reloj() - antes, 600);
}

TEST_F(NormasTest, CancelarPutsTheMarksBack) {
    AbreEn(kTute);
    mesa.EnPartida(4, true);
    const EstadoJuego antes = estado;
    mesa.Responde(kCancelar);
    Integer marcado_a_la_vista = 0;
    PonRefresco([&] { marcado_a_la_vista = normas::JuegoMarcado(); });
    normas::PulsaJuego(OtroJugable(kTute));
    PonRefresco({});
    EXPECT_EQ(normas::JuegoMarcado(), kTute);
    EXPECT_EQ(marcado_a_la_vista, kTute);
    EXPECT_TRUE(normas::Abierta());
    EXPECT_EQ(estado.JuegoActivo, kTute);
    EXPECT_TRUE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.JuegosJugados, antes.JuegosJugados);
    EXPECT_FALSE(mesa.Hay("ZOV5131.INI"));
}

TEST_F(NormasTest, AceptarWritesTheOldGameAndThenTheNewId) {
    AbreEn(kTute);
    mesa.EnPartida(4, true);
    estado.JugadorMano = 3;
    mesa.Responde(kAceptar);
    const Integer nuevo = OtroJugable(kTute);
    normas::PulsaJuego(nuevo);
    EXPECT_FALSE(normas::Abierta());
    EXPECT_EQ(estado.JuegoActivo, nuevo);
    EXPECT_FALSE(estado.PartidaEnCurso) << "the match of Tute waits in its file";
    EXPECT_FALSE(estado.ManoEnCurso);
    // The match is on there, with three games finished: the fourth is dealt anew.
    EXPECT_EQ(mesa.Archivo("ZOV5131.INI").substr(89, 2), "-1");
    EXPECT_EQ(mesa.Archivo("ZOV5131.INI").substr(96, 3), "003");
    EXPECT_EQ(mesa.Archivo("ZOV31.INI").substr(0, 2), Formato(nuevo, "00"));
    EXPECT_FALSE(mesa.Hay(NombreIniJuego(nuevo))) << "that game's file is its own";
}

TEST_F(NormasTest, TheMoneyOfAHandInPlayGoesIntoTheOldFileAsTheHandBegan) {
    AbreEn(kSieteYMedia);
    mesa.EnPartida(4, true);
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        AsignarResto(asiento, 200);
    AnotaDineroPrevio();
    AsignarResto(1, 150);
    apuestas.Apuesta(1, 1, 2) = 50;
    mesa.Responde(kAceptar);
    normas::PulsaJuego(kTute);
    estado.JuegoActivo = kSieteYMedia;
    LeerIniJuego();
    EXPECT_TRUE(estado.PartidaEnCurso);
    EXPECT_EQ(RestoDe(1), 200);
    EXPECT_EQ(apuestas.Apuesta(1, 1, 2), 0);
}

TEST_F(NormasTest, AManualDealIsOverWithItsGame) {
    AbreEn(kTute);
    mesa.EnPartida(1, false);
    sesion.mano_apuntada = false;
    estado.RepartoEnCurso = true;
    mesa.Responde(kAceptar);
    normas::PulsaJuego(OtroJugable(kTute));
    EXPECT_FALSE(estado.RepartoEnCurso);
    EXPECT_EQ(mesa.Archivo("ZOV5131.INI").substr(96, 3), "000") << "its hand is dealt anew";
}

TEST_F(NormasTest, NumbersAreBroughtIntoTheirRangesBeforeTheOldFileIsWritten) {
    AbreEn(kTute);
    normas::EscribeSpin(kLimite, "0");
    mesa.Responde(kAceptar);
    normas::PulsaJuego(OtroJugable(kTute));
    EXPECT_EQ(mesa.Archivo("ZOV5131.INI").substr(118, 3), "001");
}

TEST_F(NormasTest, AClickOnTheMarkedGameOrOnOneThatCannotBePlayedDoesNothing) {
    AbreEn(kTute);
    normas::PulsaJuego(kTute);
    normas::PulsaJuego(50);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_TRUE(normas::Abierta());
}

TEST_F(NormasTest, TheTableAsksForANewSessionAfterAChangeOfGameAndSavesOtherwise) {
    mesa.Pon(kTute);
    AntesDeLaForma();
    normas::Abre();
    EXPECT_TRUE(estado.VentanaModal);
    mesa.Responde(kAceptar);
    normas::PulsaJuego(OtroJugable(kTute));
    TrasLaForma();
    EXPECT_EQ(sesion.peticion, Peticion::NuevaSesion);
    EXPECT_FALSE(estado.VentanaModal);
    sesion = {};
    mesa.Pon(kTute);
    AntesDeLaForma();
    normas::Abre();
    normas::Cierra();
    TrasLaForma();
    EXPECT_EQ(sesion.peticion, Peticion::Ninguna);
    EXPECT_TRUE(mesa.Hay("ZOV5131.INI"));
}

TEST_F(NormasTest, AnEndOfTheDesktopAfterAChangeOfGameLeavesTheNewGamesFileAlone) {
    mesa.Pon(kTute);
    mesa.EnPartida(4, true);
    mesa.Archivo("ZOV7031.INI") = "the match of Cinquillo";
    AntesDeLaForma();
    normas::Abre();
    mesa.Responde(kAceptar);
    normas::PulsaJuego(kCinquillo);
    TrasLaForma();
    GuardarYSalir();
    EXPECT_EQ(mesa.Archivo("ZOV7031.INI"), "the match of Cinquillo");
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
    EXPECT_EQ(sesion.estado_salida, 0);
}

TEST_F(NormasTest, AFileThatCannotBeWrittenIsToldAndTheGameChanges) {
    AbreEn(kTute);
    mesa.Memoria().de_solo_lectura.insert("juego");
    mesa.Responde(kAceptar);
    normas::PulsaJuego(OtroJugable(kTute));
    ASSERT_THAT(mesa.Mensajes(), SizeIs(2));
    EXPECT_EQ(mesa.Mensajes()[1].titulo, "Error al guardar los datos");
    EXPECT_EQ(estado.JuegoActivo, OtroJugable(kTute));
}

TEST_F(NormasTest, ClosedFromOutsideItKeepsItsNumbersInTheirRanges) {
    AbreEn(kBlackJack);
    normas::EscribeSpin(kResto, "0");
    mesa.Olvida();
    normas::Deja();
    EXPECT_EQ(estado.RestoInicial, 5);
    EXPECT_THAT(mesa.Sonidos(), IsEmpty());
    EXPECT_FALSE(normas::Abierta());
}

} // namespace
