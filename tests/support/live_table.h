#pragma once
// A whole table without a screen, for the tests that drive the game as a player does: by mouse, key and
// button, or by letting it run alone.

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "core/game_state.h"
#include "platform/headless/headless_platform.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "table/layout.h"
#include "tests/support/trick_hands.h"

namespace prueba {

// Random numbers that put a shuffled deck in the given order: each card, as the shuffle walks them, gets the
// place that follows. Cards that are not named come behind, in the walk's order.
std::vector<double> AzarParaBaraja(const std::vector<Carta>& orden);

// The desktop without a screen, with someone who looks on when a box opens and when something is announced.
struct MesaVigilada : PlataformaSinPantalla {
    std::function<void(const CajaMensaje&)> al_preguntar;
    std::function<void(const std::string&)> al_anunciar;

    Boton Pregunta(const CajaMensaje& caja) override {
        if (al_preguntar)
            al_preguntar(caja);
        return PlataformaSinPantalla::Pregunta(caja);
    }
    void Anuncia(std::string_view texto) override {
        if (al_anunciar)
            al_anunciar(std::string(texto));
        PlataformaSinPantalla::Anuncia(texto);
    }
};

class MesaViva : public testing::Test {
protected:
    // 800 by 600, default settings (seat 4 by hand, the others alone), the deck of Cinquillo, no match on.
    MesaViva();
    ~MesaViva() override;

    // Another game's deck and settings of the moment.
    void Juega(Integer juego);
    // Nobody plays by hand and nothing waits.
    void TodoSolo();
    // As in the middle of a hand, seat's turn.
    void ManoEmpezada(Integer asiento);
    // Seats out of play, and what follows from it.
    void Desactiva(std::initializer_list<Integer> asientos);
    // The next shuffle gives this deck.
    void BarajaSera(const std::vector<Carta>& orden);

    // What the mouse does, at once, with no driver in between.
    void Mueve(int x, int y);
    void Aprieta(int x, int y, int boton = 1);
    void Suelta(int x, int y, int boton = 1);
    void Clic(int x, int y, int boton = 1);
    // The middle of the part of a seat's card that no other card covers.
    Punto SobreCarta(Integer asiento, int lugar) const;

    // From here on every call of the table's operations is kept.
    void EmpiezaTraza();
    std::vector<std::string> TrazaDe(const std::string& operacion) const;
    std::vector<std::string> Titulos() const;
    // What was drawn on a recorded canvas with that operation, in its order.
    std::vector<std::string> Pintado(Control control, const std::string& operacion);
    // The cards of a seat's first serie.
    static std::vector<Carta> ManoDe(Integer asiento);
    static Puntero PunteroEnMesa() { return plataforma().PunteroDe(Control::Mesa, 0); }

    MesaVigilada p;
    std::vector<std::string> traza;
};

} // namespace prueba
