// Which picture of the deck is used: the player's own, or the one that comes with the program.

#include <gtest/gtest.h>

#include <set>

#include "core/session_state.h"
#include "table/deck.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

// A desktop that cannot use some of the pictures.
struct MesaConImagenes : MesaVigilada {
    std::set<std::string> malas;
    std::vector<std::string> cargadas;

    void CargaBaraja(const std::string& ruta, int) override {
        if (malas.contains(ruta))
            throw FalloGrave("No se puede usar la imagen de la baraja «" + ruta + "».");
        cargadas.push_back(ruta);
    }
};

struct ImagenDeLaBaraja : MesaViva {
    MesaConImagenes mesa;

    ImagenDeLaBaraja() {
        UsaPlataforma(mesa);
        estado.CarpetaPrograma = "/programa";
        estado.CarpetaTrabajo = "/mia";
        estado.SaltoLinea = "\r\n";
        sesion.baraja_contada = 0;
        mesa.EnMemoria().Escribe(kDelPrograma, "BM");
    }
    ~ImagenDeLaBaraja() override {
        sesion.baraja_contada = 0;
        UsaPlataforma(p);
    }

    const std::string kMia = "/mia/Baraja02.bmp", kDelPrograma = "/programa/Baraja02.bmp";
    using Rutas = std::vector<std::string>;
};

TEST_F(ImagenDeLaBaraja, LaPropiaVaDelante) {
    mesa.EnMemoria().Escribe(kMia, "BM");
    ConstruirBaraja();
    EXPECT_EQ(mesa.cargadas, Rutas{kMia});
    EXPECT_TRUE(mesa.mensajes.empty());
}

TEST_F(ImagenDeLaBaraja, SinUnaPropiaVaLaDelPrograma) {
    ConstruirBaraja();
    EXPECT_EQ(mesa.cargadas, Rutas{kDelPrograma});
    EXPECT_TRUE(mesa.mensajes.empty());
}

TEST_F(ImagenDeLaBaraja, DeUnaPropiaMalaSeAvisaUnaVezYVaLaDelPrograma) {
    mesa.EnMemoria().Escribe(kMia, "no soy una imagen");
    mesa.malas = {kMia};
    ConstruirBaraja();
    ConstruirBaraja();
    EXPECT_EQ(mesa.cargadas, (Rutas{kDelPrograma, kDelPrograma}));
    ASSERT_EQ(mesa.mensajes.size(), 1U);
    EXPECT_NE(mesa.mensajes[0].texto.find(kMia), std::string::npos);
    EXPECT_NE(mesa.mensajes[0].texto.find("Se juega con la imagen que viene con el programa."),
              std::string::npos);
}

TEST_F(ImagenDeLaBaraja, SiTampocoValeLaDelProgramaNoSeSigue) {
    mesa.EnMemoria().Escribe(kMia, "mala");
    mesa.malas = {kMia, kDelPrograma};
    EXPECT_THROW(ConstruirBaraja(), FalloGrave);
    EXPECT_TRUE(mesa.mensajes.empty());
}

TEST_F(ImagenDeLaBaraja, EnUnaSolaCarpetaUnaMalaNoTieneOtraQueLaSupla) {
    estado.CarpetaTrabajo = estado.CarpetaPrograma;
    mesa.malas = {kDelPrograma};
    EXPECT_THROW(ConstruirBaraja(), FalloGrave);
}

TEST_F(ImagenDeLaBaraja, SinNingunaSeNombraLaPropia) {
    mesa.EnMemoria().Borra(kDelPrograma);
    mesa.malas = {kMia};
    try {
        ConstruirBaraja();
        FAIL() << "a deck without a picture";
    } catch (const FalloGrave& fallo) {
        EXPECT_NE(std::string(fallo.what()).find(kMia), std::string::npos);
    }
}

} // namespace
