#include "table/printed_page.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <map>

#include "core/literal.h"
#include "core/text.h"

namespace {

struct FichaTinta {
    const char* nombre;
    Color color; // blue-green-red
};

// In the order of Tinta. On white paper a full green or yellow could not be read.
constexpr std::array<FichaTinta, 10> kTintas{{
    {"negro", 0x000000},
    {"blanco", 0xFFFFFF},
    {"gris", 0x707070},
    {"gris claro", 0xD0D0D0},
    {"rojo", 0x1010D0},
    {"rojo oscuro", 0x000080},
    {"azul", 0xD02010},
    {"azul oscuro", 0x800000},
    {"verde", 0x107010},
    {"amarillo", 0xA0F0FF},
}};

struct DibujoPalo {
    const char* signo = "";
    Tinta tinta = Tinta::Negro;
};

// By palo from 1, as the rows of the deck's image.
constexpr std::array<DibujoPalo, 4> kPalos{
    {{"♦", Tinta::Rojo}, {"♥", Tinta::Rojo}, {"♠", Tinta::Negro}, {"♣", Tinta::Negro}}};

const FichaTinta& FichaDe(Tinta tinta) {
    return kTintas[static_cast<std::size_t>(tinta)];
}

int AltoLinea(const Letra& letra) {
    return letra.cuerpo + letra.cuerpo / 4;
}

void PintaImpreso(const Impreso& i, Lienzo& lienzo, int x, int y) {
    const Color color = ColorDe(i.tinta);
    const Rectangulo caja{x + i.x, y + i.y, i.x2 - i.x + 1, i.y2 - i.y + 1};
    switch (i.clase) {
    case ClaseImpreso::Texto:
    case ClaseImpreso::Palo: {
        const Fuente fuente{
            .alto = i.letra.cuerpo, .negrita = i.letra.negrita, .fija = true, .tope = i.x2 - i.x};
        return lienzo.Texto(x + i.x, y + i.y, i.texto, fuente, color, Alineacion::Izquierda);
    }
    case ClaseImpreso::Linea:
        return lienzo.Linea(x + i.x, y + i.y, x + i.x2, y + i.y2, color, 1);
    case ClaseImpreso::Caja:
        return lienzo.Borde(caja, color, 1);
    case ClaseImpreso::Relleno:
        return lienzo.Caja(caja, color);
    }
}

std::string Contenido(const Impreso& i) {
    if (i.clase == ClaseImpreso::Texto)
        return Escrito(i.texto);
    return fmt::format("{} {} {}", i.clase == ClaseImpreso::Linea ? "regla" : "caja", i.x2, i.y2);
}

} // namespace

const char* NombreDe(Tinta tinta) {
    return FichaDe(tinta).nombre;
}

Color ColorDe(Tinta tinta) {
    return FichaDe(tinta).color;
}

// Three fifths of the height, as letters of equal width are cut.
int AnchoLetra(const Letra& letra) {
    return letra.cuerpo * 3 / 5;
}

int AnchoTexto(std::string_view texto, const Letra& letra) {
    return Longitud(texto) * AnchoLetra(letra);
}

void PaginaImpresa::Texto(int x, int y, std::string_view texto, Tinta tinta, const Letra& letra,
                          Alineacion alineacion) {
    if (texto.empty())
        return;
    const int ancho = AnchoTexto(texto, letra);
    const int izquierda = BordeIzquierdo(x, ancho, alineacion);
    impresos_.push_back({ClaseImpreso::Texto, izquierda, y, izquierda + ancho, y + AltoLinea(letra),
                         tinta, letra, std::string(texto)});
}

void PaginaImpresa::TextoEstrecho(int x, int y, std::string_view texto, Tinta tinta, int tope) {
    Texto(x, y, texto, tinta);
    if (!texto.empty())
        impresos_.back().x2 = std::min(impresos_.back().x2, x + tope);
}

void PaginaImpresa::Linea(int x, int y, int x2, int y2, Tinta tinta) {
    impresos_.push_back({ClaseImpreso::Linea, x, y, x2, y2, tinta, {}, {}});
}

void PaginaImpresa::Caja(int x, int y, int x2, int y2, Tinta tinta) {
    impresos_.push_back({ClaseImpreso::Caja, x, y, x2, y2, tinta, {}, {}});
}

void PaginaImpresa::Relleno(int x, int y, int x2, int y2, Tinta tinta) {
    impresos_.push_back({ClaseImpreso::Relleno, x, y, x2, y2, tinta, {}, {}});
}

void PaginaImpresa::Palo(int x, int y, Integer palo, const Letra& letra) {
    if (palo < 1 || palo > static_cast<Integer>(kPalos.size()))
        return;
    const DibujoPalo& dibujo = kPalos[static_cast<std::size_t>(palo - 1)];
    impresos_.push_back({ClaseImpreso::Palo, x, y, x + AnchoLetra(letra), y + AltoLinea(letra),
                         dibujo.tinta, letra, dibujo.signo});
}

void PintaPagina(const PaginaImpresa& pagina, Lienzo& lienzo, int x, int y) {
    for (const Impreso& impreso : pagina.Impresos())
        PintaImpreso(impreso, lienzo, x, y);
}

std::vector<std::string> LineasDe(const PaginaImpresa& pagina) {
    std::vector<std::string> lineas;
    for (const Impreso& i : pagina.Impresos()) {
        if (i.clase != ClaseImpreso::Palo)
            lineas.push_back(fmt::format("{}, {}, {}, {}, {}", i.x, i.y, NombreDe(i.tinta),
                                         i.letra.negrita ? "negrita" : "normal", Contenido(i)));
    }
    return lineas;
}

std::string TextoDe(const PaginaImpresa& pagina) {
    std::map<int, std::vector<const Impreso*>> por_linea;
    for (const Impreso& i : pagina.Impresos()) {
        if (i.clase == ClaseImpreso::Texto)
            por_linea[i.y].push_back(&i);
    }
    std::string todo;
    for (auto& [y, textos] : por_linea) {
        std::ranges::stable_sort(textos, {}, [](const Impreso* i) { return i->x; });
        std::string linea;
        for (const Impreso* i : textos) {
            const int columna = std::max(i->x / AnchoLetra({}), Longitud(linea));
            linea.append(static_cast<std::size_t>(columna - Longitud(linea)), ' ');
            linea += i->texto;
        }
        linea.erase(linea.find_last_not_of(' ') + 1);
        todo += linea + '\n';
    }
    return todo;
}
