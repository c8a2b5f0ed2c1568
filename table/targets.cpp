#include "table/targets.h"

#include <algorithm>
#include <array>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "table/bet_board.h"
#include "table/button_column.h"
#include "table/card_names.h"
#include "table/chips.h"
#include "table/game_row.h"
#include "table/manual_spread.h"
#include "table/options_menu.h"
#include "table/pile.h"
#include "table/seat_drawing.h"
#include "table/side_buttons.h"
#include "table/table_input.h"
#include "table/table_view.h"

namespace {

using Objetivos = std::vector<Objetivo>;

constexpr const char* kTapadaSinNombre = "Carta tapada";
constexpr const char* kNoDisponible = "no disponible";

std::string Junta(const std::vector<std::string>& partes) {
    std::string junto;
    for (const std::string& parte : partes) {
        if (!parte.empty())
            junto += junto.empty() ? parte : ", " + parte;
    }
    return junto;
}

std::string Cuenta(int cuantos, const char* uno, const char* varios) {
    return Numero(cuantos) + " " + (cuantos == 1 ? uno : varios);
}

bool EsManual(Integer asiento) {
    return estado.ControlJugador(asiento) == kManual;
}

// Names, hands and money of the seats are on show.
bool HayAsientos() {
    return estado.PartidaEnCurso || vista.nombres;
}

// --- Hands ---

struct LugarDeMano {
    Integer asiento, serie, lugar;
    Integer Campo(int campo) const { return estado.Mano(asiento, serie, lugar, campo); }
    Carta LaCarta() const { return {Campo(kPalo), Campo(kValor)}; }
    bool DeCara() const { return Campo(kCara) == kDescubierta; }
};

std::string QuePasaAlPulsar(const LugarDeMano& carta) {
    const ObjetivosDeJuego& palabras = JuegoEnMesa().objetivos;
    switch (PunteroSobreCarta(carta.asiento, carta.lugar)) {
    case Puntero::ManoVerde:
        if (estado.RepartoEnCurso)
            return "se puede devolver";
        if (!estado.EligeCarta)
            return "";
        return carta.Campo(kAltura) == kLevantada ? palabras.elegida : palabras.elegible;
    case Puntero::ManoRoja:
        return estado.EligeCarta ? "no se puede jugar" : "";
    case Puntero::Ordenar:
        return "se puede mover";
    case Puntero::Cambiar:
        return "se puede cambiar";
    case Puntero::Voltear:
        return "se puede volver";
    case Puntero::Abrirse:
        return "se puede abrir";
    default:
        return "";
    }
}

std::string EstadoDeCarta(const LugarDeMano& carta) {
    const bool a_medias = carta.DeCara() && carta.Campo(kTapada) == 1;
    return Junta({a_medias ? "tapada" : "", QuePasaAlPulsar(carta)});
}

Objetivo DeMano(const LugarDeMano& carta, Integer cartas) {
    const int sitios = std::max<int>(cartas, vista.abanico(carta.asiento));
    const Rectangulo donde = CartaALaVista(carta.asiento, carta.lugar, sitios);
    return {.clase = ClaseObjetivo::CartaDeMano,
            .asiento = carta.asiento,
            .lugar = carta.lugar,
            .donde = donde,
            .toque = Centro(Corte(donde, FranjaMano(carta.asiento, sitios))),
            .nombre = carta.DeCara() ? NombreDeCarta(carta.LaCarta()) : kTapadaSinNombre,
            .estado = EstadoDeCarta(carta),
            .se_pulsa = SeTocaCarta(carta.asiento, carta.lugar),
            .tiene_menu = OfreceOrdenar(carta.asiento)};
}

bool EnElAire(const LugarDeMano& carta) {
    return estado.ArrastraCarta && vista.asiento_arrastrado == carta.asiento &&
           estado.CartaMovida == carta.lugar;
}

// A covered card is told to whoever can do something with it, and then not by its name.
void AgregaMano(Objetivos& todos, Integer asiento) {
    const Integer serie = SerieALaVista(asiento);
    const Integer cartas = estado.NumCartas(asiento, serie);
    for (Integer lugar = 1; lugar <= cartas; ++lugar) {
        const LugarDeMano carta{asiento, serie, lugar};
        if (carta.Campo(kPalo) == kSinCarta || EnElAire(carta))
            continue;
        Objetivo suyo = DeMano(carta, cartas);
        if (carta.DeCara() || suyo.se_pulsa)
            todos.push_back(std::move(suyo));
    }
}

// The one that plays by hand now, then the others that do, then whose cards lie open.
std::vector<Integer> AsientosPorOrden() {
    std::vector<Integer> asientos{4, 1, 2, 3};
    std::ranges::stable_sort(asientos, {}, [](Integer asiento) {
        if (!EsManual(asiento))
            return 3;
        return asiento == estado.JugadorActual ? 1 : 2;
    });
    return asientos;
}

void AgregaManos(Objetivos& todos) {
    if (!HayAsientos())
        return;
    for (const Integer asiento : AsientosPorOrden()) {
        if (vista.sorteada(asiento).palo == kSinCarta)
            AgregaMano(todos, asiento);
    }
}

// --- What lies on the table ---

void AgregaSorteo(Objetivos& todos) {
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        const ImagenCarta& carta = vista.sorteada(asiento);
        if (carta.palo == kSinCarta)
            continue;
        const Rectangulo donde = CajaDeCarta(asiento, 1, 1);
        todos.push_back({.clase = ClaseObjetivo::CartaDeMesa,
                         .asiento = asiento,
                         .donde = donde,
                         .toque = Centro(donde),
                         .nombre = carta.cara == kDescubierta
                                       ? NombreDeCarta({carta.palo, carta.valor})
                                       : kTapadaSinNombre,
                         .estado = "de " + estado.NombreJugador(asiento)});
    }
}

