#include "platform/qt/event_queue.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>

namespace {

struct Flecha {
    Qt::Key tecla;
    Qt::KeyboardModifier con;
    Mando mando;
};

constexpr std::array kFlechas{
    Flecha{Qt::Key_Left, Qt::NoModifier, Mando::Izquierda},
    Flecha{Qt::Key_Right, Qt::NoModifier, Mando::Derecha},
    Flecha{Qt::Key_Up, Qt::NoModifier, Mando::Arriba},
    Flecha{Qt::Key_Down, Qt::NoModifier, Mando::Abajo},
    Flecha{Qt::Key_Left, Qt::ShiftModifier, Mando::MayusIzquierda},
    Flecha{Qt::Key_Right, Qt::ShiftModifier, Mando::MayusDerecha},
};

bool SeRepite(Mando mando) {
    return mando == Mando::Izquierda || mando == Mando::Derecha;
}

} // namespace

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

std::optional<Evento> MandoDe(const QKeyEvent& tecla) {
    const Qt::KeyboardModifiers con = tecla.modifiers() & ~Qt::KeypadModifier;
    const int codigo = tecla.key();
    Evento mando;
    mando.tipo = TipoEvento::Mando;
    if (con == Qt::NoModifier && codigo >= Qt::Key_F1 && codigo <= Qt::Key_F9) {
        mando.mando = Mando::Funcion;
        mando.indice = codigo - Qt::Key_F1 + 1;
    } else {
        const auto flecha = std::ranges::find_if(
            kFlechas, [&](const Flecha& una) { return una.tecla == codigo && una.con == con; });
        if (flecha == kFlechas.end())
            return std::nullopt;
        mando.mando = flecha->mando;
    }
    if (tecla.isAutoRepeat() && !SeRepite(mando.mando))
        return std::nullopt;
    return mando;
}
