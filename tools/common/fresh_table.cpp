#include "tools/common/fresh_table.h"

#include "core/match_driver.h"
#include "core/random.h"
#include "games/state_blocks.h"
#include "platform/platform.h"
#include "table/table_ops.h"
#include "table/table_view.h"

void PonMesaNueva() {
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
