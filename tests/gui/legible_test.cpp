// Words can be read: what is printed on the table stands out from its ground by 4.5 to 1 and more, and stays inside
// the button that it is printed on.

#include <QTest>
#include <algorithm>

#include "platform/qt/canvas_qt.h"
#include "platform/qt/sheet_images.h"
#include "platform/qt/suite_paint.h"
#include "table/sheet_layout.h"
#include "tests/gui/contrast.h"

using namespace prueba;

namespace {

// The worst that a letter of the colour meets in a box of the picture.
double Peor(const QImage& cuadro, const QRect& donde, const QColor& letra) {
    double peor = 21;
    for (int y = donde.top(); y <= donde.bottom(); ++y) {
        for (int x = donde.left(); x <= donde.right(); ++x)
            peor = std::min(peor, Contraste(letra, QColor(cuadro.pixel(x, y))));
    }
    return peor;
}

QImage CuadroDe(const lamina::Recorte& recorte) {
    Imagenes imagenes(1);
    LienzoRetenido lienzo(imagenes, Fondo::Fieltro);
    lienzo.PonTamano({recorte.ancho, recorte.alto}, false);
    lienzo.Lamina(0, 0, recorte);
    return lienzo.Cuadro().copy();
}

} // namespace

Q_DECLARE_METATYPE(lamina::Recorte)

class PruebaLegible : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void LosBotones_data() {
        QTest::addColumn<lamina::Recorte>("recorte");
        QTest::addColumn<int>("letra");
        QTest::addColumn<int>("arriba"); // rows that letters reach
        QTest::addColumn<int>("abajo");
        const auto fila = [](const char* nombre, const lamina::Recorte& recorte, Color letra,
                             int arriba, int abajo) {
            QTest::newRow(nombre) << recorte << static_cast<int>(letra) << arriba << abajo;
        };
        fila("verde", lamina::kContinuarArriba, color::kAmarillo, 5, 30);
        fila("verde pulsado", lamina::kContinuarPulsado, color::kAmarillo, 6, 31);
        fila("verde solo", lamina::kContinuarSoloArriba, color::kAmarillo, 5, 30);
        fila("verde solo pulsado", lamina::kContinuarSoloPulsado, color::kAmarillo, 6, 31);
        fila("carta", lamina::kBotonSuperiorArriba, color::kBlanco, 6, 18);
        fila("carta pulsado", lamina::kBotonSuperiorPulsado, color::kBlanco, 6, 18);
        fila("doblar", lamina::kBotonDobSegArriba, color::kBlanco, 6, 18);
        fila("doblar pulsado", lamina::kBotonDobSegPulsado, color::kBlanco, 6, 18);
        fila("más ayuda", lamina::kMasAyudaArriba, color::kBlanco, 5, 15);
    }
    void LosBotones() {
        QFETCH(lamina::Recorte, recorte);
        QFETCH(int, letra);
        QFETCH(int, arriba);
        QFETCH(int, abajo);
        const QRect donde(QPoint(7, arriba), QPoint(recorte.ancho - 8, abajo));
        const double peor = Peor(CuadroDe(recorte), donde, ColorQt(letra));
        QVERIFY2(peor >= kContrasteMinimo, qPrintable(QString::number(peor)));
    }

    void LasLetrasSobreSuFondo_data() {
        QTest::addColumn<QColor>("letra");
        QTest::addColumn<QColor>("fondo");
        const QColor placa = ColorQt(color::kPlaca);
        const QColor marfil = ColorQt(color::kMarfil);
        QTest::newRow("rótulo blanco") << QColor(Qt::white) << placa;
        QTest::newRow("rótulo verde") << ColorQt(color::kVerde) << placa;
        QTest::newRow("rótulo cian") << QColor(Qt::cyan) << placa;
        QTest::newRow("nombre encendido") << ColorQt(color::kAmarillo) << placa;
        QTest::newRow("tanteo") << marfil << placa;
        QTest::newRow("sugerencia") << ColorQt(color::kAzul) << marfil;
        QTest::newRow("menú") << ColorQt(color::kNegro) << marfil;
        QTest::newRow("menú resaltado") << QColor(Qt::white) << ColorQt(color::kAzulOscuro);
        QTest::newRow("mensaje") << estilo::kTinta << estilo::kPapel;
        QTest::newRow("título") << estilo::kTitulo << estilo::kBanda.lighter(125);
    }
    void LasLetrasSobreSuFondo() {
        QFETCH(QColor, letra);
        QFETCH(QColor, fondo);
        const double hay = Contraste(letra, fondo);
        QVERIFY2(hay >= kContrasteMinimo, qPrintable(QString::number(hay)));
    }

    void LosNombresSobreElFieltro() {
        Imagenes imagenes(1);
        const QImage& felpa = imagenes.Fieltro();
        QVERIFY(Peor(felpa, felpa.rect(), Qt::white) >= kContrasteMinimo);
    }

    // A word that is too wide is drawn narrower, no higher, and touches nothing beside its place.
    void UnTextoAnchoSeEstrecha() {
        for (const double ratio : {1.0, 1.5, 2.0}) {
            Imagenes imagenes(ratio);
            LienzoRetenido lienzo(imagenes, Fondo::Papel);
            lienzo.PonTamano({300, 40}, false);
            const QImage limpio = lienzo.Cuadro().copy();
            lienzo.Texto(150, 10, "Maximiliana (3)", {.alto = 12, .negrita = true, .tope = 60},
                         color::kNegro, Alineacion::Centro);
            QRect tinta;
            for (int y = 0; y < limpio.height(); ++y) {
                for (int x = 0; x < limpio.width(); ++x) {
                    if (lienzo.Cuadro().pixel(x, y) != limpio.pixel(x, y))
                        tinta |= QRect(x, y, 1, 1);
                }
            }
            QVERIFY(imagenes.Px(Rectangulo{119, 10, 62, 15}).contains(tinta));
            QVERIFY(tinta.width() > 50 * ratio);
        }
    }
};

QTEST_MAIN(PruebaLegible)
#include "legible_test.moc"
