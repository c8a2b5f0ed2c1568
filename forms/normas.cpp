#include "forms/normas.h"

#include <algorithm>

#include "core/game_state.h"
#include "core/text.h"
#include "forms/refresh.h"
#include "forms/selector.h"
#include "forms/spin.h"
#include "storage/saving.h"
#include "table/game_row.h"
#include "table/messages.h"
#include "table/pending_rules.h"

namespace normas {

namespace {

constexpr const char* kOtroJuego =
    "Cuando se modifica  el  valor  de esta lista,  finaliza  el  juego actual  y  "
    "se  inicia la modalidad de juego  seleccionada.  Si pulsa  el botón Aceptar "
    "comenzará el nuevo juego.  Si pulsa el botón Cancelar no se modificará ningún "
    "valor y continuará el juego actual.";

bool abierta = false;
Integer marcado = 0;

// The control that shows a rule.
int ControlDe(Regla regla) {
    constexpr int kControles[] = {kSelReparto,   kSelLey,     kSelComodines,
                                  kSelModalidad, kSelBaraja,  kSpinResto,
                                  kSpinSalida,   kSpinMaxima, kSpinLimite};
    return kControles[static_cast<std::size_t>(regla)];
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
    const FilaJuego* fila = FilaDe(juego);
    return fila != nullptr ? fila->normas.encabezado : "";
}

bool SePuedeElegir(Integer juego) {
    const FilaJuego* fila = FilaDe(juego);
    return fila != nullptr && SePuedeJugar(*fila);
}

Integer JuegoMarcado() {
    return marcado;
}

std::vector<int> Controles() {
    const FilaJuego* fila = FilaDe(estado.JuegoActivo);
    if (fila == nullptr)
        return {};
    std::vector<int> controles;
    for (const Regla regla : fila->normas.reglas)
        controles.push_back(ControlDe(regla));
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
