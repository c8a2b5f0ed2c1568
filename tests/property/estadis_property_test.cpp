// The statistics may be opened at any wait of any match: they can always be printed, they fit on their page, and the
// match goes on as if nobody had looked.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>

#include "core/game_state.h"
#include "reports/estadis.h"
#include "session/state_blocks.h"
#include "table/game_row.h"
#include "table/trace.h"
#include "tools/simula/match.h"
#include "tools/simula/signature.h"

namespace {

int Entre(int desde, int hasta) {
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(desde, hasta + 1));
}

OpcionesSimula UnaMesa() {
    const FilaJuego& juego = **rc::gen::elementOf(FilasDeJuegos());
    OpcionesSimula opciones;
    opciones.juego = juego.id;
    opciones.asientos = Entre(juego.asientos.minimo, 4);
    opciones.parejas = opciones.asientos == 4 && !juego.asientos.sin_parejas && Entre(0, 1) == 1;
    opciones.limite = 1;
    opciones.resto = 40; // so that the matches for money end soon
    opciones.maxima = 20;
    opciones.semilla = *rc::gen::arbitrary<std::uint32_t>();
    opciones.azar = opciones.personas = true;
    RC_TAG(juego.nombre);
    return opciones;
}

struct Vista {
    int paginas = 0;
    std::string fallo;
};

void Mira(Vista& vista) {
    ++vista.paginas;
    const PaginaImpresa pagina = estadis::Pagina();
    for (const Impreso& impreso : pagina.Impresos()) {
        if (impreso.x < 0 || impreso.y < 0 || impreso.x2 > pagina.Ancho() ||
            impreso.y2 >= pagina.Alto())
            vista.fallo = "«" + impreso.texto + "» no cabe en la hoja";
    }
}

// A copy of the whole state is dear: it is held against the first looks of a match only.
void MiraYCompara(Vista& vista) {
    constexpr int kComparadas = 10;
    if (vista.paginas >= kComparadas)
        return Mira(vista);
    const EstadoJuego antes = estado;
    Mira(vista);
    if (!(estado == antes))
        vista.fallo = "el estado ha cambiado";
}

// The match as its calls went, with somebody who looks at each wait or with nobody.
std::uint64_t Juega(const OpcionesSimula& opciones, Vista* vista) {
    Simulacion simulacion(opciones);
    Firma firma;
    EscuchaTraza([&](const std::string& linea) {
        firma.Anade(linea);
        if (vista != nullptr && estado.ManoEnCurso && linea.starts_with("PedirContinuar("))
            MiraYCompara(*vista);
    });
    simulacion.Juega(0);
    return firma.Valor();
}

} // namespace

RC_GTEST_PROP(Estadisticas, SeVenEnCualquierEsperaYNoCambianNada, ()) {
    const OpcionesSimula opciones = UnaMesa();
    Vista vista;
    const std::uint64_t mirada = Juega(opciones, &vista);
    RC_ASSERT(vista.fallo == "");
    RC_ASSERT(mirada == Juega(opciones, nullptr));
    RC_CLASSIFY(vista.paginas > 0, "se ha mirado");
}
