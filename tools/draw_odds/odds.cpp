#include "tools/draw_odds/odds.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <map>
#include <numeric>
#include <unordered_map>
#include <utility>

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "games/game_rows.h"
#include "games/poker/discard_choice.h"
#include "games/poker/hand_reading.h"
#include "games/poker/hand_tally.h"
#include "table/deck.h"

namespace {

constexpr Integer kAsiento = 1;
constexpr int kPrimeraHecha = 7;

struct Naipe {
    Integer palo = 0, valor = 0;
};
using Mazo = std::vector<Naipe>;
using Indices = std::array<int, kCartasMano>;

Mazo HazMazo() {
    Mazo mazo;
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (Integer valor = 1; valor <= kValorRey; ++valor) {
            if (estado.ValorEnBaraja(valor))
                mazo.push_back({palo, valor});
        }
    }
    for (int i = 0; i < estado.ComodinesBaraja; ++i)
        mazo.push_back({kComodin, EnteroDe(kComodinUno + i)});
    return mazo;
}

void PonEn(int lugar, const Naipe& naipe) {
    estado.Mano(kAsiento, 1, lugar, kPalo) = naipe.palo;
    estado.Mano(kAsiento, 1, lugar, kValor) = naipe.valor;
}

void PonMano(const Mazo& mazo, const Indices& mano) {
    for (int lugar = 1; lugar <= kCartasMano; ++lugar)
        PonEn(lugar, mazo[static_cast<std::size_t>(mano[static_cast<std::size_t>(lugar - 1)])]);
}

// A hand but for the names of its suits: the four suits sorted, each the ranks that stay and those that go; then the
// jokers that stay and go.
struct Forma {
    std::array<std::uint32_t, 4> palos{};
    std::uint32_t comodines = 0;
    friend bool operator==(const Forma&, const Forma&) = default;
};

struct HashForma {
    std::size_t operator()(const Forma& forma) const {
        std::uint64_t hash = forma.comodines;
        for (const std::uint32_t palo : forma.palos)
            hash = (hash ^ palo) * 0x9E3779B97F4A7C15U;
        return static_cast<std::size_t>(hash ^ (hash >> 32));
    }
};

Forma FormaDe(const std::vector<bool>& conserva) {
    constexpr unsigned kRangosQueSeVan = 14;
    Forma forma;
    for (int lugar = 1; lugar <= kCartasMano; ++lugar) {
        const Integer palo = estado.Mano(kAsiento, 1, lugar, kPalo);
        const bool queda = conserva[static_cast<std::size_t>(lugar)];
        if (palo == kComodin) {
            forma.comodines += queda ? 1 : 16;
            continue;
        }
        const auto fuerza =
            static_cast<unsigned>(FuerzaDe(estado.Mano(kAsiento, 1, lugar, kValor)));
        forma.palos[static_cast<std::size_t>(palo - 1)] |=
            1U << (fuerza + (queda ? 0 : kRangosQueSeVan));
    }
    std::ranges::sort(forma.palos);
    return forma;
}

// Hands of one form, by the first of them.
struct Manos {
    Indices primera{};
    long long cuantas = 0;
};

// The hands that throw away the same number of cards, in the order in which the deck brings them.
struct Estrato {
    std::vector<Manos> manos;
    long long cuantas = 0;
};

struct Clase {
    std::unordered_map<Forma, std::size_t, HashForma> sitio;
    std::array<Estrato, kCartasMano + 1> estratos; // by the number of cards that go

    void Apunta(const Indices& mano, const std::vector<bool>& conserva) {
        Estrato& estrato = estratos[static_cast<std::size_t>(
            std::count(conserva.begin() + 1, conserva.end(), false))];
        const auto [donde, nueva] = sitio.try_emplace(FormaDe(conserva), estrato.manos.size());
        if (nueva)
            estrato.manos.push_back({mano, 0});
        ++estrato.manos[donde->second].cuantas;
        ++estrato.cuantas;
    }
    // How many cards go most often.
    int Descartes() const {
        return static_cast<int>(std::ranges::max_element(estratos, {}, &Estrato::cuantas) -
                                estratos.begin());
    }
};

using Clases = std::map<std::pair<Integer, Integer>, Clase>; // by category and Calidad

