#include "core/text.h"

#include <gtest/gtest.h>

namespace {

// ---- Columns

TEST(Texto, LaLongitudCuentaCaracteresYNoBytes) {
    EXPECT_EQ(Longitud(""), 0);
    EXPECT_EQ(Longitud("Póker"), 5);
    EXPECT_EQ(Longitud("ñÑ€漢🂡"), 5);
}

TEST(Texto, LoQueNoEsUtf8CuentaUnCaracterPorByte) {
    EXPECT_EQ(Longitud("a\xFF\xC3z"), 4);
    EXPECT_EQ(Longitud("\xE2\x82"), 2);      // the start of a longer one
    EXPECT_EQ(Longitud("\xC0\x80\xF5x"), 4); // bytes that begin nothing
}

TEST(Texto, MedioTomaDesdeUnaPosicion) {
    EXPECT_EQ(Medio("Jugador", 1, 3), "Jug");
    EXPECT_EQ(Medio("Jugador", 5, 9), "dor");
    EXPECT_EQ(Medio("Íñigo", 2, 2), "ñi");
    EXPECT_EQ(Medio("Jugador", 8, 2), "");
    EXPECT_EQ(Medio("Jugador", 20, 2), "");
    EXPECT_EQ(Medio("Jugador", 3, 0), "");
    EXPECT_EQ(Medio("Jugador", 0, 2), "Ju");
}

TEST(Texto, SuperponeEnSusColumnasYRellenaConBlancos) {
    std::string linea = "..........";
    Superpone(linea, 3, 4, "ab");
    EXPECT_EQ(linea, "..ab  ....");
    Superpone(linea, 3, 4, "ñandú!");
    EXPECT_EQ(linea, "..ñand....");
    Superpone(linea, 4, 1, "x");
    EXPECT_EQ(linea, "..ñxnd....");
}

TEST(Texto, SuperponeAlargaUnaLineaCorta) {
    std::string linea = "ab";
    Superpone(linea, 5, 3, "x");
    EXPECT_EQ(linea, "ab  x  ");
}

TEST(Texto, RecortaQuitaBlancosDeLosExtremos) {
    EXPECT_EQ(Recorta("  a b  "), "a b");
    EXPECT_EQ(Recorta("   "), "");
    EXPECT_EQ(RecortaIzquierda("  a  "), "a  ");
    EXPECT_EQ(RecortaIzquierda(""), "");
}

TEST(Texto, UnNombrePropioLlevaMayusculaEnCadaPalabra) {
    EXPECT_EQ(NombrePropio("ana mARÍA"), "Ana María");
    EXPECT_EQ(NombrePropio("ÑOÑO"), "Ñoño");
    EXPECT_EQ(NombrePropio("élan œuvre šarka"), "Élan Œuvre Šarka");
    EXPECT_EQ(NombrePropio("ÿ ŸŸ"), "Ÿ Ÿÿ");
    EXPECT_EQ(NombrePropio("  a  b"), "  A  B");
    EXPECT_EQ(NombrePropio("o'neill 2x"), "O'neill 2x");
    EXPECT_EQ(NombrePropio("×÷ß"), "×÷ß");
    EXPECT_EQ(NombrePropio("a\xFFz Ω"), "A\xFFz Ω");
}

// ---- Masks

TEST(Formato, CerosALaIzquierda) {
    EXPECT_EQ(Formato(7.0, "000"), "007");
    EXPECT_EQ(Formato(0.0, "00"), "00");
    EXPECT_EQ(Formato(1234.0, "000"), "1234");
}

TEST(Formato, UnNegativoLlevaElSignoDelante) {
    EXPECT_EQ(Formato(-1.0, "00"), "-01");
    EXPECT_EQ(Formato(-12.0, "#,##0"), "-12");
    EXPECT_EQ(Formato(-0.4, "0"), "0");
}

TEST(Formato, MilesConComa) {
    EXPECT_EQ(Formato(0.0, "#,##0"), "0");
    EXPECT_EQ(Formato(999.0, "#,##0"), "999");
    EXPECT_EQ(Formato(1000.0, "#,##0"), "1,000");
    EXPECT_EQ(Formato(1234567.0, "#,##0"), "1,234,567");
}

TEST(Formato, UnaAlmohadillaEsUnaCifraSiHaceFalta) {
    EXPECT_EQ(Formato(0.0, "#"), "");
    EXPECT_EQ(Formato(5.0, "#0"), "5");
    EXPECT_EQ(Formato(0.5, "#.#"), ".5");
    EXPECT_EQ(Formato(2.0, "0.0#"), "2.0");
    EXPECT_EQ(Formato(2.25, "0.0#"), "2.25");
}

TEST(Formato, RedondeaALosDecimalesConLaMitadAlPar) {
    EXPECT_EQ(Formato(2.5, "0"), "2");
    EXPECT_EQ(Formato(3.5, "0"), "4");
    EXPECT_EQ(Formato(1.015, "0.00"), "1.02");
    EXPECT_EQ(Formato(0.999, "0.0"), "1.0");
    EXPECT_EQ(Formato(99.96, "#,##0.0"), "100.0");
}

TEST(Formato, LosTantosSeFormateanIgual) {
    EXPECT_EQ(Formato(Currency::DeDiezmilesimas(75000), "0.0"), "7.5");
    EXPECT_EQ(Formato(Currency(7), "00"), "07");
}

TEST(Formato, LasArrobasSonColumnas) {
    EXPECT_EQ(Formato(std::string_view("12"), "@@@@@"), "   12");
    EXPECT_EQ(Formato(std::string_view("12"), "!@@@@@"), "12   ");
    EXPECT_EQ(Formato(std::string_view("123456"), "@@@"), "123456");
    EXPECT_EQ(Formato(std::string_view("ñu"), "@@@"), " ñu");
    EXPECT_EQ(Formato(std::string_view(""), "@@"), "  ");
    EXPECT_EQ(Formato(12.0, "@@@@"), "  12");
    EXPECT_EQ(Formato(-7.5, "@@@@@"), " -7.5");
}

TEST(Numero, SinCerosDeSobra) {
    EXPECT_EQ(Numero(12), "12");
    EXPECT_EQ(Numero(-3), "-3");
    EXPECT_EQ(Numero(Currency(7)), "7");
    EXPECT_EQ(Numero(Currency::DeDiezmilesimas(75000)), "7.5");
    EXPECT_EQ(Numero(Currency::DeDiezmilesimas(-5000)), "-0.5");
    EXPECT_EQ(Numero(Currency::DeDiezmilesimas(1)), "0.0001");
}

TEST(Val, LeeElNumeroDelPrincipio) {
    EXPECT_EQ(Val("12"), 12);
    EXPECT_EQ(Val("  1 2 ptos"), 12);
    EXPECT_EQ(Val("-7.5"), -7.5);
    EXPECT_EQ(Val("+5"), 5);
    EXPECT_EQ(Val(" + 12"), 12);
    EXPECT_EQ(Val("+-5"), 0);
    EXPECT_EQ(Val("+"), 0);
    EXPECT_EQ(Val("Media"), 0);
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("inf"), 0);
    EXPECT_EQ(Val("nan"), 0);
    EXPECT_EQ(Val("1e999"), 0);
}

// ---- Windows-1252

TEST(Windows1252, UnByteCadaCaracter) {
    EXPECT_EQ(AWindows1252("Íñigo"), "\xCD\xF1igo");
    EXPECT_EQ(AWindows1252("5 €"), "5 \x80");
    EXPECT_EQ(DeWindows1252("\xCD\xF1igo \x80\x92"), "Íñigo €’");
}

TEST(Windows1252, LoQueNoTieneSitioEsUnaInterrogacion) {
    EXPECT_EQ(AWindows1252("漢🂡Ω"), "???");
    EXPECT_EQ(AWindows1252("\xC2\x93"), "?"); // its byte is a quotation mark there
}

TEST(Windows1252, CualquierByteVaYVuelve) {
    std::string bytes;
    for (int b = 0; b < 256; ++b)
        bytes.push_back(static_cast<char>(b));
    EXPECT_EQ(AWindows1252(DeWindows1252(bytes)), bytes);
    EXPECT_EQ(Longitud(DeWindows1252(bytes)), 256);
}

} // namespace
