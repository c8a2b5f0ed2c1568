// The names that are lit, in all games, for whose turn it is and who takes the trick; the words of a cante.

#include <gtest/gtest.h>

#include <cstdio>
#include <optional>

#include "core/session_state.h"
#include "games/common/trick_state.h"
#include "games/common/trick_values.h"
#include "games/game_rows.h"
#include "games/trick/cantes.h"
#include "table/table_view.h"
#include "table/trace.h"
#include "table/waiting.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

int esperas = 0; // waits of a hand that were looked at
int sin_luz = 0; // those in which the seat on turn was not lit
int de_mas = 0;  // waits between hands with a name still lit
constexpr int kBastantes = 120;

void MiraYSigue(const Evento& evento) {
    if (evento.tipo == TipoEvento::Clic && evento.control == Control::Pic_BotContinuar) {
        const bool en_turno =
            vista.asiento_encendido == estado.JugadorActual && vista.luz == Luz::Turno;
        ++esperas;
        if (estado.ManoEnCurso && !en_turno)
            ++sin_luz;
        if (!estado.ManoEnCurso && vista.asiento_encendido != 0)
            ++de_mas;
        if (esperas >= kBastantes)
            sesion.peticion = Peticion::Salir;
    }
    DespachaEvento(evento);
}

struct NombresEncendidos : MesaViva, testing::WithParamInterface<Integer> {
    NombresEncendidos() {
        esperas = sin_luz = de_mas = 0;
        RegistraDespacho(MiraYSigue);
    }
};

} // namespace

TEST_P(NombresEncendidos, ElAsientoDelTurnoLoEstaMientrasSeLeEspera) {
    Juega(GetParam());
    p.siempre_continua = true;
    NuevaPartida();
    EXPECT_GT(esperas, 10);
    EXPECT_EQ(sin_luz, 0);
    EXPECT_EQ(de_mas, 0);
}

INSTANTIATE_TEST_SUITE_P(Juegos, NombresEncendidos,
                         testing::Values(kPoker, kBlackJack, kTute, kBrisca, kSieteYMedia,
                                         kCinquillo));

namespace {

// Every trick of a match: from the words that say who takes it until the seats are painted again.
struct BazaGanada : MesaViva {
    int ganadas = 0, miradas = 0;

    BazaGanada() {
        p.al_anunciar = [this](const std::string& que) {
            if (!que.ends_with(" gana la baza"))
                return;
            ++ganadas;
            en_la_baza_ = true;
            EXPECT_EQ(que, estado.NombreJugador(estado.GanadorBaza) + " gana la baza");
        };
        EscuchaTraza([this](const std::string& linea) {
            if (en_la_baza_)
                Mira(linea);
        });
    }

private:
    // The trick blinks, and is taken up with a box of felt; then come the seats.
    void Mira(const std::string& linea) {
        if (linea.starts_with("Pausa(") || linea.starts_with("DibujarCaja(")) {
            ++miradas;
            EXPECT_EQ(vista.asiento_encendido, estado.GanadorBaza) << linea;
            EXPECT_EQ(vista.luz, Luz::Baza) << linea;
        } else if (linea.starts_with("RedibujarAsiento(")) {
            EXPECT_EQ(vista.asiento_encendido, 0);
            en_la_baza_ = false;
        }
    }
    bool en_la_baza_ = false;
};

} // namespace

TEST_F(BazaGanada, ElNombreDelGanadorLuceHastaQueLaBazaSeRecoge) {
    constexpr int kBazas = 10, kPausas = 6, kCajas = 3;
    Juega(kBrisca);
    TodoSolo();
    estado.LimitePartida = 1;
    NuevaPartida();
    EXPECT_EQ(ganadas, kBazas * estado.JuegosJugados);
    EXPECT_EQ(miradas, ganadas * (kPausas + kCajas));
    EXPECT_EQ(vista.asiento_encendido, 0);
}

namespace {

// Every card that is played: lit while it flies, dark when it has fallen.
struct CartaJugada : MesaViva, testing::WithParamInterface<Integer> {
    int jugadas = 0;

    CartaJugada() {
        EscuchaTraza([this](const std::string& linea) {
            if (linea.starts_with("MoverCarta("))
                al_volar_ = vista.luz == Luz::Turno ? vista.asiento_encendido : 0;
        });
        p.al_anunciar = [this](const std::string& que) {
            if (que.find(" juega ") == std::string::npos)
                return;
            ++jugadas;
            EXPECT_EQ(al_volar_, estado.JugadorActual) << que;
            EXPECT_EQ(vista.asiento_encendido, 0) << que;
        };
    }

private:
    int al_volar_ = 0;
};

} // namespace

TEST_P(CartaJugada, LaLuzDelTurnoSeApagaCuandoHaCaido) {
    Juega(GetParam());
    TodoSolo();
    estado.LimitePartida = 1;
    NuevaPartida();
    EXPECT_GE(jugadas, 20);
}

INSTANTIATE_TEST_SUITE_P(DeCartas, CartaJugada, testing::Values(kTute, kBrisca, kCinquillo));

