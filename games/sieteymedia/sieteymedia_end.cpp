#include "games/sieteymedia/sieteymedia_end.h"

#include <string>

#include "betting/chips.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "games/common/bank_hands.h"
#include "games/common/hands.h"
#include "games/common/money_hands.h"
#include "games/common/series.h"
#include "games/sieteymedia/sieteymedia_cards.h"
#include "games/sieteymedia/sieteymedia_serie.h"
#include "table/messages.h"

namespace {

constexpr Integer kTu = 4; // the seat that is spoken to in the second person, whoever plays it

bool HaySitioParaOtraBanca() {
    return CuentaConResto() > 1;
}

// "Tres", "Tres y media", "Media".
std::string PuntosDichos(Integer asiento, Integer serie) {
    if (SePasa(asiento, serie))
        return "Se ha pasado";
    const float puntos = PuntosSerie(asiento, serie);
    const int enteros = ParteEntera(puntos);
    const bool media = puntos != static_cast<float>(enteros);
    if (enteros == 0)
        return media ? "Media" : "";
    return estado.NombreNumero(enteros) + (media ? " y media" : "");
}

// "3", "3 y 1/2", "Media".
std::string PuntosApuntados(Integer asiento, Integer serie) {
    if (estado.NumCartas(asiento, serie) == 0)
        return "";
    if (SePasa(asiento, serie))
        return "Se pasó";
    const float puntos = PuntosSerie(asiento, serie);
    const int enteros = ParteEntera(puntos);
    const bool media = puntos != static_cast<float>(enteros);
    if (enteros == 0 && media)
        return "Media";
    return Numero(enteros) + (media ? " y 1/2" : "");
}

bool PorLiquidar(Integer asiento, Integer serie) {
    return estado.NumCartas(asiento, serie) > 0 && !SePasa(asiento, serie);
}

// A tie is the bank's.
bool GanaLaBanca(Integer asiento, Integer serie) {
    const Integer banca = estado.JugadorBanca;
    return !SePasa(banca, 1) && PuntosSerie(banca, 1) >= PuntosSerie(asiento, serie);
}

void Liquida(Integer asiento, Integer serie) {
    if (estado.SeriesJugador(asiento) > 1) {
        DestapaSerie(asiento, serie);
        Pausa(500);
    }
    if (GanaLaBanca(asiento, serie))
        PierdeLaSerie();
    else
        GanaLaSerie(PremioDe(asiento, serie));
}

void Cuenta(const std::string& texto, int lineas) {
    Pausa(500);
    Mensaje("Final de la mano", texto, lineas, 1);
}

void CuentaQueHaCantado(Integer asiento) {
    const std::string& nombre = estado.NombreJugador(asiento);
    Cuenta(asiento == kTu ? nombre + ", has cantado siete y media. Eres el nuevo jugador banca. "
                          : "Ha cantado siete y media " + nombre + "." + estado.SaltoLinea +
                                "Es el nuevo jugador banca",
           2);
}

void CuentaQueHaQuebrado(Integer asiento) {
    const std::string& nombre = estado.NombreJugador(asiento);
    Cuenta(asiento == kTu ? nombre + ", como el banquero se ha quedado sin fondos, eres el nuevo "
                                     "jugador banca. "
                          : "Como el banquero se ha quedado sin fondos, " + nombre +
                                " es el nuevo jugador banca.",
           4);
}

} // namespace

void BuscaNuevaBanca() {
    series.NuevaBanca = 0;
    for (const Integer asiento : AsientosAntesDeLaBanca()) {
        for (Integer serie = 1; serie <= estado.SeriesJugador(asiento); ++serie) {
            if (series.NuevaBanca == 0 && EstaCantada(asiento, serie))
                series.NuevaBanca = asiento;
        }
    }
}

Integer PremioDe(Integer asiento, Integer serie) {
    const int apuesta = ApuestaTotal(asiento, serie);
    return EnteroDe(asiento == series.NuevaBanca ? 2 * apuesta : apuesta);
}

void CambiaLaBanca() {
    const Integer banca = estado.JugadorBanca;
    series.CambiaBanca = false;
    if (!HaySitioParaOtraBanca())
        return;
    if (series.NuevaBanca != 0 && !EsSieteYMedia(banca, 1)) {
        series.CambiaBanca = true;
        CuentaQueHaCantado(series.NuevaBanca);
    } else if (!TieneResto(banca)) {
        series.CambiaBanca = true;
        series.NuevaBanca = SiguienteConResto(banca);
        CuentaQueHaQuebrado(series.NuevaBanca);
    }
}

bool CierreDeMano() {
    CierraElJuego();
    BuscaNuevaBanca();
    DestapaSerie(0, 1);
    if (!CuentaResultados(500, PuntosDichos))
        return false;
    LiquidaSeries(PorLiquidar, Liquida);
    CambiaLaBanca();
    RegistraSeries(PuntosApuntados);
    return EsperaOtraMano();
}
