#include "games/poker/order_sums.h"

#include "games/poker/combinations.h"

#include <algorithm>
#include <memory>
#include <optional>

namespace {

constexpr int kBarajas = 6;
constexpr int kAs = 13, kDiez = 9; // positions; above the Diez stand the figures
constexpr int kMenor = -1;         // position of no card
constexpr int kPrimeraFigura = 10;
constexpr Integer kBarajaCorta = 4;
// Suits that the cards of a rank can have: of a pair, three of a kind, a single card.
constexpr int kDePareja = 6, kDeTrio = 4, kSuelta = 4;

constexpr int Indice(int posicion) {
    return posicion - kMenor;
}

// Whether they are positions from minimo to the As, each below the one before.
bool Descienden(const Posiciones& v, int minimo) {
    return v.front() <= kAs && v.back() >= minimo &&
           std::ranges::adjacent_find(v, std::less_equal<>{}) == v.end();
}

unsigned ConjuntoDe(const Posiciones& v) {
    unsigned conjunto = 0;
    for (const int posicion : v)
        conjunto |= 1U << static_cast<unsigned>(posicion);
    return conjunto;
}

// Five in a row, or the As below the four lowest.
bool EsEscalera(const Posiciones& v, int minimo) {
    return v[0] - v[4] == 4 || (v[0] == kAs && v[1] == minimo + 3);
}

std::optional<std::size_t> ClaveDeFiguras(const Posiciones& v) {
    int clave = 0;
    for (const int posicion : v) {
        if (posicion < kPrimeraFigura || posicion > kAs)
            return std::nullopt;
        clave = clave * 4 + posicion - kPrimeraFigura;
    }
    return static_cast<std::size_t>(clave);
}

// In a short deck three of a rank are worth more than five figures, and so they are with a pair in any.
bool CuentaComoFiguras(const Posiciones& v, bool larga) {
    std::array<int, kAs + 1> veces{};
    for (const int posicion : v)
        ++veces[static_cast<std::size_t>(posicion)];
    const int mas = std::ranges::max(veces);
    return mas < 3 || (mas == 3 && larga && std::ranges::find(veces, 2) == veces.end());
}

} // namespace

SumasDeOrden::SumasDeOrden(Integer cartas_baraja)
    : cuentas_(CuentasDe(cartas_baraja, 1)),
      rangos_(14 - cartas_baraja),
      cartas_(4 * rangos_),
      minimo_(14 - rangos_),
      larga_(cartas_baraja < kBarajaCorta) {
    HazSinEscalera();
    HazFull();
    HazTrio();
    HazDoblePareja();
    HazPareja();
    HazFiguras();
}

void SumasDeOrden::HazSinEscalera() {
    const int m = minimo_;
    Posiciones v{};
    for (v[0] = m + 4; v[0] <= kAs; ++v[0]) {
        for (v[1] = m + 3; v[1] < v[0]; ++v[1]) {
            for (v[2] = m + 2; v[2] < v[1]; ++v[2]) {
                for (v[3] = m + 1; v[3] < v[2]; ++v[3]) {
                    for (v[4] = m; v[4] < v[3]; ++v[4]) {
                        total_sin_escalera_ += EsEscalera(v, m) ? 0 : 1;
                        sin_escalera_[ConjuntoDe(v)] = total_sin_escalera_;
                    }
                }
            }
        }
    }
}

void SumasDeOrden::HazFull() {
    Long suma = 0;
    for (int trio = kMenor; trio <= kAs; ++trio) {
        for (int pareja = kMenor; pareja <= kAs; ++pareja) {
            if (trio >= minimo_ && pareja >= minimo_ && pareja != trio)
                suma += kDeTrio * kDePareja;
            full_(Indice(trio), Indice(pareja)) = suma;
        }
        // A pair that is not met comes behind all of them.
        for (int pareja = kMenor; pareja < minimo_; ++pareja)
            full_(Indice(trio), Indice(pareja)) = suma;
    }
}

Long SumasDeOrden::TriosPorDebajo(int trio) const {
    Long suma = 0;
    for (int t = minimo_; t < trio; ++t) {
        Long sueltas = Combinaciones(static_cast<Integer>(cartas_ - 4), 2) - (rangos_ - 1) * 6;
        if (larga_ && t > kDiez)
            sueltas -= Combinaciones(12, 2) - 18;
        suma += kDeTrio * sueltas;
    }
    return suma;
}

void SumasDeOrden::HazTrio() {
    for (int trio = kMenor; trio <= kAs; ++trio) {
        Long suma = TriosPorDebajo(trio);
        for (int a = kMenor; a <= kAs; ++a) {
            std::array<std::optional<Long>, kTope + 1> vistas;
            for (int b = minimo_; a != trio && b <= a; ++b) {
                const bool son_figuras = larga_ && std::min({trio, a, b}) > kDiez;
                if (b != trio && b != a && !son_figuras)
                    suma += kDeTrio * kSuelta * kSuelta;
                vistas[static_cast<std::size_t>(Indice(b))] = suma;
            }
            for (int b = kMenor; b <= kAs; ++b) {
                trio_(Indice(trio), Indice(a), Indice(b)) =
                    vistas[static_cast<std::size_t>(Indice(b))].value_or(suma);
            }
        }
    }
}

