#pragma once
// A table whose settings files are written and read: the file of a match of Tute, and its lines and columns.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "storage/settings.h"
#include "tests/support/settings_files.h"

namespace prueba {

inline std::string Blancos(int n) {
    return std::string(static_cast<std::size_t>(n), ' ');
}

// Columns desde.. of a line, from 1.
inline std::string Columnas(const std::string& linea, int desde, int ancho) {
    return linea.substr(static_cast<std::size_t>(desde - 1), static_cast<std::size_t>(ancho));
}

inline std::vector<std::string> Lineas(const std::string& texto) {
    std::vector<std::string> lineas;
    std::size_t desde = 0;
    for (std::size_t fin = 0; (fin = texto.find("\r\n", desde)) != std::string::npos;
         desde = fin + 2)
        lineas.push_back(texto.substr(desde, fin - desde));
    EXPECT_EQ(desde, texto.size()) << "la última línea no acaba en CR LF";
    return lineas;
}

// The lines of a file that a Tute player might have: four seats, the match in its third game.
inline constexpr const char* kAsientos = "Ana      0501112"
                                         "Luis     0301113"
                                         "Eva      0751111"
                                         "Juan     1001222";
inline std::string AjustesDeTute() {
    return std::string(kAsientos) + "-1" + "01" + "01" + "1" + "1" + "1" + "4" + "1" + "1" +
           Blancos(13) + "-1" + "0 " + Blancos(3) + "002" + " " + "3" + " " + "4" + " 0 " + "01" +
           "0200" + "005" + "025" + "003" + Blancos(4);
}
inline std::string SinFichas() {
    return std::string(60, '0');
}
inline std::string ConJuegosGanados() {
    return "0000001"
           "0000000"
           "0000001"
           "0000000";
}
inline std::string RegistroDe(const std::string& inicio, const std::string& total) {
    const std::string vacio = "0000" + Blancos(17) + Blancos(15) + "0";
    return inicio + Blancos(9 - static_cast<int>(inicio.size())) + total + "1000" + "62" +
           Blancos(15) + "Tute de reyes  " + "2" + vacio + vacio + vacio + Blancos(8);
}
inline std::string ArchivoDeTute() {
    return AjustesDeTute() + "\r\n" + SinFichas() + "\r\n" + ConJuegosGanados() + "\r\n" +
           RegistroDe("Ana", "    0") + "\r\n" + RegistroDe("Luis", "  120") + "\r\n";
}

class AjustesTest : public testing::Test {
protected:
    void SetUp() override { mesa.Empieza(kTute); }

    std::vector<std::string> JuegoGrabado() {
        EXPECT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
        return Lineas(mesa.Archivo(NombreIniJuego(estado.JuegoActivo)));
    }

    void LeeTute(const std::string& contenido) {
        mesa.Empieza(kTute);
        mesa.Archivo("ZOV5131.INI") = contenido;
        LeerIniJuego();
    }

    // One field of the first line of a sound file with other bytes.
    void LeeTuteCon(int columna, const std::string& bytes) {
        LeeTute(
            ArchivoDeTute().replace(static_cast<std::size_t>(columna - 1), bytes.size(), bytes));
    }

    void EsperaDanado(const std::string& nombre, const std::string& aviso,
                      const std::string& contenido) {
        ASSERT_EQ(mesa.Mensajes().size(), 1u);
        EXPECT_EQ(mesa.Mensajes()[0].texto, aviso);
        EXPECT_TRUE(estado.FicheroNuevo);
        EXPECT_EQ(mesa.Archivo(nombre + ".MAL"), contenido);
        EXPECT_NE(mesa.Archivo(nombre + ".INI"), contenido);
    }

    SesionConArchivos mesa;
};

} // namespace prueba
