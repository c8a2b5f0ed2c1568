#pragma once
// The form that a console has before it. What is done while none is open waits for the next one that a driver opens
// by a button of the table, as all other input is queued ahead.

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/form.h"

// A page of a report by the form's name; numero as in MandosForma. ErrorConsola for a form that is not there or prints
// none.
PaginaImpresa PaginaDeForma(const std::string& nombre, int numero);

class FormaEnMano {
public:
    // Opens a form as its button would, whether or not the button is enabled. ErrorConsola for one that is not there
    // or while another one is open.
    void Abre(const std::string& nombre);
    bool Abierta() const { return !pila_.empty(); }
    // The form that lies on top, if one is open.
    std::optional<Forma> Encima() const;
    void Olvida();

    // By Pic_BotSalir; the others on a control of the form. False when the form has no such control.
    void Cierra();
    bool Pulsa(const std::string& control, int indice);
    bool Escribe(const std::string& control, int indice, const std::string& texto);
    bool Desliza(const std::string& control, int indice, int valor);

    // A button has opened the form: what was queued up to its closing is done to it. One that is still open then is
    // left as by the exit button. A form that a button of the open form opens stays open over it.
    void AtiendeLoEncolado(Forma forma);

private:
    using Accion = std::function<bool(const MandosForma&)>;
    bool Haz(Accion accion);

    const MandosForma& MandosDeEncima() const;
    void QuitaCerradas();

    std::vector<Forma> pila_; // the topmost last
    bool cambia_ajustes_ = false;
    bool en_accion_ = false;
    std::deque<Accion> encoladas_;
};
