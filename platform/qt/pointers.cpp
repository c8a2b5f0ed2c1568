#include "platform/qt/pointers.h"

#include <QGuiApplication>
#include <QPixmap>
#include <array>
#include <map>
#include <utility>

#include "platform/qt/drawings.h"
#include "platform/qt/scale.h"
#include "table/sheet_layout.h"

namespace {

const char* NombrePuntero(Puntero puntero) {
    constexpr std::array kNombres{"",        "ManoIndice",  "ManoVerde", "ManoRoja", "Ordenar",
                                  "Cambiar", "ManoCerrada", "Voltear",   "Abrirse"};
    const auto cual = static_cast<std::size_t>(puntero);
    return cual < kNombres.size() ? kNombres[cual] : "";
}

// As much larger as the table, and its point with it.
QCursor Dibujado(const lamina::Puntero& puntero, double ratio) {
    const QString archivo =
        QString::fromUtf8(puntero.archivo.data(), static_cast<qsizetype>(puntero.archivo.size()));
    const double factor = FactorDeMesa();
    const int lado = qRound(lamina::kLadoPuntero * factor * ratio);
    QPixmap dibujo = QPixmap::fromImage(Dibujo(QStringLiteral("cursors/") + archivo, {lado, lado}));
    dibujo.setDevicePixelRatio(ratio);
    return QCursor(dibujo, qRound(puntero.puntaX * factor), qRound(puntero.puntaY * factor));
}

} // namespace

QCursor CursorDe(Puntero puntero) {
    if (puntero == Puntero::RelojArena)
        return Qt::WaitCursor;
    if (puntero == Puntero::Prohibido)
        return Qt::ForbiddenCursor;
    const auto dibujo =
        std::ranges::find(lamina::kPunteros, NombrePuntero(puntero), &lamina::Puntero::nombre);
    if (dibujo == lamina::kPunteros.end())
        return Qt::ArrowCursor;
    static std::map<Puntero, QCursor> listos;
    static std::pair<double, double> para{0, 0}; // the ratio and the factor that they are drawn for
    const std::pair ahora{qApp->devicePixelRatio(), FactorDeMesa()};
    if (std::exchange(para, ahora) != ahora)
        listos.clear();
    const auto listo = listos.find(puntero);
    return listo != listos.end()
               ? listo->second
               : listos.emplace(puntero, Dibujado(*dibujo, ahora.first)).first->second;
}