// The one that is held stays told at its place: a right click lays it down there.
void AgregaReparto(Objetivos& todos) {
    if (!estado.RepartoEnCurso)
        return;
    PorElReparto([&todos](int fila, int columna) {
        if (!estado.CartaEnReparto(fila, columna))
            return;
        const bool cogida = estado.ArrastraReparto && fila == estado.FilaReparto &&
                            columna == estado.ColumnaReparto;
        const Rectangulo donde = LugarEnReparto(fila, columna);
        todos.push_back({.clase = ClaseObjetivo::CartaDeReparto,
                         .indice = fila,
                         .lugar = EnteroDe(columna),
                         .donde = donde,
                         .toque = Centro(donde),
                         .nombre = NombreDeCarta(CartaDelReparto(fila, columna)),
                         .estado = cogida ? "en la mano" : "",
                         .se_pulsa = !estado.ArrastraReparto,
                         .tiene_menu = cogida});
    });
}

void AgregaMazo(Objetivos& todos) {
    const Rectangulo donde = LugarDelMazo();
    if (donde.ancho == 0)
        return;
    const bool contado = JuegoEnMesa().objetivos.mazo_contado;
    const std::string quedan = vista.cartas_mazo == 1
                                   ? "queda 1 carta"
                                   : "quedan " + Numero(vista.cartas_mazo) + " cartas";
    todos.push_back({.clase = ClaseObjetivo::Mazo,
                     .donde = donde,
                     .toque = Centro(donde),
                     .nombre = "Mazo",
                     .estado = contado ? quedan : ""});
}

// The foot of a stack is where the stack below it does not reach.
void AgregaFichas(Objetivos& todos) {
    if (!SePuedenPonerFichas())
        return;
    const Integer asiento = estado.JugadorActual;
    for (Integer d = 1; d <= kDenominaciones; ++d) {
        const Rectangulo pila = PilaDe(asiento, d);
        if (pila.ancho == 0)
            continue;
        todos.push_back({.clase = ClaseObjetivo::Ficha,
                         .asiento = asiento,
                         .lugar = d,
                         .donde = pila,
                         .toque = {pila.x + kLadoFicha / 2, pila.y + pila.alto - kLadoFicha / 2},
                         .nombre = "Ficha de " + Cuenta(ValorDe(d), "punto", "puntos"),
                         .estado = "tiene " + Numero(apuestas.Fichas(asiento, d)),
                         .se_pulsa = !estado.JugadaHecha});
    }
}

// --- Controls ---

// Those of the seat on turn first; the main buttons come last.
constexpr std::array kBotonesSueltos{
    std::pair{Control::Pic_BotSuperior, 1},  std::pair{Control::Pic_BotSuperior, 2},
    std::pair{Control::Pic_BotDobSeg, 0},    std::pair{Control::Pic_BotLateral, 1},
    std::pair{Control::Pic_BotLateral, 2},   std::pair{Control::Pic_APBotPasar, 0},
    std::pair{Control::Pic_APBotIgualar, 0}, std::pair{Control::Pic_APBotApostar, 0},
    std::pair{Control::Pic_APBotAnular, 0},  std::pair{Control::Pic_BotContinuar, 0},
    std::pair{Control::Pic_MasAyuda, 0},     std::pair{Control::Bot_CerrarSuge, 0},
};

