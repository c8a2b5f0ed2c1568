#include "games/sieteymedia/sieteymedia_invariants.h"

#include <algorithm>
#include <string>
#include <vector>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "core/game_state.h"
#include "core/invariant.h"
#include "core/text.h"
#include "games/common/bank_invariants.h"
#include "games/common/series_state.h"

namespace {

// Points are counted in halves here, so that no fraction is about.
constexpr int kJusto = 15;
constexpr int kPrimeraMedia = 10;
constexpr int kSeries = 4;

// The money and the bank that the settlement of a hand leads to.
struct Saldo {
    Tabla<int, 4> resto;
    int banca = 0;
};

// Of the hand that was looked at last; banca 0 for none.
Saldo saldo;

int Valor(int asiento, int serie, int lugar) {
    return estado.Mano(asiento, serie, lugar, kValor);
}

int Medios(int asiento, int serie) {
    int medios = 0;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar) {
        const int valor = Valor(asiento, serie, lugar);
        medios += valor >= kPrimeraMedia ? 1 : 2 * valor;
    }
    return medios;
}

int Tapadas(int asiento, int serie) {
    int tapadas = 0;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar)
        tapadas += estado.Mano(asiento, serie, lugar, kTapada) != 0 ? 1 : 0;
    return tapadas;
}

int Siguiente(int asiento) {
    return (asiento + estado.PasoSentido + 3) % 4 + 1;
}

std::vector<int> AntesDeLaBanca() {
    std::vector<int> asientos;
    for (int asiento = estado.JugadorMano; asiento != estado.JugadorBanca;
         asiento = Siguiente(asiento))
        asientos.push_back(asiento);
    return asientos;
}

// Each card of the deck is in one hand or still to deal.
void RevisaCartas() {
    Tabla<int, 4, 12> veces;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int serie = 1; serie <= kSeries; ++serie) {
            for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar)
                ++veces(estado.Mano(asiento, serie, lugar, kPalo), Valor(asiento, serie, lugar));
        }
    }
    for (int i = 0; i < estado.CartasEnMazo; ++i)
        ++veces(estado.Baraja(estado.PosicionMazo + i, 1),
                estado.Baraja(estado.PosicionMazo + i, 2));
    for (int palo = kOros; palo <= kBastos; ++palo) {
        for (int valor = 1; valor <= 12; ++valor) {
            Exige(veces(palo, valor) == (estado.ValorEnBaraja(valor) ? 1 : 0),
                  "la carta {} de palo {} está {} veces", valor, palo, veces(palo, valor));
        }
    }
}

void RevisaApuestas() {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int serie = 1; serie <= kSeries; ++serie) {
            Exige(ApuestaTotal(asiento, serie) <= estado.ApuestaMaxima,
                  "el asiento {} apuesta {} en la serie {}", asiento, ApuestaTotal(asiento, serie),
                  serie);
        }
    }
    Exige(RestoDe(kBote) == 0, "no hay bote");
}

void RevisaSerie(int asiento, int serie) {
    const bool pasada = Medios(asiento, serie) > kJusto;
    Exige(estado.NumCartas(asiento, serie) > 0, "el asiento {} no tiene serie {}", asiento, serie);
    Exige(estado.SerieTerminada(asiento, serie) == pasada,
          "la serie {} del asiento {} se pasa sin marca", serie, asiento);
    Exige(Tapadas(asiento, serie) <= (serie == 1 || pasada ? 0 : 1),
          "el asiento {} acaba con cartas tapadas", asiento);
    Exige(estado.SeriesJugador(asiento) == 1 || Valor(asiento, serie, 1) >= kPrimeraMedia,
          "la serie {} del asiento {} no empieza por una media", serie, asiento);
}

void RevisaAsientos() {
    for (const int asiento : AntesDeLaBanca()) {
        if (estado.NumCartas(asiento, 1) == 0)
            continue;
        Exige(apuestas.RestoPrevio(asiento) > 0, "el asiento {} juega sin fondos", asiento);
        for (int serie = 1; serie <= estado.SeriesJugador(asiento); ++serie)
            RevisaSerie(asiento, serie);
        for (int serie = estado.SeriesJugador(asiento) + 1; serie <= kSeries; ++serie)
            Exige(estado.NumCartas(asiento, serie) == 0, "sobra una serie");
    }
}

bool TodosSePasaron() {
    return std::ranges::all_of(AntesDeLaBanca(), [](int asiento) {
        for (int serie = 1; serie <= estado.SeriesJugador(asiento); ++serie) {
            if (Medios(asiento, serie) <= kJusto && estado.NumCartas(asiento, serie) > 0)
                return false;
        }
        return true;
    });
}

void RevisaBanca() {
    const int banca = estado.JugadorBanca;
    Exige(estado.SeriesJugador(banca) == 1 && Tapadas(banca, 1) == 0, "la banca juega abierta");
    Exige(estado.SerieTerminada(banca, 1) == (Medios(banca, 1) > kJusto),
          "la banca se pasa sin marca");
    Exige(!TodosSePasaron() || estado.NumCartas(banca, 1) <= 1, "la banca pide contra nadie");
}

