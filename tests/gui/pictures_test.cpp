// The painted pictures as the program finds them: the deck images beside it, the rest in its resources.

#include <QColor>
#include <QFile>
#include <QImage>
#include <QTest>

#include <vector>

#include "platform/canvas.h"
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

QImage Laminas() {
    return QImage(QStringLiteral(":/arte/laminas.png"));
}

QRect EnLaminas(const lamina::Recorte& sitio) {
    return {sitio.x * lamina::kEscala, sitio.y * lamina::kEscala, sitio.ancho * lamina::kEscala,
            sitio.alto * lamina::kEscala};
}

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

    void everyPieceIsPaintedAndNothingElse() {
        QImage laminas = Laminas();
        QCOMPARE(laminas.size(), QSize(lamina::kAncho, lamina::kAlto) * lamina::kEscala);
        const int pintados = Opacos(laminas);
        int enPiezas = 0;
        for (const lamina::Pieza& pieza : lamina::kPiezas) {
            const QImage recorte = laminas.copy(EnLaminas(pieza.sitio));
            QVERIFY2(
                Opacos(recorte) > recorte.width() * recorte.height() / 4,
                QByteArray(pieza.archivo.data(), static_cast<qsizetype>(pieza.archivo.size())));
            enPiezas += Opacos(recorte);
        }
        QCOMPARE(enPiezas, pintados);
    }

    void aDisabledButtonHasLostItsColour() {
        const QImage laminas = Laminas();
        for (int boton = 1; boton <= 8; ++boton) {
            using lamina::Aspecto;
            const QImage vivo = laminas.copy(EnLaminas(lamina::BotonPrincipal(boton)));
            const QImage apagado =
                laminas.copy(EnLaminas(lamina::BotonPrincipal(boton, Aspecto::Apagado)));
            QVERIFY(Viveza(apagado) * 3 < Viveza(vivo));
        }
    }

    void everyPointerPointsWithItsDrawing() {
        for (const lamina::Puntero& puntero : lamina::kPunteros) {
            const QString nombre = QString::fromStdString(std::string(puntero.archivo));
            for (int escala = 1; escala <= 3; ++escala) {
                const QString sufijo = escala == 1 ? QString() : QStringLiteral("@%1x").arg(escala);
                QFile archivo(QStringLiteral(":/arte/%1%2.png").arg(nombre, sufijo));
                QVERIFY2(archivo.open(QIODevice::ReadOnly), qPrintable(archivo.fileName()));
                const QImage imagen = QImage::fromData(archivo.readAll());
                QCOMPARE(imagen.width(), lamina::kLadoPuntero * escala);
                const QImage cerca =
                    imagen.copy((puntero.puntaX - 2) * escala, (puntero.puntaY - 2) * escala,
                                5 * escala, 5 * escala);
                QVERIFY2(Opacos(cerca) > 0, qPrintable(archivo.fileName()));
            }
        }
    }

    void theLooseCardsHaveClearCornersAndTheSizeOfACard() {
        for (const char* nombre : {"comodin1", "comodin2", "dorso"}) {
            const QImage carta(QStringLiteral(":/arte/%1.png").arg(QLatin1String(nombre)));
            QCOMPARE(carta.size(), QSize(kAnchoCarta, kAltoCarta) * lamina::kEscala);
            QCOMPARE(qAlpha(carta.pixel(0, 0)), 0);
            QCOMPARE(qAlpha(carta.pixel(carta.rect().center())), 255);
        }
    }
};

QTEST_GUILESS_MAIN(PicturesTest)
#include "pictures_test.moc"
