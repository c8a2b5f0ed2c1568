#include "tests/support/live_table.h"

#include <algorithm>

#include "core/random.h"
#include "session/state_blocks.h"
#include "table/deck.h"
#include "table/trace.h"
#include "table/waiting.h"
#include "tools/common/fresh_table.h"

namespace prueba {

namespace {

// The deck's cards as the shuffle walks them.
std::vector<Carta> CartasDeLaBaraja() {
    std::vector<Carta> cartas;
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (Integer valor = 1; valor <= estado.ColumnasBaraja; ++valor) {
            if (estado.ValorEnBaraja(valor))
                cartas.emplace_back(palo, valor);
        }
    }
    return cartas;
}

// The calls of an operation among others.
std::vector<std::string> LasDe(const std::string& operacion,
                               const std::vector<std::string>& llamadas) {
    std::vector<std::string> suyas;
    std::ranges::copy_if(llamadas, std::back_inserter(suyas), [&](const std::string& llamada) {
        return llamada.starts_with(operacion + "(");
    });
    return suyas;
}

} // namespace

std::vector<double> AzarParaBaraja(const std::vector<Carta>& orden) {
    std::size_t siguiente = orden.size();
    std::vector<double> azar;
    for (const Carta& carta : CartasDeLaBaraja()) {
        const auto nombrada = std::ranges::find(orden, carta);
        const std::size_t lugar = nombrada == orden.end()
                                      ? siguiente++
                                      : static_cast<std::size_t>(nombrada - orden.begin());
        azar.push_back((static_cast<double>(lugar) + 0.5) / estado.TotalBaraja);
    }
    return azar;
}

MesaViva::MesaViva() {
    UsaPlataforma(p);
    RegistraDespacho(DespachaEvento);
    FijaSemilla(20);
    PonMesaNueva();
    Juega(kCinquillo);
}

MesaViva::~MesaViva() {
    EscuchaTraza({});
    VaciaColaAzar();
}

void MesaViva::Juega(Integer juego) {
    estado.JuegoActivo = juego;
    estado.SerieActual = estado.SerieEnJuego = 1;
    ConstruirBaraja();
    ColocarMazo();
}

void MesaViva::TodoSolo() {
    estado.PausaEntreJugadas = false;
    for (int asiento = 1; asiento <= 4; ++asiento)
        estado.ControlJugador(asiento) = kAutomatico;
}

void MesaViva::ManoEmpezada(Integer asiento) {
    estado.PartidaEnCurso = true;
    estado.ManoEnCurso = true;
    estado.JugadorActual = asiento;
}

void MesaViva::Desactiva(std::initializer_list<Integer> asientos) {
    for (Integer asiento : asientos)
        estado.EstadoJugador(asiento) = kDesactivado;
    ActivarAsientos();
    ConstruirBaraja();
}

void MesaViva::BarajaSera(const std::vector<Carta>& orden) {
    EncolaAzar(AzarParaBaraja(orden));
}

void MesaViva::Mueve(int x, int y) {
    DespachaEvento({.tipo = TipoEvento::RatonMueve, .x = x, .y = y});
}

void MesaViva::Aprieta(int x, int y, int boton) {
    DespachaEvento({.tipo = TipoEvento::RatonPulsa, .x = x, .y = y, .boton = boton});
}

void MesaViva::Suelta(int x, int y, int boton) {
    DespachaEvento({.tipo = TipoEvento::RatonSuelta, .x = x, .y = y, .boton = boton});
}

void MesaViva::Clic(int x, int y, int boton) {
    Mueve(x, y);
    Aprieta(x, y, boton);
    Suelta(x, y, boton);
    DespachaEvento({.tipo = TipoEvento::RatonClic, .x = x, .y = y, .boton = boton});
}

Punto MesaViva::SobreCarta(Integer asiento, int lugar) const {
    // What shows of a card under ten others is wider than the one; a raised card still lies in its zone by
    // more than the other.
    constexpr int kALoLargo = 5, kATraves = 25;
    ColocarCarta(asiento, lugar, estado.NumCartas(asiento, estado.SerieActual));
    const bool lateral = AsientoLateral(asiento);
    return {estado.CartaX + (lateral ? kATraves : kALoLargo),
            estado.CartaY + (lateral ? kALoLargo : kATraves)};
}

void MesaViva::EmpiezaTraza() {
    traza.clear();
    EscuchaTraza([this](const std::string& linea) { traza.push_back(linea); });
}

std::vector<std::string> MesaViva::TrazaDe(const std::string& operacion) const {
    return LasDe(operacion, traza);
}

std::vector<std::string> MesaViva::Pintado(Control control, const std::string& operacion) {
    return LasDe(operacion, p.Dibujado(control).Llamadas());
}

std::vector<std::string> MesaViva::Titulos() const {
    std::vector<std::string> titulos;
    for (const CajaMensaje& caja : p.mensajes)
        titulos.push_back(caja.titulo);
    return titulos;
}

std::vector<Carta> MesaViva::ManoDe(Integer asiento) {
    std::vector<Carta> cartas;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar)
        cartas.emplace_back(estado.Mano(asiento, 1, lugar, kPalo),
                            estado.Mano(asiento, 1, lugar, kValor));
    return cartas;
}

} // namespace prueba
