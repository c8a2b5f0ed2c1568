#include "platform/qt/card_images.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QtEndian>
#include <cmath>
#include <cstdint>

#include "core/game_state.h"
#include "platform/platform.h"
#include "platform/qt/drawings.h"
#include "table/sheet_layout.h"

namespace {

constexpr int kFilas = 4;
constexpr Integer kSegundoComodin = 92;
constexpr double kRadioMiniCarta = 3;
constexpr QColor kCantoMiniCarta(70, 58, 44);
// Behind a card's round corners: the colour of its edge, which is all that is left of it there.
constexpr QColor kCantoCarta(0x8D, 0x80, 0x68);
const QString kDibujoDorso = QStringLiteral("cards/dorso"),
              kDibujoComodin1 = QStringLiteral("cards/comodin1"),
              kDibujoComodin2 = QStringLiteral("cards/comodin2");

[[noreturn]] void FallaBaraja(const QString& ruta, const QString& motivo) {
    throw FalloGrave(QStringLiteral("No se puede usar la imagen de la baraja «%1»: %2.")
                         .arg(ruta, motivo)
                         .toStdString());
}

void CompruebaTamano(const QString& ruta, const QSize& tamano, int columnas) {
    const int k = tamano.width() / (columnas * kAnchoCarta);
    const QSize justo(k * columnas * kAnchoCarta, k * kFilas * kAltoCarta);
    if (k >= 1 && tamano == justo)
        return;
    FallaBaraja(ruta, QStringLiteral("mide %1x%2 y tiene que medir %3x%4 (%5 filas de %6 cartas de "
                                     "%7x%8) o un múltiplo entero de ese tamaño")
                          .arg(tamano.width())
                          .arg(tamano.height())
                          .arg(columnas * kAnchoCarta)
                          .arg(kFilas * kAltoCarta)
                          .arg(kFilas)
                          .arg(columnas)
                          .arg(kAnchoCarta)
                          .arg(kAltoCarta));
}

// A file shorter than its own head says: the reader would fill the rest with nothing.
bool EstaCortada(const QString& ruta) {
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly))
        return false;
    const QByteArray cabeza = fichero.read(6);
    return cabeza.size() == 6 && cabeza.startsWith("BM") &&
           qFromLittleEndian<quint32>(cabeza.constData() + 2) > fichero.size();
}

QImage LeeBaraja(const QString& ruta, int columnas) {
    if (!QFileInfo::exists(ruta))
        FallaBaraja(ruta, QStringLiteral("no existe el fichero"));
    QImageReader lector(ruta);
    lector.setDecideFormatFromContent(true);
    // The size stands in the file's head: a picture of the wrong size is not read any further.
    if (lector.size().isValid())
        CompruebaTamano(ruta, lector.size(), columnas);
    QImage imagen = lector.read();
    if (imagen.isNull())
        FallaBaraja(ruta, QStringLiteral("no se puede leer como imagen"));
    if (EstaCortada(ruta))
        FallaBaraja(ruta, QStringLiteral("el fichero está incompleto"));
    CompruebaTamano(ruta, imagen.size(), columnas);
    return imagen;
}

// White where a card is, clear in its round corners.
QImage Molde(const QSize& tamano, double radio) {
    QImage molde(tamano, QImage::Format_ARGB32_Premultiplied);
    molde.fill(Qt::transparent);
    QPainter p(&molde);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(QPointF(0, 0), QSizeF(tamano)), radio, radio);
    return molde;
}

// Scales a picture of cards to cells of the given size and rounds each one's corners.
QImage Celdas(const QImage& fuente, int columnas, int filas, const QSize& celda, double ratio) {
    const QImage justa = fuente.scaled(celda.width() * columnas, celda.height() * filas,
                                       Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QImage lista = justa.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage molde = Molde(celda, lamina::kRadioEsquinaCarta * ratio);
    QPainter p(&lista);
    p.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    for (int fila = 0; fila < filas; ++fila) {
        for (int columna = 0; columna < columnas; ++columna) {
            const QRect sitio(QPoint(columna * celda.width(), fila * celda.height()), celda);
            p.drawImage(sitio.topLeft(), molde);
        }
    }
    p.end();
    return lista;
}

// The shade of one thread, -4 to 4: the same at every start, and without a pattern that the eye finds.
int Grano(int x, int y) {
    std::uint32_t n =
        static_cast<std::uint32_t>(x) * 0x9E3779B1U + static_cast<std::uint32_t>(y) * 0x85EBCA77U;
    n = (n ^ (n >> 15)) * 0x2C1B3C6DU;
    n = (n ^ (n >> 12)) * 0x297A2D39U;
    return static_cast<int>((n ^ (n >> 15)) % 9U) - 4;
}

// Card table felt: the table's green with a grain so fine that it only takes the flatness away.
QImage HazFieltro() {
    constexpr int kLado = 256;
    QImage felpa(kLado, kLado, QImage::Format_RGB32);
    for (int y = 0; y < kLado; ++y) {
        auto* linea = reinterpret_cast<QRgb*>(felpa.scanLine(y));
        for (int x = 0; x < kLado; ++x) {
            const int luz = Grano(x, y);
            linea[x] = qRgb(std::max(0, luz), 128 + luz, std::max(0, luz));
        }
    }
    return felpa;
}

} // namespace

