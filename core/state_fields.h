#pragma once
// The one list of fields of the shared state. The console that reads and writes fields by name, the
// snapshots of the tests and the clearing of the table all walk it, so a field that is missing here is
// missing everywhere: a test compares this list with the headers.
//
// RecorreCampos(bloque, visita) calls visita("Nombre", bloque.Nombre) for each field, in the order of the
// header. Every block of state, and every record that stands in one, has its own.

#include <concepts>
#include <type_traits>

#include "core/game_state.h"

// One entry: the name and the field itself, which so cannot come apart.
#define CAMPO(nombre) visita(#nombre, bloque.nombre)

// The block T, constant or not.
template <class E, class T>
concept MismoQue = std::same_as<std::remove_const_t<E>, T>;

// A type with a list of fields: a block or a record.
template <class T>
concept TieneCampos = requires(T& bloque) {
    RecorreCampos(bloque, [](const char*, const auto&) {});
};

template <MismoQue<RegistroJuego> E, class V>
void RecorreCampos(E& bloque, V&& visita) {
    CAMPO(Inicio);
    CAMPO(Marcas);
    CAMPO(Texto1);
    CAMPO(Texto2);
    CAMPO(Cifra);
    CAMPO(Total);
}

template <MismoQue<RegistroSugerencia> E, class V>
void RecorreCampos(E& bloque, V&& visita) {
    CAMPO(Texto);
    CAMPO(Tema);
}

// One line a field: as long as the block is.
template <MismoQue<EstadoJuego> E, class V>
void RecorreCampos(E& bloque, V&& visita) { // NOLINT(readability-function-size)
    CAMPO(PasoSentido);
    CAMPO(OrientacionAsiento);
    CAMPO(ParejaAsiento);

    CAMPO(ValorEnBaraja);

    CAMPO(NombreJugador);
    CAMPO(NivelJugador);
    CAMPO(EstadoJugador);
    CAMPO(CartasJugador);
    CAMPO(ControlJugador);
    CAMPO(CaracterJugador);

    CAMPO(JuegoActivo);
    CAMPO(SonidoActivo);
    CAMPO(VelocidadJuego);
    CAMPO(PausaEntreJugadas);
    CAMPO(SentidoJuego);
    CAMPO(VentanaInfo);
    CAMPO(SistemaReparto);
    CAMPO(ModalidadJuego);
    CAMPO(ComodinesJuego);
    CAMPO(CartasBaraja);
    CAMPO(LeyApertura);
    CAMPO(RestoInicial);
    CAMPO(ApuestaSalida);
    CAMPO(ApuestaMaxima);
    CAMPO(LimitePartida);
    CAMPO(NumJugadores);

    CAMPO(PartidaEnCurso);
    CAMPO(ManoEnCurso);
    CAMPO(JuegosJugados);
    CAMPO(JugadorActual);
    CAMPO(JugadorMano);
    CAMPO(JugadorBanca);
    CAMPO(SerieActual);
    CAMPO(SerieEnJuego);
    CAMPO(SeriesJugador);
    CAMPO(NumBaza);
    CAMPO(JugadorSalida);
    CAMPO(GanadorBaza);
    CAMPO(GanadorMano);
    CAMPO(GanadorPartida);
    CAMPO(CartasEnBaza);
    CAMPO(JugadoresEnMano);
    CAMPO(AzarTurno);

    CAMPO(EsperandoJugada);
    CAMPO(EligeCarta);
    CAMPO(JugadaHecha);
    CAMPO(TutorPulsado);
    CAMPO(RepartoEnCurso);
    CAMPO(ArrastraReparto);
    CAMPO(ModoOrdenar);
    CAMPO(ArrastraCarta);

    CAMPO(Mano);
    CAMPO(NumCartas);
    CAMPO(SerieTerminada);
    CAMPO(RotuloSerie);
    CAMPO(ColorRotulo);
    CAMPO(ParpadeoRotulo);

    CAMPO(Baraja);
    CAMPO(TotalBaraja);
    CAMPO(CartasNormales);
    CAMPO(ComodinesBaraja);
    CAMPO(ValoresPorPalo);
    CAMPO(MazosBaraja);
    CAMPO(TipoBaraja);
    CAMPO(CartasEnMazo);
    CAMPO(PosicionMazo);
    CAMPO(CartasReparto);
    CAMPO(PasoReparto);
    CAMPO(MaxCartasMano);
    CAMPO(NumDescartes);
    CAMPO(Descartes);
    CAMPO(ValorCarta);
    CAMPO(OrdenCarta);
    CAMPO(ColumnasBaraja);
    CAMPO(CartasImagen);
    CAMPO(AltoMiniCarta);
    CAMPO(NombreValorPlural);
    CAMPO(NombreValor);
    CAMPO(CartaEnReparto);
    CAMPO(FilasReparto);
    CAMPO(ReparteX);
    CAMPO(ReparteY);
    CAMPO(UltimoRecibe);
    CAMPO(PaloTriunfo);
    CAMPO(ValorTriunfo);
    CAMPO(JuegoConBanca);

    CAMPO(JuegosGanados);
    CAMPO(Juegos);

    CAMPO(MesaArriba);
    CAMPO(MesaAbajo);
    CAMPO(MesaIzquierda);
    CAMPO(MesaDerecha);
    CAMPO(AnchoPantalla);
    CAMPO(AltoPantalla);
    CAMPO(AnchoMesa);
    CAMPO(AltoMesa);
    CAMPO(CentroX);
    CAMPO(CentroY);
    CAMPO(PosFichaX);
    CAMPO(PosFichaY);
    CAMPO(MazoX);
    CAMPO(MazoY);
    CAMPO(CartaX);
    CAMPO(CartaY);

    CAMPO(NombreJuego);
    CAMPO(NombreNumero);
    CAMPO(TextoOrdenar);
    CAMPO(TituloSelector);

    CAMPO(CarpetaTrabajo);
    CAMPO(CarpetaPrograma);
    CAMPO(SaltoLinea);
    CAMPO(PrimeraVez);
    CAMPO(VentanaModal);
    CAMPO(JugadoresCambiados);
    CAMPO(JuegoPrevio);
    CAMPO(FicheroNuevo);

    CAMPO(AsientoBajoCursor);
    CAMPO(CartaBajoCursor);
    CAMPO(ZonaBajoCursor);
    CAMPO(FilaReparto);
    CAMPO(ColumnaReparto);
    CAMPO(CursorTabla);
    CAMPO(CursorNuevo);
    CAMPO(BotonRaton);
    CAMPO(RatonX);
    CAMPO(RatonY);
    CAMPO(FichaBajoCursor);
    CAMPO(CartaElegida);
    CAMPO(CartaMovida);
    CAMPO(Opciones);
    CAMPO(OpcionResaltada);
    CAMPO(OpcionElegida);
    CAMPO(NumOpciones);

    CAMPO(LineasMensaje);
    CAMPO(ModoMensaje);
    CAMPO(RespuestaMensaje);
    CAMPO(AyudaPulsada);
    CAMPO(Sugerencias);
    CAMPO(TemaActual);
    CAMPO(TipActual);
    CAMPO(MarcaPausa);
}
