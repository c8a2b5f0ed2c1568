#include "games/trick/trick_invariants.h"

#include <algorithm>
#include <vector>

#include "core/game_state.h"
#include "core/invariant.h"
#include "games/common/trick_state.h"

namespace {

struct Naipe {
    int palo = 0, valor = 0;
};

void ExigeEnBaza(bool cumple, int baza, const char* regla) {
    Exige(cumple, "baza {}: {}", baza, regla);
}

bool Tute() {
    return estado.JuegoActivo == kTute;
}

// The card that the seat played in the trick; palo 0 for none.
Naipe Jugada(int asiento, int baza) {
    return {bazas.RegistroBazas(asiento + kFilaPalo, baza),
            bazas.RegistroBazas(asiento + kFilaValor, baza)};
}

int Orden(Naipe n) {
    return estado.OrdenCarta(n.valor);
}

std::vector<int> Jugadores() {
    std::vector<int> activos;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) == kActivado)
            activos.push_back(asiento);
    }
    return activos;
}

// Each card of the deck is in one place: played, in a hand, in the stock or turned up.
void RevisaCartas() {
    Tabla<int, 5, 13> veces;
    for (int palo = kOros; palo <= kBastos; ++palo) {
        for (int valor = 1; valor <= 12; ++valor)
            veces(palo, valor) += bazas.CartaJugada(palo, valor) != 0 ? 1 : 0;
    }
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar)
            ++veces(estado.Mano(asiento, 1, lugar, kPalo), estado.Mano(asiento, 1, lugar, kValor));
    }
    for (int i = 0; i < estado.CartasEnMazo; ++i)
        ++veces(estado.Baraja(estado.PosicionMazo + i, 1),
                estado.Baraja(estado.PosicionMazo + i, 2));
    if (estado.CartasEnMazo > 0)
        ++veces(estado.PaloTriunfo, estado.ValorTriunfo);
    for (int palo = kOros; palo <= kBastos; ++palo) {
        for (int valor = 1; valor <= 12; ++valor) {
            Exige(veces(palo, valor) == (estado.ValorEnBaraja(valor) ? 1 : 0),
                  "la carta {} de palo {} está {} veces", valor, palo, veces(palo, valor));
        }
    }
}

// Only a Tute leaves cards unplayed.
void RevisaQueSeAcabo() {
    Exige(Tute() || !bazas.TuteCantado, "en Brisca no se canta");
    for (const int asiento : Jugadores())
        Exige(bazas.TuteCantado || estado.NumCartas(asiento, 1) == 0, "quedan cartas por jugar");
    Exige(bazas.TuteCantado || estado.CartasEnMazo == 0, "quedan cartas en el mazo");
}

// The first trick that starts without a stock.
int PrimeraSinMazo() {
    const int jugadores = static_cast<int>(Jugadores().size());
    const int mazo = estado.TotalBaraja - jugadores * estado.CartasReparto;
    return mazo / jugadores + 1;
}

// Plays the log of the hand again.
class Repeticion {
public:
    // The tantos of each seat from the tricks it took and the suits it sang.
    void CuentaTantos() {
        for (int baza = 1; baza <= estado.NumBaza; ++baza) {
            Currency tantos;
            for (const int asiento : jugadores_)
                tantos += estado.ValorCarta(Jugada(asiento, baza).valor);
            const bool ultima =
                estado.NumCartas(bazas.GanadorDeBaza(baza), 1) == 0 && baza == estado.NumBaza;
            tantos += Tute() && ultima ? 10 : 0;
            ganados_[static_cast<std::size_t>(bazas.GanadorDeBaza(baza))] += tantos;
            Exige(bazas.TantosDeBaza(baza) == tantos + TantosCantados(baza),
                  "los tantos de la baza {} no son los de sus cartas", baza);
        }
    }

    void Juega() {
        for (int baza = 1; baza <= estado.NumBaza; ++baza) {
            RevisaBaza(baza);
            sale_ = bazas.GanadorDeBaza(baza);
        }
        for (int asiento = 1; asiento <= 4; ++asiento) {
            const auto a = static_cast<std::size_t>(asiento);
            Exige(bazas.TantosJugador(asiento) == ganados_[a],
                  "los tantos del asiento {} no son los de sus bazas", asiento);
        }
    }

private:
    int sale_ = estado.JugadorMano;
    std::vector<int> jugadores_ = Jugadores();
    std::vector<Currency> ganados_ = std::vector<Currency>(5);

    void RevisaBaza(int baza) const {
        Naipe mejor = Jugada(sale_, baza);
        int ganador = sale_;
        for (const int asiento : jugadores_) {
            const Naipe suya = Jugada(asiento, baza);
            ExigeEnBaza(suya.palo != 0, baza, "falta una carta");
            if (Tute() && baza >= PrimeraSinMazo() && asiento != sale_)
                RevisaSeguimiento(asiento, baza);
            if (Gana(suya, mejor)) {
                mejor = suya;
                ganador = asiento;
            }
        }
        ExigeEnBaza(bazas.GanadorDeBaza(baza) == ganador, baza, "no la ganó la carta más alta");
        for (const int asiento : jugadores_) {
            ExigeEnBaza(bazas.RegistroBazas(asiento + kFilaGana, baza) ==
                            (asiento == ganador ? 1 : 0),
                        baza, "la marca del ganador no está en su sitio");
        }
    }

    static bool Gana(Naipe una, Naipe otra) {
        if (una.palo == otra.palo)
            return Orden(una) > Orden(otra);
        return una.palo == estado.PaloTriunfo;
    }

