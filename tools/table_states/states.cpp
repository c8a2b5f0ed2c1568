#include "tools/table_states/states.h"

#include <array>
#include <initializer_list>
#include <string>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "games/common/trick_state.h"
#include "platform/platform.h"
#include "session/state_blocks.h"
#include "table/bet_board.h"
#include "table/button_column.h"
#include "table/deck.h"
#include "table/drawing.h"
#include "table/game_row.h"
#include "table/hand_order.h"
#include "table/layout.h"
#include "table/manual_spread.h"
#include "table/messages.h"
#include "table/options_menu.h"
#include "table/pile.h"
#include "table/seat_drawing.h"
#include "table/side_buttons.h"
#include "table/table_view.h"
#include "table/tips.h"
#include "table/whole_table.h"
#include "tools/table_states/hands.h"

namespace {

constexpr const char* kNombreLargo = "Maximilia"; // as wide as nine letters come
constexpr int kMargen = 6;

Rectangulo ConMargen(const Rectangulo& r) {
    return {r.x - kMargen, r.y - kMargen, r.ancho + 2 * kMargen, r.alto + 2 * kMargen};
}

void RedibujaAsientos() {
    for (int asiento = 1; asiento <= 4; ++asiento)
        RedibujarAsiento(asiento);
}

// The column of buttons, all of them enabled or none.
void Columna(int vez) {
    for (int boton = 1; boton <= 8; ++boton)
        HabilitaBoton(boton, vez == 1);
    PintaColumna();
}

Rectangulo TrozoColumna(int) {
    return {estado.AnchoMesa - 10, 0, kAnchoBotonera + 10, 600};
}

// Every caption of the green button.
struct CasoVerde {
    Integer juego;
    bool mano;
    Integer control, fase, series;
    bool levantada;
};
constexpr std::array kVerdes{
    CasoVerde{kCinquillo, false, kAutomatico, 0, 1, false},
    CasoVerde{kCinquillo, true, kAutomatico, 0, 1, false},
    CasoVerde{kCinquillo, true, kManual, 0, 1, false},
    CasoVerde{kPoker, true, kAutomatico, 3, 1, false},
    CasoVerde{kPoker, true, kAutomatico, 4, 1, false},
    CasoVerde{kPoker, true, kManual, 4, 1, true},
    CasoVerde{kBlackJack, true, kAutomatico, 2, 1, false},
    CasoVerde{kBlackJack, true, kAutomatico, 2, 2, false},
    CasoVerde{kBlackJack, true, kAutomatico, 4, 1, false},
    CasoVerde{kSieteYMedia, true, kAutomatico, 4, 3, false},
};
constexpr int kVerdesEnTotal = static_cast<int>(kVerdes.size()) * 2;

void BotonVerde(int vez) {
    const CasoVerde& caso = kVerdes[static_cast<std::size_t>(vez - 1) / 2];
    PonPartida(caso.juego);
    estado.ManoEnCurso = caso.mano;
    estado.NombreJugador(4) = kNombreLargo;
    estado.ControlJugador(4) = caso.control;
    apuestas.FaseApuesta = caso.fase;
    estado.SeriesJugador(4) = caso.series;
    estado.SerieActual = caso.series;
    PonCartas(4, 5, 0, kDescubierta);
    estado.Mano(4, 1, 2, kAltura) = caso.levantada ? kLevantada : kEnLinea;
    PintaColumna();
    PedirContinuar(2 - vez % 2);
}

Rectangulo TrozoVerde(int) {
    return {estado.AnchoMesa, estado.AltoMesa - 60, kAnchoBotonera, 60};
}

void Manos(int vez) {
    const bool espanola = vez % 2 == 0;
    PonPartida(espanola ? kCinquillo : kPoker);
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        PonCartas(asiento, vez, 7 * asiento, kDescubierta);
    RedibujaAsientos();
}

void ManosOcultas(int vez) {
    PonPartida(kSieteYMedia);
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        PonCartas(asiento, vez, 0, kDorso);
    RedibujaAsientos();
}

// The jokers, face and back, as each seat sees them.
void Comodines(int) {
    estado.ComodinesJuego = 3;
    PonPartida(kPoker);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        PonCartas(asiento, 4, 6 * asiento, kDescubierta);
        for (Integer lugar = 2; lugar <= 4; ++lugar)
            PonCarta(asiento, 1, lugar, {kComodin, lugar == 2 ? Integer{91} : Integer{92}},
                     lugar == 4 ? kDorso : kDescubierta);
    }
    RedibujaAsientos();
}

