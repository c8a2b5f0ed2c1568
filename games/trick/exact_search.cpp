#include "games/trick/exact_search.h"

#include <algorithm>
#include <array>
#include <bit>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <stdexcept>

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/common/trick_state.h"
#include "games/common/trick_values.h"
#include "games/trick/search_state.h"

namespace {

constexpr int kSerie = 1;
constexpr int kAsientos = 4;
constexpr int kMaximoLugar = kBaseClave - 1;
constexpr int kOrdenMasAlto = 13;
constexpr Long kDiezUltimas = 10;

// Places of a hand as bits: place 1 is bit 1.
using Lugares = std::uint16_t;

struct NaipeBuscado {
    int palo = 0, orden = 0, fuerza = 0;
    Long tantos = 0;
};

// The trick under way: what was led, who is winning it and what it holds.
struct BazaBuscada {
    int palo = 0, orden = 0;
    int mejor_fuerza = -1, ganador = 0;
    Long tantos = 0;
};

// One run of ExploraBazas. Depth 1 is the trick that is about to be led.
class Explorador {
public:
    Explorador() {
        LeeHorizonte();
        LeeAsientos();
        for (int asiento = 1; asiento <= kAsientos; ++asiento) {
            if (estado.EstadoJugador(asiento) == kActivado)
                LeeMano(asiento);
        }
    }

    void Explora() {
        Turno(1, 1, estado.JugadorSalida, {});
        busqueda.UltimaClaveUsada = static_cast<Integer>(ClaveMasAlta());
    }

private:
    template <class T>
    using PorAsiento = std::array<T, kAsientos + 1>;

    int cartas_ = 0, horizonte_ = 0, jugadores_ = 0;
    PorAsiento<int> siguiente_{};
    PorAsiento<std::array<NaipeBuscado, kBaseClave>> naipes_{};
    PorAsiento<std::array<Lugares, kComodin + 1>> de_palo_{};
    // Places of the seat with a card of the suit above the order.
    PorAsiento<std::array<std::array<Lugares, kOrdenMasAlto>, kComodin + 1>> por_encima_{};
    PorAsiento<Lugares> quedan_{};
    PorAsiento<Long> ganado_{};

    // The first trick: by place of the player, the seat and the position played; and, by seat, what the
    // sequences that go on from it have brought.
    PorAsiento<int> jugador_{};
    PorAsiento<int> posicion_{};
    PorAsiento<Long> veces_mejor_{};
    PorAsiento<Long> suma_{};

    int ClaveMasAlta() const {
        int clave = 0;
        for (int turno = 1; turno <= jugadores_; ++turno)
            clave = clave * kBaseClave + cartas_;
        return clave;
    }

    void LeeHorizonte() {
        cartas_ = estado.NumCartas(estado.JugadorSalida, kSerie);
        horizonte_ = estado.CartasEnMazo == 0 ? cartas_ : 1;
        jugadores_ = estado.NumJugadores;
        if (horizonte_ > kHorizonteMaximo || cartas_ > kMaximoLugar)
            throw std::logic_error("the hands are too long for the exact search");
        if (jugadores_ < 1 || jugadores_ > kAsientos)
            throw std::logic_error("the exact search needs one to four seats");
    }

    void LeeAsientos() {
        for (Integer asiento = 1; asiento <= kAsientos; ++asiento) {
            Integer otro = asiento;
            do
                SiguienteAsiento(otro);
            while (otro != asiento && estado.EstadoJugador(otro) != kActivado);
            siguiente_[static_cast<std::size_t>(asiento)] = otro;
        }
        int asiento = estado.JugadorSalida;
        for (int turno = 1; turno <= jugadores_; ++turno) {
            jugador_[static_cast<std::size_t>(turno)] = asiento;
            asiento = siguiente_[static_cast<std::size_t>(asiento)];
        }
    }

    void LeeMano(int asiento) {
        const auto a = static_cast<std::size_t>(asiento);
        for (int lugar = 1; lugar <= cartas_; ++lugar) {
            const int palo = estado.Mano(asiento, kSerie, lugar, kPalo);
            if (palo == kSinCarta)
                continue;
            const int valor = estado.Mano(asiento, kSerie, lugar, kValor);
            const int orden = estado.OrdenCarta(valor);
            const auto bit = static_cast<Lugares>(1U << lugar);
            naipes_[a][static_cast<std::size_t>(lugar)] = {
                palo, orden, orden + (palo == estado.PaloTriunfo ? kPotenciaTriunfo : 0),
                Redondea(estado.ValorCarta(valor).Real())};
            quedan_[a] |= bit;
            de_palo_[a][static_cast<std::size_t>(palo)] |= bit;
            for (int menor = 0; menor < orden; ++menor)
                por_encima_[a][static_cast<std::size_t>(palo)][static_cast<std::size_t>(menor)] |=
                    bit;
        }
    }

