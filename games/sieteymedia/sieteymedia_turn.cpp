#include "games/sieteymedia/sieteymedia_turn.h"

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "core/random.h"
#include "games/common/bank_bets.h"
#include "games/common/bank_buttons.h"
#include "games/common/bank_hands.h"
#include "games/common/series.h"
#include "games/sieteymedia/sieteymedia_cards.h"
#include "games/sieteymedia/sieteymedia_decision.h"
#include "games/sieteymedia/sieteymedia_input.h"
#include "games/sieteymedia/sieteymedia_serie.h"
#include "platform/canvas.h"
#include "table/announcements.h"
#include "table/button_column.h"
#include "table/deal.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/table_input.h"
#include "table/waiting.h"

namespace {

constexpr int kTipReglasApuesta = 30, kTipApuesta = 31;
constexpr int kTipPlantarse = 35, kTipTutor = 50;
constexpr Integer kPrimeraMedia = 10; // Sota, Caballo and Rey count a half
constexpr TurnoDeApuesta kApuesta{.decide = DecideSiete,
                                  .tip_automatico = kTipReglasApuesta,
                                  .tip_manual = kTipApuesta,
                                  .hasta_tip_manual = 0.3F,
                                  .hasta_tip_reglas = 0.6F,
                                  .pausa = 100,
                                  .antes_de_decidir = CambiaCuatroSolo};

bool EsBanca() {
    return estado.JugadorActual == estado.JugadorBanca;
}

// What holds for one step only is offered no longer.
void RetiraOfertas() {
    series.PuedeCambiarCuatro = false;
    series.PuedeAbrir = false;
}

void AbreApuestas() {
    apuestas.ModoApuesta = true;
    apuestas.FaseApuesta = kFaseApuestas;
    RedibujarAsiento(estado.JugadorActual);
    Pausa(400);
    ResaltarAsiento();
    if (estado.SerieActual > 1)
        AnunciaSerie();
    series.ConservaCuatro = false;
    series.ApuestaFuerte = false;
}

void CierraApuestas() {
    apuestas.ModoApuesta = false;
    apuestas.FaseApuesta = kFaseJuego;
    RetiraOfertas();
    RedibujarAsiento(estado.JugadorActual);
}

[[nodiscard]] bool ApuestaEnSerie() {
    AbreApuestas();
    if (!ApuestaLaSerie(kApuesta))
        return false;
    CierraApuestas();
    return true;
}

int TipDelPaso() {
    if (estado.AzarTurno < 0.2F)
        return kTipTutor;
    if (series.PuedeCambiarCuatro)
        return kTipCuatro;
    if (series.PuedeAbrir)
        return kTipMedias;
    if (!EsBanca() && EsSieteYMedia(estado.JugadorActual, estado.SerieActual))
        return kTipCantar;
    return !EsBanca() && estado.AzarTurno > 0.7F ? kTipTapada : kTipPlantarse;
}

void EmpiezaPaso() {
    series.OrdenPedir = false;
    series.OrdenServido = false;
    DecideSiete();
    RedibujarAsiento(estado.JugadorActual);
    HabilitaBoton(kBotonTutor, JuegaUnaPersona());
    estado.EligeCarta = JuegaUnaPersona();
    estado.AzarTurno = AzarDeTurno();
    if (!JuegaUnaPersona())
        return;
    RefrescaPuntero();
    MostrarSugerencia(TipDelPaso());
}

// A person at every step, another seat once in its serie. False when the match was left.
[[nodiscard]] bool EsperaOrden(bool primer_paso) {
    if (!JuegaUnaPersona() && !(estado.PausaEntreJugadas && primer_paso))
        return true;
    if (!EsperaContinuar())
        return false;
    estado.EligeCarta = false;
    HabilitaBoton(kBotonTutor, false);
    estado.SerieActual = estado.SerieEnJuego;
    return true;
}

// The caption is that of the first serie, whichever sings: on purpose.
void Canta() {
    constexpr Integer kPrimeraSerie = 1, kParpadeos = 3;
    const Integer asiento = estado.JugadorActual;
    if (series.NuevaBanca == 0)
        series.NuevaBanca = asiento;
    series.OrdenServido = true;
    estado.RotuloSerie(asiento, kPrimeraSerie) = "Siete y media";
    estado.ColorRotulo(asiento, kPrimeraSerie) = color::kVerde;
    estado.ParpadeoRotulo(asiento, kPrimeraSerie) = kParpadeos;
    RedibujarAsiento(asiento);
}

void AbreMedias() {
    Rotula("Abro mi juego", color::kBlanco, 2);
    AbreSerie();
}

// The seat plays the step by itself.
void OrdenaSolo() {
    Pausa(400);
    CambiaCuatroSolo();
    if (series.ConsejoDestapar)
        DestapaSerie(estado.JugadorActual, estado.SerieActual);
    series.OrdenServido = series.ConsejoServido;
    series.OrdenPedir = !series.ConsejoServido;
    if (series.OrdenPedir && series.ConsejoAbrir)
        AbreMedias();
    PulsaSolo(series.OrdenServido ? BotonDeSerie::Servido : BotonDeSerie::Carta);
    Pausa(280);
}

void DecidePaso() {
    if (EstaCantada(estado.JugadorActual, estado.SerieActual))
        Canta();
    DecideSiete();
    if (!series.OrdenPedir && !series.OrdenServido)
        OrdenaSolo();
    RetiraOfertas();
}

bool SonMedias(Integer asiento, Integer serie) {
    return estado.NumCartas(asiento, serie) == 2 &&
           estado.Mano(asiento, serie, 1, kValor) >= kPrimeraMedia &&
           estado.Mano(asiento, serie, 2, kValor) >= kPrimeraMedia;
}

bool OfreceAbrir() {
    const Integer asiento = estado.JugadorActual;
    return estado.SeriesJugador(asiento) < kMaximoSeries && !EsBanca() && TieneResto(asiento) &&
           SonMedias(asiento, estado.SerieActual);
}

// A card, covered unless the serie has a covered one already; the bank draws open.
void TomaCarta() {
    const Integer asiento = estado.JugadorActual;
    const bool tapada = !EsBanca() && LugarTapada(asiento, estado.SerieActual) == 0;
    RobarCartas(asiento, 1, tapada ? kTapadaSi : Integer{0});
    Pausa(100);
}

void SePasaElAsiento() {
    const Integer asiento = estado.JugadorActual;
    if (EsBanca()) {
        DiDe(asiento, "se pasa");
        estado.SerieTerminada(asiento, estado.SerieActual) = true;
        return RedibujarAsiento(asiento);
    }
    DestapaSerie(asiento, estado.SerieActual);
    PierdeAlPasarse();
}

void SePlanta() {
    DiDe(estado.JugadorActual, "se planta");
    if (!EsBanca())
        Pausa(300);
}

// One card; true when the serie goes on.
bool Pide() {
    const Integer asiento = estado.JugadorActual;
    const Integer serie = estado.SerieActual;
    TomaCarta();
    if (SePasa(asiento, serie)) {
        SePasaElAsiento();
        return false;
    }
    series.PuedeAbrir = OfreceAbrir();
    return !(EsBanca() && EsSieteYMedia(asiento, serie));
}

// SerieActual card by card. Who wants one from a deck that is used up stands. False when the match was left.
[[nodiscard]] bool JuegaSerie() {
    bool sigue = true;
    for (bool primer_paso = true; sigue; primer_paso = false) {
        EmpiezaPaso();
        if (!EsperaOrden(primer_paso))
            return false;
        DecidePaso();
        if (series.OrdenServido || estado.CartasEnMazo == 0) {
            SePlanta();
            return true;
        }
        sigue = Pide();
    }
    return true;
}

[[nodiscard]] bool JueganSusSeries(Integer asiento) {
    for (Integer serie = 1; serie <= estado.SeriesJugador(asiento); ++serie) {
        PonEnJuego(asiento, serie);
        if (!ApuestaEnSerie() || !JuegaSerie())
            return false;
    }
    return true;
}

} // namespace

bool TurnoDeAsiento() {
    const Integer asiento = estado.JugadorActual;
    series.PuedeCambiarCuatro = OfreceCambiarCuatro(asiento);
    if (!JueganSusSeries(asiento))
        return false;
    PonEnJuego(asiento, 1);
    ApagaNombre();
    RedibujarAsiento(asiento);
    return true;
}

bool TurnoDeLaBanca() {
    const Integer banca = estado.JugadorBanca;
    PonEnJuego(banca, 1);
    EnciendeTurno();
    apuestas.FaseApuesta = kFaseJuego;
    series.PuedeCambiarCuatro = OfreceCambiarCuatro(banca);
    CuentaManosVivas();
    DestapaSerie(banca, 1);
    if (estado.JugadoresEnMano > 1 && !JuegaSerie())
        return false;
    ApagaNombre();
    RetiraOfertas();
    return true;
}
