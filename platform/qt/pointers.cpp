#include "platform/qt/pointers.h"

#include <QGuiApplication>
#include <QPixmap>
#include <algorithm>
#include <array>
#include <cmath>

#include "table/sheet_layout.h"

namespace {

const char* NombrePuntero(Puntero puntero) {
    constexpr std::array kNombres{"",        "ManoIndice",  "ManoVerde", "ManoRoja", "Ordenar",
                                  "Cambiar", "ManoCerrada", "Voltear",   "Abrirse"};
    const auto cual = static_cast<std::size_t>(puntero);
    return cual < kNombres.size() ? kNombres[cual] : "";
}

// Drawn once, twice and three times as large: the one that is large enough for the screen.
QPixmap DibujoPara(const QString& archivo, double ratio) {
    const int veces = std::clamp(static_cast<int>(std::ceil(ratio)), 1, lamina::kEscala);
    const QString sufijo = veces == 1 ? QString() : QStringLiteral("@%1x").arg(veces);
    QPixmap dibujo(QStringLiteral(":/arte/%1%2.png").arg(archivo, sufijo));
    dibujo.setDevicePixelRatio(veces);
    return dibujo;
}

QCursor Dibujado(const lamina::Puntero& puntero) {
    const QString archivo =
        QString::fromUtf8(puntero.archivo.data(), static_cast<qsizetype>(puntero.archivo.size()));
    return QCursor(DibujoPara(archivo, qApp->devicePixelRatio()), puntero.puntaX, puntero.puntaY);
}

} // namespace

QCursor CursorDe(Puntero puntero) {
    if (puntero == Puntero::RelojArena)
        return Qt::WaitCursor;
    if (puntero == Puntero::Prohibido)
        return Qt::ForbiddenCursor;
    static std::array<QCursor, lamina::kPunteros.size()> listos;
    static std::array<bool, lamina::kPunteros.size()> leidos{};
    const std::string_view nombre = NombrePuntero(puntero);
    for (std::size_t i = 0; i < lamina::kPunteros.size(); ++i) {
        if (lamina::kPunteros[i].nombre != nombre)
            continue;
        if (!leidos[i])
            listos[i] = Dibujado(lamina::kPunteros[i]);
        leidos[i] = true;
        return listos[i];
    }
    return Qt::ArrowCursor;
}
