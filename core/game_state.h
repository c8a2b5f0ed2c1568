#pragma once
// The block of state that the whole program shares: plain data, read and written directly.
//
// A seat is an index 1..4 (left, top, right, bottom), a card a palo and a valor, a table a fixed array.
// Arrays are used from 1 with a spare element 0, except where 0 is said to be the pot. Copying the block
// is a snapshot, comparing two is a test, `estado = {}` a clean table. What one family of games owns
// stands in that family's own block.

#include <string>

#include "core/currency.h"
#include "core/tabla.h"

// Suits; no card is 0. The French deck uses the same rows.
inline constexpr Integer kSinCarta = 0, kOros = 1, kCopas = 2, kEspadas = 3, kBastos = 4,
                         kComodin = 5;
// The As, in every deck.
inline constexpr Integer kAs = 1;
// Fields of a place of Mano.
inline constexpr int kPalo = 1, kValor = 2, kCara = 3, kAltura = 4, kTapada = 5;
// CaraCarta, AlturaCarta, and the settings with two values.
inline constexpr Integer kDorso = 1, kDescubierta = 2;
inline constexpr Integer kLevantada = 1, kEnLinea = 2;
inline constexpr Integer kActivado = 1, kDesactivado = 2;
inline constexpr Integer kOcultas = 1, kVisibles = 2;
inline constexpr Integer kAutomatico = 1, kManual = 2;
inline constexpr Integer kConservador = 1, kMedio = 2, kAgresivo = 3;
inline constexpr Integer kRepartoAutomatico = 1, kRepartoManual = 2;
inline constexpr Integer kDirecto = 1, kInverso = 2;
inline constexpr Integer kIndividual = 1, kDosParejas = 2;
inline constexpr Integer kBarajaEspanola = 1, kBarajaFrancesa = 2;
// Games by number.
inline constexpr Integer kPoker = 1, kBlackJack = 31, kTute = 51, kBrisca = 58, kSieteYMedia = 65,
                         kCinquillo = 70;

// A card: which one it is, wherever it lies.
struct Carta {
    Integer palo = kSinCarta, valor = 0;
    constexpr Carta() = default;
    constexpr Carta(Integer p, Integer v) : palo(p), valor(v) {}
    friend constexpr bool operator==(const Carta&, const Carta&) = default;
};

// One finished game of the match. Index of the text tables: seat; of Marcas: seat, column.
struct RegistroJuego {
    std::string Inicio; // who led the game, 9 characters in the file
    Tabla<Integer, 4, 4> Marcas;
    Tabla<std::string, 4> Texto1; // 17 characters in the file
    Tabla<std::string, 4> Texto2; // 15 characters in the file
    Tabla<Integer, 4> Cifra;
    Integer Total = 0;

    // As a new one; the texts keep their room, so that clearing the two thousand of a match costs little.
    void Borra();
    friend bool operator==(const RegistroJuego&, const RegistroJuego&) = default;
};

// One tip of the suggestion panel: its five lines of 29 characters and the help topic.
struct RegistroSugerencia {
    std::string Texto;
    Integer Tema = 0;
    friend bool operator==(const RegistroSugerencia&, const RegistroSugerencia&) = default;
};

struct EstadoJuego {
    // Direction of play and places at the table.
    Integer PasoSentido = 0;
    Tabla<Integer, 4> OrientacionAsiento;
    Tabla<Integer, 4> ParejaAsiento;

    // The deck's ranks.
    Tabla<bool, 13> ValorEnBaraja;

    // Seat settings.
    Tabla<std::string, 4> NombreJugador;
    Tabla<Integer, 4> NivelJugador;
    Tabla<Integer, 4> EstadoJugador;
    Tabla<Integer, 4> CartasJugador;
    Tabla<Integer, 4> ControlJugador;
    Tabla<Integer, 4> CaracterJugador;

    // General settings.
    Integer JuegoActivo = 0;
    bool SonidoActivo = false;
    Integer VelocidadJuego = 0;
    bool PausaEntreJugadas = false;
    Integer SentidoJuego = 0;
    Integer VentanaInfo = 0;
    Integer SistemaReparto = 0;
    Integer ModalidadJuego = 0;
    Integer ComodinesJuego = 0;
    Integer CartasBaraja = 0;
    Integer LeyApertura = 0;
    Integer RestoInicial = 0;
    Integer ApuestaSalida = 0;
    Integer ApuestaMaxima = 0;
    Integer LimitePartida = 0;
    Integer NumJugadores = 0;

    // The match and the hand.
    bool PartidaEnCurso = false;
    bool ManoEnCurso = false;
    Integer JuegosJugados = 0;
    Integer JugadorActual = 0;
    Integer JugadorMano = 0;
    Integer JugadorBanca = 0;
    Integer SerieActual = 0;
    Integer SerieEnJuego = 0;
    Tabla<Integer, 4> SeriesJugador;
    Integer NumBaza = 0;
    Integer JugadorSalida = 0;
    Integer GanadorBaza = 0;
    Integer GanadorMano = 0;
    Integer GanadorPartida = 0;
    Integer CartasEnBaza = 0;
    Integer JugadoresEnMano = 0;
    float AzarTurno = 0;

