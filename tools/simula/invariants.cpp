#include "tools/simula/invariants.h"

#include <fmt/format.h>

#include <algorithm>

#include "games/state_blocks.h"
#include "tools/simula/trick_invariants.h"

namespace {

void Exige(bool cumple, const std::string& regla) {
    if (!cumple)
        throw InvarianteRoto(regla);
}

// How often each card of the Spanish deck is somewhere: in a hand or on the table.
Tabla<int, 4, 12> CuentaCartas() {
    Tabla<int, 4, 12> veces;
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

void RevisaCartasCinquillo() {
    const Tabla<int, 4, 12> veces = CuentaCartas();
    for (int palo = kOros; palo <= kBastos; ++palo) {
        for (int valor = 1; valor <= 12; ++valor) {
            const int debidas = estado.ValorEnBaraja(valor) ? 1 : 0;
            const int cuantas = veces(palo, valor);
            if (cuantas != debidas)
                throw InvarianteRoto(
                    fmt::format("la carta {} de palo {} está {} veces", valor, palo, cuantas));
        }
    }
}

// Each suit grows from its 5 without a gap.
void RevisaTendido() {
    constexpr Integer kHaciaElCinco[] = {0, 2, 3, 4, 5, 5, 5, 6, 0, 0, 7, 10, 11};
    for (int palo = kOros; palo <= kBastos; ++palo) {
        for (int valor = 1; valor <= 12; ++valor) {
            const Integer vecina = kHaciaElCinco[valor];
            if (bazas.CartaJugada(palo, valor) != 0 && bazas.CartaJugada(palo, vecina) == 0)
                throw InvarianteRoto(
                    fmt::format("la carta {} de palo {} se tendió sin su vecina", valor, palo));
        }
    }
}

void RevisaManoCinquillo() {
    RevisaCartasCinquillo();
    RevisaTendido();
    int vacias = 0;
    for (int asiento = 1; asiento <= 4; ++asiento)
        vacias += estado.NumCartas(asiento, 1) == 0 ? 1 : 0;
    Exige(vacias == 1 && estado.NumCartas(estado.GanadorMano, 1) == 0,
          "gana la mano quien se queda sin cartas, y nadie más");
}

// In each record one seat has won, with the points of all the others.
void RevisaRegistrosCinquillo() {
    for (int n = 1; n <= estado.JuegosJugados; ++n) {
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
              fmt::format("el registro {} no cuadra: {} ganadores, {} y {} negativos", n, ganadores,
                          de_ganador, de_otros));
    }
}

void RevisaPartidaCinquillo() {
    int juegos = 0;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        juegos += estado.JuegosGanados(asiento);
        Exige(estado.JuegosGanados(asiento) < estado.LimitePartida ||
                  asiento == estado.GanadorPartida,
              "sólo el ganador llega al límite");
    }
    Exige(juegos == estado.JuegosJugados, "cada mano tiene su ganador");
    RevisaRegistrosCinquillo();
}

struct Revision {
    Integer juego;
    void (*mano)();
    void (*partida)();
};

constexpr Revision kRevisiones[] = {
    {kTute, RevisaManoBazas, RevisaPartidaBazas},
    {kBrisca, RevisaManoBazas, RevisaPartidaBazas},
    {kCinquillo, RevisaManoCinquillo, RevisaPartidaCinquillo},
};

const Revision* RevisionDelJuego() {
    const auto* fin = std::end(kRevisiones);
    const auto* esta = std::find_if(std::begin(kRevisiones), fin, [](const Revision& r) {
        return r.juego == estado.JuegoActivo;
    });
    return esta == fin ? nullptr : esta;
}

} // namespace

void RevisaFinalDeMano() {
    const Revision* revision = RevisionDelJuego();
    if (revision != nullptr)
        revision->mano();
}

void RevisaFinalDePartida() {
    Exige(!estado.PartidaEnCurso, "la partida acaba");
    Exige(estado.GanadorPartida >= 1 && estado.GanadorPartida <= 4, "la partida tiene ganador");
    const Revision* revision = RevisionDelJuego();
    if (revision != nullptr)
        revision->partida();
}