Imagenes::Imagenes(double ratio) : ratio_(ratio), fieltro_(HazFieltro()) {}

void Imagenes::CambiaRatio(double ratio) {
    ratio_ = ratio;
    pintadas_.clear();
    if (baraja_.isNull())
        return;
    try {
        CargaBaraja(ruta_, columnas_);
    } catch (const FalloGrave&) {
        // The file has gone since the start: the cards in hand are stretched.
        const QSize celda = TamanoCarta();
        baraja_ = baraja_.scaled(celda.width() * columnas_, celda.height() * kFilas,
                                 Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
}

void Imagenes::CargaBaraja(const QString& ruta, int columnas) {
    baraja_ = EsBarajaDelPrograma(ruta, columnas)
                  ? QImage()
                  : Celdas(LeeBaraja(ruta, columnas), columnas, kFilas, TamanoCarta(), ratio_);
    if (columnas != columnas_)
        pintadas_.clear();
    ruta_ = ruta;
    columnas_ = columnas;
}

int Imagenes::Px(int v) const {
    return static_cast<int>(std::floor(v * ratio_ + 0.5));
}

QRect Imagenes::Px(const Rectangulo& donde) const {
    const QPoint arriba(Px(donde.x), Px(donde.y));
    return {arriba, QPoint(Px(donde.x + donde.ancho) - 1, Px(donde.y + donde.alto) - 1)};
}

QSize Imagenes::TamanoCarta() const {
    return {static_cast<int>(kAnchoCarta * ratio_), static_cast<int>(kAltoCarta * ratio_)};
}

QImage Imagenes::Pintada(const QString& dibujo) const {
    QImage& lista = pintadas_[dibujo];
    if (lista.isNull())
        lista = Celdas(Dibujo(dibujo, TamanoCarta(), kCantoCarta), 1, 1, TamanoCarta(), ratio_);
    return lista;
}

QImage Imagenes::DeLaBaraja(int palo, int valor) const {
    if (palo < 1 || palo > kFilas || valor < 1 || valor > columnas_)
        return {};
    if (baraja_.isNull())
        return Pintada(DibujoDeCarta(columnas_, palo, valor));
    const QSize celda = TamanoCarta();
    return baraja_.copy(
        QRect(QPoint((valor - 1) * celda.width(), (palo - 1) * celda.height()), celda));
}

QImage Imagenes::Derecha(const ImagenCarta& carta) const {
    if (carta.cara != kDescubierta)
        return Pintada(kDibujoDorso);
    if (carta.palo == kComodin)
        return Pintada(carta.valor == kSegundoComodin ? kDibujoComodin2 : kDibujoComodin1);
    return DeLaBaraja(carta.palo, carta.valor);
}

// The back lies over one half of the face, with a rim where it ends. Upside down or turned to the left the upper
// half is covered: the corner that a hand leaves to see is then the lower one.
QImage Imagenes::MedioTapada(const QImage& cara, bool la_de_arriba) const {
    QImage tapada = cara;
    const int mitad = cara.height() / 2;
    QPainter p(&tapada);
    p.setClipRect(0, la_de_arriba ? 0 : mitad, cara.width(), cara.height() - mitad);
    p.drawImage(0, 0, Pintada(kDibujoDorso));
    p.fillRect(QRectF(0, mitad, cara.width(), ratio_), kCantoMiniCarta);
    return tapada;
}

QImage Imagenes::Carta(const ImagenCarta& carta) const {
    const bool a_medias = carta.tapada && carta.cara == kDescubierta;
    const QImage entera = Derecha(carta);
    const QImage derecha =
        a_medias && !entera.isNull() ? MedioTapada(entera, carta.orientacion > 2) : entera;
    const int cuartos = (carta.orientacion - 1) % 4;
    return derecha.isNull() || cuartos == 0
               ? derecha
               : derecha.transformed(QTransform().rotate(90.0 * cuartos));
}

QImage Imagenes::MiniCarta(const ImagenCarta& carta, const QSize& tamano) const {
    const QImage entera = Derecha(carta);
    if (entera.isNull())
        return {};
    QImage esquina = entera.copy(QRect({0, 0}, tamano.boundedTo(entera.size())));
    const double grueso = ratio_;
    const double radio = kRadioMiniCarta * ratio_;
    QPainter p(&esquina);
    p.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    p.drawImage(0, 0, Molde(esquina.size(), radio));
    p.setCompositionMode(QPainter::CompositionMode_SourceOver);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(kCantoMiniCarta, grueso));
    const double medio = grueso / 2;
    p.drawRoundedRect(QRectF(esquina.rect()).adjusted(medio, medio, -medio, -medio), radio, radio);
    return esquina;
}
