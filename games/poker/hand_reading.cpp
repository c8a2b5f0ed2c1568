#include "games/poker/hand_reading.h"

#include <algorithm>
#include <bit>

#include "core/game_state.h"
#include "games/poker/hand_layout.h"
#include "games/poker/hand_tally.h"
#include "games/poker/poker_state.h"
#include "games/poker/runs.h"

namespace {

// Calidad of the draws of four in a row: with figures, and what a joker adds.
constexpr Integer kCalidadDeFiguras = 3, kCalidadConComodin = 3;

// One hand while it is read. The records get their cards and qualities, the set of categories decides which of them
// are active in the end.
class Lectura {
public:
    explicit Lectura(Integer asiento)
        : asiento_(asiento), r_(CuentaMano(asiento)), registros_(&poker.Jugadas(asiento, 0)) {
        RegistroJugada vacio;
        vacio.Calidad = 1;
        std::fill_n(registros_ + 1, kCategorias, vacio);
    }

    void BuscaIguales();
    void BuscaFiguras();
    void BuscaColor();
    void BuscaEscaleras();
    void BuscaProyectoDeColor();
    void QuedaLaCartaMayor();
    void QuitaLoQueSobra();
    void PonCartas();
    void Publica();

private:
    static unsigned Bit(Integer n) { return 1U << static_cast<unsigned>(n); }
    bool Es(Integer n) const { return (activas_ & Bit(n)) != 0; }
    void Pon(Integer n) { activas_ |= Bit(n); }
    template <class... N>
    void Quita(N... n) {
        activas_ &= ~(Bit(n) | ...);
    }
    RegistroJugada& Registro(Integer n) { return registros_[n]; }
    bool ConComodin() const { return r_.comodines > 0; }
    // The strongest rank with so many cards, none when there is none.
    Integer ValorConCartas(int cartas) const;

    void Pon(Integer n, const Tramo& tramo, Integer palo);
    void PonDePalos(const Corrida& corrida, Integer primero, Integer segundo);
    void QuitaFrenteA(Integer cuatro, Integer tres);
    void QuitaIgual(Integer una, Integer otra);

    void Lista(Integer n);
    void Encabeza(Integer n, Integer valor, int gastadas);
    void CartasDePoker();
    void CartasDeFull();
    void CartasDeDoblePareja();
    void CartasDePareja();
    void CartasDeProyectoDeColor();
    void CalidadDeProyectoDeEscalera(Integer n);
    void CalidadDeProyectoDeFiguras();

