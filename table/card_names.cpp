#include "table/card_names.h"

#include <array>

namespace {

using Palos = std::array<const char*, 4>;
constexpr Palos kEspanoles{"Oros", "Copas", "Espadas", "Bastos"};
constexpr Palos kFranceses{"Diamantes", "Corazones", "Picas", "Tréboles"};

bool EsPalo(Integer palo) {
    return palo >= kOros && palo <= kBastos;
}

} // namespace

const char* NombreDePalo(Integer palo) {
    const Palos& palos = estado.TipoBaraja == kBarajaFrancesa ? kFranceses : kEspanoles;
    return EsPalo(palo) ? palos[static_cast<std::size_t>(palo - kOros)] : "";
}

std::string NombreDeCarta(Carta carta) {
    if (carta.palo == kComodin)
        return "Comodín";
    return estado.NombreValor(carta.valor) + " de " + NombreDePalo(carta.palo);
}
