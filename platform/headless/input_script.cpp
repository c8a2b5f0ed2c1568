#include "platform/headless/input_script.h"

namespace {

bool EsDeRaton(TipoEvento tipo) {
    return tipo == TipoEvento::RatonMueve || tipo == TipoEvento::RatonPulsa ||
           tipo == TipoEvento::RatonSuelta || tipo == TipoEvento::RatonClic;
}

// The table's handlers get the mouse itself from these; from all others only the click.
bool QuiereRaton(Control control) {
    return control == Control::Mesa || control == Control::Pic_SelOpciones ||
           control == Control::Pic_Botonera;
}

} // namespace

void GuionEntrada::Encola(const Evento& evento) {
    entradas_.push_back(evento);
}

void GuionEntrada::RatonMueve(int x, int y) {
    Encola({.tipo = TipoEvento::RatonMueve, .x = x, .y = y});
}

void GuionEntrada::RatonPulsa(int x, int y, int boton) {
    Encola({.tipo = TipoEvento::RatonPulsa, .x = x, .y = y, .boton = boton});
}

void GuionEntrada::RatonSuelta(int x, int y, int boton) {
    Encola({.tipo = TipoEvento::RatonSuelta, .x = x, .y = y, .boton = boton});
}

void GuionEntrada::RatonClic(int x, int y, int boton) {
    RatonMueve(x, y);
    RatonPulsa(x, y, boton);
    RatonSuelta(x, y, boton);
    Encola({.tipo = TipoEvento::RatonClic, .x = x, .y = y, .boton = boton});
}

void GuionEntrada::Tecla(int tecla) {
    Encola({.tipo = TipoEvento::Tecla, .tecla = tecla});
}

void GuionEntrada::Manda(Mando mando, int numero) {
    Encola({.tipo = TipoEvento::Mando, .indice = numero, .mando = mando});
}

void GuionEntrada::PulsaControl(ControlMesa cual) {
    Encola({.tipo = TipoEvento::Clic, .control = cual.control, .indice = cual.indice});
}

std::optional<Evento> GuionEntrada::Toma(const TableroControles& tablero) {
    if (Vacio())
        return std::nullopt;
    const Evento evento = entradas_.front();
    entradas_.pop_front();
    if (EsDeRaton(evento.tipo))
        return EventoDeRaton(evento, tablero);
    if (evento.tipo == TipoEvento::Clic && !tablero.EstaVisible({evento.control, evento.indice}))
        return std::nullopt;
    return evento;
}

ControlMesa GuionEntrada::Blanco(const Evento& raton, const TableroControles& tablero) {
    const ControlMesa debajo = tablero.BajoPunto(raton.x, raton.y);
    if (raton.tipo == TipoEvento::RatonPulsa)
        pulsado_ = debajo;
    const bool suyo = apretado_ || raton.tipo == TipoEvento::RatonClic;
    if (raton.tipo == TipoEvento::RatonPulsa || raton.tipo == TipoEvento::RatonSuelta)
        apretado_ = raton.tipo == TipoEvento::RatonPulsa;
    return suyo ? pulsado_ : debajo;
}

std::optional<Evento> GuionEntrada::EventoDeRaton(const Evento& raton,
                                                  const TableroControles& tablero) {
    const ControlMesa blanco = Blanco(raton, tablero);
    Evento evento = raton;
    evento.control = blanco.control;
    evento.indice = blanco.indice;
    if (QuiereRaton(blanco.control)) {
        const Rectangulo lugar = tablero.LugarDe(blanco);
        evento.x -= lugar.x;
        evento.y -= lugar.y;
        return evento;
    }
    if (raton.tipo != TipoEvento::RatonClic)
        return std::nullopt;
    evento.tipo = TipoEvento::Clic;
    return evento;
}
