#include "reports/historic_pages.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "core/game_state.h"
#include "core/text.h"
#include "table/game_row.h"

namespace {

constexpr Letra kLetra{};
constexpr int kAnchoHoja = 552, kAltoHoja = 436;
constexpr int kMargen = 16;
constexpr int kCabecera = 12, kLineas = 38;
constexpr int kColumnas = 34, kTotales = 58, kPasoTotal = 18;
constexpr int kPasoPartida = 38, kSegundaLinea = 15;

bool ConDinero() {
    return JuegoEnMesa().dinero.hay;
}

// ---- the list of matches

std::string_view CabeceraDeLista() {
    return ConDinero() ? "Fecha / Hora            Ganadores / Perdedores               Ganancias"
                       : "Fecha / Hora            Ganadores / Perdedores                 Manos  ";
}

int MedioDe(std::string_view linea, std::string_view palabra) {
    const auto columna = static_cast<int>(linea.find(palabra));
    return kMargen + columna * AnchoLetra(kLetra) + AnchoTexto(palabra, kLetra) / 2;
}

int FinDe(std::string_view linea, std::string_view palabra) {
    const auto columna = static_cast<int>(linea.find(palabra));
    return kMargen + columna * AnchoLetra(kLetra) + AnchoTexto(palabra, kLetra);
}

struct Grupo {
    std::string nombres;
    std::string figuras;
};

void Junta(std::string& texto, std::string_view separador, std::string_view otro) {
    texto += (texto.empty() ? "" : std::string(separador)) + std::string(otro);
}

// Of a pair only the first figure is told.
Grupo GrupoDe(const BloqueHistorico& partida,
              std::string_view (BloqueHistorico::*nombre)(int) const,
              double (BloqueHistorico::*figura)(int) const) {
    Grupo grupo;
    for (int puesto = 1; puesto <= kPuestos; ++puesto) {
        const std::string_view quien = (partida.*nombre)(puesto);
        if (quien.empty())
            continue;
        Junta(grupo.nombres, ", ", TextoDeHistorico(quien));
        if (!partida.PorParejas() || puesto == 1)
            Junta(grupo.figuras, "/", fmt::format("{}", (partida.*figura)(puesto)));
    }
    return grupo;
}

void ImprimeLinea(PaginaImpresa& pagina, int y, const std::string& cuando, const Grupo& grupo) {
    const std::string_view cabecera = CabeceraDeLista();
    pagina.Texto(kMargen, y, cuando, Tinta::Negro);
    pagina.Texto(MedioDe(cabecera, "Ganadores / Perdedores"), y, grupo.nombres, Tinta::Negro,
                 kLetra, Alineacion::Centro);
    pagina.Texto(MedioDe(cabecera, ConDinero() ? "Ganancias" : "Manos"), y, grupo.figuras,
                 Tinta::Negro, kLetra, Alineacion::Centro);
}

// ---- the totals

std::string_view TituloDe(int pestana) {
    switch (pestana) {
    case kPartidasDeJugador:
        return "Partidas ganadas por jugador";
    case kFigurasDeJugador:
        return ConDinero() ? "Ganancias obtenidas por jugador" : "Manos ganadas por jugador";
    case kPartidasDePareja:
        return "Partidas ganadas por pareja";
    default:
        // The games that are never played in pairs have no heading here. As it is meant.
        if (!JuegoEnMesa().informes.cuenta_parejas)
            return "";
        return ConDinero() ? "Ganancias obtenidas por pareja" : "Manos ganadas por pareja";
    }
}

struct Cabecera {
    std::string_view linea;
    std::string_view quien;
    std::string_view cuanto;
};

Cabecera ColumnasDe(int pestana) {
    switch (pestana) {
    case kPartidasDeJugador:
        return {"                  Jugador                   Partidas", "Jugador", "Partidas"};
    case kFigurasDeJugador:
        return ConDinero() ? Cabecera{"                  Jugador                  Ganancias",
                                      "Jugador", "Ganancias"}
                           : Cabecera{"                  Jugador                    Manos  ",
                                      "Jugador", "Manos  "};
    case kPartidasDePareja:
        return {"                    Pareja                    Partidas", "Pareja", "Partidas"};
    default:
        return ConDinero() ? Cabecera{"                    Pareja                   Ganancias",
                                      "Pareja", "Ganancias"}
                           : Cabecera{"                    Pareja                      Manos  ",
                                      "Pareja", "Manos  "};
    }
}

std::string NombresDe(const Total& total, int pestana) {
    const bool pareja = pestana == kPartidasDePareja || pestana == kFigurasDePareja;
    return pareja ? total.primero + " y " + total.segundo : total.primero;
}

} // namespace

PaginaImpresa ImprimePartidas(const Historico& historico, int primera, int ultima) {
    PaginaImpresa pagina(kAnchoHoja, kAltoHoja);
    pagina.Texto(kMargen, kCabecera, CabeceraDeLista(), Tinta::Negro);
    const std::string perdedores = JuegoEnMesa().informes.perdedores;
    int y = kLineas;
    for (int n = primera; n <= ultima; ++n) {
        const BloqueHistorico partida = historico.Partida(n);
        ImprimeLinea(pagina, y, partida.Fecha(),
                     GrupoDe(partida, &BloqueHistorico::Ganador, &BloqueHistorico::FiguraGanador));
        Grupo pierden =
            GrupoDe(partida, &BloqueHistorico::Perdedor, &BloqueHistorico::FiguraPerdedor);
        if (!perdedores.empty())
            pierden.figuras = perdedores;
        ImprimeLinea(pagina, y + kSegundaLinea, partida.Hora(), pierden);
        y += kPasoPartida;
    }
    return pagina;
}

PaginaImpresa ListaTotales(int pestana, const std::vector<Total>& totales, int primera,
                           int ultima) {
    PaginaImpresa pagina(kAnchoHoja, kAltoHoja);
    const Cabecera cabecera = ColumnasDe(pestana);
    pagina.Texto(kMargen, kCabecera, TituloDe(pestana), Tinta::Verde);
    pagina.Texto(kMargen, kColumnas, cabecera.linea, Tinta::Negro);
    int y = kTotales;
    for (int n = primera; n <= ultima; ++n) {
        const Total& total = totales.at(static_cast<std::size_t>(n - 1));
        pagina.Texto(MedioDe(cabecera.linea, cabecera.quien), y, NombresDe(total, pestana),
                     Tinta::Negro, kLetra, Alineacion::Centro);
        pagina.Texto(FinDe(cabecera.linea, cabecera.cuanto), y, Formato(total.cuenta, "#####0"),
                     Tinta::Negro, kLetra, Alineacion::Derecha);
        y += kPasoTotal;
    }
    return pagina;
}
