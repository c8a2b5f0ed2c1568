#include "games/poker/runs.h"

#include <algorithm>
#include <bit>
#include <memory>

namespace {

constexpr int kPasos = 5;
constexpr int kBitAsAlto = 13;
constexpr int kBarajas = 6;
// Without a joker three cards are needed to fit anything.
constexpr int kMinimo = 3;

constexpr std::uint32_t Bit(int n) {
    return std::uint32_t{1} << n;
}

// The ranks as they lie in a row: the As at both ends.
constexpr std::uint32_t EnFila(Rangos rangos) {
    const bool as = (rangos & Bit(kFuerzaAs)) != 0;
    return (rangos & ~Rangos{1}) | (as ? 1U : 0U);
}

} // namespace

// Cards placed on five positions in a row.
struct Corridas::Ajuste {
    std::array<std::uint8_t, kPasos + 3> puesto{}; // valores from 1; 0 free
    int ultima = 0;                                // position of the last card but for the joker
    int ajustadas = 0;
    int huecos = 0;

    int En(int p) const { return puesto[static_cast<std::size_t>(p)]; }
    void Pon(int p, int valor) {
        puesto[static_cast<std::size_t>(p)] = static_cast<std::uint8_t>(valor);
    }
    bool AcabaEnAs() const { return En(ultima) == kValorAs; }
};

Corridas::Corridas(Integer cartas_baraja) : primero_(cartas_baraja + 1) {
    PonTramos();
    for (const bool comodin : {false, true}) {
        for (Rangos rangos = 0; rangos < Bit(kFuerzaAs); ++rangos) {
            if (std::popcount(rangos) > kCartasMano)
                continue;
            const Fila fila = EnFila(rangos << 1);
            Corrida corrida;
            for (const Fila tramo : tramos_)
                Registra(corrida, fila & tramo, comodin, false);
            if (corrida == Corrida{})
                continue;
            indice_[comodin ? 1 : 0][rangos] = static_cast<std::uint16_t>(corridas_.size());
            corridas_.push_back(corrida);
        }
    }
}

// From each start upwards, five steps over the ranks that the deck has; the As ends the way at the top.
void Corridas::PonTramos() {
    en_baraja_ = Bit(0) | Bit(kBitAsAlto);
    for (int valor = primero_; valor <= kValorRey; ++valor)
        en_baraja_ |= Bit(valor - 1);
    for (Fila desde = en_baraja_ & ~Bit(kBitAsAlto); desde != 0; desde &= desde - 1) {
        Fila quedan = en_baraja_ & ~(Bit(std::countr_zero(desde)) - 1);
        Fila tramo = 0;
        for (int paso = 1; paso <= kPasos && quedan != 0; ++paso, quedan &= quedan - 1) {
            tramo |= Bit(std::countr_zero(quedan));
            tramos_.push_back(tramo);
        }
    }
}

Corridas::Ajuste Corridas::Ajusta(Fila lista, bool comodin) const {
    Ajuste ajuste;
    int posicion = 0;
    Fila por_debajo = ~Fila{0}; // of the cards placed, what lies above
    for (Fila quedan = lista; quedan != 0; quedan &= quedan - 1) {
        const int bit = std::countr_zero(quedan);
        if (ajuste.ajustadas > 0) {
            const int huecos = std::popcount(en_baraja_ & por_debajo & (Bit(bit) - 1));
            posicion += huecos;
            ajuste.huecos += huecos;
        }
        ajuste.Pon(++posicion, bit == kBitAsAlto ? kValorAs : bit + 1);
        ajuste.ultima = posicion;
        ++ajuste.ajustadas;
        por_debajo = ~(Bit(bit + 1) - 1);
    }
    if (comodin)
        PonComodin(ajuste);
    return ajuste;
}

