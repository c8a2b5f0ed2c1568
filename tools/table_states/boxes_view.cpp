#include "tools/table_states/boxes_view.h"

#include <QWidget>
#include <array>

#include "platform/qt/message_box.h"
#include "platform/qt/splash.h"
#include "table/messages.h"

namespace {

struct CasoCaja {
    const char* nombre = "";
    const char* titulo = "";
    const char* texto = "";
    int lineas = 0; // 0: as many as the text takes
    int modo = 1;
    bool aceptar = false;
};

constexpr std::array kCajas{
    CasoCaja{"gana", "Final de Partida", "Jugador4, has ganado la partida. ", 1, 1},
    CasoCaja{"continua", "Continuar la partida anterior",
             "Continua  el  desarrollo  de  la  partida  que  no  finalizó en la sesión anterior.",
             2, 1},
    CasoCaja{"sorteo", "Comienza la Partida",
             "Se  ha  sorteado  el  jugador  que  comienza  la  partida.\r\nSale Maximilia.", 2, 1},
    CasoCaja{"final", "Final de la mano",
             "Jugador2 : 8 puntos negativos.\r\nJugador1 : 12 puntos negativos.\r\n"
             "Maximilia : 41 puntos negativos.\r\n\r\nHa ganado la mano Jugador3",
             0, 1},
    CasoCaja{"fichero", "Error en la carga de datos iniciales",
             "No se encuentra el fichero de inicialización ZOV7031.INI. Se ha  procedido  a  "
             "crearlo automáticamente  con  los  valores establecidos por defecto.",
             0, 1},
    CasoCaja{"escritura", "Error al guardar los datos",
             "No se ha podido grabar el fichero ZOV7031.INI. Compruebe que se puede escribir en la "
             "carpeta /home/maximiliana/juegos/cartas/instalados/este-nombre-no-acaba-en-ninguna-"
             "parte-y-no-cabe-en-el-renglon/zovin.",
             0, 1},
    CasoCaja{"pospone", "Posponer la partida en curso",
             "¿Desea  abandonar  el  programa  para  continuar  en  otro momento la partida que "
             "está jugando?",
             2, 2},
    CasoCaja{"pantalla", "Resolución de pantalla",
             "Este  programa  se  ha  diseñado  para  funcionar  con  una resolución mínima de "
             "pantalla de 800x600 con profundidad de color de 16 bits o superior.  La resolución "
             "seleccionada actualmente es de ( 640x 480).  Pulse  Aceptar  para cambiar  la  "
             "resolución  de  la  pantalla  a  800x600  o  Cancelar  para abandonar el programa.",
             6, 2, true},
    CasoCaja{"descripcion", "Descripción general",
             "Si   desea   consultar   una   descripción   general   de   este programa  para  "
             "conocer  rápidamente  su  funcionamiento, pulse el botón de Ayuda.",
             3, 3},
};

// The upper left corner of the picture is the widget's.
QImage CuadroDe(QWidget& que, double ratio) {
    QImage cuadro((QSizeF(que.size()) * ratio).toSize(), QImage::Format_RGB32);
    cuadro.setDevicePixelRatio(ratio);
    que.render(&cuadro);
    cuadro.setDevicePixelRatio(1);
    return cuadro;
}

} // namespace

std::vector<CuadroSuelto> CuadrosSueltos(double ratio) {
    std::vector<CuadroSuelto> cuadros;
    for (const CasoCaja& caso : kCajas) {
        CajaQt caja({.titulo = caso.titulo,
                     .texto = caso.texto,
                     .lineas = caso.lineas == 0 ? LineasDe(caso.texto) : caso.lineas,
                     .modo = caso.modo,
                     .aceptar = caso.aceptar},
                    nullptr);
        cuadros.push_back(
            {QStringLiteral("caja-") + QString::fromUtf8(caso.nombre), CuadroDe(caja, ratio)});
    }
    Careta careta;
    cuadros.push_back({QStringLiteral("careta"), CuadroDe(careta, ratio)});
    return cuadros;
}
