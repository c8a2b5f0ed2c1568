#include "games/sieteymedia/sieteymedia_row.h"

#include "betting/stakes.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "games/common/bank_buttons.h"
#include "games/common/bank_invariants.h"
#include "games/common/money_hands.h"
#include "games/common/series.h"
#include "games/common/series_view.h"
#include "games/sieteymedia/sieteymedia.h"
#include "games/sieteymedia/sieteymedia_console.h"
#include "games/sieteymedia/sieteymedia_input.h"
#include "games/sieteymedia/sieteymedia_invariants.h"
#include "games/sieteymedia/sieteymedia_serie.h"
#include "games/sieteymedia/sieteymedia_statistics.h"
#include "games/sieteymedia/sieteymedia_tutor.h"
#include "table/deck_setup.h"
#include "table/game_row.h"
#include "table/layout.h"

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

// The pile goes with the bank.
void PasaLaBancaYElMazo() {
    PasaLaBanca();
    ColocarMazo();
}

Integer BancaSiguiente() {
    return series.CambiaBanca ? series.NuevaBanca : estado.JugadorBanca;
}

// Nothing is offered, and nobody has sung.
void OlvidaSeries() {
    series = {};
}

// The match goes on while two seats have chips; the last one of them is the winner when there is no other.
bool QuedaUnoSolo() {
    Integer con_resto = 0;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) != kActivado || !TieneResto(asiento))
            continue;
        estado.GanadorPartida = asiento;
        ++con_resto;
    }
    return con_resto <= 1;
}

bool Recibe(Integer asiento, bool /*a_mano*/) {
    return TieneResto(asiento);
}

} // namespace

const FilaJuego& FilaSieteYMedia() {
    static const FilaJuego kFila{
        .id = kSieteYMedia,
        .nombre = "Siete y media",
        .tema = 3150,
        .driver = ManoSieteYMedia,
        .baraja = {.prepara = PreparaBaraja,
                   .coloca_mazo = ColocaMazo,
                   .clave_orden = ClaveDeSerie},
        .reparto = {.tapa = true, .recibe = Recibe},
        .sorteo = {.da_banca = true,
                   .primera = "Se  ha  sorteado  el  jugador  que  comienza  siendo  banca.",
                   .antes = "El primer jugador banca es "},
        .entrada = {.puntero = PunteroDeSiete,
                    .clic = ClicDeSiete,
                    .clic_control = ClicEnBotonDeSerie,
                    .tutor = AconsejaSiete},
        .pintura = {.botones_asiento = PonBotonesDeSiete,
                    .puntos = PuntosDescubiertos,
                    .rotulo_continuar = RotuloDeSerie},
        .dinero = {.hay = true, .banca_siguiente = BancaSiguiente},
        .mano = {.pasa_la_mano = PasaLaBancaYElMazo, .limpia = LimpiaManoConDinero},
        .partida = {.nueva = OlvidaSeries, .acabada = QuedaUnoSolo},
        .normas = {.reglas = {Regla::Reparto, Regla::RestoInicial, Regla::ApuestaMaxima}},
        .informes = {.hoja = InformesDeJuego::Hoja::Series,
                     .cabecera = "Mano   Banca       ",
                     .resultado = "Resultado",
                     .estadis = EstadisSiete},
        .revision = {.paso = RevisaDineroDeBanca,
                     .mano = RevisaManoSiete,
                     .partida = RevisaPartidaSiete},
        .procedimientos = ProcedimientosDeSiete,
    };
    return kFila;
}
