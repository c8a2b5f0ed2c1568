#include "table/messages.h"

#include <algorithm>
#include <cmath>

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "platform/platform.h"
#include "table/controls.h"
#include "table/sheet_layout.h"
#include "table/sounds.h"
#include "table/tips.h"
#include "table/trace.h"

namespace {

constexpr int kTipAviso = 0; // says how to bring the panel back; the next close hides it
constexpr int kTemaAviso = 2149;
constexpr int kRenglonesTip = 5;
constexpr int kLetrasTip = 29;
constexpr int kLetrasMensaje = 58;    // characters of a line of the box
constexpr int kAnchoSugerencia = 217; // 29 letters and their margins
constexpr int kAltoSugerencia = 78;
constexpr Long kVueltaReloj = 0x7FFFFFFF; // the mark keeps so many bits of the clock
// The largest letter whose lines, 10 pixels apart, do not run into each other. Its letters are as wide as they are: the
// blanks by which the tips fill their lines with letters of one width are no use to it.
constexpr Fuente kLetraTip{.alto = 11, .tope = kAnchoSugerencia - 14};
constexpr Rectangulo kMasAyuda{4, 1, 76, 20};
constexpr Rectangulo kCerrar{kAnchoSugerencia - 19, 2, 16, 16};

bool Pregunta(const std::string& titulo, const std::string& texto, int lineas, int modo,
              bool aceptar) {
    Traza("Mensaje", titulo, texto, lineas, modo);
    estado.LineasMensaje = EnteroDe(lineas);
    estado.ModoMensaje = EnteroDe(modo);
    estado.CursorTabla = 0;
    CambiarCursor(Control::Mesa, 0, Puntero::Flecha);
    const Boton boton = plataforma().Pregunta({.titulo = titulo,
                                               .texto = texto,
                                               .lineas = lineas,
                                               .modo = modo,
                                               .aceptar = aceptar,
                                               .centrada = estado.VentanaModal});
    Sonido(0, sonido::kBoton);
    if (modo == 2)
        estado.RespuestaMensaje = boton == Boton::Si;
    if (modo == 3)
        estado.AyudaPulsada = boton == Boton::Ayuda;
    return boton == Boton::Si;
}

void ColocaSugerencia() {
    Plataforma& p = plataforma();
    p.Coloca(Control::Pic_Sugerencia, 0, LugarDeLaSugerencia());
    p.Coloca(Control::Pic_MasAyuda, 0, kMasAyuda);
    p.Coloca(Control::Bot_CerrarSuge, 0, kCerrar);
    p.Nombra(Control::Pic_MasAyuda, 0, "Más ayuda");
    p.Nombra(Control::Bot_CerrarSuge, 0, "Cerrar la ventana de información");
}

void PintaPanel() {
    Lienzo& panel = plataforma().LienzoDe(Control::Pic_Sugerencia, 0);
    const Rectangulo todo{0, 0, kAnchoSugerencia, kAltoSugerencia};
    panel.Caja(todo, color::kMarfil);
    panel.Borde(todo, color::kBordePanel, 1);
    for (int k = 1; k <= kRenglonesTip; ++k) {
        panel.Texto(
            7, 10 * k + 10,
            Medio(estado.Sugerencias(estado.TipActual).Texto, kLetrasTip * (k - 1) + 1, kLetrasTip),
            kLetraTip, color::kAzul, Alineacion::Izquierda);
    }
}

void PintaBotonesPanel() {
    Lienzo& mas = plataforma().LienzoDe(Control::Pic_MasAyuda, 0);
    mas.Lamina(0, 0, lamina::kMasAyudaArriba);
    mas.Texto(kMasAyuda.ancho / 2, 3, "más ayuda", {.alto = 11, .negrita = true}, color::kBlanco,
              Alineacion::Centro);
    plataforma().LienzoDe(Control::Bot_CerrarSuge, 0).Lamina(0, 0, lamina::kCerrarArriba);
}

void MuestraPanel(bool visible) {
    plataforma().Muestra(Control::Pic_Sugerencia, 0, visible);
    plataforma().Muestra(Control::Pic_MasAyuda, 0, visible);
    plataforma().Muestra(Control::Bot_CerrarSuge, 0, visible);
}

} // namespace

