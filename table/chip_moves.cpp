#include "table/chip_moves.h"

#include <algorithm>
#include <array>
#include <string>

#include "betting/bank.h"
#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/limits.h"
#include "betting/placing.h"
#include "betting/prizes.h"
#include "core/game_state.h"
#include "core/text.h"
#include "table/announcements.h"
#include "table/chips.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/score_plate.h"
#include "table/seat_drawing.h"
#include "table/table_view.h"
#include "table/trace.h"

namespace {

constexpr int kPausaFicha = 140, kPausaApuesta = 90, kPausaPago = 70;

const ReglasApuesta& Reglas() {
    return JuegoEnMesa().dinero.reglas;
}

std::string TextoMaxima(const Techo& /*techo*/) {
    return "No puede sobrepasar el límite establecido como  máxima apuesta permitida en cada mano, "
           " que tiene seleccionado actualmente un valor de" +
           Formato(Numero(estado.ApuestaMaxima), "@@@@") +
           ". Si desea modificar este límite, puede hacerlo en la pantalla de Normas de Juego.";
}

std::string TextoSoloIgualar(const Techo& /*techo*/) {
    return "Todos los demás jugadores han ido con su resto, por lo tanto,  no puede subir la "
           "apuesta,  sólo  puede igualar la máxima apuesta realizada.";
}

std::string TextoRestoDeRival(const Techo& techo) {
    return "Su apuesta acumulada no puede ser superior al resto de " +
           estado.NombreJugador(techo.rival) + ", que es el mayor resto (" +
           Formato(techo.puntos, "#,##0") + ") de entre los otros jugadores que están en juego.";
}

std::string TextoRestoDeBanca(const Techo& techo) {
    return "Su apuesta en esta mano no puede ser superior al resto del jugador banca (" +
           Formato(techo.puntos, "#,##0") + ").";
}

struct Negativa {
    Rechazo rechazo;
    const char* titulo;
    std::string (*texto)(const Techo&);
    int lineas;
};

constexpr std::array kNegativas{
    Negativa{Rechazo::Maxima, "Límite sobrepasado", TextoMaxima, 4},
    Negativa{Rechazo::SoloIgualar, "No puede subir la apuesta", TextoSoloIgualar, 3},
    Negativa{Rechazo::RestoDeRival, "Límite sobrepasado", TextoRestoDeRival, 3},
    Negativa{Rechazo::RestoDeBanca, "Límite sobrepasado", TextoRestoDeBanca, 2},
};

void DiLaNegativa(const Veredicto& veredicto) {
    const auto negativa = std::ranges::find(kNegativas, veredicto.rechazo, &Negativa::rechazo);
    if (negativa != kNegativas.end())
        Mensaje(negativa->titulo, negativa->texto(veredicto.techo), negativa->lineas, 1);
}

void PintaResto(Integer asiento) {
    PintarFichas(asiento, kAreaRestos + asiento - 1);
    RefrescaTanteo();
}

// A seat that has no such serie, as the bank while another's second one is settled, would lose its cards from the
// show: its chips alone are painted.
void RepintaCobrador(Integer asiento) {
    const Integer serie = estado.SerieActual;
    if (serie == 1 || estado.SeriesJugador(asiento) >= serie)
        RedibujarAsiento(asiento);
    else
        PintaResto(asiento);
}

using Pilas = Tabla<Integer, kDenominaciones>;

Pilas FichasDeLaLista(Integer asiento) {
    Pilas pilas;
    const Integer serie = estado.SerieActual;
    for (int i = 1; i <= apuestas.NumFichasPuestas(asiento, serie); ++i)
        ++pilas(apuestas.FichasPuestas(asiento, serie, i));
    return pilas;
}

// So many chips are on show at the bet place, whatever the list says already.
void MuestraEnApuesta(Integer asiento, const Pilas& a_la_vista) {
    const Pilas segun_la_lista = FichasDeLaLista(asiento);
    for (int d = 1; d <= kDenominaciones; ++d)
        vista.fichas_de_mas(asiento, d) = static_cast<Integer>(a_la_vista(d) - segun_la_lista(d));
}

} // namespace

bool PonFicha(Integer asiento, Integer denominacion) {
    Traza("PonFicha", asiento, denominacion);
    const Veredicto veredicto = JuzgaFicha(asiento, denominacion, Reglas());
    if (veredicto.rechazo != Rechazo::Ninguno) {
        DiLaNegativa(veredicto);
        return false;
    }
    const FichaMovida ficha = AnotaFicha(asiento, denominacion, Reglas());
    // Until it lands the chip is not to be seen where it goes.
    vista.fichas_de_mas(asiento, denominacion) = -1;
    RedibujarAsiento(asiento);
    MueveFicha(ficha);
    vista.fichas_de_mas(asiento, denominacion) = 0;
    if (Reglas().bote)
        RedibujaBote();
    RedibujaApuesta(asiento);
    return true;
}

void ColocaApuesta(Integer asiento, Integer cantidad) {
    Traza("ColocaApuesta", asiento, cantidad);
    for (const int d : FichasParaApostar(asiento, cantidad)) {
        if (!PonFicha(asiento, static_cast<Integer>(d)))
            continue;
        RedibujarAsiento(asiento);
        Pausa(kPausaFicha);
    }
    Pausa(kPausaApuesta);
}

void PagaBote() {
    Traza("PagaBote");
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (apuestas.PremioJugador(asiento) > 0)
            DiDe(asiento, "cobra " + Numero(apuestas.PremioJugador(asiento)));
    }
    PagaBote(MueveFicha, RedibujaBote);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        PintaResto(asiento);
        RedibujaApuesta(asiento);
    }
}

void PagaDeBanca(Integer asiento, Integer cantidad) {
    Traza("PagaDeBanca", asiento, cantidad);
    RedibujarAsiento(asiento);
    PagaDeBanca(asiento, cantidad, [asiento](const FichaMovida& ficha) {
        MueveFicha(ficha);
        RepintaCobrador(asiento);
        RepintaCobrador(estado.JugadorBanca);
        Pausa(kPausaPago);
    });
}

void DevuelveApuesta(Integer asiento, Integer destino, Integer modo) {
    Traza("DevuelveApuesta", asiento, destino, modo);
    if (modo < 1 || modo > 3)
        LanzaIndiceFuera(1, modo, 3);
    Pilas a_la_vista = FichasDeLaLista(asiento);
    DevuelveApuesta(asiento, destino, static_cast<Devolucion>(modo), [&](const FichaMovida& ficha) {
        --a_la_vista(ficha.d);
        MuestraEnApuesta(asiento, a_la_vista);
        RedibujaApuesta(asiento);
        MueveFicha(ficha);
        RepintaCobrador(destino);
    });
    MuestraEnApuesta(asiento, FichasDeLaLista(asiento));
    RedibujaApuesta(asiento);
}
