#include "tests/support/sieteymedia_table.h"

#include "core/random.h"
#include "core/session_state.h"
#include "games/sieteymedia/sieteymedia.h"
#include "table/bet_board.h"
#include "table/trace.h"

namespace prueba {

MesaDeSiete::MesaDeSiete() {
    estado.JugadorBanca = 2;
    estado.PartidaEnCurso = true;
    estado.VelocidadJuego = 100;
    estado.VentanaInfo = 2;
    estado.RestoInicial = 100;
    estado.ApuestaMaxima = 20;
    Juega(kSieteYMedia);
    TodoSolo();
    const char* kNombres[] = {"", "Ana", "Luis", "Eva", "Iñigo"};
    for (int asiento = 1; asiento <= 4; ++asiento) {
        estado.NombreJugador(asiento) = kNombres[asiento];
        estado.NivelJugador(asiento) = 0;
        estado.CaracterJugador(asiento) = kConservador;
        estado.SeriesJugador(asiento) = 1;
        AsignarResto(asiento, 100);
    }
}

void MesaDeSiete::Saldra(const std::vector<Carta>& orden, const std::vector<double>& azar) {
    BarajaSera(orden);
    EncolaAzar(azar);
}

void MesaDeSiete::Persona(Integer asiento) {
    estado.ControlJugador(asiento) = kManual;
    estado.CartasJugador(asiento) = kVisibles;
}

void MesaDeSiete::ManoJugada() {
    estado.JuegosJugados = 1;
    estado.JugadorMano = 3;
    estado.ManoEnCurso = true;
    apuestas.FaseApuesta = kFaseJuego;
    for (Integer asiento = 0; asiento <= 4; ++asiento)
        apuestas.RestoPrevio(asiento) = RestoDe(asiento);
}

void MesaDeSiete::Apuesta(Integer asiento, Integer serie, Integer puntos) {
    const Integer fase = apuestas.FaseApuesta;
    TocaJugar(asiento);
    estado.SerieActual = serie;
    apuestas.FaseApuesta = kFaseApuestas;
    ColocaApuesta(asiento, puntos);
    apuestas.FaseApuesta = fase;
    estado.SerieActual = 1;
}

void MesaDeSiete::JuegaUnaMano() {
    EscuchaTraza([&](const std::string& linea) {
        traza.push_back(linea);
        if (estado.JuegosJugados > 0 && sesion.mano_apuntada)
            estado.PartidaEnCurso = false;
    });
    ManoSieteYMedia();
}

std::string MesaDeSiete::Texto(const std::string& titulo, int n) const {
    for (const CajaMensaje& caja : p.mensajes) {
        if (caja.titulo == titulo && --n == 0)
            return caja.texto;
    }
    return "";
}

int MesaDeSiete::Total() {
    int puntos = 0;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        puntos += RestoDe(asiento);
        for (int serie = 1; serie <= kMaximoSeries; ++serie)
            puntos += ApuestaTotal(asiento, serie);
    }
    return puntos;
}

} // namespace prueba