void ApuntaMano(Clases& clases, const Indices& mano) {
    AnalizaJugada(kAsiento);
    for (Integer n = 1; n <= kCategorias; ++n) {
        const RegistroJugada& jugada = poker.Jugadas(kAsiento, n);
        if (jugada.Activa != 0)
            clases[{n, jugada.Calidad}].Apunta(mano, Conserva(n));
    }
}

// visita(chosen) for each choice of k of the first n numbers.
template <class V>
void CadaEleccion(int n, int k, V&& visita) {
    std::vector<int> elegidos(static_cast<std::size_t>(k));
    std::iota(elegidos.begin(), elegidos.end(), 0);
    for (;;) {
        visita(elegidos);
        int i = k - 1;
        while (i >= 0 && elegidos[static_cast<std::size_t>(i)] == n - k + i)
            --i;
        if (i < 0)
            return;
        ++elegidos[static_cast<std::size_t>(i)];
        for (int j = i + 1; j < k; ++j)
            elegidos[static_cast<std::size_t>(j)] = elegidos[static_cast<std::size_t>(j - 1)] + 1;
    }
}

Clases ReparteTodas(const Mazo& mazo) {
    Clases clases;
    CadaEleccion(static_cast<int>(mazo.size()), kCartasMano, [&](const std::vector<int>& cartas) {
        Indices mano{};
        std::ranges::copy(cartas, mano.begin());
        PonMano(mazo, mano);
        ApuntaMano(clases, mano);
    });
    return clases;
}

Long CuantosDraws(const Mazo& mazo, int descartes) {
    long long draws = 1;
    const auto quedan = static_cast<long long>(mazo.size()) - kCartasMano;
    for (int i = 1; i <= descartes; ++i)
        draws = draws * (quedan - descartes + i) / i;
    return static_cast<Long>(draws);
}

using Partes = std::array<double, kCategorias + 1>;

// What becomes of one hand: the share of its draws that ends in each category.
Partes PartesDe(const Mazo& mazo, const Indices& mano, Integer categoria) {
    PonMano(mazo, mano);
    AnalizaJugada(kAsiento);
    const std::vector<bool> conserva = Conserva(categoria);
    std::vector<int> huecos;
    for (int lugar = 1; lugar <= kCartasMano; ++lugar) {
        if (!conserva[static_cast<std::size_t>(lugar)])
            huecos.push_back(lugar);
    }
    Mazo resto;
    for (int i = 0; i < static_cast<int>(mazo.size()); ++i) {
        if (std::ranges::find(mano, i) == mano.end())
            resto.push_back(mazo[static_cast<std::size_t>(i)]);
    }
    Partes partes{};
    double draws = 0;
    CadaEleccion(static_cast<int>(resto.size()), static_cast<int>(huecos.size()),
                 [&](const std::vector<int>& robadas) {
                     for (std::size_t i = 0; i < robadas.size(); ++i)
                         PonEn(huecos[i], resto[static_cast<std::size_t>(robadas[i])]);
                     AnalizaJugada(kAsiento);
                     partes[static_cast<std::size_t>(poker.MejorJugada(kAsiento))] += 1;
                     draws += 1;
                 });
    for (double& parte : partes)
        parte /= draws;
    return partes;
}

// The hands that stand for all: each of them, or tope at even distances.
std::vector<Manos> Muestra(const Estrato& estrato, long long tope) {
    if (static_cast<long long>(estrato.manos.size()) <= tope)
        return estrato.manos;
    std::vector<Manos> muestra;
    long long vistas = 0;
    for (const Manos& manos : estrato.manos) {
        vistas += manos.cuantas;
        while (static_cast<long long>(muestra.size()) < tope &&
               (2 * static_cast<long long>(muestra.size()) + 1) * estrato.cuantas <
                   2 * tope * vistas)
            muestra.push_back({manos.primera, 1});
    }
    return muestra;
}

Partes Media(const Mazo& mazo, Integer categoria, const std::vector<Manos>& muestra) {
    Partes media{};
    double peso = 0;
    for (const Manos& manos : muestra) {
        const Partes partes = PartesDe(mazo, manos.primera, categoria);
        const auto cuantas = static_cast<double>(manos.cuantas);
        for (std::size_t n = 0; n < media.size(); ++n)
            media[n] += partes[n] * cuantas;
        peso += cuantas;
    }
    for (double& parte : media)
        parte /= peso;
    return media;
}

