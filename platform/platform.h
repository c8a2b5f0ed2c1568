#pragma once
// All that the game knows of a desktop: events, the clock, the controls of the table `mesa`, modal boxes
// and forms, sound, help, folders. There are two sides: platform/qt (the window) and platform/headless
// (no screen: virtual clock, scripted input). Everything runs on one thread.

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

#include "core/files.h"
#include "platform/canvas.h"

using Milisegundos = std::int64_t;

// A moment of the calendar, local time. mes and dia count from 1, hora runs from 0 to 23.
struct FechaHora {
    int anio = 2000, mes = 1, dia = 1, hora = 0, minuto = 0, segundo = 0;
    friend bool operator==(const FechaHora&, const FechaHora&) = default;
};

// The controls of `mesa`. Those that come several times carry an index from 1; the others use 0.
enum class Control {
    Mesa,
    Pic_Botonera,
    Pic_Boton, // 1..8
    Pic_BotContinuar,
    Pic_SelOpciones,
    Pic_Sugerencia,
    Pic_MasAyuda,
    Bot_CerrarSuge,
    Pic_Tantos, // 1..4
    Pic_Mover,
    Pic_BotSuperior, // 1..2
    Pic_BotLateral,  // 1..2
    Pic_BotDobSeg,
    Pic_Apostadora,
    Pic_APBotPasar,
    Pic_APBotIgualar,
    Pic_APBotApostar,
    Pic_APBotAnular,
    Pic_APApoJugAct, // the two displays of the board
    Pic_APApoJugAcu,
    Pic_NumerosCristal, // a chip on its way
    Pic_Tanteo,         // the plate of trump and match
    Pic_Aviso,          // one line that says what the table is doing
    Ultimo = Pic_Aviso,
};

// The main buttons: the indices of Pic_Boton.
inline constexpr int kBotonNueva = 1, kBotonPersonal = 2, kBotonNormas = 3, kBotonTutor = 4,
                     kBotonMarcador = 5, kBotonAyuda = 6, kBotonSalir = 7, kBotonEstadis = 8;

// The name of a control as the game writes it ("Pic_BotContinuar"), and the control of a name.
const char* NombreDe(Control control);
std::optional<Control> ControlDe(std::string_view nombre);

// What a control stands on: the main buttons and Pic_BotContinuar on Pic_Botonera, the buttons of a panel on
// their panel, all others on the felt; Mesa answers itself. Places are counted from its upper left corner.
Control PadreDe(Control control);

// Pointer shapes. 0..8 are also the values of CursorTabla.
enum class Puntero : Integer {
    Flecha = 0,
    ManoIndice = 1,
    ManoVerde = 2,
    ManoRoja = 3,
    Ordenar = 4,
    Cambiar = 5,
    ManoCerrada = 6,
    Voltear = 7,
    Abrirse = 8,
    RelojArena = 11,
    Prohibido = 12,
};

// "ManoIndice"; "Flecha" for a value that is none.
const char* NombreDe(Puntero puntero);

// What the keys that are no characters mean to the table: arrows alone and with the shift key, F1 to F9.
enum class Mando { Izquierda, Derecha, Arriba, Abajo, MayusIzquierda, MayusDerecha, Funcion };

enum class TipoEvento {
    RatonMueve,  // x, y; on Mesa, Pic_SelOpciones or Pic_Botonera, in the control's own pixels
    RatonPulsa,  // x, y, boton
    RatonSuelta, // x, y, boton
    RatonClic,   // x, y, boton: follows the release, as a click of its own
    Clic,        // a control other than Mesa was clicked: control, indice
    Tecla,       // tecla: the character number
    Mando,       // a key that is no character: mando, for Funcion its number in indice
    Tamano,      // the table has a new size: x the width, y the height
    CierraVentana,
    Termina, // the desktop ends the session, or SIGTERM: save and leave without a question
};

struct Evento {
    TipoEvento tipo = TipoEvento::RatonMueve;
    Control control = Control::Mesa;
    int indice = 0;
    int x = 0, y = 0;
    int boton = 1; // 1 left, 2 right
    int tecla = 0;
    // A click or a key: when the press began, by Reloj(); nothing: it begins and ends now.
    std::optional<Milisegundos> desde = std::nullopt;
    Mando mando = Mando::Izquierda;
};

// The frames that lie over the whole table, controls included: the one that the keys move, its other look where they
// would do nothing, and the outline of the card that a click would do something with.
enum class Marco { DeTeclas, DeTeclasVedado, DePuntero };

// A pass in a wait takes input for sure; a pass that a deal, a draw or a turn makes on its way takes what
// is there on a desktop, and none of the scripted input without a screen unless told so.
enum class Pase { DeEspera, DePaso };

enum class Boton { Salir, Si, No, Ayuda };

