// The settings files both ways: what is saved comes back, and whatever is read leaves a table to play at.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "betting/bet_state.h"
#include "core/text.h"
#include "storage/between_hands.h"
#include "storage/settings_repair.h"
#include "tests/support/settings_files.h"
#include "tests/support/valid_settings.h"

namespace {

using rc::gen::inRange;

constexpr Integer kJuegos[]{kPoker, kBlackJack, kTute, kBrisca, kSieteYMedia, kCinquillo};

Integer Entre(int minimo, int maximo) {
    return static_cast<Integer>(*inRange(minimo, maximo + 1));
}

Integer UnJuego() {
    return *rc::gen::elementOf(std::vector<Integer>(std::begin(kJuegos), std::end(kJuegos)));
}

// Letters with and without a place in ASCII, digits and blanks; no comma, which ends a line.
std::string UnTexto(int ancho) {
    static const std::vector<std::string> kLetras{"a", "B", "z", "ñ", "É", "ÿ",  "Œ", "ž", "€",
                                                  "º", "1", "9", "-", "'", "\"", " ", " "};
    std::string texto;
    const int largo = *inRange(0, ancho + 1);
    for (int i = 0; i < largo; ++i)
        texto += *rc::gen::elementOf(kLetras);
    texto.erase(texto.find_last_not_of(' ') + 1);
    return texto;
}

void PonAsientosAlAzar() {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        estado.NombreJugador(asiento) = UnTexto(9);
        estado.NivelJugador(asiento) = Entre(0, 100);
        estado.EstadoJugador(asiento) = Entre(1, 2);
        estado.CartasJugador(asiento) = Entre(1, 2);
        estado.ControlJugador(asiento) = Entre(1, 2);
        estado.CaracterJugador(asiento) = Entre(1, 3);
        estado.JuegosGanados(asiento) = Entre(0, 999);
        apuestas.Apuesta(asiento, 1, 2) = Entre(0, 995);
    }
    for (int asiento = 0; asiento <= 4; ++asiento) {
        for (int d = 1; d <= 6; ++d)
            apuestas.Fichas(asiento, d) = Entre(0, 60);
    }
}

void PonReglasAlAzar() {
    estado.PausaEntreJugadas = *rc::gen::arbitrary<bool>();
    estado.SentidoJuego = Entre(1, 2);
    estado.VentanaInfo = Entre(1, 2);
    estado.SistemaReparto = Entre(1, 2);
    estado.ModalidadJuego = Entre(1, 2);
    estado.ComodinesJuego = Entre(1, 3);
    estado.CartasBaraja = Entre(1, 6);
    estado.LeyApertura = Entre(1, 14);
    estado.RestoInicial = Entre(5, 995);
    estado.ApuestaSalida = Entre(0, 999);
    estado.ApuestaMaxima = Entre(5, 995);
    estado.LimitePartida = Entre(1, 999);
    estado.JugadorMano = Entre(1, 4);
    estado.JugadorBanca = Entre(1, 4);
}

void PonRegistroAlAzar(RegistroJuego& registro) {
    registro.Inicio = Recorta(UnTexto(9));
    registro.Total = Entre(-9999, 32767);
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int columna = 1; columna <= 4; ++columna)
            registro.Marcas(asiento, columna) = Entre(0, 9);
        registro.Texto1(asiento) = UnTexto(17);
        registro.Texto2(asiento) = UnTexto(15);
        registro.Cifra(asiento) = Entre(0, 9);
    }
}

void PonPartidaAlAzar() {
    estado.PartidaEnCurso = *rc::gen::arbitrary<bool>();
    estado.JuegosJugados = estado.PartidaEnCurso ? Entre(0, 6) : Integer{0};
    for (int juego = 1; juego <= estado.JuegosJugados; ++juego)
        PonRegistroAlAzar(estado.Juegos(juego));
    sesion.mano_apuntada = estado.JuegosJugados > 0;
}

std::string BytesAlAzar(int tope) {
    const int n = *inRange(0, tope);
    return *rc::gen::container<std::string>(static_cast<std::size_t>(n),
                                            rc::gen::arbitrary<char>());
}

class AjustesProp : public testing::Test {
protected:
    void PonEstadoAlAzar() {
        mesa.Empieza(UnJuego());
        PonAsientosAlAzar();
        PonReglasAlAzar();
        PonPartidaAlAzar();
        ReparaJuego();
        AnotaDineroPrevio();
    }

    // Whatever a file held: one message at most, the bad file kept, a state that plays, and from then on a
    // file that is read in silence.
    void CompruebaLoLeido(const std::string& contenido) {
        const std::string ini = NombreIniJuego(estado.JuegoActivo);
        const std::string mal = ini.substr(0, ini.size() - 4) + ".MAL";
        mesa.Memoria().contenidos.clear();
        mesa.Archivo(ini) = contenido;
        LeerIniJuego();
        RC_ASSERT(prueba::FalloDeAjustesDeJuego() == "");
        RC_ASSERT(mesa.Mensajes().size() == (estado.FicheroNuevo ? 1U : 0U));
        RC_ASSERT(mesa.Hay(mal) == estado.FicheroNuevo);
        if (estado.FicheroNuevo)
            RC_ASSERT(mesa.Archivo(mal) == contenido);

        RC_ASSERT(GrabarIniJuego() == ErrorArchivo::Ninguno);
        estado.FicheroNuevo = false;
        const EstadoJuego leido = estado;
        const std::size_t avisos = mesa.Mensajes().size();
        LeerIniJuego();
        RC_ASSERT(mesa.Mensajes().size() == avisos);
        RC_ASSERT(estado == leido);
    }

