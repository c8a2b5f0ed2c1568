#include "games/common/bank_hands.h"

#include <algorithm>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "core/session_state.h"
#include "core/text.h"
#include "games/common/hands.h"
#include "games/common/series.h"
#include "platform/canvas.h"
#include "table/announcements.h"
#include "table/bet_board.h"
#include "table/button_column.h"
#include "table/messages.h"
#include "table/seat_drawing.h"

namespace {

constexpr int kAsientos = 4;
// A text of the record: two series, each in a column of its own.
constexpr int kAnchoTexto = 15, kAnchoSerie = 7;
// How DevuelveApuesta is told which chips go.
constexpr Integer kTodo = 1, kSinSeguro = 3;

std::vector<Integer> RuedaHasta(Integer fin) {
    std::vector<Integer> asientos;
    Integer asiento = estado.JugadorMano;
    for (int paso = 0; paso < kAsientos && asiento != fin; ++paso) {
        asientos.push_back(asiento);
        SiguienteAsiento(asiento);
    }
    return asientos;
}

std::string RenglonDe(Integer asiento, Integer serie, const std::string& palabra) {
    const bool varias = estado.SeriesJugador(asiento) > 1;
    return estado.NombreJugador(asiento) + (varias ? " / " + Numero(serie) : "") + " : " + palabra +
           estado.SaltoLinea;
}

std::string TextosDeSeries(Integer asiento, Integer primera, Palabra palabra) {
    std::string texto(kAnchoTexto, ' ');
    for (Integer i = 0; i < 2; ++i) {
        const auto serie = static_cast<Integer>(primera + i);
        if (estado.NumCartas(asiento, serie) > 0)
            Superpone(texto, 1 + i * kAnchoSerie, kAnchoSerie, palabra(asiento, serie));
    }
    return texto;
}

std::string EnJuego() {
    return Numero(ApuestaTotal(estado.JugadorActual, estado.SerieActual));
}

void Recupera() {
    DevuelveApuesta(estado.JugadorActual, estado.JugadorActual, kTodo);
}

void ReagrupaFichas(Integer asiento) {
    AsignarResto(asiento, RestoDe(asiento));
    RedibujarAsiento(asiento);
}

} // namespace

std::vector<Integer> AsientosAntesDeLaBanca() {
    return RuedaHasta(estado.JugadorBanca);
}

std::vector<Integer> AsientosEnRueda() {
    return RuedaHasta(0);
}

bool JuegaUnaPersona() {
    return estado.ControlJugador(estado.JugadorActual) == kManual;
}

void PonEnJuego(Integer asiento, Integer serie) {
    const Integer anterior = estado.JugadorActual;
    estado.JugadorActual = asiento;
    estado.SerieActual = serie;
    estado.SerieEnJuego = serie;
    // Out of its turn a seat shows its last serie, whichever was looked at in it.
    if (anterior != 0 && anterior != asiento && estado.SeriesJugador(anterior) > 1)
        RedibujarAsiento(anterior);
}

void Rotula(const std::string& texto, Long color, Integer parpadeos) {
    const Integer asiento = estado.JugadorActual;
    const Integer serie = estado.SerieActual;
    estado.RotuloSerie(asiento, serie) = texto;
    estado.ColorRotulo(asiento, serie) = color;
    estado.ParpadeoRotulo(asiento, serie) = parpadeos;
    RedibujarAsiento(asiento);
}

void AnunciaSerie() {
    Rotula("Serie " + Numero(estado.SerieActual), color::kCian, 1);
}

void ApuntaBanca() {
    estado.Juegos(estado.JuegosJugados).Inicio = estado.NombreJugador(estado.JugadorBanca);
}

void PierdeAlPasarse() {
    const Integer asiento = estado.JugadorActual;
    DiDe(asiento, "se pasa");
    DestellaBust(asiento);
    estado.SerieTerminada(asiento, estado.SerieActual) = true;
    DevuelveApuesta(asiento, estado.JugadorBanca, kSinSeguro);
}

void CuentaManosVivas() {
    estado.JugadoresEnMano = 0;
    for (int asiento = 1; asiento <= kAsientos; ++asiento) {
        for (int serie = 1; serie <= kMaximoSeries; ++serie) {
            if (estado.NumCartas(asiento, serie) > 0 && !estado.SerieTerminada(asiento, serie))
                ++estado.JugadoresEnMano;
        }
    }
}

void CierraElJuego() {
    apuestas.FaseApuesta = kFaseFinal;
    for (const int boton : {kBotonSalir, kBotonNueva, kBotonNormas, kBotonEstadis})
        HabilitaBoton(boton, false);
    estado.ManoEnCurso = false;
}

bool CuentaResultados(int pausa, Palabra palabra) {
    std::string texto;
    int lineas = 0;
    for (const Integer asiento : AsientosEnRueda()) {
        for (Integer serie = 1; serie <= estado.SeriesJugador(asiento); ++serie) {
            if (PuntosSerie(asiento, serie) == 0)
                continue;
            texto += RenglonDe(asiento, serie, palabra(asiento, serie));
            ++lineas;
        }
    }
    Pausa(pausa);
    Mensaje("Final de la mano", texto, lineas, 1);
    return PartidaSigue();
}

void LiquidaSeries(bool (*toca)(Integer asiento, Integer serie),
                   void (*liquida)(Integer asiento, Integer serie)) {
    for (const Integer asiento : AsientosAntesDeLaBanca()) {
        for (Integer serie = 1; serie <= estado.SeriesJugador(asiento); ++serie) {
            if (!toca(asiento, serie))
                continue;
            PonEnJuego(asiento, serie);
            if (estado.SeriesJugador(asiento) > 1)
                AnunciaSerie();
            liquida(asiento, serie);
            ReagrupaFichas(asiento);
        }
    }
}

void PierdeLaSerie() {
    DiDe(estado.JugadorActual, "pierde " + EnJuego());
    DevuelveApuesta(estado.JugadorActual, estado.JugadorBanca, kTodo);
}

void RecuperaLaSerie() {
    DiDe(estado.JugadorActual, "recupera " + EnJuego());
    Recupera();
}

void GanaLaSerie(Integer premio) {
    const Integer asiento = estado.JugadorActual;
    const Integer pagado = std::min(premio, RestoDe(estado.JugadorBanca));
    DiDe(asiento, "gana " + Numero(pagado));
    PagaDeBanca(asiento, pagado);
    Recupera();
    estado.Juegos(estado.JuegosJugados).Marcas(asiento, estado.SerieActual) = 1;
}

void RegistraSeries(Palabra palabra) {
    RegistroJuego& registro = estado.Juegos(estado.JuegosJugados);
    for (Integer asiento = 1; asiento <= kAsientos; ++asiento) {
        registro.Texto1(asiento) = TextosDeSeries(asiento, 1, palabra);
        registro.Texto2(asiento) = TextosDeSeries(asiento, 3, palabra);
        registro.Cifra(asiento) = estado.SeriesJugador(asiento);
    }
    const Integer banca = estado.JugadorBanca;
    registro.Total = EnteroDe(RestoDe(banca) - apuestas.RestoPrevio(banca));
    registro.Marcas(banca, 1) = registro.Total > 0 ? 1 : 0;
    ApuntaMano();
}
