#include "games/trick/choice_common.h"

#include <bit>

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/common/hand_queries.h"
#include "games/common/trick_state.h"
#include "games/common/trick_values.h"

namespace {

constexpr int kSerie = 1;
constexpr Integer kUltimoValor = 12;

// Seats that have their own suits: nothing else gets into a set of cards.
constexpr bool EsPalo(Integer palo) {
    return palo >= kOros && palo <= kBastos;
}

} // namespace

std::size_t Naipes::Fila(Integer palo) {
    return EsPalo(palo) ? static_cast<std::size_t>(palo) : 0;
}

Integer Naipes::Cuantos(Integer palo) const {
    return static_cast<Integer>(std::popcount(mapa_[Fila(palo)]));
}

Integer Naipes::CuantosDelValor(Integer valor) const {
    Integer cuantos = 0;
    for (Integer palo = kOros; palo <= kBastos; ++palo)
        cuantos = static_cast<Integer>(cuantos + (Tiene({palo, valor}) ? 1 : 0));
    return cuantos;
}

Integer Naipes::OrdenMasAlto(Integer palo) const {
    Integer alto = 0;
    for (Integer valor = 1; valor <= kUltimoValor; ++valor) {
        if (Tiene({palo, valor}) && estado.OrdenCarta(valor) > alto)
            alto = estado.OrdenCarta(valor);
    }
    return alto;
}

Integer Naipes::UltimoPorEncima(Integer palo, Integer orden) const {
    for (Integer valor = kUltimoValor; valor >= 1; --valor) {
        if (Tiene({palo, valor}) && estado.OrdenCarta(valor) > orden)
            return estado.OrdenCarta(valor);
    }
    return 0;
}

Naipes operator-(Naipes una, const Naipes& otra) {
    for (std::size_t fila = 0; fila < una.mapa_.size(); ++fila)
        una.mapa_[fila] &= static_cast<std::uint16_t>(~otra.mapa_[fila]);
    return una;
}

Naipes NaipesDe(Integer asiento) {
    Naipes mano;
    for (int lugar = 1; lugar <= estado.MaxCartasMano; ++lugar) {
        const Integer palo = estado.Mano(asiento, kSerie, lugar, kPalo);
        if (EsPalo(palo))
            mano.Pon({palo, estado.Mano(asiento, kSerie, lugar, kValor)});
    }
    return mano;
}

Naipes NaipesSinJugar() {
    Naipes vivos;
    for (Integer valor = 1; valor <= kUltimoValor; ++valor) {
        if (!estado.ValorEnBaraja(valor))
            continue;
        for (Integer palo = kOros; palo <= kBastos; ++palo) {
            if (bazas.CartaJugada(palo, valor) == 0)
                vivos.Pon({palo, valor});
        }
    }
    return vivos;
}

VistaTurno MiraTurno() {
    VistaTurno vista;
    const Integer asiento = estado.JugadorActual;
    vista.asiento = asiento;
    vista.nivel = estado.NivelJugador(asiento);
    vista.caracter = estado.CaracterJugador(asiento);
    vista.cartas = estado.NumCartas(asiento, kSerie);
    vista.pareja =
        estado.ModalidadJuego == kDosParejas ? estado.ParejaAsiento(asiento) : Integer{0};
    vista.sale = asiento == estado.JugadorSalida;
    vista.ultimo = estado.CartasEnBaza == estado.NumJugadores;
    vista.hay_mazo = estado.CartasEnMazo > 0;
    for (Integer otro = 1; otro <= 4; ++otro) {
        const Carta naipe{bazas.CartaEnMesa(otro, 1), bazas.CartaEnMesa(otro, 2)};
        if (naipe.palo == kSinCarta)
            continue;
        (otro == vista.pareja ? vista.puntos_pareja : vista.puntos_rivales) +=
            estado.ValorCarta(naipe.valor);
        const Integer potencia = PotenciaCarta(naipe.palo, naipe.valor);
        if (potencia > vista.mejor_mesa) {
            vista.mejor_mesa = potencia;
            vista.asiento_mejor = otro;
        }
    }
    return vista;
}

Carta CartaEnMano(Integer lugar) {
    return {estado.Mano(estado.JugadorActual, kSerie, lugar, kPalo),
            estado.Mano(estado.JugadorActual, kSerie, lugar, kValor)};
}

Carta CartaJugable(Integer puesto) {
    return CartaEnMano(bazas.CartasJugables(puesto, 2));
}

bool PuedeCambiarse(Carta naipe) {
    const bool puntua = estado.ValorCarta(estado.ValorTriunfo) > 0;
    return naipe.palo == estado.PaloTriunfo && naipe.valor == (puntua ? kSiete : Integer{2});
}

void VaciaJugables() {
    bazas.CartasJugables.Borra();
    bazas.NumJugables = 0;
}

void AnotaJugable(Integer puntuacion, Integer lugar) {
    ++bazas.NumJugables;
    int puesto = bazas.NumJugables;
    for (; puesto > 1 && bazas.CartasJugables(puesto - 1, 1) > puntuacion; --puesto) {
        bazas.CartasJugables(puesto, 1) = bazas.CartasJugables(puesto - 1, 1);
        bazas.CartasJugables(puesto, 2) = bazas.CartasJugables(puesto - 1, 2);
    }
    bazas.CartasJugables(puesto, 1) = puntuacion;
    bazas.CartasJugables(puesto, 2) = lugar;
}

Integer UltimoQueGana(Integer mejor_mesa, Integer si_no) {
    for (Integer puesto = bazas.NumJugables; puesto >= 1; --puesto) {
        const Carta naipe = CartaJugable(puesto);
        if (PotenciaCarta(naipe.palo, naipe.valor) > mejor_mesa)
            return puesto;
    }
    return si_no;
}

bool ConvieneElMasAlto(const VistaTurno& vista, const Naipes& fuera) {
    const Carta alta = CartaJugable(bazas.NumJugables);
    return fuera.OrdenMasAlto(estado.PaloTriunfo) > estado.OrdenCarta(alta.valor) &&
           PotenciaCarta(alta.palo, alta.valor) > vista.mejor_mesa;
}

Naipes FueraDeLaPareja(const VistaTurno& vista) {
    const Naipes fuera = NaipesSinJugar() - NaipesDe(vista.asiento);
    return vista.pareja == 0 ? fuera : fuera - NaipesDe(vista.pareja);
}

Integer MargenDe(const VistaTurno& vista) {
    if (vista.caracter == kConservador)
        return vista.nivel < 50 ? 10 : 4;
    return vista.nivel < 50 ? 3 : 1;
}

bool CompensaGanar(const VistaTurno& vista, Currency puntos) {
    if (vista.caracter == kAgresivo)
        return true;
    const Currency margen = MargenDe(vista);
    return vista.puntos_rivales >= puntos + vista.puntos_pareja + margen ||
           (vista.caracter == kConservador && puntos >= margen);
}

Integer UmbralDeTriunfo(const VistaTurno& vista) {
    return EnteroDe(ParteEntera(static_cast<double>(estado.AzarTurno) * 3) + 2 * vista.caracter);
}

Integer TrasElRuido(Integer k, Integer nivel) {
    const double azar = static_cast<double>(estado.AzarTurno);
    if (nivel >= 90 || ParteEntera(azar * 100 + 1) <= nivel)
        return k;
    return EnteroDe(ParteEntera(azar * k + 1));
}
