#include "games/sieteymedia/sieteymedia_decision.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "games/common/bank_decision.h"
#include "games/common/series.h"
#include "games/common/trick_state.h"
#include "games/sieteymedia/sieteymedia_serie.h"

namespace {

constexpr Integer kCuatro = 4, kCinco = 5;

// The bluff: a strong bet on a weak card, and then to stand on it.
constexpr Integer kNivelFarolCuatro = 50, kNivelFarolCinco = 35;
constexpr int kAzarFarolCuatro = 8 * kAzarDecima;
constexpr std::array<int, 4> kAzarFarolCinco{0, 0, kAzarDecima,
                                             25 * kAzarCentesima}; // by character
constexpr Integer kNivelConserva = 65;
constexpr int kAzarConserva = 2 * kAzarDecima;
// The bet, in tenths of ApuestaMaxima: this much, and one more for each step of the card away from a Three.
constexpr int kCartaMenorApuesta = 3, kDecimosDeApuesta = 2;
constexpr Integer kFiguraComoCarta = 8;

// Where a seat stands: half a point higher for each step of character, lower when others have sung or by chance.
constexpr double kUmbral = 4.5, kMenosCantada = 0.5, kMenosAzar = 0.5;
constexpr Integer kNivelCantada = 60, kNivelUmbralAzar = 70;
constexpr int kAzarUmbral = 15 * kAzarCentesima;
// The peeks at the next card.
constexpr Integer kNivelEspiaServido = 90, kNivelEspiaPedir = 80;
constexpr int kAzarEspiaServido = 8 * kAzarDecima, kAzarEspiaPedir = 3 * kAzarDecima;
constexpr double kMinimoEspiaServido = 5;

// What the bank takes a hand for, when it does not see through it.
constexpr int kAzarVeTodo = 130;
constexpr double kPocoALaVista = 4, kMaximoEstimado = 7;

double Puntos(int asiento, int serie) {
    return PuntosSerie(asiento, serie);
}

// visita(asiento, serie) for every serie on the table, seats 1 to 4.
template <class V>
void RecorreSeries(V&& visita) {
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        for (Integer serie = 1; serie <= estado.SeriesJugador(asiento); ++serie)
            visita(asiento, serie);
    }
}

void AnotaCartasALaVista() {
    bazas.CartaJugada.Borra();
    RecorreSeries([](Integer asiento, Integer serie) {
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar) {
            if (estado.Mano(asiento, serie, lugar, kCara) == kDescubierta) {
                bazas.CartaJugada(estado.Mano(asiento, serie, lugar, kPalo),
                                  estado.Mano(asiento, serie, lugar, kValor)) = asiento;
            }
        }
    });
}

// A seven and a half lies open on the table, the own one and the bank's included. One that a later seat holds covered
// in its first serie takes that back, on purpose.
bool HayCantada() {
    bool cantada = false;
    RecorreSeries([&](Integer asiento, Integer serie) {
        if (Puntos(asiento, serie) != kSieteYMediaJusto)
            return;
        if (LugarTapada(asiento, serie) == 0)
            cantada = true;
        else if (serie == 1)
            cantada = false;
    });
    return cantada;
}

// A card that a bet is made on; every figure counts as an eight.
Integer CartaDeApuesta(const Criterio& quien) {
    return std::min(estado.Mano(quien.asiento, estado.SerieActual, 1, kValor), kFiguraComoCarta);
}

bool Farolea(const Criterio& quien, Integer carta) {
    if (carta == kCuatro) {
        return quien.caracter == kAgresivo && quien.nivel > kNivelFarolCuatro &&
               quien.azar < kAzarFarolCuatro && HayCantada();
    }
    return carta == kCinco && quien.nivel > kNivelFarolCinco &&
           quien.azar < kAzarFarolCinco.at(static_cast<std::size_t>(quien.caracter));
}

void DecideApuesta(const Criterio& quien) {
    const Integer carta = CartaDeApuesta(quien);
    series.ApuestaFuerte = series.ApuestaFuerte || Farolea(quien, carta);
    series.ConservaCuatro =
        series.ConservaCuatro ||
        (quien.nivel > kNivelConserva && carta == kCuatro && quien.azar < kAzarConserva);
    const int decimos = std::abs(carta - kCartaMenorApuesta) + kDecimosDeApuesta;
    const long long partes = decimos * kAzarEntero + quien.azar * quien.caracter;
    Integer apuesta = RedondeaCociente(partes * estado.ApuestaMaxima, 10LL * kAzarEntero);
    if (series.ApuestaFuerte)
        apuesta = RedondeaCociente(3LL * apuesta, 2);
    apuestas.ApuestaPropuesta = ApuestaAdmisible(apuesta, quien.resto);
}

// The next card to be dealt; nothing when the deck is used up.
double ValorDeLaSiguiente() {
    const Integer lugar = estado.PosicionMazo;
    if (lugar < 1 || lugar > estado.TotalBaraja)
        return 0;
    return estado.ValorCarta(estado.Baraja(lugar, 2)).Real();
}