// A covered card alone and in a hand, hidden and on show.
void Tapadas(int vez) {
    PonPartida(kSieteYMedia);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        PonCartas(asiento, vez, 7 * asiento, kDescubierta);
        estado.Mano(asiento, 1, 1, kTapada) = 1;
        estado.Mano(asiento, 1, 1, kCara) = asiento == 2 ? kDorso : kDescubierta;
    }
    RedibujaAsientos();
}

// The turned card under the pile, from full to alone, and a trick that grows in the middle.
constexpr std::array<Integer, 5> kAlturasTriunfo{27, 16, 4, 1, 0};

void ElTriunfo(int vez) {
    PonPartida(vez <= 4 ? kBrisca : kTute);
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        PonCartas(asiento, 3, 4 * asiento, kDescubierta);
    estado.PaloTriunfo = kEspadas;
    estado.ValorTriunfo = 11;
    estado.CartasEnMazo = kAlturasTriunfo[static_cast<std::size_t>(vez - 1)];
    estado.NumBaza = 1;
    estado.JugadorSalida = 4;
    vista.cartas_mazo = estado.CartasEnMazo;
    for (Integer asiento = 4; asiento >= 6 - vez && asiento >= 1; --asiento) {
        const Carta carta = NesimaCarta(9 * asiento + vez);
        bazas.CartaEnMesa(asiento, 1) = carta.palo;
        bazas.CartaEnMesa(asiento, 2) = carta.valor;
    }
    RedibujarMesa();
}

// A card of the hand on the pointer.
void Ordenando(int) {
    PonPartida(kCinquillo);
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        PonCartas(asiento, 10, 10 * (asiento - 1), kDescubierta);
    RedibujaAsientos();
    estado.ModoOrdenar = true;
    estado.SerieActual = 1;
    TomaParaOrdenar(4, 3);
    MueveArrastrada(estado.CentroX, estado.AltoMesa - 60);
}

void Levantadas(int) {
    PonPartida(kCinquillo);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        PonCartas(asiento, 10, 10 * (asiento - 1), kDescubierta);
        for (int lugar = asiento; lugar <= 10; lugar += 3)
            estado.Mano(asiento, 1, lugar, kAltura) = kLevantada;
    }
    RedibujaAsientos();
}

// Captions in every colour that the games give them, short, long and too long.
constexpr Color kCian = 0xFFFF00;
constexpr std::array kColores{color::kBlanco, color::kVerde, kCian};
constexpr std::array kRotulos{"Paso", "Descarto 3 cartas", "Ir con el resto de 125", "Black Jack",
                              "Canto las cuarenta en bastos"};

void Rotulos(int vez) {
    PonPartida(kSieteYMedia);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        const auto cual = static_cast<std::size_t>(asiento + vez) % kRotulos.size();
        PonCartas(asiento, 4 + asiento, 3 * asiento, kDescubierta);
        estado.RotuloSerie(asiento, 1) = kRotulos[cual];
        estado.ColorRotulo(asiento, 1) = kColores[static_cast<std::size_t>(vez - 1)];
    }
    RedibujaAsientos();
}

// The names at the edges: short, long, with letters that hang and letters that stand.
void Nombres(int) {
    PonPartida(kCinquillo);
    const char* nombres[] = {"", "Begoña Q.", "Íñigo", "Jugador3", kNombreLargo};
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        estado.NombreJugador(asiento) = nombres[asiento];
        PonCartas(asiento, 14, 0, kDescubierta);
    }
    RedibujaAsientos();
}

// The pile from full to empty.
constexpr std::array kAlturasMazo{40, 30, 20, 10, 4, 1, 0};

void Mazo(int vez) {
    PonPartida(kCinquillo);
    DibujarMazo(estado.MazoX, estado.MazoY, kAlturasMazo[static_cast<std::size_t>(vez - 1)]);
}

