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

} // namespace

std::unique_ptr<QApplication> AbrePantalla(int& argc, char** argv) {
    const QtMessageHandler antes = qInstallMessageHandler(SinPantalla);
    auto programa = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(antes);
    return programa;
}
