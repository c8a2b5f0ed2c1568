#pragma once
// The settings before any file is read, and the limits of those that are numbers.

#include <array>

#include "core/game_state.h"

struct LimitesRegla {
    Integer minimo, maximo, defecto;
};

inline constexpr LimitesRegla kLimitesRestoInicial{5, 995, 200}, kLimitesApuestaSalida{0, 999, 5},
    kLimitesApuestaMaxima{5, 995, 25}, kLimitesLimitePartida{1, 999, 3};

// What a file may hold of the two that a form brings up to 5: less can be played with.
inline constexpr LimitesRegla kRestoInicialLeido{1, kLimitesRestoInicial.maximo,
                                                 kLimitesRestoInicial.defecto},
    kApuestaMaximaLeida{1, 999, kLimitesApuestaMaxima.defecto};

struct ReglaConLimites {
    Integer EstadoJuego::*campo;
    LimitesRegla limites;
};

inline constexpr std::array kReglas{
    ReglaConLimites{&EstadoJuego::SentidoJuego, {kDirecto, kInverso, kDirecto}},
    ReglaConLimites{&EstadoJuego::VentanaInfo, {1, 2, 1}},
    ReglaConLimites{&EstadoJuego::SistemaReparto,
                    {kRepartoAutomatico, kRepartoManual, kRepartoAutomatico}},
    ReglaConLimites{&EstadoJuego::ModalidadJuego, {kIndividual, kDosParejas, kIndividual}},
    ReglaConLimites{&EstadoJuego::LeyApertura, {1, 14, 1}},
    ReglaConLimites{&EstadoJuego::CartasBaraja, {1, 6, 1}},
    ReglaConLimites{&EstadoJuego::ComodinesJuego, {1, 3, 1}},
    ReglaConLimites{&EstadoJuego::RestoInicial, kRestoInicialLeido},
    ReglaConLimites{&EstadoJuego::ApuestaSalida, kLimitesApuestaSalida},
    ReglaConLimites{&EstadoJuego::ApuestaMaxima, kApuestaMaximaLeida},
    ReglaConLimites{&EstadoJuego::LimitePartida, kLimitesLimitePartida},
};

// The settings before any file is read, seats and match included: what a first run starts with.
void PonValoresPorDefecto();
