// The canvas over QPainter: bare felt comes back to the pixel, nothing leaves its box, and a deck image
// that cannot be used is refused with its name and the reason.

#include <QTemporaryDir>
#include <QTest>

#include "platform/platform.h"
#include "platform/qt/canvas_qt.h"
#include "table/sheet_layout.h"
#include "tests/gui/deck_images.h"

namespace {

constexpr ImagenCarta kAsDeOros{.palo = 1, .valor = 1, .cara = 2, .orientacion = 1};
const QSize kMesa(300, 240);

// The box that holds every pixel in which two pictures differ.
QRect Diferencia(const QImage& a, const QImage& b) {
    QRect caja;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y))
                caja |= QRect(x, y, 1, 1);
        }
    }
    return caja;
}

std::string FalloDe(Imagenes& imagenes, const QString& ruta, int columnas) {
    try {
        imagenes.CargaBaraja(ruta, columnas);
    } catch (const FalloGrave& fallo) {
        return fallo.what();
    }
    return "";
}

} // namespace

class PruebaLienzo : public QObject {
    Q_OBJECT

    QTemporaryDir carpeta_;
    QString Guarda(const QImage& imagen, const char* nombre) {
        QString ruta = carpeta_.filePath(nombre);
        imagen.save(ruta);
        return ruta;
    }
    static void Ratios() {
        QTest::addColumn<double>("ratio");
        for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0})
            QTest::addRow("%g", ratio) << ratio;
    }

