#pragma once
// A person with nothing but the keys that are no characters: the next key of a match, chosen by what the frame is on and
// what the table offers.

#include <algorithm>
#include <optional>
#include <vector>

#include "core/game_state.h"
#include "table/keyboard_walk.h"
#include "table/targets.h"

namespace prueba {

// Plays seat 4, and leaves when the match is over.
class PersonaConTeclas {
public:
    // How often a card, a stack of chips, a button was pressed by key.
    int cartas = 0, fichas = 0, botones = 0;
    // A match has been played to its end.
    bool acabada = false;

    Evento SiguienteTecla() {
        if (!estado.PartidaEnCurso) {
            acabada = acabada || estado.JuegosJugados > 0;
            return Tecla(Mando::Funcion, acabada ? kSalir : kNueva);
        }
        const std::optional<Objetivo> quiere = LoQueQuiere();
        const std::optional<Objetivo> enmarcado = ObjetivoEnmarcado();
        if (quiere && enmarcado && enmarcado->EsElMismo(*quiere))
            return Pulsa(*enmarcado);
        return Tecla(Mando::Derecha);
    }

private:
    static constexpr Integer kPersona = 4;
    static constexpr int kNueva = 2, kSalir = 9; // function keys
    static constexpr int kNunca = 9;

    bool tras_ficha_ = false; // after a chip something else is pressed: it may have been refused

    static Evento Tecla(Mando mando, int numero = 0) {
        return {.tipo = TipoEvento::Mando, .indice = numero, .mando = mando};
    }

    static int InteresDeBoton(const Objetivo& boton) {
        switch (boton.control) {
        case Control::Pic_APBotIgualar:
            return 2;
        case Control::Pic_APBotApostar:
            return 3;
        case Control::Pic_APBotPasar:
            return 6;
        case Control::
            Pic_BotSuperior: // Póker discards what is raised; the others stand sooner than they ask
            return estado.JuegoActivo == kPoker && boton.indice == 1 ? 2 : 9 - boton.indice;
        case Control::Pic_BotContinuar:
            return 8;
        default:
            return kNunca;
        }
    }

    // What the person would press now, the lowest first.
    static int Interes(const Objetivo& uno) {
        const bool elegida = uno.estado.starts_with("elegida") || estado.JugadaHecha;
        switch (uno.clase) {
        case ClaseObjetivo::CartaDeMano:
            return estado.JugadorActual == kPersona && !elegida ? 1 : kNunca;
        case ClaseObjetivo::Ficha:
            return 5;
        case ClaseObjetivo::Boton:
            return InteresDeBoton(uno);
        default:
            return kNunca;
        }
    }

    std::optional<Objetivo> LoQueQuiere() const {
        std::vector<Objetivo> todos = ObjetivosDeLaMesa();
        std::erase_if(todos, [this](const Objetivo& uno) {
            const bool otra_ficha = tras_ficha_ && uno.clase == ClaseObjetivo::Ficha;
            return !uno.se_pulsa || otra_ficha || Interes(uno) == kNunca;
        });
        const auto mejor = std::ranges::min_element(todos, {}, Interes);
        return mejor == todos.end() ? std::nullopt : std::optional(*mejor);
    }

    Evento Pulsa(const Objetivo& enmarcado) {
        cartas += enmarcado.clase == ClaseObjetivo::CartaDeMano ? 1 : 0;
        fichas += enmarcado.clase == ClaseObjetivo::Ficha ? 1 : 0;
        botones += enmarcado.clase == ClaseObjetivo::Boton ? 1 : 0;
        tras_ficha_ = enmarcado.clase == ClaseObjetivo::Ficha;
        return Tecla(Mando::Arriba);
    }
};

} // namespace prueba