namespace {

struct CanteEnMesa : MesaViva {
    CanteEnMesa() {
        p.UsaLienzosRegistrados();
        Juega(kTute);
        ManoEmpezada(4);
        estado.PaloTriunfo = kBastos;
        Gana(2);
        estado.NumBaza = 3;
        p.Dibujado(Control::Mesa).Olvida();
    }
    static void Gana(Integer asiento) {
        estado.GanadorBaza = asiento;
        bazas.GanadorDeBaza(3) = asiento;
    }
    // The letters that were drawn, in their order.
    std::string Letras() {
        std::string letras;
        for (const std::string& llamada : p.Dibujado(Control::Mesa).Llamadas()) {
            const auto abre = llamada.find('"');
            if (llamada.starts_with("Texto("))
                letras += llamada.substr(abre + 1, llamada.rfind('"') - abre - 1);
        }
        return letras;
    }
    // The plate of the words has been drawn, and neither felt nor a card over it since.
    bool CanteALaVista(Integer asiento) {
        bool visible = false;
        for (const std::string& llamada : p.Dibujado(Control::Mesa).Llamadas()) {
            const std::optional<Rectangulo> donde = LoCubierto(llamada);
            if (!donde || !SeCortan(*donde, BandaDelCante(asiento)))
                continue;
            visible = llamada.starts_with("Caja(") && *donde == BandaDelCante(asiento);
        }
        return visible;
    }
    static bool HayLevantadas(Integer asiento) {
        bool hay = false;
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar)
            hay = hay || estado.Mano(asiento, 1, lugar, kAltura) == kLevantada;
        return hay;
    }

private:
    static bool SeCortan(const Rectangulo& a, const Rectangulo& b) {
        return a.x < b.x + b.ancho && b.x < a.x + a.ancho && a.y < b.y + b.alto &&
               b.y < a.y + a.alto;
    }
    // 18 pixels beyond where raised cards reach.
    static Rectangulo BandaDelCante(Integer asiento) {
        const Rectangulo zona = ZonaDe(asiento), todo = ZonaConRealce(asiento);
        switch (asiento) {
        case 1:
            return {todo.x + todo.ancho, zona.y, 18, zona.alto};
        case 2:
            return {zona.x, todo.y + todo.alto, zona.ancho, 18};
        case 3:
            return {todo.x - 20, zona.y, 18, zona.alto};
        default:
            return {zona.x, todo.y - 20, zona.ancho, 18};
        }
    }
    static std::optional<Rectangulo> LoCubierto(const std::string& llamada) {
        Rectangulo r;
        int orientacion = 0, palo = 0, valor = 0, cara = 0;
        if (std::sscanf(llamada.c_str(), "Carta(%d, %d; palo %d valor %d cara %d orientación %d",
                        &r.x, &r.y, &palo, &valor, &cara, &orientacion) == 6) {
            const bool acostada = orientacion % 2 == 0;
            r.ancho = acostada ? kAltoCarta : kAnchoCarta;
            r.alto = acostada ? kAnchoCarta : kAltoCarta;
            return r;
        }
        for (const char* forma : {"Fieltro(%d, %d, %d, %d", "Caja(%d, %d, %d, %d"}) {
            if (std::sscanf(llamada.c_str(), forma, &r.x, &r.y, &r.ancho, &r.alto) == 4)
                return r;
        }
        return std::nullopt;
    }
};

} // namespace

TEST_F(CanteEnMesa, ElVeinteDiceSuPalo) {
    PonMano(2, {{kOros, kCaballo}, {kOros, kRey}});
    CantaTrasBaza();
    EXPECT_NE(Letras().find("Veinte en Oros"), std::string::npos);
}

TEST_F(CanteEnMesa, ElDelTriunfoEsCuarenta) {
    PonMano(2, {{kBastos, kCaballo}, {kBastos, kRey}});
    CantaTrasBaza();
    EXPECT_NE(Letras().find("Cuarenta"), std::string::npos);
}

TEST_F(CanteEnMesa, ElTuteTambienSeDice) {
    PonMano(2, {{kOros, kRey}, {kCopas, kRey}, {kEspadas, kRey}, {kBastos, kRey}});
    CantaTrasBaza();
    EXPECT_NE(Letras().find("Tute"), std::string::npos);
}

TEST_F(CanteEnMesa, SinCanteNoSeDiceNada) {
    PonMano(2, {{kOros, kRey}, {kCopas, kCaballo}});
    CantaTrasBaza();
    EXPECT_EQ(Letras(), "");
}

TEST_F(CanteEnMesa, SusPalabrasEstanMientrasLasCartasSeLevantanYLuegoSeVan) {
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        Gana(asiento);
        PonMano(asiento, {{kOros, kCaballo}, {kCopas, 4}, {kOros, kRey}});
        int levantadas = 0;
        EscuchaTraza([&](const std::string& linea) {
            if (!linea.starts_with("Pausa(") || !HayLevantadas(asiento))
                return;
            ++levantadas;
            EXPECT_TRUE(CanteALaVista(asiento)) << asiento << ' ' << linea;
        });
        CantaTrasBaza();
        EXPECT_EQ(levantadas, 3 * 2);
        EXPECT_FALSE(CanteALaVista(asiento)) << asiento;
        bazas.PaloCantado.Borra();
    }
}