    // Flags between events and drivers.
    bool EsperandoJugada = false;
    bool EligeCarta = false;
    bool JugadaHecha = false;
    bool TutorPulsado = false;
    bool RepartoEnCurso = false;
    bool ArrastraReparto = false;
    bool ModoOrdenar = false;
    bool ArrastraCarta = false;

    // Hands: Mano(asiento, serie, lugar, campo).
    Tabla<Integer, 4, 4, 54, 5> Mano;
    Tabla<Integer, 4, 4> NumCartas;
    Tabla<bool, 4, 4> SerieTerminada;
    Tabla<std::string, 4, 4> RotuloSerie;
    Tabla<Long, 4, 4> ColorRotulo;
    Tabla<Integer, 4, 4> ParpadeoRotulo;

    // The deck: Baraja(lugar, 1 palo, 2 valor); Descartes likewise.
    Tabla<Integer, 312, 2> Baraja;
    Integer TotalBaraja = 0;
    Integer CartasNormales = 0;
    Integer ComodinesBaraja = 0;
    Integer ValoresPorPalo = 0;
    Integer MazosBaraja = 0;
    Integer TipoBaraja = 0;
    Integer CartasEnMazo = 0;
    Integer PosicionMazo = 0;
    Integer CartasReparto = 0;
    Integer PasoReparto = 0;
    Integer MaxCartasMano = 0;
    Integer NumDescartes = 0;
    Tabla<Integer, 54, 2> Descartes;
    Tabla<Currency, 13> ValorCarta;
    Tabla<Integer, 13> OrdenCarta;
    Integer ColumnasBaraja = 0;
    Integer CartasImagen = 0;
    Integer AltoMiniCarta = 0;
    Tabla<std::string, 14> NombreValorPlural;
    Tabla<std::string, 14> NombreValor;
    Tabla<bool, 5, 13> CartaEnReparto;
    Integer FilasReparto = 0;
    Integer ReparteX = 0;
    Integer ReparteY = 0;
    Integer UltimoRecibe = 0;
    Integer PaloTriunfo = 0;
    Integer ValorTriunfo = 0;
    bool JuegoConBanca = false;

    // Results of the match.
    Tabla<Integer, 4> JuegosGanados;
    Tabla<RegistroJuego, 2000> Juegos;

    // Layout, in pixels.
    Tabla<Integer, 4> MesaArriba;
    Tabla<Integer, 4> MesaAbajo;
    Tabla<Integer, 4> MesaIzquierda;
    Tabla<Integer, 4> MesaDerecha;
    Integer AnchoPantalla = 0;
    Integer AltoPantalla = 0;
    Integer AnchoMesa = 0;
    Integer AltoMesa = 0;
    Integer CentroX = 0;
    Integer CentroY = 0;
    Tabla<Integer, 14, 6> PosFichaX;
    Tabla<Integer, 14, 6> PosFichaY;
    Integer MazoX = 0;
    Integer MazoY = 0;
    Integer CartaX = 0;
    Integer CartaY = 0;

    // Words.
    Tabla<std::string, 99> NombreJuego;
    Tabla<std::string, 7> NombreNumero;
    Tabla<std::string, 10> TextoOrdenar;
    Tabla<std::string, 34> TituloSelector;

    // Start and session.
    std::string CarpetaTrabajo;
    std::string CarpetaPrograma;
    std::string SaltoLinea;
    bool PrimeraVez = false;
    bool VentanaModal = false;
    bool JugadoresCambiados = false;
    Integer JuegoPrevio = 0;
    bool FicheroNuevo = false;

    // Input of the table.
    Integer AsientoBajoCursor = 0;
    Integer CartaBajoCursor = 0;
    Integer ZonaBajoCursor = 0;
    Integer FilaReparto = 0;
    Integer ColumnaReparto = 0;
    Integer CursorTabla = 0;
    Integer CursorNuevo = 0;
    Integer BotonRaton = 0;
    Integer RatonX = 0;
    Integer RatonY = 0;
    Integer FichaBajoCursor = 0;
    Integer CartaElegida = 0;
    Integer CartaMovida = 0;
    Tabla<bool, 10> Opciones;
    Integer OpcionResaltada = 0;
    Integer OpcionElegida = 0;
    Integer NumOpciones = 0;

    // Messages, tips and pacing.
    Integer LineasMensaje = 0;
    Integer ModoMensaje = 0;
    bool RespuestaMensaje = false;
    bool AyudaPulsada = false;
    Tabla<RegistroSugerencia, 50> Sugerencias;
    Integer TemaActual = 0;
    Integer TipActual = 0;
    Long MarcaPausa = 0;

    friend bool operator==(const EstadoJuego&, const EstadoJuego&) = default;
};

extern EstadoJuego estado;

// The seat after (before) the given one in the direction of PasoSentido, 1 following 4 and 4 following
// 1. They change the given variable and touch nothing else; whether the seat plays is the caller's test.
void SiguienteAsiento(Integer& asiento);
void AsientoAnterior(Integer& asiento);

// After the active seats have changed: counts NumJugadores from EstadoJugador, empties Mano and NumCartas
// of the seats that are not active and sets ModalidadJuego to individual when they are not four.
void ActivarAsientos();

// NumJugadores from EstadoJugador; ModalidadJuego becomes individual when they are not four.
void CuentaJugadores();

// Every place of the seat's hand empty, in all its series. Writes Mano and NumCartas.
void VaciaMano(Integer asiento);
