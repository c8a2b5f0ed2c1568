#include "platform/qt/canvas_qt.h"

#include <QFontMetricsF>
#include <algorithm>
#include <utility>

#include "platform/qt/sheet_images.h"

namespace {

QString Qt8(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

// The light falls from above: the felt is darker the lower it lies, down to a depth from which on it stays as it is. A
// row has one shade along all of its length and at any height of the table, so that a part that is cleared is the same
// to the pixel as when all of it is painted, and what a new size leaves of the old picture fits to the rest.
void PintaFieltro(QPainter& p, const QRect& sitio, const Imagenes& imagenes) {
    constexpr int kFondoDeLaLuz = 960, kSombraAlFondo = 72; // table pixels, and of 255
    QLinearGradient sombra(0, 0, 0, kFondoDeLaLuz * imagenes.Ratio());
    sombra.setColorAt(0, QColor(0, 0, 0, 0));
    sombra.setColorAt(1, QColor(0, 0, 0, kSombraAlFondo));
    p.fillRect(sitio, QBrush(imagenes.Fieltro()));
    p.fillRect(sitio, sombra);
}

} // namespace

QFont LetraDe(const Fuente& fuente) {
    QFont letra;
    letra.setFamilies(fuente.fija ? QStringList{"DejaVu Sans Mono", "monospace"}
                                  : QStringList{"DejaVu Sans", "sans-serif"});
    letra.setStyleHint(fuente.fija ? QFont::Monospace : QFont::SansSerif);
    letra.setStyleStrategy(QFont::NoSubpixelAntialias);
    letra.setPixelSize(std::max(1, fuente.alto));
    letra.setBold(fuente.negrita);
    return letra;
}

Fondo FondoDe(Control control) {
    const bool propio = control == Control::Mesa || control == Control::Pic_Botonera;
    return propio ? Fondo::Fieltro : Fondo::Claro;
}

QColor ColorQt(Color color) {
    return QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

void LienzoQt::Relleno(const QRect& donde, const QColor& color) {
    Pintor().fillRect(donde, color);
    Tocado(donde);
}

void LienzoQt::Imagen(const QPoint& donde, const QImage& imagen) {
    if (imagen.isNull())
        return;
    Pintor().drawImage(donde, imagen);
    Tocado({donde, imagen.size()});
}

void LienzoQt::Fieltro(const Rectangulo& donde) {
    const QRect sitio = imagenes_.Px(donde);
    QPainter& p = Pintor();
    switch (fondo_) {
    case Fondo::Fieltro:
        PintaFieltro(p, sitio, imagenes_);
        break;
    case Fondo::Claro:
        p.setCompositionMode(QPainter::CompositionMode_Source);
        p.fillRect(sitio, Qt::transparent);
        p.setCompositionMode(QPainter::CompositionMode_SourceOver);
        break;
    case Fondo::Papel:
        p.fillRect(sitio, Qt::white);
        break;
    }
    Tocado(sitio);
}

void LienzoQt::Caja(const Rectangulo& donde, Color color) {
    Relleno(imagenes_.Px(donde), ColorQt(color));
}

void LienzoQt::Borde(const Rectangulo& d, Color color, int grueso) {
    const int g = std::min({grueso, d.ancho, d.alto});
    if (g < 1)
        return;
    Caja({d.x, d.y, d.ancho, g}, color);
    Caja({d.x, d.y + d.alto - g, d.ancho, g}, color);
    Caja({d.x, d.y, g, d.alto}, color);
    Caja({d.x + d.ancho - g, d.y, g, d.alto}, color);
}

void LienzoQt::Linea(int x1, int y1, int x2, int y2, Color color, int grueso) {
    const int g = std::max(1, grueso);
    const int fuera = (g - 1) / 2;
    const Rectangulo caja{std::min(x1, x2) - fuera, std::min(y1, y2) - fuera, std::abs(x2 - x1) + g,
                          std::abs(y2 - y1) + g};
    if (x1 == x2 || y1 == y2)
        return Caja(caja, color);
    const double r = imagenes_.Ratio();
    QPainter& p = Pintor();
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setClipRect(imagenes_.Px(caja), Qt::IntersectClip);
    p.setPen(QPen(ColorQt(color), g * r, Qt::SolidLine, Qt::FlatCap));
    p.drawLine(QPointF((x1 + 0.5) * r, (y1 + 0.5) * r), QPointF((x2 + 0.5) * r, (y2 + 0.5) * r));
    p.restore();
    Tocado(imagenes_.Px(caja));
}

void LienzoQt::Texto(int x, int y, std::string_view texto, const Fuente& fuente, Color color,
                     Alineacion alineacion) {
    const QString letras = Qt8(texto);
    const QFont letra = LetraDe(fuente);
    const QFontMetricsF medida(letra);
    const double ancho = medida.horizontalAdvance(letras);
    const double estrecho = fuente.tope > 0 && ancho > fuente.tope ? fuente.tope / ancho : 1;
    const QPointF base(BordeIzquierdo<double>(x, ancho * estrecho, alineacion),
                       y + medida.ascent());
    const double r = imagenes_.Ratio();
    const QTransform sitio = QTransform::fromScale(estrecho, 1) *
                             QTransform::fromTranslate(base.x(), base.y()) *
                             QTransform::fromScale(r, r);

    QPainter& p = Pintor();
    p.save();
    p.setTransform(sitio, true);
    p.setFont(letra);
    p.setPen(ColorQt(color));
    p.drawText(QPointF(0, 0), letras);
    p.restore();

    const QRectF tinta = medida.boundingRect(letras).adjusted(-1, -1, 1, 1);
    Tocado(sitio.mapRect(tinta).toAlignedRect());
}

void LienzoQt::Carta(int x, int y, const ImagenCarta& carta) {
    Imagen({imagenes_.Px(x), imagenes_.Px(y)}, imagenes_.Carta(carta));
}

void LienzoQt::MiniCarta(int x, int y, int ancho, int alto, const ImagenCarta& carta) {
    const QRect sitio = imagenes_.Px(Rectangulo{x, y, ancho, alto});
    if (!sitio.isEmpty())
        Imagen(sitio.topLeft(), imagenes_.MiniCarta(carta, sitio.size()));
}

void LienzoQt::Lamina(int x, int y, const lamina::Recorte& recorte) {
    const QRect sitio = imagenes_.Px(Rectangulo{x, y, recorte.ancho, recorte.alto});
    Pintor().drawImage(sitio.topLeft(), PiezaDe(recorte, sitio.size()));
    Tocado(sitio);
}

void LienzoQt::Velo(const Rectangulo& donde) {
    constexpr double kTapa = 0.74;
    QPainter& p = Pintor();
    p.setOpacity(kTapa);
    Fieltro(donde);
    p.setOpacity(1);
}

QPainter& LienzoRetenido::Pintor() {
    if (!pintor_) {
        if (cuadro_.isNull())
            cuadro_ = CuadroVacio();
        pintor_ = std::make_unique<QPainter>(&cuadro_);
    }
    return *pintor_;
}

void LienzoRetenido::Tocado(const QRect& donde) {
    sucio_ += donde & cuadro_.rect();
}

const QImage& LienzoRetenido::Cuadro() {
    pintor_.reset();
    if (cuadro_.isNull())
        cuadro_ = CuadroVacio();
    return cuadro_;
}

QRegion LienzoRetenido::TomaSucio() {
    return std::exchange(sucio_, {});
}

QImage LienzoRetenido::CuadroVacio() {
    const QSize tamano =
        imagenes_.Px(Rectangulo{0, 0, tamano_.width(), tamano_.height()}).size().expandedTo({1, 1});
    QImage cuadro(tamano, fondo_ == Fondo::Claro ? QImage::Format_ARGB32_Premultiplied
                                                 : QImage::Format_RGB32);
    cuadro.fill(fondo_ == Fondo::Claro ? Qt::transparent : Qt::white);
    if (fondo_ == Fondo::Fieltro) {
        QPainter p(&cuadro);
        PintaFieltro(p, cuadro.rect(), imagenes_);
    }
    return cuadro;
}

void LienzoRetenido::PonTamano(const QSize& tamano, bool conserva) {
    const QImage antes = conserva ? Cuadro() : QImage();
    pintor_.reset();
    tamano_ = tamano;
    cuadro_ = CuadroVacio();
    if (!antes.isNull())
        QPainter(&cuadro_).drawImage(0, 0, antes);
    sucio_ = cuadro_.rect();
}

void LienzoRetenido::AdaptaRatio() {
    const QImage antes = Cuadro();
    cuadro_ = CuadroVacio();
    QPainter p(&cuadro_);
    p.setCompositionMode(QPainter::CompositionMode_Source);
    p.drawImage(cuadro_.rect(), antes);
    p.end();
    sucio_ = cuadro_.rect();
}
