#include "games/blackjack/strategy_tables.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<FilaEstrategia, 18> kFilasDura{{
    {"4", "CCCCCCCCCC"},
    {"5", "CCCCCCCCCC"},
    {"6", "CCCCCCCCCC"},
    {"7", "CCCCCCCCCC"},
    {"8", "CCCCCCCCCC"},
    {"9", "CCDDDDCCCC"},
    {"10", "CDDDDDDDDC"},
    {"11", "CDDDDDDDDD"},
    {"12", "CCCPPPCCCC"},
    {"13", "CPPPPPCCCC"},
    {"14", "CPPPPPCCCC"},
    {"15", "CPPPPPCCCC"},
    {"16", "CPPPPPCCCC"},
    {"17", "PPPPPPPPPP"},
    {"18", "PPPPPPPPPP"},
    {"19", "PPPPPPPPPP"},
    {"20", "PPPPPPPPPP"},
    {"21", "PPPPPPPPPP"},
}};

constexpr std::array<FilaEstrategia, 8> kFilasBlanda{{
    {"(A,2)", "CCCCCCCCCC"},
    {"(A,3)", "CCCCCCCCCC"},
    {"(A,4)", "CCCCCCCCCC"},
    {"(A,5)", "CCCCCCCCCC"},
    {"(A,6)", "CCCCCCCCCC"},
    {"(A,7)", "CPPPPPPPCC"},
    {"(A,8)", "PPPPPPPPPP"},
    {"(A,9)", "PPPPPPPPPP"},
}};

constexpr std::array<FilaEstrategia, 10> kFilasPar{{
    {"(A,A)", "SSSSSSSSSS"},
    {"(2,2)", "NSSSSSSNNN"},
    {"(3,3)", "NSSSSSSNNN"},
    {"(4,4)", "NNNNSSNNNN"},
    {"(5,5)", "NNNNNNNNNN"},
    {"(6,6)", "NSSSSSNNNN"},
    {"(7,7)", "NSSSSSSNNN"},
    {"(8,8)", "SSSSSSSSSS"},
    {"(9,9)", "NSSSSSNSSN"},
    {"(10,10)", "NNNNNNNNNN"},
}};

} // namespace

constinit const TablaEstrategia kTablaManoDura{.titulo = "OPCIONES EN MANO DURA",
                                               .leyenda = "C:Carta   P:Plantarse   D:Doblar",
                                               .columna = "Puntos",
                                               .primera = 4,
                                               .filas = kFilasDura};
constinit const TablaEstrategia kTablaManoBlanda{.titulo = "OPCIONES EN MANO BLANDA",
                                                 .leyenda = "C:Carta   P:Plantarse",
                                                 .columna = "Juego",
                                                 .primera = 13,
                                                 .filas = kFilasBlanda};
constinit const TablaEstrategia kTablaAbrirElPar{.titulo = "OPCIONES DE ABRIR EL PAR",
                                                 .leyenda = "S: Si abrir    N: No abrir",
                                                 .columna = "Par",
                                                 .primera = 1,
                                                 .filas = kFilasPar};

char TablaEstrategia::Letra(int fila, Integer banca) const {
    constexpr Integer kDiez = 10;
    const int indice = fila - primera;
    if (indice < 0 || indice >= static_cast<int>(filas.size()) || banca < 1)
        return 0;
    const Integer columna_banca = std::min(banca, kDiez);
    return filas[static_cast<std::size_t>(indice)]
        .letras[static_cast<std::size_t>(columna_banca - 1)];
}