bool EsDeApostadora(Control control) {
    return PadreDe(control) == Control::Pic_Apostadora;
}

bool SePulsaBoton(Control control, int indice) {
    if (control == Control::Pic_BotContinuar)
        return estado.EsperandoJugada;
    if (EsDeApostadora(control))
        return !estado.JugadaHecha;
    return plataforma().PunteroDe(control, indice) != Puntero::Prohibido;
}

void AgregaBoton(Objetivos& todos, Control control, int indice) {
    const Plataforma& p = plataforma();
    if (!p.EstaVisible(control, indice))
        return;
    Rectangulo donde = p.LugarDe(control, indice);
    if (control == Control::Pic_Boton)
        donde.x += CorridoDelBoton(indice);
    const bool se_pulsa = SePulsaBoton(control, indice);
    todos.push_back({.clase = ClaseObjetivo::Boton,
                     .control = control,
                     .indice = indice,
                     .donde = donde,
                     .toque = {donde.ancho / 2, donde.alto / 2},
                     .nombre = p.NombreDicho(control, indice),
                     .estado = se_pulsa ? "" : kNoDisponible,
                     .se_pulsa = se_pulsa});
}

void AgregaBotones(Objetivos& todos) {
    for (const auto& [control, indice] : kBotonesSueltos)
        AgregaBoton(todos, control, indice);
    for (int n = 1; n <= kBotonEstadis; ++n)
        AgregaBoton(todos, Control::Pic_Boton, BotonDesdeArriba(n));
}

void AgregaOpciones(Objetivos& todos) {
    if (!plataforma().EstaVisible(Control::Pic_SelOpciones, 0))
        return;
    const Rectangulo caja = plataforma().LugarDe(Control::Pic_SelOpciones, 0);
    for (int n = 1; n <= estado.NumOpciones; ++n) {
        const Rectangulo renglon = LugarDeOpcion(n);
        todos.push_back(
            {.clase = ClaseObjetivo::Opcion,
             .control = Control::Pic_SelOpciones,
             .lugar = EnteroDe(n),
             .donde = {caja.x + renglon.x, caja.y + renglon.y, renglon.ancho, renglon.alto},
             .toque = Centro(renglon),
             .nombre = TextoDeOpcion(n),
             .estado = OpcionMarcada(n) ? "marcada" : "",
             .se_pulsa = true});
    }
}

// --- Seats and words ---

std::string CartasDelAsiento(Integer asiento) {
    const Integer serie = SerieALaVista(asiento);
    const Integer cartas = estado.NumCartas(asiento, serie);
    const Integer series = estado.SeriesJugador(asiento);
    const std::string cual =
        series > 1 ? "serie " + Numero(serie) + " de " + Numero(series) : std::string();
    return Junta({cual, cartas > 0 ? Cuenta(cartas, "carta", "cartas") : ""});
}

// What lies before everybody's eyes: its chips, and what it has bet as long as that is on show.
std::string DineroDelAsiento(Integer asiento) {
    const DineroDeJuego& dinero = JuegoEnMesa().dinero;
    if (!dinero.hay)
        return "";
    const int apostado = ApuestaTotal(asiento, SerieALaVista(asiento));
    const bool a_la_vista =
        dinero.reglas.bote ? RestoDe(kBote) > 0 : asiento != estado.JugadorBanca;
    const bool pasado =
        estado.JuegoConBanca && estado.SerieTerminada(asiento, SerieALaVista(asiento));
    return Junta({"tiene " + Cuenta(RestoDe(asiento), "punto", "puntos"),
                  a_la_vista && apostado > 0 ? "apuesta " + Numero(apostado) : "",
                  pasado ? "se ha pasado" : ""});
}

std::string EstadoDeAsiento(Integer asiento) {
    const bool juega = estado.ManoEnCurso;
    const bool banca = estado.JuegoConBanca && asiento == estado.JugadorBanca;
    return Junta({juega && asiento == estado.JugadorActual ? "le toca" : "",
                  banca ? "es la banca" : "",
                  juega && asiento == estado.JugadorMano ? "es mano" : "",
                  CartasDelAsiento(asiento), DineroDelAsiento(asiento), RotuloDicho(asiento)});
}

