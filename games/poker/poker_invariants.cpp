#include "games/poker/poker_invariants.h"

#include <algorithm>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "core/game_state.h"
#include "core/invariant.h"
#include "core/text.h"

namespace {

constexpr int kColumnasTexto1 = 17, kColumnasTexto2 = 15;

// A joker is 1 or 2 of its suit.
using PorCarta = Tabla<int, 5, 13>;

void Anota(PorCarta& veces, Integer palo, Integer valor) {
    ++veces(palo, palo == kComodin ? valor - 90 : valor);
}

PorCarta CuentaCartas() {
    PorCarta veces;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar)
            Anota(veces, estado.Mano(asiento, 1, lugar, kPalo),
                  estado.Mano(asiento, 1, lugar, kValor));
    }
    for (int i = 1; i <= estado.NumDescartes; ++i)
        Anota(veces, estado.Descartes(i, 1), estado.Descartes(i, 2));
    for (int i = 0; i < estado.CartasEnMazo; ++i)
        Anota(veces, estado.Baraja(estado.PosicionMazo + i, 1),
              estado.Baraja(estado.PosicionMazo + i, 2));
    return veces;
}

bool EstaEnElJuego(int palo, int valor) {
    return palo == kComodin ? valor <= estado.ComodinesBaraja : estado.ValorEnBaraja(valor);
}

void RevisaCartas() {
    const PorCarta veces = CuentaCartas();
    for (int palo = kOros; palo <= kComodin; ++palo) {
        for (int valor = 1; valor <= 13; ++valor) {
            Exige(veces(palo, valor) == (EstaEnElJuego(palo, valor) ? 1 : 0),
                  "la carta {} de palo {} está {} veces", valor, palo, veces(palo, valor));
        }
    }
}

void RevisaFichas() {
    int puntos = 0;
    int activos = 0;
    for (int asiento = 0; asiento <= 4; ++asiento) {
        for (int d = 1; d <= kDenominaciones; ++d)
            Exige(apuestas.Fichas(asiento, d) >= 0, "el asiento {} tiene menos que nada", asiento);
        puntos += RestoDe(asiento);
        activos += asiento > 0 && estado.EstadoJugador(asiento) == kActivado ? 1 : 0;
    }
    Exige(puntos == activos * estado.RestoInicial, "hay {} puntos en fichas, y no {}", puntos,
          activos * estado.RestoInicial);
}

// The ranks begin at 1 and leave none out; who holds no cards has none.
void RevisaPuestos() {
    Tabla<int, 4> cuantos;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const Integer puesto = apuestas.PuestoJugador(asiento);
        Exige((puesto > 0) == (estado.NumCartas(asiento, 1) > 0),
              "el puesto del asiento {} no va con sus cartas", asiento);
        ++cuantos(puesto);
    }
    Exige(cuantos(1) == apuestas.Ganadores && cuantos(1) > 0, "los ganadores están mal contados");
    for (int puesto = 2; puesto <= 4; ++puesto)
        Exige(cuantos(puesto) == 0 || cuantos(puesto - 1) > 0, "falta el puesto {}", puesto - 1);
}

void RevisaRegistro(int n) {
    const RegistroJuego& registro = estado.Juegos(n);
    Exige(registro.Total >= 0, "el bote del registro {} es negativo", n);
    for (int asiento = 1; asiento <= 4; ++asiento) {
        Exige(Longitud(registro.Texto1(asiento)) <= kColumnasTexto1 &&
                  Longitud(registro.Texto2(asiento)) <= kColumnasTexto2,
              "los textos del registro {} no caben", n);
        Exige((registro.Marcas(asiento, 1) > 0) == !registro.Texto2(asiento).empty(),
              "el registro {} da puesto a quien no tiene cartas", n);
    }
}

} // namespace

void RevisaPasoPoker() {
    RevisaFichas();
    if (estado.ManoEnCurso && !estado.RepartoEnCurso)
        RevisaCartas();
}

void RevisaManoPoker() {
    RevisaFichas();
    RevisaCartas();
    RevisaPuestos();
    int premios = 0;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const Integer cartas = estado.NumCartas(asiento, 1);
        Exige(cartas == 0 || cartas == 5, "el asiento {} acaba con {} cartas", asiento, cartas);
        Exige(apuestas.PremioJugador(asiento) >= 0, "el asiento {} paga por ganar", asiento);
        premios += apuestas.PremioJugador(asiento);
    }
    Exige(premios == RestoDe(kBote), "los premios suman {} y el bote {}", premios, RestoDe(kBote));
}

void RevisaPartidaPoker(int /*manos*/) {
    int con_resto = 0;
    for (int asiento = 1; asiento <= 4; ++asiento)
        con_resto += RestoDe(asiento) > 0 ? 1 : 0;
    Exige(con_resto == 1 && RestoDe(estado.GanadorPartida) > 0 && RestoDe(kBote) == 0,
          "no lo tiene todo el ganador");
    for (int n = 1; n <= estado.JuegosJugados; ++n)
        RevisaRegistro(n);
}
