#include "session/word_tables.h"

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "core/game_state.h"
#include "table/game_row.h"

namespace {

struct Titulo {
    int selector;
    const char* texto;
};

constexpr Titulo kTitulos[] = {
    {1, " Sistema de reparto  "},     {2, " Ley de apertura  "},     {3, " Comodines en juego  "},
    {4, " Modalidad de juego  "},     {5, " Cartas en la baraja  "}, {8, " Sentido del juego  "},
    {9, " Ventana de información  "},
};

constexpr Titulo kTitulosPorAsiento[] = {
    {10, " Estado del jugador  "},
    {20, " Cartas del jugador  "},
    {24, " Control del juego  "},
    {30, " Carácter del jugador  "},
};

void PonTitulos() {
    for (const Titulo& titulo : kTitulos)
        estado.TituloSelector(titulo.selector) = titulo.texto;
    for (const Titulo& titulo : kTitulosPorAsiento) {
        for (int asiento = 1; asiento <= 4; ++asiento)
            estado.TituloSelector(titulo.selector + asiento) = titulo.texto;
    }
}

void PonAsientos() {
    constexpr Integer kPareja[] = {0, 3, 4, 1, 2};
    for (int asiento = 1; asiento <= 4; ++asiento) {
        estado.ParejaAsiento(asiento) = kPareja[asiento];
        estado.OrientacionAsiento(asiento) = static_cast<Integer>(asiento);
    }
}

} // namespace

void PonTablasDePalabras() {
    constexpr const char* kNumeros[] = {"",       "Una",   "Dos",  "Tres",
                                        "Cuatro", "Cinco", "Seis", "Siete"};
    PonAsientos();
    PonTitulos();
    estado.TextoOrdenar(4) = "Ordenar cartas manualmente";
    estado.TextoOrdenar(5) = "Ordenar cartas automáticamente";
    for (int d = 1; d <= kDenominaciones; ++d)
        apuestas.ValorFicha(d) = ValorDe(d);
    for (int i = 1; i <= 7; ++i)
        estado.NombreNumero(i) = kNumeros[i];
    for (const FilaJuego* fila : FilasDeJuegos())
        estado.NombreJuego(fila->id) = fila->nombre;
}
