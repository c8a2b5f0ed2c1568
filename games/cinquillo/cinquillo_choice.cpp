#include "games/cinquillo/cinquillo_choice.h"

#include <algorithm>
#include <bit>
#include <cstdlib>

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/common/trick_state.h"
#include "games/common/trick_values.h"

namespace {

constexpr Integer kNivelVeSiguiente =
    60; // from here on the next card outward is not reckoned as waiting
constexpr Integer kNivelCuentaPropias = 75;
constexpr Integer kNivelSinRuido = 90;
constexpr double kPesoAjenoAgresivo = 0.8;

// Ranks of one suit, a bit each; what is no rank of the deck is in no set.
using Rangos = unsigned;

constexpr Rangos Bit(int valor) {
    return valor >= 1 && valor <= kRey ? 1U << valor : 0;
}

constexpr Rangos kBajos = Bit(1) | Bit(2) | Bit(3) | Bit(4);
constexpr Rangos kAltos = Bit(6) | Bit(7) | Bit(10) | Bit(11) | Bit(12);

// The ranks that lie farther out than a card, on its side of the 5; on both for the 5 itself.
constexpr Rangos MasFuera(Integer valor) {
    if (valor == kCinco)
        return kBajos | kAltos;
    return valor < kCinco ? kBajos & (Bit(valor) - 1) : kAltos & ~((Bit(valor) << 1U) - 1);
}

// The ranks that may be laid right after a card; none beyond the As and the Rey.
constexpr Rangos Siguientes(Integer valor) {
    if (valor == kCinco)
        return Bit(4) | Bit(6);
    return valor < kCinco ? Bit(valor - 1) : Bit(valor == 7 ? 10 : valor + 1);
}

// What the seat keeps from the others, once the card is laid, by holding the next one outward.
Rangos Cerrados(Rangos propios, Integer valor) {
    if (valor == kCinco)
        return ((propios & Bit(4)) != 0 ? kBajos : 0) | ((propios & Bit(6)) != 0 ? kAltos : 0);
    return (propios & Siguientes(valor)) != 0 ? MasFuera(valor) : 0;
}

// Ten times the mean distance of some ranks from a card, 0 without any.
Integer DistanciaMedia(Integer valor, Rangos rangos) {
    const int rango = RangoSeguido(valor);
    int suma = 0;
    int cuantos = 0;
    for (; rangos != 0; rangos &= rangos - 1) {
        const auto otra = static_cast<Integer>(std::countr_zero(rangos));
        suma += std::abs(rango - RangoSeguido(otra));
        ++cuantos;
    }
    return cuantos == 0 ? Integer{0} : Redondea(suma * 10.0 / cuantos);
}

Integer HaciaElCinco(Integer valor) {
    if (valor < kCinco)
        return static_cast<Integer>(valor + 1);
    return static_cast<Integer>(valor == 10 ? 7 : valor - 1);
}

// propios: what the seat holds of the card's suit.
Integer Valora(Integer asiento, Rangos propios, Integer valor) {
    const Integer nivel = estado.NivelJugador(asiento);
    Rangos mios = MasFuera(valor) & propios;
    Rangos ajenos = MasFuera(valor) & ~propios;
    if (nivel >= kNivelVeSiguiente)
        mios &= ~Siguientes(valor);
    if (nivel >= kNivelCuentaPropias)
        ajenos &= ~Cerrados(propios, valor);
    Integer contra = DistanciaMedia(valor, ajenos);
    if (estado.CaracterJugador(asiento) == kAgresivo)
        contra = Redondea(contra * kPesoAjenoAgresivo);
    return EnteroDe(DistanciaMedia(valor, mios) * 100 + 28 - contra);
}

// The fields of a place of the seat's hand.
const Integer* CamposDe(Integer asiento, int lugar) {
    return &estado.Mano(asiento, 1, lugar, 0);
}

// What the seat holds, by suit.
using RangosPorPalo = Tabla<Rangos, kBastos>;

RangosPorPalo RangosDeLaMano(Integer asiento) {
    RangosPorPalo rangos;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar) {
        const Integer* carta = CamposDe(asiento, lugar);
        rangos(carta[kPalo]) |= Bit(carta[kValor]);
    }
    return rangos;
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
    if (nivel < kNivelSinRuido && ParteEntera(azar * 100 + 1) > nivel)
        return std::min<int>(ParteEntera(bazas.NumJugables * azar + 1), bazas.NumJugables);
    return 1;
}

} // namespace

bool EsJugable(Integer palo, Integer valor) {
    return valor == kCinco || bazas.CartaJugada(palo, HaciaElCinco(valor)) != 0;
}

void EligeCartaCinquillo() {
    const Integer asiento = estado.JugadorActual;
    if (estado.TutorPulsado)
        estado.NivelJugador(asiento) = 100;
    bazas.CartasJugables.Borra();
    bazas.NumJugables = 0;
    const RangosPorPalo rangos = RangosDeLaMano(asiento);
    const Integer cartas = estado.NumCartas(asiento, 1);
    for (int lugar = 1; lugar <= cartas; ++lugar) {
        const Integer* carta = CamposDe(asiento, lugar);
        const Integer palo = carta[kPalo];
        const Integer valor = carta[kValor];
        if (EsJugable(palo, valor))
            MeteJugable(Valora(asiento, rangos(palo), valor), lugar);
    }
    estado.CartaElegida = bazas.NumJugables == 0
                              ? Integer{0}
                              : bazas.CartasJugables(LugarEnLista(estado.NivelJugador(asiento)), 2);
}

bool LugarJugable(int lugar) {
    for (int sitio = 1; sitio <= bazas.NumJugables; ++sitio) {
        if (bazas.CartasJugables(sitio, 2) == lugar)
            return true;
    }
    return false;
}
