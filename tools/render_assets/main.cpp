// Paints the drawings of assets/ as the pictures that the program reads: the two deck images beside
// the program and what they are known by, the icon for its resources, contact sheets for those who draw, and the
// picture of the table in the help.
// It needs no screen: run it with QT_QPA_PLATFORM=offscreen.

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include "platform/canvas.h"
#include "platform/qt/deck_signature.h"
#include "table/sheet_layout.h"

namespace {

struct Baraja {
    const char* carpeta; // below assets/cards
    std::array<const char*, 4> palos;
    int columnas;
    const char* imagen;
};

constexpr Baraja kFrancesa{
    "french", {"diamantes", "corazones", "picas", "treboles"}, 13, "Baraja01.bmp"};
constexpr Baraja kEspanola{"spanish", {"oros", "copas", "espadas", "bastos"}, 12, "Baraja02.bmp"};

constexpr std::array kCartasSueltas{"comodin1", "comodin2", "dorso"};
constexpr std::array kLadosIcono{16, 22, 24, 32, 48, 64, 128, 256, 512};

// The corner of a deck cell that the card's round corner leaves free: the colour of its edge, so that
// a pixel of it shown by mistake does not stand out.
constexpr QRgb kFondoBaraja = 0xFF8D8068;
constexpr QRgb kFieltro = 0xFF008000;

struct Carpetas {
    QString dibujos;
    QString salida;
};

[[noreturn]] void Falla(const QString& archivo, const char* queja) {
    throw std::runtime_error(archivo.toStdString() + ": " + queja);
}

// Paints a drawing into a box given in pixels of the picture. The drawing's own size must have the
// proportions of `medida`, in pixels of the table; anything else is a mistake of the drawing.
void Pinta(QPainter& pintor, const QString& archivo, const QRect& donde, const QSize& medida) {
    QSvgRenderer dibujo(archivo);
    if (!dibujo.isValid())
        Falla(archivo, "no drawing");
    if (dibujo.defaultSize() != medida)
        Falla(archivo, "not of the size that the sheet gives it");
    dibujo.render(&pintor, donde);
}

QImage Lienzo(int ancho, int alto, QRgb fondo) {
    QImage imagen(ancho, alto, QImage::Format_ARGB32_Premultiplied);
    imagen.fill(QColor::fromRgba(fondo));
    return imagen;
}

void Guarda(const QImage& imagen, const QString& archivo) {
    if (!imagen.save(archivo))
        Falla(archivo, "cannot be written");
}

QString NombreCarta(const Carpetas& carpetas, const Baraja& baraja, int fila, int columna) {
    return QStringLiteral("%1/cards/%2/%3-%4.svg")
        .arg(carpetas.dibujos, QLatin1String(baraja.carpeta),
             QLatin1String(baraja.palos.at(static_cast<std::size_t>(fila))))
        .arg(columna + 1, 2, 10, QLatin1Char('0'));
}

QString NombreLamina(const Carpetas& carpetas, std::string_view pieza) {
    return carpetas.dibujos + QStringLiteral("/sheet/") +
           QString::fromUtf8(pieza.data(), static_cast<qsizetype>(pieza.size())) +
           QStringLiteral(".svg");
}

// All the cards of a deck in rows by palo, `escala` times as large and `hueco` pixels apart.
QImage PintaBaraja(const Carpetas& carpetas, const Baraja& baraja, int escala, int hueco,
                   QRgb fondo) {
    const int ancho = kAnchoCarta * escala, alto = kAltoCarta * escala;
    QImage imagen =
        Lienzo(baraja.columnas * (ancho + hueco) + hueco, 4 * (alto + hueco) + hueco, fondo);
    QPainter pintor(&imagen);
    for (int fila = 0; fila < 4; ++fila) {
        for (int columna = 0; columna < baraja.columnas; ++columna) {
            const QRect celda(hueco + columna * (ancho + hueco), hueco + fila * (alto + hueco),
                              ancho, alto);
            Pinta(pintor, NombreCarta(carpetas, baraja, fila, columna), celda,
                  {kAnchoCarta, kAltoCarta});
        }
    }
    return imagen;
}

void HazBarajas(const Carpetas& carpetas) {
    for (const Baraja& baraja : {kFrancesa, kEspanola}) {
        const QImage imagen = PintaBaraja(carpetas, baraja, lamina::kEscala, 0, kFondoBaraja);
        Guarda(imagen.convertToFormat(QImage::Format_RGB888), // 24 bits a pixel, no alpha
               carpetas.salida + QLatin1Char('/') + QLatin1String(baraja.imagen));
    }
}

// What the finished deck images come to, by which the program knows them.
void HazFirmas(const Carpetas& carpetas) {
    for (const Baraja& baraja : {kFrancesa, kEspanola}) {
        QFile imagen(carpetas.dibujos + '/' + QLatin1String(baraja.imagen));
        QFile firma(carpetas.salida + '/' + QLatin1String(baraja.carpeta) + ".firma");
        if (!imagen.open(QIODevice::ReadOnly))
            Falla(imagen.fileName(), "cannot be read");
        const QByteArray bytes = imagen.readAll();
        const std::span todo(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        if (!firma.open(QIODevice::WriteOnly) ||
            firma.write(QByteArray::number(quint64{FirmaDe(std::as_bytes(todo))})) < 1)
            Falla(firma.fileName(), "cannot be written");
    }
}

QImage PintaLaminas(const Carpetas& carpetas, int escala) {
    QImage imagen = Lienzo(lamina::kAncho * escala, lamina::kAlto * escala, 0);
    QPainter pintor(&imagen);
    for (const lamina::Pieza& pieza : lamina::kPiezas) {
        const auto& [x, y, ancho, alto] = pieza.sitio;
        const QRect donde(x * escala, y * escala, ancho * escala, alto * escala);
        Pinta(pintor, NombreLamina(carpetas, pieza.archivo), donde, {ancho, alto});
    }
    return imagen;
}

// One drawing alone, on nothing.
QImage PintaSuelta(const QString& archivo, const QSize& medida, const QSize& pixeles) {
    QImage imagen = Lienzo(pixeles.width(), pixeles.height(), 0);
    QPainter pintor(&imagen);
    Pinta(pintor, archivo, imagen.rect(), medida);
    return imagen;
}

void HazIconos(const Carpetas& carpetas) {
    for (const int lado : kLadosIcono) {
        const QImage imagen =
            PintaSuelta(carpetas.dibujos + "/icon/zovin.svg", {128, 128}, {lado, lado});
        Guarda(imagen, carpetas.salida + QStringLiteral("/zovin-%1.png").arg(lado));
    }
}

void HazRecursos(const Carpetas& carpetas) {
    HazIconos(carpetas);
}

// The sheet on felt, with a row of the loose cards, the icon and the pointers under it.
QImage PintaMuestra(const Carpetas& carpetas) {
    constexpr int escala = 2, hueco = 10;
    const QImage laminas = PintaLaminas(carpetas, escala);
    const int alto = laminas.height() + kAltoCarta * escala + 3 * hueco;
    QImage muestra = Lienzo(laminas.width() + 2 * hueco, alto, kFieltro);
    QPainter pintor(&muestra);
    pintor.drawImage(hueco, hueco, laminas);
    int x = hueco;
    const int y = laminas.height() + 2 * hueco;
    const auto pon = [&](const QString& archivo, const QSize& medida, int abajo) {
        Pinta(pintor, carpetas.dibujos + archivo, {QPoint(x, y + abajo), medida * escala}, medida);
    };
    for (const char* nombre : kCartasSueltas) {
        pon(QStringLiteral("/cards/%1.svg").arg(QLatin1String(nombre)), {kAnchoCarta, kAltoCarta},
            0);
        x += kAnchoCarta * escala + hueco;
    }
    int fila = 0;
    for (const lamina::Puntero& puntero : lamina::kPunteros) {
        pon(QStringLiteral("/cursors/%1.svg")
                .arg(QString::fromStdString(std::string(puntero.archivo))),
            {lamina::kLadoPuntero, lamina::kLadoPuntero}, (fila % 4) * 70);
        x += ++fila % 4 == 0 ? 70 : 0;
    }
    pon(QStringLiteral("/icon/zovin.svg"), {128, 128}, 0);
    return muestra;
}

void HazMuestras(const Carpetas& carpetas) {
    const auto guarda = [&](const QImage& imagen, const char* nombre) {
        Guarda(imagen.convertToFormat(QImage::Format_RGB888),
               carpetas.salida + QLatin1Char('/') + QLatin1String(nombre));
    };
    guarda(PintaBaraja(carpetas, kEspanola, 1, 6, kFieltro), "cards-spanish.png");
    guarda(PintaBaraja(carpetas, kFrancesa, 1, 6, kFieltro), "cards-french.png");
    guarda(PintaMuestra(carpetas), "sheet.png");
}

// A number of the help's picture of the table, in its pixels: what the page beside it explains.
struct Llamada {
    int numero;
    QPoint donde;
};

const std::array kLlamadas{Llamada{1, {488, 16}},  Llamada{2, {352, 356}}, Llamada{3, {592, 304}},
                           Llamada{4, {582, 592}}, Llamada{5, {238, 640}}, Llamada{6, {862, 240}},
                           Llamada{7, {856, 646}}, Llamada{8, {164, 58}}};
constexpr QSize kMesaDeMuestra(960, 680);
constexpr int kPixelesDeMuestra = 2; // of the picture for each of the table
constexpr int kRadioLlamada = 16;
constexpr QColor kLlamadaFondo(255, 226, 122), kLlamadaTinta(20, 20, 20);

void PintaLlamada(QPainter& pintor, const Llamada& llamada) {
    const QRect circulo(llamada.donde - QPoint(kRadioLlamada, kRadioLlamada),
                        QSize(2 * kRadioLlamada, 2 * kRadioLlamada));
    pintor.setPen(QPen(kLlamadaTinta, 2));
    pintor.setBrush(kLlamadaFondo);
    pintor.drawEllipse(circulo);
    pintor.drawText(circulo, Qt::AlignCenter, QString::number(llamada.numero));
}

bool EsFieltro(QRgb punto) {
    constexpr int kOtros = 8, kVerdeMenor = 80, kVerdeMayor = 140;
    return qRed(punto) <= kOtros && qBlue(punto) <= kOtros && qGreen(punto) >= kVerdeMenor &&
           qGreen(punto) <= kVerdeMayor;
}

// The grain of the felt would make most of the file; the eye does not miss it here. The light on it is the same along
// a row.
void AlisaFieltro(QImage& mesa) {
    for (int y = 0; y < mesa.height(); ++y) {
        auto* fila = reinterpret_cast<QRgb*>(mesa.scanLine(y));
        const std::span puntos(fila, static_cast<std::size_t>(mesa.width()));
        long suma = 0, cuantos = 0;
        for (const QRgb punto : puntos) {
            suma += EsFieltro(punto) ? qGreen(punto) : 0;
            cuantos += EsFieltro(punto) ? 1 : 0;
        }
        const QRgb liso = qRgb(0, cuantos == 0 ? 0 : static_cast<int>(suma / cuantos), 0);
        std::ranges::replace_if(puntos, EsFieltro, liso);
    }
}

// From the picture that the console took of a table (table.esc) the one that the help shows.
void HazMesa(const Carpetas& carpetas) {
    const QString toma = carpetas.salida + "/mesa.png";
    QImage mesa = QImage(toma).convertToFormat(QImage::Format_RGB32);
    if (mesa.size() != kMesaDeMuestra * kPixelesDeMuestra)
        Falla(toma, "not a picture of the table that the numbers are for");
    AlisaFieltro(mesa);
    QPainter pintor(&mesa);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.scale(kPixelesDeMuestra, kPixelesDeMuestra);
    QFont letra = pintor.font();
    letra.setPixelSize(19);
    letra.setBold(true);
    pintor.setFont(letra);
    for (const Llamada& llamada : kLlamadas)
        PintaLlamada(pintor, llamada);
    pintor.end();
    Guarda(mesa, toma);
}

struct Encargo {
    std::string nombre;
    void (*haz)(const Carpetas&);
};

const std::array kEncargos{Encargo{"decks", HazBarajas}, Encargo{"signatures", HazFirmas},
                           Encargo{"resources", HazRecursos}, Encargo{"contact", HazMuestras},
                           Encargo{"table", HazMesa}};

int Trabaja(int argc, char** argv) {
    CLI::App opciones{"Paints the drawings of the suite."};
    opciones.require_subcommand(1);
    std::string dibujos, salida;
    for (const Encargo& encargo : kEncargos) {
        CLI::App* orden = opciones.add_subcommand(encargo.nombre);
        orden
            ->add_option("drawings", dibujos,
                         "the folder of the SVG files, or of the deck images to sign")
            ->required()
            ->check(CLI::ExistingDirectory);
        orden->add_option("output", salida, "the folder to write to")->required();
    }
    CLI11_PARSE(opciones, argc, argv);

    const Carpetas carpetas{QString::fromStdString(dibujos), QString::fromStdString(salida)};
    if (!QDir().mkpath(carpetas.salida))
        Falla(carpetas.salida, "cannot be made");
    for (const Encargo& encargo : kEncargos) {
        if (opciones.got_subcommand(encargo.nombre))
            encargo.haz(carpetas);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        const QGuiApplication aplicacion(argc, argv);
        return Trabaja(argc, argv);
    } catch (const std::exception& fallo) {
        std::fprintf(stderr, "render_assets: %s\n", fallo.what());
        return 1;
    }
}
