#include "platform/qt/open_screen.h"

#include <cstdio>
#include <cstdlib>

namespace {

// Qt ends a program that finds no screen by aborting it, whatever the reason; before that it hands its last words to this.
// What it says on the way there is not for players.
void SinPantalla(QtMsgType tipo, const QMessageLogContext&, const QString&) {
    if (tipo != QtFatalMsg)
        return;
    std::fputs("zovin: no se puede abrir ninguna pantalla (ni DISPLAY ni WAYLAND_DISPLAY llevan a "
               "una); con --demo se juega sin ella.\n",
               stderr);
    std::_Exit(1);
}

bool Encoge(const QString& escala) {
    bool es_numero = false;
    const double valor = escala.toDouble(&es_numero);
    return es_numero && valor < 1;
}

// Below its own size Qt lays a window out smaller and paints it no smaller: half of it would be cut off.
void NoEncoge(const char* variable) {
    if (qEnvironmentVariableIsSet(variable))
        qputenv(variable, SinEncoger(qEnvironmentVariable(variable)).toLocal8Bit());
}

} // namespace

QString SinEncoger(const QString& escalas) {
    QStringList todas = escalas.split(u';');
    for (QString& una : todas) {
        const qsizetype tras_el_nombre = una.lastIndexOf(u'=') + 1;
        if (Encoge(una.sliced(tras_el_nombre)))
            una = una.first(tras_el_nombre) + u'1';
    }
    return todas.join(u';');
}

std::unique_ptr<QApplication> AbrePantalla(int& argc, char** argv) {
    for (const char* variable : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"})
        NoEncoge(variable);
    const QtMessageHandler antes = qInstallMessageHandler(SinPantalla);
    auto programa = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(antes);
    return programa;
}
