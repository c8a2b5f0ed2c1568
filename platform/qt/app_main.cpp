// The program: a window with the table in it, or a demonstration without a window.

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QTranslator>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <exception>
#include <string>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "forms/normas_view.h"
#include "forms/personal_view.h"
#include "platform/qt/demo.h"
#include "platform/qt/folder_lock.h"
#include "platform/qt/places.h"
#include "platform/qt/platform_qt.h"
#include "platform/qt/termination.h"
#include "reports/estadis_view.h"
#include "reports/historic_view.h"
#include "reports/marcador_view.h"
#include "session/entry.h"
#include "table/messages.h"

namespace {

constexpr const char* kOpcionDemo = "demo";

bool Pide(int argc, char** argv, std::initializer_list<const char*> opciones) {
    return std::any_of(argv + 1, argv + argc, [&](const char* palabra) {
        return std::ranges::any_of(
            opciones, [&](const char* opcion) { return std::strcmp(palabra, opcion) == 0; });
    });
}

// Pictures that were only read to be made smaller give their memory back, instead of leaving holes in the heap.
void CuidaLaMemoria() {
#ifdef __GLIBC__
    constexpr int kImagen = 256 * 1024;
    mallopt(M_MMAP_THRESHOLD, kImagen);
#endif
}

// What has to be settled before Qt looks for a screen. False when there is none to play on.
bool PreparaEntorno(int argc, char** argv) {
    // The table is painted without OpenGL; its libraries would only take memory.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    const bool sin_ventana = Pide(argc, argv, {"--demo", "--help", "-h", "--version", "-v"});
    const bool hay_pantalla = qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
                              !qEnvironmentVariableIsEmpty("DISPLAY") ||
                              !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (sin_ventana)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return sin_ventana || hay_pantalla;
}

void Presenta() {
    QApplication::setApplicationName(QStringLiteral("zovin"));
    QApplication::setApplicationVersion(QStringLiteral(ZOVIN_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("local.zovin.Zovin"));
    QApplication::setQuitOnLastWindowClosed(false);
    QIcon icono;
    for (const int lado : {16, 32, 48, 64, 128})
        icono.addFile(QStringLiteral(":/arte/zovin-%1.png").arg(lado), QSize(lado, lado));
    QApplication::setWindowIcon(icono);
}

// Qt's own words, as in the file dialogs, in the program's language.
void HablaEspanol(QTranslator& traductor) {
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    if (traductor.load(QStringLiteral("qtbase_es"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&traductor);
}

bool QuiereDemo(const QApplication& programa) {
    QCommandLineParser opciones;
    opciones.setApplicationDescription(QStringLiteral(
        "Seis juegos de cartas en una mesa: Póker, Black Jack, Tute, Brisca, Siete y media y "
        "Cinquillo."));
    opciones.addHelpOption();
    opciones.addVersionOption();
    opciones.addOption({QString::fromLatin1(kOpcionDemo),
                        QStringLiteral("Juega sin ventana una partida de muestra de cada juego, "
                                       "cuenta las manos y deja la mesa pintada en partida.png.")});
    opciones.process(programa);
    return opciones.isSet(QString::fromLatin1(kOpcionDemo));
}

// Another table stands open on the same files: two would write over each other's matches.
bool QuiereJugarSinGuardar(const QString& carpeta) {
    const std::string texto =
        "Zovin ya está en uso en la carpeta\r\n" + carpeta.toStdString() +
        "\r\nPulse Aceptar para jugar en esta otra mesa sin guardar nada de lo "
        "que haga en ella, o Cancelar para salir.";
    return PreguntaAceptar("Zovin ya está en uso", texto, LineasDe(texto));
}

int JuegaEnVentana(const QString& carpeta) {
    const CerrojoCarpeta cerrojo(carpeta);
    PlataformaQt escritorio(carpeta);
    UsaPlataforma(escritorio);
    escritorio.PonForma(Forma::Personal, AbreVistaPersonal);
    escritorio.PonForma(Forma::Normas, AbreVistaNormas);
    escritorio.PonForma(Forma::Marcador, AbreVistaMarcador);
    escritorio.PonForma(Forma::Historic, AbreVistaHistoric);
    escritorio.PonForma(Forma::Estadis, AbreVistaEstadis);
    const AvisoDeFin fin([&escritorio] { escritorio.PideTermina(); });
    if (cerrojo.EnUso()) {
        if (!QuiereJugarSinGuardar(carpeta))
            return 0;
        escritorio.JuegaSinGuardar();
    }
    return ArrancaPrograma();
}

void CuentaFallo(const char* motivo) {
    std::fprintf(stderr, "zovin: %s\n", motivo);
    if (QGuiApplication::platformName() == QStringLiteral("offscreen"))
        return;
    QMessageBox::critical(nullptr, QStringLiteral("Zovin no puede continuar"),
                          QString::fromUtf8(motivo));
}

} // namespace

int main(int argc, char** argv) {
    CuidaLaMemoria();
    if (!PreparaEntorno(argc, argv)) {
        std::fputs("zovin: no hay pantalla (ni DISPLAY ni WAYLAND_DISPLAY). Con --demo se juega "
                   "sin ella.\n",
                   stderr);
        return 1;
    }
    QApplication programa(argc, argv);
    Presenta();
    QTranslator traductor;
    HablaEspanol(traductor);
    try {
        const QString carpeta = CarpetaDeArranque(QString::fromLocal8Bit(argv[0]));
        return QuiereDemo(programa) ? JuegaDemo(carpeta) : JuegaEnVentana(carpeta);
    } catch (const std::exception& fallo) {
        CuentaFallo(fallo.what());
        return 1;
    }
}
