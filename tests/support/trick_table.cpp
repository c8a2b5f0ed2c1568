#include "tests/support/trick_table.h"

#include <algorithm>

#include "core/random.h"
#include "core/session_state.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "table/layout.h"
#include "table/trace.h"
#include "table/waiting.h"
#include "table/whole_table.h"
#include "tests/support/live_table.h"

namespace prueba {

namespace {

std::string NombreDeLlamada(const std::string& linea) {
    return linea.substr(0, linea.find('('));
}

} // namespace

MesaDeTrick::MesaDeTrick(Integer juego, Integer jugadores) {
    plataforma.siempre_continua = true;
    UsaPlataforma(plataforma);
    RegistraDespacho(&DespachaEvento);
    VaciaColaAzar();
    FijaSemilla(7);
    sesion = {};
    MesaDeBazas(juego, jugadores);
    estado.SaltoLinea = "\r\n";
    estado.SistemaReparto = 1;
    estado.VentanaInfo = 1;
    estado.VelocidadJuego = 50;
    estado.PartidaEnCurso = true;
    estado.JugadorMano = 2;
    CalcularMesa();
    IniciarTablas();
    ColocarMazo();
}

MesaDeTrick::~MesaDeTrick() {
    EscuchaTraza({});
    VaciaColaAzar();
}

void MesaDeTrick::Escucha(const std::vector<std::string>& nombres) {
    traza.clear();
    EscuchaTraza([this, nombres](const std::string& linea) {
        if (std::ranges::find(nombres, NombreDeLlamada(linea)) != nombres.end())
            traza.push_back(linea);
    });
}

std::string MesaDeTrick::TextoMensaje() const {
    return plataforma.mensajes.empty() ? "" : plataforma.mensajes.back().texto;
}

void ApilaBaraja(const std::vector<Carta>& primeras) {
    EncolaAzar(AzarParaBaraja(primeras));
}

int Cuantas(const std::vector<std::string>& traza, const std::string& nombre) {
    return static_cast<int>(std::ranges::count(traza, nombre, NombreDeLlamada));
}

} // namespace prueba
