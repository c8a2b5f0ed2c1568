#include "games/common/bank_tutor.h"

#include <array>
#include <string>

#include "core/game_state.h"
#include "platform/canvas.h"
#include "table/announcements.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/sounds.h"

void EmpiezaConsejo() {
    if (estado.SerieActual == estado.SerieEnJuego)
        return;
    estado.SerieActual = estado.SerieEnJuego;
    RedibujarAsiento(estado.JugadorActual);
}

void AconsejaConRotulo(const std::string& texto) {
    constexpr Integer kParpadeos = 2;
    const Integer asiento = estado.JugadorActual;
    const Integer serie = estado.SerieActual;
    estado.RotuloSerie(asiento, serie) = texto;
    estado.ColorRotulo(asiento, serie) = color::kVerde;
    estado.ParpadeoRotulo(asiento, serie) = kParpadeos;
}

void DestellaBoton(BotonDeSerie boton) {
    constexpr std::array kLoQueAconseja{"pedir carta", "plantarse", "doblar", "asegurarse"};
    Di(std::string("El tutor aconseja ") + kLoQueAconseja.at(static_cast<std::size_t>(boton)));
    for (int vez = 0; vez < 2; ++vez) {
        Pausa(180);
        DibujaBotonDeSerie(boton, true);
        Sonido(1, sonido::kParpadeo);
        Pausa(420);
        DibujaBotonDeSerie(boton, false);
    }
}

void AcabaConsejo() {
    RedibujarAsiento(estado.JugadorActual);
    Pausa(180);
}
