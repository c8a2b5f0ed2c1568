// No operation makes or loses a point: the stacks, the pot and what stands before the seats sum to the same
// before and after, whatever the table.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

#include "betting/bank.h"
#include "betting/bet_state.h"
#include "betting/money_repair.h"
#include "betting/placing.h"
#include "betting/prizes.h"
#include "tests/support/money.h"

namespace {

using namespace prueba;
using rc::gen::inRange;

Integer Entre(int minimo, int maximo) {
    return static_cast<Integer>(*inRange(minimo, maximo + 1));
}

void NadieDebe() {
    for (int asiento = 1; asiento <= 4; ++asiento)
        RC_ASSERT(RestoDe(asiento) >= 0);
}

struct DineroProp : MesaConFichas {
    void PonMesa() {
        SetUp();
        movidas.clear();
        estado.ApuestaMaxima = Entre(5, 995);
        estado.JugadorBanca = Entre(1, 4);
        estado.SerieActual = Entre(1, 4);
        for (int asiento = 1; asiento <= 4; ++asiento) {
            estado.EstadoJugador(asiento) = kActivado;
            estado.NumCartas(asiento, 1) = Entre(0, 1);
            Tiene(asiento, Entre(0, 995));
        }
    }

    // As the board and the automatic seats do it: each chip only when nothing stands against it.
    static int Apuesta(Integer asiento, Integer cantidad, const ReglasApuesta& reglas) {
        int puesto = 0;
        for (const int d : FichasParaApostar(asiento, cantidad)) {
            if (JuzgaFicha(asiento, d, reglas).rechazo != Rechazo::Ninguno)
                continue;
            AnotaFicha(asiento, d, reglas);
            puesto += ValorDe(d);
        }
        return puesto;
    }

    // In Póker the chips of the bets are in the pot, with a bank they stand before the seats.
    static int EnLaMesa(const ReglasApuesta& reglas) {
        return EnFichas() + (reglas.bote ? 0 : EnApuestas());
    }

