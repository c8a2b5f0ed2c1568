#pragma once
// What has to hold of the state after any settings file at all was read.

#include <algorithm>
#include <string>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "core/game_state.h"
#include "core/text.h"

namespace prueba {

inline bool EsJuego(int juego) {
    constexpr int kJuegos[]{kPoker, kBlackJack, kTute, kBrisca, kSieteYMedia, kCinquillo};
    return std::find(std::begin(kJuegos), std::end(kJuegos), juego) != std::end(kJuegos);
}

// Empty, or the name of what does not hold.
inline std::string FalloDeAjustesGenerales() {
    if (!EsJuego(estado.JuegoActivo))
        return "JuegoActivo";
    if (estado.VelocidadJuego < 0 || estado.VelocidadJuego > 100)
        return "VelocidadJuego";
    return "";
}

inline std::string FalloDeAsientos() {
    const auto entre = [](int valor, int minimo, int maximo) {
        return minimo <= valor && valor <= maximo;
    };
    int activos = 0;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        if (Longitud(estado.NombreJugador(asiento)) > 9)
            return "NombreJugador";
        if (!entre(estado.NivelJugador(asiento), 0, 100))
            return "NivelJugador";
        if (!entre(estado.EstadoJugador(asiento), 1, 2))
            return "EstadoJugador";
        if (!entre(estado.ControlJugador(asiento), 1, 2))
            return "ControlJugador";
        if (!entre(estado.CartasJugador(asiento), 1, 2))
            return "CartasJugador";
        if (!entre(estado.CaracterJugador(asiento), 1, 3))
            return "CaracterJugador";
        if (estado.ControlJugador(asiento) == kManual && estado.CartasJugador(asiento) == kOcultas)
            return "manual con cartas ocultas";
        if (!entre(estado.JuegosGanados(asiento), 0, 999))
            return "JuegosGanados";
        activos += estado.EstadoJugador(asiento) == kActivado ? 1 : 0;
    }
    if (activos < (estado.JuegoActivo == kCinquillo ? 4 : 2))
        return "pocos asientos activos";
    return activos == estado.NumJugadores ? "" : "NumJugadores";
}

inline std::string FalloDeReglas() {
    struct Limite {
        const char* nombre;
        int valor, minimo, maximo;
    };
    const Limite limites[]{
        {"SentidoJuego", estado.SentidoJuego, 1, 2},
        {"PasoSentido", estado.PasoSentido, estado.SentidoJuego == 1 ? 1 : -1,
         estado.SentidoJuego == 1 ? 1 : -1},
        {"VentanaInfo", estado.VentanaInfo, 1, 2},
        {"SistemaReparto", estado.SistemaReparto, 1, 2},
        {"ModalidadJuego", estado.ModalidadJuego, 1, estado.NumJugadores == 4 ? 2 : 1},
        {"CartasBaraja", estado.CartasBaraja, 1, 6},
        {"LeyApertura", estado.LeyApertura, 1, 14},
        {"ComodinesJuego", estado.ComodinesJuego, 1, 3},
        {"RestoInicial", estado.RestoInicial, 1, 995},
        {"ApuestaSalida", estado.ApuestaSalida, 0, 999},
        {"ApuestaMaxima", estado.ApuestaMaxima, 1, 999},
        {"LimitePartida", estado.LimitePartida, 1, 999},
        {"JugadorMano", estado.JugadorMano, 1, 4},
        {"JugadorBanca", estado.JugadorBanca, 1, 4},
        {"JuegosJugados", estado.JuegosJugados, 0, estado.PartidaEnCurso ? 999 : 0},
        {"ManoEnCurso", estado.ManoEnCurso, 0, 0},
    };
    for (const Limite& l : limites) {
        if (l.valor < l.minimo || l.valor > l.maximo)
            return l.nombre;
    }
    return "";
}

inline std::string FalloDeDinero() {
    int total = 0;
    for (int asiento = 0; asiento <= 4; ++asiento) {
        for (int d = 1; d <= 6; ++d) {
            if (apuestas.Fichas(asiento, d) < 0)
                return "Fichas";
        }
        if (apuestas.RestoPrevio(asiento) != RestoDe(asiento))
            return "RestoPrevio";
        if (apuestas.Apuesta(asiento, 1, 2) < 0 ||
            apuestas.Apuesta(asiento, 1, 2) != apuestas.ApuestaPrevia(asiento, 2))
            return "Apuesta";
        total += RestoDe(asiento);
    }
    return total <= 32767 ? "" : "demasiado dinero";
}

// A match with money that goes on: somebody has chips, no more than the seats can have brought, and only where
// they can be played for.
inline std::string FalloDePartidaConDinero() {
    const bool con_banca = estado.JuegoActivo == kBlackJack || estado.JuegoActivo == kSieteYMedia;
    if (!estado.PartidaEnCurso || !(con_banca || estado.JuegoActivo == kPoker))
        return "";
    int en_asientos = 0;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) != kActivado && RestoDe(asiento) > 0)
            return "fichas de quien no juega";
        en_asientos += RestoDe(asiento);
    }
    if (en_asientos == 0 || en_asientos + RestoDe(kBote) > 995 * estado.NumJugadores)
        return "dinero que no puede haber";
    if (con_banca && RestoDe(kBote) > 0)
        return "un bote con banca";
    if (estado.JuegoActivo == kSieteYMedia &&
        estado.EstadoJugador(estado.JugadorBanca) != kActivado)
        return "JugadorBanca";
    return "";
}

inline std::string FalloDeBanca() {
    if (estado.JuegoActivo != kBlackJack)
        return "";
    const bool impuesta = estado.NombreJugador(2) == "Banca" && estado.EstadoJugador(2) == 1 &&
                          estado.NivelJugador(2) == 100 && estado.ControlJugador(2) == 1 &&
                          estado.SistemaReparto == 1;
    return impuesta ? "" : "la banca";
}

inline std::string FalloDeAjustesDeJuego() {
    for (auto fallo : {FalloDeAsientos(), FalloDeReglas(), FalloDeDinero(),
                       FalloDePartidaConDinero(), FalloDeBanca()}) {
        if (!fallo.empty())
            return fallo;
    }
    return "";
}

} // namespace prueba
