#include "forms/personal.h"

#include <algorithm>

#include "core/game_state.h"
#include "core/text.h"
#include "forms/refresh.h"
#include "forms/selector.h"
#include "table/button_column.h"
#include "table/game_row.h"
#include "table/messages.h"
#include "table/pending_rules.h"
#include "table/seat_drawing.h"
#include "table/whole_table.h"

namespace personal {

namespace {

constexpr Integer kVentanaCerrada = 2;

constexpr const char* kNoSeCambia = "Selector desactivado";
constexpr const char* kIncompatibles = "Selecciones incompatibles";
constexpr const char* kOcultarManual =
    "Si elige 'Ocultas' en 'Cartas del jugador' no podrá seguir con el 'Control "
    "del juego' del jugador seleccionado a 'Manual'. Si pulsa el botón Aceptar se "
    "actualizará el  'Control del juego' a 'Automático'. Si  pulsa  el  botón  "
    "Cancelar  no  se  modificará ningún valor.";
constexpr const char* kManualOculto =
    "Para que pueda pasar a  'Manual'  el  'Control del juego' de este jugador, "
    "las 'Cartas del jugador' deben estar 'Visibles'. Si pulsa el botón  Aceptar  "
    "se  seleccionará  dicho valor de forma automática. Si pulsa el botón  "
    "Cancelar no cambiará ningún valor.";
constexpr const char* kPocosJugadores =
    "Ha  modificado  los  jugadores  activados,  pero  debe haber como mínimo dos "
    "jugadores activados para poder jugar una partida.";
constexpr const char* kJugadoresNuevos =
    "Ha modificado los jugadores activados, por lo que se dará por  finalizada  "
    "la  partida  actual   y  comenzará  una  nueva partida   con   los   "
    "jugadores   actualmente   seleccionados. Pulse el botón  Aceptar para "
    "comenzar la nueva partida. Si pulsa  el  botón  Cancelar  no se modificarán "
    "los jugadores activados y continuará la partida en juego.";

bool abierta = false;
Tabla<Integer, 4> estado_al_abrir;

// What is said when the game does not let the player change the selector.
const char* AvisoDeCandado(int control) {
    for (const Candado& candado : JuegoEnMesa().asientos.candados) {
        const int clase = candado.ajuste == Candado::Ajuste::Estado ? kSelEstado : kSelCartas;
        const bool su_asiento = candado.asiento == 0 || candado.asiento == AsientoDe(control);
        if (clase == ClaseDe(control) && su_asiento)
            return candado.aviso;
    }
    return nullptr;
}

bool EsLaBanca(Integer asiento) {
    return asiento != 0 && asiento == JuegoEnMesa().asientos.banca;
}

// Beyond its name and its state a seat shows its settings while it plays by them.
bool MuestraAjustes(Integer asiento) {
    return asiento >= 1 && asiento <= 4 && estado.EstadoJugador(asiento) == kActivado &&
           !EsLaBanca(asiento);
}

// ---- the table below

// Every active seat as it stands; in the games with series the seat on turn shows the given one.
void RedibujaAsientos(Integer serie_de_turno) {
    const Integer antes = estado.SerieActual;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) != kActivado)
            continue;
        if (estado.JuegoConBanca)
            estado.SerieActual = asiento == estado.JugadorActual ? serie_de_turno : Integer{1};
        RedibujarAsiento(asiento);
    }
    estado.SerieActual = estado.JuegoConBanca ? serie_de_turno : antes;
}

void AlineaCaras(Integer asiento) {
    const bool destapadas_quedan = JuegoEnMesa().reparto.tapa;
    for (int serie = 1; serie <= 4; ++serie) {
        for (int lugar = 1; lugar <= 54; ++lugar) {
            if (estado.Mano(asiento, serie, lugar, kPalo) == kSinCarta)
                continue;
            const bool destapada = estado.Mano(asiento, serie, lugar, kTapada) == 0;
            estado.Mano(asiento, serie, lugar, kCara) =
                destapadas_quedan && destapada ? kDescubierta : estado.CartasJugador(asiento);
        }
    }
}

