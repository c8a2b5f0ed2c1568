#include "table/frames.h"

#include <array>

namespace {

struct Puesto {
    std::optional<Rectangulo> donde;
    void (*revisa)() = nullptr;
};

constinit std::array<Puesto, 3> marcos{};

Puesto& El(Marco cual) {
    return marcos[static_cast<std::size_t>(cual)];
}

} // namespace

void PonMarco(Marco cual, const std::optional<Rectangulo>& donde, void (*revisa)()) {
    Puesto& marco = El(cual);
    marco.revisa = revisa;
    if (!donde && !marco.donde)
        return;
    marco.donde = donde;
    plataforma().Enmarca(cual, donde);
}

bool HayMarco(Marco cual) {
    return El(cual).donde.has_value();
}

bool HayMarcoDeTeclas() {
    return HayMarco(Marco::DeTeclas) || HayMarco(Marco::DeTeclasVedado);
}

void RevisaMarcos() {
    for (const Puesto& marco : marcos) {
        if (marco.revisa != nullptr)
            marco.revisa();
    }
}
