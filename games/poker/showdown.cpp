#include "games/poker/showdown.h"

#include <algorithm>
#include <string>
#include <vector>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/prizes.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "games/common/hands.h"
#include "games/poker/hand_layout.h"
#include "games/poker/hand_reading.h"
#include "games/poker/hand_text.h"
#include "games/poker/hand_value.h"
#include "games/poker/poker_state.h"
#include "games/poker/seat_turn.h"
#include "table/bet_board.h"
#include "table/messages.h"
#include "table/seat_drawing.h"

namespace {

std::vector<Integer> ConCartas() {
    std::vector<Integer> asientos;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (TieneCartas(asiento))
            asientos.push_back(asiento);
    }
    return asientos;
}

void QuitaRotulos() {
    estado.RotuloSerie.Borra();
    estado.ParpadeoRotulo.Borra();
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        RedibujarAsiento(asiento);
}

Long ValorDeLaMano(Integer asiento) {
    return ValorJugada(poker.MejorJugada(asiento), asiento);
}

// Equal hands share a rank, and the next one is the next number.
void ClasificaManos() {
    std::vector<Integer> asientos = ConCartas();
    for (const Integer asiento : asientos)
        AnalizaJugada(asiento);
    std::ranges::stable_sort(asientos, std::ranges::greater{}, ValorDeLaMano);
    apuestas.PuestoJugador.Borra();
    Integer puesto = 0;
    Long anterior = 0;
    for (const Integer asiento : asientos) {
        const Long valor = ValorDeLaMano(asiento);
        if (puesto == 0 || valor != anterior)
            ++puesto;
        apuestas.PuestoJugador(asiento) = puesto;
        anterior = valor;
    }
}

std::vector<Integer> LosGanadores() {
    std::vector<Integer> ganadores;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (apuestas.PuestoJugador(asiento) == 1)
            ganadores.push_back(asiento);
    }
    return ganadores;
}

void ProclamaGanador() {
    const std::vector<Integer> ganadores = LosGanadores();
    apuestas.Ganadores = EnteroDe(static_cast<int>(ganadores.size()));
    estado.GanadorMano = ganadores.size() == 1 ? ganadores.front() : Integer{0};
    if (estado.GanadorMano != 0)
        ParpadeaGanador();
}

std::string TextoDeLasManos() {
    if (estado.JugadoresEnMano <= 1)
        return "";
    std::string texto;
    for (const Integer asiento : ConCartas()) {
        texto += estado.NombreJugador(asiento) + " : " +
                 TextoJugada(asiento, poker.MejorJugada(asiento)) + estado.SaltoLinea;
    }
    return texto + estado.SaltoLinea;
}

std::string TextoDelGanador() {
    if (estado.GanadorMano != 0)
        return TextoGana(estado.GanadorMano, "la mano");
    const std::vector<Integer> ganadores = LosGanadores();
    std::string texto = "Han empatado la mano ";
    for (std::size_t i = 0; i < ganadores.size(); ++i) {
        if (i > 0)
            texto += i + 1 == ganadores.size() ? " y " : ", ";
        texto += estado.NombreJugador(ganadores[i]);
    }
    return texto;
}

void CuentaElFinal() {
    const std::string texto = TextoDeLasManos() + TextoDelGanador();
    // Four names do not fit in one line.
    const int de_mas = apuestas.Ganadores == 4 ? 1 : 0;
    RepartePremios();
    Mensaje("Final de la mano", texto, LineasDe(texto) + de_mas, 1);
}

std::string CartaEscrita(Integer valor) {
    switch (valor) {
    case 1:
        return "A";
    case 11:
        return "J";
    case 12:
        return "Q";
    case 13:
        return "K";
    default:
        return valor > 13 ? "#" : Formato(valor, "#0");
    }
}

std::string CartasEscritas(Integer asiento) {
    OrdenaJugada(asiento, poker.MejorJugada(asiento));
    std::string texto;
    for (int i = 1; i <= estado.NumCartas(asiento, kSeriePoker); ++i)
        texto += (i > 1 ? " " : "") + CartaEscrita(poker.JugadaOrdenada(i, 2));
    return texto;
}

void RegistraMano() {
    RegistroJuego& registro = estado.Juegos(estado.JuegosJugados);
    registro.Total = RestoDe(kBote);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        registro.Marcas(asiento, 1) = apuestas.PuestoJugador(asiento);
        if (TieneCartas(asiento)) {
            registro.Texto1(asiento) = Recorta(poker.NombreJugada(poker.MejorJugada(asiento)));
            registro.Texto2(asiento) = CartasEscritas(asiento);
        } else if (!TieneResto(asiento) && ApuestaTotal(asiento, kSeriePoker) == 0) {
            registro.Texto1(asiento) = "----";
        }
    }
}

} // namespace

bool FinalDeMano() {
    estado.ManoEnCurso = false;
    QuitaRotulos();
    ClasificaManos();
    ProclamaGanador();
    CuentaElFinal();
    RegistraMano();
    PagaBote();
    ApuntaMano();
    return EsperaOtraMano();
}
