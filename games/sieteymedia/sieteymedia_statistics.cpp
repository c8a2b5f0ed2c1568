#include "games/sieteymedia/sieteymedia_statistics.h"

#include <string>

#include "betting/chips.h"
#include "core/game_state.h"
#include "core/text.h"
#include "games/common/deck_table.h"
#include "games/common/series.h"
#include "games/common/series_list.h"
#include "games/common/trick_state.h"
#include "games/sieteymedia/sieteymedia_state.h"

namespace {

constexpr float kSieteYMedio = 7.5F;
constexpr Integer kUltimoEntero = 7; // beyond it come the figures, half a point each
constexpr Integer kFilaDeFiguras = 8, kUltimoValor = 12;
constexpr const char* kMascara = "##0.00";
constexpr int kCartasDeValor = 4, kFiguras = 12, kCartasBaraja = 40;

// ---- the list of the series

bool MuestraElDorso(Integer asiento, Integer serie, int lugar) {
    return estado.Mano(asiento, serie, lugar, kCara) == kDorso;
}

bool TodaALaVista(Integer asiento, Integer serie) {
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar) {
        if (MuestraElDorso(asiento, serie, lugar))
            return false;
    }
    return true;
}

std::string TextoPuntos(Integer asiento, Integer serie) {
    if (!estado.SerieTerminada(asiento, serie) && !TodaALaVista(asiento, serie))
        return "¿¿??";
    return Formato(CuentaSinHuella(asiento, serie).puntos, "#0.0");
}

std::string TextoCarta(Integer asiento, Integer serie, int lugar) {
    if (!estado.SerieTerminada(asiento, serie) && MuestraElDorso(asiento, serie, lugar))
        return "¿?";
    const Integer valor = estado.Mano(asiento, serie, lugar, kValor);
    return valor > kUltimoEntero ? "0.5" : Numero(valor);
}

constexpr ListaDeSeries kLista{
    .cabecera = "Jugador   Serie  Apuesta    Jugada",
    .tope = kSieteYMedio,
    .serie = 12,
    .apuesta = 24,
    .puntos = 32,
    .cartas = 34,
    .apostado = [](Integer asiento, Integer serie) { return ApuestaTotal(asiento, serie); },
    .texto_puntos = TextoPuntos,
    .texto_carta = TextoCarta,
};

// ---- the cards seen

void AnotaVista(Integer asiento, Integer palo, Integer valor) {
    if (palo < kOros || palo > kBastos || valor < 1 || valor > kUltimoValor)
        return;
    bazas.CartaJugada(palo, valor) = asiento;
    ++siete.VistasValor(valor > kUltimoEntero ? kFilaDeFiguras : valor);
    ++siete.VistasTotal;
}

void CuentaVistas() {
    bazas.CartaJugada.Borra();
    siete = {};
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        for (Integer serie = 1; serie <= kMaximoSeries; ++serie) {
            for (int lugar = 1; lugar <= decltype(estado.Mano)::kTopes[2]; ++lugar) {
                if (estado.Mano(asiento, serie, lugar, kCara) == kDescubierta)
                    AnotaVista(asiento, estado.Mano(asiento, serie, lugar, kPalo),
                               estado.Mano(asiento, serie, lugar, kValor));
            }
        }
    }
}

CeldaDeBaraja QuienLaTiene(Carta carta) {
    const Integer asiento = bazas.CartaJugada(carta.palo, carta.valor);
    return {asiento != 0 ? estado.NombreJugador(asiento) : "", Tinta::RojoOscuro};
}

// ---- the table of the values

int CartasDe(Integer fila) {
    return fila == kFilaDeFiguras ? kFiguras : kCartasDeValor;
}

// With the whole deck seen nothing can come any more.
double PorCiento(int cartas, int de) {
    return de != 0 ? cartas * 100.0 / de : 0;
}

// More likely than at the start of the hand, or less.
Tinta TintaDeRelativo(double relativo, double absoluto) {
    if (relativo > absoluto)
        return Tinta::Verde;
    return relativo < absoluto ? Tinta::Rojo : Tinta::Negro;
}

