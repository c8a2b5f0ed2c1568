#include "games/poker/hand_tally.h"

#include <bit>

#include "core/game_state.h"

namespace {

// How many cards there are of each rank, four bits a rank.
using Cuentas = std::uint64_t;
constexpr int kBitsCuenta = 4;

void HazGrupos(Recuento& recuento, Cuentas cuentas) {
    for (Rangos quedan = recuento.rangos; quedan != 0;) {
        const int fuerza = static_cast<int>(std::bit_width(quedan)) - 1;
        quedan ^= Rangos{1} << fuerza;
        recuento.grupos[static_cast<std::size_t>(recuento.num_grupos++)] = {
            .fuerza = fuerza, .cartas = static_cast<int>(cuentas >> (kBitsCuenta * fuerza) & 0xF)};
    }
}

} // namespace

Recuento CuentaMano(Integer asiento) {
    constexpr int kCampos = decltype(estado.Mano)::kTopes[3] + 1;
    Recuento recuento;
    Cuentas cuentas = 0;
    // The places of a serie lie one behind the other.
    const Integer* carta = &estado.Mano(asiento, 1, 1, 0);
    for (int lugar = 1; lugar <= kCartasMano; ++lugar, carta += kCampos) {
        const Integer palo = carta[kPalo], valor = carta[kValor];
        if (palo == kComodin) {
            ++recuento.comodines;
            recuento.comodin = valor;
        } else if (palo >= kOros && palo <= kBastos && valor >= kValorAs && valor <= kValorRey) {
            const int fuerza = FuerzaDe(valor);
            recuento.palos[static_cast<std::size_t>(palo)] |= Rangos{1} << fuerza;
            recuento.rangos |= Rangos{1} << fuerza;
            recuento.no_figuras += fuerza <= kFuerzaDiez ? 1 : 0;
            cuentas += Cuentas{1} << (kBitsCuenta * fuerza);
        }
    }
    HazGrupos(recuento, cuentas);
    return recuento;
}
