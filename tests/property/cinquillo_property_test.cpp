// Whole matches of Cinquillo, whoever sits at the table: each one ends, each hand is forty cards, and what was
// laid, passed and recorded follows the rules.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "core/random.h"
#include "core/text.h"
#include "games/common/trick_state.h"
#include "platform/headless/headless_platform.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "table/deck.h"
#include "table/waiting.h"
#include "tests/support/trick_hands.h"
#include "tools/common/fresh_table.h"

namespace {

using prueba::Carta;
using rc::gen::inRange;

constexpr Integer kFilaPalo = 5, kFilaValor = 10;

struct OrdenDeCartas {
    bool operator()(const Carta& a, const Carta& b) const {
        return std::pair(a.palo, a.valor) < std::pair(b.palo, b.valor);
    }
};
using Cartas = std::set<Carta, OrdenDeCartas>;

// Who sits at the table, and what they look like from outside.
struct Mesa : PlataformaSinPantalla {
    Mesa() {
        siempre_continua = true;
        registra = false;
    }
    Boton Pregunta(const CajaMensaje& caja) override {
        if (caja.titulo == "Final de la mano")
            al_acabar_mano();
        return caja.modo == 2 ? Boton::No : Boton::Salir;
    }
    bool GuardaPartidas() const override { return false; }
    std::function<void()> al_acabar_mano;
};

std::string UnNombre() {
    static const std::vector<std::string> kLetras{"A", "b", "ñ", "Í", "z", " ", "1", "-"};
    std::string nombre;
    for (int letras = *inRange(0, 10); letras > 0; --letras)
        nombre += *rc::gen::elementOf(kLetras);
    return nombre;
}

void SientaATodos() {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        estado.NombreJugador(asiento) = UnNombre();
        estado.NivelJugador(asiento) = static_cast<Integer>(*inRange(0, 101));
        estado.CaracterJugador(asiento) = static_cast<Integer>(*inRange(1, 4));
        estado.ControlJugador(asiento) = static_cast<Integer>(*inRange(1, 3));
        estado.CartasJugador(asiento) =
            estado.ControlJugador(asiento) == kManual ? kVisibles : kOcultas;
    }
    estado.SentidoJuego = static_cast<Integer>(*inRange(1, 3));
    estado.PasoSentido = estado.SentidoJuego == kDirecto ? Integer{1} : Integer{-1};
    estado.LimitePartida = static_cast<Integer>(*inRange(1, 4));
    estado.PausaEntreJugadas = *rc::gen::arbitrary<bool>();
}

Carta LoTendido(Integer asiento, int ronda) {
    return {bazas.RegistroBazas(asiento + kFilaPalo, ronda),
            bazas.RegistroBazas(asiento + kFilaValor, ronda)};
}

// What the seat held when the hand began: what it has laid and what it has left.
Cartas ManoInicial(Integer asiento) {
    Cartas mano;
    for (int ronda = 1; ronda <= estado.NumBaza; ++ronda) {
        if (const Carta carta = LoTendido(asiento, ronda); carta.palo != kSinCarta)
            mano.insert(carta);
    }
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar)
        mano.insert(
            Carta{estado.Mano(asiento, 1, lugar, kPalo), estado.Mano(asiento, 1, lugar, kValor)});
    return mano;
}

// The rule told once more, from the table's side: a 5, or a card beside one that lies there toward the 5.
bool SePuedeTender(const Carta& carta, const Cartas& mesa) {
    constexpr Integer kVecina[] = {0, 2, 3, 4, 5, 0, 5, 6, 0, 0, 7, 10, 11};
    return carta.valor == 5 || mesa.contains(Carta{carta.palo, kVecina[carta.valor]});
}

