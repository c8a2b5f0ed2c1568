#include "betting/bet_state.h"
#include "core/default_settings.h"
#include "core/game_state.h"

#include <gtest/gtest.h>

namespace {

Integer Siguiente(Integer asiento) {
    SiguienteAsiento(asiento);
    return asiento;
}

Integer Anterior(Integer asiento) {
    AsientoAnterior(asiento);
    return asiento;
}

void DaCarta(Integer asiento, int serie) {
    const Integer lugar = ++estado.NumCartas(asiento, serie);
    estado.Mano(asiento, serie, lugar, kPalo) = kOros;
    estado.Mano(asiento, serie, lugar, kValor) = 7;
    estado.Mano(asiento, serie, lugar, kCara) = kDescubierta;
}

class EstadoTest : public testing::Test {
protected:
    void SetUp() override {
        estado = {};
        PonValoresPorDefecto();
    }
    void Inverso() {
        estado.SentidoJuego = kInverso;
        estado.PasoSentido = -1;
    }
    void Desactiva(Integer asiento) { estado.EstadoJugador(asiento) = kDesactivado; }
};

TEST_F(EstadoTest, DirectoVaDeIzquierdaAArribaADerechaAAbajo) {
    EXPECT_EQ(Siguiente(1), 2);
    EXPECT_EQ(Siguiente(2), 3);
    EXPECT_EQ(Siguiente(3), 4);
    EXPECT_EQ(Siguiente(4), 1);
}

TEST_F(EstadoTest, InversoVaAlReves) {
    Inverso();
    EXPECT_EQ(Siguiente(1), 4);
    EXPECT_EQ(Siguiente(4), 3);
    EXPECT_EQ(Siguiente(3), 2);
    EXPECT_EQ(Siguiente(2), 1);
}

TEST_F(EstadoTest, ElAnteriorDeshaceElSiguiente) {
    for (int sentido = 1; sentido <= 2; ++sentido) {
        for (Integer asiento = 1; asiento <= 4; ++asiento)
            EXPECT_EQ(Anterior(Siguiente(asiento)), asiento);
        Inverso();
    }
}

TEST_F(EstadoTest, UnAsientoDesactivadoTambienSePisa) {
    Desactiva(2);
    EXPECT_EQ(Siguiente(1), 2);
}

TEST_F(EstadoTest, SinCuatroJugadoresNoHayParejas) {
    estado.ModalidadJuego = kDosParejas;
    ActivarAsientos();
    EXPECT_EQ(estado.NumJugadores, 4);
    EXPECT_EQ(estado.ModalidadJuego, kDosParejas);
    Desactiva(3);
    ActivarAsientos();
    EXPECT_EQ(estado.NumJugadores, 3);
    EXPECT_EQ(estado.ModalidadJuego, kIndividual);
    estado.EstadoJugador(3) = kActivado;
    ActivarAsientos();
    EXPECT_EQ(estado.ModalidadJuego, kIndividual);
}

TEST_F(EstadoTest, ActivarAsientosVaciaSoloLasManosDeQuienNoJuega) {
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        DaCarta(asiento, 1);
        DaCarta(asiento, 4);
    }
    Desactiva(2);
    ActivarAsientos();
    for (int serie : {1, 4}) {
        EXPECT_EQ(estado.NumCartas(2, serie), 0);
        for (int campo = 1; campo <= 5; ++campo)
            EXPECT_EQ(estado.Mano(2, serie, 1, campo), 0);
        EXPECT_EQ(estado.NumCartas(3, serie), 1);
        EXPECT_EQ(estado.Mano(3, serie, 1, kValor), 7);
    }
}

TEST_F(EstadoTest, QuienNoJuegaConservaSuNombreYSusAjustes) {
    estado.NombreJugador(2) = "Ana";
    estado.NivelJugador(2) = 33;
    Desactiva(2);
    ActivarAsientos();
    EXPECT_EQ(estado.NombreJugador(2), "Ana");
    EXPECT_EQ(estado.NivelJugador(2), 33);
    EXPECT_EQ(estado.EstadoJugador(2), kDesactivado);
}

TEST_F(EstadoTest, ContarJugadoresNoTocaLasManos) {
    DaCarta(2, 1);
    Desactiva(2);
    CuentaJugadores();
    EXPECT_EQ(estado.NumJugadores, 3);
    EXPECT_EQ(estado.NumCartas(2, 1), 1);
}

TEST_F(EstadoTest, LosAsientosPorDefecto) {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const bool persona = asiento == 4;
        EXPECT_EQ(estado.NombreJugador(asiento), "Jugador" + std::to_string(asiento));
        EXPECT_EQ(estado.NivelJugador(asiento), persona ? 100 : 50);
        EXPECT_EQ(estado.EstadoJugador(asiento), kActivado);
        EXPECT_EQ(estado.CartasJugador(asiento), persona ? kVisibles : kOcultas);
        EXPECT_EQ(estado.ControlJugador(asiento), persona ? kManual : kAutomatico);
    }
    EXPECT_EQ(estado.CaracterJugador(1), kMedio);
    EXPECT_EQ(estado.CaracterJugador(2), kAgresivo);
    EXPECT_EQ(estado.CaracterJugador(3), kConservador);
    EXPECT_EQ(estado.CaracterJugador(4), kMedio);
}

TEST_F(EstadoTest, LasReglasPorDefecto) {
    EXPECT_TRUE(estado.PausaEntreJugadas);
    EXPECT_EQ(estado.SentidoJuego, kDirecto);
    EXPECT_EQ(estado.PasoSentido, 1);
    EXPECT_EQ(estado.VentanaInfo, 1);
    EXPECT_EQ(estado.SistemaReparto, kAutomatico);
    EXPECT_EQ(estado.ModalidadJuego, kIndividual);
    EXPECT_EQ(estado.ComodinesJuego, 1);
    EXPECT_EQ(estado.CartasBaraja, 1);
    EXPECT_EQ(estado.LeyApertura, 1);
    EXPECT_EQ(estado.RestoInicial, 200);
    EXPECT_EQ(estado.ApuestaSalida, 5);
    EXPECT_EQ(estado.ApuestaMaxima, 25);
    EXPECT_EQ(estado.LimitePartida, 3);
    EXPECT_EQ(estado.NumJugadores, 4);
    EXPECT_FALSE(estado.PartidaEnCurso);
}

TEST_F(EstadoTest, ElBoteEsLaFilaCeroDelDinero) {
    apuestas.Fichas(0, 6) = 3;
    EXPECT_NO_THROW(apuestas.Apuesta(0, 4, 5));
    EXPECT_NO_THROW(apuestas.ApuestaPrevia(0, 5));
    EXPECT_NO_THROW(apuestas.RestoPrevio(0));
    EXPECT_THROW(apuestas.Fichas(5, 1), IndiceFuera);
}

TEST(RegistroJuegoTest, BorradoEsComoUnoNuevo) {
    RegistroJuego registro;
    registro.Inicio = "Eva";
    registro.Marcas(4, 1) = 1;
    registro.Texto1(2) = "120";
    registro.Texto2(4) = "A 12 ";
    registro.Cifra(3) = 40;
    registro.Total = 7;
    registro.Borra();
    EXPECT_TRUE(registro == RegistroJuego{});
}

} // namespace
