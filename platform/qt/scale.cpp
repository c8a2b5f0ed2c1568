#include "platform/qt/scale.h"

#include <cmath>

double FactorDeMesa() {
    return 1;
}

QRect EnVentana(const Rectangulo& donde) {
    const auto borde = [](int v) { return static_cast<int>(std::lround(v * FactorDeMesa())); };
    return QRect(QPoint(borde(donde.x), borde(donde.y)),
                 QPoint(borde(donde.x + donde.ancho) - 1, borde(donde.y + donde.alto) - 1));
}

QPoint EnMesa(const QPointF& punto) {
    const auto pixel = [](double v) { return static_cast<int>(std::floor(v / FactorDeMesa())); };
    return {pixel(punto.x()), pixel(punto.y())};
}
