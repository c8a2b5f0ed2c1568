#pragma once
// The form Personal, open over a table without a screen.

#include <gtest/gtest.h>

#include <string>

#include "forms/personal.h"
#include "tests/support/open_forms.h"

namespace prueba {

inline constexpr Integer kArriba = 2, kDerecha = 3, kPersona = 4;

class PersonalTest : public testing::Test {
protected:
    void AbreEn(Integer juego) {
        mesa.Pon(juego);
        personal::Abre();
    }
    const std::string& Titulo() { return mesa.Mensajes().back().titulo; }
    MesaConFormas mesa;
};

} // namespace prueba