    static ReglasApuesta UnasReglas() {
        constexpr std::array kTodas{kComoPoker, kComoBlackJack, kComoSieteYMedia};
        return kTodas[static_cast<std::size_t>(Entre(0, 2))];
    }
};

RC_GTEST_FIXTURE_PROP(DineroProp, ApostarYAnularDejaLaMesaComoEstaba, ()) {
    PonMesa();
    const ReglasApuesta reglas = UnasReglas();
    Integer asiento =
        estado.JugadorBanca; // who bets is another: what the bank holds is the ceiling
    for (int pasos = Entre(1, 3); pasos > 0; --pasos)
        SiguienteAsiento(asiento);
    apuestas.FaseApuesta = *rc::gen::elementOf(kFasesConApuesta);
    const bool al_apostar = apuestas.FaseApuesta == kFaseApuestas;
    const EstadoJuego antes = estado;
    const EstadoApuestas apuestas_antes = apuestas;
    const int total = EnLaMesa(reglas);

    int puesto = 0;
    for (int veces = Entre(1, 4); veces > 0; --veces)
        puesto += Apuesta(asiento, Entre(-5, 995), reglas);
    RC_ASSERT(EnLaMesa(reglas) == total);
    RC_ASSERT(ApuestaTotal(asiento, estado.SerieActual) == puesto);
    RC_ASSERT(apuestas.ApuestaEnCurso == puesto);
    RC_ASSERT(puesto <= estado.ApuestaMaxima || (reglas.maxima_solo_al_apostar && !al_apostar));
    RC_ASSERT(puesto <= TechoDe(asiento, reglas).puntos || (reglas.bote && al_apostar));
    NadieDebe();

    AnulaApuestas(asiento, reglas, Anota());
    apuestas.DesgloseFichas = apuestas_antes.DesgloseFichas;
    RC_ASSERT(estado == antes);
    RC_ASSERT(apuestas == apuestas_antes);
}

RC_GTEST_FIXTURE_PROP(DineroProp, DeLaBancaSaleLoQueCobraElAsiento, ()) {
    PonMesa();
    const int total = EnFichas();
    const Integer asiento = Entre(1, 4);
    const Integer tenia = RestoDe(asiento), banca = RestoDe(estado.JugadorBanca);
    const Integer cantidad = Entre(-50, 1200);
    PagaDeBanca(asiento, cantidad, [&](const FichaMovida&) { RC_ASSERT(EnFichas() == total); });
    RC_ASSERT(EnFichas() == total);
    NadieDebe();
    if (asiento != estado.JugadorBanca)
        RC_ASSERT(RestoDe(asiento) == tenia + std::clamp<int>(cantidad, 0, banca));
}

RC_GTEST_FIXTURE_PROP(DineroProp, LoQueSeDevuelveLlegaYLoDemasSeQueda, ()) {
    PonMesa();
    const Integer asiento = Entre(1, 4), destino = Entre(1, 4);
    for (const Integer fase : kFasesConApuesta) {
        apuestas.FaseApuesta = fase;
        Apuesta(asiento, Entre(0, 200), kComoBlackJack);
    }
    const int total = EnLaMesa(kComoBlackJack);
    const auto modo = static_cast<Devolucion>(Entre(1, 3));
    DevuelveApuesta(asiento, destino, modo, Anota());
    RC_ASSERT(EnLaMesa(kComoBlackJack) == total);
    const std::vector<int> quedan = Puestas(asiento, estado.SerieActual);
    const int en_la_lista = std::accumulate(quedan.begin(), quedan.end(), 0,
                                            [](int suma, int d) { return suma + ValorDe(d); });
    RC_ASSERT(en_la_lista == ApuestaTotal(asiento, estado.SerieActual));
    if (!movidas.empty())
        RC_ASSERT(movidas.back().en_juego == en_la_lista);
}

RC_GTEST_FIXTURE_PROP(DineroProp, LosPremiosSumanElBoteYPagarloNoPierdeNiUnPunto, ()) {
    PonMesa();
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (const Integer fase : kFasesConApuesta)
            apuestas.Apuesta(asiento, 1, fase) = Entre(0, 60);
        if (*rc::gen::arbitrary<bool>())
            Tiene(asiento, 0);
        apuestas.PuestoJugador(asiento) = Entre(0, 4);
    }
    // Mostly the pot of the bets, sometimes with an earlier hand's, sometimes less than there should be.
    Tiene(kBote, *rc::gen::element(EnApuestas(), EnApuestas() + 35, EnApuestas() / 2));
    const int bote = RestoDe(kBote), total = EnFichas();
    RepartePremios();
    int premios = 0, ganadores = 0;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        premios += apuestas.PremioJugador(asiento);
        ganadores += apuestas.PuestoJugador(asiento) == 1 ? 1 : 0;
        RC_ASSERT(apuestas.PremioJugador(asiento) >= 0);
        const bool cobra = apuestas.PremioJugador(asiento) > 0;
        RC_ASSERT(!cobra || apuestas.PuestoJugador(asiento) == 1 ||
                  apuestas.PuestoJugador(asiento) == 2);
    }
    RC_ASSERT(premios == (ganadores > 0 ? bote : 0));
    PagaBote(Anota(), [] {});
    RC_ASSERT(EnFichas() == total);
}

RC_GTEST_FIXTURE_PROP(DineroProp, RepararGuardaLaSumaQueLaMesaPuedeTener, ()) {
    PonMesa();
    Tiene(kBote, Entre(0, 300));
    for (int asiento = 1; asiento <= 4; ++asiento) {
        if (*rc::gen::arbitrary<bool>())
            Tiene(asiento, 0);
        apuestas.Apuesta(asiento, 1, kFaseApuestas) = Entre(0, 100);
    }
    estado.EstadoJugador(Entre(1, 4)) = Entre(1, 2);
    estado.RestoInicial = Entre(5, 995);
    CuentaJugadores();
    Integer banca = Entre(0, 4);
    if (banca != 0 && estado.EstadoJugador(banca) != kActivado)
        SiguienteAsiento(banca);
    constexpr Integer kMaximo = 995;
    const MesaConDinero mesa{.banca = banca, .resto_maximo = kMaximo};

    const int total = EnFichas();
    ReparaPartidaConDinero(mesa);
    const bool sana = total > 0 && total <= kMaximo * estado.NumJugadores;
    RC_ASSERT(EnFichas() == (sana ? total : estado.RestoInicial * estado.NumJugadores));
    for (int asiento = 1; asiento <= 4; ++asiento)
        RC_ASSERT(estado.EstadoJugador(asiento) == kActivado || RestoDe(asiento) == 0);
    RC_ASSERT(banca == 0 || RestoDe(kBote) == 0);

    const EstadoJuego reparado = estado;
    ReparaPartidaConDinero(mesa);
    RC_ASSERT(estado == reparado);
}

} // namespace
