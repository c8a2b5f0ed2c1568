#include "table/chips.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "core/game_state.h"
#include "core/text.h"
#include "platform/platform.h"
#include "table/flight.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/sheet_layout.h"
#include "table/side_buttons.h"
#include "table/sounds.h"
#include "table/table_view.h"
#include "table/trace.h"

namespace {

constexpr int kPasoPila = 38;
constexpr int kAnchoArea = kPasoPila + kLadoFicha, kAltoArea = 2 * kPasoPila + kLadoFicha;
constexpr int kAnchoFila = 97, kPasoFila = 36; // of the chips of a bet
// The plate with the points of a bet, and what is between it and the chips.
constexpr int kAnchoPlaca = 46, kAltoPlaca = 15, kAirePlaca = 2;
constexpr Fuente kLetraApuesta{.alto = 12, .negrita = true};
constexpr Fuente kLetraBote{.alto = 15, .negrita = true, .tope = 56};
constexpr Fuente kLetraRotuloBote{.alto = 9, .negrita = true};

using Pilas = std::array<int, kDenominaciones + 1>; // chips by denomination, element 0 spare

Lienzo& Mesa() {
    return plataforma().LienzoDe(Control::Mesa, 0);
}

Punto LugarDePila(int area, int d) {
    return {estado.PosFichaX(area, d), estado.PosFichaY(area, d)};
}

int AreaApuesta(Integer asiento) {
    return kAreaApuestas + asiento - 1;
}

int Crece(int cuantas) {
    return std::max(std::min(cuantas, kFichasALaVista) - 1, 0) * kGruesoFicha;
}

// A stack that is higher than it can be drawn says how many chips it has.
void PintaPila(const Punto& pie, int d, int cuantas) {
    constexpr Fuente kLetraCuantas{.alto = 10, .negrita = true};
    constexpr int kAncho = 23, kAlto = 11;
    for (int i = 0; i < std::min(cuantas, kFichasALaVista); ++i)
        Mesa().Lamina(pie.x, pie.y - i * kGruesoFicha, lamina::Ficha(d));
    if (cuantas <= kFichasALaVista)
        return;
    const Rectangulo placa{pie.x + (kLadoFicha - kAncho) / 2, pie.y + kLadoFicha - kAlto, kAncho,
                           kAlto};
    Mesa().Caja(placa, color::kPlaca);
    Mesa().Texto(placa.x + kAncho / 2, placa.y - 1, "×" + Numero(cuantas), kLetraCuantas,
                 color::kBlanco, Alineacion::Centro);
}

// What lies at the bet place on show.
Pilas FichasEnApuesta(Integer asiento) {
    Pilas pilas{};
    const Integer serie = SerieALaVista(asiento);
    for (int i = 1; i <= apuestas.NumFichasPuestas(asiento, serie); ++i)
        ++pilas.at(static_cast<std::size_t>(apuestas.FichasPuestas(asiento, serie, i)));
    for (int d = 1; d <= kDenominaciones; ++d)
        pilas[static_cast<std::size_t>(d)] += vista.fichas_de_mas(asiento, d);
    return pilas;
}

int PuntosEnApuesta(Integer asiento) {
    int puntos = ApuestaTotal(asiento, SerieALaVista(asiento));
    for (int d = 1; d <= kDenominaciones; ++d)
        puntos += vista.fichas_de_mas(asiento, d) * ValorDe(d);
    return puntos;
}

// The denominations that lie there, the largest first.
std::vector<int> EnFila(const Pilas& pilas) {
    std::vector<int> fila;
    for (int d = kDenominaciones; d >= 1; --d) {
        if (pilas[static_cast<std::size_t>(d)] > 0)
            fila.push_back(d);
    }
    return fila;
}

// The chips of a bet stand in one row, in the middle of its place: side by side, closer when there are more.
Punto LugarEnFila(Integer asiento, int cual, int cuantas) {
    const Punto esquina = LugarDePila(AreaApuesta(asiento), 1);
    const int huecos = cuantas - 1;
    const int paso = std::min(kPasoFila, (kAnchoFila - kLadoFicha) / std::max(huecos, 1));
    const int largo = huecos * paso + kLadoFicha;
    return {esquina.x + (kAnchoArea - largo) / 2 + cual * paso, esquina.y};
}

// Where a chip of a denomination lies among those of the bet.
Punto LugarEnApuesta(Integer asiento, int d) {
    Pilas pilas = FichasEnApuesta(asiento);
    ++pilas.at(static_cast<std::size_t>(d));
    const std::vector<int> fila = EnFila(pilas);
    const auto cual = std::find(fila.begin(), fila.end(), d) - fila.begin();
    return LugarEnFila(asiento, static_cast<int>(cual), static_cast<int>(fila.size()));
}

Punto LugarDe(const LugarDeFichas& lugar, int d) {
    if (lugar.en_apuesta)
        return LugarEnApuesta(lugar.asiento, d);
    return LugarDePila(lugar.asiento == kBote ? kAreaBote : kAreaRestos + lugar.asiento - 1, d);
}

// Towards the edge of the table for seat 4, whose buttons leave no room beyond; above the chips for the others.
Rectangulo PlacaDeApuesta(Integer asiento) {
    const Punto fichas = LugarDePila(AreaApuesta(asiento), 1);
    const int y = asiento == 4 ? fichas.y + kLadoFicha + kAirePlaca
                               : fichas.y - kCreceFicha - kAirePlaca - kAltoPlaca;
    return {fichas.x + (kAnchoArea - kAnchoPlaca) / 2, y, kAnchoPlaca, kAltoPlaca};
}

void PintaPlaca(Integer asiento, int puntos) {
    const Rectangulo placa = PlacaDeApuesta(asiento);
    Mesa().Fieltro(placa);
    if (puntos == 0)
        return;
    Mesa().Caja(placa, color::kPlaca);
    Mesa().Borde(placa, color::kBordePanelClaro, 1);
    Mesa().Texto(placa.x + placa.ancho / 2, placa.y, Numero(puntos), kLetraApuesta,
                 color::kAmarillo, Alineacion::Centro);
}

Rectangulo CajaDeApuesta(Integer asiento) {
    const Punto esquina = LugarDePila(AreaApuesta(asiento), 1);
    return {esquina.x + (kAnchoArea - kAnchoFila) / 2, esquina.y - kCreceFicha, kAnchoFila,
            kCreceFicha + kLadoFicha};
}

void PintaFila(Integer asiento) {
    Mesa().Fieltro(CajaDeApuesta(asiento));
    const Pilas pilas = FichasEnApuesta(asiento);
    const std::vector<int> fila = EnFila(pilas);
    for (std::size_t i = 0; i < fila.size(); ++i) {
        const int d = fila[i];
        PintaPila(LugarEnFila(asiento, static_cast<int>(i), static_cast<int>(fila.size())), d,
                  pilas[static_cast<std::size_t>(d)]);
    }
}

Rectangulo PlacaDelBote() {
    constexpr int kAlLado = 8;
    const lamina::Recorte& placa = lamina::kPlacaTantos;
    return {estado.PosFichaX(kAreaBote, 1) + kAnchoArea + kAlLado, estado.CentroY - placa.alto / 2,
            placa.ancho, placa.alto};
}

} // namespace

