#include "games/poker/bet_choice.h"

#include <algorithm>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "games/poker/bet_reading.h"
#include "games/poker/opening_law.h"
#include "games/poker/poker_state.h"
#include "games/poker/rivals.h"

namespace {

constexpr int kPasa = 0, kSeRetira = -1;
// ActitudMesa of a cautious table; from the middling one on a weak hand may stay.
constexpr int kMesaCauta = 1, kMesaMedia = 2;
constexpr int kNivelQueSabe = 90; // above it a seat acts on who really has better

// The turn's number as a throw of a die with that many sides: 1 to lados.
int Dado(double lados, const LecturaApuesta& l) {
    return ParteEntera(lados * l.azar + 1);
}

// --- Nobody has bet yet

// No characters 1 to 3 have 0 for their mean; its factor stays, that is meant.
int AbreGrande(const LecturaApuesta& l) {
    constexpr double kAnteMesaCauta = 0.6, kAnteMesaSinCaracter = 0.8;
    int propuesta = Redondea(static_cast<double>(l.tope) / (Dado(2, l) + (4 - l.caracter) * 2));
    if (l.actitud == kMesaCauta)
        propuesta = Redondea(propuesta * kAnteMesaCauta);
    else if (l.actitud == 0)
        propuesta = Redondea(propuesta * kAnteMesaSinCaracter);
    return l.amenazas > 1 ? kPasa : propuesta;
}

int AbreMedia(const LecturaApuesta& l) {
    if (l.actitud == kMesaCauta && l.caracter == kConservador)
        return kPasa;
    return Redondea(static_cast<double>(l.tope) / (Dado(3, l) + (4 - l.caracter) * 3));
}

// The bluff: half of the limit, at a table that scares easily.
int AbreFloja(const LecturaApuesta& l) {
    const bool farol = l.actitud == kMesaCauta && l.caracter == kAgresivo && Dado(5, l) == 1;
    return farol ? Redondea(l.tope / 2.0) : kPasa;
}

// --- Somebody has bet

// Staying and more: the call, and so many times the call on top.
int Sube(double veces, const LecturaApuesta& l) {
    return Redondea((veces + 1) * l.llamada);
}

// Nobody is left who could answer, and the level is enough to see it.
bool SabeQueEstaSolo(const LecturaApuesta& l) {
    return l.fase == kFaseSegundaRonda && l.nivel > 90 - 15 * l.caracter && l.mejor_rival == 0;
}

// Someone really has better, and staying costs more than those parts of the limit or of the chips.
bool SabeQuePierde(const LecturaApuesta& l, double parte_tope, double parte_resto) {
    return l.nivel > kNivelQueSabe && l.por_encima > 0 &&
           (l.llamada > parte_tope * l.tope || l.llamada > parte_resto * RestoDe(l.asiento));
}

int SubePorCaracter(const LecturaApuesta& l) {
    if (l.caracter == kMedio && l.amenazas == 0)
        return Sube(l.actitud / 3.0 * l.azar, l);
    if (l.caracter == kAgresivo && l.amenazas <= 1)
        return Sube(l.actitud * (poker.MejorJugada(l.asiento) / 10.0) * l.azar, l);
    return l.llamada;
}

int RespondeGrande(const LecturaApuesta& l) {
    if (SabeQuePierde(l, 0.35, 0.30))
        return kSeRetira;
    return SabeQueEstaSolo(l) ? Sube(l.caracter * l.azar, l) : SubePorCaracter(l);
}

int RespondeMediaPrimera(const LecturaApuesta& l) {
    constexpr int kNivelPrudente = 80;
    const bool cara_sin_nada_puesto =
        l.actitud == kMesaCauta && l.puesto == 0 && (l.tope / 5.0 + 0.1) * l.caracter <= l.llamada;
    const bool medio_tope =
        l.caracter < kAgresivo && l.nivel > kNivelPrudente && l.tope / 2.0 <= l.llamada;
    return cara_sin_nada_puesto || medio_tope ? kSeRetira : l.llamada;
}

// An aggressive seat raises once more against a single cautious one, however strong it believes it.
bool AprietaAlCauto(const LecturaApuesta& l) {
    return l.caracter == kAgresivo && l.amenazas == 1 &&
           estado.CaracterJugador(l.ultima_amenaza) == kConservador && Dado(5, l) == 1;
}

int RespondeMediaSegunda(const LecturaApuesta& l) {
    if (SabeQuePierde(l, 0.15, 0.10))
        return kSeRetira;
    if (SabeQueEstaSolo(l))
        return Sube(l.caracter / 2.0 * l.azar, l);
    if (l.amenazas > 1)
        return kSeRetira;
    return AprietaAlCauto(l) ? 2 * apuestas.MaximaApuesta : l.llamada;
}

int RespondeMedia(const LecturaApuesta& l) {
    return l.fase == kFasePrimeraRonda ? RespondeMediaPrimera(l) : RespondeMediaSegunda(l);
}

// Where the thin call and the bluff both hold, the call comes first.
int RespondeFloja(const LecturaApuesta& l) {
    const bool iguala_por_poco =
        l.actitud >= kMesaMedia && l.fase == kFasePrimeraRonda && Dado(9.0 / l.caracter, l) == 1;
    if (iguala_por_poco)
        return l.llamada;
    const bool farol = l.actitud <= kMesaMedia && l.caracter == kAgresivo && Dado(8, l) == 1;
    return farol ? 2 * apuestas.MaximaApuesta : kSeRetira;
}

int Propone(const LecturaApuesta& l) {
    const bool abre = apuestas.MaximaApuesta == 0;
    switch (l.fuerza) {
    case Fuerza::Grande:
        return abre ? AbreGrande(l) : RespondeGrande(l);
    case Fuerza::Media:
        return abre ? AbreMedia(l) : RespondeMedia(l);
    case Fuerza::Floja:
        return abre ? AbreFloja(l) : RespondeFloja(l);
    case Fuerza::Ninguna:
        break;
    }
    return kPasa;
}

// --- The shape of a proposal

// A raise of under a quarter falls back to a fifth: that is meant.
int SubidaConCuerpo(int propuesta, const LecturaApuesta& l) {
    constexpr double kSubidaEscasa = 1.25, kSubidaCorta = 1.2;
    const int nueva = l.puesto + propuesta;
    const int maxima = apuestas.MaximaApuesta;
    if (nueva > maxima && nueva < kSubidaEscasa * maxima)
        return Redondea(kSubidaCorta * maxima - l.puesto);
    return propuesta;
}

int SinPicos(int propuesta) {
    constexpr int kDesde = 15, kMultiplo = 5;
    return propuesta > kDesde ? propuesta - propuesta % kMultiplo : propuesta;
}

// Nobody bets more than the richest rival can meet; without rivals there is no such limit.
int HastaElRivalMasRico(int propuesta, int total) {
    int alcance = 0;
    bool hay_rival = false;
    for (Integer otro = 1; otro <= 4; ++otro) {
        if (!EsRival(otro))
            continue;
        hay_rival = true;
        alcance = std::max(alcance, ApuestaTotal(otro, kSeriePoker) + RestoDe(otro));
    }
    return hay_rival ? std::min(propuesta, alcance - total) : propuesta;
}

int DentroDeLimites(int propuesta, const LecturaApuesta& l) {
    const int total = ApuestaTotal(l.asiento, kSeriePoker);
    const int propia =
        std::min({propuesta, l.tope, estado.ApuestaMaxima - total, int{RestoDe(l.asiento)}});
    return HastaElRivalMasRico(propia, total);
}

// Against rivals that are all-in nobody raises. The points to add are held against the highest bet, not the seat's
// total: that is meant.
int SinSubirAQuienNoPuede(int propuesta) {
    return RivalesSinResto() ? std::min<int>(propuesta, apuestas.MaximaApuesta) : propuesta;
}

} // namespace

void CalculaApuesta() {
    const LecturaApuesta lectura = LeeApuesta();
    int propuesta = SubidaConCuerpo(Propone(lectura), lectura);
    propuesta = DentroDeLimites(SinPicos(propuesta), lectura);
    propuesta = SinSubirAQuienNoPuede(propuesta);
    apuestas.ApuestaPropuesta = LeyAperturaCumplida() ? EnteroDe(propuesta) : Integer{kPasa};
}
