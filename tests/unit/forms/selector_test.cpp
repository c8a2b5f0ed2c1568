// The selectors: their texts, their settings, their circular step.

#include "core/default_settings.h"
#include "forms/selector.h"

#include <gtest/gtest.h>

#include "core/game_state.h"
#include "core/text.h"

namespace {

class SelectorTest : public testing::Test {
protected:
    void SetUp() override {
        estado = {};
        PonValoresPorDefecto();
    }
};

std::vector<std::string> ValoresQueMuestra(int control) {
    std::vector<std::string> valores;
    for (int fila = 1; fila <= ValoresDe(control); ++fila)
        valores.push_back(Recorta(TextoValor(fila, control)));
    return valores;
}

using Valores = std::vector<std::string>;

TEST_F(SelectorTest, EveryTextHas22Characters) {
    for (int control = 0; control <= kUltimoSelector; ++control) {
        for (int fila = 0; fila <= kFilasSelector; ++fila)
            EXPECT_EQ(Longitud(TextoValor(fila, control)), 22) << fila << ", " << control;
    }
    EXPECT_EQ(TextoValor(2, kSelComodines), "Un comodín            ");
}

TEST_F(SelectorTest, ABlankRowEndsTheList) {
    EXPECT_EQ(ValoresDe(kSelLey), 14);
    EXPECT_EQ(TextoValor(15, kSelLey), std::string(22, ' '));
    EXPECT_EQ(TextoValor(3, kSelSentido), std::string(22, ' '));
}

TEST_F(SelectorTest, TheValuesOfEachSelector) {
    EXPECT_EQ(ValoresQueMuestra(kSelReparto), (Valores{"Automático", "Manual"}));
    EXPECT_EQ(ValoresQueMuestra(kSelComodines),
              (Valores{"Sin comodines", "Un comodín", "Dos comodines"}));
    EXPECT_EQ(ValoresQueMuestra(kSelModalidad), (Valores{"Individual", "Dos parejas"}));
    EXPECT_EQ(ValoresQueMuestra(kSelBaraja), (Valores{"Baraja completa", "Desde el 3", "Desde el 4",
                                                      "Desde el 5", "Desde el 6", "Desde el 7"}));
    EXPECT_EQ(ValoresQueMuestra(kSelLey),
              (Valores{"Mínimo pareja de 2", "Mínimo pareja de 3", "Mínimo pareja de 4",
                       "Mínimo pareja de 5", "Mínimo pareja de 6", "Mínimo pareja de 7",
                       "Mínimo pareja de 8", "Mínimo pareja de 9", "Mínimo pareja de 10",
                       "Mínimo pareja de J", "Mínimo pareja de Q", "Mínimo pareja de K",
                       "Mínimo pareja de A", "No se aplica"}));
    EXPECT_EQ(ValoresQueMuestra(kSelSentido), (Valores{"Directo", "Inverso"}));
    EXPECT_EQ(ValoresQueMuestra(kSelVentana), (Valores{"Activada", "Desactivada"}));
    for (int asiento = 1; asiento <= 4; ++asiento) {
        EXPECT_EQ(ValoresQueMuestra(kSelEstado + asiento), (Valores{"Activado", "Desactivado"}));
        EXPECT_EQ(ValoresQueMuestra(kSelCartas + asiento), (Valores{"Ocultas", "Visibles"}));
        EXPECT_EQ(ValoresQueMuestra(kSelControl + asiento), (Valores{"Automático", "Manual"}));
        EXPECT_EQ(ValoresQueMuestra(kSelCaracter + asiento),
                  (Valores{"Conservador", "Medio", "Agresivo"}));
    }
}

TEST_F(SelectorTest, SelectorsOfASeatWriteTheSettingOfThatSeat) {
    EXPECT_EQ(&AjusteDe(13), &estado.EstadoJugador(3));
    EXPECT_EQ(&AjusteDe(21), &estado.CartasJugador(1));
    EXPECT_EQ(&AjusteDe(28), &estado.ControlJugador(4));
    EXPECT_EQ(&AjusteDe(32), &estado.CaracterJugador(2));
    EXPECT_EQ(ClaseDe(24), kSelCartas);
    EXPECT_EQ(ClaseDe(25), kSelControl);
    EXPECT_EQ(AsientoDe(25), 1);
    EXPECT_EQ(AsientoDe(kSelSentido), 0);
    EXPECT_EQ(ClaseDe(kSelSentido), kSelSentido);
}

TEST_F(SelectorTest, EverySelectorGoesRoundInItsValues) {
    for (int control = 1; control <= kUltimoSelector; ++control) {
        if (!EsSelector(control))
            continue;
        AjusteDe(control) = 1;
        for (int fila = 1; fila <= ValoresDe(control); ++fila) {
            EXPECT_EQ(TextoActual(control), Recorta(TextoValor(fila, control)));
            AvanzaSelector(control);
        }
        EXPECT_EQ(AjusteDe(control), 1) << control;
    }
}

TEST_F(SelectorTest, AValueOutsideTheListStartsAnew) {
    estado.SentidoJuego = 7;
    AvanzaSelector(kSelSentido);
    EXPECT_EQ(estado.SentidoJuego, 1);
}

TEST_F(SelectorTest, ThereIsNoSelectorBetweenTheOthers) {
    for (int control : {0, 6, 7, 10, 15, 20, 29, 30, 35})
        EXPECT_FALSE(EsSelector(control)) << control;
    EXPECT_THROW(AjusteDe(7), std::logic_error);
    EXPECT_THROW(static_cast<void>(TextoValor(1, 35)), IndiceFuera);
}

} // namespace