// Whole numbers in these shares whose sum is exactly total: the largest rests are rounded up.
void PonCasos(RegistroDescarte& registro, const Partes& partes, Long total) {
    registro.CasosDescarte = total;
    Long faltan = total;
    std::vector<std::pair<double, int>> restos;
    for (int n = kPrimeraHecha; n <= kCategorias; ++n) {
        const double casos = partes[static_cast<std::size_t>(n)] * total;
        registro.CasosResultado(n) = static_cast<Long>(std::floor(casos));
        faltan -= registro.CasosResultado(n);
        restos.emplace_back(std::floor(casos) - casos, n);
    }
    std::ranges::sort(restos);
    for (Long i = 0; i < faltan; ++i)
        ++registro.CasosResultado(restos[static_cast<std::size_t>(i)].second);
    for (int n = kPrimeraHecha; n <= kCategorias; ++n)
        registro.PorcResultado(n) = static_cast<double>(registro.CasosResultado(n)) / total * 100;
}

RegistroDescarte ResumeClase(const Mazo& mazo, const std::pair<Integer, Integer>& cual,
                             const Clase& clase, long long draws_por_clase) {
    Partes partes{};
    double peso = 0;
    for (int descartes = 0; descartes <= kCartasMano; ++descartes) {
        const Estrato& estrato = clase.estratos[static_cast<std::size_t>(descartes)];
        if (estrato.cuantas == 0)
            continue;
        const long long tope =
            std::max<long long>(kManosPorClase, draws_por_clase / CuantosDraws(mazo, descartes));
        const Partes suyas = Media(mazo, cual.first, Muestra(estrato, tope));
        const auto cuantas = static_cast<double>(estrato.cuantas);
        for (std::size_t n = 0; n < partes.size(); ++n)
            partes[n] += suyas[n] * cuantas;
        peso += cuantas;
    }
    for (double& parte : partes)
        parte /= peso;
    RegistroDescarte registro;
    registro.JugadaMantenida = cual.first;
    registro.CalidadMantenida = cual.second;
    PonCasos(registro, partes, CuantosDraws(mazo, clase.Descartes()));
    return registro;
}

} // namespace

std::vector<bool> Conserva(Integer categoria) {
    MarcaLoQueSobra(kAsiento, categoria);
    std::vector<bool> conserva;
    for (const Integer marca : poker.MarcaDescarte)
        conserva.push_back(marca == 0);
    return conserva;
}

std::vector<RegistroDescarte> CalculaProbabilidades(long long draws_por_clase) {
    const Mazo mazo = HazMazo();
    std::vector<RegistroDescarte> registros;
    for (const auto& [cual, clase] : ReparteTodas(mazo))
        registros.push_back(ResumeClase(mazo, cual, clase, draws_por_clase));
    return registros;
}

std::string EscribeRegistro(const RegistroDescarte& registro) {
    std::string linea = Formato(estado.CartasNormales, "00") + Numero(estado.ComodinesBaraja) +
                        Formato(registro.JugadaMantenida, "00") +
                        Numero(registro.CalidadMantenida) +
                        Formato(registro.CasosDescarte, "0000000");
    for (int n = kPrimeraHecha; n <= kCategorias; ++n)
        linea += Formato(registro.CasosResultado(n), "0000000");
    return linea + "\r\n";
}

void PonBarajaDePoker(Integer cartas_baraja, Integer comodines_juego) {
    UsaJuegos(LosJuegos());
    estado.JuegoActivo = kPoker;
    estado.CartasBaraja = cartas_baraja;
    estado.ComodinesJuego = comodines_juego;
    ConstruirBaraja();
}

std::string HazFichero(const std::function<void(int)>& avisa) {
    std::string fichero;
    for (Integer comodines = 1; comodines <= 3; ++comodines) {
        for (Integer cartas = 1; cartas <= 6; ++cartas) {
            PonBarajaDePoker(cartas, comodines);
            for (const RegistroDescarte& registro : CalculaProbabilidades())
                fichero += EscribeRegistro(registro);
            avisa(static_cast<int>(fichero.size() / kAnchoRegistro));
        }
    }
    return fichero;
}
