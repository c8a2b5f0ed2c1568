// The reading of a hand by its rules as they are told: every start of a straight, every step.

#include "games/poker/hand_layout.h"
#include "tests/support/plain_poker.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/poker/hand_reading.h"
#include "games/poker/poker_state.h"

namespace {

constexpr int kCartas = 5;
constexpr Integer kAsAlto = 14, kRey = 13;

bool EsComodin(Integer valor) {
    return valor > kRey;
}

struct Cuenta {
    int comodines = 0;
    Integer comodin = 0; // valor of the last one
    std::array<int, 5> de_palo{};
    std::array<int, 14> de_valor{};
    std::array<std::array<bool, 14>, 5> hay{}; // by suit and valor
};

Cuenta CuentaMano(Integer asiento) {
    Cuenta c;
    for (int lugar = 1; lugar <= kCartas; ++lugar) {
        const Integer palo = estado.Mano(asiento, 1, lugar, kPalo);
        const Integer valor = estado.Mano(asiento, 1, lugar, kValor);
        if (palo == kComodin) {
            ++c.comodines;
            c.comodin = valor;
        } else if (palo != kSinCarta) {
            ++c.de_palo.at(palo);
            ++c.de_valor.at(valor);
            c.hay.at(palo).at(valor) = true;
        }
    }
    return c;
}

struct Lectura {
    Integer asiento;
    Cuenta c;
    RegistroJugada& J(Integer n) const { return poker.Jugadas(asiento, n); }
    bool Es(Integer n) const { return J(n).Activa != 0; }
    void Pon(Integer n) const { J(n).Activa = 1; }
    void Quita(Integer n) const { J(n).Activa = 0; }
};

void ListaCartas(const Lectura& l, Integer categoria) {
    const Cuenta& c = l.c;
    RegistroJugada& j = l.J(categoria);
    int p = 1;
    const auto mete = [&](Integer valor) {
        if (p <= kCartas)
            j.Cartas(p++) = valor;
    };
    bool por_poner = categoria == poker.Color && c.comodines > 0;
    if ((categoria == poker.Figuras || categoria == poker.ProyFiguras) && c.comodines > 0) {
        mete(c.comodin);
        j.ValorComodin = kAs;
    }
    for (int f = 13; f >= 1; --f) {
        const Integer v = estado.OrdenCarta(f);
        if (c.de_valor[v] == 0 && por_poner) {
            mete(c.comodin);
            j.ValorComodin = v;
            por_poner = false;
        }
        for (int i = 0; i < c.de_valor[v]; ++i)
            mete(v);
    }
    if (c.comodines == 2)
        mete(c.comodin == 91 ? 92 : 91);
}

struct Ajuste {
    std::array<Integer, 8> puesto{};
    int ultima = 0;
    int ajustadas = 0;
    int huecos = 0;
    Integer calidad = 9;
};

using ListaValores = std::array<Integer, 6>; // from 1, As on top 14

Integer Q(const Ajuste& a) {
    if (a.ajustadas == 4) {
        const bool extremo = a.puesto[1] == kAs || a.puesto[a.ultima] == kAs;
        if (a.huecos == 0 && !extremo)
            return 1;
        if (a.huecos == 1 || extremo)
            return 2;
    }
    if (a.ajustadas == 3) {
        int bordes = 0;
        if (a.puesto[1] == estado.CartasBaraja + 1)
            bordes += 1;
        else if (a.puesto[1] > estado.CartasBaraja + 1)
            bordes += 2;
        int fin = a.puesto[a.ultima];
        if (EsComodin(a.puesto[a.ultima + 1]))
            ++fin;
        if (fin == 13)
            bordes += 1;
        else if (fin >= 2 && fin <= 12)
            bordes += 2;
        if (a.huecos == 2)
            return 3;
        if (a.huecos == 1)
            return 2;
        if (a.huecos == 0)
            return static_cast<Integer>(4 - (bordes - 1));
        return 4;
    }
    return 9;
}

Ajuste Ajusta(const ListaValores& lista, int n, const std::array<bool, 6>* marcas,
              const Cuenta& c) {
    Ajuste a;
    int pos = 0;
    Integer anterior = 0;
    for (int i = 1; i <= n; ++i) {
        if (marcas != nullptr && !(*marcas)[i])
            continue;
        const Integer v = lista[i];
        ++pos;
        if (a.ajustadas > 0) {
            for (int w = anterior + 1; w < v; ++w) {
                if (estado.ValorEnBaraja(w)) {
                    ++pos;
                    ++a.huecos;
                }
            }
        }
        a.puesto[pos] = v == kAsAlto ? kAs : v;
        a.ultima = pos;
        ++a.ajustadas;
        anterior = v;
    }
    if (c.comodines > 0) {
        bool puesto = false;
        for (int p = a.huecos > 0 ? a.ultima : 5; p >= 2 && !puesto; --p) {
            if (a.puesto[p] == 0 && a.puesto[p - 1] != 0 &&
                !(p == a.ultima + 1 && a.puesto[a.ultima] == kAs)) {
                a.puesto[p] = c.comodin;
                puesto = true;
            }
        }
        if (!puesto) {
            for (int p = 6; p >= 2; --p)
                a.puesto[p] = a.puesto[p - 1];
            a.puesto[1] = c.comodin;
            ++a.ultima;
        }
        if (a.huecos > 0)
            --a.huecos;
        ++a.ajustadas;
    }
    a.calidad = Q(a);
    return a;
}

void Registra(const Lectura& l, const Ajuste& a, Integer categoria, Integer palo) {
    RegistroJugada& j = l.J(categoria);
    if (j.Activa != 0 && a.ajustadas != 5 && a.calidad > j.Calidad)
        return;
    j.Activa = 1;
    j.Calidad = a.ajustadas == 5 ? Integer{1} : a.calidad;
    j.Cartas.Borra();
    j.PaloJugada = palo;
    int n = 0;
    for (int p = 5; p >= 1; --p) {
        if (a.puesto[p] == 0)
            continue;
        j.Cartas(++n) = a.puesto[p];
        if (EsComodin(a.puesto[p])) {
            int vale = p > 1 ? a.puesto[p - 1] + 1 : a.puesto[p + 1] - 1;
            if (vale > 13)
                vale = 1;
            j.ValorComodin = static_cast<Integer>(vale);
        }
    }
}

void RegistraSegun(const Lectura& l, const Ajuste& a, Integer cinco, Integer cuatro, Integer tres,
                   Integer palo) {
    if (a.ajustadas == 5)
        Registra(l, a, cinco, palo);
    else if (a.ajustadas == 4)
        Registra(l, a, cuatro, palo);
    else if (a.ajustadas == 3)
        Registra(l, a, tres, palo);
}

void MiraTramo(const Lectura& l, const ListaValores& lista, int n) {
    const Cuenta& c = l.c;
    RegistraSegun(l, Ajusta(lista, n, nullptr, c), poker.Escalera, poker.ProyEscalera,
                  poker.ProyEscalera3, 0);
    Integer palo = 0;
    int cuantas = 0;
    std::array<bool, 6> marcas{};
    for (Integer s = 1; s <= 4; ++s) {
        std::array<bool, 6> suyas{};
        int k = 0;
        for (int i = 1; i <= n; ++i) {
            suyas[i] = c.hay[s][lista[i] == kAsAlto ? kAs : lista[i]];
            k += suyas[i] ? 1 : 0;
        }
        if (k >= 2) {
            palo = s;
            cuantas = k;
            marcas = suyas;
        }
    }
    if (cuantas >= 3 || (cuantas >= 2 && c.comodines > 0))
        RegistraSegun(l, Ajusta(lista, n, &marcas, c), poker.EscaleraColor, poker.ProyEscalColor,
                      poker.ProyEscalColor3, palo);
}

void BuscaEscaleras(const Lectura& l) {
    const Cuenta& c = l.c;
    for (int desde = 1; desde <= 13; desde = desde == 1 ? estado.CartasBaraja + 1 : desde + 1) {
        ListaValores lista{};
        int n = 0;
        int v = desde;
        for (int paso = 1; paso <= 5 && v <= kAsAlto; ++paso) {
            if (c.de_valor[v == kAsAlto ? kAs : v] > 0)
                lista[++n] = static_cast<Integer>(v);
            if (n >= 3 || (n >= 2 && c.comodines > 0))
                MiraTramo(l, lista, n);
            v = v == kAs ? estado.CartasBaraja + 1 : v + 1;
        }
    }
}

void CuentaIguales(const Lectura& l) {
    const Cuenta& c = l.c;
    for (Integer v = 1; v <= 13; ++v) {
        if (c.de_valor[v] == 2)
            ++l.J(poker.Pareja).Activa;
        if (c.de_valor[v] == 3)
            l.Pon(c.comodines == 0 ? poker.Trio : poker.Poker);
        if (c.de_valor[v] == 4)
            l.Pon(c.comodines == 0 ? poker.Poker : poker.Repoker);
    }
    if (l.J(poker.Pareja).Activa == 1 && c.comodines > 0) {
        l.Quita(poker.Pareja);
        l.Pon(poker.Trio);
    } else if (l.J(poker.Pareja).Activa == 2) {
        l.Pon(poker.Pareja);
        l.Pon(c.comodines == 0 ? poker.DoblePareja : poker.Full);
    }
}

void MiraFiguras(const Lectura& l) {
    const Cuenta& c = l.c;
    int no_figuras = 0;
    for (int v = 2; v <= 10; ++v)
        no_figuras += c.de_valor[v];
    if (no_figuras == 0)
        l.Pon(c.comodines == 2 ? poker.ProyFiguras : poker.Figuras);
    else if (no_figuras == 1 && c.comodines != 2)
        l.Pon(poker.ProyFiguras);
    if (l.Es(poker.ProyFiguras))
        ListaCartas(l, poker.ProyFiguras);
}

void MiraColor(const Lectura& l) {
    const Cuenta& c = l.c;
    for (int s = 1; s <= 4; ++s) {
        if (c.de_palo[s] == 5 || (c.de_palo[s] == 4 && c.comodines == 1))
            l.Pon(poker.Color);
    }
}

void MiraProyColor(const Lectura& l) {
    const Cuenta& c = l.c;
    for (Integer s = 1; s <= 4; ++s) {
        if (c.de_palo[s] == 4 || (c.de_palo[s] == 3 && c.comodines > 0)) {
            l.Pon(poker.ProyColor);
            l.J(poker.ProyColor).PaloJugada = s;
            return;
        }
    }
}

void SinNada(const Lectura& l) {
    for (Integer n = 7; n <= 17; ++n) {
        if (l.Es(n))
            return;
    }
    l.Pon(l.c.comodines == 0 ? poker.CartaMayor : poker.Pareja);
}

void QuitaSobrantes(const Lectura& l, Integer cuatro, Integer tres) {
    if (l.Es(poker.ProyFiguras)) {
        OrdenaJugada(l.asiento, cuatro);
        if (poker.JugadaOrdenada(5, 2) == l.J(poker.ProyFiguras).Cartas(5))
            l.Quita(poker.ProyFiguras);
    }
    if (l.Es(tres) && l.J(tres).Calidad >= l.J(cuatro).Calidad)
        l.Quita(tres);
}

void QuitaIgual(const Lectura& l, Integer una, Integer suya) {
    if (l.Es(una) && l.Es(suya) && l.J(una).Cartas == l.J(suya).Cartas)
        l.Quita(una);
}

void Limpia(const Lectura& l) {
    const auto& p = poker;
    if (l.Es(p.Repoker) || l.Es(p.EscaleraColor) || l.Es(p.Poker) || l.Es(p.Escalera) ||
        l.Es(p.Full))
        l.Quita(p.Figuras);
    if (l.Es(p.Trio) && p.Trio > p.Figuras)
        l.Quita(p.Figuras);
    if (l.Es(p.Escalera)) {
        for (const Integer n : {p.ProyFiguras, p.ProyEscalera, p.ProyEscalera3})
            l.Quita(n);
    }
    if (l.Es(p.EscaleraColor)) {
        for (const Integer n : {p.Color, p.Escalera, p.ProyEscalColor, p.ProyEscalColor3,
                                p.ProyEscalera, p.ProyEscalera3, p.ProyColor})
            l.Quita(n);
    }
    if (l.Es(p.ProyEscalera))
        QuitaSobrantes(l, p.ProyEscalera, p.ProyEscalera3);
    if (l.Es(p.ProyEscalColor)) {
        l.Quita(p.ProyColor);
        QuitaSobrantes(l, p.ProyEscalColor, p.ProyEscalColor3);
    }
    QuitaIgual(l, p.ProyEscalera3, p.ProyEscalColor3);
    QuitaIgual(l, p.ProyEscalera, p.ProyEscalColor);
}

Integer ConFigura(const Lectura& l, bool figura) {
    return static_cast<Integer>((figura ? 2 : 1) + (l.c.comodines > 0 ? 2 : 0));
}

// Cartas(1) = principal, the others from the strongest.
void Encabeza(const Lectura& l, Integer categoria, Integer principal, int gastadas) {
    RegistroJugada& j = l.J(categoria);
    int p = 1;
    j.Cartas(p++) = principal;
    for (int f = 13; f >= 1; --f) {
        const Integer v = estado.OrdenCarta(f);
        const int quedan = l.c.de_valor[v] - (v == principal ? gastadas : 0);
        for (int i = 0; i < quedan && p <= kCartas; ++i)
            j.Cartas(p++) = v;
    }
    j.Calidad = ConFigura(l, EsFigura(principal));
}

Integer MasFuerteCon(const Cuenta& c, int cuantas) {
    for (int f = 13; f >= 1; --f) {
        const Integer v = estado.OrdenCarta(f);
        if (c.de_valor[v] == cuantas)
            return v;
    }
    return 0;
}

void RellenaPoker(const Lectura& l) {
    RegistroJugada& j = l.J(poker.Poker);
    for (Integer v = 1; v <= 13; ++v) {
        if (l.c.de_valor[v] >= 3)
            j.Cartas(1) = v;
        else if (l.c.de_valor[v] == 1)
            j.Cartas(2) = v;
    }
    if (l.c.comodines > 0)
        j.Calidad = 2;
}

void RellenaFull(const Lectura& l) {
    RegistroJugada& j = l.J(poker.Full);
    for (int f = 13; f >= 1; --f) {
        const Integer v = estado.OrdenCarta(f);
        const int n = l.c.de_valor[v];
        if (n == 3 || (n == 2 && l.c.comodines > 0 && j.Cartas(1) == 0))
            j.Cartas(1) = v;
        if (n == 2)
            j.Cartas(2) = v;
    }
}

void RellenaTrio(const Lectura& l) {
    const int iguales = l.c.comodines > 0 ? 2 : 3;
    Encabeza(l, poker.Trio, MasFuerteCon(l.c, iguales), iguales);
}

void RellenaDoblePareja(const Lectura& l) {
    RegistroJugada& j = l.J(poker.DoblePareja);
    int p = 1;
    for (int f = 13; f >= 1; --f) {
        const Integer v = estado.OrdenCarta(f);
        if (l.c.de_valor[v] == 2)
            j.Cartas(p++) = v;
        else if (l.c.de_valor[v] == 1)
            j.Cartas(3) = v;
    }
    j.Calidad = EsFigura(j.Cartas(1)) && EsFigura(j.Cartas(2)) ? 2 : 1;
}

void RellenaPareja(const Lectura& l) {
    Integer principal = MasFuerteCon(l.c, 2);
    int gastadas = 2;
    if (l.c.comodines > 0) {
        for (int f = 1; f <= 13; ++f) {
            if (l.c.de_valor[estado.OrdenCarta(f)] > 0)
                principal = estado.OrdenCarta(f);
        }
        gastadas = l.c.de_valor[principal];
    }
    Encabeza(l, poker.Pareja, principal, gastadas);
}

void RellenaProyEscalera(const Lectura& l, Integer categoria) {
    RegistroJugada& j = l.J(categoria);
    int figuras = 0;
    for (int i = 1; i <= 4; ++i)
        figuras += EsFigura(j.Cartas(i)) ? 1 : 0;
    if (figuras == 4 || (figuras == 3 && l.c.comodines > 0))
        j.Calidad = 3;
    if (l.c.comodines > 0)
        j.Calidad = static_cast<Integer>(j.Calidad + 3);
}

void RellenaProyColor(const Lectura& l) {
    RegistroJugada& j = l.J(poker.ProyColor);
    int p = 1;
    for (int f = 13; f >= 1; --f) {
        const Integer v = estado.OrdenCarta(f);
        if (l.c.hay[j.PaloJugada][v])
            j.Cartas(p++) = v;
    }
    if (l.c.comodines > 0)
        j.Cartas(4) = l.c.comodin;
}

void RellenaProyFiguras(const Lectura& l) {
    RegistroJugada& j = l.J(poker.ProyFiguras);
    if (l.Es(poker.Pareja))
        j.Calidad = 2;
    if (l.Es(poker.DoblePareja))
        j.Calidad = 3;
    if (l.Es(poker.Trio))
        j.Calidad = 4;
}

void Rellena(const Lectura& l) {
    const auto& p = poker;
    const auto si = [&](Integer n, auto&& que) {
        if (l.Es(n))
            que();
    };
    si(p.Repoker, [&] { l.J(p.Repoker).Cartas(1) = MasFuerteCon(l.c, 4); });
    si(p.Poker, [&] { RellenaPoker(l); });
    si(p.Full, [&] { RellenaFull(l); });
    si(p.Color, [&] { ListaCartas(l, p.Color); });
    si(p.Figuras, [&] { ListaCartas(l, p.Figuras); });
    si(p.CartaMayor, [&] {
        ListaCartas(l, p.CartaMayor);
        l.J(p.CartaMayor).Calidad = EsFigura(l.J(p.CartaMayor).Cartas(1)) ? 1 : 2;
    });
    si(p.Trio, [&] { RellenaTrio(l); });
    si(p.DoblePareja, [&] { RellenaDoblePareja(l); });
    si(p.Pareja, [&] { RellenaPareja(l); });
    si(p.ProyEscalColor, [&] { RellenaProyEscalera(l, p.ProyEscalColor); });
    si(p.ProyEscalera, [&] { RellenaProyEscalera(l, p.ProyEscalera); });
    si(p.ProyColor, [&] { RellenaProyColor(l); });
    si(p.ProyFiguras, [&] { RellenaProyFiguras(l); });
}

} // namespace

namespace prueba {

void AnalizaLlano(Integer asiento) {
    for (int n = 1; n <= kCategorias; ++n) {
        poker.Jugadas(asiento, n) = {};
        poker.Jugadas(asiento, n).Calidad = 1;
    }
    const Lectura l{asiento, CuentaMano(asiento)};
    CuentaIguales(l);
    MiraFiguras(l);
    if (l.Es(poker.Trio) && l.Es(poker.Pareja))
        l.Pon(poker.Full);
    MiraColor(l);
    BuscaEscaleras(l);
    MiraProyColor(l);
    SinNada(l);
    Limpia(l);
    Rellena(l);
    for (Integer n = 1; n <= kCategorias; ++n) {
        if (l.Es(n))
            poker.MejorJugada(asiento) = n;
    }
}

} // namespace prueba
