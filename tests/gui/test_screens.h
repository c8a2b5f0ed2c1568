#pragma once
// Screens of any size and scale for a test. A screen is settled before the application stands: each has a run of its own.

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>
#include <span>

#include "platform/qt/open_screen.h"

namespace prueba {

struct Pantalla {
    const char* nombre;
    int ancho, alto; // the screen's own pixels
    const char* escala;
};

// The same program once more, on that screen. False when it has failed.
inline bool CorreEn(const Pantalla& pantalla, int argc, char** argv) {
    const QTemporaryDir carpeta;
    const QString fichero = carpeta.filePath("pantalla.json");
    QFile json(fichero);
    if (!json.open(QIODevice::WriteOnly))
        return false;
    json.write(QStringLiteral(R"({"screens": [{"name": "una", "x": 0, "y": 0, "width": %1,
               "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                   .arg(pantalla.ancho)
                   .arg(pantalla.alto)
                   .toUtf8());
    json.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(fichero));
    qputenv("QT_SCALE_FACTOR", pantalla.escala);
    qputenv("ZOVIN_TEST_SCREEN", pantalla.nombre);
    std::printf("%s: %d x %d, escala %s\n", pantalla.nombre, pantalla.ancho, pantalla.alto,
                pantalla.escala);
    std::fflush(stdout);
    QStringList palabras;
    for (int i = 1; i < argc; ++i)
        palabras << QString::fromLocal8Bit(argv[i]);
    return QProcess::execute(QString::fromLocal8Bit(argv[0]), palabras) == 0;
}

// For main: the test on all of them, one after the other; how many have failed.
template <typename Prueba>
int CorreEnPantallas(std::span<const Pantalla> pantallas, int argc, char** argv) {
    if (qEnvironmentVariableIsSet("ZOVIN_TEST_SCREEN")) {
        const auto programa = AbrePantalla(argc, argv);
        Prueba prueba;
        return QTest::qExec(&prueba, argc, argv);
    }
    int fallos = 0;
    for (const Pantalla& pantalla : pantallas)
        fallos += CorreEn(pantalla, argc, argv) ? 0 : 1;
    return fallos;
}

} // namespace prueba