void ImprimeValor(PaginaImpresa& pagina, int x, int y, Integer fila) {
    const int cartas = CartasDe(fila);
    const int quedan = cartas - siete.VistasValor(fila);
    const double absoluto = PorCiento(cartas, kCartasBaraja);
    const double relativo = PorCiento(quedan, kCartasBaraja - siete.VistasTotal);
    const auto hasta = [&](int columna, const std::string& texto, Tinta tinta = Tinta::Negro) {
        pagina.Texto(x + Columna(columna), y, texto, tinta, {}, Alineacion::Derecha);
    };
    hasta(4, fila == kFilaDeFiguras ? "0.5" : Numero(fila));
    hasta(10, Numero(siete.VistasValor(fila)));
    hasta(17, Numero(quedan));
    hasta(25, Formato(absoluto, kMascara));
    hasta(33, Formato(relativo, kMascara), TintaDeRelativo(relativo, absoluto));
}

int ImprimeValores(PaginaImpresa& pagina, int x, int y) {
    pagina.Texto(x, y, "Valor Vistas Quedan %Absol %Relat", Tinta::Negro, kLetraDeTitulo);
    for (Integer fila = 1; fila <= kFilaDeFiguras; ++fila) {
        y += kRenglon;
        ImprimeValor(pagina, x, y, fila);
    }
    return y + kRenglon;
}

// ---- the next card

struct Posibilidades {
    int cartas = 0, se_pasan = 0, directas = 0;
    double suma = 0; // of the points with each card that does not go over

    double PorCiento(int parte) const {
        return cartas != 0 ? static_cast<double>(parte) / cartas * 100 : 0;
    }
};

void CuentaSiguiente(Posibilidades& cuenta, Carta carta, double puntos) {
    if (!estado.ValorEnBaraja(carta.valor) || bazas.CartaJugada(carta.palo, carta.valor) != 0)
        return;
    const double con_ella = puntos + estado.ValorCarta(carta.valor).Real();
    ++cuenta.cartas;
    if (con_ella > kSieteYMedio) {
        ++cuenta.se_pasan;
        return;
    }
    cuenta.suma += con_ella;
    if (con_ella == kSieteYMedio)
        ++cuenta.directas;
}

// Cards that lie covered count as still to come: nobody sees them.
Posibilidades DeLaCartaSiguiente() {
    const double puntos = CuentaSinHuella(estado.JugadorActual, estado.SerieActual).puntos;
    Posibilidades cuenta;
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (Integer valor = 1; valor <= kUltimoValor; ++valor)
            CuentaSiguiente(cuenta, {palo, valor}, puntos);
    }
    return cuenta;
}

void ImprimePosibilidades(PaginaImpresa& pagina, int x, int y) {
    const Posibilidades cuenta = DeLaCartaSiguiente();
    const auto renglon = [&](const char* rotulo, double cifra) {
        pagina.Texto(x, y, rotulo + Formato(cifra, kMascara), Tinta::Negro);
        y += kRenglon;
    };
    renglon("Posibilidades de pasarse: ", cuenta.PorCiento(cuenta.se_pasan));
    renglon("Posib. de 7 1/2 directo.: ", cuenta.PorCiento(cuenta.directas));
    if (cuenta.suma != 0)
        renglon("Puntuación promedio.....: ", cuenta.suma / (cuenta.cartas - cuenta.se_pasan));
}

} // namespace

void EstadisSiete(PaginaImpresa& pagina) {
    const int y = ImprimeSeries(pagina, kLista) + kRenglon;
    CuentaVistas();
    ImprimeTablaDeBaraja(pagina, y, QuienLaTiene);
    const int al_lado = FinDeTablaDeBaraja() + Columna(2);
    const int debajo = ImprimeValores(pagina, al_lado, y);
    if (estado.ManoEnCurso && estado.ControlJugador(estado.JugadorActual) == kManual)
        ImprimePosibilidades(pagina, al_lado, debajo + kRenglon);
}
