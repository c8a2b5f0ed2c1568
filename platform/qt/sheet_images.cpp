#include "platform/qt/sheet_images.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>
#include <tuple>

#include "platform/qt/drawings.h"

namespace {

// What is kept of painted pieces: a whole sheet at a high ratio. A window that is drawn larger and larger starts anew.
constexpr qsizetype kTope = qsizetype{12} * 1024 * 1024;

std::ptrdiff_t NumeroDe(const lamina::Recorte& recorte) {
    const auto pieza = std::ranges::find(lamina::kPiezas, recorte, &lamina::Pieza::sitio);
    if (pieza == lamina::kPiezas.end())
        throw std::logic_error("recorte que no es una pieza de la lámina");
    return pieza - lamina::kPiezas.begin();
}

QImage Pinta(std::ptrdiff_t numero, const QSize& pixeles) {
    const std::string_view archivo = lamina::kPiezas[static_cast<std::size_t>(numero)].archivo;
    return Dibujo(QStringLiteral("sheet/") +
                      QString::fromUtf8(archivo.data(), static_cast<qsizetype>(archivo.size())),
                  pixeles);
}

} // namespace

const QImage& PiezaDe(const lamina::Recorte& recorte, const QSize& pixeles) {
    static std::map<std::tuple<std::ptrdiff_t, int, int>, QImage> pintadas;
    static qsizetype ocupan = 0;
    const std::tuple clave(NumeroDe(recorte), pixeles.width(), pixeles.height());
    if (const auto lista = pintadas.find(clave); lista != pintadas.end())
        return lista->second;
    const QImage pieza = Pinta(std::get<0>(clave), pixeles);
    if (ocupan + pieza.sizeInBytes() > kTope) {
        pintadas.clear();
        ocupan = 0;
    }
    ocupan += pieza.sizeInBytes();
    return pintadas.emplace(clave, pieza).first->second;
}

const QImage& PiezaDe(const lamina::Recorte& recorte, double ratio) {
    return PiezaDe(recorte, QSize(static_cast<int>(std::ceil(recorte.ancho * ratio)),
                                  static_cast<int>(std::ceil(recorte.alto * ratio))));
}
