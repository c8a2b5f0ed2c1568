#include "games/trick/choice_tute.h"

#include <algorithm>

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/common/hand_queries.h"
#include "games/common/trick_state.h"
#include "games/common/trick_values.h"
#include "games/trick/card_rules.h"
#include "games/trick/choice_common.h"
#include "games/trick/exact_search.h"

namespace {

constexpr Integer kBaseTexto = 500; // the scores are kept with this on top

// What a card's score gains for each reason to keep it, and loses for each reason to play it.
namespace peso {
constexpr int kTriunfo = 5;                       // times the character
constexpr int kEscasez = 2, kEscasezArrastre = 4; // for each card of the suit that the hand lacks
constexpr int kTute = 1500;                       // a card of the four that are held
constexpr int kCante = 80, kCanteTriunfo = 90;    // at level 100: the pair can be sung
constexpr int kAsCantable = 400;                  // the As that wins the trick to sing after
constexpr int kGanadora = 500;                    // nobody can beat the card
constexpr int kQuitaCante = 300, kMolestaCante = 250; // against a pair that the rival could sing
constexpr int kFallo = 20;                            // for each seat known to trump the suit
constexpr int kPaloSinCante = 15; // at level 100: a pair that is still about may lie there
constexpr int kSangria = 10;      // low trumps that draw the others'
constexpr int kTresEnPeligro = 120, kTresASalvo = 350;
} // namespace peso
constexpr Integer kNivelTutor = 100;

double Fraccion(Integer nivel) {
    return nivel / 100.0;
}

// How many cards of the hand stand in the strict rule's groups; only the group that binds is kept.
struct CuentaGrupos {
    int por_encima = 0, del_palo = 0, triunfo = 0, libre = 0;

    void Suma(Seguimiento grupo) {
        switch (grupo) {
        case Seguimiento::PorEncima:
            ++por_encima;
            break;
        case Seguimiento::DelPalo:
            ++del_palo;
            break;
        case Seguimiento::Triunfo:
            ++triunfo;
            break;
        case Seguimiento::Libre:
            ++libre;
            break;
        }
    }

    void QuedaElPrimero() {
        if (por_encima > 0)
            del_palo = triunfo = libre = 0;
        else if (del_palo > 0)
            triunfo = libre = 0;
        else if (triunfo > 0)
            libre = 0;
    }
};

// Gives the cards of a hand their scores: a low one goes first.
class Puntuador {
public:
    explicit Puntuador(const VistaTurno& vista)
        : v_(vista),
          propias_(NaipesDe(vista.asiento)),
          vivas_(NaipesSinJugar()),
          fuera_(vivas_ - propias_),
          obligado_(SigueObligado()),
          mazo_(estado.CartasEnMazo + (vista.hay_mazo ? 1 : 0)),
          limite_seguras_(Redondea(Fraccion(vista.nivel) * estado.CartasReparto)) {
        if (obligado_)
            CuentaLosGrupos();
    }

    // Leading under Arrastre, the cards that nobody can beat.
    Integer GanadorasSeguras() const { return ganadoras_seguras_; }

    Integer Puntua(Carta n) {
        int puntos = Base(n);
        if (n.valor == kCaballo || n.valor == kRey)
            puntos += PorTuteYCantes(n);
        puntos -= PorAsCantable(n);
        if (bazas.Arrastre && !obligado_)
            return EnteroDe(DeSalida(n, puntos));
        if (obligado_)
            return EnteroDe(DeSeguir(n, puntos));
        return EnteroDe(puntos);
    }

private:
    const VistaTurno& v_;
    Naipes propias_, vivas_, fuera_;
    bool obligado_;
    int mazo_; // stock and trump card
    Integer limite_seguras_;
    Integer ganadoras_seguras_ = 0;
    bool rival_visto_ = false;
    CuentaGrupos grupos_;

    bool EsTriunfo(Carta n) const { return n.palo == estado.PaloTriunfo; }
    Integer Mayor(Carta n) const {
        return fuera_.UltimoPorEncima(n.palo, estado.OrdenCarta(n.valor));
    }
    bool SinJugar(Integer palo, Integer valor) const { return bazas.CartaJugada(palo, valor) == 0; }
    bool CanteIntacto(Integer palo) const {
        return bazas.PaloCantado(palo) == 0 && SinJugar(palo, kCaballo) && SinJugar(palo, kRey);
    }
    bool FinalSeguro() const { return v_.cartas <= limite_seguras_ && v_.caracter > kConservador; }

