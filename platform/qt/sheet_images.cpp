#include "platform/qt/sheet_images.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

namespace {

struct Hoja {
    double ratio = 0;
    std::array<QImage, lamina::kPiezas.size()> piezas;
};

QImage Corta(const QImage& hoja, const lamina::Recorte& sitio, double ratio) {
    constexpr int k = lamina::kEscala;
    const QImage trozo = hoja.copy(sitio.x * k, sitio.y * k, sitio.ancho * k, sitio.alto * k);
    const QSize tamano(static_cast<int>(std::ceil(sitio.ancho * ratio)),
                       static_cast<int>(std::ceil(sitio.alto * ratio)));
    return trozo.scaled(tamano, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

Hoja LeeHoja(double ratio) {
    const QImage entera = QImage(QStringLiteral(":/arte/laminas.png"))
                              .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    Hoja hoja{.ratio = ratio, .piezas = {}};
    for (std::size_t i = 0; i < hoja.piezas.size(); ++i)
        hoja.piezas[i] = Corta(entera, lamina::kPiezas[i].sitio, ratio);
    return hoja;
}

const Hoja& HojaPara(double ratio) {
    static Hoja hoja;
    if (hoja.ratio != ratio)
        hoja = LeeHoja(ratio);
    return hoja;
}

} // namespace

void PreparaLamina(double ratio) {
    HojaPara(ratio);
}

const QImage& PiezaDe(const lamina::Recorte& recorte, double ratio) {
    const Hoja& hoja = HojaPara(ratio);
    const auto pieza = std::ranges::find(lamina::kPiezas, recorte, &lamina::Pieza::sitio);
    if (pieza == lamina::kPiezas.end())
        throw std::logic_error("recorte que no es una pieza de la lámina");
    return hoja.piezas[static_cast<std::size_t>(pieza - lamina::kPiezas.begin())];
}
