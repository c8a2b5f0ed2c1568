#include "games/common/hand_queries.h"

#include "core/game_state.h"
#include "games/common/trick_state.h"
#include "games/common/trick_values.h"

namespace {

constexpr int kSerie = 1;

void MarcaMapa(Integer asiento) {
    bazas.MapaMano.Borra();
    for (int lugar = 1; lugar <= estado.MaxCartasMano; ++lugar) {
        const Integer palo = estado.Mano(asiento, kSerie, lugar, kPalo);
        if (palo != kSinCarta)
            bazas.MapaMano(palo, estado.Mano(asiento, kSerie, lugar, kValor)) = 1;
    }
}

bool LasCuatro(Integer valor) {
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        if (bazas.MapaMano(palo, valor) == 0)
            return false;
    }
    return true;
}

Integer TuteDelMapa() {
    if (LasCuatro(kRey))
        return kRey;
    return LasCuatro(kCaballo) ? kCaballo : Integer{0};
}

} // namespace

void ExaminaMano(Integer asiento) {
    MarcaMapa(asiento);
    bazas.TuteEnMano = TuteDelMapa();
    bazas.HayCante = false;
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        const bool pareja = bazas.MapaMano(palo, kCaballo) != 0 && bazas.MapaMano(palo, kRey) != 0;
        bazas.PaloCantable(palo) = pareja && bazas.PaloCantado(palo) == 0;
        bazas.HayCante = bazas.HayCante || bazas.PaloCantable(palo);
    }
}

Integer CuentaPalo(Integer asiento, Integer palo) {
    if (palo < kOros || palo > kBastos)
        return 0;
    Integer cuantas = 0;
    for (int lugar = 1; lugar <= estado.MaxCartasMano; ++lugar) {
        if (estado.Mano(asiento, kSerie, lugar, kPalo) == palo)
            ++cuantas;
    }
    return cuantas;
}

bool BuscaCarta(Integer asiento, Integer palo, Integer valor) {
    bazas.LugarCarta = 0;
    if (palo < kOros || palo > kBastos)
        return false;
    for (Integer lugar = 1; lugar <= estado.MaxCartasMano; ++lugar) {
        if (estado.Mano(asiento, kSerie, lugar, kPalo) == palo &&
            estado.Mano(asiento, kSerie, lugar, kValor) == valor) {
            bazas.LugarCarta = lugar;
            return true;
        }
    }
    return false;
}

Integer PotenciaCarta(Integer palo, Integer valor) {
    const Integer orden = estado.OrdenCarta(valor);
    if (palo == estado.PaloTriunfo)
        return static_cast<Integer>(orden + kPotenciaTriunfo);
    if (palo == bazas.PaloSalida)
        return static_cast<Integer>(orden + kPotenciaPaloSalida);
    return orden;
}
