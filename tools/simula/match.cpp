#include "tools/simula/match.h"

#include <fmt/format.h>

#include <algorithm>
#include <stdexcept>

#include "betting/chips.h"
#include "core/default_settings.h"
#include "core/invariant.h"
#include "core/random.h"
#include "games/game_rows.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "session/state_blocks.h"
#include "table/button_column.h"
#include "table/chips.h"
#include "table/deck.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/trace.h"
#include "table/waiting.h"
#include "tools/common/fresh_table.h"
#include "tools/common/program_files.h"
#include "tools/simula/invariants.h"

namespace {

// Neighbouring numbers give seeds that have nothing in common.
std::uint64_t SemillaDe(std::uint64_t semilla, std::int64_t n) {
    std::uint64_t z = semilla + 0x9E3779B97F4A7C15u * (static_cast<std::uint64_t>(n) + 1);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return z ^ (z >> 31);
}

std::string NombreAlAzar() {
    constexpr const char* kLetras[] = {"a", "e", "i", "o", "u", "r", "s", "n", "ñ", "á", "é", "Z"};
    std::string nombre;
    for (int quedan = AzarEntre(9); quedan > 0; --quedan)
        nombre += kLetras[AzarEntre(12) - 1];
    return nombre;
}

void SientaAlAzar() {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        estado.NombreJugador(asiento) = NombreAlAzar();
        estado.NivelJugador(asiento) = static_cast<Integer>(AzarEntre(101) - 1);
        estado.CaracterJugador(asiento) = static_cast<Integer>(AzarEntre(3));
    }
    estado.SentidoJuego = static_cast<Integer>(AzarEntre(2));
}

// Who plays by hand sees the cards, and here takes what the wait proposes.
void RepartePersonas(bool al_azar) {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const bool persona = al_azar && AzarEntre(2) == 1;
        estado.ControlJugador(asiento) = persona ? kManual : kAutomatico;
        if (persona)
            estado.CartasJugador(asiento) = kVisibles;
    }
}

bool SonDeAsientos(const std::vector<int>& numeros, int desde, int hasta) {
    if (numeros.empty())
        return true;
    for (int numero : numeros) {
        if (numero < desde || numero > hasta)
            return false;
    }
    return numeros.size() == 4;
}

void Pide(bool cumple, const char* que) {
    if (!cumple)
        throw std::invalid_argument(que);
}

// Rules in points, so that a match does not take for ever. Drawn for the games that have them only.
void PonDinero(const OpcionesSimula& opciones) {
    const FilaJuego& juego = *FilaDe(static_cast<Integer>(opciones.juego));
    if (juego.dinero.hay && opciones.azar) {
        estado.RestoInicial = static_cast<Integer>(5 * (1 + AzarEntre(60)));
        estado.ApuestaMaxima = static_cast<Integer>(
            std::max<int>(estado.RestoInicial / AzarEntre(20), kLimitesApuestaMaxima.minimo));
    }
    if (opciones.resto > 0)
        estado.RestoInicial = static_cast<Integer>(opciones.resto);
    if (opciones.maxima > 0)
        estado.ApuestaMaxima = static_cast<Integer>(opciones.maxima);
}

void PonRegla(Integer& regla, int pedida, int hasta, bool al_azar) {
    if (pedida > 0)
        regla = static_cast<Integer>(pedida);
    else if (al_azar)
        regla = static_cast<Integer>(AzarEntre(hasta));
}

// Rules of the deck and of the opening, for the games whose form has them.
void PonReglas(const OpcionesSimula& opciones) {
    const auto& reglas = FilaDe(static_cast<Integer>(opciones.juego))->normas.reglas;
    if (std::ranges::find(reglas, Regla::Baraja) == reglas.end())
        return;
    PonRegla(estado.CartasBaraja, opciones.baraja, 6, opciones.azar);
    PonRegla(estado.ComodinesJuego, opciones.comodines, 3, opciones.azar);
    PonRegla(estado.LeyApertura, opciones.ley, 14, opciones.azar);
    PonRegla(estado.ApuestaSalida, opciones.salida, 0, false);
}

bool TurnoManual() {
    return estado.EsperandoJugada && estado.ManoEnCurso &&
           estado.ControlJugador(estado.JugadorActual) == kManual;
}