    prueba::SesionConArchivos mesa;
};

RC_GTEST_FIXTURE_PROP(AjustesProp, LoQueSeGuardaVuelveIgual, ()) {
    PonEstadoAlAzar();
    const EstadoJuego antes = estado;
    const Integer juego = estado.JuegoActivo;
    RC_ASSERT(GrabarIniJuego() == ErrorArchivo::Ninguno);
    RC_ASSERT(estado == antes);
    mesa.Empieza(juego);
    LeerIniJuego();
    RC_ASSERT(mesa.Mensajes().empty());
    RC_ASSERT(estado == antes);
    RC_ASSERT(sesion.mano_apuntada == (estado.JuegosJugados > 0));
}

// The hand in play has moved everything that a hand can move; nothing of it is in the file.
RC_GTEST_FIXTURE_PROP(AjustesProp, DeUnaManoAMediasNoSeGuardaNada, ()) {
    PonEstadoAlAzar();
    RC_PRE(estado.PartidaEnCurso);
    const EstadoJuego antes = estado;
    const EstadoApuestas dinero_antes = apuestas;
    ++estado.JuegosJugados;
    sesion.mano_apuntada = false;
    if (estado.JuegosJugados > 1)
        SiguienteAsiento(estado.JugadorMano);
    estado.ManoEnCurso = true;
    for (int asiento = 0; asiento <= 4; ++asiento) {
        apuestas.Fichas(asiento, 1) = Entre(0, 60);
        apuestas.Apuesta(asiento, 1, 2) = Entre(0, 995);
        apuestas.Apuesta(asiento, 1, 3) = Entre(0, 995);
    }
    PonRegistroAlAzar(estado.Juegos(estado.JuegosJugados));
    RC_ASSERT(GrabarIniJuego() == ErrorArchivo::Ninguno);
    LeerIniJuego();
    RC_ASSERT(estado.JuegosJugados == antes.JuegosJugados);
    RC_ASSERT(estado.JugadorMano == antes.JugadorMano);
    RC_ASSERT(estado.Juegos == antes.Juegos);
    for (int asiento = 0; asiento <= 4; ++asiento) {
        RC_ASSERT(RestoDe(asiento) == dinero_antes.RestoPrevio(asiento));
        RC_ASSERT(apuestas.Apuesta(asiento, 1, 3) == 0);
        if (asiento > 0)
            RC_ASSERT(apuestas.Apuesta(asiento, 1, 2) == dinero_antes.ApuestaPrevia(asiento, 2));
    }
}

RC_GTEST_FIXTURE_PROP(AjustesProp, CualesquieraBytesDejanUnEstadoValido, ()) {
    mesa.Empieza(UnJuego());
    CompruebaLoLeido(BytesAlAzar(1500));
}

RC_GTEST_FIXTURE_PROP(AjustesProp, UnArchivoSanoConBytesCambiadosDejaUnEstadoValido, ()) {
    PonEstadoAlAzar();
    const Integer juego = estado.JuegoActivo;
    RC_ASSERT(GrabarIniJuego() == ErrorArchivo::Ninguno);
    std::string contenido = mesa.Archivo(NombreIniJuego(juego));
    const int cambios = *inRange(1, 12);
    for (int i = 0; i < cambios; ++i) {
        const auto donde =
            static_cast<std::size_t>(*inRange<int>(0, static_cast<int>(contenido.size())));
        // Mostly what keeps a file readable, so that the repairs are reached and not only the defaults.
        contenido[donde] = *rc::gen::oneOf(rc::gen::element('0', '1', '2', '3', '5', '9', ' ', '-'),
                                           rc::gen::arbitrary<char>());
    }
    mesa.Empieza(juego);
    CompruebaLoLeido(contenido);
}

RC_GTEST_FIXTURE_PROP(AjustesProp, LosAjustesGeneralesSalenValidosDeCualesquieraBytes, ()) {
    mesa.Empieza(UnJuego());
    mesa.Memoria().contenidos.clear();
    const std::string contenido = *rc::gen::oneOf(
        rc::gen::exec([] { return BytesAlAzar(200); }), rc::gen::exec([] {
            return Formato(static_cast<double>(UnJuego()), "00") + "-1" + BytesAlAzar(4);
        }));
    mesa.Archivo("ZOV31.INI") = contenido;
    LeerIniGeneral();
    RC_ASSERT(prueba::FalloDeAjustesGenerales() == "");
    RC_ASSERT(mesa.Mensajes().size() == (estado.FicheroNuevo ? 1U : 0U));
    RC_ASSERT(mesa.Hay("ZOV31.MAL") == estado.FicheroNuevo);
}

} // namespace
