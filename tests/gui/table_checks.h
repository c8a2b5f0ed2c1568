#pragma once
// What has to hold of the table whenever the game waits for the player, whatever was clicked before.

#include <algorithm>
#include <string>

#include "betting/bet_state.h"
#include "core/game_state.h"
#include "core/session_state.h"
#include "games/common/trick_state.h"
#include "platform/platform.h"
#include "session/state_blocks.h"
#include "table/game_row.h"
#include "tests/support/valid_settings.h"

namespace prueba {

// How often each card of the Spanish deck is somewhere: in a hand, in the spread, in the pile, under it, played.
using Recuento = Tabla<int, 4, 12>;

inline void CuentaManos(Recuento& veces) {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar)
            ++veces(estado.Mano(asiento, 1, lugar, kPalo), estado.Mano(asiento, 1, lugar, kValor));
    }
}

inline void CuentaMazo(Recuento& veces) {
    for (int i = 0; i < estado.CartasEnMazo; ++i)
        ++veces(estado.Baraja(estado.PosicionMazo + i, 1),
                estado.Baraja(estado.PosicionMazo + i, 2));
    if (estado.CartasEnMazo > 0 && estado.PaloTriunfo != kSinCarta)
        ++veces(estado.PaloTriunfo, estado.ValorTriunfo);
}

inline bool Jugada(Integer palo, Integer valor) {
    bool esta = bazas.CartaJugada(palo, valor) != 0;
    for (int asiento = 1; asiento <= 4; ++asiento)
        esta = esta ||
               (bazas.CartaEnMesa(asiento, 1) == palo && bazas.CartaEnMesa(asiento, 2) == valor);
    return esta;
}

inline Recuento CuentaCartas() {
    Recuento veces;
    CuentaManos(veces);
    if (!estado.RepartoEnCurso)
        CuentaMazo(veces);
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (Integer valor = 1; valor <= 12; ++valor) {
            const bool suelta =
                estado.RepartoEnCurso ? estado.CartaEnReparto(palo, valor) : Jugada(palo, valor);
            veces(palo, valor) += suelta ? 1 : 0;
        }
    }
    return veces;
}

// In the games with money: no card is in two places, no seat owes chips. A shoe that is mixed anew in the middle of a
// hand has the cards of the table once more.
inline std::string FalloEnMesaConDinero() {
    Tabla<int, kComodin, 92> veces; // palo, valor
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int serie = 1; serie <= 4; ++serie) {
            for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar)
                ++veces(estado.Mano(asiento, serie, lugar, kPalo),
                        estado.Mano(asiento, serie, lugar, kValor));
        }
    }
    for (int i = 0; i < estado.CartasEnMazo && !JuegoEnMesa().baraja.seguida; ++i)
        ++veces(estado.Baraja(estado.PosicionMazo + i, 1),
                estado.Baraja(estado.PosicionMazo + i, 2));
    for (int palo = kOros; palo <= kComodin; ++palo) {
        for (int valor = 1; valor <= 92; ++valor) {
            if (veces(palo, valor) > 2 * estado.MazosBaraja - 1)
                return "la carta " + std::to_string(valor) + " del palo " + std::to_string(palo) +
                       " está " + std::to_string(veces(palo, valor)) + " veces";
        }
    }
    for (const Integer fichas : apuestas.Fichas) {
        if (fichas < 0)
            return "alguien debe fichas";
    }
    return "";
}

// Empty, or what does not hold. A card in the air is nowhere: en_espera says that none may be.
inline std::string FalloDeCartas(bool en_espera) {
    if (JuegoEnMesa().dinero.hay)
        return estado.RepartoEnCurso ? "" : FalloEnMesaConDinero();
    const Recuento veces = CuentaCartas();
    for (int palo = kOros; palo <= kBastos; ++palo) {
        for (int valor = 1; valor <= 12; ++valor) {
            const int debidas = estado.ValorEnBaraja(valor) ? 1 : 0;
            const int hay = veces(palo, valor);
            if (hay > debidas || (en_espera && hay < debidas))
                return "la carta " + std::to_string(valor) + " del palo " + std::to_string(palo) +
                       " está " + std::to_string(hay) + " veces";
        }
    }
    return "";
}

// Hands without gaps: cards in the first places, nothing behind them.
inline std::string FalloDeManos() {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int lugar = 1; lugar <= 54; ++lugar) {
            const bool llena = estado.Mano(asiento, 1, lugar, kPalo) != kSinCarta;
            if (llena != (lugar <= estado.NumCartas(asiento, 1)))
                return "la mano " + std::to_string(asiento) + " tiene un hueco o una carta de más";
        }
    }
    return "";
}

// What is on the pointer is said by the flags and by the small card alike.
inline std::string FalloDeArrastre() {
    if (estado.ArrastraReparto && !estado.RepartoEnCurso)
        return "arrastra una carta del reparto sin reparto";
    if (estado.ArrastraCarta && !estado.ModoOrdenar)
        return "arrastra una carta sin ordenar";
    if (estado.ArrastraReparto && estado.ArrastraCarta)
        return "arrastra dos cartas";
    const bool mueve = plataforma().EstaVisible(Control::Pic_Mover, 0);
    return mueve == (estado.ArrastraReparto || estado.ArrastraCarta)
               ? ""
               : "la carta pequeña no dice lo que se arrastra";
}

inline std::string FalloDeEspera() {
    std::string fallo = FalloDeArrastre();
    if (fallo.empty() && estado.PartidaEnCurso && (estado.ManoEnCurso || estado.RepartoEnCurso))
        fallo = FalloDeManos();
    if (fallo.empty() && estado.PartidaEnCurso && (estado.ManoEnCurso || estado.RepartoEnCurso))
        fallo = FalloDeCartas(true);
    if (fallo.empty())
        fallo = FalloDeAjustesGenerales();
    return fallo.empty() ? FalloDeAsientos() : fallo;
}

// In the middle of a pause nothing is there twice.
inline std::string FalloDePausa() {
    return estado.PartidaEnCurso && estado.ManoEnCurso ? FalloDeCartas(false) : "";
}

} // namespace prueba
