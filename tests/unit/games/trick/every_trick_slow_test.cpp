// Every trick of four seats, for every trump: 40 x 39 x 38 x 37 x 4 of them.

#include <gtest/gtest.h>

#include <array>

#include "games/common/trick_state.h"
#include "games/trick/card_rules.h"
#include "tests/support/trick_hands.h"

using namespace prueba;

namespace {

constexpr Integer kSale = 1; // the seat that leads

std::vector<Carta> LaBaraja() {
    std::vector<Carta> baraja;
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (const int valor : {1, 2, 3, 4, 5, 6, 7, 10, 11, 12})
            baraja.emplace_back(palo, static_cast<Integer>(valor));
    }
    return baraja;
}

// As, 3, Rey, Caballo, Sota, 7, 6, 5, 4, 2.
int Categoria(const Carta& carta) {
    constexpr int kCategorias[] = {0, 10, 1, 9, 2, 3, 4, 5, 0, 0, 6, 7, 8};
    return kCategorias[carta.valor];
}

// The rule as it is told at the table: a trump takes any other suit, and in one suit the higher card takes.
bool Mata(const Carta& carta, const Carta& otra, Integer triunfo) {
    if (carta.palo == otra.palo)
        return Categoria(carta) > Categoria(otra);
    return carta.palo == triunfo;
}

using Baza = std::array<const Carta*, 5>; // by seat

Integer QuienGana(const Baza& baza, Integer triunfo) {
    Integer gana = kSale;
    for (Integer asiento = kSale + 1; asiento <= 4; ++asiento) {
        if (Mata(*baza[static_cast<std::size_t>(asiento)], *baza[static_cast<std::size_t>(gana)],
                 triunfo))
            gana = asiento;
    }
    return gana;
}

bool EnLaBaza(const Baza& baza, const Carta& carta, int hasta) {
    for (int asiento = 1; asiento < hasta; ++asiento) {
        if (baza[static_cast<std::size_t>(asiento)] == &carta)
            return true;
    }
    return false;
}

// Lays every card that is left before the seat and those behind it; answers how many tricks went to the wrong seat.
long Erradas(const std::vector<Carta>& baraja, Baza& baza, Integer asiento) {
    if (asiento > 4) {
        ResuelveBaza();
        return estado.GanadorBaza == QuienGana(baza, estado.PaloTriunfo) ? 0 : 1;
    }
    long erradas = 0;
    for (const Carta& carta : baraja) {
        if (EnLaBaza(baza, carta, asiento))
            continue;
        baza[static_cast<std::size_t>(asiento)] = &carta;
        if (asiento == kSale)
            bazas.PaloSalida = carta.palo;
        bazas.CartaEnMesa(asiento, 1) = carta.palo;
        bazas.CartaEnMesa(asiento, 2) = carta.valor;
        erradas += Erradas(baraja, baza, static_cast<Integer>(asiento + 1));
    }
    return erradas;
}

} // namespace

TEST(TodasLasBazas, LasGanaLaCartaQueLasMataATodas) {
    const std::vector<Carta> baraja = LaBaraja();
    MesaDeBazas(kBrisca, 4);
    for (Integer triunfo = kOros; triunfo <= kBastos; ++triunfo) {
        estado.PaloTriunfo = triunfo;
        Baza baza{};
        EXPECT_EQ(Erradas(baraja, baza, kSale), 0) << "con triunfo " << triunfo;
    }
}
