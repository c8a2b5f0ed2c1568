// A card in flight at several pixel ratios: the window shows the retained picture to the pixel, nothing but
// the card's box changes while it flies, and nothing of it stays behind.

#include <QApplication>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

#include "platform/qt/platform_qt.h"
#include "platform/qt/scale.h"
#include "tests/gui/deck_images.h"

namespace {

constexpr const char* kRatios[] = {"1", "1.25", "1.5", "1.75", "2"};

bool Igual(QRgb a, QRgb b) {
    return (a & 0xFFFFFF) == (b & 0xFFFFFF);
}

} // namespace

class PruebaVuelo : public QObject {
    Q_OBJECT

    QTemporaryDir carpeta_;
    std::unique_ptr<PlataformaQt> mesa_;

    // What stands on the screen: the window's own buffer, not a fresh rendering of it. This desktop hands
    // out as many device pixels as the window has pixels: its upper left part.
    QImage EnPantalla() {
        QImage todo = mesa_->Ventana().screen()->grabWindow(mesa_->Ventana().winId()).toImage();
        todo.setDevicePixelRatio(1);
        return todo;
    }
    // Device pixels to a pixel of the window, and to one of the table.
    double RatioDeVentana() const { return mesa_->Ventana().devicePixelRatioF(); }
    double Ratio() const { return RatioDeVentana() * FactorDeMesa(); }
    QRect EnPixeles(int x, int y, int ancho, int alto) const {
        const double r = Ratio();
        return QRect(QPoint(qRound(x * r), qRound(y * r)),
                     QPoint(qRound((x + ancho) * r) - 1, qRound((y + alto) * r) - 1));
    }
    static QRect Diferencia(const QImage& a, const QImage& b) {
        QRect caja;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                if (!Igual(a.pixel(x, y), b.pixel(x, y)))
                    caja |= QRect(x, y, 1, 1);
            }
        }
        return caja;
    }

private Q_SLOTS:
    void init() {
        mesa_ = std::make_unique<PlataformaQt>(carpeta_.path());
        const QString baraja = carpeta_.filePath("baraja.bmp");
        QVERIFY(BarajaDeColores(12).save(baraja));
        mesa_->CargaBaraja(baraja.toStdString(), 12);
        mesa_->Ventana().resize(820, 620);
        mesa_->Ventana().show();
        QVERIFY(QTest::qWaitForWindowExposed(&mesa_->Ventana()));
        Lienzo& panio = mesa_->LienzoDe(Control::Mesa, 0);
        panio.Carta(60, 40, {2, 5, 2, 1});
        panio.Texto(180, 100, "Jugador", {.alto = 15}, color::kAmarillo, Alineacion::Izquierda);
        mesa_->Coloca(Control::Pic_Tantos, 1, {161, 107, 66, 27});
        mesa_->LienzoDe(Control::Pic_Tantos, 1).Caja({0, 0, 66, 27}, color::kAzulOscuro);
        mesa_->Muestra(Control::Pic_Tantos, 1, true);
        mesa_->Repinta();
        mesa_->Bombea();
    }

    void cleanup() { mesa_.reset(); }

    void LaVentanaMuestraElCuadro() {
        const QImage pantalla = EnPantalla();
        mesa_->Muestra(Control::Pic_Tantos, 1, false);
        mesa_->Repinta();
        const QImage sin_placa = EnPantalla();
        QVERIFY(Diferencia(pantalla, sin_placa).isValid());
        const QImage& cuadro =
            dynamic_cast<LienzoRetenido&>(mesa_->LienzoDe(Control::Mesa, 0)).Cuadro();
        // A table pixel that shows only in part belongs to the picture.
        const QSize ventana = (QSizeF(820, 620) * RatioDeVentana()).toSize();
        const QSize sobra = cuadro.size() - ventana;
        const int parte = static_cast<int>(std::ceil(Ratio()));
        QVERIFY(sobra.width() >= 0 && sobra.width() < parte);
        QVERIFY(sobra.height() >= 0 && sobra.height() < parte);
        QCOMPARE(Diferencia(sin_placa, cuadro), QRect());
    }

    void ElVueloNoDejaRastro_data() {
        QTest::addColumn<int>("orientacion");
        QTest::newRow("de pie") << 1;
        QTest::newRow("tumbada") << 2;
    }
    void ElVueloNoDejaRastro() {
        QFETCH(int, orientacion);
        const bool tumbada = orientacion == 2;
        const int ancho = tumbada ? kAltoCarta : kAnchoCarta;
        const int alto = tumbada ? kAnchoCarta : kAltoCarta;
        const QImage antes = EnPantalla();
        for (int paso = 0; paso < 14; ++paso) {
            const int x = 11 + 13 * paso, y = 23 + 9 * paso;
            mesa_->Vuela(x, y, {1, 1, 2, static_cast<Integer>(orientacion)});
            mesa_->Repinta();
            const QRect cambiado = Diferencia(EnPantalla(), antes);
            QVERIFY(cambiado.isValid());
            QVERIFY2(EnPixeles(x, y, ancho, alto).contains(cambiado),
                     qPrintable(QString::number(paso)));
        }
        mesa_->Posa();
        mesa_->Repinta();
        QCOMPARE(Diferencia(EnPantalla(), antes), QRect());
    }

    void LaCartaVuelaPorEncimaDeLasPlacas() {
        mesa_->Vuela(155, 50, {1, 1, 2, 1});
        mesa_->Repinta();
        const QPoint centro = EnPixeles(161, 107, 66, 27).center();
        QCOMPARE(QColor(EnPantalla().pixel(centro)), ColorDeCarta(1, 1));
    }

    // The end of a flight: the card comes down on the felt in the very pixels where it hung.
    void LaCartaPosadaNoSalta() {
        mesa_->Vuela(231, 151, {3, 3, 2, 1});
        mesa_->Repinta();
        const QImage en_vuelo = EnPantalla();
        mesa_->Posa();
        mesa_->LienzoDe(Control::Mesa, 0).Carta(231, 151, {3, 3, 2, 1});
        mesa_->Repinta();
        QCOMPARE(Diferencia(EnPantalla(), en_vuelo), QRect());
    }

    void UnaCartaBorradaDevuelveElFieltro() {
        const QImage antes = EnPantalla();
        Lienzo& panio = mesa_->LienzoDe(Control::Mesa, 0);
        panio.Carta(243, 141, {4, 12, 2, 4});
        mesa_->Repinta();
        panio.Fieltro({243, 141, kAltoCarta, kAnchoCarta});
        mesa_->Repinta();
        QCOMPARE(Diferencia(EnPantalla(), antes), QRect());
    }
};

// The pixel ratio of a screen is settled before the application stands: each has a run of its own.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        QApplication programa(argc, argv);
        PruebaVuelo prueba;
        return QTest::qExec(&prueba, argc, argv);
    }
    int fallos = 0;
    for (const char* ratio : kRatios) {
        qputenv("QT_SCALE_FACTOR", ratio);
        std::printf("ratio %s\n", ratio);
        std::fflush(stdout);
        QStringList palabras;
        for (int i = 1; i < argc; ++i)
            palabras << QString::fromLocal8Bit(argv[i]);
        fallos += QProcess::execute(QString::fromLocal8Bit(argv[0]), palabras) == 0 ? 0 : 1;
    }
    return fallos;
}

#include "flight_test.moc"
