#include "forms/selector.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

#include "core/game_state.h"
#include "core/text.h"

namespace {

// One selector, or the four of the seats.
struct Lista {
    int primero, ultimo;
    Integer EstadoJuego::*ajuste;
    Tabla<Integer, 4> EstadoJuego::*por_asiento;
    std::vector<const char*> valores;
};

const std::array kListas{
    Lista{1, 1, &EstadoJuego::SistemaReparto, nullptr, {"Automático", "Manual"}},
    Lista{2,
          2,
          &EstadoJuego::LeyApertura,
          nullptr,
          {"Mínimo pareja de 2", "Mínimo pareja de 3", "Mínimo pareja de 4", "Mínimo pareja de 5",
           "Mínimo pareja de 6", "Mínimo pareja de 7", "Mínimo pareja de 8", "Mínimo pareja de 9",
           "Mínimo pareja de 10", "Mínimo pareja de J", "Mínimo pareja de Q", "Mínimo pareja de K",
           "Mínimo pareja de A", "No se aplica"}},
    Lista{3,
          3,
          &EstadoJuego::ComodinesJuego,
          nullptr,
          {"Sin comodines", "Un comodín", "Dos comodines"}},
    Lista{4, 4, &EstadoJuego::ModalidadJuego, nullptr, {"Individual", "Dos parejas"}},
    Lista{
        5,
        5,
        &EstadoJuego::CartasBaraja,
        nullptr,
        {"Baraja completa", "Desde el 3", "Desde el 4", "Desde el 5", "Desde el 6", "Desde el 7"}},
    Lista{8, 8, &EstadoJuego::SentidoJuego, nullptr, {"Directo", "Inverso"}},
    Lista{9, 9, &EstadoJuego::VentanaInfo, nullptr, {"Activada", "Desactivada"}},
    Lista{11, 14, nullptr, &EstadoJuego::EstadoJugador, {"Activado", "Desactivado"}},
    Lista{21, 24, nullptr, &EstadoJuego::CartasJugador, {"Ocultas", "Visibles"}},
    Lista{25, 28, nullptr, &EstadoJuego::ControlJugador, {"Automático", "Manual"}},
    Lista{31, 34, nullptr, &EstadoJuego::CaracterJugador, {"Conservador", "Medio", "Agresivo"}},
};

const Lista* ListaDe(int control) {
    const auto sitio = std::ranges::find_if(kListas, [control](const Lista& lista) {
        return control >= lista.primero && control <= lista.ultimo;
    });
    return sitio == kListas.end() ? nullptr : &*sitio;
}

using TablaValores = Tabla<std::string, kFilasSelector, kUltimoSelector>;

TablaValores HazTabla() {
    TablaValores tabla;
    for (int control = 0; control <= kUltimoSelector; ++control) {
        const Lista* lista = ListaDe(control);
        for (int fila = 0; fila <= kFilasSelector; ++fila) {
            const auto cual = static_cast<std::size_t>(fila) - 1;
            const bool hay = lista != nullptr && fila > 0 && cual < lista->valores.size();
            Superpone(tabla(fila, control), 1, kLetrasSelector, hay ? lista->valores[cual] : "");
        }
    }
    return tabla;
}

} // namespace

bool EsSelector(int control) {
    return ListaDe(control) != nullptr;
}

int ClaseDe(int control) {
    return control - AsientoDe(control);
}

Integer AsientoDe(int control) {
    const Lista* lista = ListaDe(control);
    const bool de_asiento = lista != nullptr && lista->por_asiento != nullptr;
    return static_cast<Integer>(de_asiento ? control - lista->primero + 1 : 0);
}

const std::string& TextoValor(int fila, int control) {
    static const TablaValores kTabla = HazTabla();
    return kTabla(fila, control);
}

int ValoresDe(int control) {
    int fila = 0;
    while (fila < kFilasSelector && !Recorta(TextoValor(fila + 1, control)).empty())
        ++fila;
    return fila;
}

Integer& AjusteDe(int control) {
    const Lista* lista = ListaDe(control);
    if (lista == nullptr)
        throw std::logic_error("no hay selector " + Numero(control));
    return lista->ajuste != nullptr ? estado.*lista->ajuste
                                    : (estado.*lista->por_asiento)(AsientoDe(control));
}

std::string TextoActual(int control) {
    const int fila = std::clamp<int>(AjusteDe(control), 1, kFilasSelector);
    return Recorta(TextoValor(fila, control));
}

void AvanzaSelector(int control) {
    Integer& ajuste = AjusteDe(control);
    const bool hay_otro = ajuste >= 1 && ajuste < ValoresDe(control);
    ajuste = static_cast<Integer>(hay_otro ? ajuste + 1 : 1);
}