Rectangulo TrozoMazo(int) {
    return ConMargen({estado.MazoX - 18, estado.MazoY - 6, 140, 167});
}

// A card in the air over hands, a plate and the panel.
void Vuelo(int) {
    PonPartida(kSieteYMedia);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        PonCartas(asiento, 8, 5 * asiento, kDescubierta);
        MostrarPuntos(asiento);
    }
    RedibujaAsientos();
    DibujarMazo(estado.MazoX, estado.MazoY, 20);
    const Rectangulo zona = ZonaDe(4);
    plataforma().Vuela(zona.x + zona.ancho - 60, zona.y - 70,
                       {.palo = kCopas, .valor = 12, .cara = kDescubierta, .orientacion = 1});
}

void Ganador(int) {
    PonPartida(kCinquillo);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        PonCartas(asiento, 2 * asiento - 2, 8 * asiento, kDescubierta);
        RedibujarAsiento(asiento);
        MarcaGanador(asiento, true);
    }
}

void PonChips() {
    constexpr Integer kRestos[] = {380, 200, 35, 1250, 487};
    for (int asiento = 0; asiento <= 4; ++asiento)
        AsignarResto(asiento, kRestos[asiento]);
}

// A bet of a seat on its first serie, chip by chip.
void Apuestan(Integer asiento, std::initializer_list<Integer> fichas) {
    for (const Integer d : fichas) {
        ++apuestas.NumFichasPuestas(asiento, 1);
        apuestas.FichasPuestas(asiento, 1, apuestas.NumFichasPuestas(asiento, 1)) = d;
        Integer& puesto = apuestas.Apuesta(asiento, 1, kFaseApuestas);
        puesto = EnteroDe(puesto + ValorDe(d));
    }
}

// Póker in its first round: nothing to meet yet, a bet to meet, more than the seat has, chips placed.
void Poker(int vez) {
    PonPartida(kPoker);
    PonChips();
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        PonCartas(asiento, 5, 9 * asiento, asiento == 4 ? kDescubierta : kDorso);
        apuestas.Apuesta(asiento, 1, kFaseSalida) = 5;
        if (vez > 1)
            apuestas.Apuesta(asiento, 1, kFasePrimeraRonda) = static_cast<Integer>(15 * asiento);
    }
    estado.ControlJugador(4) = kManual;
    estado.NombreJugador(4) = kNombreLargo;
    apuestas.FaseApuesta = kFasePrimeraRonda;
    apuestas.MaximaApuesta = static_cast<Integer>(vez == 1 ? 0 : 125);
    apuestas.ApuestaEnCurso = static_cast<Integer>(vez == 4 ? 60 : 0);
    if (vez == 3)
        AsignarResto(4, 40);
    estado.RotuloSerie(1, 1) = "No voy";
    estado.ColorRotulo(1, 1) = kCian;
    DibujarMazo(estado.MazoX, estado.MazoY, 32);
    RedibujarMesa();
    MuestraApostadora();
    PedirContinuar(1);
    MostrarSugerencia(3);
    if (vez == 2)
        EstadoBoton(Control::Pic_APBotIgualar, 2, 2);
}

// Bets in the games with a bank, each seat as the bank, and Black Jack: few chips, one of each, a high stack.
void Apuestas(int vez) {
    estado.JugadorBanca = static_cast<Integer>(vez > 4 ? 2 : vez);
    PonPartida(vez > 4 ? kBlackJack : kSieteYMedia);
    PonChips();
    DibujarMazo(estado.MazoX, estado.MazoY, 30);
    Apuestan(1, {4, 3});
    Apuestan(2, {6, 5, 4, 3, 2, 1});
    Apuestan(3, {5, 5, 5, 5, 5, 5, 5, 5, 1});
    Apuestan(4, {5, 3, 2});
    for (Integer cual = 1; cual <= 4; ++cual) {
        PonCartas(cual, 2, 4 * cual, kDescubierta);
        MostrarPuntos(cual);
    }
    estado.JugadorActual = 4;
    apuestas.FaseApuesta = kFaseApuestas;
    apuestas.ApuestaEnCurso = 27;
    RedibujarMesa();
    MuestraApostadora();
    for (int indice = 1; indice <= 2; ++indice)
        BotonSuperior(4, 1, indice);
    if (vez > 4)
        BotonDobSeg(4, 1, "D o b l a r");
    PedirContinuar(1);
    MostrarSugerencia(21);
}