double Umbral(const Criterio& quien, bool cantada) {
    const double por_caracter = quien.caracter / 2.0;
    double umbral = por_caracter + kUmbral;
    if (quien.nivel > kNivelCantada && cantada)
        umbral -= kMenosCantada;
    if (quien.nivel > kNivelUmbralAzar && quien.azar < kAzarUmbral)
        umbral -= por_caracter + kMenosAzar;
    return umbral;
}

bool SePlanta(const Criterio& quien, double puntos, bool cantada) {
    const double con_otra = puntos + ValorDeLaSiguiente();
    const bool se_pasa = con_otra > kSieteYMediaJusto;
    if (!se_pasa && quien.resto > 2 * quien.reserva && quien.caracter != kConservador &&
        quien.nivel > kNivelEspiaPedir && quien.azar < kAzarEspiaPedir) {
        return false;
    }
    if (se_pasa && quien.nivel > kNivelEspiaServido && quien.azar < kAzarEspiaServido &&
        puntos >= kMinimoEspiaServido) {
        return true;
    }
    return series.ApuestaFuerte || puntos >= Umbral(quien, cantada);
}

// Who asks turns a high covered card up, and keeps a low one hidden for the next to come open.
bool VuelveLaTapada(const Criterio& quien) {
    const Integer serie = estado.SerieActual;
    const int lugar = LugarTapada(quien.asiento, serie);
    if (lugar == 0 || series.ConservaCuatro)
        return false;
    // Twice the chance, two more and a third of the character.
    const Integer baja =
        RedondeaCociente(6 * quien.azar + (6 + quien.caracter) * kAzarEntero, 3LL * kAzarEntero);
    return estado.ValorCarta(estado.Mano(quien.asiento, serie, lugar, kValor)) > Currency(baja);
}

bool Canta(const Criterio& quien, double puntos, bool cantada) {
    return puntos == kSieteYMediaJusto && !cantada && quien.resto > quien.reserva &&
           7 * quien.azar < 2 * quien.caracter * kAzarEntero; // chance x 3.5 below the character
}

void DecideAsiento(const Criterio& quien) {
    const double puntos = Puntos(quien.asiento, estado.SerieActual);
    const bool cantada = HayCantada();
    series.ConsejoServido = SePlanta(quien, puntos, cantada);
    series.ConsejoDestapar =
        series.ConsejoServido ? Canta(quien, puntos, cantada) : VuelveLaTapada(quien);
    series.ConsejoAbrir =
        series.PuedeAbrir && 2 * quien.resto > quien.reserva && quien.Dado() <= quien.caracter;
}

double PuntosALaVista(int asiento, int serie) {
    Currency suma;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar) {
        if (estado.Mano(asiento, serie, lugar, kTapada) != kTapadaSi)
            suma += estado.ValorCarta(estado.Mano(asiento, serie, lugar, kValor));
    }
    return suma.Real();
}

// What the bank takes the hand for.
double Estima(const Criterio& banca, Integer asiento, Integer serie) {
    const double puntos = Puntos(asiento, serie);
    const double a_la_vista = PuntosALaVista(asiento, serie);
    const Integer caracter = estado.CaracterJugador(asiento);
    if (puntos == kSieteYMediaJusto && a_la_vista == kSieteYMediaJusto)
        return kSieteYMediaJusto;
    if (banca.azar * kAzarVeTodo < banca.nivel * kAzarEntero)
        return puntos;
    if (estado.NumCartas(asiento, serie) == 1)
        return caracter + 4;
    if (a_la_vista < kPocoALaVista)
        return caracter / 2.0 + 5;
    return std::min(caracter + a_la_vista, kMaximoEstimado);
}

// What the bank would gain if it stood. Each serie counts with the stake of the seat's SerieActual, which is the first
// in the bank's turn, and not with its own: on purpose.
int BalanceDeLaBanca(const Criterio& banca) {
    const double puntos = Puntos(banca.asiento, estado.SerieActual);
    int balance = 0;
    RecorreSeries([&](Integer asiento, Integer serie) {
        if (asiento == banca.asiento || estado.NumCartas(asiento, serie) == 0)
            return;
        const int apuesta = ApuestaTotal(asiento, estado.SerieActual);
        balance += puntos >= Estima(banca, asiento, serie) ? apuesta : -apuesta;
    });
    return balance;
}

// The bank stands once it is ahead; with money to spare it risks a card when somebody has sung.
void DecideBanca(const Criterio& banca) {
    series.ConsejoAbrir = false;
    series.ConsejoDestapar = false;
    series.ConsejoServido =
        BalanceDeLaBanca(banca) > 0 && !(banca.resto > 2 * banca.reserva && HayCantada());
}

} // namespace

void DecideSiete() {
    const Criterio quien = CriterioDelTurno();
    AnotaCartasALaVista();
    if (apuestas.FaseApuesta == kFaseApuestas)
        DecideApuesta(quien);
    else if (apuestas.FaseApuesta == kFaseJuego && quien.asiento == estado.JugadorBanca)
        DecideBanca(quien);
    else if (apuestas.FaseApuesta == kFaseJuego)
        DecideAsiento(quien);
}