    Integer asiento_;
    Recuento r_;
    RegistroJugada* registros_; // by category
    unsigned activas_ = 0;      // bit n: category n
};

Integer Lectura::ValorConCartas(int cartas) const {
    for (int i = 0; i < r_.num_grupos; ++i) {
        const Grupo& grupo = r_.grupos[static_cast<std::size_t>(i)];
        if (grupo.cartas == cartas)
            return ValorDeFuerza(grupo.fuerza);
    }
    return 0;
}

// Pairs and more of a rank. A joker goes to the largest group, a second joker nowhere.
void Lectura::BuscaIguales() {
    int parejas = 0;
    const int grupos = std::min(r_.num_grupos, kCartasMano);
    for (int i = 0; i < grupos; ++i) {
        const int cartas = r_.grupos[static_cast<std::size_t>(i)].cartas;
        parejas += cartas == 2 ? 1 : 0;
        if (cartas == 3)
            Pon(ConComodin() ? poker.Poker : poker.Trio);
        else if (cartas == 4)
            Pon(ConComodin() ? poker.Repoker : poker.Poker);
    }
    if (parejas == 1) {
        Pon(ConComodin() ? poker.Trio : poker.Pareja);
    } else if (parejas == 2) {
        Pon(poker.Pareja);
        Pon(ConComodin() ? poker.Full : poker.DoblePareja);
    }
    if (Es(poker.Trio) && Es(poker.Pareja))
        Pon(poker.Full);
}

// Two jokers never make Figuras: three figures with them are a draw.
void Lectura::BuscaFiguras() {
    if (r_.no_figuras == 0)
        Pon(r_.comodines == 2 ? poker.ProyFiguras : poker.Figuras);
    else if (r_.no_figuras == 1 && r_.comodines != 2)
        Pon(poker.ProyFiguras);
    if (Es(poker.ProyFiguras))
        Lista(poker.ProyFiguras);
}

// Three of a suit with two jokers are no Color, which is meant.
void Lectura::BuscaColor() {
    const int hacen_falta = r_.comodines == 1 ? kCartasMano - 1 : kCartasMano;
    for (const Rangos palo : r_.palos) {
        if (std::popcount(palo) >= hacen_falta)
            Pon(poker.Color);
    }
}

void Lectura::Pon(Integer n, const Tramo& tramo, Integer palo) {
    if (tramo.calidad == 0)
        return;
    Pon(n);
    RegistroJugada& registro = Registro(n);
    registro.Calidad = tramo.calidad;
    registro.ValorComodin = tramo.valor_comodin;
    registro.PaloJugada = palo;
    for (int i = 1; i <= kCartasMano; ++i) {
        const std::uint8_t valor = tramo.valores[static_cast<std::size_t>(i - 1)];
        registro.Cartas(i) = valor == kPuestoComodin ? r_.comodin : Integer{valor};
    }
}

void Lectura::PonDePalos(const Corrida& corrida, Integer primero, Integer segundo) {
    const auto palo_de = [&](const Tramo& tramo) {
        return tramo.segundo_palo != 0 ? segundo : primero;
    };
    Pon(poker.EscaleraColor, corrida.cinco, palo_de(corrida.cinco));
    Pon(poker.ProyEscalColor, corrida.cuatro, palo_de(corrida.cuatro));
    Pon(poker.ProyEscalColor3, corrida.tres, palo_de(corrida.tres));
}

void Lectura::BuscaEscaleras() {
    const Corridas& corridas = CorridasDe(estado.CartasBaraja);
    if (!corridas.HayAlgo(r_.rangos, ConComodin()))
        return;
    const Corrida& corrida = corridas.De(r_.rangos, ConComodin());
    Pon(poker.Escalera, corrida.cinco, 0);
    Pon(poker.ProyEscalera, corrida.cuatro, 0);
    Pon(poker.ProyEscalera3, corrida.tres, 0);

    // At most two suits have two cards.
    Integer primero = 0, segundo = 0;
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        if (std::popcount(r_.palos[static_cast<std::size_t>(palo)]) >= 2)
            (primero == 0 ? primero : segundo) = palo;
    }
    const Rangos uno = r_.palos[static_cast<std::size_t>(primero)];
    const Rangos otro = r_.palos[static_cast<std::size_t>(segundo)];
    const bool hay_otro = corridas.HayAlgo(otro, ConComodin());
    if (!corridas.HayAlgo(uno, ConComodin()) && !hay_otro)
        return;
    if (segundo == 0)
        PonDePalos(corridas.De(uno, ConComodin()), primero, segundo);
    else
        PonDePalos(corridas.DeDosPalos(uno, otro, ConComodin()), primero, segundo);
}

void Lectura::BuscaProyectoDeColor() {
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        const int cartas = std::popcount(r_.palos[static_cast<std::size_t>(palo)]);
        if (cartas == 4 || (cartas == 3 && ConComodin())) {
            Pon(poker.ProyColor);
            Registro(poker.ProyColor).PaloJugada = palo;
            return;
        }
    }
}

void Lectura::QuedaLaCartaMayor() {
    if (activas_ < Bit(poker.CartaMayor))
        Pon(ConComodin() ? poker.Pareja : poker.CartaMayor);
}

// Four in a row take the place of the figures when they leave the same card over, and of three in a row unless those
// are the better draw.
void Lectura::QuitaFrenteA(Integer cuatro, Integer tres) {
    if (Es(poker.ProyFiguras)) {
        OrdenaJugada(asiento_, cuatro);
        if (poker.JugadaOrdenada(kCartasMano, 2) == Registro(poker.ProyFiguras).Cartas(kCartasMano))
            Quita(poker.ProyFiguras);
    }
    if (Es(tres) && Registro(tres).Calidad >= Registro(cuatro).Calidad)
        Quita(tres);
}

void Lectura::QuitaIgual(Integer una, Integer otra) {
    if (Es(una) && Es(otra) && Registro(una).Cartas == Registro(otra).Cartas)
        Quita(una);
}

