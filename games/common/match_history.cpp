#include "games/common/match_history.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "betting/chips.h"
#include "core/game_state.h"
#include "table/game_row.h"
#include "table/messages.h"

namespace {

constexpr Integer kAsientos = 4;
// Nobody tries longer; and a script that answers every question with a yes comes to its end.
constexpr int kIntentos = 10;

// A match of pairs, also in Póker, where the pair of the last seat with chips is told as the winner.
bool EnParejas() {
    return estado.ModalidadJuego == kDosParejas && JuegoEnMesa().informes.cuenta_parejas;
}

bool Activo(Integer asiento) {
    return estado.EstadoJugador(asiento) == kActivado;
}

std::vector<Integer> AsientosGanadores() {
    if (JuegoEnMesa().partida.ganadores != nullptr)
        return JuegoEnMesa().partida.ganadores();
    const Integer ganador = estado.GanadorPartida;
    if (ganador < 1 || ganador > kAsientos)
        return {};
    if (!EnParejas())
        return {ganador};
    return ganador % 2 == 0 ? std::vector<Integer>{2, 4} : std::vector<Integer>{1, 3};
}

std::vector<Integer> LosDemas(const std::vector<Integer>& ganadores) {
    std::vector<Integer> otros;
    for (Integer asiento = 1; asiento <= kAsientos; ++asiento) {
        if (Activo(asiento) && std::ranges::count(ganadores, asiento) == 0)
            otros.push_back(asiento);
    }
    return otros;
}

// What every seat began with: all the money of the table, shared out.
int RestoDePartida() {
    int dinero = RestoDe(kBote);
    int asientos = 0;
    for (Integer asiento = 1; asiento <= kAsientos; ++asiento) {
        dinero += RestoDe(asiento);
        asientos += Activo(asiento) ? 1 : 0;
    }
    return dinero / std::max(asientos, 1);
}

int FiguraDe(Integer asiento) {
    return JuegoEnMesa().dinero.hay ? RestoDe(asiento) - RestoDePartida()
                                    : estado.JuegosGanados(asiento);
}

// A pair has one figure, at its first name: its money together, or the hands of the team, which are counted at its
// first seat.
void JuntaFiguras(std::vector<Anotado>& pareja) {
    if (JuegoEnMesa().dinero.hay)
        pareja.front().figura += pareja.back().figura;
    pareja.back().figura = 0;
}

std::vector<Anotado> Apunta(const std::vector<Integer>& asientos) {
    std::vector<Anotado> grupo;
    grupo.reserve(asientos.size());
    for (const Integer asiento : asientos)
        grupo.push_back({estado.NombreJugador(asiento), FiguraDe(asiento)});
    if (EnParejas() && grupo.size() == 2)
        JuntaFiguras(grupo);
    return grupo;
}

void CuentaFallo() {
    const std::string texto = "No se ha podido grabar el fichero " +
                              NombreHistorico(estado.JuegoActivo) +
                              ". Compruebe que hay sitio y se puede escribir en la carpeta " +
                              estado.CarpetaTrabajo + ".";
    Mensaje("Error al guardar los datos", texto, LineasDe(texto), 1);
}

bool QuiereAnotarla() {
    Mensaje("Histórico de partidas jugadas", "¿Se actualiza el Histórico de partidas?", 1, 2);
    return estado.RespuestaMensaje;
}

} // namespace

PartidaTerminada RecuerdaPartida() {
    const std::vector<Integer> ganadores = AsientosGanadores();
    return {.fin = plataforma().Ahora(),
            .ganadores = Apunta(ganadores),
            .perdedores = Apunta(LosDemas(ganadores)),
            .por_parejas = EnParejas()};
}

void PreguntaPorHistorico() {
    const PartidaTerminada partida = RecuerdaPartida();
    for (int intento = 1; intento <= kIntentos && QuiereAnotarla(); ++intento) {
        if (AnadeAlHistorico(estado.JuegoActivo, partida) == ErrorArchivo::Ninguno)
            return;
        CuentaFallo();
    }
}