    // The strict rule: over the card led, else of its suit, else a trump, else anything.
    Lugares Permitidos(std::size_t asiento, const BazaBuscada& baza) const {
        const Lugares quedan = quedan_[asiento];
        const auto palo = static_cast<std::size_t>(baza.palo);
        const Lugares grupos[] = {por_encima_[asiento][palo][static_cast<std::size_t>(baza.orden)],
                                  de_palo_[asiento][palo],
                                  de_palo_[asiento][static_cast<std::size_t>(estado.PaloTriunfo)]};
        for (const Lugares grupo : grupos) {
            if ((grupo & quedan) != 0)
                return grupo & quedan;
        }
        return quedan;
    }

    static void Pon(BazaBuscada& baza, int asiento, const NaipeBuscado& naipe, bool sale) {
        if (sale) {
            baza.palo = naipe.palo;
            baza.orden = naipe.orden;
        }
        const bool sirve = naipe.palo == baza.palo && naipe.palo != estado.PaloTriunfo;
        const int fuerza = naipe.fuerza + (sirve ? kPotenciaPaloSalida : 0);
        if (fuerza > baza.mejor_fuerza) {
            baza.mejor_fuerza = fuerza;
            baza.ganador = asiento;
        }
        baza.tantos += naipe.tantos;
    }

    // All that the turno-th player of the trick at this depth may play, and what follows from each.
    void Turno(int hondura, int turno, int asiento, const BazaBuscada& baza) {
        const auto a = static_cast<std::size_t>(asiento);
        unsigned por_ver = turno == 1 ? quedan_[a] : Permitidos(a, baza);
        for (; por_ver != 0; por_ver &= por_ver - 1) {
            const auto lugar = static_cast<std::size_t>(std::countr_zero(por_ver));
            const auto bit = static_cast<Lugares>(1U << lugar);
            BazaBuscada con_esta = baza;
            Pon(con_esta, asiento, naipes_[a][lugar], turno == 1);
            if (hondura == 1)
                posicion_[static_cast<std::size_t>(turno)] = static_cast<int>(lugar);
            quedan_[a] ^= bit;
            if (turno == jugadores_)
                CierraBaza(hondura, con_esta);
            else
                Turno(hondura, turno + 1, siguiente_[a], con_esta);
            quedan_[a] ^= bit;
        }
    }

    void CierraBaza(int hondura, const BazaBuscada& baza) {
        if (hondura == 1) {
            veces_mejor_ = {};
            suma_ = {};
        }
        const auto ganador = static_cast<std::size_t>(baza.ganador);
        const Long tantos = baza.tantos + (hondura == cartas_ ? kDiezUltimas : 0);
        ganado_[ganador] += tantos;
        if (hondura == horizonte_)
            CuentaSecuencia();
        else if (hondura + 1 == cartas_)
            UltimaBaza(baza.ganador);
        else
            Turno(hondura + 1, 1, baza.ganador, {});
        ganado_[ganador] -= tantos;
        if (hondura == 1)
            AnotaPrimeraBaza();
    }

    // Every hand holds one card: nothing is left to choose.
    void UltimaBaza(int lider) {
        BazaBuscada baza;
        int asiento = lider;
        for (int turno = 1; turno <= jugadores_; ++turno) {
            const auto a = static_cast<std::size_t>(asiento);
            if (quedan_[a] == 0)
                return;
            const auto lugar = static_cast<std::size_t>(std::countr_zero(quedan_[a]));
            Pon(baza, asiento, naipes_[a][lugar], turno == 1);
            asiento = siguiente_[a];
        }
        CierraBaza(cartas_, baza);
    }

    void CuentaSecuencia() {
        std::size_t mejor = 0;
        for (std::size_t asiento = 1; asiento <= kAsientos; ++asiento) {
            suma_[asiento] += ganado_[asiento];
            if (ganado_[asiento] > ganado_[mejor])
                mejor = asiento;
        }
        ++veces_mejor_[mejor];
    }

    void AnotaPrimeraBaza() const {
        int clave = 0;
        int peso = 1;
        for (int turno = 1; turno <= jugadores_; ++turno, peso *= kBaseClave) {
            clave += peso * posicion_[static_cast<std::size_t>(turno)];
            Anota(clave, turno);
            const int pareja = estado.ParejaAsiento(turno);
            if (estado.ModalidadJuego == kDosParejas && pareja <= jugadores_)
                Anota(clave, pareja);
        }
    }

