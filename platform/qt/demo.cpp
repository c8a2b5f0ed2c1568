#include "platform/qt/demo.h"

#include <QImage>
#include <QString>
#include <cstdio>

#include "core/game_state.h"
#include "core/main_buttons.h"
#include "core/match_driver.h"
#include "games/game_table.h"
#include "platform/qt/picture_platform.h"
#include "table/table_ops.h"
#include "table/waiting.h"

namespace {

constexpr const char* kFichero = "partida.png";

// The headless desktop that tells the messages of a match as they come.
class PlataformaDemo : public PlataformaCuadro {
public:
    QImage ultima;
    bool cuenta = false;

    Boton Pregunta(const CajaMensaje& caja) override {
        if (cuenta) {
            const QString texto = QString::fromStdString(caja.texto).simplified();
            std::printf("  %s: %s\n", caja.titulo.c_str(), texto.toUtf8().constData());
            ultima = Cuadro();
        }
        return PlataformaCuadro::Pregunta(caja);
    }
};

void PonTodosAutomaticos() {
    for (int asiento = 1; asiento <= 4; ++asiento)
        estado.ControlJugador(asiento) = kAutomatico;
    estado.PausaEntreJugadas = false;
}

void JuegaPartida(PlataformaDemo& mesa, const FilaJuego& juego) {
    std::printf("%s\n", juego.nombre);
    estado.JuegoActivo = juego.id;
    mesa.cuenta = false;
    IniciarSesion();
    PonTodosAutomaticos();
    mesa.cuenta = true;
    NuevaPartida();
}

} // namespace

int JuegaDemo(const QString& carpeta) {
    PlataformaDemo mesa;
    UsaPlataforma(mesa);
    mesa.Mide(1024, 768);
    mesa.siempre_continua = true;
    RegistraDespacho(DespachaEvento);
    PonValoresPorDefecto();
    estado.SaltoLinea = "\r\n";
    estado.CarpetaPrograma = carpeta.toStdString();
    estado.CarpetaTrabajo = estado.CarpetaPrograma;
    CalcularMesa();
    for (const FilaJuego* juego : FilasDeJuegos()) {
        if (juego->driver != nullptr)
            JuegaPartida(mesa, *juego);
    }
    if (mesa.ultima.isNull() || !mesa.ultima.save(QString::fromUtf8(kFichero))) {
        std::fprintf(stderr, "zovin: no se puede escribir %s\n", kFichero);
        return 1;
    }
    return 0;
}
