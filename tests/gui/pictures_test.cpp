// The painted pictures as the program finds them: the deck images beside it, the rest in its resources as drawings.

#include <QColor>
#include <QFile>
#include <QImage>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>
#include <QtMath>

#include <vector>

#include "platform/canvas.h"
#include "platform/qt/card_images.h"
#include "platform/qt/drawings.h"
#include "platform/qt/sheet_images.h"
#include "table/sheet_layout.h"

namespace {

constexpr int kFranja = 16; // what a hand held close shows of a card

QImage Baraja(const char* nombre) {
    return QImage(qEnvironmentVariable("ZOVIN_BIN") + '/' + QLatin1String(nombre));
}

QImage Celda(const QImage& baraja, int palo, int valor) {
    const int escala = baraja.height() / (4 * kAltoCarta);
    const int ancho = kAnchoCarta * escala, alto = kAltoCarta * escala;
    return baraja.copy((valor - 1) * ancho, (palo - 1) * alto, ancho, alto)
        .scaled(kAnchoCarta, kAltoCarta, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

// How many pixels of two pictures an eye tells apart.
int Diferencia(const QImage& una, const QImage& otra) {
    int puntos = 0;
    for (int y = 0; y < una.height(); ++y) {
        for (int x = 0; x < una.width(); ++x) {
            const QRgb a = una.pixel(x, y), b = otra.pixel(x, y);
            const int lejos =
                qAbs(qRed(a) - qRed(b)) + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b));
            puntos += lejos > 90 ? 1 : 0;
        }
    }
    return puntos;
}

int PeorPareja(const std::vector<QImage>& imagenes) {
    int peor = INT_MAX;
    for (std::size_t i = 0; i < imagenes.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j)
            peor = qMin(peor, Diferencia(imagenes[i], imagenes[j]));
    }
    return peor;
}

std::vector<QImage> Cartas(const char* baraja, int columnas) {
    const QImage imagen = Baraja(baraja);
    std::vector<QImage> cartas;
    for (int palo = 1; palo <= 4; ++palo) {
        for (int valor = 1; valor <= columnas; ++valor)
            cartas.push_back(Celda(imagen, palo, valor));
    }
    return cartas;
}

constexpr int kVeces = 3;

int Opacos(const QImage& imagen) {
    int puntos = 0;
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x)
            puntos += qAlpha(imagen.pixel(x, y)) > 127 ? 1 : 0;
    }
    return puntos;
}

// Mean saturation of the pixels that are not clear, 0..255.
double Viveza(const QImage& imagen) {
    double suma = 0;
    int puntos = 0;
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x) {
            const QColor color = imagen.pixelColor(x, y);
            if (color.alpha() < 128)
                continue;
            suma += color.hsvSaturation();
            ++puntos;
        }
    }
    return puntos == 0 ? 0 : suma / puntos;
}

} // namespace

class PicturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void deckImagesAre24BitBitmapsOfFourRows_data() {
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<int>("columnas");
        QTest::newRow("francesa") << "Baraja01.bmp" << 13;
        QTest::newRow("española") << "Baraja02.bmp" << 12;
    }

    void deckImagesAre24BitBitmapsOfFourRows() {
        QFETCH(QString, nombre);
        QFETCH(int, columnas);
        QFile archivo(qEnvironmentVariable("ZOVIN_BIN") + '/' + nombre);
        QVERIFY(archivo.open(QIODevice::ReadOnly));
        const QByteArray cabecera = archivo.read(54);
        QCOMPARE(cabecera.left(2), QByteArray("BM"));
        QCOMPARE(static_cast<int>(cabecera.at(28)), 24); // bits a pixel
        const QImage imagen(archivo.fileName());
        QCOMPARE(imagen.width() % (columnas * kAnchoCarta), 0);
        QCOMPARE(imagen.height(), imagen.width() / (columnas * kAnchoCarta) * 4 * kAltoCarta);
    }

    void everyCardIsUnlikeEveryOther() {
        QVERIFY(PeorPareja(Cartas("Baraja01.bmp", 13)) > 100);
        QVERIFY(PeorPareja(Cartas("Baraja02.bmp", 12)) > 100);
    }

    void theLeftEdgeAloneTellsEveryCard() {
        for (const auto& [nombre, columnas] :
             {std::pair{"Baraja01.bmp", 13}, {"Baraja02.bmp", 12}}) {
            std::vector<QImage> franjas;
            for (const QImage& carta : Cartas(nombre, columnas))
                franjas.push_back(carta.copy(0, 0, kFranja, kAltoCarta));
            QVERIFY2(PeorPareja(franjas) > 12, nombre);
        }
    }

    void everyPieceIsPaintedAtEverySize() {
        for (const lamina::Pieza& pieza : lamina::kPiezas) {
            const QByteArray nombre(pieza.archivo.data(),
                                    static_cast<qsizetype>(pieza.archivo.size()));
            for (const double ratio : {1.0, 1.25, 3.0, 6.0}) {
                const QImage imagen = PiezaDe(pieza.sitio, ratio);
                QCOMPARE(imagen.width(), qCeil(pieza.sitio.ancho * ratio));
                QCOMPARE(imagen.height(), qCeil(pieza.sitio.alto * ratio));
                QVERIFY2(Opacos(imagen) > imagen.width() * imagen.height() / 4, nombre);
            }
        }
    }

    void everyDrawingHasTheSizeThatTheSheetGivesIt() {
        for (const lamina::Pieza& pieza : lamina::kPiezas) {
            const QString nombre = QString::fromUtf8(pieza.archivo.data(),
                                                     static_cast<qsizetype>(pieza.archivo.size()));
            QCOMPARE(
                QSvgRenderer(QStringLiteral(":/dibujos/sheet/%1.svg").arg(nombre)).defaultSize(),
                QSize(pieza.sitio.ancho, pieza.sitio.alto));
        }
    }

    void theShippedDecksAreKnownAndPaintedFromTheirDrawings() {
        for (const auto& [nombre, columnas] :
             {std::pair{"Baraja01.bmp", 13}, {"Baraja02.bmp", 12}}) {
            const QString ruta = qEnvironmentVariable("ZOVIN_BIN") + '/' + nombre;
            QVERIFY(EsBarajaDelPrograma(ruta, columnas));
            QVERIFY(!EsBarajaDelPrograma(ruta, 25 - columnas));
            Imagenes imagenes(1);
            imagenes.CargaBaraja(ruta, columnas);
            const QImage baraja = Baraja(nombre);
            // Fine lines come out a little otherwise; another card is another picture.
            const QRect dentro(6, 6, kAnchoCarta - 12, kAltoCarta - 12);
            const auto celda = [&](int palo, int valor) {
                return Celda(baraja, palo, valor).copy(dentro);
            };
            for (int palo = 1; palo <= 4; ++palo) {
                for (int valor = 1; valor <= columnas; ++valor) {
                    const QImage carta = imagenes.Carta(
                        {static_cast<Integer>(palo), static_cast<Integer>(valor), 2, 1});
                    QCOMPARE(carta.size(), QSize(kAnchoCarta, kAltoCarta));
                    const QImage cara = carta.copy(dentro).convertToFormat(QImage::Format_RGB32);
                    const int propia = Diferencia(cara, celda(palo, valor));
                    QVERIFY(propia < dentro.width() * dentro.height() / 20);
                    QVERIFY(propia < Diferencia(cara, celda(palo, valor % columnas + 1)));
                    QVERIFY(propia < Diferencia(cara, celda(palo % 4 + 1, valor)));
                }
            }
        }
    }

    void aDeckChangedInOneByteIsAnotherDeck() {
        QTemporaryDir carpeta;
        const QString otra = carpeta.filePath("Baraja02.bmp");
        QVERIFY(QFile::copy(qEnvironmentVariable("ZOVIN_BIN") + "/Baraja02.bmp", otra));
        QVERIFY(EsBarajaDelPrograma(otra, 12));
        QFile fichero(otra);
        QVERIFY(fichero.open(QIODevice::ReadWrite));
        QVERIFY(fichero.seek(fichero.size() / 2));
        char byte = 0;
        QVERIFY(fichero.peek(&byte, 1) == 1);
        byte = static_cast<char>(byte ^ 1);
        QVERIFY(fichero.write(&byte, 1) == 1);
        fichero.close();
        QVERIFY(!EsBarajaDelPrograma(otra, 12));
        QVERIFY(!EsBarajaDelPrograma(carpeta.filePath("no_hay.bmp"), 12));
    }

    void aDisabledButtonHasLostItsColour() {
        for (int boton = 1; boton <= 8; ++boton) {
            using lamina::Aspecto;
            const QImage vivo = PiezaDe(lamina::BotonPrincipal(boton), kVeces);
            const QImage apagado = PiezaDe(lamina::BotonPrincipal(boton, Aspecto::Apagado), kVeces);
            QVERIFY(Viveza(apagado) * 3 < Viveza(vivo));
        }
    }

    void everyPointerPointsWithItsDrawing() {
        for (const lamina::Puntero& puntero : lamina::kPunteros) {
            const QString nombre = QString::fromStdString(std::string(puntero.archivo));
            for (int escala = 1; escala <= 3; ++escala) {
                const int lado = lamina::kLadoPuntero * escala;
                const QImage imagen = Dibujo("cursors/" + nombre, {lado, lado});
                QCOMPARE(imagen.width(), lado);
                const QImage cerca =
                    imagen.copy((puntero.puntaX - 2) * escala, (puntero.puntaY - 2) * escala,
                                5 * escala, 5 * escala);
                QVERIFY2(Opacos(cerca) > 0, qPrintable(nombre));
            }
        }
    }

    void theLooseCardsHaveClearCornersAndTheSizeOfACard() {
        for (const char* nombre : {"comodin1", "comodin2", "dorso"}) {
            const QImage carta =
                Dibujo(QStringLiteral("cards/") + nombre, QSize(kAnchoCarta, kAltoCarta) * kVeces);
            QCOMPARE(carta.size(), QSize(kAnchoCarta, kAltoCarta) * kVeces);
            QCOMPARE(qAlpha(carta.pixel(0, 0)), 0);
            QCOMPARE(qAlpha(carta.pixel(carta.rect().center())), 255);
        }
    }
};

QTEST_MAIN(PicturesTest)
#include "pictures_test.moc"