private Q_SLOTS:
    void FieltroDevuelveCadaPixel_data() { Ratios(); }
    void FieltroDevuelveCadaPixel() {
        QFETCH(double, ratio);
        Imagenes imagenes(ratio);
        imagenes.CargaBaraja(Guarda(BarajaDeColores(12), "b.bmp"), 12);
        LienzoRetenido mesa(imagenes, Fondo::Fieltro);
        mesa.PonTamano(kMesa, false);
        const QImage limpia = mesa.Cuadro().copy();
        for (int paso = 0; paso < 9; ++paso) {
            const int x = 13 + 7 * paso, y = 11 + 5 * paso;
            for (Integer orientacion = 1; orientacion <= 4; ++orientacion) {
                ImagenCarta carta = kAsDeOros;
                carta.orientacion = orientacion;
                const bool tumbada = orientacion % 2 == 0;
                mesa.Carta(x, y, carta);
                QVERIFY(!Diferencia(mesa.Cuadro(), limpia).isEmpty());
                mesa.Fieltro(
                    {x, y, tumbada ? kAltoCarta : kAnchoCarta, tumbada ? kAnchoCarta : kAltoCarta});
                QCOMPARE(Diferencia(mesa.Cuadro(), limpia), QRect());
            }
        }
    }

    void NadaSaleDeSuCaja_data() { Ratios(); }
    void NadaSaleDeSuCaja() {
        QFETCH(double, ratio);
        Imagenes imagenes(ratio);
        LienzoRetenido mesa(imagenes, Fondo::Fieltro);
        mesa.PonTamano(kMesa, false);
        const QImage limpia = mesa.Cuadro().copy();
        const auto dentro = [&](const Rectangulo& caja) {
            const QRect tocado = Diferencia(mesa.Cuadro(), limpia);
            const bool bien = !tocado.isEmpty() && imagenes.Px(caja).contains(tocado);
            mesa.Fieltro({0, 0, kMesa.width(), kMesa.height()});
            return bien;
        };
        mesa.Caja({31, 17, 9, 5}, color::kRojo);
        QVERIFY(dentro({31, 17, 9, 5}));
        mesa.Borde({31, 17, 40, 25}, color::kRojo, 3);
        QVERIFY(dentro({31, 17, 40, 25}));
        mesa.Linea(20, 30, 61, 77, color::kRojo, 1);
        QVERIFY(dentro({20, 30, 42, 48}));
        mesa.Lamina(43, 21, lamina::BotonPrincipal(1));
        QVERIFY(dentro({43, 21, 50, 50}));
        mesa.MiniCarta(51, 33, 26, 46, {.palo = 0, .valor = 0, .cara = 1, .orientacion = 1});
        QVERIFY(dentro({51, 33, 26, 46}));
    }

    void PiezasSeguidasNoDejanHueco_data() { Ratios(); }
    void PiezasSeguidasNoDejanHueco() {
        QFETCH(double, ratio);
        Imagenes imagenes(ratio);
        LienzoRetenido mesa(imagenes, Fondo::Fieltro);
        mesa.PonTamano(kMesa, false);
        for (int x = 20; x < 80; ++x)
            mesa.Lamina(x, 40, lamina::kMarcoTira);
        const int y = imagenes.Px(40 + lamina::kMarcoTira.alto / 2);
        for (int x = imagenes.Px(20); x < imagenes.Px(80); ++x)
            QCOMPARE(mesa.Cuadro().pixel(x, y), mesa.Cuadro().pixel(imagenes.Px(20), y));
    }

    void FueraDelLienzoNoPasaNada() {
        Imagenes imagenes(1);
        LienzoRetenido mesa(imagenes, Fondo::Fieltro);
        mesa.PonTamano(kMesa, false);
        const QImage limpia = mesa.Cuadro().copy();
        mesa.Caja({-500, -500, 100, 100}, color::kRojo);
        mesa.Texto(4000, 4000, "lejos", {}, color::kRojo, Alineacion::Centro);
        mesa.Carta(-200, 10, {.cara = 1, .orientacion = 1});
        mesa.Borde({10, 10, 0, 0}, color::kRojo, 5);
        QCOMPARE(Diferencia(mesa.Cuadro(), limpia), QRect());
    }

    void UnLienzoSinTamanoAguanta() {
        Imagenes imagenes(1);
        LienzoRetenido control(imagenes, Fondo::Claro);
        control.Caja({0, 0, 10, 10}, color::kRojo);
        control.Texto(0, 0, "nada", {}, color::kRojo, Alineacion::Izquierda);
        QCOMPARE(control.Tamano(), QSize(0, 0));
    }

    void ElFieltroDeUnControlEsTransparente() {
        Imagenes imagenes(1);
        LienzoRetenido control(imagenes, Fondo::Claro);
        control.PonTamano({40, 20}, false);
        control.Caja({0, 0, 40, 20}, color::kRojo);
        QCOMPARE(qAlpha(control.Cuadro().pixel(5, 5)), 255);
        control.Fieltro({0, 0, 40, 20});
        QCOMPARE(qAlpha(control.Cuadro().pixel(5, 5)), 0);
    }

    void ElTextoSeAlinea() {
        Imagenes imagenes(1);
        LienzoRetenido mesa(imagenes, Fondo::Papel);
        mesa.PonTamano({200, 60}, false);
        const QImage limpia = mesa.Cuadro().copy();
        const auto escrito = [&](Alineacion alineacion) {
            mesa.Texto(100, 20, "HHHH", {.alto = 14}, color::kNegro, alineacion);
            const QRect tinta = Diferencia(mesa.Cuadro(), limpia);
            mesa.Fieltro({0, 0, 200, 60});
            return tinta;
        };
        QVERIFY(escrito(Alineacion::Izquierda).left() >= 100);
        QVERIFY(escrito(Alineacion::Derecha).right() <= 100);
        const QRect centrado = escrito(Alineacion::Centro);
        QVERIFY(std::abs(centrado.center().x() - 100) <= 1);
        QVERIFY(centrado.top() >= 20 && centrado.bottom() < 20 + 17);
    }

    void LoSucioEsLoEscrito() {
        Imagenes imagenes(1.5);
        LienzoRetenido mesa(imagenes, Fondo::Fieltro);
        mesa.PonTamano(kMesa, false);
        mesa.TomaSucio();
        const QImage limpia = mesa.Cuadro().copy();
        mesa.Texto(50, 60, "Jugador", {.alto = 15, .negrita = true}, color::kAmarillo,
                   Alineacion::Izquierda);
        const QRect tinta = Diferencia(mesa.Cuadro(), limpia);
        const QRegion sucio = mesa.TomaSucio();
        QVERIFY(sucio.boundingRect().contains(tinta));
        QVERIFY(sucio.boundingRect().height() < 50);
        QVERIFY(mesa.TomaSucio().isEmpty());
    }

    void CadaCartaEnSuSitioDeLaImagen_data() {
        QTest::addColumn<int>("k");
        QTest::addColumn<double>("ratio");
        QTest::newRow("justa") << 1 << 1.0;
        QTest::newRow("triple") << 3 << 1.0;
        QTest::newRow("doble a 1.25") << 2 << 1.25;
        QTest::newRow("justa a 2") << 1 << 2.0;
    }
    void CadaCartaEnSuSitioDeLaImagen() {
        QFETCH(int, k);
        QFETCH(double, ratio);
        Imagenes imagenes(ratio);
        imagenes.CargaBaraja(Guarda(BarajaDeColores(13, k), "b.bmp"), 13);
        for (Integer palo = 1; palo <= 4; ++palo) {
            for (Integer valor = 1; valor <= 13; ++valor) {
                const QImage carta = imagenes.Carta({palo, valor, 2, 1});
                QCOMPARE(carta.size(), imagenes.TamanoCarta());
                QCOMPARE(QColor(carta.pixel(carta.rect().center())), ColorDeCarta(palo, valor));
            }
        }
    }

    // The table's green at the head of the felt, darker below it: the light falls from above.
    void LaLuzVieneDeArriba() {
        Imagenes imagenes(1);
        LienzoRetenido mesa(imagenes, Fondo::Fieltro);
        mesa.PonTamano({40, 960}, false);
        const QImage& cuadro = mesa.Cuadro();
        const auto verde = [&](int y) {
            double suma = 0;
            for (int x = 0; x < cuadro.width(); ++x)
                suma += qGreen(cuadro.pixel(x, y));
            return suma / cuadro.width();
        };
        QVERIFY(std::abs(verde(0) - 0x80) < 2);
        QVERIFY(verde(cuadro.height() / 2) < verde(0) - 8);
        QVERIFY(verde(cuadro.height() - 1) < verde(cuadro.height() / 2) - 8);
    }

    // A taller table keeps what it shows: the old part of the picture and the new one have one light.
    void LaLuzNoDependeDeLaAltura() {
        Imagenes imagenes(1);
        LienzoRetenido baja(imagenes, Fondo::Fieltro), alta(imagenes, Fondo::Fieltro);
        baja.PonTamano({40, 600}, false);
        alta.PonTamano({40, 900}, false);
        baja.PonTamano({40, 900}, true);
        QCOMPARE(baja.Cuadro(), alta.Cuadro());
    }

    void UnVeloDejaVerAlgoDeLoQueCubre() {
        Imagenes imagenes(1);
        LienzoRetenido mesa(imagenes, Fondo::Fieltro);
        mesa.PonTamano(kMesa, false);
        const QColor limpio = mesa.Cuadro().pixelColor(20, 20);
        mesa.Caja({10, 10, 40, 40}, color::kBlanco);
        mesa.Velo({10, 10, 20, 40});
        const QColor velado = mesa.Cuadro().pixelColor(20, 20);
        QVERIFY(velado.red() > limpio.red() + 20 && velado.red() < 120);
        QCOMPARE(mesa.Cuadro().pixelColor(40, 20), QColor(Qt::white));
        mesa.Caja({60, 10, 20, 20}, color::kBlanco);
        QCOMPARE(mesa.Cuadro().pixelColor(70, 20),
                 QColor(Qt::white)); // what follows is drawn as ever
    }

    void LasEsquinasDejanVerElFieltro() {
        Imagenes imagenes(2);
        imagenes.CargaBaraja(Guarda(BarajaDeColores(12), "b.bmp"), 12);
        for (Integer orientacion = 1; orientacion <= 4; ++orientacion) {
            ImagenCarta como = kAsDeOros;
            como.orientacion = orientacion;
            const QImage carta = imagenes.Carta(como);
            QCOMPARE(qAlpha(carta.pixel(0, 0)), 0);
            QCOMPARE(qAlpha(carta.pixel(carta.width() - 1, carta.height() - 1)), 0);
            QCOMPARE(qAlpha(carta.pixel(carta.width() / 2, 0)), 255);
        }
    }

    void LaOrientacionGiraComoElReloj() {
        QImage baraja = BarajaDeColores(12);
        QPainter(&baraja).fillRect(0, 0, kAnchoCarta, 20, Qt::white); // the upper edge of the as
        Imagenes imagenes(1);
        imagenes.CargaBaraja(Guarda(baraja, "b.bmp"), 12);
        const auto blanco = [&](Integer orientacion, int x, int y) {
            ImagenCarta como = kAsDeOros;
            como.orientacion = orientacion;
            return QColor(imagenes.Carta(como).pixel(x, y)) == Qt::white;
        };
        QVERIFY(blanco(1, 50, 10));
        QVERIFY(blanco(2, kAltoCarta - 10, 50));
        QVERIFY(blanco(3, 50, kAltoCarta - 10));
        QVERIFY(blanco(4, 10, 50));
    }

    void UnaCartaTapadaEnsenaSuMitadDeArriba() {
        Imagenes imagenes(1);
        imagenes.CargaBaraja(Guarda(BarajaDeColores(12), "b.bmp"), 12);
        ImagenCarta como = kAsDeOros;
        const QImage cara = imagenes.Carta(como);
        const QImage dorso = imagenes.Carta({.cara = 1});
        como.tapada = true;
        const QImage tapada = imagenes.Carta(como);
        QCOMPARE(tapada.copy(0, 0, kAnchoCarta, 70), cara.copy(0, 0, kAnchoCarta, 70));
        QCOMPARE(tapada.copy(10, 75, 80, 50), dorso.copy(10, 75, 80, 50));
        // The corners stay clear, and a back is a back.
        QCOMPARE(qAlpha(tapada.pixel(0, kAltoCarta - 1)), 0);
        QCOMPARE(imagenes.Carta({.cara = 1, .tapada = true}), dorso);
        // On its side the covered half turns with the card: the upper edge is now at the right.
        como.orientacion = 2;
        QCOMPARE(imagenes.Carta(como).pixel(kAltoCarta - 20, 50), cara.pixel(50, 20));
        QVERIFY(imagenes.Carta(como).pixel(20, 50) != cara.pixel(50, 20));
        // Upside down the corner that a hand leaves to see is the lower one.
        como.orientacion = 3;
        QCOMPARE(imagenes.Carta(como).pixel(50, 20), cara.pixel(50, 120));
        QVERIFY(imagenes.Carta(como).pixel(50, 120) != cara.pixel(50, 20));
    }

    void UnaCartaQueNoExisteNoSePinta() {
        Imagenes imagenes(1);
        imagenes.CargaBaraja(Guarda(BarajaDeColores(12), "b.bmp"), 12);
        QVERIFY(imagenes.Carta({1, 13, 2, 1}).isNull());
        QVERIFY(imagenes.Carta({0, 0, 2, 1}).isNull());
        QVERIFY(!imagenes.Carta({0, 0, 1, 1}).isNull());
        QVERIFY(!imagenes.Carta({5, 91, 2, 1}).isNull());
        QVERIFY(!imagenes.Carta({5, 92, 2, 1}).isNull());
    }

    void BarajaDeOtroTamano() {
        Imagenes imagenes(1);
        const QString ruta = Guarda(QImage(1212, 565, QImage::Format_RGB888), "corta.bmp");
        const std::string fallo = FalloDe(imagenes, ruta, 12);
        QVERIFY(fallo.find(ruta.toStdString()) != std::string::npos);
        QVERIFY(fallo.find("mide 1212x565") != std::string::npos);
        QVERIFY(!imagenes.HayBaraja());
        // A French deck where a Spanish one is wanted.
        QVERIFY(!FalloDe(imagenes, Guarda(BarajaDeColores(13), "francesa.bmp"), 12).empty());
        // Stretched in one direction only.
        const QImage ancha = BarajaDeColores(12).scaled(2 * 1212, 564);
        QVERIFY(!FalloDe(imagenes, Guarda(ancha, "ancha.bmp"), 12).empty());
    }

    void BarajaQueFalta() {
        Imagenes imagenes(1);
        const QString ruta = carpeta_.filePath("no_hay.bmp");
        const std::string fallo = FalloDe(imagenes, ruta, 12);
        QVERIFY(fallo.find(ruta.toStdString()) != std::string::npos);
        QVERIFY(fallo.find("no existe el fichero") != std::string::npos);
    }

    void BarajaDanada() {
        Imagenes imagenes(1);
        imagenes.CargaBaraja(Guarda(BarajaDeColores(12), "b.bmp"), 12);
        const QString ruta = carpeta_.filePath("rota.bmp");
        QFile rota(ruta);
        QVERIFY(rota.open(QIODevice::WriteOnly));
        rota.write("BM no soy una imagen");
        rota.close();
        QVERIFY(FalloDe(imagenes, ruta, 12).find(ruta.toStdString()) != std::string::npos);
        // The deck in use is still there.
        QCOMPARE(QColor(imagenes.Carta(kAsDeOros).pixel(50, 70)), ColorDeCarta(1, 1));
    }

    void BarajaCortadaAMedias() {
        Imagenes imagenes(1);
        const QString ruta = Guarda(BarajaDeColores(12), "media.bmp");
        QVERIFY(QFile::resize(ruta, QFileInfo(ruta).size() / 2));
        QVERIFY(FalloDe(imagenes, ruta, 12).find(ruta.toStdString()) != std::string::npos);
    }

    void OtroRatioRehaceLasCartas() {
        Imagenes imagenes(1);
        imagenes.CargaBaraja(Guarda(BarajaDeColores(12, 2), "b.bmp"), 12);
        imagenes.CambiaRatio(2);
        QCOMPARE(imagenes.Carta(kAsDeOros).size(), QSize(202, 282));
        // Also when the file has gone meanwhile.
        QVERIFY(QFile::remove(carpeta_.filePath("b.bmp")));
        imagenes.CambiaRatio(1.5);
        QCOMPARE(imagenes.Carta(kAsDeOros).size(), QSize(151, 211));
        const QImage carta = imagenes.Carta({3, 7, 2, 1});
        QCOMPARE(QColor(carta.pixel(carta.rect().center())), ColorDeCarta(3, 7));
    }

    void OtroRatioEstiraElCuadro() {
        Imagenes imagenes(1);
        LienzoRetenido mesa(imagenes, Fondo::Fieltro);
        mesa.PonTamano(kMesa, false);
        mesa.Caja({100, 80, 40, 20}, color::kRojo);
        imagenes.CambiaRatio(1.5);
        mesa.AdaptaRatio();
        QCOMPARE(mesa.Cuadro().size(), QSize(450, 360));
        QCOMPARE(QColor(mesa.Cuadro().pixel(180, 135)), QColor(Qt::red));
        QCOMPARE(mesa.TomaSucio().boundingRect(), QRect(0, 0, 450, 360));
        mesa.Fieltro({0, 0, kMesa.width(), kMesa.height()});
        LienzoRetenido nueva(imagenes, Fondo::Fieltro);
        nueva.PonTamano(kMesa, false);
        QCOMPARE(Diferencia(mesa.Cuadro(), nueva.Cuadro()), QRect());
    }

    void ElLienzoDePapelEsBlanco() {
        QImage hoja(200, 100, QImage::Format_RGB32);
        hoja.fill(Qt::red);
        QPainter pintor(&hoja);
        Imagenes imagenes(1);
        LienzoPintor papel(pintor, imagenes, Fondo::Papel);
        papel.Fieltro({0, 0, 200, 100});
        papel.Texto(10, 10, "Marcador", {.alto = 20}, color::kNegro, Alineacion::Izquierda);
        pintor.end();
        QCOMPARE(QColor(hoja.pixel(199, 99)), QColor(Qt::white));
        QVERIFY(!Diferencia(hoja, QImage(200, 100, QImage::Format_RGB32)).isEmpty());
    }
};

QTEST_MAIN(PruebaLienzo)
#include "canvas_test.moc"
