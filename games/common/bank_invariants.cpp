#include "games/common/bank_invariants.h"

#include <string>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/invariant.h"
#include "core/text.h"
#include "games/common/series.h"

namespace {

int EnJuego() {
    int puntos = 0;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int serie = 1; serie <= kMaximoSeries; ++serie)
            puntos += ApuestaTotal(asiento, serie);
    }
    return puntos;
}

void RevisaFichas() {
    for (const Integer fichas : apuestas.Fichas)
        Exige(fichas >= 0, "alguien tiene {} fichas", fichas);
    for (const Integer puntos : apuestas.Apuesta)
        Exige(puntos >= 0, "alguien apuesta {} puntos", puntos);
}

// Every card as often as the decks on the table have it: those of a shoe that was mixed in the middle of a hand, too.
void RevisaCartas() {
    Tabla<int, 4, 13> veces;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int serie = 1; serie <= kMaximoSeries; ++serie) {
            for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar) {
                const Integer palo = estado.Mano(asiento, serie, lugar, kPalo);
                const Integer valor = estado.Mano(asiento, serie, lugar, kValor);
                Exige(palo >= kOros && palo <= kBastos && valor >= 1 && valor <= 13 &&
                          estado.ValorEnBaraja(valor),
                      "el asiento {} tiene la carta {} de palo {}", asiento, valor, palo);
                ++veces(palo, valor);
            }
        }
    }
    for (const int cuantas : veces)
        Exige(cuantas <= 2 * estado.MazosBaraja, "una carta está {} veces en la mesa", cuantas);
}

void RevisaSerie(int asiento, int serie) {
    const bool es_suya = serie <= estado.SeriesJugador(asiento);
    const bool hay_cartas = estado.NumCartas(asiento, serie) > 0;
    Exige(es_suya || !hay_cartas, "el asiento {} tiene cartas en la serie {}", asiento, serie);
    Exige(hay_cartas || ApuestaTotal(asiento, serie) == 0,
          "el asiento {} apuesta sin cartas en la serie {}", asiento, serie);
    int fichas = 0;
    for (int i = 1; i <= apuestas.NumFichasPuestas(asiento, serie); ++i)
        fichas += ValorDe(apuestas.FichasPuestas(asiento, serie, i));
    Exige(fichas == ApuestaTotal(asiento, serie),
          "el asiento {} tiene {} puntos en fichas y {} apostados en la serie {}", asiento, fichas,
          ApuestaTotal(asiento, serie), serie);
    if (asiento != estado.JugadorBanca && estado.SerieTerminada(asiento, serie)) {
        Exige(apuestas.Apuesta(asiento, serie, kFaseApuestas) == 0 &&
                  apuestas.Apuesta(asiento, serie, kFaseDoblar) == 0,
              "el asiento {} se pasó en la serie {} y su apuesta sigue en la mesa", asiento, serie);
    }
}

void RevisaTextos(int juego) {
    constexpr int kAncho = 15;
    const RegistroJuego& registro = estado.Juegos(juego);
    for (int asiento = 1; asiento <= 4; ++asiento) {
        Exige(Longitud(registro.Texto1(asiento)) == kAncho &&
                  Longitud(registro.Texto2(asiento)) == kAncho,
              "el registro {} no cabe en sus columnas", juego);
        Exige(registro.Cifra(asiento) >= 1 && registro.Cifra(asiento) <= kMaximoSeries,
              "en el registro {} el asiento {} tiene {} series", juego, asiento,
              registro.Cifra(asiento));
    }
    for (const Integer marca : registro.Marcas)
        Exige(marca == 0 || marca == 1, "el registro {} tiene una marca {}", juego, marca);
}

} // namespace

void RevisaDineroDeBanca() {
    if (estado.JuegosJugados == 0)
        return;
    RevisaFichas();
    int habia = 0;
    int hay = EnJuego();
    for (int asiento = 0; asiento <= 4; ++asiento) {
        habia += apuestas.RestoPrevio(asiento);
        hay += RestoDe(asiento);
    }
    Exige(hay == habia, "había {} puntos y hay {}", habia, hay);
}

void RevisaSeriesDeBanca() {
    RevisaDineroDeBanca();
    RevisaCartas();
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int serie = 1; serie <= kMaximoSeries; ++serie)
            RevisaSerie(asiento, serie);
    }
}

void RevisaRegistrosDeBanca() {
    int hay = 0;
    for (int asiento = 0; asiento <= 4; ++asiento)
        hay += RestoDe(asiento);
    Exige(EnJuego() == 0, "queda dinero en juego");
    Exige(hay == estado.RestoInicial * estado.NumJugadores, "al final hay {} puntos", hay);
    for (int juego = 1; juego <= estado.JuegosJugados; ++juego)
        RevisaTextos(juego);
}