void Mensaje(const std::string& titulo, const std::string& texto, int lineas, int modo) {
    const int conocido = modo == 2 || modo == 3 ? modo : 1;
    Pregunta(titulo, texto, lineas, conocido, false);
}

bool PreguntaAceptar(const std::string& titulo, const std::string& texto, int lineas) {
    return Pregunta(titulo, texto, lineas, 2, true);
}

int LineasDe(std::string_view texto) {
    int lineas = 0;
    std::size_t desde = 0;
    while (true) {
        const std::size_t fin = std::min(texto.find('\n', desde), texto.size());
        const int letras = Longitud(texto.substr(desde, fin - desde));
        lineas += std::max(1, (letras + kLetrasMensaje - 1) / kLetrasMensaje);
        if (fin == texto.size())
            return lineas;
        desde = fin + 1;
    }
}

void CargaSugerencias() {
    estado.Sugerencias.Borra();
    for (const Consejo& consejo : Consejos()) {
        estado.Sugerencias(consejo.indice).Texto = consejo.texto;
        estado.Sugerencias(consejo.indice).Tema = EnteroDe(consejo.tema);
    }
}

void MostrarSugerencia(int tip) {
    Traza("MostrarSugerencia", tip);
    if (estado.VentanaInfo != 1)
        return;
    estado.TemaActual = estado.Sugerencias(tip).Tema;
    estado.TipActual = EnteroDe(tip);
    ColocaSugerencia();
    MuestraPanel(true);
    PintaSugerencia();
    plataforma().Nombra(Control::Pic_Sugerencia, 0, estado.Sugerencias(tip).Texto);
    if (plataforma().HayPantalla())
        plataforma().Repinta();
}

void PintaSugerencia() {
    Plataforma& p = plataforma();
    if (!p.EstaVisible(Control::Pic_Sugerencia, 0))
        return;
    ColocaSugerencia();
    if (!p.HayPantalla())
        return;
    PintaPanel();
    PintaBotonesPanel();
}

Rectangulo LugarDeLaSugerencia() {
    return {0, estado.AltoMesa - kAltoSugerencia - 2, kAnchoSugerencia, kAltoSugerencia};
}

void OcultaSugerencia() {
    MuestraPanel(false);
}

void CierraSugerencia() {
    if (estado.TemaActual == kTemaAviso) {
        estado.VentanaInfo = 2;
        OcultaSugerencia();
        return;
    }
    MostrarSugerencia(kTipAviso);
}

double FactorPausa(int velocidad) {
    if (velocidad == 100)
        return 0;
    const double f = RedondeaA(std::pow((100 - velocidad) / 50.0, 1.5), 4);
    return f > 1 ? RedondeaA(f * f, 4) : f;
}

void MarcaPausaAhora() {
    // 0 means "no mark", so a clock that stands at 0 is marked one millisecond early.
    const auto ahora = static_cast<Long>(plataforma().Reloj() & kVueltaReloj);
    estado.MarcaPausa = ahora == 0 ? kVueltaReloj : ahora;
}

void Pausa(int unidades) {
    Traza("Pausa", unidades);
    const double factor = FactorPausa(estado.VelocidadJuego);
    if (factor > 0) {
        const Milisegundos reloj = plataforma().Reloj();
        // The mark holds the low 31 bits of the clock: the time gone by since then is what counts.
        const Milisegundos gastado =
            estado.MarcaPausa == 0 ? 0 : (reloj - estado.MarcaPausa) & kVueltaReloj;
        const auto espera = static_cast<Milisegundos>(std::ceil(unidades * factor));
        plataforma().DuermeHasta(reloj - gastado + espera);
    }
    estado.MarcaPausa = 0;
}

void Sonido(int modo, int id) {
    Traza("Sonido", modo, id);
    if (estado.SonidoActivo)
        plataforma().Suena(id, modo == 0);
}