void Lectura::QuitaLoQueSobra() {
    const EstadoPoker& p = poker;
    if (Es(p.Repoker) || Es(p.EscaleraColor) || Es(p.Poker) || Es(p.Escalera) || Es(p.Full) ||
        (Es(p.Trio) && p.Trio > p.Figuras))
        Quita(p.Figuras);
    if (Es(p.Escalera))
        Quita(p.ProyFiguras, p.ProyEscalera, p.ProyEscalera3);
    if (Es(p.EscaleraColor))
        Quita(p.Color, p.Escalera, p.ProyEscalColor, p.ProyEscalColor3, p.ProyEscalera,
              p.ProyEscalera3, p.ProyColor);
    if (Es(p.ProyEscalera))
        QuitaFrenteA(p.ProyEscalera, p.ProyEscalera3);
    if (Es(p.ProyEscalColor)) {
        Quita(p.ProyColor);
        QuitaFrenteA(p.ProyEscalColor, p.ProyEscalColor3);
    }
    QuitaIgual(p.ProyEscalera3, p.ProyEscalColor3);
    QuitaIgual(p.ProyEscalera, p.ProyEscalColor);
}

// All cards from the strongest; a joker leads the figures as an As, and in a Color it is the highest rank that is not
// held. A second joker comes last.
void Lectura::Lista(Integer n) {
    RegistroJugada& registro = Registro(n);
    int sitio = 1;
    const auto mete = [&](Integer valor) { registro.Cartas(sitio++) = valor; };
    const auto mete_comodin = [&](int fuerza) {
        mete(r_.comodin);
        registro.ValorComodin = ValorDeFuerza(fuerza);
    };
    int espera = 0; // the highest strength that the joker of a Color may take
    if (ConComodin() && n == poker.Color)
        espera = kFuerzaAs;
    else if (ConComodin())
        mete_comodin(kFuerzaAs);
    for (int i = 0; i < r_.num_grupos; ++i) {
        const Grupo& grupo = r_.grupos[static_cast<std::size_t>(i)];
        if (espera > grupo.fuerza) {
            mete_comodin(espera);
            espera = 0;
        } else if (espera == grupo.fuerza) {
            --espera;
        }
        for (int carta = 0; carta < grupo.cartas; ++carta)
            mete(ValorDeFuerza(grupo.fuerza));
    }
    if (espera != 0)
        mete_comodin(espera);
    if (r_.comodines == 2)
        mete(r_.comodin == kComodinUno ? kComodinDos : kComodinUno);
}

// The rank of the group, then the cards that are not spent on it.
void Lectura::Encabeza(Integer n, Integer valor, int gastadas) {
    RegistroJugada& registro = Registro(n);
    int sitio = 1;
    registro.Cartas(sitio++) = valor;
    for (int i = 0; i < r_.num_grupos; ++i) {
        const Grupo& grupo = r_.grupos[static_cast<std::size_t>(i)];
        const Integer suyo = ValorDeFuerza(grupo.fuerza);
        const int quedan = grupo.cartas - (suyo == valor ? gastadas : 0);
        for (int carta = 0; carta < quedan; ++carta)
            registro.Cartas(sitio++) = suyo;
    }
    registro.Calidad = static_cast<Integer>((EsFigura(valor) ? 2 : 1) + (ConComodin() ? 2 : 0));
}

void Lectura::CartasDePoker() {
    RegistroJugada& registro = Registro(poker.Poker);
    registro.Cartas(1) = ValorConCartas(ConComodin() ? 3 : 4);
    registro.Cartas(2) = ValorConCartas(1);
    if (ConComodin())
        registro.Calidad = 2;
}

void Lectura::CartasDeFull() {
    RegistroJugada& registro = Registro(poker.Full);
    registro.Cartas(1) = ValorConCartas(ConComodin() ? 2 : 3);
    for (int i = 0; i < r_.num_grupos; ++i) {
        const Grupo& grupo = r_.grupos[static_cast<std::size_t>(i)];
        if (grupo.cartas == 2)
            registro.Cartas(2) = ValorDeFuerza(grupo.fuerza);
    }
}

void Lectura::CartasDeDoblePareja() {
    RegistroJugada& registro = Registro(poker.DoblePareja);
    int sitio = 1;
    for (int i = 0; i < r_.num_grupos; ++i) {
        const Grupo& grupo = r_.grupos[static_cast<std::size_t>(i)];
        registro.Cartas(grupo.cartas == 2 ? sitio++ : 3) = ValorDeFuerza(grupo.fuerza);
    }
    registro.Calidad = EsFigura(registro.Cartas(1)) && EsFigura(registro.Cartas(2)) ? 2 : 1;
}

