#include "games/cinquillo/cinquillo_choice.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/common/trick_state.h"

namespace {

constexpr Integer kCinco = 5, kAs = 1, kRey = 12;
constexpr Integer kNivelVeSiguiente =
    60; // from here on the next card outward is not reckoned as waiting
constexpr Integer kNivelCuentaPropias = 75;
constexpr Integer kNivelSinRuido = 90;
constexpr double kPesoAjenoAgresivo = 0.8;

struct Cuenta {
    int suma = 0, cuantas = 0;

    void Anade(int distancia) {
        suma += distancia;
        ++cuantas;
    }
    // Ten times the mean distance.
    Integer Media() const { return cuantas == 0 ? Integer{0} : Redondea(suma * 10.0 / cuantas); }
};

// Which ranks of one suit the seat holds.
using Rangos = std::array<bool, kRey + 1>;

Integer HaciaFuera(Integer valor) {
    if (valor < kCinco) {
        return static_cast<Integer>(valor - 1);
    }
    return static_cast<Integer>(valor == 7 ? 10 : valor + 1);
}

Integer HaciaElCinco(Integer valor) {
    if (valor < kCinco) {
        return static_cast<Integer>(valor + 1);
    }
    return static_cast<Integer>(valor == 10 ? 7 : valor - 1);
}

bool EsDeLaBaraja(int valor) {
    return valor <= 7 || valor >= 10;
}

bool MasFuera(Integer carta, int otra) {
    if (carta == kCinco) {
        return otra != kCinco;
    }
    return carta < kCinco ? otra < carta : otra > carta;
}

Rangos RangosDe(Integer asiento, Integer palo) {
    Rangos tiene{};
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar) {
        if (estado.Mano(asiento, 1, lugar, kPalo) == palo) {
            tiene[static_cast<std::size_t>(estado.Mano(asiento, 1, lugar, kValor))] = true;
        }
    }
    return tiene;
}

bool Tiene(const Rangos& rangos, int valor) {
    return rangos[static_cast<std::size_t>(valor)];
}

// Laying the card opens the way of a card of the seat's own at once.
bool AbreASuSiguiente(Integer valor, int otra) {
    return valor == kCinco ? otra == 4 || otra == 6 : otra == HaciaFuera(valor);
}

// The seat itself holds the card that the foreign one waits for.
bool CierraElPaso(const Rangos& propias, Integer valor, int otra) {
    if (valor == kCinco) {
        return Tiene(propias, otra < kCinco ? 4 : 6);
    }
    const Integer siguiente = HaciaFuera(valor);
    return siguiente >= kAs && siguiente <= kRey && Tiene(propias, siguiente);
}

Integer Valora(Integer asiento, Integer palo, Integer valor) {
    const Integer nivel = estado.NivelJugador(asiento);
    const Rangos propias = RangosDe(asiento, palo);
    Cuenta propio, ajeno;
    for (Integer otra = kAs; otra <= kRey; ++otra) {
        if (!EsDeLaBaraja(otra) || !MasFuera(valor, otra)) {
            continue;
        }
        const int distancia = std::abs(RangoSeguido(valor) - RangoSeguido(otra));
        if (Tiene(propias, otra)) {
            if (nivel < kNivelVeSiguiente || !AbreASuSiguiente(valor, otra)) {
                propio.Anade(distancia);
            }
        } else if (nivel < kNivelCuentaPropias || !CierraElPaso(propias, valor, otra)) {
            ajeno.Anade(distancia);
        }
    }
    Integer contra = ajeno.Media();
    if (estado.CaracterJugador(asiento) == kAgresivo) {
        contra = Redondea(contra * kPesoAjenoAgresivo);
    }
    return EnteroDe(propio.Media() * 100 + 28 - contra);
}

// The card enters the list behind those of its value, so that equal cards keep the order of the hand.
void MeteJugable(Integer valor, int lugar) {
    int sitio = ++bazas.NumJugables;
    for (; sitio > 1 && bazas.CartasJugables(sitio - 1, 1) < valor; --sitio) {
        bazas.CartasJugables(sitio, 1) = bazas.CartasJugables(sitio - 1, 1);
        bazas.CartasJugables(sitio, 2) = bazas.CartasJugables(sitio - 1, 2);
    }
    bazas.CartasJugables(sitio, 1) = valor;
    bazas.CartasJugables(sitio, 2) = EnteroDe(lugar);
}

int LugarEnLista(Integer nivel) {
    const double azar = estado.AzarTurno;
    if (nivel < kNivelSinRuido && ParteEntera(azar * 100 + 1) > nivel) {
        return std::min<int>(ParteEntera(bazas.NumJugables * azar + 1), bazas.NumJugables);
    }
    return 1;
}

} // namespace

Integer RangoSeguido(Integer valor) {
    return static_cast<Integer>(valor > 7 ? valor - 2 : valor);
}

bool EsJugable(Integer palo, Integer valor) {
    return valor == kCinco || bazas.CartaJugada(palo, HaciaElCinco(valor)) != 0;
}

void EligeCartaCinquillo() {
    const Integer asiento = estado.JugadorActual;
    if (estado.TutorPulsado) {
        estado.NivelJugador(asiento) = 100;
    }
    bazas.CartasJugables.Borra();
    bazas.NumJugables = 0;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar) {
        const Integer palo = estado.Mano(asiento, 1, lugar, kPalo);
        const Integer valor = estado.Mano(asiento, 1, lugar, kValor);
        if (EsJugable(palo, valor)) {
            MeteJugable(Valora(asiento, palo, valor), lugar);
        }
    }
    estado.CartaElegida = bazas.NumJugables == 0
                              ? Integer{0}
                              : bazas.CartasJugables(LugarEnLista(estado.NivelJugador(asiento)), 2);
}

bool LugarJugable(int lugar) {
    for (int sitio = 1; sitio <= bazas.NumJugables; ++sitio) {
        if (bazas.CartasJugables(sitio, 2) == lugar) {
            return true;
        }
    }
    return false;
}
