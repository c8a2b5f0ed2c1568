// table_states: pictures of every state of the table, to be looked at when a drawing has changed. One file a
// state, size of the window and pixel ratio: `manos-10-800x600@1.5.png`.

#include <CLI/CLI.hpp>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "platform/qt/picture_platform.h"
#include "session/main_buttons.h"
#include "table/waiting.h"
#include "tools/common/fresh_table.h"
#include "tools/common/program_files.h"
#include "tools/table_states/boxes_view.h"
#include "tools/table_states/states.h"

namespace {

struct Opciones {
    std::string salida = "estados";
    std::vector<double> ratios{1, 1.5, 2};
    std::vector<std::string> tamanos{"800x600", "1280x800", "1920x1080"};
    std::vector<std::string> solo; // names of the states; empty: all of them
};

struct FalloDeEscritura : std::runtime_error {
    using std::runtime_error::runtime_error;
};

bool Pedida(const Opciones& opciones, const std::string& nombre) {
    const auto& solo = opciones.solo;
    return solo.empty() || std::ranges::find(solo, nombre) != solo.end();
}

void Guarda(const Opciones& opciones, const QString& nombre, const QImage& imagen) {
    const QString ruta = QDir(QString::fromStdString(opciones.salida)).filePath(nombre + ".png");
    if (!imagen.save(ruta))
        throw FalloDeEscritura("no se puede escribir " + ruta.toStdString());
}

// One below the other.
QImage Pila(const std::vector<QImage>& trozos) {
    constexpr int kSeparacion = 4;
    int ancho = 0, alto = 0;
    for (const QImage& trozo : trozos) {
        ancho = std::max(ancho, trozo.width());
        alto += trozo.height() + kSeparacion;
    }
    QImage pila(ancho, alto, QImage::Format_RGB32);
    pila.fill(Qt::black);
    QPainter pintor(&pila);
    int y = 0;
    for (const QImage& trozo : trozos) {
        pintor.drawImage(0, y, trozo);
        y += trozo.height() + kSeparacion;
    }
    return pila;
}

QImage Trozo(const QImage& cuadro, const Rectangulo& r, double ratio) {
    return cuadro.copy(QRectF(r.x * ratio, r.y * ratio, r.ancho * ratio, r.alto * ratio).toRect());
}

// Where the pictures of a size and a ratio come from.
struct Taller {
    PlataformaCuadro& mesa;
    QSize tamano;
    double ratio = 1;
    QString Sufijo() const {
        return QStringLiteral("-%1x%2@%3")
            .arg(tamano.width())
            .arg(tamano.height())
            .arg(QString::number(ratio));
    }
};

void PonTaller(const Taller& taller) {
    taller.mesa.Limpia();
    taller.mesa.Posa();
    taller.mesa.Mide(taller.tamano.width(), taller.tamano.height());
    taller.mesa.formas = {Forma::Personal, Forma::Normas, Forma::Marcador, Forma::Estadis};
    PonMesaNueva();
}

void Pinta(const Opciones& opciones, const Taller& taller, const Estampa& estampa) {
    const QString nombre = QString::fromUtf8(estampa.nombre);
    std::vector<QImage> trozos;
    for (int vez = 1; vez <= estampa.veces; ++vez) {
        PonTaller(taller);
        estampa.prepara(vez);
        const QImage cuadro = taller.mesa.Cuadro();
        if (estampa.trozo != nullptr)
            trozos.push_back(Trozo(cuadro, estampa.trozo(vez), taller.ratio));
        else
            Guarda(opciones,
                   nombre + QStringLiteral("-%1").arg(vez, 2, 10, QChar(u'0')) + taller.Sufijo(),
                   cuadro);
    }
    if (!trozos.empty())
        Guarda(opciones, nombre + taller.Sufijo(), Pila(trozos));
}

// The headless desktop with the decks of the program.
class Mesa : public PlataformaCuadro {
public:
    using PlataformaCuadro::PlataformaCuadro;
    std::string CarpetaDelPrograma() const override { return CarpetaDeDatos(); }
};

void PintaTamano(const Opciones& opciones, const std::string& tamano, double ratio) {
    int ancho = 0, alto = 0;
    if (std::sscanf(tamano.c_str(), "%dx%d", &ancho, &alto) != 2)
        throw CLI::ValidationError("--tamano", "un tamaño se escribe 800x600");
    Mesa mesa(ratio);
    UsaPlataforma(mesa);
    RegistraDespacho(DespachaEvento);
    for (const Estampa& estampa : Estampas()) {
        if (Pedida(opciones, estampa.nombre))
            Pinta(opciones, {mesa, {ancho, alto}, ratio}, estampa);
    }
}

void PintaTodo(const Opciones& opciones) {
    QDir().mkpath(QString::fromStdString(opciones.salida));
    for (const double ratio : opciones.ratios) {
        for (const std::string& tamano : opciones.tamanos)
            PintaTamano(opciones, tamano, ratio);
        if (!Pedida(opciones, "cajas"))
            continue;
        for (const CuadroSuelto& cuadro : CuadrosSueltos(ratio))
            Guarda(opciones, cuadro.nombre + QStringLiteral("@%1").arg(ratio), cuadro.imagen);
    }
}

} // namespace

// What nobody catches ends the tool with its words, as it should.
int main(int argc, char** argv) { // NOLINT(bugprone-exception-escape)
    Opciones opciones;
    CLI::App app{"Cuadros de todos los estados de la mesa"};
    app.add_option("--salida", opciones.salida, "carpeta de los cuadros")->capture_default_str();
    app.add_option("--ratio", opciones.ratios, "píxeles de pantalla por píxel de mesa");
    app.add_option("--tamano", opciones.tamanos, "tamaños de la ventana");
    app.add_option("--solo", opciones.solo, "sólo estos estados (las cajas son «cajas»)");
    CLI11_PARSE(app, argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication programa(argc, argv);
    try {
        PintaTodo(opciones);
        return 0;
    } catch (const std::exception& fallo) {
        std::fprintf(stderr, "table_states: %s\n", fallo.what());
        return 1;
    }
}