// A joker joins the strongest card, which is spent whole.
void Lectura::CartasDePareja() {
    if (ConComodin())
        Encabeza(poker.Pareja, ValorDeFuerza(r_.grupos[0].fuerza), r_.grupos[0].cartas);
    else
        Encabeza(poker.Pareja, ValorConCartas(2), 2);
}

void Lectura::CartasDeProyectoDeColor() {
    RegistroJugada& registro = Registro(poker.ProyColor);
    int sitio = 1;
    for (Rangos quedan = r_.palos[static_cast<std::size_t>(registro.PaloJugada)]; quedan != 0;) {
        const int fuerza = static_cast<int>(std::bit_width(quedan)) - 1;
        quedan ^= Rangos{1} << fuerza;
        registro.Cartas(sitio++) = ValorDeFuerza(fuerza);
    }
    if (ConComodin())
        registro.Cartas(4) = r_.comodin;
}

void Lectura::CalidadDeProyectoDeEscalera(Integer n) {
    RegistroJugada& registro = Registro(n);
    int figuras = 0;
    for (int i = 1; i <= 4; ++i)
        figuras += EsFigura(registro.Cartas(i)) ? 1 : 0;
    if (figuras == 4 || (figuras == 3 && ConComodin()))
        registro.Calidad = kCalidadDeFiguras;
    if (ConComodin())
        registro.Calidad = static_cast<Integer>(registro.Calidad + kCalidadConComodin);
}

void Lectura::CalidadDeProyectoDeFiguras() {
    Integer& calidad = Registro(poker.ProyFiguras).Calidad;
    if (Es(poker.Trio))
        calidad = 4;
    else if (Es(poker.DoblePareja))
        calidad = 3;
    else if (Es(poker.Pareja))
        calidad = 2;
}

void Lectura::
    PonCartas() { // NOLINT(readability-function-cognitive-complexity): one line a category
    const EstadoPoker& p = poker;
    if (Es(p.Repoker))
        Registro(p.Repoker).Cartas(1) = ValorConCartas(4);
    if (Es(p.Poker))
        CartasDePoker();
    if (Es(p.Full))
        CartasDeFull();
    if (Es(p.Color))
        Lista(p.Color);
    if (Es(p.Figuras))
        Lista(p.Figuras);
    if (Es(p.CartaMayor)) {
        Lista(p.CartaMayor);
        Registro(p.CartaMayor).Calidad = EsFigura(Registro(p.CartaMayor).Cartas(1)) ? 1 : 2;
    }
    const int del_trio = ConComodin() ? 2 : 3;
    if (Es(p.Trio))
        Encabeza(p.Trio, ValorConCartas(del_trio), del_trio);
    if (Es(p.DoblePareja))
        CartasDeDoblePareja();
    if (Es(p.Pareja))
        CartasDePareja();
    if (Es(p.ProyEscalColor))
        CalidadDeProyectoDeEscalera(p.ProyEscalColor);
    if (Es(p.ProyEscalera))
        CalidadDeProyectoDeEscalera(p.ProyEscalera);
    if (Es(p.ProyColor))
        CartasDeProyectoDeColor();
    if (Es(p.ProyFiguras))
        CalidadDeProyectoDeFiguras();
}

void Lectura::Publica() {
    for (unsigned quedan = activas_; quedan != 0; quedan &= quedan - 1)
        registros_[std::countr_zero(quedan)].Activa = 1;
    poker.MejorJugada(asiento_) = static_cast<Integer>(std::bit_width(activas_) - 1);
}

} // namespace

bool EsFigura(Integer valor) {
    return valor == kValorAs || (valor >= 11 && valor <= kValorRey);
}

bool TieneComodin(Integer asiento) {
    for (int lugar = 1; lugar <= kCartasMano; ++lugar) {
        if (estado.Mano(asiento, 1, lugar, kPalo) == kComodin)
            return true;
    }
    return false;
}

void AnalizaJugada(Integer asiento) {
    Lectura lectura(asiento);
    lectura.BuscaIguales();
    lectura.BuscaFiguras();
    lectura.BuscaColor();
    lectura.BuscaEscaleras();
    lectura.BuscaProyectoDeColor();
    lectura.QuedaLaCartaMayor();
    lectura.QuitaLoQueSobra();
    lectura.PonCartas();
    lectura.Publica();
}