// Who has sung holds seven and a half; its first serie has been shown by now, sung or not.
void RevisaCantada() {
    if (series.NuevaBanca == 0)
        return;
    bool justa = false;
    for (int serie = 1; serie <= estado.SeriesJugador(series.NuevaBanca); ++serie) {
        justa = justa || (Medios(series.NuevaBanca, serie) == kJusto &&
                          Tapadas(series.NuevaBanca, serie) == 0);
    }
    Exige(justa && series.NuevaBanca != estado.JugadorBanca, "el asiento {} no ha cantado",
          series.NuevaBanca);
}

void Liquida(int asiento, int serie) {
    const int banca = estado.JugadorBanca;
    const int medios = Medios(asiento, serie);
    if (estado.NumCartas(asiento, serie) == 0 || medios > kJusto)
        return;
    const int apuesta = ApuestaTotal(asiento, serie);
    if (Medios(banca, 1) <= kJusto && Medios(banca, 1) >= medios) {
        saldo.resto(banca) += apuesta;
        return;
    }
    const int premio =
        std::min(asiento == series.NuevaBanca ? 2 * apuesta : apuesta, saldo.resto(banca));
    saldo.resto(banca) -= premio;
    saldo.resto(asiento) += premio + apuesta;
}

int BancaQueSigue() {
    const int banca = estado.JugadorBanca;
    const auto con_fondos =
        std::count_if(&saldo.resto(1), &saldo.resto(4) + 1, [](int resto) { return resto > 0; });
    if (con_fondos <= 1)
        return banca;
    if (series.NuevaBanca != 0 && Medios(banca, 1) != kJusto)
        return series.NuevaBanca;
    int siguiente = banca;
    while (saldo.resto(siguiente) == 0)
        siguiente = Siguiente(siguiente);
    return siguiente;
}

void HazSaldo() {
    for (int asiento = 1; asiento <= 4; ++asiento)
        saldo.resto(asiento) = RestoDe(asiento);
    for (const int asiento : AntesDeLaBanca()) {
        for (int serie = 1; serie <= estado.SeriesJugador(asiento); ++serie)
            Liquida(asiento, serie);
    }
    saldo.banca = BancaQueSigue();
}

// What a hand left is what the next one began with.
void RevisaSaldo() {
    if (saldo.banca == 0)
        return;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        Exige(apuestas.RestoPrevio(asiento) == saldo.resto(asiento),
              "al asiento {} le quedaban {} puntos y empezó con {}", asiento, saldo.resto(asiento),
              apuestas.RestoPrevio(asiento));
    }
    Exige(estado.JugadorBanca == saldo.banca, "la banca era del asiento {} y la tiene el {}",
          saldo.banca, estado.JugadorBanca);
}

// "", "3", "3 y 1/2", "Media" or "Se pasó".
bool EsPalabra(std::string palabra) {
    if (palabra.empty() || palabra == "Media" || palabra == "Se pasó")
        return true;
    const std::string y_media = " y 1/2";
    if (palabra.ends_with(y_media))
        palabra.erase(palabra.size() - y_media.size());
    return palabra.size() == 1 && palabra[0] >= '1' && palabra[0] <= '7';
}

void RevisaTextos(int n, int asiento) {
    const RegistroJuego& registro = estado.Juegos(n);
    int con_cartas = 0;
    for (const std::string& texto : {registro.Texto1(asiento), registro.Texto2(asiento)}) {
        for (const int columna : {1, 8}) {
            const std::string palabra = Recorta(Medio(texto, columna, 7));
            Exige(EsPalabra(palabra), "el registro {} dice «{}»", n, palabra);
            con_cartas += palabra.empty() ? 0 : 1;
        }
    }
    Exige(con_cartas == 0 || con_cartas == registro.Cifra(asiento),
          "el registro {} tiene {} series y dice {}", n, con_cartas, registro.Cifra(asiento));
}

} // namespace

void RevisaManoSiete() {
    RevisaSaldo();
    RevisaSeriesDeBanca();
    RevisaCartas();
    RevisaApuestas();
    RevisaAsientos();
    RevisaBanca();
    RevisaCantada();
    HazSaldo();
}

void RevisaPartidaSiete(int /*manos*/) {
    RevisaRegistrosDeBanca();
    for (int asiento = 1; asiento <= 4; ++asiento) {
        Exige(RestoDe(asiento) == saldo.resto(asiento), "al asiento {} le quedaban {} puntos",
              asiento, saldo.resto(asiento));
        Exige((RestoDe(asiento) > 0) == (asiento == estado.GanadorPartida),
              "sólo el ganador tiene fondos");
    }
    for (int n = 1; n <= estado.JuegosJugados; ++n) {
        for (int asiento = 1; asiento <= 4; ++asiento)
            RevisaTextos(n, asiento);
    }
    saldo = {};
}
