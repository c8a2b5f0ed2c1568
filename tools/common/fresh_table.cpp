#include "tools/common/fresh_table.h"

#include "core/default_settings.h"
#include "core/random.h"
#include "games/game_rows.h"
#include "platform/platform.h"
#include "session/match_driver.h"
#include "session/state_blocks.h"
#include "table/game_row.h"
#include "table/table_view.h"
#include "table/whole_table.h"

void PonMesaNueva() {
    UsaJuegos(LosJuegos());
    BorraEstado();
    sesion = {};
    VaciaColaAzar();
    PonValoresPorDefecto();
    estado.JuegoActivo = kPoker;
    estado.VelocidadJuego = 50;
    estado.SonidoActivo = false;
    estado.CarpetaTrabajo = plataforma().CarpetaDelPrograma();
    estado.CarpetaPrograma = plataforma().CarpetaDelPrograma();
    estado.SaltoLinea = "\r\n";
    CalcularMesa();
    vista = {};
    LimpiarMesa();
    IniciarTablas();
}
