#include "storage/settings_layout.h"

namespace ini {

Campos General() {
    return {{1, 2, &estado.JuegoActivo, "00"},
            {3, 2, &estado.SonidoActivo},
            {5, 3, &estado.VelocidadJuego, "000"}};
}

Campos Ajustes(EntreManos& entre_manos) {
    Campos campos;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const int antes = 16 * (asiento - 1);
        campos.insert(campos.end(), {{antes + 1, 9, &estado.NombreJugador(asiento)},
                                     {antes + 10, 3, &estado.NivelJugador(asiento), "000"},
                                     {antes + 13, 1, &estado.EstadoJugador(asiento), "0"},
                                     {antes + 14, 1, &estado.CartasJugador(asiento), "0"},
                                     {antes + 15, 1, &estado.ControlJugador(asiento), "0"},
                                     {antes + 16, 1, &estado.CaracterJugador(asiento), "0"}});
    }
    campos.insert(campos.end(), {{65, 2, &estado.PausaEntreJugadas},
                                 {67, 2, &estado.ModalidadJuego, "00"},
                                 {69, 2, &estado.LeyApertura, "00"},
                                 {71, 1, &estado.SentidoJuego, "0"},
                                 {72, 1, &estado.SistemaReparto, "0"},
                                 {73, 1, &estado.ComodinesJuego, "0"},
                                 {74, 1, &estado.NumJugadores, "0"},
                                 {75, 1, &estado.CartasBaraja, "0"},
                                 {76, 1, &estado.VentanaInfo, "0"},
                                 {90, 2, &estado.PartidaEnCurso},
                                 {92, 2, &estado.ManoEnCurso},
                                 {97, 3, &entre_manos.juegos, "000"},
                                 {101, 1, &entre_manos.mano, "0"},
                                 {103, 1, &entre_manos.banca, "0"},
                                 {104, 3, " 0 "},
                                 {107, 2, &estado.PasoSentido, "00"},
                                 {109, 4, &estado.RestoInicial, "0000"},
                                 {113, 3, &estado.ApuestaSalida, "000"},
                                 {116, 3, &estado.ApuestaMaxima, "000"},
                                 {119, 3, &estado.LimitePartida, "000"}});
    return campos;
}

Campos Dinero(EntreManos& entre_manos) {
    Campos campos;
    for (int asiento = 0; asiento <= 4; ++asiento) {
        for (int d = 1; d <= 6; ++d)
            campos.push_back(
                {12 * asiento + 2 * (d - 1) + 1, 2, &entre_manos.fichas(asiento, d), "00"});
    }
    return campos;
}

Campos Apuestas(EntreManos& entre_manos) {
    Campos campos;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const int antes = 7 * (asiento - 1);
        campos.push_back({antes + 1, 4, &entre_manos.apuesta(asiento), "0000"});
        campos.push_back({antes + 5, 3, &estado.JuegosGanados(asiento), "000"});
    }
    return campos;
}

Campos Registro(RegistroJuego& registro) {
    Campos campos{{1, 9, &registro.Inicio}, {10, 5, &registro.Total, "@@@@@"}};
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const int antes = 37 * (asiento - 1);
        for (int columna = 1; columna <= 4; ++columna)
            campos.push_back({antes + 14 + columna, 1, &registro.Marcas(asiento, columna), "0"});
        campos.push_back({antes + 19, 17, &registro.Texto1(asiento)});
        campos.push_back({antes + 36, 15, &registro.Texto2(asiento)});
        campos.push_back({antes + 51, 1, &registro.Cifra(asiento), "0"});
    }
    return campos;
}

} // namespace ini
