#pragma once
// How far letters stand out from their ground: the ratio of their light, 1 to 21.

#include <QColor>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace prueba {

constexpr double kContrasteMinimo = 4.5;

inline double Luz(const QColor& c) {
    const auto lineal = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lineal(c.redF()) + 0.7152 * lineal(c.greenF()) + 0.0722 * lineal(c.blueF());
}

inline double Contraste(const QColor& a, const QColor& b) {
    const double mas = std::max(Luz(a), Luz(b));
    const double menos = std::min(Luz(a), Luz(b));
    return (mas + 0.05) / (menos + 0.05);
}

inline int Distancia(const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
           std::abs(a.blue() - b.blue());
}

// A point that shows colour is more letter than ground: what a letter's edge only touches does not decide whether it is
// read.
inline bool EsLetra(const QColor& fondo, const QColor& color, const QColor& letra) {
    return Distancia(color, letra) < Distancia(color, fondo);
}

} // namespace prueba
