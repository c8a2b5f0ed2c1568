#pragma once
// A table without a screen, set up for a game, over which the forms are opened.

#include <vector>

#include "core/game_state.h"
#include "core/session_state.h"
#include "forms/normas.h"
#include "forms/personal.h"
#include "forms/selector.h"
#include "session/main_buttons.h"
#include "table/deck.h"
#include "tests/support/settings_files.h"
#include "tools/common/fresh_table.h"

namespace prueba {

inline constexpr Boton kAceptar = Boton::Si, kCancelar = Boton::No;

// Seats 1 to 3 automatic with hidden cards, seat 4 manual with visible ones; no match on; sound on, so that what is
// played can be listened to.
class MesaConFormas : public SesionConArchivos {
public:
    void Pon(Integer juego) {
        PonMesaNueva();
        Empieza(juego);
        estado.SaltoLinea = "\r\n";
        estado.SonidoActivo = true;
        ConstruirBaraja();
        sesion.baraja_pendiente = false;
        Olvida();
    }

    // A match in its n-th game, with its hand on or between two.
    void EnPartida(Integer juegos, bool mano) {
        estado.PartidaEnCurso = true;
        estado.ManoEnCurso = mano;
        estado.JuegosJugados = juegos;
        estado.JugadorActual = 4;
        sesion.mano_apuntada = !mano;
    }

    void DaCarta(Integer asiento, Integer cara, Integer tapada = 0) {
        const Integer lugar = ++estado.NumCartas(asiento, 1);
        PonCarta(asiento, 1, lugar, {kOros, lugar}, cara);
        estado.Mano(asiento, 1, lugar, kTapada) = tapada;
    }
    static Integer CaraDe(Integer asiento, int lugar = 1) {
        return estado.Mano(asiento, 1, lugar, kCara);
    }

    void Responde(Boton boton) { LaPlataforma().respuestas.push_back(boton); }
    void Olvida() {
        LaPlataforma().mensajes.clear();
        LaPlataforma().sonidos.clear();
        LaPlataforma().respuestas.clear();
    }
    std::vector<int> Sonidos() {
        std::vector<int> ids;
        for (const SonidoPedido& sonido : LaPlataforma().sonidos)
            ids.push_back(sonido.id);
        return ids;
    }
};

} // namespace prueba
