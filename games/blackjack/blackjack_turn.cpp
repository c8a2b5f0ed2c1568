#include "games/blackjack/blackjack_turn.h"

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/random.h"
#include "core/session_state.h"
#include "games/blackjack/blackjack_decision.h"
#include "games/blackjack/blackjack_offers.h"
#include "games/blackjack/blackjack_serie.h"
#include "games/common/bank_buttons.h"
#include "games/common/bank_hands.h"
#include "games/common/series.h"
#include "platform/canvas.h"
#include "table/announcements.h"
#include "table/bet_board.h"
#include "table/button_column.h"
#include "table/deal.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/table_input.h"
#include "table/waiting.h"

namespace {

constexpr int kTipSeguro = 22, kTipAbrir = 23, kTipDoblar = 24, kTipPedir = 25, kTipTutor = 50;
constexpr float kHastaTipTutor = 0.2F;
constexpr Integer kParpadeos = 2;
constexpr int kBancaSePlanta = 17;

bool Parada() {
    return SerieParada(estado.JugadorActual, estado.SerieEnJuego);
}

void RetiraOfertas() {
    series.PuedeAsegurar = series.PuedeAbrir = series.PuedeDoblar = false;
}

void BorraOrdenes() {
    series.OrdenPedir = series.OrdenServido = series.OrdenDoblar = series.OrdenSeguro =
        series.OrdenAbrir = false;
}

int TipDeJugada() {
    if (estado.AzarTurno < kHastaTipTutor)
        return kTipTutor;
    if (series.PuedeAsegurar)
        return kTipSeguro;
    if (series.PuedeAbrir)
        return kTipAbrir;
    return series.PuedeDoblar ? kTipDoblar : kTipPedir;
}

void Roba() {
    series.PuedeAbrir = series.PuedeDoblar = false;
    RobarCartas(estado.JugadorActual, 1, 0);
}

// A serie that was opened still waits for its second card.
void EmpiezaSerie() {
    series.PuedeAbrir = series.PuedeDoblar = false;
    if (estado.SerieActual == 1)
        ResaltarAsiento();
    else
        AnunciaSerie();
    if (estado.NumCartas(estado.JugadorActual, estado.SerieActual) != 2)
        Roba();
}

void PreparaJugada() {
    series.PuedeDoblar = OfreceDoblar();
    series.PuedeAbrir = OfreceAbrir();
    estado.AzarTurno = AzarDeTurno();
    DecideBlackJack();
    BorraOrdenes();
    RedibujarAsiento(estado.JugadorActual);
    HabilitaBoton(kBotonTutor, JuegaUnaPersona());
    if (JuegaUnaPersona()) {
        RefrescaPuntero();
        MostrarSugerencia(TipDeJugada());
    }
}

// Back from whatever serie the person was looking at.
void VuelveALaSerieEnJuego() {
    if (estado.SerieActual == estado.SerieEnJuego)
        return;
    estado.SerieActual = estado.SerieEnJuego;
    RedibujarAsiento(estado.JugadorActual);
}

[[nodiscard]] bool EsperaJugada(bool primer_paso) {
    const bool espera = JuegaUnaPersona() || (estado.PausaEntreJugadas && primer_paso);
    if (espera && !EsperaContinuar())
        return false;
    VuelveALaSerieEnJuego();
    HabilitaBoton(kBotonTutor, false);
    DecideBlackJack();
    return true;
}

bool HayOrden() {
    return series.OrdenPedir || series.OrdenServido || series.OrdenDoblar || series.OrdenSeguro ||
           series.OrdenAbrir;
}

// The seat's own answer becomes the order, and is shown.
void OrdenaLoSuyo() {
    if (series.ConsejoSeguro) {
        series.OrdenSeguro = true;
        PulsaSolo(BotonDeSerie::Seguro);
    } else if (series.ConsejoAbrir) {
        series.OrdenAbrir = true;
        Rotula("Abro el par", color::kBlanco, kParpadeos);
    } else if (series.ConsejoDoblar) {
        series.OrdenDoblar = true;
        PulsaSolo(BotonDeSerie::Doblar);
    } else if (series.ConsejoServido) {
        series.OrdenServido = true;
        PulsaSolo(BotonDeSerie::Servido);
    } else {
        series.OrdenPedir = true;
        PulsaSolo(BotonDeSerie::Carta);
    }
}

void ColocaEn(Integer fase, Integer cantidad) {
    apuestas.FaseApuesta = fase;
    ColocaApuesta(estado.JugadorActual, cantidad);
    apuestas.FaseApuesta = kFaseJuego;
}

// True while the serie goes on. The insurance leaves the seat its turn.
bool CumpleLaOrden() {
    const Integer apuesta =
        apuestas.Apuesta(estado.JugadorActual, estado.SerieActual, kFaseApuestas);
    const Integer asiento = estado.JugadorActual;
    if (series.OrdenSeguro) {
        DiDe(asiento, "se asegura");
        ColocaEn(kFaseSeguro, static_cast<Integer>(apuesta / 2));
        return true;
    }
    if (series.OrdenServido) {
        DiDe(asiento, "se planta");
        return false;
    }
    if (series.OrdenAbrir)
        AbreSerie();
    if (series.OrdenDoblar) {
        DiDe(asiento, "dobla su apuesta");
        ColocaEn(kFaseDoblar, apuesta);
    }
    Roba();
    return true;
}

void CierraSerie() {
    const Integer asiento = estado.JugadorActual;
    const int puntos = PuntosBlackJack(asiento, estado.SerieActual);
    RetiraOfertas();
    if (JuegaUnaPersona())
        RefrescaPuntero();
    if (puntos > kVeintiuna)
        PierdeAlPasarse();
    else if (puntos == kVeintiuna)
        Rotula(EsBlackJack(asiento, estado.SerieActual) ? "Black Jack" : "Veintiuna",
               color::kBlanco, kParpadeos);
    PonBotones(asiento, {});
}

[[nodiscard]] bool JuegaSerie() {
    EmpiezaSerie();
    bool primer_paso = true;
    bool sigue = true;
    while (sigue && !Parada()) {
        PreparaJugada();
        if (!EsperaJugada(primer_paso))
            return false;
        if (!HayOrden())
            OrdenaLoSuyo();
        series.PuedeAsegurar = false; // asked once, at the first step
        sigue = CumpleLaOrden();
        primer_paso = false;
    }
    CierraSerie();
    return true;
}

} // namespace

bool JuegaAsiento(Integer asiento) {
    PonEnJuego(asiento, 1);
    RetiraOfertas();
    series.PuedeAsegurar = OfreceSeguro();
    PaseDeEventos(Pase::DePaso);
    if (!PartidaSigue())
        return false;
    Pausa(500);
    for (Integer serie = 1; serie <= estado.SeriesJugador(asiento); ++serie) {
        PonEnJuego(asiento, serie);
        if (!JuegaSerie())
            return false;
    }
    ApagaNombre();
    return true;
}

void JuegaLaBanca() {
    const Integer banca = estado.JugadorBanca;
    PonEnJuego(banca, 1);
    ResaltarAsiento();
    CuentaManosVivas();
    while (estado.JugadoresEnMano > 1 && PuntosBlackJack(banca, 1) < kBancaSePlanta) {
        RobarCartas(banca, 1, 0);
        Pausa(500);
    }
    ApagaNombre();
    if (PuntosBlackJack(banca, 1) <= kVeintiuna)
        return DiDe(banca, "se planta");
    DiDe(banca, "se pasa");
    estado.SerieTerminada(banca, 1) = true;
    RedibujarAsiento(banca);
}