    void CuentaLosGrupos() {
        for (Integer lugar = 1; lugar <= v_.cartas; ++lugar) {
            const Carta n = CartaEnMano(lugar);
            grupos_.Suma(GrupoDe(n.palo, n.valor));
        }
        grupos_.QuedaElPrimero();
    }

    bool TresEnGrupo(Carta n) const {
        return (grupos_.por_encima == 3 && n.palo == bazas.PaloSalida) ||
               (grupos_.triunfo == 3 && EsTriunfo(n)) || grupos_.libre == 3;
    }

    int Base(Carta n) const {
        const Integer w = v_.hay_mazo && PuedeCambiarse(n) ? estado.ValorTriunfo : n.valor;
        const int puntos =
            Redondea(estado.ValorCarta(w).Real() * v_.caracter / 2 + estado.OrdenCarta(w));
        const int escasez = (estado.CartasReparto - propias_.Cuantos(n.palo)) *
                            (bazas.Arrastre ? peso::kEscasezArrastre : peso::kEscasez);
        return puntos + (EsTriunfo(n) ? v_.caracter * peso::kTriunfo : 0) + escasez;
    }

    int PorTuteYCantes(Carta n) const {
        const int tute = n.valor == bazas.TuteEnMano ? peso::kTute : PorAspirarATute(n);
        return tute + PorCante(n);
    }

    int PorAspirarATute(Carta n) const {
        for (Integer palo = kOros; palo <= kBastos; ++palo) {
            if (!SinJugar(palo, n.valor))
                return 0;
        }
        const int cuantos = propias_.CuantosDelValor(n.valor);
        if (static_cast<double>(mazo_) / estado.NumJugadores + cuantos < 4)
            return 0;
        const Integer t = Redondea(v_.nivel / 33.0 * cuantos * cuantos * mazo_ / 28);
        return Redondea(v_.caracter / 2.0 * t);
    }

    int PorCante(Carta n) const {
        if (bazas.PaloCantable(n.palo))
            return Redondea(Fraccion(v_.nivel) *
                            (EsTriunfo(n) ? peso::kCanteTriunfo : peso::kCante));
        if (!CanteIntacto(n.palo) || !v_.hay_mazo)
            return 0;
        const Integer t =
            Redondea(v_.nivel / (EsTriunfo(n) ? 3.0 : 6.0) * mazo_ / 28 + (n.valor - kCaballo));
        return Redondea(v_.caracter / 1.8 * t);
    }

    // The As of a suit that can be sung is to win the trick after which it is sung.
    int PorAsCantable(Carta n) const {
        if (v_.nivel <= 80 || n.valor != kAs || !bazas.PaloCantable(n.palo))
            return 0;
        const bool ahora = v_.sale ? v_.cartas == 3 && v_.caracter == kAgresivo
                                   : TresEnGrupo(n) && v_.caracter != kConservador;
        return ahora ? peso::kAsCantable : 0;
    }

    int DeSalida(Carta n, int puntos) {
        puntos = ContraElCanteRival(n, puntos);
        puntos -= PorFallos(n);
        puntos = PorPaloSinCante(n, puntos);
        return v_.nivel > 85 ? puntos + PorSegura(n) : puntos;
    }

    // With two seats the leader looks into the rival's hand. What that finds stays in force for the cards
    // that are scored after this one, on purpose.
    int ContraElCanteRival(Carta n, int puntos) {
        if (estado.NumJugadores != 2)
            return puntos;
        const Integer rival = Rival();
        if (!rival_visto_)
            ExaminaMano(rival);
        rival_visto_ = true;
        if (estado.NumCartas(rival, 1) < 3 || !bazas.HayCante || v_.nivel <= 90 ||
            !bazas.PaloCantable(n.palo)) {
            return puntos;
        }
        return Mayor(n) == 0 ? -puntos - peso::kQuitaCante
                             : -puntos - 2 * estado.OrdenCarta(n.valor) - peso::kMolestaCante;
    }

    Integer Rival() const {
        Integer asiento = v_.asiento;
        do
            SiguienteAsiento(asiento);
        while (estado.EstadoJugador(asiento) != kActivado && asiento != v_.asiento);
        return asiento;
    }

    int PorFallos(Carta n) const {
        if (estado.ValorCarta(n.valor) != 0 || EsTriunfo(n) || v_.nivel <= 90)
            return 0;
        int suma = 0;
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            if (bazas.FallaPalo(n.palo, asiento) && !bazas.FallaPalo(estado.PaloTriunfo, asiento))
                suma += asiento == v_.pareja ? 1 : -1;
        }
        return peso::kFallo * suma;
    }

