#include "core/fixed_columns.h"

#include <gtest/gtest.h>

namespace {

struct Fila {
    std::string nombre;
    Integer numero = 0;
    bool bandera = false;
    Integer total = 0;

    // The list of the fields, twelve columns wide.
    Campos LosCampos() {
        return {{1, 4, &nombre}, {5, 3, &numero, "000"}, {8, 2, &bandera}, {10, 3, &total, "@@@"}};
    }
    std::string Escrita() { return EscribeCampos(LosCampos(), 12); }
    Fila& Lee(std::string_view linea) {
        LeeCampos(linea, LosCampos());
        return *this;
    }
};

TEST(EscribeCampos, CadaCampoEnSuColumnaYBlancosDetras) {
    EXPECT_EQ((Fila{"Ana", 7, true, 45}.Escrita()), "Ana 007-1 45");
    EXPECT_EQ((Fila{"A", 0, false, 0}.Escrita()), "A   0000   0");
}

TEST(EscribeCampos, UnCampoMasLargoSeCorta) {
    EXPECT_EQ((Fila{"Mercedes", 1234, true, 5678}.Escrita()), "Merc123-1567");
}

TEST(EscribeCampos, LasLetrasOcupanUnaColumna) {
    EXPECT_EQ((Fila{"Íñig", 1, false, 2}.Escrita()), "\xCD\xF1ig0010   2");
    EXPECT_EQ((Fila{"漢", 1, false, 2}.Escrita()), "?   0010   2");
}

TEST(EscribeCampos, UnNumeroNegativoLlevaElSignoDelante) {
    EXPECT_EQ((Fila{"Ana", -7, false, -4}.Escrita()), "Ana -000  -4");
}

TEST(EscribeCampos, UnSignoSoloNoSeEscribe) {
    Integer cifra = -1;
    EXPECT_EQ(EscribeCampos({{1, 1, &cifra, "0"}}, 1), "0");
    cifra = 12;
    EXPECT_EQ(EscribeCampos({{1, 1, &cifra, "0"}}, 1), "1");
}

TEST(EscribeCampos, UnaConstanteSeEscribeYNoSeLee) {
    const Campos campos{{2, 3, " 0 "}};
    EXPECT_EQ(EscribeCampos(campos, 5), "  0  ");
    EXPECT_NO_THROW(LeeCampos("xxxxx", campos));
}

TEST(EscribeCampos, LosCaracteresDeControlNoRompenLaLinea) {
    EXPECT_EQ((Fila{"A\r\nB", 1, false, 2}.Escrita()), "A  B0010   2");
}

// The blanks of an empty first field do not pull the other columns to the left.
TEST(LeeCampos, UnPrimerCampoVacioNoDescolocaLaLinea) {
    const std::string linea = Fila{"", 7, true, 45}.Escrita();
    EXPECT_EQ(linea, "    007-1 45");
    // As written, with blanks behind it, and as older files have it.
    for (const std::string& leida : {linea, linea + "   ", "\xA0" + linea.substr(1)}) {
        const Fila fila = Fila{"antes"}.Lee(leida);
        EXPECT_EQ(fila.nombre, "");
        EXPECT_EQ(fila.numero, 7);
        EXPECT_EQ(fila.total, 45);
    }
}

TEST(LeeCampos, LeeLoQueSeEscribio) {
    const Fila fila = Fila{}.Lee("\xCD\xF1ig007-1 45");
    EXPECT_EQ(fila.nombre, "Íñig");
    EXPECT_EQ(fila.numero, 7);
    EXPECT_TRUE(fila.bandera);
    EXPECT_EQ(fila.total, 45);
}

TEST(LeeCampos, LosBlancosDelantePasanPorAlto) {
    const Fila fila = Fila{}.Lee("     Ana 007-1 45");
    EXPECT_EQ(fila.nombre, "Ana");
    EXPECT_EQ(fila.total, 45);
}

TEST(LeeCampos, UnaComaAcabaLaLineaYLoDemasSonBlancos) {
    const Fila fila = Fila{"antes", 9, true, 9}.Lee("An,a007-1 45");
    EXPECT_EQ(fila.nombre, "An");
    EXPECT_EQ(fila.numero, 0);
    EXPECT_FALSE(fila.bandera);
    EXPECT_EQ(fila.total, 0);
}

TEST(LeeCampos, LoQueFaltaDeUnaLineaCortaSonBlancos) {
    const Fila fila = Fila{"antes", 9, true, 9}.Lee("Ana 12");
    EXPECT_EQ(fila.numero, 12);
    EXPECT_FALSE(fila.bandera);
    EXPECT_EQ(fila.total, 0);
    EXPECT_EQ(Fila{"antes"}.Lee("").nombre, "");
}

TEST(LeeCampos, SoloSeQuitanLosBlancosDelFinalDeUnTexto) {
    std::string texto;
    LeeCampos("x  7  ", {{2, 5, &texto}});
    EXPECT_EQ(texto, "  7");
}

TEST(LeeCampos, LosCaracteresDeControlDeUnTextoSonBlancos) {
    EXPECT_EQ(Fila{}
                  .Lee(std::string_view("A\0\x1A"
                                        "B007",
                                        7))
                  .nombre,
              "A  B");
}

TEST(LeeCampos, LosBlancosAlrededorDeUnNumeroNoCuentan) {
    EXPECT_EQ(Fila{}.Lee("Ana  7").numero, 7);
    EXPECT_EQ(Fila{}.Lee("Ana 7 ").numero, 7);
    EXPECT_EQ((Fila{"", 9}.Lee("Ana    ").numero), 0);
}

TEST(LeeCampos, UnNumeroPuedeLlevarSignoDecimalesYExponente) {
    EXPECT_EQ(Fila{}.Lee("Ana -07").numero, -7);
    EXPECT_EQ(Fila{}.Lee("Ana +07").numero, 7);
    EXPECT_EQ(Fila{}.Lee("Ana 2.5").numero, 2); // a half goes to the even neighbour
    EXPECT_EQ(Fila{}.Lee("Ana 1E2").numero, 100);
    EXPECT_EQ((Fila{"", 9}.Lee("Ana -0 ").numero), 0);
}

TEST(LeeCampos, LoQueNoEsUnNumeroEsUnError) {
    for (const char* columnas : {"7 7", "x  ", "--7", "+-7", "-  ", "1.2.", "nan", "inf", "0x1",
                                 "&H1", "7\t ", "E  ", "1E ", "\xB2  "}) {
        EXPECT_THROW(Fila{}.Lee(std::string("Ana ") + columnas), NoEsNumero) << columnas;
    }
}

TEST(LeeCampos, UnNumeroDeMasDe16BitsDejaElCampoComoEstaba) {
    Fila fila{"", 50, true, 7};
    EXPECT_FALSE(LeeCampos("Ana 9E9-1 45", fila.LosCampos()));
    EXPECT_EQ(fila.numero, 50);
    EXPECT_EQ(fila.total, 45);
    EXPECT_TRUE(LeeCampos("Ana 009-1 45", fila.LosCampos()));

    Integer ancho = 3;
    EXPECT_FALSE(LeeCampos("99999", {{1, 5, &ancho, "@@@@@"}}));
    EXPECT_EQ(ancho, 3);
    EXPECT_FALSE(LeeCampos("1E999", {{1, 5, &ancho, "@@@@@"}}));
    EXPECT_EQ(ancho, 3);
    EXPECT_TRUE(LeeCampos("32767", {{1, 5, &ancho, "@@@@@"}}));
    EXPECT_EQ(ancho, 32767);
}

TEST(LeeCampos, CualquierNumeroDistintoDeCeroEsUnaBanderaPuesta) {
    EXPECT_TRUE(Fila{}.Lee("Ana 0005 ").bandera);
    EXPECT_FALSE((Fila{"", 0, true}.Lee("Ana 000 0").bandera));
    EXPECT_FALSE((Fila{"", 0, true}.Lee("Ana 000  ").bandera));
}

} // namespace
