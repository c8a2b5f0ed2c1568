#include "games/trick/hand_end.h"

#include <algorithm>
#include <string>

#include "core/game_state.h"
#include "core/text.h"
#include "games/common/hands.h"
#include "games/common/trick_state.h"
#include "table/game_row.h"

namespace {

Integer EquipoDe(Integer asiento) {
    return asiento > 2 ? estado.ParejaAsiento(asiento) : asiento;
}

Currency TantosDelEquipo(Integer equipo) {
    return bazas.TantosJugador(equipo) + bazas.TantosJugador(estado.ParejaAsiento(equipo));
}

// Of the seats with the most tantos the one that took a trick last.
Integer GanadorIndividual() {
    Integer ganador = 1;
    for (Integer asiento = 2; asiento <= 4; ++asiento) {
        if (bazas.TantosJugador(asiento) > bazas.TantosJugador(ganador))
            ganador = asiento;
    }
    const Currency tope = bazas.TantosJugador(ganador);
    for (int baza = decltype(bazas.GanadorDeBaza)::kTopes[0]; baza >= 1; --baza) {
        const Integer asiento = bazas.GanadorDeBaza(baza);
        if (asiento != 0 && bazas.TantosJugador(asiento) == tope)
            return asiento;
    }
    return ganador;
}

Integer GanadorPorParejas() {
    const Currency uno = TantosDelEquipo(1);
    const Currency dos = TantosDelEquipo(2);
    if (uno == dos)
        return EquipoDe(estado.GanadorBaza);
    return uno > dos ? 1 : 2;
}

Integer BuscaGanador() {
    if (bazas.TuteCantado)
        return PorParejas() ? EquipoDe(bazas.JugadorCante) : bazas.JugadorCante;
    return PorParejas() ? GanadorPorParejas() : GanadorIndividual();
}

std::string NotaDeTute() {
    return "Tute de " + estado.NombreValorPlural(bazas.TuteEnMano);
}

std::string RenglonDeTantos(const std::string& quien, Currency tantos) {
    return quien + " : " + Formato(tantos, "##0") + " tantos." + estado.SaltoLinea;
}

std::string RenglonesDeTantos() {
    std::string texto;
    if (PorParejas()) {
        for (const Integer equipo : {Integer{1}, Integer{2}}) {
            texto += RenglonDeTantos(estado.NombreJugador(equipo) + " y " +
                                         estado.NombreJugador(estado.ParejaAsiento(equipo)),
                                     TantosDelEquipo(equipo));
        }
        return texto;
    }
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) == kActivado)
            texto += RenglonDeTantos(estado.NombreJugador(asiento), bazas.TantosJugador(asiento));
    }
    return texto;
}

std::string TextoFinal() {
    const std::string cuenta = bazas.TuteCantado
                                   ? "Se ha cantado " + NotaDeTute() + estado.SaltoLinea
                                   : RenglonesDeTantos();
    return cuenta + estado.SaltoLinea + TextoGana(estado.GanadorMano, "la mano");
}

void RegistraMano() {
    RegistroJuego& registro = estado.Juegos(estado.JuegosJugados);
    registro.Marcas(estado.GanadorMano, 1) = 1;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) != kActivado)
            continue;
        registro.Texto1(asiento) = Numero(bazas.TantosJugador(asiento));
        registro.Cifra(asiento) = static_cast<Integer>(
            std::count(bazas.PaloCantado.begin(), bazas.PaloCantado.end(), asiento));
        if (bazas.TuteCantado && asiento == bazas.JugadorCante)
            registro.Texto2(asiento) = NotaDeTute();
    }
}

} // namespace

bool FinalMano() {
    estado.ManoEnCurso = false;
    estado.GanadorMano = BuscaGanador();
    ParpadeaGanador();
    if (!CuentaFinalMano(TextoFinal()))
        return false;
    RegistraMano();
    GanaMano();
    return true;
}
