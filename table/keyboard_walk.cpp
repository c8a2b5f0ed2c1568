#include "table/keyboard_walk.h"

#include <algorithm>

#include "core/game_state.h"
#include "core/numeric.h"
#include "table/frames.h"
#include "table/hand_order.h"
#include "table/side_buttons.h"
#include "table/table_input.h"

namespace {

using Camino = std::vector<Objetivo>;

constexpr int kIzquierdo = 1, kDerecho = 2; // of the mouse

struct Paseo {
    bool a_la_vista = false;       // the keys are in use
    std::optional<Objetivo> donde; // what the frame is on, as it was last seen
    std::optional<Objetivo>
        vuelta; // where it goes back to from the pop-up, or when the held card has been laid down
    Milisegundos vale_desde = 0; // presses that began earlier were meant for something else
};

constinit Paseo paseo;

void RefrescaMarco();

bool EsPulsacion(Mando mando) {
    return mando == Mando::Arriba || mando == Mando::Abajo;
}

bool EsPropia(const Objetivo& carta) {
    const Integer turno = estado.JugadorActual;
    if (turno != 0 && estado.ControlJugador(turno) == kManual)
        return carta.asiento == turno;
    return estado.ControlJugador(carta.asiento) == kManual;
}

bool SePasea(const Objetivo& uno) {
    switch (uno.clase) {
    case ClaseObjetivo::CartaDeMano:
        return EsPropia(uno) || uno.se_pulsa || uno.tiene_menu;
    case ClaseObjetivo::CartaDeReparto:
        return true;
    case ClaseObjetivo::Triunfo:
    case ClaseObjetivo::Ficha:
        return uno.se_pulsa;
    case ClaseObjetivo::Boton:
        return uno.se_pulsa && uno.control != Control::Pic_Boton;
    default:
        return false;
    }
}

// The spread, one's own cards, pile, chips and buttons, and cards of others that may be put in order.
int PuestoEnElCamino(const Objetivo& uno) {
    if (uno.clase == ClaseObjetivo::CartaDeReparto)
        return 0;
    if (uno.clase != ClaseObjetivo::CartaDeMano)
        return 2;
    return EsPropia(uno) ? 1 : 3;
}

bool Es(const Objetivo& uno, ClaseObjetivo clase) {
    return uno.clase == clase;
}

Camino Quedan(const Camino& todos, bool (*se_queda)(const Objetivo&)) {
    Camino camino;
    std::ranges::copy_if(todos, std::back_inserter(camino), se_queda);
    return camino;
}

// An open pop-up and a held card leave nothing else to do. The main buttons have keys of their own, and are walked only
// when there is nothing else.
Camino ElCamino() {
    const Camino todos = ObjetivosDeLaMesa();
    Camino camino =
        Quedan(todos, [](const Objetivo& uno) { return Es(uno, ClaseObjetivo::Opcion); });
    if (!camino.empty())
        return camino;
    if (estado.ArrastraReparto) {
        return Quedan(todos, [](const Objetivo& uno) {
            return Es(uno, ClaseObjetivo::Asiento) && uno.se_pulsa;
        });
    }
    camino = Quedan(todos, SePasea);
    std::ranges::stable_sort(camino, {}, PuestoEnElCamino);
    if (!camino.empty())
        return camino;
    return Quedan(
        todos, [](const Objetivo& uno) { return Es(uno, ClaseObjetivo::Boton) && uno.se_pulsa; });
}

using Paso = Camino::const_iterator;

Paso Busca(const Camino& camino, const Objetivo& cual) {
    return std::ranges::find_if(camino,
                                [&cual](const Objetivo& uno) { return uno.EsElMismo(cual); });
}

Paso PrimeroQueHaceAlgo(const Camino& camino) {
    const auto primero = std::ranges::find_if(camino, &Objetivo::se_pulsa);
    return primero == camino.end() ? camino.begin() : primero;
}

// The next card of the spread, round its end.
Paso SiguienteDelReparto(const Camino& camino, const Objetivo& cual) {
    const auto sigue = std::ranges::find_if(camino, [&cual](const Objetivo& uno) {
        return Es(uno, ClaseObjetivo::CartaDeReparto) &&
               std::pair(uno.indice, uno.lugar) >= std::pair(cual.indice, cual.lugar);
    });
    return sigue == camino.end() ? camino.begin() : sigue;
}

// The last card of a hand that has become shorter.
Paso UltimaDeLaMano(const Camino& camino, const Objetivo& cual) {
    auto ultima = camino.end();
    for (auto paso = camino.begin(); paso != camino.end(); ++paso) {
        if (Es(*paso, ClaseObjetivo::CartaDeMano) && paso->asiento == cual.asiento)
            ultima = paso;
    }
    return ultima;
}

bool EsPasajero(const Objetivo& uno) {
    return Es(uno, ClaseObjetivo::Opcion) || Es(uno, ClaseObjetivo::Asiento);
}

// The seat that took the last card, while it takes more.
Paso AlEntrar(const Camino& camino) {
    const auto ultimo = std::ranges::find(camino, estado.UltimoRecibe, &Objetivo::asiento);
    return Es(camino.front(), ClaseObjetivo::Asiento) && ultimo != camino.end() ? ultimo
                                                                                : camino.begin();
}

// Where the frame goes when its target is gone; the end for nowhere.
Paso EnSuLugar(const Camino& camino, const Objetivo& cual) {
    if (camino.empty())
        return camino.end();
    if (EsPasajero(camino.front())) {
        if (!EsPasajero(cual))
            paseo.vuelta = cual;
        return AlEntrar(camino);
    }
    const Objetivo buscado = EsPasajero(cual) && paseo.vuelta ? *paseo.vuelta : cual;
    const auto el_mismo = Busca(camino, buscado);
    if (el_mismo != camino.end())
        return el_mismo;
    if (Es(buscado, ClaseObjetivo::CartaDeReparto))
        return SiguienteDelReparto(camino, buscado);
    return Es(buscado, ClaseObjetivo::CartaDeMano) ? UltimaDeLaMano(camino, buscado) : camino.end();
}

// Whoever has pressed the green button for the others has not pressed it to be played for: on a person's turn the
// frame has to be brought back.
bool AhoraJugariaPorMi(const Objetivo& antes, const Objetivo& ahora) {
    return ahora.control == Control::Pic_BotContinuar && antes.nombre != ahora.nombre &&
           estado.ManoEnCurso && estado.ControlJugador(estado.JugadorActual) == kManual;
}

// One of the two looks; the refreshing of both hangs on the first.
void Dibuja(Marco cual, const Rectangulo& donde) {
    const bool vedado = cual == Marco::DeTeclasVedado;
    PonMarco(Marco::DeTeclas, vedado ? std::nullopt : std::optional(donde), RefrescaMarco);
    PonMarco(Marco::DeTeclasVedado, vedado ? std::optional(donde) : std::nullopt, nullptr);
}

void Borra() {
    PonMarco(Marco::DeTeclas, {}, RefrescaMarco);
    PonMarco(Marco::DeTeclasVedado, {}, nullptr);
}

void PonEn(const Objetivo& uno) {
    paseo.donde = uno;
    Dibuja(uno.se_pulsa ? Marco::DeTeclas : Marco::DeTeclasVedado, uno.donde);
}

void Lleva(const Objetivo& uno) {
    PonEn(uno);
    plataforma().Anuncia(uno.estado.empty() ? uno.nombre : uno.nombre + ", " + uno.estado);
}

// Brings the frame to where it was, or to the first thing that a click does something with.
void Aparece(const Camino& camino) {
    paseo.a_la_vista = true;
    if (camino.empty())
        return;
    const auto donde = paseo.donde ? Busca(camino, *paseo.donde) : camino.end();
    Lleva(donde == camino.end() ? *PrimeroQueHaceAlgo(camino) : *donde);
}

Evento Raton(TipoEvento tipo, const Objetivo& donde, int boton) {
    return {.tipo = tipo,
            .control = donde.control,
            .x = donde.toque.x,
            .y = donde.toque.y,
            .boton = boton};
}

std::vector<Evento> Clic(const Objetivo& donde, int boton) {
    return {
        Raton(TipoEvento::RatonMueve, donde, boton), Raton(TipoEvento::RatonPulsa, donde, boton),
        Raton(TipoEvento::RatonSuelta, donde, boton), Raton(TipoEvento::RatonClic, donde, boton)};
}

// To the neighbour, round the ends. A line of the pop-up is lit as under the pointer.
std::vector<Evento> Anda(const Camino& camino, const Objetivo& desde, int hacia) {
    const auto cuantos = static_cast<int>(camino.size());
    const auto aqui = static_cast<int>(Busca(camino, desde) - camino.begin());
    const Objetivo& otro = camino[static_cast<std::size_t>((aqui + hacia + cuantos) % cuantos)];
    Lleva(otro);
    if (!Es(otro, ClaseObjetivo::Opcion))
        return {};
    return {Raton(TipoEvento::RatonMueve, otro, kIzquierdo)};
}

// A card of the spread is taken with the button down, and given to a seat by being moved there.
std::vector<Evento> Pulsacion(const Objetivo& donde, std::optional<Milisegundos> desde) {
    if (!donde.se_pulsa)
        return {};
    switch (donde.clase) {
    case ClaseObjetivo::Boton:
        return {{.tipo = TipoEvento::Clic,
                 .control = donde.control,
                 .indice = donde.indice,
                 .desde = desde}};
    case ClaseObjetivo::Opcion:
        return {Raton(TipoEvento::RatonMueve, donde, kIzquierdo),
                Raton(TipoEvento::RatonSuelta, donde, kIzquierdo)};
    case ClaseObjetivo::CartaDeReparto:
        return {Raton(TipoEvento::RatonMueve, donde, kIzquierdo),
                Raton(TipoEvento::RatonPulsa, donde, kIzquierdo)};
    case ClaseObjetivo::Asiento:
        return {Raton(TipoEvento::RatonMueve, donde, kIzquierdo)};
    default:
        return Clic(donde, kIzquierdo);
    }
}

// A press of the right button closes the pop-up; its release lays a held card down.
std::vector<Evento> PulsacionDerecha(const Objetivo& donde) {
    if (Es(donde, ClaseObjetivo::Opcion))
        return {{.tipo = TipoEvento::RatonPulsa, .boton = kDerecho}};
    if (estado.ArrastraReparto)
        return {{.tipo = TipoEvento::RatonSuelta, .boton = kDerecho}};
    return donde.tiene_menu ? Clic(donde, kDerecho) : std::vector<Evento>{};
}

// The pop-up would offer it, or it is under way.
bool SeOrdena(const Objetivo& carta) {
    const bool en_modo = estado.ModoOrdenar && estado.CartasJugador(carta.asiento) == kVisibles;
    return Es(carta, ClaseObjetivo::CartaDeMano) && !estado.RepartoEnCurso &&
           SerieALaVista(carta.asiento) == estado.SerieActual &&
           (en_modo || OfreceOrdenar(carta.asiento));
}

void Ordena(const Objetivo& carta, int hacia) {
    const int lugar = carta.lugar + hacia;
    if (!SeOrdena(carta) || lugar < 1 ||
        lugar > estado.NumCartas(carta.asiento, estado.SerieActual))
        return;
    paseo.donde->lugar = EnteroDe(lugar);
    MueveEnLaMano(carta.asiento, carta.lugar, EnteroDe(lugar));
}

// The same column of the next row, or what comes after it.
void CambiaDeFila(const Camino& camino, const Objetivo& carta, int hacia) {
    Objetivo buscada = carta;
    buscada.indice = (carta.indice - 1 + hacia + estado.FilasReparto) % estado.FilasReparto + 1;
    Lleva(*SiguienteDelReparto(camino, buscada));
}

void Desplaza(const Camino& camino, const Objetivo& carta, int hacia) {
    if (Es(carta, ClaseObjetivo::CartaDeReparto))
        CambiaDeFila(camino, carta, hacia);
    else
        Ordena(carta, hacia);
}

void RefrescaMarco() {
    if (!paseo.a_la_vista || !paseo.donde)
        return;
    const Camino camino = ElCamino();
    auto ahora = Busca(camino, *paseo.donde);
    if (ahora == camino.end())
        ahora = EnSuLugar(camino, *paseo.donde);
    if (ahora == camino.end())
        return Borra();
    if (!AhoraJugariaPorMi(*paseo.donde, *ahora))
        return PonEn(*ahora);
    paseo.donde.reset();
    Borra();
}

} // namespace

