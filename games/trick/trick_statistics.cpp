#include "games/trick/trick_statistics.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/text.h"
#include "games/common/played_cards.h"
#include "games/common/trick_state.h"
#include "games/common/trick_values.h"
#include "games/trick/trick_rules.h"

namespace {

constexpr int kPrimerAsiento = 5, kEntreAsientos = 19; // columns
constexpr int kAnchoTantos = 7;
constexpr Integer kCartasDeTute = 4;

std::vector<Integer> AsientosActivos() {
    std::vector<Integer> activos;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) == kActivado)
            activos.push_back(asiento);
    }
    return activos;
}

// The list of the tricks: a column for each seat that plays, and where those for points and cantes begin.
struct Columnas {
    std::vector<Integer> asientos = AsientosActivos();
    int tantos = kPrimerAsiento + kEntreAsientos * static_cast<int>(asientos.size());
    int acuses = tantos + kAnchoTantos;

    static int DelAsiento(std::size_t orden) {
        return Columna(kPrimerAsiento + kEntreAsientos * static_cast<int>(orden));
    }
};

void ImprimeCabecera(PaginaImpresa& pagina, const Columnas& columnas) {
    pagina.Texto(0, 0, "Baza", Tinta::Negro, kLetraDeTitulo);
    for (std::size_t i = 0; i < columnas.asientos.size(); ++i)
        pagina.Texto(Columnas::DelAsiento(i), 0, estado.NombreJugador(columnas.asientos[i]),
                     Tinta::Negro, kLetraDeTitulo);
    pagina.Texto(Columna(columnas.tantos), 0, "Tantos", Tinta::Negro, kLetraDeTitulo);
    if (ReglasEnMesa().canta)
        pagina.Texto(Columna(columnas.acuses), 0, "Acuses", Tinta::Negro, kLetraDeTitulo);
}

// The suits sung after the trick. Two of them, which only partners can sing, go without what they were worth.
std::string Cantes(Integer baza) {
    std::vector<Integer> palos;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const Integer palo = bazas.RegistroBazas(asiento + kFilaCante, baza);
        if (palo != kSinCarta)
            palos.push_back(palo);
    }
    if (palos.empty())
        return "";
    if (palos.size() == 1)
        return (palos[0] == estado.PaloTriunfo ? "Cuarenta en " : "Veinte en ") +
               std::string(NombreDePalo(palos[0]));
    std::string texto = NombreDePalo(palos[0]);
    for (std::size_t i = 1; i < palos.size(); ++i)
        texto += std::string(" y ") + NombreDePalo(palos[i]);
    return texto;
}

void ImprimeBaza(PaginaImpresa& pagina, const Columnas& columnas, Integer baza, int y) {
    pagina.Texto(0, y, Numero(baza), Tinta::RojoOscuro);
    for (std::size_t i = 0; i < columnas.asientos.size(); ++i) {
        const Integer asiento = columnas.asientos[i];
        const Carta carta = CartaEnBaza(asiento, baza);
        if (carta.palo == kSinCarta)
            continue;
        const bool gana = bazas.RegistroBazas(asiento + kFilaGana, baza) == 1;
        pagina.Texto(Columnas::DelAsiento(i), y, NombreDeCarta(carta),
                     gana ? Tinta::Azul : Tinta::Gris);
    }
    pagina.Texto(Columna(columnas.tantos), y, Formato(bazas.TantosDeBaza(baza), "##0"),
                 Tinta::RojoOscuro);
    if (ReglasEnMesa().canta)
        pagina.Texto(Columna(columnas.acuses), y, Cantes(baza), Tinta::Azul);
}

// Of a hand in play the last trick is not told: it may still be going on.
Integer BazasContadas() {
    const int hasta = estado.NumBaza - (estado.ManoEnCurso ? 1 : 0);
    return static_cast<Integer>(std::min<int>(hasta, kBazasAnotadas));
}

bool SeHaJugado(Integer palo, Integer valor) {
    return bazas.CartaJugada(palo, valor) != 0;
}

Tinta TintaDelCante(Integer palo) {
    if (bazas.PaloCantado(palo) != 0)
        return Tinta::RojoOscuro;
    return SeHaJugado(palo, kRey) || SeHaJugado(palo, kCaballo) ? Tinta::Rojo : Tinta::Negro;
}

bool HanCantadoDos() {
    std::set<Integer> asientos;
    for (Integer palo = kOros; palo <= kBastos; ++palo)
        asientos.insert(bazas.PaloCantado(palo));
    asientos.erase(0);
    return asientos.size() > 1;
}

bool TuteImposible(Integer valor) {
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        if (SeHaJugado(palo, valor))
            return true;
    }
    return estado.NumCartas(estado.JugadorActual, 1) < kCartasDeTute || HanCantadoDos();
}

void ImprimeCantesYTutes(PaginaImpresa& pagina, int y) {
    for (Integer palo = kOros; palo <= kBastos; ++palo)
        pagina.Texto(ColumnaDePalo(palo), y, NombreDePalo(palo), TintaDelCante(palo));
    for (const Integer valor : {kCaballo, kRey}) {
        if (!TuteImposible(valor))
            continue;
        y += kRenglon;
        pagina.Texto(0, y, "Imposible conseguir Tute de " + estado.NombreValorPlural(valor),
                     Tinta::Rojo);
    }
}

} // namespace

void EstadisTB(PaginaImpresa& pagina) {
    const Columnas columnas;
    ImprimeCabecera(pagina, columnas);
    int y = 0;
    for (Integer baza = 1; baza <= BazasContadas(); ++baza) {
        y += kRenglon;
        ImprimeBaza(pagina, columnas, baza, y);
    }
    y = ImprimeCartasJugadas(pagina, y + 2 * kRenglon);
    if (ReglasEnMesa().canta)
        ImprimeCantesYTutes(pagina, y + kRenglon / 2);
}
