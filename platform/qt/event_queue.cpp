#include "platform/qt/event_queue.h"

#include <QKeyEvent>
#include <algorithm>

bool ColaEventos::SeFunde(const Evento& evento) {
    const bool unico =
        evento.tipo == TipoEvento::Tamano || evento.tipo == TipoEvento::CierraVentana;
    if (unico) {
        auto igual = std::ranges::find(cola_, evento.tipo, &Evento::tipo);
        if (igual == cola_.end())
            return false;
        *igual = evento;
        return true;
    }
    if (evento.tipo != TipoEvento::RatonMueve || cola_.empty())
        return false;
    Evento& ultimo = cola_.back();
    if (ultimo.tipo != TipoEvento::RatonMueve || ultimo.control != evento.control)
        return false;
    ultimo = evento;
    return true;
}

void ColaEventos::Pon(const Evento& evento) {
    if (!SeFunde(evento))
        cola_.push_back(evento);
}

std::optional<Evento> ColaEventos::Toma() {
    if (cola_.empty())
        return std::nullopt;
    const Evento primero = cola_.front();
    cola_.pop_front();
    return primero;
}

std::optional<Milisegundos> ColaEventos::Ahora() const {
    return reloj ? std::optional(reloj()) : std::nullopt;
}

std::optional<int> CaracterDe(const QKeyEvent& tecla) {
    const auto sin_letra = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (tecla.isAutoRepeat() || tecla.text().isEmpty() || (tecla.modifiers() & sin_letra))
        return std::nullopt;
    switch (tecla.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Delete:
        return std::nullopt;
    default:
        return tecla.text().front().unicode();
    }
}
