#include "betting/bank.h"

#include <algorithm>
#include <vector>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "betting/placing.h"
#include "core/game_state.h"
#include "core/numeric.h"

namespace {

// The list of a serie as a value, in the order of placing.
std::vector<int> Lista(Integer asiento) {
    std::vector<int> lista;
    for (int i = 1; i <= apuestas.NumFichasPuestas(asiento, estado.SerieActual); ++i)
        lista.push_back(apuestas.FichasPuestas(asiento, estado.SerieActual, i));
    return lista;
}

void PonLista(Integer asiento, const std::vector<int>& lista) {
    const Integer serie = estado.SerieActual;
    const int habia = apuestas.NumFichasPuestas(asiento, serie);
    for (int i = 1; i <= habia; ++i)
        apuestas.FichasPuestas(asiento, serie, i) = 0;
    for (std::size_t i = 0; i < lista.size(); ++i)
        apuestas.FichasPuestas(asiento, serie, i + 1) = static_cast<Integer>(lista[i]);
    apuestas.NumFichasPuestas(asiento, serie) = static_cast<Integer>(lista.size());
}

// The first chip of the insurance: those behind it, and it, sum to no more than the insurance.
std::ptrdiff_t PrimeraDelSeguro(const std::vector<int>& lista, int seguro) {
    auto primera = static_cast<std::ptrdiff_t>(lista.size());
    for (int suma = 0; primera > 0; --primera) {
        suma += ValorDe(lista[static_cast<std::size_t>(primera - 1)]);
        if (suma > seguro)
            break;
    }
    return primera;
}

void BorraFilas(Integer asiento, Devolucion modo) {
    for (const Integer fase : kFasesConApuesta) {
        const bool del_seguro = fase == kFaseSeguro;
        if (modo == Devolucion::Todo || del_seguro == (modo == Devolucion::Seguro))
            apuestas.Apuesta(asiento, estado.SerieActual, fase) = 0;
    }
}

} // namespace

void PagaDeBanca(Integer asiento, Integer cantidad, const AlMoverFicha& al_mover) {
    for (const int d : FichasParaApostar(estado.JugadorBanca, cantidad)) {
        SumaAlResto(asiento, ValorDe(d));
        SumaAlResto(estado.JugadorBanca, -ValorDe(d));
        al_mover({d, {estado.JugadorBanca}, {asiento}, 0});
    }
}

void DevuelveApuesta(Integer asiento, Integer destino, Devolucion modo,
                     const AlMoverFicha& al_mover) {
    const std::vector<int> lista = Lista(asiento);
    const Integer seguro = apuestas.Apuesta(asiento, estado.SerieActual, kFaseSeguro);
    const auto corte = lista.begin() + PrimeraDelSeguro(lista, seguro);
    const std::vector<int> apostadas(lista.begin(), corte), del_seguro(corte, lista.end());

    std::vector<int> van = lista, quedan;
    if (modo == Devolucion::Seguro) {
        van = del_seguro;
        quedan = apostadas;
    } else if (modo == Devolucion::SinSeguro) {
        van = apostadas;
        quedan = del_seguro;
    }

    int en_juego = ApuestaTotal(asiento, estado.SerieActual);
    BorraFilas(asiento, modo);
    PonLista(asiento, quedan);
    std::for_each(van.rbegin(), van.rend(), [&](int d) {
        en_juego -= ValorDe(d);
        SumaAlResto(destino, ValorDe(d));
        al_mover({d, {asiento, true}, {destino}, EnteroDe(en_juego)});
    });
}
