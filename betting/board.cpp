#include "betting/board.h"

#include <algorithm>
#include <string>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"

namespace {

Integer Falta(Integer asiento) {
    return EnteroDe(apuestas.MaximaApuesta -
                    apuestas.Apuesta(asiento, estado.SerieActual, apuestas.FaseApuesta));
}

std::string TextoIgualar(Integer asiento) {
    return RestoDe(asiento) > Falta(asiento) ? "Igualar a " + Formato(apuestas.MaximaApuesta, "##0")
                                             : "Voy con mi resto";
}

} // namespace

void RotulaApostadora(Integer asiento, const ReglasApuesta& reglas) {
    const bool nada_puesto = apuestas.ApuestaEnCurso == 0;
    const bool algo_puesto = apuestas.ApuestaEnCurso > 0;
    apuestas.TextoBoton.Borra();
    if (reglas.bote && nada_puesto)
        apuestas.TextoBoton(kBotonPasar) = apuestas.MaximaApuesta == 0 ? "Me reservo" : "No voy";
    if (reglas.bote && Falta(asiento) > 0)
        apuestas.TextoBoton(kBotonIgualar) = TextoIgualar(asiento);
    if (algo_puesto) {
        apuestas.TextoBoton(kBotonApostar) = "Finalizar apuesta";
        apuestas.TextoBoton(kBotonAnular) = "Anular apostado";
    }
}

Integer LoQueIguala(Integer asiento) {
    return std::min(Falta(asiento), RestoDe(asiento));
}

bool ApuestaInsuficiente(Integer asiento) {
    return Falta(asiento) > 0 && RestoDe(asiento) > 0;
}