// Plays the hand again from its log.
class Repeticion {
public:
    Repeticion() {
        for (Integer asiento = 1; asiento <= 4; ++asiento)
            manos_[static_cast<std::size_t>(asiento)] = ManoInicial(asiento);
    }
    void RevisaElReparto() const {
        Cartas todas;
        for (const Cartas& mano : manos_) {
            RC_ASSERT(mano.empty() || mano.size() == 10U);
            todas.insert(mano.begin(), mano.end());
        }
        RC_ASSERT(todas.size() == 40U);
        for (const Carta& carta : todas)
            RC_ASSERT(carta.valor <= 7 || carta.valor >= 10);
    }
    void RevisaLosTurnos() {
        Integer asiento = estado.JugadorMano;
        for (int ronda = 1; ronda <= estado.NumBaza; ++ronda) {
            for (int turno = 1; turno <= 4; ++turno) {
                Turno(asiento, ronda);
                if (Mano(asiento).empty()) {
                    RC_ASSERT(asiento == estado.GanadorMano);
                    RC_ASSERT(ronda == estado.NumBaza);
                    return;
                }
                SiguienteAsiento(asiento);
            }
        }
        RC_FAIL("nadie se quedó sin cartas");
    }

private:
    Cartas& Mano(Integer asiento) { return manos_[static_cast<std::size_t>(asiento)]; }
    void Turno(Integer asiento, int ronda) {
        const Carta carta = LoTendido(asiento, ronda);
        if (carta.palo == kSinCarta) {
            for (const Carta& suya : Mano(asiento))
                RC_ASSERT(!SePuedeTender(suya, mesa_)); // who can lay does not pass
            return;
        }
        RC_ASSERT(Mano(asiento).erase(carta) == 1U);
        RC_ASSERT(SePuedeTender(carta, mesa_));
        mesa_.insert(carta);
    }
    std::array<Cartas, 5> manos_;
    Cartas mesa_;
};

void RevisaMano() {
    Repeticion repeticion;
    repeticion.RevisaElReparto();
    repeticion.RevisaLosTurnos();
}

// A card counts 6 less its distance from the 5, without a gap between the 7 and the Sota.
int NegativosDe(const std::string& cartas) {
    constexpr int kPuntos[] = {0, 2, 3, 4, 5, 6, 5, 4, 0, 0, 3, 2, 1};
    int suma = 0;
    for (std::size_t desde = 0; desde < cartas.size();) {
        const std::size_t hasta = cartas.find(' ', desde);
        const std::string carta = cartas.substr(desde, hasta - desde);
        suma += kPuntos[carta == "A" ? 1 : std::stoi(carta)];
        desde = hasta + 1;
    }
    return suma;
}

void RevisaRegistro(const RegistroJuego& registro) {
    RC_ASSERT(Longitud(registro.Inicio) <= 9);
    int ganadores = 0;
    int de_otros = 0;
    std::string del_ganador;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        RC_ASSERT(Longitud(registro.Texto1(asiento)) <= 17);
        if (registro.Marcas(asiento, 1) == 1) {
            ++ganadores;
            del_ganador = registro.Texto1(asiento);
            RC_ASSERT(registro.Texto2(asiento).empty());
            continue;
        }
        RC_ASSERT(registro.Texto1(asiento) ==
                  std::to_string(NegativosDe(registro.Texto2(asiento))));
        de_otros += std::stoi(registro.Texto1(asiento));
    }
    RC_ASSERT(ganadores == 1);
    RC_ASSERT(del_ganador == std::to_string(de_otros));
}

void RevisaPartida() {
    RC_ASSERT(!estado.PartidaEnCurso);
    RC_ASSERT(!estado.ManoEnCurso);
    int ganados = 0;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const bool llega = estado.JuegosGanados(asiento) == estado.LimitePartida;
        RC_ASSERT(estado.JuegosGanados(asiento) <= estado.LimitePartida);
        RC_ASSERT(llega == (asiento == estado.GanadorPartida));
        ganados += estado.JuegosGanados(asiento);
    }
    RC_ASSERT(ganados == estado.JuegosJugados);
    for (int juego = 1; juego <= estado.JuegosJugados; ++juego)
        RevisaRegistro(estado.Juegos(juego));
}

} // namespace

RC_GTEST_PROP(Cinquillo, SeaQuienSeaCadaPartidaSigueLasReglasYAcaba, ()) {
    Mesa mesa;
    UsaPlataforma(mesa);
    RegistraDespacho(DespachaEvento);
    PonMesaNueva();
    FijaSemilla(*rc::gen::arbitrary<std::uint32_t>());
    estado.JuegoActivo = kCinquillo;
    estado.VelocidadJuego = 100;
    SientaATodos();
    ConstruirBaraja();
    mesa.al_acabar_mano = RevisaMano;
    NuevaPartida();
    RC_ASSERT(!sesion.sin_eventos);
    RevisaPartida();
}
