#pragma once
// One seeded match without a screen, from the draw for the first player to its end.

#include "platform/headless/headless_platform.h"
#include "tools/simula/options.h"
#include "tools/simula/signature.h"
#include "tools/simula/totals.h"

// The desktop of a match that nobody looks at: every box is closed and every question answered with no, each
// wait goes on, and nothing is written anywhere.
class MesaSimulada : public PlataformaSinPantalla {
public:
    // What is looked at when a hand has ended, and at every pass of the events.
    MesaSimulada(void (*al_acabar_mano)(), void (*al_pasar)());

    // How many hands have ended in this match.
    int manos = 0;
    // Whoever plays by hand presses anything, by chance, before the wait goes on.
    bool caprichos = false;

    // The hands of a new match are counted from the first.
    void Empieza();

    Boton Pregunta(const CajaMensaje& caja) override;
    std::optional<Evento> SiguienteEvento(Pase pase) override;
    bool GuardaPartidas() const override { return false; }

private:
    void (*al_acabar_mano_)();
    void (*al_pasar_)();
    bool mano_en_curso_ = false; // a hand has been seen under way that has not ended yet
    Integer juego_contado_ = 0;  // number of the last game that was counted

    void CuentaMano();
};

class Simulacion {
public:
    // Takes the platform into use. std::invalid_argument for options that make no match.
    explicit Simulacion(const OpcionesSimula& opciones);
    ~Simulacion();
    Simulacion(const Simulacion&) = delete;
    Simulacion& operator=(const Simulacion&) = delete;

    // Plays match number n. Its course depends on the options, the seed and n alone. InvarianteRoto when
    // something that must hold does not.
    Totales Juega(std::int64_t n);

private:
    void PreparaPartida(std::int64_t n);
    void FirmaRegistros();

    OpcionesSimula opciones_;
    MesaSimulada mesa_;
    Firma firma_;
};
