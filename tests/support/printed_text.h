#pragma once
// A printed page as a person reads it: its lines from the top down, and the inks of its words.

#include <map>
#include <string>
#include <vector>

#include "table/printed_page.h"

namespace prueba {

// The texts of a line from the left, with " | " between them: "Baza | Ana | Tantos".
inline std::vector<std::string> RenglonesDe(const PaginaImpresa& pagina) {
    std::map<int, std::multimap<int, std::string>> por_altura;
    for (const Impreso& i : pagina.Impresos()) {
        if (i.clase == ClaseImpreso::Texto)
            por_altura[i.y].insert({i.x, i.texto});
    }
    std::vector<std::string> renglones;
    for (const auto& [y, textos] : por_altura) {
        std::string renglon;
        for (const auto& [x, texto] : textos)
            renglon += (renglon.empty() ? "" : " | ") + texto;
        renglones.push_back(renglon);
    }
    return renglones;
}

// The inks in which a text is printed, in the order of printing.
inline std::vector<Tinta> TintasDe(const PaginaImpresa& pagina, const std::string& texto) {
    std::vector<Tinta> tintas;
    for (const Impreso& i : pagina.Impresos()) {
        if (i.clase == ClaseImpreso::Texto && i.texto == texto)
            tintas.push_back(i.tinta);
    }
    return tintas;
}

inline std::vector<Impreso> ItemsDe(const PaginaImpresa& pagina, ClaseImpreso clase) {
    std::vector<Impreso> items;
    for (const Impreso& i : pagina.Impresos()) {
        if (i.clase == clase)
            items.push_back(i);
    }
    return items;
}

} // namespace prueba
