#include "games/blackjack/blackjack_invariants.h"

#include <algorithm>
#include <optional>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "core/game_state.h"
#include "core/invariant.h"
#include "games/common/bank_invariants.h"

namespace {

constexpr int kBanca = 2;

using Dinero = Tabla<int, 4>;

// What every seat must have when the settlement is over.
std::optional<Dinero> esperado;

struct Cuenta {
    int puntos = 0;
    int cartas = 0;
    bool pasada() const { return puntos > 21; }
};

// The points of the first cuantas cards.
Cuenta CuentaHasta(int asiento, int serie, int cuantas) {
    int suma = 0;
    bool hay_as = false;
    for (int lugar = 1; lugar <= cuantas; ++lugar) {
        const int valor = estado.Mano(asiento, serie, lugar, kValor);
        suma += std::min(valor, 10);
        hay_as = hay_as || valor == 1;
    }
    return {hay_as && suma + 10 <= 21 ? suma + 10 : suma, cuantas};
}

Cuenta CuentaDe(int asiento, int serie) {
    return CuentaHasta(asiento, serie, estado.NumCartas(asiento, serie));
}

int Puesto(int asiento, int serie, int fila) {
    return apuestas.Apuesta(asiento, serie, fila);
}

bool Doblada(int asiento, int serie) {
    return Puesto(asiento, serie, 3) > 0;
}

// The bank draws to 17 against whoever is left, and not at all against nobody.
void RevisaLaBanca() {
    const Cuenta banca = CuentaDe(kBanca, 1);
    bool hay_rival = false;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int serie = 1; serie <= 4; ++serie) {
            hay_rival = hay_rival || (asiento != kBanca && estado.NumCartas(asiento, serie) > 0 &&
                                      !CuentaDe(asiento, serie).pasada());
        }
    }
    if (!hay_rival)
        return Exige(banca.cartas == 1, "la banca pidió sin rivales");
    Exige(banca.puntos >= 17, "la banca se plantó con {}", banca.puntos);
    Exige(CuentaHasta(kBanca, 1, banca.cartas - 1).puntos < 17, "la banca pidió de más");
}

// A card more is only for who has not reached 21; a doubled hand has three; split Ases two, unless both are Ases.
void RevisaJugada(int asiento, int serie) {
    const Cuenta mano = CuentaDe(asiento, serie);
    if (mano.cartas == 0)
        return;
    Exige(mano.cartas >= 2, "el asiento {} se quedó con una carta", asiento);
    Exige(CuentaHasta(asiento, serie, mano.cartas - 1).puntos < 21, "el asiento {} pidió con 21",
          asiento);
    Exige(estado.SerieTerminada(asiento, serie) == mano.pasada(), "la serie {} de {} está mal",
          serie, asiento);
    const auto es_as = [&](int lugar) { return estado.Mano(asiento, serie, lugar, kValor) == 1; };
    if (estado.SeriesJugador(asiento) > 1 && es_as(1) && !es_as(2))
        Exige(mano.cartas == 2, "el asiento {} pidió sobre un As abierto", asiento);
    if (!Doblada(asiento, serie))
        return;
    const int con_dos = CuentaHasta(asiento, serie, 2).puntos;
    Exige(mano.cartas == 3 && con_dos >= 9 && con_dos <= 11, "el asiento {} dobló con {}", asiento,
          con_dos);
}

void RevisaDoblesYSeguros(int asiento, int serie) {
    const bool as_de_banca = estado.Mano(kBanca, 1, 1, kValor) == 1;
    const int apuesta = Puesto(asiento, serie, 2), doble = Puesto(asiento, serie, 3);
    const int seguro = Puesto(asiento, serie, 5);
    Exige(doble == 0 || (!as_de_banca && doble == apuesta), "el asiento {} dobla {} con {}",
          asiento, apuesta, doble);
    const bool pasada = CuentaDe(asiento, serie).pasada();
    Exige(seguro == 0 || (as_de_banca && (pasada || seguro == apuesta / 2)),
          "el asiento {} asegura {} con {}", asiento, apuesta, seguro);
}

