#include "table/procedure_call.h"

#include <gtest/gtest.h>

namespace {

std::string dicho;

int Suma(Integer a, Integer b) {
    return a + b;
}
bool EsAs(int valor) {
    return valor == 1;
}
void Sigue(Integer& asiento) {
    asiento = static_cast<Integer>(asiento + 1);
}
void Dice(const std::string& texto, std::string_view otro) {
    dicho = texto + "/" + std::string(otro);
}
void Senala(Control control) {
    dicho = NombreDe(control);
}
[[nodiscard]] bool Acaba() {
    dicho = "acaba";
    return true;
}

TEST(Llamada, UnaFuncionRespondeSuValor) {
    EXPECT_EQ(Llama(&Suma)({2.0, 3.0}), "5");
    EXPECT_EQ(Llama(&EsAs)({1.0}), "-1");
}

TEST(Llamada, UnProcedimientoQueCambiaSuArgumentoRespondeElNuevo) {
    EXPECT_EQ(Llama(&Sigue)({2.0}), "3");
}

TEST(Llamada, LosDemasNoRespondenNada) {
    EXPECT_EQ(Llama(&Dice)({std::string("Ana"), std::string("Luis")}), std::nullopt);
    EXPECT_EQ(dicho, "Ana/Luis");
    EXPECT_EQ(LlamaPasos(&Acaba)({}), std::nullopt);
    EXPECT_EQ(dicho, "acaba");
}

TEST(Llamada, LosUltimosArgumentosPuedenTenerUnValorPorDefecto) {
    const Llamada suma = Llama(&Suma, {10.0});
    EXPECT_EQ(suma({2.0}), "12");
    EXPECT_EQ(suma({2.0, 3.0}), "5");
    EXPECT_THROW(suma({}), ErrorConsola);
}

TEST(Llamada, UnControlVaPorSuNombre) {
    Llama (&Senala)({std::string("Pic_BotContinuar")});
    EXPECT_EQ(dicho, "Pic_BotContinuar");
    EXPECT_THROW(Llama(&Senala)({std::string("Pic_Nadie")}), ErrorConsola);
}

TEST(Llamada, ArgumentosDeMasODeOtroTipoSonErrores) {
    EXPECT_THROW(Llama(&Suma)({1.0}), ErrorConsola);
    EXPECT_THROW(Llama(&Suma)({1.0, 2.0, 3.0}), ErrorConsola);
    EXPECT_THROW(Llama(&Suma)({1.0, std::string("dos")}), ErrorConsola);
    EXPECT_THROW(Llama(&Suma)({1.0, 70000.0}), ErrorConsola);
}

} // namespace