void SumasDeOrden::HazDoblePareja() {
    Long suma = 0;
    for (int a = kMenor; a <= kAs; ++a) {
        Vistas vistas;
        for (int b = minimo_; b < a; ++b) {
            const int tope = b > kDiez ? kDiez : kAs;
            for (int c = minimo_; c <= tope; ++c) {
                if (c != a && c != b)
                    suma += kDePareja * kDePareja * kSuelta;
                vistas(Indice(b), Indice(c)) = suma;
            }
        }
        for (int b = kMenor; b <= kAs; ++b) {
            for (int c = kMenor; c <= kAs; ++c) {
                doble_pareja_(Indice(a), Indice(b), Indice(c)) =
                    vistas(Indice(b), Indice(c)).value_or(suma);
            }
        }
    }
}

Long SumasDeOrden::ParejasPorDebajo(int pareja) const {
    Long suma = 0;
    for (int t = minimo_; t < pareja; ++t) {
        Long sueltas = Combinaciones(static_cast<Integer>(cartas_ - 4), 3) - (rangos_ - 1) * 4 -
                       (rangos_ - 1) * 6 * (cartas_ - 8);
        if (t > kDiez)
            sueltas -= Combinaciones(12, 3) - 156;
        suma += kDePareja * sueltas;
    }
    return suma;
}

void SumasDeOrden::HazPareja() {
    for (int pareja = kMenor; pareja <= kAs; ++pareja) {
        Long suma = ParejasPorDebajo(pareja);
        for (int a = kMenor; a <= kAs; ++a) {
            Vistas vistas;
            for (int b = minimo_; a != pareja && b <= a; ++b) {
                for (int c = minimo_; b != pareja && c <= b; ++c) {
                    const bool distintas = a != b && b != c && c != pareja;
                    if (distintas && std::min({pareja, a, b, c}) <= kDiez)
                        suma += kDePareja * kSuelta * kSuelta * kSuelta;
                    vistas(Indice(b), Indice(c)) = suma;
                }
            }
            for (int b = kMenor; b <= kAs; ++b) {
                for (int c = kMenor; c <= kAs; ++c) {
                    pareja_(Indice(pareja), Indice(a), Indice(b), Indice(c)) =
                        vistas(Indice(b), Indice(c)).value_or(suma);
                }
            }
        }
    }
}

void SumasDeOrden::HazFiguras() {
    Posiciones v{};
    for (v[0] = kPrimeraFigura; v[0] <= kAs; ++v[0]) {
        for (v[1] = kPrimeraFigura; v[1] <= v[0]; ++v[1]) {
            for (v[2] = kPrimeraFigura; v[2] <= v[1]; ++v[2]) {
                for (v[3] = kPrimeraFigura; v[3] <= v[2]; ++v[3]) {
                    for (v[4] = kPrimeraFigura; v[4] <= v[3]; ++v[4]) {
                        total_figuras_ += CuentaComoFiguras(v, larga_) ? 1 : 0;
                        figuras_[*ClaveDeFiguras(v)] = total_figuras_;
                    }
                }
            }
        }
    }
}

Long SumasDeOrden::SinEscalera(const Posiciones& v) const {
    return Descienden(v, minimo_) ? sin_escalera_[ConjuntoDe(v)] : total_sin_escalera_;
}

Long SumasDeOrden::Full(const Posiciones& v) const {
    return full_(Indice(v[0]), Indice(v[1]));
}

Long SumasDeOrden::Trio(const Posiciones& v) const {
    return trio_(Indice(v[0]), Indice(v[1]), Indice(v[2]));
}

Long SumasDeOrden::DoblePareja(const Posiciones& v) const {
    return doble_pareja_(Indice(v[0]), Indice(v[1]), Indice(v[2]));
}

Long SumasDeOrden::Pareja(const Posiciones& v) const {
    return pareja_(Indice(v[0]), Indice(v[1]), Indice(v[2]), Indice(v[3]));
}

Long SumasDeOrden::Figuras(const Posiciones& v) const {
    const auto clave = ClaveDeFiguras(v);
    return clave ? figuras_[*clave] : 0;
}

const SumasDeOrden& SumasDe(Integer cartas_baraja) {
    static std::array<std::unique_ptr<const SumasDeOrden>, kBarajas + 1> hechas;
    if (cartas_baraja < 1 || cartas_baraja > kBarajas)
        LanzaIndiceFuera(1, cartas_baraja, kBarajas);
    auto& sumas = hechas[static_cast<std::size_t>(cartas_baraja)];
    if (sumas == nullptr)
        sumas = std::make_unique<const SumasDeOrden>(cartas_baraja);
    return *sumas;
}
