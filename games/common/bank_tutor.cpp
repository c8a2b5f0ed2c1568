#include "games/common/bank_tutor.h"

#include "core/game_state.h"
#include "platform/canvas.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/side_buttons.h"

namespace {

constexpr int kArriba = 1, kPulsado = 2;

void PonBoton(BotonDeSerie boton, int aspecto) {
    const Integer asiento = estado.JugadorActual;
    switch (boton) {
    case BotonDeSerie::Carta:
        return BotonSuperior(asiento, aspecto, 1);
    case BotonDeSerie::Servido:
        return BotonSuperior(asiento, aspecto, 2);
    case BotonDeSerie::Doblar:
        return BotonDobSeg(asiento, aspecto, "D o b l a r");
    case BotonDeSerie::Seguro:
        return BotonDobSeg(asiento, aspecto, "S e g u r o");
    }
}

} // namespace

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
    constexpr int kSonidoDestello = 12;
    for (int vez = 0; vez < 2; ++vez) {
        Pausa(180);
        PonBoton(boton, kPulsado);
        Sonido(1, kSonidoDestello);
        Pausa(420);
        PonBoton(boton, kArriba);
    }
}

void AcabaConsejo() {
    RedibujarAsiento(estado.JugadorActual);
    Pausa(180);
}
