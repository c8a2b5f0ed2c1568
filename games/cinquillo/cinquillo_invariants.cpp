#include "games/cinquillo/cinquillo_invariants.h"

#include <string>

#include "core/game_state.h"
#include "core/invariant.h"
#include "games/common/trick_state.h"

namespace {

// By palo and valor.
using PorCarta = Tabla<int, 4, 12>;

// How often each card of the Spanish deck is somewhere: in a hand or on the table.
PorCarta CuentaCartas() {
    PorCarta veces;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar)
            ++veces(estado.Mano(asiento, 1, lugar, kPalo), estado.Mano(asiento, 1, lugar, kValor));
    }
    for (int palo = kOros; palo <= kBastos; ++palo) {
        for (int valor = 1; valor <= 12; ++valor)
            veces(palo, valor) += bazas.CartaJugada(palo, valor) != 0 ? 1 : 0;
    }
    return veces;
}

void RevisaCartas() {
    const PorCarta veces = CuentaCartas();
    for (int palo = kOros; palo <= kBastos; ++palo) {
        for (int valor = 1; valor <= 12; ++valor) {
            const int debidas = estado.ValorEnBaraja(valor) ? 1 : 0;
            Exige(veces(palo, valor) == debidas, "la carta {} de palo {} está {} veces", valor,
                  palo, veces(palo, valor));
        }
    }
}

// Plays the log of the hand again.
class Repeticion {
public:
    Repeticion() {
        for (int asiento = 1; asiento <= 4; ++asiento) {
            for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar)
                Da(asiento, estado.Mano(asiento, 1, lugar, kPalo),
                   estado.Mano(asiento, 1, lugar, kValor));
            for (int ronda = 1; ronda <= estado.NumBaza; ++ronda) {
                if (Palo(asiento, ronda) != 0)
                    Da(asiento, Palo(asiento, ronda), Valor(asiento, ronda));
            }
        }
    }

    void Juega() {
        for (int asiento = 1; asiento <= 4; ++asiento)
            Exige(cartas_(asiento) == estado.CartasReparto, "el asiento {} no tuvo diez cartas",
                  asiento);
        int asiento = estado.JugadorMano;
        for (int ronda = 1; ronda <= estado.NumBaza; ++ronda) {
            for (int turno = 1; turno <= 4; ++turno) {
                Turno(asiento, ronda);
                if (cartas_(asiento) == 0)
                    return RevisaFinal(asiento, ronda);
                asiento = (asiento + estado.PasoSentido + 3) % 4 + 1;
            }
        }
        Exige(false, "nadie se quedó sin cartas");
    }

private:
    PorCarta de_;            // the seat that holds it, 0 once laid
    PorCarta tendida_;       // 1 once laid
    Tabla<int, 4> cartas_{}; // by seat

    static int Palo(int asiento, int ronda) {
        return bazas.RegistroBazas(asiento + kFilaPalo, ronda);
    }
    static int Valor(int asiento, int ronda) {
        return bazas.RegistroBazas(asiento + kFilaValor, ronda);
    }

    void Da(int asiento, int palo, int valor) {
        de_(palo, valor) = asiento;
        ++cartas_(asiento);
    }

    // A 5, or a card beside one that lies there toward the 5.
    bool SePuede(int palo, int valor) const {
        constexpr int kVecina[] = {0, 2, 3, 4, 5, 5, 5, 6, 0, 0, 7, 10, 11};
        return valor == 5 || tendida_(palo, kVecina[valor]) != 0;
    }

    void Turno(int asiento, int ronda) {
        const int palo = Palo(asiento, ronda);
        if (palo == 0)
            return RevisaPase(asiento, ronda);
        const int valor = Valor(asiento, ronda);
        Exige(de_(palo, valor) == asiento, "ronda {}: el asiento {} tendió una carta ajena", ronda,
              asiento);
        Exige(SePuede(palo, valor), "ronda {}: la carta {} de palo {} se tendió sin su vecina",
              ronda, valor, palo);
        Exige(bazas.CartaJugada(palo, valor) == asiento,
              "ronda {}: la carta {} de palo {} no está apuntada", ronda, valor, palo);
        de_(palo, valor) = 0;
        tendida_(palo, valor) = 1;
        --cartas_(asiento);
    }

    // Who can lay does not pass.
    void RevisaPase(int asiento, int ronda) const {
        for (int palo = kOros; palo <= kBastos; ++palo) {
            for (int valor = 1; valor <= 12; ++valor) {
                Exige(de_(palo, valor) != asiento || !SePuede(palo, valor),
                      "ronda {}: el asiento {} pasó con la carta {} de palo {}", ronda, asiento,
                      valor, palo);
            }
        }
    }

    void RevisaFinal(int asiento, int ronda) const {
        Exige(estado.GanadorMano == asiento && estado.NumBaza == ronda,
              "gana la mano quien se queda sin cartas, y con ella se acaba");
        for (int otro = 1; otro <= 4; ++otro)
            Exige(cartas_(otro) == estado.NumCartas(otro, 1),
                  "el asiento {} jugó después del final", otro);
    }
};

// In each record one seat has won, with the points of all the others.
void RevisaRegistro(int n) {
    const RegistroJuego& registro = estado.Juegos(n);
    int ganadores = 0;
    int de_ganador = 0;
    int de_otros = 0;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const bool gana = registro.Marcas(asiento, 1) == 1;
        ganadores += gana ? 1 : 0;
        (gana ? de_ganador : de_otros) += std::stoi("0" + registro.Texto1(asiento));
    }
    Exige(ganadores == 1 && de_ganador == de_otros,
          "el registro {} no cuadra: {} ganadores, {} y {} negativos", n, ganadores, de_ganador,
          de_otros);
}

} // namespace

void RevisaManoCinquillo() {
    RevisaCartas();
    Repeticion().Juega();
}

void RevisaPartidaCinquillo(int manos) {
    int juegos = 0;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        juegos += estado.JuegosGanados(asiento);
        Exige((estado.JuegosGanados(asiento) == estado.LimitePartida) ==
                  (asiento == estado.GanadorPartida),
              "sólo el ganador llega al límite");
    }
    Exige(juegos == manos, "cada mano tiene su ganador");
    for (int n = 1; n <= estado.JuegosJugados; ++n)
        RevisaRegistro(n);
}
