#include "tests/support/trick_hands.h"

#include "games/common/trick_state.h"
#include "table/deck.h"

#include <string>

namespace prueba {

namespace {

struct FormaMesa {
    Integer juego, jugadores, valores, reparto, paso;
};

constexpr FormaMesa kFormas[] = {
    {kTute, 2, 10, 6, 3},       {kTute, 3, 9, 12, 3},  {kTute, 4, 10, 10, 5},
    {kBrisca, 2, 10, 3, 1},     {kBrisca, 3, 9, 3, 1}, {kBrisca, 4, 10, 3, 1},
    {kCinquillo, 4, 10, 10, 5},
};

void PonValores(bool sin_doses) {
    constexpr Integer kOrdenes[] = {0, 10, 1, 9, 2, 3, 4, 5, 0, 0, 6, 7, 8};
    for (Integer valor = 1; valor <= kRey; ++valor) {
        estado.OrdenCarta(valor) = kOrdenes[valor];
        estado.ValorEnBaraja(valor) = kOrdenes[valor] != 0 && !(sin_doses && valor == 2);
    }
    estado.ValorCarta(kAs) = 11;
    estado.ValorCarta(kTres) = 10;
    estado.ValorCarta(kSota) = 2;
    estado.ValorCarta(kCaballo) = 3;
    estado.ValorCarta(kRey) = 4;
}

void PonForma(const FormaMesa& forma) {
    estado.ValoresPorPalo = forma.valores;
    estado.CartasNormales = static_cast<Integer>(forma.valores * 4);
    estado.TotalBaraja = estado.CartasNormales;
    estado.CartasReparto = forma.reparto;
    estado.PasoReparto = forma.paso;
    estado.MaxCartasMano = forma.reparto;
}

void SientaJugadores(Integer jugadores) {
    estado.NumJugadores = jugadores;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        const bool sobra = (jugadores == 2 && asiento % 2 == 1) || (jugadores == 3 && asiento == 4);
        estado.EstadoJugador(asiento) = sobra ? kDesactivado : kActivado;
        estado.ControlJugador(asiento) = kAutomatico;
        estado.CartasJugador(asiento) = kOcultas;
        estado.NivelJugador(asiento) = 50;
        estado.CaracterJugador(asiento) = kMedio;
        estado.ParejaAsiento(asiento) =
            static_cast<Integer>(asiento <= 2 ? asiento + 2 : asiento - 2);
        estado.OrientacionAsiento(asiento) = asiento;
        estado.NombreJugador(asiento) = "Jugador" + std::to_string(asiento);
    }
}

} // namespace

void MesaDeBazas(Integer juego, Integer jugadores) {
    estado = {};
    bazas = {};
    estado.JuegoActivo = juego;
    estado.ModalidadJuego = kIndividual;
    estado.SentidoJuego = kDirecto;
    estado.PasoSentido = 1;
    estado.SerieActual = 1;
    estado.SerieEnJuego = 1;
    estado.LimitePartida = 3;
    SientaJugadores(jugadores);
    PonValores(jugadores == 3 && juego != kCinquillo);
    for (const FormaMesa& forma : kFormas) {
        if (forma.juego == juego && forma.jugadores == jugadores)
            PonForma(forma);
    }
}

void PonMano(Integer asiento, const std::vector<Carta>& cartas) {
    VaciaMano(asiento);
    int lugar = 0;
    for (const Carta& carta : cartas)
        PonCarta(asiento, 1, ++lugar, carta, estado.CartasJugador(asiento));
    estado.NumCartas(asiento, 1) = static_cast<Integer>(lugar);
}

void EnMesa(Integer asiento, Carta carta) {
    if (bazas.PaloSalida == kSinCarta) {
        bazas.PaloSalida = carta.palo;
        estado.JugadorSalida = asiento;
    }
    bazas.CartaEnMesa(asiento, 1) = carta.palo;
    bazas.CartaEnMesa(asiento, 2) = carta.valor;
}

void TocaA(Integer asiento) {
    estado.JugadorActual = asiento;
    estado.CartasEnBaza = 1;
    for (Integer otro = 1; otro <= 4; ++otro) {
        if (bazas.CartaEnMesa(otro, 1) != kSinCarta)
            ++estado.CartasEnBaza;
    }
    if (bazas.PaloSalida == kSinCarta)
        estado.JugadorSalida = asiento;
}

void YaJugadas(const std::vector<Carta>& cartas) {
    for (const Carta& carta : cartas)
        bazas.CartaJugada(carta.palo, carta.valor) = 1;
}

void SoloQuedanLasManos() {
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (Integer valor = 1; valor <= kRey; ++valor)
            bazas.CartaJugada(palo, valor) = estado.ValorEnBaraja(valor) ? 1 : 0;
    }
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar) {
            bazas.CartaJugada(estado.Mano(asiento, 1, lugar, kPalo),
                              estado.Mano(asiento, 1, lugar, kValor)) = 0;
        }
        bazas.CartaJugada(bazas.CartaEnMesa(asiento, 1), bazas.CartaEnMesa(asiento, 2)) = 0;
    }
}

void Pinta(Carta carta) {
    estado.PaloTriunfo = carta.palo;
    estado.ValorTriunfo = carta.valor;
}

} // namespace prueba
