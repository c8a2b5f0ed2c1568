#include "session/entry.h"

#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/text.h"
#include "games/game_rows.h"
#include "platform/platform.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "storage/history.h"
#include "storage/settings.h"
#include "table/game_row.h"
#include "table/messages.h"
#include "table/waiting.h"
#include "table/whole_table.h"

namespace {

constexpr int kAnchoNecesario = 800;
constexpr const char* kPrueba = "CSCD.WRK";

// What a player's own folder begins with, in this order: the settings, those of each game, the histories, and what is
// shipped as data.
std::vector<std::string> LosFicheros() {
    std::vector<std::string> ficheros{kIniGeneral};
    for (const FilaJuego* fila : FilasDeJuegos())
        ficheros.push_back(NombreIniJuego(fila->id));
    for (const FilaJuego* fila : FilasDeJuegos())
        ficheros.push_back(NombreHistorico(fila->id));
    ficheros.insert(ficheros.end(), {"Baraja01.bmp", "Baraja02.bmp", "PkFDes.ZOV"});
    return ficheros;
}

bool SePuedeEscribir(const std::string& carpeta) {
    Archivos& archivos = plataforma().LosArchivos();
    const std::string ruta = carpeta + "/" + kPrueba;
    if (archivos.Escribe(ruta, "") != ErrorArchivo::Ninguno)
        return false;
    archivos.Borra(ruta);
    return true;
}

// What is missing at the source is passed over.
void CopiaFicheros() {
    Archivos& archivos = plataforma().LosArchivos();
    for (const std::string& nombre : LosFicheros()) {
        const Lectura lectura = archivos.Lee(estado.CarpetaPrograma + "/" + nombre);
        if (lectura.error == ErrorArchivo::Ninguno)
            archivos.Escribe(estado.CarpetaTrabajo + "/" + nombre, lectura.contenido);
    }
}

void MuestraCareta() {
    plataforma().MuestraCareta();
    estado.VelocidadJuego = 50;
    Pausa(1200);
}

} // namespace

void PruebaCarpeta() {
    if (SePuedeEscribir(estado.CarpetaTrabajo))
        return;
    Archivos& archivos = plataforma().LosArchivos();
    estado.CarpetaTrabajo = plataforma().CarpetaUsuario();
    archivos.CreaCarpeta(estado.CarpetaTrabajo);
    if (!archivos.Existe(estado.CarpetaTrabajo + "/ZOV31.INI"))
        CopiaFicheros();
}

bool CompruebaPantalla() {
    const int ancho = plataforma().AnchoEscritorio();
    const int alto = plataforma().AltoEscritorio();
    if (ancho >= kAnchoNecesario)
        return true;
    if (!PreguntaAceptar("Resolución de pantalla",
                         "Este  programa  se  ha  diseñado  para  funcionar  con  una resolución "
                         "mínima de pantalla "
                         "de 800x600 con profundidad de color de 16 bits o superior.  La "
                         "resolución seleccionada "
                         "actualmente es de (" +
                             Formato(ancho, "@@@") + "x" + Formato(alto, "@@@") +
                             ").  Pulse  Aceptar  para cambiar  la  resolución  de  la  pantalla  "
                             "a  800x600  o  "
                             "Cancelar  para abandonar el programa.",
                         6)) {
        return false;
    }
    // No desktop of today changes its mode for a program: the table scrolls instead.
    Mensaje("Cambio de resolución de pantalla", "No se puede cambiar la resolución de la pantalla.",
            2, 1);
    return true;
}

int ArrancaPrograma() {
    RegistraDespacho(DespachaEvento);
    UsaJuegos(LosJuegos());
    MuestraCareta();
    estado.SaltoLinea = "\r\n";
    estado.CarpetaPrograma = plataforma().CarpetaDelPrograma();
    estado.CarpetaTrabajo = estado.CarpetaPrograma;
    PruebaCarpeta();
    if (!CompruebaPantalla())
        return 0;
    CalcularMesa();
    LeerIniGeneral();
    Pausa(800);
    estado.PrimeraVez = true;
    plataforma().MuestraMesa();
    CambiaTamano(); // the desktop has had its say about the window's size
    IniciarSesion();
    BucleSesion();
    return sesion.estado_salida;
}
