#include "games/common/deck_table.h"

#include <array>

#include "core/text.h"

namespace {

constexpr int kPrimerPalo = 9, kEntrePalos = 11; // columns
constexpr Integer kUltimoValor = 13;

void ImprimeFila(PaginaImpresa& pagina, int y, Integer valor, CeldaDeBaraja (*celda)(Carta carta)) {
    pagina.Texto(0, y, estado.NombreValor(valor), Tinta::Negro);
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        const CeldaDeBaraja impresa = celda({palo, valor});
        pagina.Texto(ColumnaDePalo(palo), y, impresa.texto, impresa.tinta,
                     {.negrita = impresa.marcada});
    }
}

} // namespace

int Columna(int letras) {
    return letras * AnchoLetra({});
}

std::string RangoFrances(Integer valor) {
    constexpr std::array kFiguras{"J", "Q", "K"};
    constexpr Integer kJota = 11;
    if (valor == kAs)
        return "A";
    return valor < kJota ? Numero(valor) : kFiguras.at(static_cast<std::size_t>(valor - kJota));
}

int ColumnaDePalo(Integer palo) {
    return Columna(kPrimerPalo + kEntrePalos * (palo - kOros));
}

int FinDeTablaDeBaraja() {
    return ColumnaDePalo(kBastos + 1);
}

int ImprimeTablaDeBaraja(PaginaImpresa& pagina, int y, CeldaDeBaraja (*celda)(Carta carta)) {
    for (Integer palo = kOros; palo <= kBastos; ++palo)
        pagina.Texto(ColumnaDePalo(palo), y, NombreDePalo(palo), Tinta::Negro, kLetraDeTitulo);
    for (Integer valor = 1; valor <= kUltimoValor; ++valor) {
        if (!estado.ValorEnBaraja(valor))
            continue;
        y += kRenglon;
        ImprimeFila(pagina, y, valor, celda);
    }
    return y + kRenglon;
}