constexpr ControlMesa kBotonesDeAsiento[] = {
    {Control::Pic_BotSuperior, 1},    {Control::Pic_BotSuperior, 2},  {Control::Pic_BotLateral, 1},
    {Control::Pic_BotLateral, 2},     {Control::Pic_BotDobSeg, 0},    {Control::Pic_APBotPasar, 0},
    {Control::Pic_APBotIgualar, 0},   {Control::Pic_APBotApostar, 0}, {Control::Pic_APBotAnular, 0},
    {Control::Pic_Boton, kBotonTutor}};

Evento ClicEn(const Punto& punto) {
    return {.tipo = TipoEvento::RatonPulsa, .x = punto.x, .y = punto.y};
}

// A button that may be there or not, one of the seat's stacks of chips, one of its cards.
Evento UnCapricho() {
    constexpr int kDentro = 3;
    const Integer asiento = estado.JugadorActual;
    const int cual = AzarEntre(static_cast<int>(std::size(kBotonesDeAsiento)) + 6);
    if (cual <= static_cast<int>(std::size(kBotonesDeAsiento))) {
        const ControlMesa& boton = kBotonesDeAsiento[cual - 1];
        return {.tipo = TipoEvento::Clic, .control = boton.control, .indice = boton.indice};
    }
    if (AzarEntre(2) == 1) {
        const Rectangulo pila = PilaDe(asiento, AzarEntre(kDenominaciones));
        return ClicEn({pila.x + kDentro, pila.y + kDentro});
    }
    const Integer cartas = estado.NumCartas(asiento, estado.SerieActual);
    ColocarCarta(asiento, AzarEntre(std::max<int>(cartas, 1)), cartas);
    return ClicEn({estado.CartaX + kDentro, estado.CartaY + kDentro});
}

} // namespace

MesaSimulada::MesaSimulada(void (*al_acabar_mano)(), void (*al_pasar)())
    : al_acabar_mano_(al_acabar_mano), al_pasar_(al_pasar) {
    siempre_continua = true;
    registra = false;
    InstalaFicherosDelPrograma(*this, CarpetaDeDatos());
}

Boton MesaSimulada::Pregunta(const CajaMensaje& caja) {
    // Some games have more to say at the end of a hand, under the same title. A hand of Póker that is void is over
    // without a showdown, and one of Tute can be over before an event has passed.
    const bool sin_contar = mano_en_curso_ || estado.JuegosJugados != juego_contado_;
    if (caja.titulo == "Fin de la mano") {
        CuentaMano();
    } else if (sin_contar && !estado.ManoEnCurso && caja.titulo == "Final de la mano") {
        CuentaMano();
        al_acabar_mano_();
    }
    return caja.modo == 2 ? Boton::No : Boton::Salir;
}

void MesaSimulada::Empieza() {
    manos = 0;
    mano_en_curso_ = false;
    juego_contado_ = 0;
}

void MesaSimulada::CuentaMano() {
    mano_en_curso_ = false;
    juego_contado_ = estado.JuegosJugados;
    ++manos;
}

std::optional<Evento> MesaSimulada::SiguienteEvento(Pase pase) {
    mano_en_curso_ = mano_en_curso_ || estado.ManoEnCurso;
    al_pasar_();
    constexpr int kAntesDeSeguir = 3;
    if (caprichos && pase == Pase::DeEspera && TurnoManual() && AzarEntre(kAntesDeSeguir) > 1)
        return UnCapricho();
    return PlataformaSinPantalla::SiguienteEvento(pase);
}

