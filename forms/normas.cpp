#include "forms/normas.h"

#include <algorithm>

#include "core/game_state.h"
#include "core/pending_rules.h"
#include "core/saving.h"
#include "core/text.h"
#include "forms/form.h"
#include "forms/selector.h"
#include "forms/spin.h"
#include "games/game_table.h"
#include "table/messages.h"

namespace normas {

namespace {

constexpr const char* kOtroJuego =
    "Cuando se modifica  el  valor  de esta lista,  finaliza  el  juego actual  y  "
    "se  inicia la modalidad de juego  seleccionada.  Si pulsa  el botón Aceptar "
    "comenzará el nuevo juego.  Si pulsa el botón Cancelar no se modificará ningún "
    "valor y continuará el juego actual.";

bool abierta = false;
Integer marcado = 0;

// What each game shows, from the top of the form.
struct Reglas {
    Integer juego;
    std::vector<int> controles;
    const char* encabezado = ""; // above its line in the list of games
};

const std::vector<Reglas>& LasReglas() {
    static const std::vector<Reglas> kReglas{
        {kPoker,
         {kSelReparto, kSelBaraja, kSelComodines, kSelLey, kSpinResto, kSpinSalida, kSpinMaxima},
         "Baraja Francesa"},
        {kBlackJack, {kSpinResto, kSpinMaxima}},
        {kTute, {kSelReparto, kSelModalidad, kSpinLimite}, "Baraja Española"},
        {kBrisca, {kSelReparto, kSelModalidad, kSpinLimite}},
        {kSieteYMedia, {kSelReparto, kSpinResto, kSpinMaxima}},
        {kCinquillo, {kSelReparto, kSpinLimite}},
    };
    return kReglas;
}

// The opening law does not ask for a pair that the deck does not have: those values are stepped over.
void Avanza(int control) {
    AvanzaSelector(control);
    if (control == kSelLey)
        estado.LeyApertura = std::max(estado.LeyApertura, estado.CartasBaraja);
    RefrescaForma();
}

void LevantaLey() {
    if (estado.LeyApertura < estado.CartasBaraja) {
        Sonido(1, kSonidoEnlace);
        Avanza(kSelLey);
    }
}

void EncajaSpins() {
    for (int indice = kPrimerSpin; indice <= kUltimoSpin; ++indice)
        EncajaSpin(indice);
}

void CambiaJuego(Integer juego) {
    EncajaSpins();
    if (estado.PartidaEnCurso)
        AnulaMano();
    GuardarYCambiar(juego);
    // The match of the old game waits in its file; the driver below must not take it up again.
    estado.PartidaEnCurso = false;
    estado.ManoEnCurso = false;
    abierta = false;
}

} // namespace

void Abre() {
    abierta = true;
    marcado = estado.JuegoActivo;
}

bool Abierta() {
    return abierta;
}

void Cierra() {
    Sonido(0, kSonidoSalir);
    Deja();
}

void Deja() {
    EncajaSpins();
    abierta = false;
}

const char* Encabezado(Integer juego) {
    const auto reglas = std::ranges::find(LasReglas(), juego, &Reglas::juego);
    return reglas != LasReglas().end() ? reglas->encabezado : "";
}

bool SePuedeElegir(Integer juego) {
    const FilaJuego* fila = FilaDe(juego);
    return fila != nullptr && fila->driver != nullptr;
}

Integer JuegoMarcado() {
    return marcado;
}

std::vector<int> Controles() {
    const auto reglas = std::ranges::find(LasReglas(), estado.JuegoActivo, &Reglas::juego);
    if (reglas == LasReglas().end())
        return {};
    std::vector<int> controles = reglas->controles;
    if (estado.NumJugadores != 4) { // pairs are for four at the table
        std::erase(controles, kSelModalidad);
    }
    return controles;
}

bool SeVe(int control) {
    return std::ranges::count(Controles(), control) > 0;
}

void PulsaSelector(int control) {
    if (!EsSelector(control) || !SeVe(control))
        return;
    Sonido(1, kSonidoSelector);
    Avanza(control);
    if (control == kSelBaraja)
        LevantaLey();
    if (control == kSelBaraja || control == kSelComodines)
        CambiaBaraja();
}

bool PulsaSpin(int indice, bool sube) {
    if (!SeVe(indice) || !PasoSpin(indice, sube))
        return false;
    Sonido(1, kSonidoSpin);
    RefrescaForma();
    return true;
}

std::string EscribeSpin(int indice, std::string_view texto) {
    if (!EsSpin(indice) || !SeVe(indice))
        return "";
    LimitesSpin(indice);
    // Read up to one more than the maximum, to tell a number at the maximum from one over it.
    const Integer leido = NumeroTecleado(texto, static_cast<Integer>(spin.maximo + 1));
    spin.valor = std::min(leido, spin.maximo);
    ActualizaSpin(indice);
    return leido > spin.maximo ? Numero(spin.maximo) : std::string(texto);
}

void PulsaJuego(Integer juego) {
    if (juego == marcado || !SePuedeElegir(juego))
        return;
    marcado = juego;
    RefrescaForma();
    Pausa(600);
    if (PreguntaAceptar("Lista 'Juego Activado'", kOtroJuego, LineasDe(kOtroJuego)))
        CambiaJuego(juego);
    else
        marcado = estado.JuegoActivo;
    RefrescaForma();
}

} // namespace normas