void AgregaAsientos(Objetivos& todos) {
    if (!HayAsientos())
        return;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) != kActivado)
            continue;
        const Rectangulo zona = ZonaDe(asiento);
        todos.push_back({.clase = ClaseObjetivo::Asiento,
                         .asiento = asiento,
                         .donde = zona,
                         .toque = Centro(zona),
                         .nombre = "Asiento de " + estado.NombreJugador(asiento),
                         .estado = EstadoDeAsiento(asiento),
                         .se_pulsa = AdmiteLaColgada(asiento),
                         .tiene_menu = OfreceOrdenar(asiento)});
    }
}

void AgregaBote(Objetivos& todos) {
    if (!JuegoEnMesa().dinero.reglas.bote || RestoDe(kBote) == 0 || estado.RepartoEnCurso)
        return;
    const Rectangulo donde = LugarDelBote();
    todos.push_back({.clase = ClaseObjetivo::Rotulo,
                     .lugar = kRotuloBote,
                     .donde = donde,
                     .toque = Centro(donde),
                     .nombre = "Bote",
                     .estado = Cuenta(RestoDe(kBote), "punto", "puntos")});
}

// A text that was filled up with blanks to even lines.
std::string SinRelleno(const std::string& texto) {
    std::string limpio;
    for (const char letra : Recorta(texto)) {
        if (letra != ' ' || !limpio.ends_with(' '))
            limpio += letra;
    }
    return limpio;
}

void AgregaPlaca(Objetivos& todos, Control control, int indice, const char* nombre = "") {
    const Plataforma& p = plataforma();
    if (!p.EstaVisible(control, indice))
        return;
    const std::string dicho = SinRelleno(p.NombreDicho(control, indice));
    const bool con_titulo = *nombre != '\0';
    const Rectangulo donde = p.LugarDe(control, indice);
    todos.push_back({.clase = ClaseObjetivo::Rotulo,
                     .control = control,
                     .indice = indice,
                     .donde = donde,
                     .toque = {donde.ancho / 2, donde.alto / 2},
                     .nombre = con_titulo ? nombre : dicho,
                     .estado = con_titulo ? dicho : ""});
}

void AgregaPlacas(Objetivos& todos) {
    AgregaPlaca(todos, Control::Pic_Aviso, 0);
    AgregaPlaca(todos, Control::Pic_Tanteo, 0);
    for (int asiento = 1; asiento <= 4; ++asiento)
        AgregaPlaca(todos, Control::Pic_Tantos, asiento);
    AgregaPlaca(todos, Control::Pic_Apostadora, 0);
    AgregaPlaca(todos, Control::Pic_APApoJugAct, 0);
    AgregaPlaca(todos, Control::Pic_APApoJugAcu, 0);
    AgregaPlaca(todos, Control::Pic_Sugerencia, 0, "Sugerencia");
}

} // namespace

Punto Centro(const Rectangulo& caja) {
    return {caja.x + caja.ancho / 2, caja.y + caja.alto / 2};
}

Rectangulo Corte(const Rectangulo& a, const Rectangulo& b) {
    const int x = std::max(a.x, b.x), y = std::max(a.y, b.y);
    return {x, y, std::min(a.x + a.ancho, b.x + b.ancho) - x,
            std::min(a.y + a.alto, b.y + b.alto) - y};
}

Objetivo CartaEnLaMesa(Carta carta, Integer asiento, const Rectangulo& donde) {
    constexpr int kPorPalo = 100;
    return {.clase = ClaseObjetivo::CartaDeMesa,
            .asiento = asiento,
            .lugar = EnteroDe(carta.palo * kPorPalo + carta.valor),
            .donde = donde,
            .toque = Centro(donde),
            .nombre = NombreDeCarta(carta),
            .estado = asiento == 0 ? "" : "de " + estado.NombreJugador(asiento)};
}

std::vector<Objetivo> ObjetivosDeLaMesa() {
    Objetivos todos;
    const FilaJuego* juego = FilaDe(estado.JuegoActivo);
    if (juego == nullptr)
        return todos;
    AgregaManos(todos);
    AgregaSorteo(todos);
    AgregaReparto(todos);
    if (juego->objetivos.en_la_mesa != nullptr)
        juego->objetivos.en_la_mesa(todos);
    AgregaMazo(todos);
    AgregaFichas(todos);
    AgregaBotones(todos);
    AgregaOpciones(todos);
    AgregaAsientos(todos);
    AgregaBote(todos);
    AgregaPlacas(todos);
    return todos;
}