// The modal box `mensajes`. lineas decides the height: 16 x lineas + 136 pixels, or more if the text needs it.
struct CajaMensaje {
    std::string titulo;
    std::string texto; // lines end in CR LF
    int lineas = 1;
    int modo = 1;          // 1 one button, 2 Si and No, 3 help and exit
    bool aceptar = false;  // mode 2 only: the buttons read "Aceptar" and "Cancelar"
    bool centrada = false; // on the whole screen instead of across the table
};

enum class Forma { Personal, Normas, Marcador, Historic, Estadis };

// Something without which the program cannot go on: shown as the program's error report, status not 0.
struct FalloGrave : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class Plataforma {
public:
    virtual ~Plataforma() = default;

    // Events. Bombea lets the window system deliver and paint; SiguienteEvento answers what has come and not
    // been taken, in order, or nothing. EsperaEvento sleeps until there is one; false when none can come any
    // more (a script at its end).
    virtual void Bombea() = 0;
    virtual std::optional<Evento> SiguienteEvento(Pase pase) = 0;
    [[nodiscard]] virtual bool EsperaEvento() = 0;

    // Time in milliseconds from an origin of its own. DuermeHasta keeps the window painted and keeps all
    // input for the next pass; a moment that has passed returns at once.
    virtual Milisegundos Reloj() = 0;
    virtual void DuermeHasta(Milisegundos momento) = 0;
    // What calendar and clock on the wall say.
    virtual FechaHora Ahora() = 0;

    // False when nothing is ever shown: the table operations then skip their drawing.
    virtual bool HayPantalla() const = 0;
    virtual int AnchoVentana() const = 0; // the table's window, button column included
    virtual int AltoVentana() const = 0;
    // The desktop's screen.
    virtual int AnchoEscritorio() const { return AnchoVentana(); }
    virtual int AltoEscritorio() const { return AltoVentana(); }

    // The start: the splash `careta`, centred on the screen, which a click takes away; then `mesa` over it.
    // Without a screen there is neither.
    virtual void MuestraCareta() {}
    virtual void MuestraMesa() {}

    // Controls. A control's canvas has its own origin; Control::Mesa is the felt, in table pixels. Coloca
    // counts from the control that it stands on (PadreDe) and keeps the picture while the size stays; a new
    // size clears it. A control is hidden until Muestra, except Pic_Botonera, and a control on a hidden one
    // is not seen. Bare felt on a control's canvas lets the table show through.
    virtual Lienzo& LienzoDe(Control control, int indice) = 0;
    virtual void Coloca(Control control, int indice, const Rectangulo& donde) = 0;
    virtual void Muestra(Control control, int indice, bool visible) = 0;
    virtual bool EstaVisible(Control control, int indice) const = 0;
    virtual void PonPuntero(Control control, int indice, Puntero puntero) = 0;
    virtual Puntero PunteroDe(Control control, int indice) const = 0;
    // Where it stands, in table pixels, on view or not; without size when it was never placed.
    virtual Rectangulo LugarDe(Control control, int indice) const = 0;
    // What a screen reader says of the control, and its tool tip. The table is named by its game, which the
    // window's title tells.
    virtual void Nombra(Control control, int indice, std::string_view nombre) = 0;
    // The name that it was given last, "" without one.
    virtual std::string NombreDicho(Control control, int indice) const = 0;
    // What a screen reader says now, unasked.
    virtual void Anuncia(std::string_view texto) = 0;
    // A frame around a place in table pixels, in the place of the one that was there; nothing takes it away. The mouse
    // passes through.
    virtual void Enmarca(Marco cual, const std::optional<Rectangulo>& donde) = 0;
    // The flying card, above everything on the felt; Posa takes it away.
    virtual void Vuela(int x, int y, const ImagenCarta& carta) = 0;
    virtual void Posa() = 0;
    // Paints now what has been drawn.
    virtual void Repinta() = 0;

    // The deck image: four rows of columnas cells of 101 by 141, or a whole multiple of that. FalloGrave,
    // naming file and reason, when it cannot be used.
    virtual void CargaBaraja(const std::string& ruta, int columnas) = 0;

    // Modal.
    virtual Boton Pregunta(const CajaMensaje& caja) = 0;
    virtual void Abre(Forma forma) = 0;
    virtual bool TieneForma(Forma forma) const = 0;

    virtual void Suena(int id, bool espera) = 0;
    virtual void Ayuda(int tema) = 0; // 0 opens the help at its start
    virtual void Minimiza() = 0;

    // False where nobody will ever go on with a match, and where another copy of the program keeps its own in the same
    // files: nothing is then written to them.
    virtual bool GuardaPartidas() const { return true; }

    // False where the game goes on without the data files that come with the program.
    virtual bool ExigeFicheros() const { return true; }

    // Folders end without a separator. CarpetaUsuario is the writable folder of the user.
    virtual Archivos& LosArchivos() = 0;
    virtual std::string CarpetaDelPrograma() const = 0;
    virtual std::string CarpetaUsuario() const = 0;
};

// The platform in use. Set once by the program or tool before anything else; tests set their own.
Plataforma& plataforma();
void UsaPlataforma(Plataforma& cual);