// The settlement of one serie, on paper.
void Liquida(Dinero& dinero, int asiento, int serie) {
    const Cuenta banca = CuentaDe(kBanca, 1), mano = CuentaDe(asiento, serie);
    const auto paga = [&](int puntos) {
        const int pagados = std::min(puntos, dinero(kBanca));
        dinero(kBanca) -= pagados;
        dinero(asiento) += pagados;
    };
    const int seguro = Puesto(asiento, serie, 5);
    const bool natural_de_banca = banca.puntos == 21 && banca.cartas == 2;
    if (natural_de_banca)
        paga(2 * seguro);
    dinero(natural_de_banca ? asiento : kBanca) += seguro;
    if (mano.pasada())
        return;
    const int puesto = Puesto(asiento, serie, 2) + Puesto(asiento, serie, 3);
    const bool natural =
        mano.puntos == 21 && mano.cartas == 2 && estado.SeriesJugador(asiento) == 1;
    const bool le_vale = natural_de_banca && serie == 1; // a plain 21 against the other series
    const bool gana_banca =
        !banca.pasada() && ((le_vale && !natural) || banca.puntos > mano.puntos);
    const bool empate = !banca.pasada() && banca.puntos == mano.puntos && natural == le_vale;
    if (gana_banca) {
        dinero(kBanca) += puesto;
        return;
    }
    if (!empate)
        paga(natural ? puesto + puesto / 2 : puesto);
    dinero(asiento) += puesto;
}

Dinero LoQueHaDeQuedar() {
    Dinero dinero;
    for (int asiento = 1; asiento <= 4; ++asiento)
        dinero(asiento) = RestoDe(asiento);
    Integer asiento = estado.JugadorMano;
    for (int paso = 0; paso < 4 && asiento != kBanca; ++paso) {
        for (int serie = 1; serie <= estado.SeriesJugador(asiento); ++serie) {
            if (estado.NumCartas(asiento, serie) > 0)
                Liquida(dinero, asiento, serie);
        }
        SiguienteAsiento(asiento);
    }
    return dinero;
}

} // namespace

void RevisaPasoBlackJack() {
    RevisaDineroDeBanca();
    if (!esperado.has_value())
        return;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        Exige(RestoDe(asiento) == (*esperado)(asiento),
              "tras la mano el asiento {} tiene {} y le tocan {}", asiento, RestoDe(asiento),
              (*esperado)(asiento));
    }
    esperado.reset();
}

void RevisaManoBlackJack() {
    RevisaSeriesDeBanca();
    Exige(estado.JugadorBanca == kBanca && estado.SeriesJugador(kBanca) == 1,
          "la banca es del asiento 2");
    RevisaLaBanca();
    for (const int asiento : {1, 3, 4}) {
        for (int serie = 1; serie <= 4; ++serie) {
            RevisaJugada(asiento, serie);
            RevisaDoblesYSeguros(asiento, serie);
        }
    }
    esperado = LoQueHaDeQuedar();
}

void RevisaPartidaBlackJack(int /*manos*/) {
    RevisaRegistrosDeBanca();
    int ganado = 0;
    for (int juego = 1; juego <= estado.JuegosJugados; ++juego)
        ganado += estado.Juegos(juego).Total;
    constexpr int kRegistros = 1000; // older ones are let go
    Exige(estado.JuegosJugados == kRegistros || RestoDe(kBanca) == estado.RestoInicial + ganado,
          "la banca ganó {} y tiene {}", ganado, RestoDe(kBanca));
    int con_fondos = 0;
    for (const int asiento : {1, 3, 4})
        con_fondos += RestoDe(asiento) > 0 ? 1 : 0;
    Exige((RestoDe(kBanca) == 0) != (con_fondos == 0), "la partida acabó con fondos en la mesa");
    Exige((estado.GanadorPartida == kBanca) == (con_fondos == 0), "gana el asiento {}",
          estado.GanadorPartida);
}
