#include "games/trick/trick_view.h"

#include "core/game_state.h"
#include "games/common/trick_state.h"
#include "table/card_names.h"
#include "table/drawing.h"
#include "table/messages.h"
#include "table/pile.h"
#include "table/seat_drawing.h"
#include "table/sounds.h"
#include "table/table_input.h"

namespace {

constexpr int kSerie = 1;
constexpr int kAsomaTriunfo = 18; // how far the turned card looks out at the pile's left
constexpr int kBajadaTriunfo = 33;
constexpr int kMedioAncho = 136,
              kMedioAlto = 136; // half the box that the four cards of a trick take

bool triunfo_sin_mazo = false;

// A trick lies on the table until its winner is written down.
bool BazaEnMesa() {
    return estado.ManoEnCurso && estado.NumBaza > 0 && bazas.GanadorDeBaza(estado.NumBaza) == 0;
}

bool TriunfoEnMesa() {
    return estado.PaloTriunfo != kSinCarta && (estado.CartasEnMazo > 0 || triunfo_sin_mazo);
}

// Under the pile its short side looks out; without one it lies free.
Rectangulo TriunfoALaVista() {
    const Punto esquina = LugarTriunfo();
    return {esquina.x, esquina.y, triunfo_sin_mazo ? kAltoCarta : kAsomaTriunfo, kAnchoCarta};
}

std::string CambioEnOferta() {
    return SeCambiaEnElMazo() ? "se puede cambiar por el " + estado.NombreValor(bazas.CartaCambio)
                              : std::string();
}

Objetivo ElTriunfo() {
    return {.clase = ClaseObjetivo::Triunfo,
            .donde = TriunfoALaVista(),
            .toque = ToqueDelCambio(),
            .nombre = "Triunfo: " + NombreDeCarta({estado.PaloTriunfo, estado.ValorTriunfo}),
            .estado = CambioEnOferta(),
            .se_pulsa = SeCambiaEnElMazo()};
}

void PonCartas(Integer asiento, const std::vector<Integer>& lugares, Integer cara, Integer altura) {
    for (const Integer lugar : lugares) {
        estado.Mano(asiento, kSerie, lugar, kCara) = cara;
        estado.Mano(asiento, kSerie, lugar, kAltura) = altura;
    }
    RedibujarAsiento(asiento);
}

} // namespace

Punto LugarTriunfo() {
    return {estado.MazoX - kAsomaTriunfo, estado.MazoY + kBajadaTriunfo};
}

void DejaTriunfoSinMazo(bool solo) {
    triunfo_sin_mazo = solo;
}

void PintaTriunfo(int x, int y) {
    if (TriunfoEnMesa()) {
        DibujarCarta(Control::Mesa, x - kAsomaTriunfo, y + kBajadaTriunfo, kOrientacionTriunfo,
                     estado.PaloTriunfo, estado.ValorTriunfo, kDescubierta, kEnLinea);
    }
}

void AgregaBazaYTriunfo(std::vector<Objetivo>& todos) {
    if (TriunfoEnMesa())
        todos.push_back(ElTriunfo());
    if (!BazaEnMesa())
        return;
    Integer asiento = estado.JugadorSalida;
    for (int turno = 1; turno <= 4; ++turno, SiguienteAsiento(asiento)) {
        const Carta carta{bazas.CartaEnMesa(asiento, 1), bazas.CartaEnMesa(asiento, 2)};
        const Punto lugar = LugarCentro(asiento);
        const bool acostada = AsientoLateral(asiento);
        if (carta.palo != kSinCarta) {
            todos.push_back(CartaEnLaMesa(carta, asiento,
                                          {lugar.x, lugar.y, acostada ? kAltoCarta : kAnchoCarta,
                                           acostada ? kAnchoCarta : kAltoCarta}));
        }
    }
}

void PintaMazo() {
    DibujarCaja(LugarTriunfo().x, LugarTriunfo().y, kAltoCarta, kAnchoCarta);
    DibujarMazo(estado.MazoX, estado.MazoY, estado.CartasEnMazo);
    PintaBaza();
}

void PintaBaza() {
    PintaBazaSin(0);
}

void PintaBazaSin(Integer sin) {
    if (!BazaEnMesa())
        return;
    Integer asiento = estado.JugadorSalida;
    for (int turno = 1; turno <= 4; ++turno, SiguienteAsiento(asiento)) {
        const Integer palo = bazas.CartaEnMesa(asiento, 1);
        if (palo == kSinCarta || asiento == sin)
            continue;
        const Punto lugar = LugarCentro(asiento);
        DibujarCarta(Control::Mesa, lugar.x, lugar.y, OrientacionDe(asiento), palo,
                     bazas.CartaEnMesa(asiento, 2), kDescubierta, kEnLinea);
    }
}

void RecogeMesa() {
    DibujarCaja(estado.CentroX - kMedioAncho, estado.CentroY - kMedioAlto, 2 * kMedioAncho,
                2 * kMedioAlto);
    DibujarMazo(estado.MazoX, estado.MazoY, estado.CartasEnMazo);
}

void ParpadeaBaza() {
    Pausa(150);
    for (int vez = 0; vez < 2; ++vez) {
        Pausa(420);
        RecogeMesa();
        PintaBazaSin(estado.GanadorBaza);
        Pausa(180);
        PintaBaza();
        Sonido(1, sonido::kConsejo);
    }
    Pausa(500);
}

void ParpadeaCartas(Integer asiento, const std::vector<Integer>& lugares,
                    const std::string& palabras) {
    if (!palabras.empty())
        MuestraCante(asiento, palabras);
    for (int vez = 0; vez < 3; ++vez) {
        PonCartas(asiento, lugares, kDescubierta, kLevantada);
        Pausa(180);
        Sonido(1, sonido::kConsejo);
        Pausa(420);
        PonCartas(asiento, lugares, kDescubierta, kEnLinea);
    }
    PonCartas(asiento, lugares, estado.CartasJugador(asiento), kEnLinea);
    if (!palabras.empty())
        QuitaCante(asiento);
}