// The cards on the table show the side that the seats' settings say. In a manual deal all lie open until it ends;
// before the first deal there are those of the draw, which stay as they are.
void VuelveCartas() {
    if (!estado.PartidaEnCurso || estado.RepartoEnCurso || estado.JuegosJugados == 0)
        return;
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        AlineaCaras(asiento);
    RedibujaAsientos(estado.SerieActual);
}

// ---- selectors

void AvanzaPorEnlace(int control) {
    Sonido(1, kSonidoEnlace);
    AvanzaSelector(control);
    RefrescaForma();
}

// A manual seat sees its cards: of the two selectors that say otherwise, the one just pressed goes back or the
// other one follows.
void ConciliaManual(Integer asiento, int pulsado, int otro, const char* pregunta) {
    const bool choca =
        estado.ControlJugador(asiento) == kManual && estado.CartasJugador(asiento) == kOcultas;
    if (choca) {
        const bool sigue = PreguntaAceptar(kIncompatibles, pregunta, LineasDe(pregunta));
        AvanzaPorEnlace((sigue ? otro : pulsado) + asiento);
    }
}

void TrasCambiarCartas(Integer asiento) {
    ConciliaManual(asiento, kSelCartas, kSelControl, kOcultarManual);
    VuelveCartas();
}

void TrasCambiarControl(Integer asiento) {
    const Integer cartas = estado.CartasJugador(asiento);
    ConciliaManual(asiento, kSelControl, kSelCartas, kManualOculto);
    if (estado.CartasJugador(asiento) != cartas)
        VuelveCartas();
    if (estado.ControlJugador(asiento) == kManual)
        estado.EligeCarta = true;
}

void TrasCambiar(int control) {
    switch (ClaseDe(control)) {
    case kSelCartas:
        return TrasCambiarCartas(AsientoDe(control));
    case kSelControl:
        return TrasCambiarControl(AsientoDe(control));
    case kSelSentido:
        return CambiaSentido();
    default:
        return;
    }
}

// ---- sliders and check boxes

// The setting of a slider that is on show; nullptr for any other index.
Integer* AjusteDeslizador(int control) {
    if (control == kVelocidad)
        return &estado.VelocidadJuego;
    const auto asiento = static_cast<Integer>(control - kNivel);
    return MuestraAjustes(asiento) ? &estado.NivelJugador(asiento) : nullptr;
}

bool* AjusteCasilla(int control) {
    if (control == kSonido)
        return &estado.SonidoActivo;
    return control == kPausa ? &estado.PausaEntreJugadas : nullptr;
}

// ---- names

// What a settings file keeps as it is.
bool CabeEnFichero(std::string_view caracter) {
    const std::string byte = AWindows1252(caracter);
    const bool control = byte.size() == 1 && (static_cast<unsigned char>(byte[0]) < 0x20 ||
                                              static_cast<unsigned char>(byte[0]) == 0x7F);
    return !control && caracter != "," && DeWindows1252(byte) == caracter;
}

std::string SoloLoQueCabe(std::string_view texto) {
    constexpr std::string_view kBlancoDuro = "\u00A0";
    std::string limpio;
    for (int i = 1; i <= Longitud(texto); ++i) {
        const std::string caracter = Medio(texto, i, 1);
        if (caracter == kBlancoDuro)
            limpio += ' ';
        else if (CabeEnFichero(caracter))
            limpio += caracter;
    }
    return limpio;
}

void RecortaNombres() {
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        estado.NombreJugador(asiento) = Recorta(estado.NombreJugador(asiento));
}

// ---- closing

bool BastanJugadores() {
    const auto activos =
        std::count(estado.EstadoJugador.begin() + 1, estado.EstadoJugador.end(), kActivado);
    if (activos < 2)
        Mensaje("Número de Jugadores", kPocosJugadores, LineasDe(kPocosJugadores), 1);
    return activos >= 2;
}