std::vector<Evento> EventosDeMando(Mando mando, std::optional<Milisegundos> desde) {
    RefrescaMarco();
    const Camino camino = ElCamino();
    if (!HayMarcoDeTeclas()) {
        paseo.vale_desde = EsPulsacion(mando) ? plataforma().Reloj() : 0;
        Aparece(camino);
        return {};
    }
    const Objetivo aqui = *Busca(camino, *paseo.donde);
    if (EsPulsacion(mando) && desde.value_or(paseo.vale_desde) < paseo.vale_desde)
        return {};
    switch (mando) {
    case Mando::Izquierda:
        return Anda(camino, aqui, -1);
    case Mando::Derecha:
        return Anda(camino, aqui, 1);
    case Mando::MayusIzquierda:
        Desplaza(camino, aqui, -1);
        return {};
    case Mando::MayusDerecha:
        Desplaza(camino, aqui, 1);
        return {};
    case Mando::Arriba:
        return Pulsacion(aqui, desde);
    case Mando::Abajo:
        return PulsacionDerecha(aqui);
    case Mando::Funcion:
        break;
    }
    return {};
}

std::vector<Evento> EventosDeClic(const Objetivo& donde, int boton) {
    return boton == kIzquierdo ? Pulsacion(donde, std::nullopt) : PulsacionDerecha(donde);
}

void QuitaMarco() {
    paseo.a_la_vista = false;
    Borra();
}

void OlvidaMarco() {
    QuitaMarco();
    paseo.donde.reset();
    paseo.vuelta.reset();
}

std::optional<Objetivo> ObjetivoEnmarcado() {
    return HayMarcoDeTeclas() ? paseo.donde : std::nullopt;
}
