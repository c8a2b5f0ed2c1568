#include "platform/qt/demo.h"

#include <QImage>
#include <QString>
#include <cstdio>

#include "core/default_settings.h"
#include "core/game_state.h"
#include "games/game_rows.h"
#include "platform/qt/picture_platform.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "table/game_row.h"
#include "table/waiting.h"
#include "table/whole_table.h"

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
    UsaJuegos(LosJuegos());
    PonValoresPorDefecto();
    estado.SaltoLinea = "\r\n";
    estado.CarpetaPrograma = carpeta.toStdString();
    estado.CarpetaTrabajo = estado.CarpetaPrograma;
    CalcularMesa();
    for (const FilaJuego* juego : FilasDeJuegos()) {
        if (SePuedeJugar(*juego))
            JuegaPartida(mesa, *juego);
    }
    if (mesa.ultima.isNull() || !mesa.ultima.save(QString::fromUtf8(kFichero))) {
        std::fprintf(stderr, "zovin: no se puede escribir %s\n", kFichero);
        return 1;
    }
    return 0;
}