// Seats that were switched on or off come into force, or go back.
void TomaAsientos() {
    if (estado.EstadoJugador == estado_al_abrir)
        return;
    if (estado.PartidaEnCurso && estado.JuegosJugados > 1 &&
        !PreguntaAceptar("Jugadores Activados", kJugadoresNuevos, LineasDe(kJugadoresNuevos))) {
        estado.EstadoJugador = estado_al_abrir;
        return;
    }
    ActivarAsientos();
    estado.JugadoresCambiados = estado.PartidaEnCurso;
    if (!estado.PartidaEnCurso)
        RehazBaraja();
}

// The match goes on as the form has left it.
void DevuelveMesa(bool se_esperaba) {
    if (estado.ManoEnCurso || !se_esperaba)
        RedibujarMesa();
    if (estado.ManoEnCurso)
        RedibujaAsientos(estado.SerieEnJuego);
    if (estado.ManoEnCurso && se_esperaba)
        HabilitaBoton(kBotonTutor, estado.ControlJugador(estado.JugadorActual) == kManual);
    if (estado.PausaEntreJugadas && !estado.RepartoEnCurso)
        PedirContinuar(1);
}

} // namespace

void Abre() {
    abierta = true;
    estado_al_abrir = estado.EstadoJugador;
}

bool Abierta() {
    return abierta;
}

bool Cierra() {
    Sonido(0, kSonidoSalir);
    if (!BastanJugadores())
        return false;
    const bool se_esperaba = estado.EsperandoJugada;
    TomaAsientos();
    CuentaJugadores();
    RecortaNombres();
    if (estado.PartidaEnCurso && !estado.JugadoresCambiados)
        DevuelveMesa(se_esperaba);
    if (estado.VentanaInfo == kVentanaCerrada)
        OcultaSugerencia();
    abierta = false;
    return true;
}

void Deja() {
    estado.EstadoJugador = estado_al_abrir;
    RecortaNombres();
    abierta = false;
}

bool SeVeSelector(int control) {
    if (control == kSelSentido || control == kSelVentana)
        return true;
    const Integer asiento = AsientoDe(control);
    return asiento != 0 && (ClaseDe(control) == kSelEstado || MuestraAjustes(asiento));
}

bool SeVePotenciometro(int control) {
    return AjusteDeslizador(control) != nullptr;
}

bool SeEscribeNombre(Integer asiento) {
    return asiento >= 1 && asiento <= 4 && !EsLaBanca(asiento);
}

void PulsaSelector(int control) {
    if (!SeVeSelector(control))
        return;
    Sonido(1, kSonidoSelector);
    if (const char* aviso = AvisoDeCandado(control)) {
        Mensaje(kNoSeCambia, aviso, LineasDe(aviso), 1);
        return;
    }
    AvanzaSelector(control);
    RefrescaForma();
    TrasCambiar(control);
}

void PulsaBuleano(int control) {
    bool* ajuste = AjusteCasilla(control);
    if (ajuste == nullptr)
        return;
    *ajuste = !*ajuste;
    Sonido(1, kSonidoCasilla);
    RefrescaForma();
}

bool Buleano(int control) {
    const bool* ajuste = AjusteCasilla(control);
    return ajuste != nullptr && *ajuste;
}

void Desliza(int control, int valor) {
    if (Integer* ajuste = AjusteDeslizador(control)) {
        *ajuste = static_cast<Integer>(std::clamp(valor, kMinimo, kMaximo));
        RefrescaForma();
    }
}

int Potenciometro(int control) {
    const Integer* ajuste = AjusteDeslizador(control);
    return ajuste != nullptr ? *ajuste : 0;
}

std::string TextoPotenciometro(int control) {
    const int valor = Potenciometro(control);
    return control == kVelocidad ? Numero(valor) : Formato(valor / 10.0, "0.0");
}

void EscribeNombre(Integer asiento, std::string_view texto) {
    if (SeEscribeNombre(asiento)) {
        estado.NombreJugador(asiento) = FormaNombre(texto);
        RefrescaForma();
    }
}

std::string FormaNombre(std::string_view texto) {
    const std::string escrito = NombrePropio(RecortaIzquierda(SoloLoQueCabe(texto)));
    return Medio(SoloLoQueCabe(escrito), 1, kLetrasNombre);
}

} // namespace personal