    void Anota(int clave, int turno) const {
        const auto asiento = static_cast<std::size_t>(jugador_[static_cast<std::size_t>(turno)]);
        busqueda.ConteoBusqueda(clave) += veces_mejor_[asiento];
        busqueda.TantosBusqueda(clave) += suma_[asiento];
    }
};

// The share of the whole in hundredths of a percent, halves to the even neighbour; 0 without a whole.
Long Porcentaje(std::int64_t parte, std::int64_t total) {
    if (total == 0)
        return 0;
    const std::int64_t escalada = parte * 10000;
    const std::int64_t cociente = escalada / total;
    const std::int64_t doble_resto = 2 * (escalada % total);
    const bool sube = doble_resto > total || (doble_resto == total && cociente % 2 != 0);
    return static_cast<Long>(cociente + (sube ? 1 : 0));
}

struct Cuenta {
    std::int64_t conteo = 0, tantos = 0;
    void Suma(int clave) {
        const EstadoBusqueda& tablas = busqueda;
        conteo += tablas.ConteoBusqueda(clave);
        tantos += tablas.TantosBusqueda(clave);
    }
};

// How a card compares: the best one is the greatest.
struct Propuesta {
    Long veces = 0, tantos = 0;
    int desempate = 0;
    friend auto operator<=>(const Propuesta&, const Propuesta&) = default;
};

class Valorador {
public:
    Valorador()
        : turno_(estado.CartasEnBaza),
          cartas_(estado.NumCartas(estado.JugadorActual, kSerie)),
          con_tantos_(estado.JuegoActivo == kTute || estado.CartasEnMazo == 0) {}

    // Sets CartaBusqueda to the best card when there are two to choose from.
    void Valora() {
        Propuesta mejor;
        int entradas = 0;
        Cuenta total;
        for (int lugar = 1; lugar <= cartas_; ++lugar) {
            Propuesta propuesta;
            if (lugar == 1 || turno_ == 1)
                total = Totales(lugar);
            if (!Propone(lugar, total, propuesta))
                continue;
            ++entradas;
            if (entradas == 1 || propuesta > mejor) {
                mejor = propuesta;
                bazas.CartaBusqueda = static_cast<Integer>(lugar);
            }
        }
        if (entradas < 2)
            bazas.CartaBusqueda = 0;
    }

private:
    int turno_, cartas_;
    bool con_tantos_; // the share of the points counts, too

    bool Propone(int lugar, const Cuenta& total, Propuesta& propuesta) const {
        Cuenta propia;
        propia.Suma(ClaveHasta(lugar));
        const bool gana = propia.conteo != 0 && total.conteo != 0;
        const bool puntua = propia.tantos != 0 && total.tantos != 0;
        if (!gana && !puntua)
            return false;
        propuesta.veces = Porcentaje(propia.conteo, total.conteo);
        propuesta.tantos = con_tantos_ ? Porcentaje(propia.tantos, total.tantos) : 0;
        propuesta.desempate = cartas_ - PuestoDe(lugar);
        return true;
    }

    // The place of the card in CartasJugables, behind them all when it is not there.
    int PuestoDe(int lugar) const {
        int puesto = 1;
        while (puesto <= cartas_ && bazas.CartasJugables(puesto, 2) != lugar)
            ++puesto;
        return puesto;
    }

    int ClaveHasta(int lugar) const {
        int clave = 0;
        int peso = 1;
        for (int turno = 1; turno < turno_; ++turno, peso *= kBaseClave)
            clave += peso * bazas.JugadaBaza(turno);
        return clave + peso * lugar;
    }

    // Everything that can still come of the trick after the cards played, whichever card this seat plays
    // (the leader: after this card).
    Cuenta Totales(int lugar) const {
        Cuenta total;
        SumaDesde(total, 1, turno_ == 1 ? lugar : bazas.JugadaBaza(1));
        if (estado.ModalidadJuego == kDosParejas) {
            total.conteo = Mitad(total.conteo);
            total.tantos = Mitad(total.tantos);
        }
        return total;
    }

    // The key and all longer ones under it; clave names the positions of the first players. Beyond the last
    // key in use there is nothing to add.
    void SumaDesde(Cuenta& total, int puesto, int clave) const {
        if (clave > busqueda.UltimaClaveUsada)
            return;
        total.Suma(clave);
        if (puesto == kAsientos)
            return;
        const int peso = puesto == 1   ? kBaseClave
                         : puesto == 2 ? kBaseClave * kBaseClave
                                       : kBaseClave * kBaseClave * kBaseClave;
        if (turno_ > puesto + 1) {
            SumaDesde(total, puesto + 1, clave + peso * bazas.JugadaBaza(puesto + 1));
            return;
        }
        for (int lugar = 1; lugar <= cartas_; ++lugar)
            SumaDesde(total, puesto + 1, clave + peso * lugar);
    }

    static std::int64_t Mitad(std::int64_t numero) {
        const std::int64_t mitad = numero / 2;
        return mitad + (numero % 2 != 0 && mitad % 2 != 0 ? 1 : 0);
    }
};

void LimpiaTablas() {
    const auto usadas = std::clamp<std::ptrdiff_t>(busqueda.UltimaClaveUsada, 0, kUltimaClave) + 1;
    std::fill_n(busqueda.ConteoBusqueda.begin(), usadas, 0);
    std::fill_n(busqueda.TantosBusqueda.begin(), usadas, 0);
}

} // namespace

void ExploraBazas() {
    LimpiaTablas();
    Explorador().Explora();
}

void ValoraExploracion() {
    bazas.CartaBusqueda = 0;
    const Long tirada = ParteEntera(static_cast<double>(estado.AzarTurno) * 100 + 1);
    if (tirada <= estado.NivelJugador(estado.JugadorActual))
        Valorador().Valora();
}