    int PorPaloSinCante(Carta n, int puntos) const {
        const Carta caballo{n.palo, kCaballo};
        const Carta rey{n.palo, kRey};
        if (estado.ValorCarta(n.valor) > 2 || propias_.Cuantos(n.palo) < 2 ||
            !CanteIntacto(n.palo) || propias_.Tiene(caballo) || propias_.Tiene(rey)) {
            return puntos;
        }
        if (v_.pareja != 0) {
            const Naipes suyas = NaipesDe(v_.pareja);
            if (suyas.Tiene(caballo) && suyas.Tiene(rey))
                return puntos;
        }
        return Redondea(-puntos - Fraccion(v_.nivel) * peso::kPaloSinCante);
    }

    int PorSegura(Carta n) {
        const Integer mayor = Mayor(n);
        if (mayor == 0) {
            if (!EsTriunfo(n) && !fuera_.VacioDe(estado.PaloTriunfo))
                return 0;
            ++ganadoras_seguras_;
            return FinalSeguro() ? peso::kGanadora : 0;
        }
        const Integer del_palo = propias_.Cuantos(n.palo);
        const bool sangra = estado.ValorCarta(n.valor) <= 4 && EsTriunfo(n) && mayor >= 6 &&
                            del_palo > 1 && FinalSeguro();
        return sangra ? -del_palo * peso::kSangria : 0;
    }

    int DeSeguir(Carta n, int puntos) const {
        puntos += PorTresCantable(n);
        return puntos + (Imbatible(n) && FinalSeguro() ? peso::kGanadora : 0);
    }

    int PorTresCantable(Carta n) const {
        if (v_.nivel <= 95 || !bazas.PaloCantable(n.palo) || n.valor != kTres || !TresEnGrupo(n))
            return 0;
        const bool peligra = (!v_.ultimo && Mayor(n) != 0) || AsEnMesa(n.palo);
        return peligra ? peso::kTresEnPeligro : -peso::kTresASalvo;
    }

    static bool AsEnMesa(Integer palo) {
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            if (bazas.CartaEnMesa(asiento, 1) == palo && bazas.CartaEnMesa(asiento, 2) == kAs)
                return true;
        }
        return false;
    }

    // No card that is still about, of any suit, is stronger.
    bool Imbatible(Carta n) const {
        const auto fuerza = [](Integer palo, Integer orden) {
            return orden + (palo == estado.PaloTriunfo ? kPotenciaTriunfo : Integer{0});
        };
        const int propia = fuerza(n.palo, estado.OrdenCarta(n.valor));
        for (Integer palo = kOros; palo <= kBastos; ++palo) {
            if (!fuera_.VacioDe(palo) && fuerza(palo, fuera_.OrdenMasAlto(palo)) > propia)
                return false;
        }
        return true;
    }
};

// Keeps of the sorted hand the cards that the strict rule allows, and answers their group.
Seguimiento DejaLasLegales() {
    constexpr Seguimiento kOrdenGrupos[] = {Seguimiento::PorEncima, Seguimiento::DelPalo,
                                            Seguimiento::Triunfo};
    if (!SigueObligado())
        return Seguimiento::Libre;
    const Tabla<Integer, 26, 2> todas = bazas.CartasJugables;
    const Integer cuantas = bazas.NumJugables;
    for (const Seguimiento grupo : kOrdenGrupos) {
        VaciaJugables();
        for (int puesto = 1; puesto <= cuantas; ++puesto) {
            const Carta n = CartaEnMano(todas(puesto, 2));
            if (GrupoDe(n.palo, n.valor) == grupo)
                AnotaJugable(todas(puesto, 1), todas(puesto, 2));
        }
        if (bazas.NumJugables > 0)
            return grupo;
    }
    bazas.CartasJugables = todas;
    bazas.NumJugables = cuantas;
    return Seguimiento::Libre;
}

// Before the last seat of the trick, the leader included.
Integer PuestoAntesDelFinal(const VistaTurno& v, Integer ganadoras) {
    Integer k = 1;
    if (v.cartas > 4 && bazas.TuteEnMano != 0)
        k = static_cast<Integer>(v.cartas - 4);
    if (v.nivel > 75 && ganadoras > 1 && v.cartas - ganadoras <= 1)
        k = static_cast<Integer>(v.cartas - ganadoras + 1);
    return k;
}