    // What a seat still held when it played in this trick: nothing has been drawn since.
    static std::vector<Naipe> ManoAntesDe(int asiento, int baza) {
        std::vector<Naipe> mano;
        for (int b = baza; b <= estado.NumBaza; ++b)
            mano.push_back(Jugada(asiento, b));
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar) {
            mano.push_back(
                {estado.Mano(asiento, 1, lugar, kPalo), estado.Mano(asiento, 1, lugar, kValor)});
        }
        return mano;
    }

    // 1 over the card led, 2 of its suit, 3 a trump, 4 anything.
    static int Clase(Naipe salida, Naipe n) {
        if (n.palo == salida.palo)
            return Orden(n) > Orden(salida) ? 1 : 2;
        return n.palo == estado.PaloTriunfo ? 3 : 4;
    }

    void RevisaSeguimiento(int asiento, int baza) const {
        const Naipe salida = Jugada(sale_, baza);
        int obligada = 4;
        for (const Naipe n : ManoAntesDe(asiento, baza))
            obligada = std::min(obligada, Clase(salida, n));
        Exige(Clase(salida, Jugada(asiento, baza)) == obligada,
              "baza {}: el asiento {} no sigue como debe", baza, asiento);
    }

    Currency TantosCantados(int baza) {
        Currency cantado;
        for (const int asiento : jugadores_) {
            const int palo = bazas.RegistroBazas(asiento + kFilaCante, baza);
            if (palo == 0)
                continue;
            RevisaCante(asiento, palo, baza);
            const Currency tantos = palo == estado.PaloTriunfo ? 40 : 20;
            ganados_[static_cast<std::size_t>(asiento)] += tantos;
            cantado += tantos;
        }
        return cantado;
    }

    // Who sings holds the Caballo and the Rey, and its side has won the trick.
    void RevisaCante(int asiento, int palo, int baza) const {
        const int ganador = bazas.GanadorDeBaza(baza);
        const bool pareja =
            estado.ModalidadJuego == kDosParejas && estado.ParejaAsiento(ganador) == asiento;
        ExigeEnBaza(asiento == ganador || pareja, baza, "cantó quien no debía");
        ExigeEnBaza(bazas.PaloCantado(palo) == asiento, baza, "el cante no está apuntado");
        int suyas = 0;
        for (const Naipe n : ManoAntesDe(asiento, baza + 1))
            suyas += n.palo == palo && (n.valor == 11 || n.valor == 12) ? 1 : 0;
        ExigeEnBaza(suyas == 2, baza, "cantó sin tener el caballo y el rey");
    }
};

void RevisaTotalDeTantos() {
    Currency total;
    for (int asiento = 1; asiento <= 4; ++asiento)
        total += bazas.TantosJugador(asiento);
    Currency debido = Tute() ? 130 : 120;
    for (int palo = kOros; palo <= kBastos; ++palo) {
        if (bazas.PaloCantado(palo) != 0)
            debido += palo == estado.PaloTriunfo ? 40 : 20;
    }
    Exige(bazas.TuteCantado ? total < debido : total == debido, "la mano suma {} tantos",
          total.Real());
}

Currency TantosDe(int ganador) {
    Currency tantos = bazas.TantosJugador(ganador);
    if (estado.ModalidadJuego == kDosParejas)
        tantos += bazas.TantosJugador(estado.ParejaAsiento(ganador));
    return tantos;
}

void RevisaGanador() {
    const bool parejas = estado.ModalidadJuego == kDosParejas;
    const int ultimo = parejas ? 2 : 4;
    Exige(estado.GanadorMano >= 1 && estado.GanadorMano <= ultimo, "la mano tiene ganador");
    if (bazas.TuteCantado) {
        const int equipo =
            parejas && bazas.JugadorCante > 2 ? bazas.JugadorCante - 2 : int{bazas.JugadorCante};
        Exige(estado.GanadorMano == equipo, "el Tute gana la mano");
        return;
    }
    for (int otro = 1; otro <= ultimo; ++otro)
        Exige(TantosDe(otro) <= TantosDe(estado.GanadorMano),
              "gana la mano quien más tantos tiene");
}

void RevisaRegistro(int n) {
    const RegistroJuego& registro = estado.Juegos(n);
    int ganadores = 0;
    int tantos = 0;
    bool con_tute = false;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        ganadores += registro.Marcas(asiento, 1);
        tantos += std::stoi("0" + registro.Texto1(asiento));
        con_tute = con_tute || !registro.Texto2(asiento).empty();
    }
    Exige(ganadores == 1, "el registro {} tiene {} ganadores", n, ganadores);
    Exige(Tute() ? con_tute || tantos >= 130 : tantos == 120, "el registro {} suma {} tantos", n,
          tantos);
}

} // namespace

void RevisaManoBazas() {
    RevisaCartas();
    RevisaQueSeAcabo();
    Repeticion repeticion;
    repeticion.CuentaTantos();
    repeticion.Juega();
    RevisaTotalDeTantos();
    RevisaGanador();
}

void RevisaPartidaBazas(int manos) {
    int juegos = 0;
    for (int ganador = 1; ganador <= 4; ++ganador) {
        juegos += estado.JuegosGanados(ganador);
        Exige((estado.JuegosGanados(ganador) >= estado.LimitePartida) ==
                  (ganador == estado.GanadorPartida),
              "sólo el ganador llega al límite");
    }
    Exige(juegos == manos, "cada mano tiene su ganador");
    for (int n = 1; n <= estado.JuegosJugados; ++n)
        RevisaRegistro(n);
}
