#include "games/poker/poker_tutor.h"

#include <algorithm>
#include <vector>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/text.h"
#include "games/poker/bet_choice.h"
#include "games/poker/discard_choice.h"
#include "games/poker/poker_state.h"
#include "platform/canvas.h"
#include "table/announcements.h"
#include "table/button_column.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/side_buttons.h"
#include "table/sounds.h"

namespace {

constexpr Integer kParpadeos = 2;
constexpr int kServido = 2; // of Pic_BotSuperior

std::string Puntos(int cantidad) {
    return Formato(cantidad, "##0");
}

// The bet in question: what is proposed, what it comes to in this round, the highest one so far.
struct Consejo {
    int propuesta, nueva, maxima;
};

struct FraseConsejo {
    bool (*cuando)(const Consejo&);
    const char* texto;
    int Consejo::*puntos; // behind the text; nullptr: none
};

// The first that holds.
constexpr FraseConsejo kFrases[] = {
    {[](const Consejo& c) { return c.propuesta < 0; }, "Tirar las cartas", nullptr},
    {[](const Consejo& c) { return c.propuesta == 0; }, "Reservarse", nullptr},
    {[](const Consejo& c) { return c.maxima == 0; }, "Apostar ", &Consejo::propuesta},
    {[](const Consejo& c) { return c.nueva == c.maxima; }, "Igualar a ", &Consejo::maxima},
    {[](const Consejo& c) { return c.nueva > c.maxima; }, "Subir a ", &Consejo::nueva},
    {[](const Consejo&) { return true; }, "Apostar ", &Consejo::propuesta},
};

void MuestraConsejo(Integer asiento) {
    estado.RotuloSerie(asiento, kSeriePoker) = TextoConsejo();
    estado.ColorRotulo(asiento, kSeriePoker) = color::kVerde;
    estado.ParpadeoRotulo(asiento, kSeriePoker) = kParpadeos;
    RedibujarAsiento(asiento);
}

// The green button, which offered to throw the selection away, is told that there is none.
void QuitaSeleccion(Integer asiento) {
    bool habia = false;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, kSeriePoker); ++lugar) {
        Integer& altura = estado.Mano(asiento, kSeriePoker, lugar, kAltura);
        habia = habia || altura == kLevantada;
        altura = kEnLinea;
    }
    if (!habia)
        return;
    RedibujarAsiento(asiento);
    if (estado.EsperandoJugada)
        PedirContinuar(1);
}

void PonMarcadas(Integer asiento, Integer altura) {
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, kSeriePoker); ++lugar) {
        if (poker.MarcaDescarte(lugar) != 0)
            estado.Mano(asiento, kSeriePoker, lugar, kAltura) = altura;
    }
    RedibujarAsiento(asiento);
}

// One flash: on, a sound while it lasts, off.
template <class Pon>
void Destella(Pon pon, int cual) {
    for (int vez = 0; vez < 2; ++vez) {
        pon(true);
        Pausa(180);
        Sonido(1, cual);
        Pausa(420);
        pon(false);
    }
}

// Of cards that lie covered no more than how many.
void DiElConsejo(Integer asiento) {
    std::vector<Carta> vistas;
    int marcadas = 0;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, kSeriePoker); ++lugar) {
        if (poker.MarcaDescarte(lugar) == 0)
            continue;
        ++marcadas;
        for (const Carta carta : ALaVista(asiento, lugar, 1))
            vistas.push_back(carta);
    }
    const std::string cuales =
        vistas.empty() ? Numero(marcadas) + (marcadas > 1 ? " cartas" : " carta") : Enumera(vistas);
    Di("El tutor aconseja " + (marcadas == 0 ? "servirse" : "descartar " + cuales));
}

void AconsejaDescarte(Integer asiento) {
    QuitaSeleccion(asiento);
    DecideDescarte();
    DiElConsejo(asiento);
    if (std::ranges::any_of(poker.MarcaDescarte, [](Integer marca) { return marca != 0; })) {
        Destella([=](bool si) { PonMarcadas(asiento, si ? kLevantada : kEnLinea); },
                 sonido::kConsejo);
    } else {
        Destella([=](bool si) { BotonSuperior(asiento, si ? 2 : 1, kServido); }, sonido::kParpadeo);
    }
}

} // namespace

std::string TextoConsejo() {
    const Integer asiento = estado.JugadorActual;
    const int propuesta = apuestas.ApuestaPropuesta;
    if (propuesta == RestoDe(asiento))
        return "Ir con el resto de " + Puntos(propuesta);
    const Consejo consejo{propuesta,
                          propuesta + apuestas.Apuesta(asiento, kSeriePoker, apuestas.FaseApuesta),
                          apuestas.MaximaApuesta};
    const FraseConsejo& frase =
        *std::ranges::find_if(kFrases, [&](const FraseConsejo& f) { return f.cuando(consejo); });
    return frase.puntos == nullptr ? frase.texto : frase.texto + Puntos(consejo.*frase.puntos);
}

void ConsejoTutor() {
    const Integer asiento = estado.JugadorActual;
    switch (apuestas.FaseApuesta) {
    case kFaseSalida:
    case kFasePrimeraRonda:
    case kFaseSegundaRonda:
        CalculaApuesta();
        MuestraConsejo(asiento);
        break;
    case kFaseDescartes:
        AconsejaDescarte(asiento);
        break;
    default:
        break;
    }
}
