#include "games/blackjack/blackjack_settlement.h"

#include <algorithm>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "games/blackjack/blackjack_serie.h"
#include "games/common/bank_hands.h"
#include "table/announcements.h"
#include "table/bet_board.h"
#include "table/messages.h"

namespace {

constexpr int kMasQueVeintiuna = 22; // what a natural counts here
constexpr Integer kElSeguro = 2;     // of DevuelveApuesta

bool TieneSeguro(Integer asiento, Integer serie) {
    return apuestas.Apuesta(asiento, serie, kFaseSeguro) > 0;
}

bool TocaLiquidar(Integer asiento, Integer serie) {
    const int puntos = PuntosBlackJack(asiento, serie);
    return puntos > 0 && (puntos <= kVeintiuna || TieneSeguro(asiento, serie));
}

// The insurance is paid twice, and comes back, when the bank has its natural.
void LiquidaSeguro(Integer asiento, Integer serie) {
    if (!TieneSeguro(asiento, serie))
        return;
    const int premio = 2 * apuestas.Apuesta(asiento, serie, kFaseSeguro);
    const Integer banca = estado.JugadorBanca;
    const bool cobra = EsBlackJack(banca, 1);
    const Integer pagado = EnteroDe(std::min<int>(premio, RestoDe(banca)));
    DiDe(asiento, cobra ? "cobra " + Numero(pagado) + " del seguro" : "pierde el seguro");
    if (cobra)
        PagaDeBanca(asiento, pagado);
    DevuelveApuesta(asiento, cobra ? asiento : banca, kElSeguro);
}

int FuerzaDelAsiento(Integer asiento, Integer serie) {
    return EsBlackJack(asiento, serie) ? kMasQueVeintiuna : PuntosBlackJack(asiento, serie);
}

// The bank's cards are counted in the serie with the seat's number, on purpose: it holds only its first, so that against
// a seat's other series its natural is a plain 21.
int FuerzaDeLaBanca(Integer serie) {
    const int puntos = PuntosBlackJack(estado.JugadorBanca, 1);
    const bool natural = puntos == kVeintiuna && estado.NumCartas(estado.JugadorBanca, serie) == 2;
    return natural ? kMasQueVeintiuna : puntos;
}

Integer Premio(Integer asiento, Integer serie) {
    const int apostado = apuestas.Apuesta(asiento, serie, kFaseApuestas) +
                         apuestas.Apuesta(asiento, serie, kFaseDoblar);
    return EnteroDe(EsBlackJack(asiento, serie) ? apostado * 3 / 2 : apostado);
}

void LiquidaMano(Integer asiento, Integer serie) {
    const int suya = FuerzaDelAsiento(asiento, serie);
    const int banca = FuerzaDeLaBanca(serie);
    const bool banca_pasada = PuntosBlackJack(estado.JugadorBanca, 1) > kVeintiuna;
    if (!banca_pasada && suya < banca)
        PierdeLaSerie();
    else if (!banca_pasada && suya == banca)
        RecuperaLaSerie();
    else
        GanaLaSerie(Premio(asiento, serie));
}

void Liquida(Integer asiento, Integer serie) {
    if (estado.SeriesJugador(asiento) > 1)
        Pausa(500);
    LiquidaSeguro(asiento, serie);
    if (PuntosBlackJack(asiento, serie) <= kVeintiuna)
        LiquidaMano(asiento, serie);
}

} // namespace

void LiquidaBlackJack() {
    LiquidaSeries(TocaLiquidar, Liquida);
}