// The last seat of the trick under Arrastre, by the group of its legal cards.
Integer PuestoFinalObligado(const VistaTurno& v, Seguimiento grupo) {
    const Integer ultimo = bazas.NumJugables;
    switch (grupo) {
    case Seguimiento::PorEncima:
        if (v.nivel < 30)
            return ultimo;
        if (v.nivel < 60 && v.caracter == kConservador && bazas.CartasJugables(1, 1) > kBaseTexto)
            return UltimoQueGana(v.mejor_mesa, 1);
        return 1;
    case Seguimiento::DelPalo:
        return v.nivel < 60 ? ultimo : Integer{1};
    case Seguimiento::Triunfo:
        return v.nivel > 80 && ConvieneElMasAlto(v, FueraDeLaPareja(v)) ? ultimo : Integer{1};
    case Seguimiento::Libre:
        break;
    }
    return 1;
}

// Whether a card that can win the trick is worth playing while there is a stock.
bool TomaLaBaza(const VistaTurno& v, Carta n) {
    if (bazas.TuteEnMano != 0)
        return v.nivel < 20 || n.valor != bazas.TuteEnMano;
    if (bazas.HayCante) {
        const bool del_cante =
            (n.valor == kCaballo || n.valor == kRey) && bazas.PaloCantable(n.palo);
        return v.nivel < 40 || !del_cante;
    }
    return CompensaGanar(v, estado.ValorCarta(n.valor));
}

// A trump is not spent on too little.
bool TriunfoDesperdiciado(const VistaTurno& v, Carta n) {
    if (n.palo != estado.PaloTriunfo)
        return false;
    const Currency puntos = estado.ValorCarta(n.valor);
    return v.puntos_rivales + puntos + v.puntos_pareja < UmbralDeTriunfo(v) ||
           (v.nivel > 60 && v.puntos_rivales == 0 && puntos >= 10) ||
           (v.nivel > 80 && v.puntos_rivales < puntos + v.puntos_pareja &&
            v.caracter > kConservador);
}

// The last seat of the trick while nobody is bound to follow.
Integer PuestoFinalLibre(const VistaTurno& v) {
    Integer k = 1;
    Integer descarte = 0;
    for (Integer puesto = 1; puesto <= bazas.NumJugables; ++puesto) {
        const Carta n = CartaJugable(puesto);
        if (PotenciaCarta(n.palo, n.valor) < v.mejor_mesa) {
            if (descarte == 0 && estado.ValorCarta(n.valor) == 0)
                descarte = puesto;
        } else if (TomaLaBaza(v, n)) {
            k = puesto;
            break;
        }
    }
    if (bazas.HayCante || bazas.TuteEnMano != 0 || !TriunfoDesperdiciado(v, CartaJugable(k)))
        return k;
    return v.nivel > 50 && descarte != 0 ? descarte : Integer{1};
}

Integer PuestoElegido(const VistaTurno& v, Seguimiento grupo, Integer ganadoras) {
    if (bazas.NumJugables <= 1)
        return 1;
    Integer k = 1;
    if (!v.ultimo)
        k = PuestoAntesDelFinal(v, ganadoras);
    else
        k = bazas.Arrastre ? PuestoFinalObligado(v, grupo) : PuestoFinalLibre(v);
    return std::min(k, bazas.NumJugables);
}

// Scores the hand into CartasJugables; the answer is the number of sure winners.
Integer PuntuaMano(const VistaTurno& v) {
    ExaminaMano(v.asiento);
    VaciaJugables();
    Puntuador puntuador(v);
    for (Integer lugar = 1; lugar <= v.cartas; ++lugar)
        AnotaJugable(EnteroDe(puntuador.Puntua(CartaEnMano(lugar)) + kBaseTexto), lugar);
    ExaminaMano(v.asiento);
    return puntuador.GanadorasSeguras();
}

void Elige() {
    const VistaTurno vista = MiraTurno();
    bazas.CartaBusqueda = 0;
    estado.CartaElegida = 0;
    const Integer ganadoras = PuntuaMano(vista);
    if (bazas.NumJugables == 0)
        return;
    const Seguimiento grupo = DejaLasLegales();
    Integer k = PuestoElegido(vista, grupo, ganadoras);
    if (bazas.BusquedaActiva && !bazas.HayCante && bazas.TuteEnMano == 0)
        ValoraExploracion();
    k = TrasElRuido(k, vista.nivel);
    estado.CartaElegida =
        bazas.CartaBusqueda != 0 ? bazas.CartaBusqueda : bazas.CartasJugables(k, 2);
}

} // namespace

void EligeCartaTute() {
    Integer& nivel = estado.NivelJugador(estado.JugadorActual);
    const Integer propio = nivel;
    if (estado.TutorPulsado)
        nivel = kNivelTutor;
    Elige();
    nivel = propio;
}