// What stands beside the seats in the games with a bank: each seat on its turn, as a player and as the bank, its
// buttons up and pressed.
void Banca(int vez) {
    const auto asiento = static_cast<Integer>((vez - 1) / 4 + 1);
    const bool es_banca = (vez - 1) % 4 >= 2;
    const int aspecto = 2 - vez % 2;
    estado.JugadorBanca = es_banca ? asiento : static_cast<Integer>(asiento % 4 + 1);
    PonPartida(kSieteYMedia);
    PonChips();
    DibujarMazo(estado.MazoX, estado.MazoY, 30);
    estado.JugadorActual = asiento;
    for (Integer cual = 1; cual <= 4; ++cual) {
        PonCartas(cual, 3 + cual, 4 * cual, kDescubierta);
        estado.SerieTerminada(cual, 1) = cual != asiento;
        MostrarPuntos(cual);
    }
    estado.RotuloSerie(asiento, 1) = "Serie 2";
    estado.ColorRotulo(asiento, 1) = kCian;
    RedibujaAsientos();
    for (int indice = 1; indice <= 2; ++indice) {
        BotonLateral(asiento, aspecto, indice);
        BotonSuperior(asiento, aspecto, indice);
    }
    if (!es_banca)
        BotonDobSeg(asiento, aspecto, asiento % 2 == 0 ? "D o b l a r" : "S e g u r o");
}

// Figures and frames on the board's ground.
void Cifras(int) {
    const auto tablero = Control::Pic_Apostadora;
    plataforma().Coloca(tablero, 0, {20, 20, 300, 120});
    plataforma().Muestra(tablero, 0, true);
    plataforma().LienzoDe(tablero, 0).Caja({0, 0, 300, 120}, color::kVerdeOscuro);
    PintarNumero(tablero, 0, 10, 10, "1234567890", 10);
    PintarNumero(tablero, 0, 10, 35, "75", 5);
    PintarNumero(tablero, 0, 10, 60, "", 3);
    PintarMarco(tablero, 0, 130, 10, 150, 24);
    PintarMarco(tablero, 0, 130, 40, 40, 24);
    PintarMarco(tablero, 0, 10, 90, 280, 24);
}

Rectangulo TrozoCifras(int) {
    return {10, 10, 320, 140};
}

void Sugerencia(int vez) {
    estado.VentanaInfo = 1;
    MostrarSugerencia(Consejos()[static_cast<std::size_t>(vez - 1)].indice);
}

Rectangulo TrozoSugerencia(int) {
    return {0, estado.AltoMesa - 84, 224, 84}; // the panel and a rim of felt
}

// The pop-up, its second entry with the cross that says it is on, and each of them pointed at.
void Menu(int vez) {
    PonPartida(kCinquillo);
    PonCartas(4, 10, 0, kDescubierta);
    RedibujaAsientos();
    estado.ModoOrdenar = vez > 3;
    estado.RatonX = static_cast<Integer>(ZonaDe(4).x + 20);
    estado.RatonY = static_cast<Integer>(ZonaDe(4).y + 60);
    PonOpciones(true);
    MuestraOpciones();
    Opciones_MouseMove((vez - 1) % 3 * 18);
}

Rectangulo TrozoMenu(int) {
    return ConMargen({ZonaDe(4).x, ZonaDe(4).y + 50, 260, 60});
}

// At the corners the pop-up moves back into the table.
void MenuEnEsquina(int vez) {
    PonPartida(kCinquillo);
    estado.RatonX = vez == 1 ? Integer{0} : estado.AnchoMesa;
    estado.RatonY = vez == 1 ? Integer{0} : estado.AltoMesa;
    PonOpciones(true);
    MuestraOpciones();
}

