#include "platform/qt/scale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::array kPasos{1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0};
constexpr QSize kHolgada(1280, 720), kMinima(800, 600); // table pixels

double factor_en_uso = 1;

bool Cabe(const QSize& mesa, double factor, const QSize& ventana) {
    return mesa.width() * factor <= ventana.width() && mesa.height() * factor <= ventana.height();
}

// The largest step up to tope at which so much of the table shows.
double MayorPaso(const QSize& mesa, const QSize& ventana, double tope) {
    double mayor = kPasos.front();
    for (const double paso : kPasos) {
        if (paso <= tope && Cabe(mesa, paso, ventana))
            mayor = paso;
    }
    return mayor;
}

} // namespace

double MenorFactor(double ratio) {
    return 1 / std::max(1.0, ratio);
}

double FactorDeMesa() {
    return factor_en_uso;
}

void PonFactorDeMesa(double factor) {
    factor_en_uso = factor;
}

double FactorPara(const QSize& ventana, double deseo, double ratio) {
    if (!Cabe(kMinima, 1, ventana)) {
        const double justo = std::min(1.0 * ventana.width() / kMinima.width(),
                                      1.0 * ventana.height() / kMinima.height());
        return std::max(justo, MenorFactor(ratio));
    }
    return EsPasoDeFactor(deseo) ? MayorPaso(kMinima, ventana, deseo)
                                 : MayorPaso(kHolgada, ventana, kPasos.back());
}

double PasoDeFactor(double factor, int sentido) {
    if (sentido > 0) {
        const auto siguiente = std::ranges::upper_bound(kPasos, factor);
        return siguiente == kPasos.end() ? factor : *siguiente;
    }
    const auto este = std::ranges::lower_bound(kPasos, factor);
    return este == kPasos.begin() ? factor : *std::prev(este);
}

bool EsPasoDeFactor(double factor) {
    return std::ranges::find(kPasos, factor) != kPasos.end();
}

QSize VentanaMinima(double ratio) {
    const double factor = MenorFactor(ratio);
    return {static_cast<int>(std::ceil(kMinima.width() * factor)),
            static_cast<int>(std::ceil(kMinima.height() * factor))};
}

QSize TamanoEnMesa(const QSize& ventana) {
    // An edge that only the arithmetic has moved is no further pixel.
    constexpr double kPolvo = 1e-6;
    const auto pixeles = [](int v) {
        return static_cast<int>(std::ceil(v / factor_en_uso - kPolvo));
    };
    return {pixeles(ventana.width()), pixeles(ventana.height())};
}

QRect EnVentana(const Rectangulo& donde) {
    const auto borde = [](int v) { return static_cast<int>(std::lround(v * factor_en_uso)); };
    return QRect(QPoint(borde(donde.x), borde(donde.y)),
                 QPoint(borde(donde.x + donde.ancho) - 1, borde(donde.y + donde.alto) - 1));
}

QPoint EnMesa(const QPointF& punto) {
    const auto pixel = [](double v) { return static_cast<int>(std::floor(v / factor_en_uso)); };
    return {pixel(punto.x()), pixel(punto.y())};
}