void PintarFichas(int asiento, int area) {
    if (!plataforma().HayPantalla())
        return;
    const Punto esquina = LugarDePila(area, 1);
    Mesa().Fieltro({esquina.x, esquina.y - kCreceFicha, kAnchoArea, kCreceFicha + kAltoArea});
    for (int d = 1; d <= kDenominaciones; ++d)
        PintaPila(LugarDePila(area, d), d, apuestas.Fichas(asiento, d));
}

void RedibujaBote() {
    Traza("RedibujaBote");
    if (!plataforma().HayPantalla())
        return;
    PintarFichas(kBote, kAreaBote);
    const Rectangulo placa = PlacaDelBote();
    Mesa().Fieltro(placa);
    if (RestoDe(kBote) > 0) {
        Mesa().Lamina(placa.x, placa.y, lamina::kPlacaTantos);
        const int medio = placa.x + placa.ancho / 2;
        Mesa().Texto(medio, placa.y + 2, "Bote", kLetraRotuloBote, color::kNegro,
                     Alineacion::Centro);
        Mesa().Texto(medio, placa.y + 9, Numero(RestoDe(kBote)), kLetraBote, color::kNegro,
                     Alineacion::Centro);
    }
    plataforma().Repinta();
}

void RedibujaApuesta(Integer asiento) {
    Traza("RedibujaApuesta", asiento);
    if (!plataforma().HayPantalla())
        return;
    if (JuegoEnMesa().dinero.reglas.bote) {
        // After the pot has been paid the bets still stand in the state: they are of a hand that is over.
        PintaPlaca(asiento, RestoDe(kBote) > 0 ? PuntosEnApuesta(asiento) : 0);
    } else if (asiento != estado.JugadorBanca) { // before the bank lies the pile
        PintaFila(asiento);
        PintaPlaca(asiento, PuntosEnApuesta(asiento));
        if (estado.SerieTerminada(asiento, SerieALaVista(asiento)))
            MarcaApuesta(asiento, lamina::kMarcaPasado);
    }
    plataforma().Repinta();
}