struct CasoReparto {
    Integer juego, comodines;
    bool colgada;
};
constexpr std::array kRepartos{
    CasoReparto{kCinquillo, 1, false}, CasoReparto{kCinquillo, 1, true},
    CasoReparto{kPoker, 1, false},     CasoReparto{kPoker, 2, true},
    CasoReparto{kPoker, 3, false},
};

// The spread of a manual deal, with a few cards dealt and one on the pointer.
void Reparto(int vez) {
    const CasoReparto& caso = kRepartos[static_cast<std::size_t>(vez - 1)];
    estado.ComodinesJuego = caso.comodines;
    PonPartida(caso.juego);
    estado.RepartoEnCurso = true;
    estado.FilasReparto = caso.comodines > 1 ? Integer{5} : Integer{4};
    for (auto& queda : estado.CartaEnReparto)
        queda = true;
    for (Integer asiento = 1; asiento <= 4 && caso.colgada; ++asiento) {
        PonCartas(asiento, asiento, 5 * asiento, kDescubierta);
        for (int lugar = 1; lugar <= asiento; ++lugar) {
            const Carta carta = NesimaCarta(5 * asiento + lugar - 1);
            estado.CartaEnReparto(carta.palo, carta.valor) = false;
        }
    }
    RedibujarMesa();
    if (!caso.colgada)
        return;
    estado.FilaReparto = kEspadas;
    estado.ColumnaReparto = 11;
    TomaDelReparto();
    PonMover(kEspadas, 11, estado.ReparteX + 150, estado.ReparteY - 60);
}

// The draw for the first player.
void Sorteo(int) {
    PonPartida(kCinquillo);
    vista.mazo_centrado = true;
    vista.cartas_mazo = 34;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        const Carta carta = NesimaCarta(11 * asiento);
        vista.sorteada(asiento) = {.palo = carta.palo,
                                   .valor = carta.valor,
                                   .cara = kDescubierta,
                                   .orientacion = OrientacionDe(asiento)};
    }
    RedibujarMesa();
    MostrarNombres();
}

// Cinquillo: the whole deck laid, with hands that are still full, so that everything meets that can.
void Cinquillo(int vez) {
    PonPartida(kCinquillo);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        PonCartas(asiento, vez == 1 ? 10 : 3, 9 * asiento, kDescubierta);
        if (vez == 1)
            estado.Mano(asiento, 1, 4, kAltura) = kLevantada;
    }
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (Integer valor = 1; valor <= 12; ++valor) {
            const bool tendida =
                estado.ValorEnBaraja(valor) && (vez == 1 || (valor + palo) % 3 > 0);
            bazas.CartaJugada(palo, valor) = tendida ? palo : Integer{0};
        }
    }
    estado.VentanaInfo = 1;
    MostrarSugerencia(50);
    PedirContinuar(1);
    RedibujarMesa();
}

} // namespace

const std::vector<Estampa>& Estampas() {
    static const std::vector<Estampa> kEstampas{
        {"columna", Columna, 2, TrozoColumna},
        {"verde", BotonVerde, kVerdesEnTotal, TrozoVerde},
        {"manos", Manos, 14},
        {"ocultas", ManosOcultas, 14},
        {"comodines", Comodines},
        {"tapadas", Tapadas, 3},
        {"triunfo", ElTriunfo, static_cast<int>(kAlturasTriunfo.size())},
        {"ordenando", Ordenando},
        {"levantadas", Levantadas},
        {"rotulos", Rotulos, static_cast<int>(kColores.size())},
        {"nombres", Nombres},
        {"mazo", Mazo, static_cast<int>(kAlturasMazo.size()), TrozoMazo},
        {"vuelo", Vuelo},
        {"ganador", Ganador},
        {"poker", Poker, 4},
        {"apuestas", Apuestas, 5},
        {"banca", Banca, 16},
        {"cifras", Cifras, 1, TrozoCifras},
        {"sugerencia", Sugerencia, static_cast<int>(Consejos().size()), TrozoSugerencia},
        {"menu", Menu, 6, TrozoMenu},
        {"esquina", MenuEnEsquina, 2},
        {"reparto", Reparto, static_cast<int>(kRepartos.size())},
        {"sorteo", Sorteo},
        {"cinquillo", Cinquillo, 2},
    };
    return kEstampas;
}
