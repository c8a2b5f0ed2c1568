#pragma once
// What is written in a window and how far it stands out from its ground. Where the words are is what painting them
// tells; the colours are those of a picture of the window.

#include <QHash>
#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QRegularExpression>
#include <QWidget>
#include <algorithm>
#include <vector>

#include "tests/gui/contrast.h"

namespace prueba {

struct Escrito {
    QString texto;
    QRect donde;
    QColor letra;
};

// Keeps the words that are painted, nothing else.
class OidoDePintor : public QPaintEngine {
public:
    OidoDePintor() : QPaintEngine(AllFeatures) {}
    std::vector<Escrito> escritos;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState& pintor) override {
        a_pixeles_ = pintor.transform();
        if (pintor.state().testFlag(DirtyPen))
            letra_ = pintor.pen().color();
    }
    void drawTextItem(const QPointF& base, const QTextItem& letras) override {
        const QRectF linea(base.x(), base.y() - letras.ascent(), letras.width(),
                           letras.ascent() + letras.descent());
        if (letras.text().contains(kLetras))
            escritos.push_back({letras.text(), a_pixeles_.mapRect(linea).toAlignedRect(), letra_});
    }
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawPolygon(const QPoint*, int, PolygonDrawMode) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {
    }

private:
    // A row of dashes is a line: of a thin one every pixel shows a part only.
    static inline const QRegularExpression kLetras{QStringLiteral("[\\p{L}\\p{N}\\p{S}]")};
    QTransform a_pixeles_;
    QColor letra_;
};

// What a window is painted on to be listened to.
class PapelDeOido : public QPaintDevice {
public:
    explicit PapelDeOido(const QWidget& ventana) : ventana_(ventana) {}
    QPaintEngine* paintEngine() const override { return &oido_; }
    std::vector<Escrito> Escritos() const { return oido_.escritos; }

protected:
    int metric(PaintDeviceMetric cual) const override {
        switch (cual) {
        case PdmWidth:
            return ventana_.width();
        case PdmHeight:
            return ventana_.height();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return ventana_.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return ventana_.logicalDpiY();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return qRound(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    const QWidget& ventana_;
    mutable OidoDePintor oido_;
};

// The ground is what most of the place shows, less the letters' own colour: on a shaded ground there may be more of that
// than of any other. Against it the farthest of what is more letter than ground; 1 where no letter is to be seen.
inline double ContrasteEn(const QImage& foto, const QRect& donde, const QColor& letra) {
    constexpr int kLaLetraMisma = 60;
    QHash<QRgb, int> colores;
    for (int y = donde.top(); y <= donde.bottom(); ++y) {
        for (int x = donde.left(); x <= donde.right(); ++x)
            ++colores[foto.pixel(x, y)];
    }
    QColor fondo = letra;
    int mayor = 0;
    for (const auto& [color, puntos] : colores.asKeyValueRange()) {
        if (puntos <= mayor || Distancia(color, letra) < kLaLetraMisma)
            continue;
        mayor = puntos;
        fondo = color;
    }
    double contraste = 1;
    for (const QRgb color : colores.keys()) {
        if (EsLetra(fondo, color, letra))
            contraste = std::max(contraste, Contraste(color, fondo));
    }
    return contraste;
}

struct Leido {
    QString texto;
    double contraste;
};

// All that is written in the window where it is enabled; of a line that is cut off no more than what is seen, if that
// is the greater part.
inline std::vector<Leido> LoEscritoEn(QWidget& ventana) {
    const QImage foto = ventana.grab().toImage().convertToFormat(QImage::Format_RGB32);
    PapelDeOido papel(ventana);
    ventana.render(&papel);
    std::vector<Leido> leidos;
    for (const Escrito& escrito : papel.Escritos()) {
        QWidget* en = ventana.childAt(escrito.donde.center());
        const QRect suyo =
            en == nullptr ? foto.rect() : QRect(en->mapTo(&ventana, QPoint(0, 0)), en->size());
        const QRect visto = escrito.donde & suyo & foto.rect();
        const bool se_puede = en == nullptr || en->isEnabled();
        if (se_puede && 2 * visto.height() > escrito.donde.height())
            leidos.push_back({escrito.texto, ContrasteEn(foto, visto, escrito.letra)});
    }
    return leidos;
}

// Something is written, and all of it can be read; what cannot is told.
inline bool TodoSeLee(QWidget& ventana) {
    const std::vector<Leido> leidos = LoEscritoEn(ventana);
    bool bien = !leidos.empty();
    for (const Leido& leido : leidos) {
        if (leido.contraste >= kContrasteMinimo)
            continue;
        qWarning("%s «%s»: %.2f", qPrintable(ventana.objectName()), qPrintable(leido.texto),
                 leido.contraste);
        bien = false;
    }
    return bien;
}

} // namespace prueba
