// The list of fields against the text of the headers, and what is built on the list.

#include "games/common/trick_state.h"
#include "session/state_blocks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>

namespace {

namespace fs = std::filesystem;
using Nombres = std::vector<std::string>;

struct Miembro {
    std::string tipo;
    std::string nombre;
};
using Miembros = std::vector<Miembro>;

std::string SinComentarios(const fs::path& ruta) {
    std::ifstream archivo(ruta);
    std::stringstream texto;
    texto << archivo.rdbuf();
    return std::regex_replace(texto.str(), std::regex("//[^\n]*"), "");
}

// The members of each struct of the text, in order.
std::map<std::string, Miembros> Estructuras(const std::string& texto) {
    static const std::regex kEstructura(R"(struct (\w+) \{([^}]*(?:\{[^}]*\}[^}]*)*)\};)");
    static const std::regex kMiembro(
        R"(^\s*([\w:]+(?:<[^;=]*>)?)\s+(\w+)\s*(?:=[^;]*|\{[^;]*\})?$)");
    std::map<std::string, Miembros> estructuras;
    for (std::sregex_iterator e(texto.begin(), texto.end(), kEstructura), fin; e != fin; ++e) {
        std::stringstream cuerpo((*e)[2]);
        std::smatch m;
        for (std::string frase; std::getline(cuerpo, frase, ';');) {
            frase = std::regex_replace(frase, std::regex("\\s+"), " ");
            if (std::regex_match(frase, m, kMiembro))
                estructuras[(*e)[1]].push_back({m[1], m[2]});
        }
    }
    return estructuras;
}

// All headers that may hold a block of state.
std::vector<fs::path> Cabeceras() {
    const char* raiz = std::getenv("ZOVIN_SOURCE");
    std::vector<fs::path> cabeceras;
    for (const char* sala : {"core", "table", "betting", "games", "forms", "reports"}) {
        const fs::path carpeta = fs::path(raiz == nullptr ? "." : raiz) / sala;
        if (!fs::exists(carpeta))
            continue;
        for (const auto& entrada : fs::recursive_directory_iterator(carpeta)) {
            if (entrada.path().filename().string().ends_with("_state.h"))
                cabeceras.push_back(entrada.path());
        }
    }
    return cabeceras;
}

// What the headers say: the structs, and the members of each block that exists as a variable.
struct LoEscrito {
    std::map<std::string, Miembros> estructuras;
    std::vector<Miembros> bloques;
};

LoEscrito LeeCabeceras() {
    static const std::regex kVariable(R"(extern (Estado\w*) \w+;)");
    LoEscrito escrito;
    for (const fs::path& ruta : Cabeceras()) {
        const std::string texto = SinComentarios(ruta);
        escrito.estructuras.merge(Estructuras(texto));
        for (std::sregex_iterator v(texto.begin(), texto.end(), kVariable), fin; v != fin; ++v)
            escrito.bloques.push_back(escrito.estructuras[(*v)[1]]);
    }
    return escrito;
}

Nombres NombresDe(const Miembros& miembros) {
    Nombres nombres;
    for (const Miembro& m : miembros)
        nombres.push_back(m.nombre);
    return nombres;
}

template <class B>
Nombres ListaDe(B& bloque) {
    Nombres nombres;
    RecorreCampos(bloque, [&](const char* nombre, const auto&) { nombres.push_back(nombre); });
    return nombres;
}

// The names inside each field whose elements are records, by the field's name.
std::map<std::string, Nombres> ListasDeRegistros() {
    std::map<std::string, Nombres> listas;
    RecorreEstado([&](const char* nombre, auto& campo) {
        if constexpr (requires { typename std::remove_cvref_t<decltype(campo)>::Valor; }) {
            if constexpr (TieneCampos<typename std::remove_cvref_t<decltype(campo)>::Valor>)
                listas[nombre] = ListaDe(*campo.begin());
        } else if constexpr (TieneCampos<std::remove_cvref_t<decltype(campo)>>) {
            listas[nombre] = ListaDe(campo);
        }
    });
    return listas;
}

TEST(ListaDeCampos, TieneCadaCampoDeCadaBloqueEnSuOrden) {
    std::vector<Nombres> en_lista;
    std::apply([&](auto&... bloque) { (en_lista.push_back(ListaDe(bloque)), ...); }, LosBloques());
    std::vector<Nombres> en_cabeceras;
    for (const Miembros& bloque : LeeCabeceras().bloques)
        en_cabeceras.push_back(NombresDe(bloque));

    EXPECT_THAT(en_lista, testing::UnorderedElementsAreArray(en_cabeceras));
    EXPECT_THAT(en_cabeceras, testing::Each(testing::Not(testing::IsEmpty())));
    EXPECT_THAT(en_cabeceras, testing::Contains(testing::SizeIs(testing::Gt(100))));
}

TEST(ListaDeCampos, TieneCadaCampoDeLosRegistros) {
    const LoEscrito escrito = LeeCabeceras();
    std::map<std::string, Nombres> en_cabeceras;
    for (const Miembros& bloque : escrito.bloques) {
        for (const Miembro& m : bloque) {
            for (const auto& [estructura, miembros] : escrito.estructuras) {
                if (std::regex_search(m.tipo, std::regex("\\b" + estructura + "\\b")))
                    en_cabeceras[m.nombre] = NombresDe(miembros);
            }
        }
    }
    EXPECT_EQ(en_cabeceras, ListasDeRegistros());
    EXPECT_THAT(en_cabeceras["Juegos"],
                testing::ElementsAre("Inicio", "Marcas", "Texto1", "Texto2", "Cifra", "Total"));
}

TEST(ListaDeCampos, NingunNombreEstaDosVeces) {
    std::map<std::string, int> veces;
    RecorreEstado([&](const char* nombre, const auto&) { ++veces[nombre]; });
    EXPECT_THAT(veces, testing::Each(testing::Pair(testing::_, 1)));
}

TEST(Instantanea, ReponeLoQueHabia) {
    BorraEstado();
    estado.NombreJugador(2) = "Ana";
    bazas.CartaJugada(kOros, 5) = 3;
    const Instantanea antes = Instantanea::Toma();

    estado.NombreJugador(2) = "Luis";
    bazas.CartaJugada(kOros, 5) = 0;
    EXPECT_FALSE(antes == Instantanea::Toma());

    antes.Repon();
    EXPECT_EQ(estado.NombreJugador(2), "Ana");
    EXPECT_EQ(bazas.CartaJugada(kOros, 5), 3);
    EXPECT_TRUE(antes == Instantanea::Toma());
}

TEST(BorraEstado, DejaTodosLosBloquesComoNuevos) {
    estado.Juegos(7).Texto1(3) = "Trio";
    bazas.TantosBaza = 11;
    BorraEstado();
    EXPECT_TRUE(estado == EstadoJuego{});
    EXPECT_TRUE(bazas == EstadoBazas{});
}

} // namespace
