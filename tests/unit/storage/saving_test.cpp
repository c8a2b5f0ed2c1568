#include "storage/saving.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/session_state.h"
#include "storage/settings.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

struct Guardado : MesaViva {
    std::string Archivo(const std::string& nombre) {
        return p.EnMemoria().contenidos["./" + nombre];
    }
    void NoSePuedeEscribir() { p.EnMemoria().de_solo_lectura.insert("."); }
    void YaSePuede() { p.EnMemoria().de_solo_lectura.clear(); }
};

struct MesaSinGuardar : PlataformaSinPantalla {
    bool GuardaPartidas() const override { return false; }
};

} // namespace

TEST_F(Guardado, EscribeLosDosFicheros) {
    EXPECT_TRUE(GuardarPartida());
    EXPECT_THAT(Archivo("ZOV31.INI"), HasSubstr("70"));
    EXPECT_THAT(Archivo("ZOV7031.INI"), HasSubstr("Jugador1"));
    EXPECT_THAT(p.mensajes, IsEmpty());
}

TEST_F(Guardado, LoQueNoSePuedeEscribirSeDiceUnaVez) {
    NoSePuedeEscribir();
    EXPECT_FALSE(GuardarPartida());
    EXPECT_FALSE(GuardarPartida());
    EXPECT_THAT(Titulos(), ElementsAre("Error al guardar los datos"));
    EXPECT_THAT(p.mensajes[0].texto, HasSubstr("ZOV31.INI"));
}

// Another copy of the program keeps its match in the same files.
TEST_F(Guardado, QuienJuegaSinGuardarNoEscribeNada) {
    MesaSinGuardar sin_guardar;
    UsaPlataforma(sin_guardar);
    EXPECT_TRUE(GuardarPartida());
    GuardarYCambiar(kTute);
    EXPECT_EQ(estado.JuegoActivo, kTute);
    LeerIniGeneral();
    LeerIniJuego();
    GuardarYSalir();
    UsaPlataforma(p);
    EXPECT_EQ(sesion.estado_salida, 0);
    EXPECT_THAT(sin_guardar.EnMemoria().contenidos, IsEmpty());
}

TEST_F(Guardado, QuienJuegaSinGuardarDejaElFicheroDanadoDondeEsta) {
    MesaSinGuardar sin_guardar;
    UsaPlataforma(sin_guardar);
    sin_guardar.EnMemoria().contenidos["./ZOV7031.INI"] = "nada";
    LeerIniJuego();
    UsaPlataforma(p);
    EXPECT_TRUE(estado.FicheroNuevo);
    EXPECT_EQ(sin_guardar.EnMemoria().contenidos.size(), 1U);
    EXPECT_EQ(sin_guardar.EnMemoria().contenidos["./ZOV7031.INI"], "nada");
}

TEST_F(Guardado, DespuesDeDecirloSeSigueIntentando) {
    NoSePuedeEscribir();
    EXPECT_FALSE(GuardarPartida());
    YaSePuede();
    EXPECT_TRUE(GuardarPartida());
    EXPECT_THAT(Archivo("ZOV7031.INI"), HasSubstr("Jugador1"));
}

TEST_F(Guardado, AlSalirSeDiceOtraVezYElProgramaAcabaMal) {
    NoSePuedeEscribir();
    EXPECT_FALSE(GuardarPartida());
    GuardarYSalir();
    EXPECT_EQ(p.mensajes.size(), 2U);
    EXPECT_EQ(sesion.estado_salida, 1);
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
}

TEST_F(Guardado, AlSalirBienElEstadoEsCero) {
    GuardarYSalir();
    EXPECT_EQ(sesion.estado_salida, 0);
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
}
