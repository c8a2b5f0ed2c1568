#include "games/blackjack/blackjack_statistics.h"

#include <string>
#include <string_view>

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "games/blackjack/strategy_tables.h"
#include "games/common/deck_table.h"
#include "games/common/series.h"
#include "games/common/series_list.h"

namespace {

constexpr int kXDeListaConTablas = 290;
constexpr float kVeintiuno = 21;

// ---- the list of the series

Integer Apostado(Integer asiento, Integer serie) {
    return EnteroDe(apuestas.Apuesta(asiento, serie, kFaseApuestas) +
                    apuestas.Apuesta(asiento, serie, kFaseDoblar));
}

Integer Asegurado(Integer asiento, Integer serie) {
    return apuestas.Apuesta(asiento, serie, kFaseSeguro);
}

std::string TextoPuntos(Integer asiento, Integer serie) {
    const float puntos = CuentaSinHuella(asiento, serie).puntos;
    const bool natural = puntos == kVeintiuno && estado.NumCartas(asiento, serie) == 2 &&
                         estado.SeriesJugador(asiento) == 1;
    return natural ? "BJ" : Formato(puntos, "#0");
}

std::string TextoCarta(Integer asiento, Integer serie, int lugar) {
    return RangoFrances(estado.Mano(asiento, serie, lugar, kValor));
}

constexpr ListaDeSeries kLista{
    .cabecera = "Jugador  Serie  Apuesta  Seguro     Jugada",
    .tope = kVeintiuno,
    .serie = 11,
    .apuesta = 23,
    .puntos = 38,
    .cartas = 40,
    .seguro = 31,
    .apostado = Apostado,
    .asegurado = Asegurado,
    .texto_puntos = TextoPuntos,
    .texto_carta = TextoCarta,
};

// ---- the tables of play

constexpr int kAnchoCelda = 19, kAltoCelda = 18;
constexpr int kXDeCeldas = 58; // right of the row's labels
constexpr Integer kColumnasDeBanca = 10;
constexpr int kEntreTablas = 10;

constexpr int FinDeCeldas() {
    return kXDeCeldas + kColumnasDeBanca * kAnchoCelda;
}

Tinta TintaDe(char letra) {
    switch (letra) {
    case 'C':
    case 'S':
        return Tinta::Verde;
    case 'P':
    case 'N':
        return Tinta::Rojo;
    default:
        return Tinta::Azul;
    }
}

// What the bank's first card counts; 0 without one.
Integer CartaDeLaBanca() {
    const Integer valor = estado.Mano(estado.JugadorBanca, 1, 1, kValor);
    return Redondea(estado.ValorCarta(valor).Real());
}

// Prints a table from the top down, a cell's height at a time.
class Imprenta {
public:
    Imprenta(PaginaImpresa& pagina, int y) : pagina_(pagina), y_(y) {}

    int Y() const { return y_; }

    // fila: the number of the row that is the seat's.
    void Tabla(const TablaEstrategia& tabla, int fila) {
        Renglon(tabla.titulo, kLetraDeTitulo);
        pagina_.Texto((kXDeCeldas + FinDeCeldas()) / 2, y_, "Carta de la banca", Tinta::Negro, {},
                      Alineacion::Centro);
        y_ += kAltoCelda;
        Resalta(tabla, fila);
        Cabecera(tabla);
        for (const FilaEstrategia& renglon : tabla.filas)
            Fila(renglon);
        Renglon(tabla.leyenda);
        y_ += kEntreTablas;
    }

    void Renglon(std::string_view texto, const Letra& letra = {}) {
        pagina_.Texto(0, y_, texto, Tinta::Negro, letra);
        y_ += kAltoCelda;
    }

private:
    static int Centro(Integer columna) { // 1..10
        return kXDeCeldas + kAnchoCelda * (columna - 1) + kAnchoCelda / 2;
    }

    // The column of the bank's card and the row of the seat, behind the letters.
    void Resalta(const TablaEstrategia& tabla, int fila) {
        const Integer columna = CartaDeLaBanca();
        const int filas = static_cast<int>(tabla.filas.size());
        if (columna >= 1 && columna <= kColumnasDeBanca) {
            const int x = kXDeCeldas + kAnchoCelda * (columna - 1);
            pagina_.Relleno(x, y_, x + kAnchoCelda - 1, y_ + (filas + 1) * kAltoCelda - 1,
                            Tinta::Amarillo);
        }
        const int orden = fila - tabla.primera;
        if (orden >= 0 && orden < filas) {
            const int y = y_ + (orden + 1) * kAltoCelda;
            pagina_.Relleno(0, y, FinDeCeldas() - 1, y + kAltoCelda - 1, Tinta::Amarillo);
        }
    }

    void Cabecera(const TablaEstrategia& tabla) {
        pagina_.Texto(0, y_, tabla.columna, Tinta::Negro, kLetraDeTitulo);
        for (Integer columna = 1; columna <= kColumnasDeBanca; ++columna)
            pagina_.Texto(Centro(columna), y_, columna == kAs ? "A" : Numero(columna), Tinta::Negro,
                          kLetraDeTitulo, Alineacion::Centro);
        y_ += kAltoCelda;
    }

    void Fila(const FilaEstrategia& fila) {
        pagina_.Texto(0, y_, fila.rotulo, Tinta::Negro);
        for (Integer columna = 1; columna <= kColumnasDeBanca; ++columna) {
            const std::string_view letra =
                fila.letras.substr(static_cast<std::size_t>(columna - 1), 1);
            pagina_.Texto(Centro(columna), y_, letra, TintaDe(letra[0]), {}, Alineacion::Centro);
        }
        y_ += kAltoCelda;
    }

    PaginaImpresa& pagina_;
    int y_;
};

void ImprimeTablas(Imprenta& imprenta) {
    const Integer asiento = estado.JugadorActual, serie = estado.SerieActual;
    const CuentaDeSerie cuenta = CuentaSinHuella(asiento, serie);
    imprenta.Tabla(cuenta.blanda ? kTablaManoBlanda : kTablaManoDura,
                   static_cast<int>(cuenta.puntos));
    if (!series.PuedeAbrir)
        return;
    const Integer primera = estado.Mano(asiento, serie, 1, kValor);
    imprenta.Tabla(kTablaAbrirElPar, Redondea(estado.ValorCarta(primera).Real()));
}

void ImprimeOfertas(Imprenta& imprenta) {
    if (series.PuedeAsegurar)
        imprenta.Renglon("Puede asegurar su apuesta");
    if (series.PuedeAbrir)
        imprenta.Renglon("Puede abrir su juego actual");
    if (series.PuedeDoblar)
        imprenta.Renglon("Puede doblar su apuesta");
}

} // namespace

void EstadisBj(PaginaImpresa& pagina) {
    const bool juega_la_banca = estado.JugadorActual == estado.JugadorBanca;
    ListaDeSeries lista = kLista;
    lista.x = juega_la_banca ? 0 : kXDeListaConTablas;
    ImprimeSeries(pagina, lista);
    if (juega_la_banca)
        return;
    Imprenta imprenta(pagina, 0);
    ImprimeTablas(imprenta);
    if (estado.ManoEnCurso)
        ImprimeOfertas(imprenta);
}
