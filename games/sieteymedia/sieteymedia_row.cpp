#include "games/sieteymedia/sieteymedia_row.h"

#include "betting/stakes.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "games/common/series.h"
#include "games/common/series_view.h"
#include "games/sieteymedia/sieteymedia_tutor.h"
#include "table/deck_setup.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/sounds.h"

namespace {

void PreparaBaraja() {
    PonMedidas(
        {.tipo = kBarajaEspanola, .valores_por_palo = 10, .reparto = 1, .paso = 1, .max_mano = 14});
    PonReglasDeBanca();
    for (int valor = 1; valor <= 7; ++valor) {
        estado.ValorCarta(valor) = valor;
        if (valor <= 3)
            estado.ValorCarta(valor + 9) = Currency::DeDiezmilesimas(Currency::kUnidad / 2);
    }
}

// The pile stands by the bank.
void ColocaMazo() {
    constexpr int kBajoLaBanca = 11, kAlLado = 18, kAlLadoDerecho = 127;
    switch (estado.JugadorBanca) {
    case 1:
        estado.MazoX = EnteroDe(estado.MesaDerecha(1) + kAlLado);
        break;
    case 2:
        estado.MazoY = EnteroDe(estado.MesaAbajo(2) + kBajoLaBanca);
        break;
    case 3:
        estado.MazoX = EnteroDe(estado.MesaIzquierda(3) - kAlLadoDerecho);
        break;
    case 4:
        estado.MazoY = EnteroDe(estado.MesaArriba(4) - kAltoCarta - kAlLado);
        break;
    default:
        break;
    }
}

// The seat turns its covered card up; with seven and a half its turn is over.
bool VolteaSerie(Puntero puntero, int /*lugar*/) {
    if (puntero != Puntero::Voltear)
        return false;
    constexpr float kSieteYMediaJusto = 7.5F;
    const Integer asiento = estado.JugadorActual;
    const Integer serie = estado.SerieActual;
    Sonido(0, sonido::kPosa);
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar)
        estado.Mano(asiento, serie, lugar, kTapada) = 0;
    RedibujarAsiento(asiento);
    if (PuntosSerie(asiento, serie) == kSieteYMediaJusto)
        estado.EsperandoJugada = false;
    return true;
}

bool Recibe(Integer asiento, bool /*a_mano*/) {
    return TieneResto(asiento);
}

} // namespace

const FilaJuego& FilaSieteYMedia() {
    static const FilaJuego kFila{
        .id = kSieteYMedia,
        .nombre = "Siete y media",
        .sin_terminar = true,
        .baraja = {.prepara = PreparaBaraja,
                   .coloca_mazo = ColocaMazo,
                   .clave_orden = ClaveDeSerie},
        .reparto = {.tapa = true, .recibe = Recibe},
        .sorteo = {.da_banca = true,
                   .primera = "Se  ha  sorteado  el  jugador  que  comienza  siendo  banca.",
                   .antes = "El primer jugador banca es "},
        .entrada = {.puntero = PunteroDeSerie, .clic = VolteaSerie, .tutor = AconsejaSiete},
        .pintura = {.botones_asiento = PonBotonesDeSerie,
                    .puntos = PuntosSerie,
                    .rotulo_continuar = RotuloDeSerie},
        .dinero = {.hay = true},
        .normas = {.reglas = {Regla::Reparto, Regla::RestoInicial, Regla::ApuestaMaxima}},
    };
    return kFila;
}
