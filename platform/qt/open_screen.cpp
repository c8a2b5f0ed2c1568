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

// Below its own size Qt lays a window out smaller and paints it no smaller: half of it would be cut off. The scales of a
// desktop come alone or by screens, "2" or "uno=1.5;dos=2".
void NoEncoge(const char* variable) {
    for (const QString& escala : qEnvironmentVariable(variable).split(u';')) {
        bool es_numero = false;
        const double valor = escala.section(u'=', -1).toDouble(&es_numero);
        if (es_numero && valor < 1)
            qunsetenv(variable);
    }
}

} // namespace

std::unique_ptr<QApplication> AbrePantalla(int& argc, char** argv) {
    for (const char* variable : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"})
        NoEncoge(variable);
    const QtMessageHandler antes = qInstallMessageHandler(SinPantalla);
    auto programa = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(antes);
    return programa;
}
