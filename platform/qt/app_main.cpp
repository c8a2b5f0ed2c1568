// The program: a window with the table in it, or a demonstration without a window.

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QTranslator>
#include <cstdio>
#include <exception>
#include <memory>
#include <span>
#include <string>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "forms/normas_view.h"
#include "forms/personal_view.h"
#include "platform/qt/command_line.h"
#include "platform/qt/demo.h"
#include "platform/qt/folder_lock.h"
#include "platform/qt/open_screen.h"
#include "platform/qt/places.h"
#include "platform/qt/platform_qt.h"
#include "platform/qt/player_folder.h"
#include "platform/qt/termination.h"
#include "reports/estadis_view.h"
#include "reports/historic_view.h"
#include "reports/marcador_view.h"
#include "session/entry.h"
#include "table/messages.h"

namespace {

constexpr int kMalaOrden = 2;

// Pictures that were only read to be made smaller give their memory back, instead of leaving holes in the heap.
void CuidaLaMemoria() {
#ifdef __GLIBC__
    constexpr int kImagen = 256 * 1024;
    mallopt(M_MMAP_THRESHOLD, kImagen);
#endif
}

// What has to be settled before Qt looks for a screen.
void PreparaEntorno(bool con_ventana) {
    // The table is painted without OpenGL; its libraries would only take memory.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    if (!con_ventana)
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

void Presenta() {
    QApplication::setApplicationName(QStringLiteral("zovin"));
    QApplication::setApplicationVersion(QStringLiteral(ZOVIN_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("org.example.zovin"));
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

// Another table stands open on the same files: two would write over each other's matches.
bool QuiereOtraMesa(const QString& carpeta) {
    const std::string texto =
        "Zovin ya está en uso en la carpeta\r\n" + carpeta.toStdString() +
        "\r\nPulse Aceptar para jugar en esta otra mesa sin guardar nada de lo "
        "que haga en ella, o Cancelar para salir.";
    return PreguntaAceptar("Zovin ya está en uso", texto, LineasDe(texto));
}

bool QuiereSeguirSinCarpeta(const QString& carpeta) {
    const std::string texto = "No se puede escribir en la carpeta\r\n" + carpeta.toStdString() +
                              "\r\nPulse Aceptar para jugar sin guardar nada de lo que haga, o "
                              "Cancelar para salir.";
    return PreguntaAceptar("Zovin no puede guardar", texto, LineasDe(texto));
}

int JuegaEnVentana(const CarpetaDeJuego& juego) {
    const QString carpeta = juego.Ruta();
    const CerrojoCarpeta cerrojo(carpeta);
    PlataformaQt escritorio(carpeta);
    UsaPlataforma(escritorio);
    escritorio.PonForma(Forma::Personal, AbreVistaPersonal);
    escritorio.PonForma(Forma::Normas, AbreVistaNormas);
    escritorio.PonForma(Forma::Marcador, AbreVistaMarcador);
    escritorio.PonForma(Forma::Historic, AbreVistaHistoric);
    escritorio.PonForma(Forma::Estadis, AbreVistaEstadis);
    const AvisoDeFin fin([&escritorio] { escritorio.PideTermina(); });
    if (juego.EsPrestada() || cerrojo.EnUso()) {
        const bool sigue =
            juego.EsPrestada() ? QuiereSeguirSinCarpeta(juego.Propia()) : QuiereOtraMesa(carpeta);
        if (!sigue)
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

// The games with or without a window; the program's status.
int Juega(int argc, char** argv, bool con_ventana) {
    CuidaLaMemoria();
    PreparaEntorno(con_ventana);
    const std::unique_ptr<QApplication> programa = AbrePantalla(argc, argv);
    Presenta();
    QTranslator traductor;
    HablaEspanol(traductor);
    try {
        const QString orden = QString::fromLocal8Bit(argv[0]);
        return con_ventana ? JuegaEnVentana(CarpetaDeJuego(orden))
                           : JuegaDemo(CarpetaDeLoQueTrae(orden));
    } catch (const std::exception& fallo) {
        CuentaFallo(fallo.what());
        return 1;
    }
}

} // namespace

int main(int argc, char** argv) {
    const LineaDeOrdenes linea =
        LeeOrdenes(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
    switch (linea.orden) {
    case Orden::Ayuda:
        std::fputs(TextoDeUso().c_str(), stdout);
        return 0;
    case Orden::Version:
        std::puts("zovin " ZOVIN_VERSION);
        return 0;
    case Orden::Error:
        std::fprintf(stderr, "zovin: %s\n", linea.queja.c_str());
        return kMalaOrden;
    default:
        return Juega(argc, argv, linea.orden == Orden::Juega);
    }
}