Simulacion::Simulacion(const OpcionesSimula& opciones)
    : opciones_(opciones),
      mesa_(
          opciones.revisa ? RevisaFinalDeMano : [] {}, opciones.revisa ? RevisaPaso : [] {}) {
    UsaJuegos(LosJuegos());
    Pide(SonDeAsientos(opciones.niveles, 0, 100), "los niveles son cuatro, de 0 a 100");
    Pide(SonDeAsientos(opciones.caracteres, 1, 3), "los caracteres son cuatro, de 1 a 3");
    Pide(opciones.sentido == 1 || opciones.sentido == 2, "el sentido es 1 o 2");
    Pide(opciones.asientos >= 2 && opciones.asientos <= 4, "los asientos son de 2 a 4");
    Pide(opciones.baraja >= 0 && opciones.baraja <= 6, "las barajas son de 1 a 6");
    Pide(opciones.comodines >= 0 && opciones.comodines <= 3, "los comodines son de 1 a 3");
    Pide(opciones.ley >= 0 && opciones.ley <= 14, "la ley de apertura va de 1 a 14");
    Pide(opciones.salida >= 0 && opciones.salida <= 999, "la apuesta de salida va de 1 a 999");
    Pide(opciones.limite >= 1 && opciones.limite <= 999, "el límite va de 1 a 999");
    Pide(!opciones.parejas || opciones.asientos == 4, "las parejas son de cuatro asientos");
    const FilaJuego* juego = FilaDe(static_cast<Integer>(opciones.juego));
    Pide(juego != nullptr && SePuedeJugar(*juego), "ese juego no se puede jugar");
    Pide(opciones.asientos >= juego->asientos.minimo, "a ese juego juegan más asientos");
    Pide(!opciones.parejas || !juego->asientos.sin_parejas, "a ese juego no se juega por parejas");
    UsaPlataforma(mesa_);
    RegistraDespacho(&DespachaEvento);
    PonMesaNueva();
    if (opciones_.firma) {
        EscuchaTraza([this](const std::string& linea) {
            if (linea.starts_with("MoverCarta("))
                firma_.Anade(
                    std::string_view(linea).substr(0, linea.find(',', linea.find(',') + 1)));
        });
    }
}

Simulacion::~Simulacion() {
    EscuchaTraza({});
}

// One match follows the other at the same table: a new match owes nothing to the one before.
void Simulacion::PreparaPartida(std::int64_t n) {
    sesion = {};
    VaciaColaAzar();
    PonValoresPorDefecto();
    FijaSemilla(SemillaDe(opciones_.semilla, n));
    estado.JuegoActivo = static_cast<Integer>(opciones_.juego);
    estado.VelocidadJuego = 100;
    estado.PausaEntreJugadas = false;
    estado.LimitePartida = static_cast<Integer>(opciones_.limite);
    estado.ModalidadJuego = opciones_.parejas ? kDosParejas : kIndividual;
    estado.SentidoJuego = static_cast<Integer>(opciones_.sentido);
    if (opciones_.azar)
        SientaAlAzar();
    RepartePersonas(opciones_.personas || opciones_.caprichos);
    PonDinero(opciones_);
    PonReglas(opciones_);
    mesa_.caprichos = opciones_.caprichos;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const auto i = static_cast<std::size_t>(asiento - 1);
        estado.EstadoJugador(asiento) = asiento <= opciones_.asientos ? kActivado : kDesactivado;
        if (!opciones_.niveles.empty())
            estado.NivelJugador(asiento) = static_cast<Integer>(opciones_.niveles[i]);
        if (!opciones_.caracteres.empty())
            estado.CaracterJugador(asiento) = static_cast<Integer>(opciones_.caracteres[i]);
    }
    estado.PasoSentido = estado.SentidoJuego == kDirecto ? Integer{1} : Integer{-1};
    ActivarAsientos();
    ConstruirBaraja();
}

void Simulacion::FirmaRegistros() {
    for (int n = 1; n <= estado.JuegosJugados; ++n) {
        const RegistroJuego& registro = estado.Juegos(n);
        firma_.Anade(registro.Inicio);
        for (Integer marca : registro.Marcas)
            firma_.Anade(marca);
        for (int asiento = 1; asiento <= 4; ++asiento) {
            firma_.Anade(registro.Texto1(asiento));
            firma_.Anade(registro.Texto2(asiento));
            firma_.Anade(registro.Cifra(asiento));
            firma_.Anade(estado.JuegosGanados(asiento));
        }
        firma_.Anade(registro.Total);
    }
}

Totales Simulacion::Juega(std::int64_t n) {
    PreparaPartida(n);
    firma_ = {};
    firma_.Anade(n);
    mesa_.Empieza();
    NuevaPartida();
    Exige(!sesion.sin_eventos, "una espera se quedó sin eventos");
    if (opciones_.revisa)
        RevisaFinalDePartida(mesa_.manos);
    Totales totales;
    totales.partidas = 1;
    totales.manos = mesa_.manos;
    totales.ganadas[static_cast<std::size_t>(estado.GanadorPartida)] = 1;
    if (opciones_.firma) {
        FirmaRegistros();
        totales.firma = firma_.Valor();
    }
    return totales;
}
