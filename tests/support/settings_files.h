#pragma once
// A session whose settings files lie in memory, for the tests that write and read them.

#include <string>

#include "core/default_settings.h"
#include "core/files.h"
#include "core/game_state.h"
#include "core/session_state.h"
#include "platform/headless/headless_platform.h"
#include "session/state_blocks.h"
#include "storage/settings.h"

namespace prueba {

class SesionConArchivos {
public:
    SesionConArchivos() { UsaPlataforma(plataforma_); }

    // As before the first file is read, for one game.
    void Empieza(Integer juego) {
        BorraEstado();
        sesion = {};
        PonValoresPorDefecto();
        estado.JuegoActivo = juego;
        estado.VelocidadJuego = 50;
        estado.CarpetaTrabajo = estado.CarpetaPrograma = kCarpeta;
        plataforma_.mensajes.clear();
    }

    std::string& Archivo(const std::string& nombre) {
        return Memoria().contenidos[std::string(kCarpeta) + "/" + nombre];
    }
    bool Hay(const std::string& nombre) {
        return Memoria().contenidos.contains(std::string(kCarpeta) + "/" + nombre);
    }
    ArchivosMemoria& Memoria() { return plataforma_.EnMemoria(); }
    PlataformaSinPantalla& LaPlataforma() { return plataforma_; }
    const std::vector<CajaMensaje>& Mensajes() const { return plataforma_.mensajes; }

    static constexpr const char* kCarpeta = "juego";

private:
    PlataformaSinPantalla plataforma_;
};

} // namespace prueba