// The joker fills the highest gap, or goes on top; above an As at the top nothing goes, and it comes in below.
void Corridas::PonComodin(Ajuste& ajuste) const {
    int sitio = 0;
    for (int p = ajuste.huecos > 0 ? ajuste.ultima : kPasos; p >= 2 && sitio == 0; --p) {
        const bool tras_el_as = p == ajuste.ultima + 1 && ajuste.AcabaEnAs();
        if (ajuste.En(p) == 0 && ajuste.En(p - 1) != 0 && !tras_el_as)
            sitio = p;
    }
    if (sitio == 0) {
        std::shift_right(ajuste.puesto.begin() + 1, ajuste.puesto.end(), 1);
        ++ajuste.ultima;
        sitio = 1;
    }
    ajuste.Pon(sitio, kPuestoComodin);
    ajuste.huecos = std::max(ajuste.huecos - 1, 0);
    ++ajuste.ajustadas;
}

// How open three cards are: each end gives 0 to 2.
int Corridas::Bordes(const Ajuste& ajuste) const {
    const int principio = ajuste.En(1);
    const int fin =
        ajuste.En(ajuste.ultima) + (ajuste.En(ajuste.ultima + 1) == kPuestoComodin ? 1 : 0);
    int bordes = 0;
    if (principio >= primero_)
        bordes += principio == primero_ ? 1 : 2;
    if (fin >= 2 && fin <= kValorRey)
        bordes += fin == kValorRey ? 1 : 2;
    return bordes;
}

// The lower, the better the draw. Whole straights are 1.
int Corridas::Calidad(const Ajuste& ajuste) const {
    if (ajuste.ajustadas >= kPasos)
        return 1;
    if (ajuste.ajustadas == 4)
        return ajuste.huecos > 0 || ajuste.En(1) == kValorAs || ajuste.AcabaEnAs() ? 2 : 1;
    return ajuste.huecos > 0 ? ajuste.huecos + 1 : 5 - Bordes(ajuste);
}

// Enters the fit of a list, unless it is a worse draw than the one that stands. Starts run upwards, so that the highest
// straight stands in the end.
void Corridas::Registra(Corrida& corrida, Fila lista, bool comodin, bool segundo) const {
    if (std::popcount(lista) + (comodin ? 1 : 0) < kMinimo)
        return;
    const Ajuste ajuste = Ajusta(lista, comodin);
    const int calidad = Calidad(ajuste);
    Tramo& tramo = ajuste.ajustadas == kPasos ? corrida.cinco
                   : ajuste.ajustadas == 4    ? corrida.cuatro
                                              : corrida.tres;
    if (tramo.calidad != 0 && calidad > tramo.calidad)
        return;
    tramo = {.calidad = static_cast<std::uint8_t>(calidad), .segundo_palo = segundo};
    std::size_t n = 0;
    for (int p = kPasos; p >= 1; --p) {
        if (ajuste.En(p) == 0)
            continue;
        tramo.valores[n++] = static_cast<std::uint8_t>(ajuste.En(p));
        if (ajuste.En(p) == kPuestoComodin) {
            const int vale = p > 1 ? ajuste.En(p - 1) + 1 : ajuste.En(2) - 1;
            tramo.valor_comodin = static_cast<std::uint8_t>(vale > kValorRey ? kValorAs : vale);
        }
    }
}

Corrida Corridas::DeDosPalos(Rangos primero, Rangos segundo, bool comodin) const {
    const Fila fila_primero = EnFila(primero), fila_segundo = EnFila(segundo);
    Corrida corrida;
    Fila anterior = 0;
    bool mandaba = false;
    for (const Fila tramo : tramos_) {
        const bool manda = std::popcount(fila_segundo & tramo) >= 2;
        const Fila lista = (manda ? fila_segundo : fila_primero) & tramo;
        // Most steps meet no card more, and what they meet is entered already.
        if (lista != anterior || manda != mandaba)
            Registra(corrida, lista, comodin, manda);
        anterior = lista;
        mandaba = manda;
    }
    return corrida;
}

const Corridas& CorridasDe(Integer cartas_baraja) {
    static std::array<std::unique_ptr<const Corridas>, kBarajas + 1> hechas;
    if (cartas_baraja < 1 || cartas_baraja > kBarajas)
        LanzaIndiceFuera(1, cartas_baraja, kBarajas);
    auto& corridas = hechas[static_cast<std::size_t>(cartas_baraja)];
    if (corridas == nullptr)
        corridas = std::make_unique<const Corridas>(cartas_baraja);
    return *corridas;
}
