#include "games/poker/bet_reading.h"

#include <algorithm>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "games/poker/hand_reading.h"
#include "games/poker/poker_state.h"
#include "games/poker/rivals.h"
#include "games/poker/seat_level.h"

namespace {

constexpr Integer kPrimeraBarajaCorta = 4; // CartasBaraja from here on: 40 cards or fewer
constexpr Integer kNivelDeProyectos = 80;  // above it a draw counts as strength

bool BarajaCorta() {
    return estado.CartasBaraja >= kPrimeraBarajaCorta;
}

Integer ApuestaEnFase(Integer asiento, Integer fase) {
    return apuestas.Apuesta(asiento, kSeriePoker, fase);
}

// Only half of the limit can go in the first round, unless somebody has bet more already.
int TopePrimeraRonda(Integer asiento) {
    const Long mitad =
        ParteEntera((estado.ApuestaMaxima - ApuestaEnFase(asiento, kFaseSalida)) / 2.0);
    return std::max<int>(mitad - ApuestaEnFase(asiento, kFasePrimeraRonda), apuestas.MaximaApuesta);
}

int TopeSegundaRonda(Integer asiento) {
    return estado.ApuestaMaxima - ApuestaTotal(asiento, kSeriePoker);
}

// The seat's own category is the one of its last analysis: its hand is read only afterwards.
void MiraManosRivales(LecturaApuesta& lectura) {
    for (Integer otro = 1; otro <= 4; ++otro) {
        if (!EsRival(otro))
            continue;
        AnalizaJugada(otro);
        const Integer jugada = poker.MejorJugada(otro);
        lectura.mejor_rival = std::max(lectura.mejor_rival, jugada);
        if (jugada > poker.MejorJugada(lectura.asiento))
            ++lectura.por_encima;
    }
}

// A draw that makes up for an empty hand, by character.
enum class Exigencia { Cualquiera, Buena, BuenaEnBarajaLarga }; // Buena: Calidad 1
struct ProyectoQueVale {
    Integer caracter;
    Integer EstadoPoker::*proyecto;
    Exigencia exigencia;
};
constexpr ProyectoQueVale kProyectosQueValen[] = {
    {kMedio, &EstadoPoker::ProyEscalColor, Exigencia::Buena},
    {kMedio, &EstadoPoker::ProyColor, Exigencia::Buena},
    {kAgresivo, &EstadoPoker::ProyEscalColor, Exigencia::Cualquiera},
    {kAgresivo, &EstadoPoker::ProyColor, Exigencia::Cualquiera},
    {kAgresivo, &EstadoPoker::ProyEscalera, Exigencia::BuenaEnBarajaLarga},
};

bool Vale(const LecturaApuesta& lectura, const ProyectoQueVale& fila) {
    const RegistroJugada& proyecto = poker.Jugadas(lectura.asiento, poker.*fila.proyecto);
    if (fila.caracter != lectura.caracter || proyecto.Activa == 0)
        return false;
    const bool pide_buena = fila.exigencia == Exigencia::Buena ||
                            (fila.exigencia == Exigencia::BuenaEnBarajaLarga && !BarajaCorta());
    return !pide_buena || proyecto.Calidad == 1;
}

Fuerza FuerzaPrimeraRonda(const LecturaApuesta& lectura) {
    const Integer jugada = poker.MejorJugada(lectura.asiento);
    if (jugada > (BarajaCorta() ? poker.Figuras : poker.DoblePareja))
        return Fuerza::Grande;
    if (jugada > poker.CartaMayor)
        return Fuerza::Media;
    const bool con_proyecto = lectura.nivel > kNivelDeProyectos &&
                              std::ranges::any_of(kProyectosQueValen, [&](const auto& fila) {
                                  return Vale(lectura, fila);
                              });
    return con_proyecto ? Fuerza::Media : Fuerza::Floja;
}

Fuerza FuerzaSegundaRonda(const LecturaApuesta& lectura) {
    const Integer jugada = poker.MejorJugada(lectura.asiento);
    const bool agresivo = lectura.caracter == kAgresivo;
    if (jugada > poker.Trio)
        return Fuerza::Grande;
    if (jugada > poker.Pareja)
        return jugada == poker.Trio && agresivo ? Fuerza::Grande : Fuerza::Media;
    return jugada == poker.Pareja && agresivo ? Fuerza::Media : Fuerza::Floja;
}

// The part of the deciding seat's limit from which a bet in the second round is heavy for its maker's character.
struct ApuestaFuerte {
    Integer caracter;
    double parte;
    bool desde_ella; // that part itself is heavy already
};
constexpr ApuestaFuerte kApuestasFuertes[] = {
    {kConservador, 0.05, false}, {kMedio, 0.15, true}, {kAgresivo, 0.30, true}};

bool HaApostadoFuerte(Integer asiento, int tope) {
    return std::ranges::any_of(kApuestasFuertes, [&](const ApuestaFuerte& fila) {
        const Integer apuesta = ApuestaEnFase(asiento, kFaseSegundaRonda);
        const double umbral = fila.parte * tope;
        return fila.caracter == estado.CaracterJugador(asiento) &&
               (fila.desde_ella ? apuesta >= umbral : apuesta > umbral);
    });
}

void CuentaAmenazas(LecturaApuesta& lectura) {
    for (Integer otro = 1; otro <= 4; ++otro) {
        if (!EsRival(otro))
            continue;
        const Integer creida = HaApostadoFuerte(otro, lectura.tope) ? poker.JugadaCreidaMax(otro)
                                                                    : poker.JugadaCreidaMin(otro);
        if (creida <= poker.MejorJugada(lectura.asiento))
            continue;
        ++lectura.amenazas;
        lectura.ultima_amenaza = otro;
    }
}

void LeePrimeraRonda(LecturaApuesta& lectura) {
    lectura.tope = TopePrimeraRonda(lectura.asiento);
    AnalizaJugada(lectura.asiento);
    lectura.fuerza = FuerzaPrimeraRonda(lectura);
}

void LeeSegundaRonda(LecturaApuesta& lectura) {
    lectura.tope = TopeSegundaRonda(lectura.asiento);
    MiraManosRivales(lectura);
    AnalizaJugada(lectura.asiento);
    lectura.fuerza = FuerzaSegundaRonda(lectura);
    CuentaAmenazas(lectura);
}

} // namespace

LecturaApuesta LeeApuesta() {
    const Integer asiento = estado.JugadorActual;
    LecturaApuesta lectura{.asiento = asiento,
                           .fase = apuestas.FaseApuesta,
                           .caracter = estado.CaracterJugador(asiento),
                           .nivel = NivelQueDecide(asiento),
                           .azar = EnDecimal(estado.AzarTurno),
                           .tope = poker.TopeApuesta,
                           .puesto = ApuestaEnFase(asiento, apuestas.FaseApuesta),
                           .actitud = ActitudMesa()};
    lectura.llamada = apuestas.MaximaApuesta - lectura.puesto;
    if (lectura.fase == kFasePrimeraRonda)
        LeePrimeraRonda(lectura);
    else if (lectura.fase == kFaseSegundaRonda)
        LeeSegundaRonda(lectura);
    poker.TopeApuesta = EnteroDe(lectura.tope);
    return lectura;
}
