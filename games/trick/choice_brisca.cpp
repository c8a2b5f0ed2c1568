#include "games/trick/choice_brisca.h"

#include <algorithm>

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/common/hand_queries.h"
#include "games/common/trick_state.h"
#include "games/trick/choice_common.h"
#include "games/trick/exact_search.h"

namespace {

constexpr int kSerie = 1;
constexpr Integer kCartasBrisca = 3;
constexpr Integer kNivelTutor = 100;
// What keeps a card in the hand: a trump, times the character, for the leader and for a follower; each card of the suit
// that the hand lacks.
constexpr int kPesoTriunfoAlSalir = 3, kPesoTriunfo = 5, kPesoEscasez = 2;

Integer Puntua(const VistaTurno& v, Carta n) {
    const bool cambio = estado.CartasEnMazo > estado.NumJugadores && PuedeCambiarse(n);
    const Integer w = cambio ? estado.ValorTriunfo : n.valor;
    int puntos = Redondea(estado.ValorCarta(w).Real() * v.caracter / 2 + estado.OrdenCarta(w));
    if (n.palo == estado.PaloTriunfo)
        puntos += v.caracter * (v.sale ? kPesoTriunfoAlSalir : kPesoTriunfo);
    return EnteroDe(puntos + (kCartasBrisca - CuentaPalo(v.asiento, n.palo)) * kPesoEscasez);
}

void PuntuaMano(const VistaTurno& v) {
    VaciaJugables();
    for (Integer lugar = 1; lugar <= v.cartas; ++lugar)
        AnotaJugable(Puntua(v, CartaEnMano(lugar)), lugar);
}

Integer Potencia(Carta n) {
    return PotenciaCarta(n.palo, n.valor);
}

// Whose turn is a follower's: from the look at the table to the place in CartasJugables.
class Seguidor {
public:
    explicit Seguidor(const VistaTurno& vista) : v_(vista) {}

    Integer Elige() {
        MiraAdelante();
        if (v_.ultimo) {
            PorNivel();
            if (k_ == 1)
                RecorreLaMano();
        }
        if (Desechada())
            k_ = v_.nivel > 50 && descarte_ != 0 ? descarte_ : Integer{1};
        return std::min(k_, bazas.NumJugables);
    }

private:
    const VistaTurno& v_;
    Integer k_ = 1;
    Integer descarte_ = 0;

    bool GanaPareja() const { return v_.pareja != 0 && v_.asiento_mejor == v_.pareja; }

    // The partner's seat counts here outside pairs, too; meant.
    bool MiraCartas() const {
        const bool gana_enfrente = v_.asiento_mejor == estado.ParejaAsiento(v_.asiento);
        return v_.nivel > 95 && ParteEntera(static_cast<double>(estado.AzarTurno) * 10 + 1) > 1 &&
               (v_.caracter > kConservador || !v_.hay_mazo) && !(v_.ultimo && !gana_enfrente);
    }

    void MiraAdelante() {
        if (!MiraCartas())
            return;
        const Integer maxima = MaximaPorVenir();
        for (Integer puesto = 1; puesto <= bazas.NumJugables; ++puesto) {
            if (Potencia(CartaJugable(puesto)) > maxima) {
                k_ = puesto;
                return;
            }
        }
    }

    // The strongest card on the table or in the hands of those who play after this seat.
    Integer MaximaPorVenir() const {
        Integer maxima = v_.mejor_mesa;
        Integer asiento = v_.asiento;
        for (SiguienteAsiento(asiento); asiento != estado.JugadorSalida && asiento != v_.asiento;
             SiguienteAsiento(asiento)) {
            for (int lugar = 1; lugar <= v_.cartas; ++lugar) {
                const Carta n{estado.Mano(asiento, kSerie, lugar, kPalo),
                              estado.Mano(asiento, kSerie, lugar, kValor)};
                if (n.palo != kSinCarta)
                    maxima = std::max(maxima, Potencia(n));
            }
        }
        return maxima;
    }

    void PorNivel() {
        if (v_.nivel < 30)
            k_ = bazas.NumJugables;
        if (v_.caracter == kConservador && v_.nivel < 60)
            k_ = UltimoQueGana(v_.mejor_mesa, k_);
        if (v_.nivel > 80 && !v_.hay_mazo && !GanaPareja() &&
            ConvieneElMasAlto(v_, FueraDeLaPareja(v_))) {
            k_ = bazas.NumJugables;
        }
    }

    void RecorreLaMano() {
        for (Integer puesto = 1; puesto <= bazas.NumJugables; ++puesto) {
            const Carta n = CartaJugable(puesto);
            const bool gana = Potencia(n) >= v_.mejor_mesa;
            if (gana ? SePlantaGanando(puesto, n) : SePlantaPerdiendo(puesto, n))
                return;
        }
    }

    bool SePlantaGanando(Integer puesto, Carta n) {
        if (descarte_ == 0)
            descarte_ = puesto;
        k_ = puesto;
        return CompensaGanar(v_, estado.ValorCarta(n.valor));
    }

    // A card that cannot win is thrown away, or gives points to the partner who wins.
    bool SePlantaPerdiendo(Integer puesto, Carta n) {
        const Currency puntos = estado.ValorCarta(n.valor);
        if (descarte_ == 0 && puntos == 0)
            descarte_ = puesto;
        if (!GanaPareja() || !(v_.caracter == kAgresivo ||
                               puntos > (v_.caracter == kMedio ? Currency{0} : Currency{2}))) {
            return false;
        }
        k_ = puesto;
        return true;
    }

    // A trump is not spent on too little.
    bool Desechada() const {
        const Carta n = CartaJugable(k_);
        if (n.palo != estado.PaloTriunfo)
            return false;
        const Currency puntos = estado.ValorCarta(n.valor);
        const bool sin_tantos =
            v_.puntos_rivales == 0 || (v_.caracter == kAgresivo && descarte_ == 0);
        return puntos + v_.puntos_rivales + v_.puntos_pareja < UmbralDeTriunfo(v_) ||
               (v_.nivel > 60 && puntos >= 10 && sin_tantos) ||
               (v_.nivel > 80 && v_.puntos_rivales < v_.puntos_pareja + puntos && descarte_ != 0 &&
                v_.caracter > kConservador);
    }
};

// Before the end of the trick, with a stock, the search's card must not cost points.
void DesechaBusqueda(const VistaTurno& v) {
    if (bazas.CartaBusqueda == 0 || v.ultimo || !v.hay_mazo)
        return;
    const Currency elegida = estado.ValorCarta(CartaEnMano(estado.CartaElegida).valor);
    const Currency buscada = estado.ValorCarta(CartaEnMano(bazas.CartaBusqueda).valor);
    if (elegida == 0 || buscada > elegida + 2)
        bazas.CartaBusqueda = 0;
}

} // namespace

void EligeCartaBrisca() {
    if (estado.TutorPulsado)
        estado.NivelJugador(estado.JugadorActual) = kNivelTutor;
    const VistaTurno vista = MiraTurno();
    bazas.CartaBusqueda = 0;
    estado.CartaElegida = 0;
    PuntuaMano(vista);
    if (bazas.NumJugables == 0)
        return;
    const Integer k = vista.sale ? Integer{1} : Seguidor(vista).Elige();
    if (bazas.BusquedaActiva)
        ValoraExploracion();
    estado.CartaElegida = bazas.CartasJugables(TrasElRuido(k, vista.nivel), 2);
    DesechaBusqueda(vista);
    if (bazas.CartaBusqueda != 0)
        estado.CartaElegida = bazas.CartaBusqueda;
}