void MarcaApuesta(Integer asiento, const lamina::Recorte& marca) {
    if (!plataforma().HayPantalla())
        return;
    const Punto esquina = LugarDePila(AreaApuesta(asiento), 1);
    const bool sin_fichas = EnFila(FichasEnApuesta(asiento)).empty();
    const int margen =
        sin_fichas ? (kAnchoArea - marca.ancho) / 2 : (kAnchoArea + kAnchoFila) / 2 - marca.ancho;
    Mesa().Lamina(esquina.x + margen, esquina.y, marca);
    plataforma().Repinta();
}

void MueveFicha(const FichaMovida& ficha) {
    Traza("MueveFicha", ficha.d, ficha.de.asiento, ficha.a.asiento);
    Plataforma& p = plataforma();
    const auto pon = [&p](const Punto& donde) {
        p.Coloca(Control::Pic_NumerosCristal, 0, {donde.x, donde.y, kLadoFicha, kLadoFicha});
    };
    const Punto desde = LugarDe(ficha.de, ficha.d);
    pon(desde);
    if (p.HayPantalla()) {
        Lienzo& imagen = p.LienzoDe(Control::Pic_NumerosCristal, 0);
        imagen.Fieltro({0, 0, kLadoFicha, kLadoFicha});
        imagen.Lamina(0, 0, lamina::Ficha(ficha.d));
    }
    p.Muestra(Control::Pic_NumerosCristal, 0, true);
    RecorreVuelo(desde, LugarDe(ficha.a, ficha.d), pon);
    p.Muestra(Control::Pic_NumerosCristal, 0, false);
    Sonido(1, sonido::kFicha);
}

Rectangulo LugarDelBote() {
    const Punto esquina = LugarDePila(kAreaBote, 1);
    const Rectangulo placa = PlacaDelBote();
    const int arriba = esquina.y - kCreceFicha;
    return {esquina.x, arriba, placa.x + placa.ancho - esquina.x, kCreceFicha + kAltoArea};
}

Rectangulo PilaDe(Integer asiento, int d) {
    const Integer cuantas = apuestas.Fichas(asiento, d);
    if (cuantas <= 0)
        return {};
    const Punto pie = LugarDePila(kAreaRestos + asiento - 1, d);
    const int crece = Crece(cuantas);
    return {pie.x, pie.y - crece, kLadoFicha, kLadoFicha + crece};
}

std::vector<Rectangulo> LugaresDeFichas() {
    std::vector<Rectangulo> lugares;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        const Punto resto = LugarDePila(kAreaRestos + asiento - 1, 1);
        lugares.push_back({resto.x, resto.y - kCreceFicha, kAnchoArea, kCreceFicha + kAltoArea});
        lugares.push_back(CajaDeApuesta(asiento));
        lugares.push_back(PlacaDeApuesta(asiento));
    }
    if (JuegoEnMesa().dinero.reglas.bote) {
        const Punto bote = LugarDePila(kAreaBote, 1);
        lugares.push_back({bote.x, bote.y - kCreceFicha, kAnchoArea, kCreceFicha + kAltoArea});
        lugares.push_back(PlacaDelBote());
    }
    return lugares;
}
