#include "games/poker/poker_statistics.h"

#include <string>
#include <string_view>
#include <vector>

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/text.h"
#include "games/common/deck_table.h"
#include "games/poker/draw_odds.h"
#include "games/poker/hand_layout.h"
#include "games/poker/hand_reading.h"
#include "games/poker/hand_value.h"
#include "games/poker/poker_state.h"

namespace {

constexpr Integer kCartas = 5;
constexpr Integer kPrimeraImpresa = 3; // the draws of three cards are not told
constexpr Integer kPrimeraHecha = 7;   // from here on hands, below draws
constexpr int kAltoFila = 19;          // room for the rule under the cards

double PorCiento(Long casos, Long de) {
    return de != 0 ? static_cast<double>(casos) / de * 100 : 0;
}

// ---- the deck

constexpr std::string_view kLineaDeBaraja =
    "Cartas normales:     Comodines:     Total cartas baraja:      Combinaciones posibles:";

void ImprimeTras(PaginaImpresa& pagina, std::string_view rotulo, const std::string& cifra) {
    const std::size_t fin = kLineaDeBaraja.find(rotulo) + rotulo.size();
    pagina.Texto(Columna(static_cast<int>(fin) + 1), 0, cifra, Tinta::Azul);
}

void ImprimeBaraja(PaginaImpresa& pagina) {
    pagina.Texto(0, 0, kLineaDeBaraja, Tinta::Negro);
    ImprimeTras(pagina, "normales:", Numero(estado.CartasNormales));
    ImprimeTras(pagina, "Comodines:", Numero(estado.ComodinesBaraja));
    ImprimeTras(pagina, "baraja:", Numero(estado.TotalBaraja));
    ImprimeTras(pagina, "posibles:", Formato(poker.TotalCombinaciones, "#,###,##0"));
}

// ---- what the cards make

constexpr int kPrimeraCarta = 20, kEntreCartas = 4, kFinDeOrden = 49, kFinDePorcentaje = 58;

std::vector<Integer> CategoriasPresentes() {
    std::vector<Integer> presentes;
    for (Integer n = kPrimeraImpresa; n <= kCategorias; ++n) {
        if (poker.Jugadas(estado.JugadorActual, n).Activa != 0)
            presentes.push_back(n);
    }
    return presentes;
}

void ImprimeCarta(PaginaImpresa& pagina, int puesto, int y) {
    const Integer palo = poker.JugadaOrdenada(puesto, 1);
    if (palo == kSinCarta)
        return;
    constexpr int kBajoLaLetra = 15;
    const std::string texto =
        palo == kComodin ? "#" : RangoFrances(poker.JugadaOrdenada(puesto, 2));
    const int x = Columna(kPrimeraCarta + kEntreCartas * (puesto - 1));
    const int x_palo = x + Columna(Longitud(texto));
    pagina.Texto(x, y, texto, Tinta::Negro);
    pagina.Palo(x_palo, y, palo);
    if (puesto > poker.CartasClave)
        return;
    const int fin = palo == kComodin ? x_palo : x_palo + Columna(1);
    pagina.Linea(x, y + kBajoLaLetra, fin, y + kBajoLaLetra, Tinta::Negro);
}

void HastaColumna(PaginaImpresa& pagina, int columna, int y, const std::string& texto,
                  Tinta tinta) {
    pagina.Texto(Columna(columna), y, texto, tinta, {}, Alineacion::Derecha);
}

void ImprimeJugada(PaginaImpresa& pagina, Integer categoria, int y) {
    const Integer asiento = estado.JugadorActual;
    pagina.Texto(0, y, Recorta(poker.NombreJugada(categoria)), Tinta::Negro);
    OrdenaJugada(asiento, categoria);
    for (int puesto = 1; puesto <= kCartas; ++puesto)
        ImprimeCarta(pagina, puesto, y);
    const Long orden = ValorJugada(categoria, asiento);
    if (orden == 0)
        return;
    HastaColumna(pagina, kFinDeOrden, y, Formato(orden, "#,###,##0"), Tinta::Azul);
    HastaColumna(pagina, kFinDePorcentaje, y,
                 Formato(PorCiento(orden, poker.TotalCombinaciones), "#0.0000"), Tinta::Azul);
}

int ImprimeJugadas(PaginaImpresa& pagina, int y) {
    pagina.Texto(0, y, "     Jugada              Cartas         Nro.Orden  % Orden", Tinta::Negro,
                 kLetraDeTitulo);
    for (const Integer categoria : CategoriasPresentes()) {
        y += kAltoFila;
        ImprimeJugada(pagina, categoria, y);
    }
    return y + kAltoFila;
}

// ---- what they may become

// The columns follow the numbers of the categories, of which two pairs change places in short decks.
struct TitulosDeCambio {
    const char* primera;
    const char* segunda;
};
constexpr TitulosDeCambio kBarajaLarga{
    "   Jugada que     Carta Pare  Doble       Figu  Esca                    Escal  Re      "
    "obtener  jugada",
    "  se  mantiene    mayor  ja   parej  Trio  ras  lera  Color  Full Póker Color poker   "
    "Menor Igual Mayor"};
constexpr TitulosDeCambio kBarajaCorta{
    "   Jugada que     Carta Pare  Doble Figu        Esca                    Escal  Re      "
    "obtener  jugada ",
    "  se  mantiene    mayor  ja   parej  ras   Trio lera   Full Color Póker Color poker   "
    "Menor Igual Mayor"};
constexpr Integer kPrimeraCorta = 4; // CartasBaraja

constexpr int kColumnaDeTitulo = 31; // its second half stands over "obtener  jugada"
constexpr int kFinDePrimera = 23, kEntreCategorias = 6;
constexpr int kFinDeMenor = 91, kFinDeIgual = 97, kFinDeMayor = 103;

std::string TextoResultado(double por_ciento) {
    constexpr double kMinimo = 0.01;
    return por_ciento < kMinimo ? "<0.01" : Formato(por_ciento, "#0.00");
}

std::string TextoComparado(double por_ciento) {
    return por_ciento == 100 ? "100 " : Formato(por_ciento, "#0.00");
}

void ImprimeComparacion(PaginaImpresa& pagina, const RegistroDescarte& registro, int y) {
    const Integer mejor = poker.MejorJugada(estado.JugadorActual);
    Long menor = 0, igual = 0, mayor = 0;
    for (Integer n = kPrimeraHecha; n <= kCategorias; ++n) {
        Long& suma = n < mejor ? menor : n == mejor ? igual : mayor;
        suma += registro.CasosResultado(n);
    }
    const auto imprime = [&](int columna, Long casos, Tinta tinta) {
        HastaColumna(pagina, columna, y, TextoComparado(PorCiento(casos, registro.CasosDescarte)),
                     tinta);
    };
    imprime(kFinDeMenor, menor, Tinta::Rojo);
    imprime(kFinDeIgual, igual, Tinta::Azul);
    imprime(kFinDeMayor, mayor, Tinta::Verde);
}

void ImprimeCambio(PaginaImpresa& pagina, Integer categoria, int y) {
    pagina.Texto(0, y, Recorta(poker.NombreJugada(categoria)), Tinta::Negro);
    const Integer calidad = poker.Jugadas(estado.JugadorActual, categoria).Calidad;
    const RegistroDescarte* const registro = ProbabilidadDe(categoria, calidad);
    if (registro == nullptr)
        return;
    for (Integer n = kPrimeraHecha; n <= kCategorias; ++n) {
        const Long casos = registro->CasosResultado(n);
        if (casos > 0)
            HastaColumna(pagina, kFinDePrimera + kEntreCategorias * (n - kPrimeraHecha), y,
                         TextoResultado(PorCiento(casos, registro->CasosDescarte)), Tinta::Azul);
    }
    ImprimeComparacion(pagina, *registro, y);
}

void ImprimeCambios(PaginaImpresa& pagina, int y) {
    const TitulosDeCambio& titulos =
        estado.CartasBaraja < kPrimeraCorta ? kBarajaLarga : kBarajaCorta;
    pagina.Texto(Columna(kColumnaDeTitulo), y,
                 "Probabilidades de obtener estas jugadas                Probabilidades de",
                 Tinta::Negro, kLetraDeTitulo);
    for (const char* titulo : {titulos.primera, titulos.segunda}) {
        y += kRenglon;
        pagina.Texto(0, y, titulo, Tinta::Negro, kLetraDeTitulo);
    }
    for (const Integer categoria : CategoriasPresentes()) {
        y += kAltoFila;
        ImprimeCambio(pagina, categoria, y);
    }
}

} // namespace

void EstadisPoker(PaginaImpresa& pagina) {
    ImprimeBaraja(pagina);
    const Integer asiento = estado.JugadorActual;
    if (estado.NumCartas(asiento, kSeriePoker) != kCartas)
        return;
    AnalizaJugada(asiento);
    const int y = ImprimeJugadas(pagina, 2 * kRenglon);
    if (apuestas.FaseApuesta < kFaseSegundaRonda)
        ImprimeCambios(pagina, y + kRenglon);
}
