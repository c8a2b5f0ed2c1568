#include "tests/support/poker_seats.h"

#include <map>
#include <sstream>
#include <stdexcept>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "games/poker/bet_choice.h"
#include "games/poker/discard_choice.h"
#include "games/poker/hand_reading.h"
#include "games/poker/poker_state.h"
#include "table/deck.h"
#include "tools/common/fresh_table.h"

namespace prueba {

namespace {

Integer ValorDe(const std::string& rango) {
    static const std::map<std::string, Integer> kLetras{{"A", 1}, {"J", 11}, {"Q", 12}, {"K", 13}};
    const auto letra = kLetras.find(rango);
    return letra != kLetras.end() ? letra->second : static_cast<Integer>(std::stoi(rango));
}

Carta CartaDe(const std::string& escrita) {
    static const std::string kPalos = "oceb";
    if (escrita == "#" || escrita == "##")
        return {kComodin, static_cast<Integer>(90 + escrita.size())};
    const std::size_t palo = kPalos.find(escrita.back());
    if (palo == std::string::npos)
        throw std::invalid_argument(escrita);
    return {static_cast<Integer>(kOros + static_cast<int>(palo)),
            ValorDe(escrita.substr(0, escrita.size() - 1))};
}

} // namespace

std::vector<Carta> Cartas(const std::string& escritas) {
    std::vector<Carta> cartas;
    std::istringstream lista(escritas);
    for (std::string escrita; lista >> escrita;)
        cartas.push_back(CartaDe(escrita));
    return cartas;
}

AsientosDePoker::AsientosDePoker() {
    UsaPlataforma(p);
    PonMesaNueva();
    estado.JuegoActivo = kPoker;
    Baraja(52);
    estado.LeyApertura = 14;
    estado.ApuestaMaxima = 100;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        estado.CaracterJugador(asiento) = kMedio;
        estado.NivelJugador(asiento) = 50;
        AsignarResto(asiento, 200);
    }
    estado.JugadorActual = 1;
    estado.SerieActual = 1;
    Ronda(kFasePrimeraRonda, 0, 0.5);
}

void AsientosDePoker::Baraja(int cartas, int comodines) {
    estado.CartasBaraja = static_cast<Integer>((52 - cartas) / 4 + 1);
    estado.ComodinesJuego = static_cast<Integer>(comodines + 1);
    ConstruirBaraja();
}

void AsientosDePoker::Da(Integer asiento, const std::string& cartas) {
    VaciaMano(asiento);
    PonMano(asiento, Cartas(cartas));
}

void AsientosDePoker::Rivales(const std::vector<Integer>& asientos, Integer caracter) {
    for (const Integer asiento : asientos) {
        Da(asiento, "Ao Qc Je 9b 7o"); // in every deck
        estado.CaracterJugador(asiento) = caracter;
    }
}

void AsientosDePoker::Apuesta(Integer asiento, Integer fase, Integer puntos) {
    apuestas.Apuesta(asiento, kSeriePoker, fase) = puntos;
}

void AsientosDePoker::Ronda(Integer fase, Integer maxima, double azar) {
    apuestas.FaseApuesta = fase;
    apuestas.MaximaApuesta = maxima;
    estado.AzarTurno = static_cast<float>(azar);
}

Integer AsientosDePoker::Propuesta() {
    AnalizaJugada(estado.JugadorActual);
    CalculaApuesta();
    return apuestas.ApuestaPropuesta;
}

std::string AsientosDePoker::Descarta() {
    DecideDescarte();
    std::string lugares;
    for (int lugar = 1; lugar <= 5; ++lugar)
        lugares += poker.MarcaDescarte(lugar) == 0 ? "." : std::to_string(lugar);
    return lugares;
}

} // namespace prueba
