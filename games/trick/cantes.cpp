#include "games/trick/cantes.h"

#include <string>

#include "core/game_state.h"
#include "games/common/deck_table.h"
#include "games/common/hand_queries.h"
#include "games/common/trick_state.h"
#include "games/common/trick_values.h"
#include "games/trick/trick_view.h"
#include "table/announcements.h"
#include "table/card_names.h"
#include "table/messages.h"

namespace {

constexpr int kSerie = 1;
constexpr int kTantosCante = 20, kTantosCanteTriunfo = 40;

void EnsenaTute(Integer asiento) {
    std::vector<Integer> lugares;
    for (Integer lugar = 1; lugar <= estado.NumCartas(asiento, kSerie); ++lugar) {
        if (estado.Mano(asiento, kSerie, lugar, kValor) == bazas.TuteEnMano)
            lugares.push_back(lugar);
    }
    DiDe(asiento, "canta Tute de " + estado.NombreValorPlural(bazas.TuteEnMano));
    Pausa(500);
    ParpadeaCartas(asiento, lugares, "Tute");
    bazas.TuteCantado = true;
}

// The suit to sing, 0 none.
Integer PaloQueCanta(Integer asiento) {
    Integer elegido = 0;
    Integer menos = 0;
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        if (!bazas.PaloCantable(palo))
            continue;
        const Integer cartas = CuentaPalo(asiento, palo);
        if (elegido == 0 || cartas < menos || (cartas == menos && palo == estado.PaloTriunfo)) {
            elegido = palo;
            menos = cartas;
        }
    }
    return elegido;
}

std::string PalabrasDelCante(Integer palo) {
    return palo == estado.PaloTriunfo ? "Cuarenta" : std::string("Veinte en ") + NombreDePalo(palo);
}

void EnsenaCante(Integer asiento, Integer palo) {
    std::vector<Integer> lugares;
    for (const Integer valor : {kCaballo, kRey}) {
        if (BuscaCarta(asiento, palo, valor))
            lugares.push_back(bazas.LugarCarta);
    }
    Pausa(500);
    ParpadeaCartas(asiento, lugares, PalabrasDelCante(palo));
}

void Canta(Integer asiento, Integer palo) {
    DiDe(asiento, std::string("canta ") + (palo == estado.PaloTriunfo ? "cuarenta" : "veinte") +
                      " en " + NombreDePalo(palo));
    EnsenaCante(asiento, palo);
    bazas.TantosBaza = palo == estado.PaloTriunfo ? kTantosCanteTriunfo : kTantosCante;
    bazas.TantosJugador(asiento) += bazas.TantosBaza;
    bazas.TantosDeBaza(estado.NumBaza) += bazas.TantosBaza;
    bazas.PaloCantado(palo) = asiento;
    bazas.RegistroBazas(asiento + kFilaCante, estado.NumBaza) = palo;
}

void CantaAsiento(Integer asiento) {
    bazas.JugadorCante = asiento;
    ExaminaMano(asiento);
    if (bazas.TuteEnMano != 0) {
        EnsenaTute(asiento);
        return;
    }
    const Integer palo = PaloQueCanta(asiento);
    if (palo != 0)
        Canta(asiento, palo);
}

} // namespace

void CantaTrasBaza() {
    CantaAsiento(estado.GanadorBaza);
    if (!bazas.TuteCantado && estado.ModalidadJuego == kDosParejas)
        CantaAsiento(estado.ParejaAsiento(estado.GanadorBaza));
}

Integer AsientoConTute() {
    for (const Integer valor : {kRey, kCaballo}) {
        for (Integer asiento = 4; asiento >= 1; --asiento) {
            ExaminaMano(asiento);
            if (bazas.TuteEnMano == valor)
                return asiento;
        }
    }
    return 0;
}
