#include "reports/marcador_pages.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "platform/platform.h"
#include "table/game_row.h"

namespace {

constexpr Integer kAsientos = 4;
constexpr int kUltimoRegistro = 2000;

// Places down the page, in points.
constexpr int kTitulo = 12, kCabecera = 42, kRegistros = 62, kPie = 478, kAltoHoja = 500;
constexpr int kAltoRegistro = 36; // two lines and the rule above them
constexpr int kLinea1 = 4, kLinea2 = 18, kLineaSola = 10, kAltoLinea = 14;
constexpr int kAntesDelResumen = 12;
// Places across it.
constexpr int kMargen = 16;
constexpr int kNumero = kMargen + 7, kInicio = kMargen + 49; // under "Mano" and "Sale"
constexpr int kPasoAsiento = 126, kMedioNombre = 70;
constexpr int kPasoBanca = 144, kNombreBanca = -10;
constexpr int kAnchoResultado = 63; // its title
constexpr int kResultado = 5 * kPasoAsiento + 14, kResultadoBanca = 5 * kPasoBanca + kNombreBanca;
constexpr int kTotal = 17; // from the title of the last column to its figures
constexpr int kMarca = 10, kNota = 14, kManos = 52;
constexpr int kCajaIzquierda = 7, kCajaDerecha = 69;
constexpr int kAnchoSerie = 7; // characters of a group
constexpr int kEquipo1 = kPasoAsiento, kEquipo2 = 3 * kPasoAsiento;

constexpr Letra kNormal{};
constexpr Letra kNegrita{.negrita = true};
constexpr Letra kLetraTitulo{.cuerpo = 15, .negrita = true};

using Hoja = InformesDeJuego::Hoja;

const InformesDeJuego& Como() {
    return JuegoEnMesa().informes;
}

bool Activo(int asiento) {
    return estado.EstadoJugador(asiento) == kActivado;
}

bool Marcado(const RegistroJuego& registro, int asiento, int columna) {
    return registro.Marcas(asiento, columna) == 1;
}

// In pairs the mark stands at 1 or 2 alone, for the whole team.
bool Gana(const RegistroJuego& registro, int asiento) {
    return Marcado(registro, asiento, 1) ||
           (PorParejas() && Marcado(registro, estado.ParejaAsiento(asiento), 1));
}

Tinta RojoSi(bool rojo) {
    return rojo ? Tinta::Rojo : Tinta::Azul;
}

int AnchoHoja() {
    switch (Como().hoja) {
    case Hoja::Manos:
        return 5 * kPasoAsiento + 2 * kMargen;
    case Hoja::Banca:
        return kResultadoBanca + kAnchoResultado + kMargen;
    default:
        return kResultado + kAnchoResultado + kMargen;
    }
}

Integer UltimaDeLaPagina(const EstadoMarcador& hoja) {
    const int ultima = std::min<int>(hoja.PrimeraLinea + kLineasPagina - 1, hoja.UltimaLinea);
    return EnteroDe(std::min(ultima, kUltimoRegistro));
}

// ---- head and foot

std::string FechaEscrita(const FechaHora& fecha) {
    static constexpr std::array kMeses{"ene", "feb", "mar", "abr", "may", "jun",
                                       "jul", "ago", "sep", "oct", "nov", "dic"};
    const auto mes = static_cast<std::size_t>(std::clamp(fecha.mes, 1, 12) - 1);
    return fmt::format("{} {} {}  {:02}:{:02}:{:02}", fecha.dia, kMeses[mes], fecha.anio,
                       fecha.hora, fecha.minuto, fecha.segundo);
}

void ImprimeCabecera(PaginaImpresa& pagina) {
    pagina.Texto(pagina.Ancho() - kMargen, kTitulo + 2, FechaEscrita(plataforma().Ahora()),
                 Tinta::Negro, kNormal, Alineacion::Derecha);
    pagina.Texto(kMargen, kTitulo, "INFORME DE LA PARTIDA ACTUAL", Tinta::Negro, kLetraTitulo);
}

void ImprimePie(PaginaImpresa& pagina, const EstadoMarcador& hoja) {
    pagina.Texto(pagina.Ancho() / 2, kPie,
                 "Página: " + Formato(PaginaDe(hoja), "##0") + " de " +
                     Formato(PaginasDe(hoja), "##0"),
                 Tinta::Negro, kNormal, Alineacion::Centro);
}

// ---- what the three kinds of page have in common

void ImprimeNombres(PaginaImpresa& pagina) {
    for (int asiento = 1; asiento <= kAsientos; ++asiento)
        pagina.Texto(kPasoAsiento * asiento + kMedioNombre, kCabecera,
                     estado.NombreJugador(asiento), Tinta::Negro, kNormal, Alineacion::Centro);
}

void ImprimeNumero(PaginaImpresa& pagina, int y, int juego) {
    pagina.Texto(kNumero, y, Formato(Numero(juego), "@@"), Tinta::Negro);
}

void ImprimeInicio(PaginaImpresa& pagina, int y, const RegistroJuego& registro, Tinta tinta) {
    pagina.Texto(kInicio, y, Formato(registro.Inicio, "!@@@@@@@@@@@"), tinta);
}

void ImprimeTotal(PaginaImpresa& pagina, int x, int y, const RegistroJuego& registro) {
    pagina.Texto(x + kTotal, y, Formato(Numero(registro.Total), "@@@@"), Tinta::Negro);
}

// One of the four groups of a seat: serie 1 and 2 stand in Texto1, 3 and 4 in Texto2.
std::string Grupo(const RegistroJuego& registro, int asiento, int serie) {
    const std::string& texto = serie <= 2 ? registro.Texto1(asiento) : registro.Texto2(asiento);
    const std::string grupo = Medio(texto, serie % 2 == 1 ? 1 : kAnchoSerie + 1, kAnchoSerie);
    return Recorta(grupo).empty() ? "" : grupo;
}

using TextoDeGrupo = std::string (*)(const RegistroJuego& registro, int asiento, int serie);

// The four groups of a seat in two lines, at x and after it.
void ImprimeSeries(PaginaImpresa& pagina, int x, int y, const RegistroJuego& registro, int asiento,
                   TextoDeGrupo grupo) {
    constexpr int kPasoGrupo = 63;
    for (int serie = 1; serie <= 4; ++serie)
        pagina.Texto(x + (serie % 2 == 1 ? 0 : kPasoGrupo), y + (serie <= 2 ? kLinea1 : kLinea2),
                     grupo(registro, asiento, serie), RojoSi(Marcado(registro, asiento, serie)));
}

// ---- Tute, Brisca, Cinquillo

std::string TextoDeMarca(const RegistroJuego& registro, int asiento) {
    std::string texto;
    const double puntos = Val(registro.Texto1(asiento));
    if (puntos > 0)
        texto = Formato(puntos, "@@@") + " ptos";
    if (Como().en_contra && !Gana(registro, asiento))
        texto = "-" + Recorta(texto);
    const Integer acuses = registro.Cifra(asiento);
    if (acuses > 0)
        texto += (texto.empty() ? "" : " /") + Formato(Numero(acuses), "@") + " acus";
    return texto;
}

void ImprimeManoTBC(PaginaImpresa& pagina, int y, int juego) {
    const RegistroJuego& registro = estado.Juegos(juego);
    const int linea = y + (Como().sin_nota ? kLineaSola : kLinea1);
    pagina.Linea(kMargen, y, pagina.Ancho() - kMargen, y, Tinta::GrisClaro);
    ImprimeNumero(pagina, linea, juego);
    ImprimeInicio(pagina, linea, registro, Tinta::Negro);
    for (int asiento = 1; asiento <= kAsientos; ++asiento) {
        if (!Activo(asiento))
            continue;
        const Tinta tinta = RojoSi(Gana(registro, asiento));
        const int x = kPasoAsiento * asiento;
        pagina.Texto(x + kMarca, linea, TextoDeMarca(registro, asiento), tinta);
        pagina.TextoEstrecho(x + kNota, y + kLinea2, registro.Texto2(asiento),
                             Como().en_contra ? Tinta::Azul : tinta, kPasoAsiento - kNota);
    }
}

void ImprimeManosPorAsiento(PaginaImpresa& pagina, int y) {
    for (int asiento = 1; asiento <= kAsientos; ++asiento) {
        if (Activo(asiento))
            pagina.Texto(kPasoAsiento * asiento + kManos, y,
                         Formato(estado.JuegosGanados(asiento), "##0"), Tinta::Verde);
    }
}

// Each piece stands where the one before it ends.
void ImprimeEquipo(PaginaImpresa& pagina, int x, int y, int equipo) {
    const auto sigue = [&](const std::string& texto, Tinta tinta) {
        pagina.Texto(x, y, texto, tinta);
        x += AnchoTexto(texto, kNormal);
    };
    sigue(estado.NombreJugador(equipo) + " y ", Tinta::AzulOscuro);
    sigue(estado.NombreJugador(equipo + 2), Tinta::Negro);
    sigue(" = ", Tinta::Negro);
    sigue(Formato(estado.JuegosGanados(equipo), "##0"), Tinta::Verde);
}

void ImprimeManosGanadas(PaginaImpresa& pagina, int y) {
    const std::string titulo = "Manos ganadas";
    pagina.Texto(kMargen, y, titulo, Tinta::Negro, kNegrita);
    if (!PorParejas())
        return ImprimeManosPorAsiento(pagina, y);
    pagina.Texto(kMargen + AnchoTexto(titulo, kNegrita), y, ":", Tinta::Negro, kNegrita);
    ImprimeEquipo(pagina, kEquipo1, y, 1);
    ImprimeEquipo(pagina, kEquipo2, y, 2);
}

bool SeCuentanLasManos(const EstadoMarcador& hoja) {
    const bool alguna = std::any_of(std::next(estado.JuegosGanados.begin()),
                                    estado.JuegosGanados.end(), [](Integer n) { return n > 0; });
    return hoja.PrimeraLinea + kLineasPagina > hoja.UltimaLinea && alguna &&
           estado.JuegosJugados > 0;
}

void ImprimePaginaTBC(PaginaImpresa& pagina, const EstadoMarcador& hoja) {
    pagina.Texto(kMargen, kCabecera, Como().cabecera, Tinta::Negro);
    ImprimeNombres(pagina);
    int y = kRegistros;
    for (Integer juego = hoja.PrimeraLinea; juego <= UltimaDeLaPagina(hoja); ++juego) {
        ImprimeManoTBC(pagina, y, juego);
        y += kAltoRegistro;
    }
    if (SeCuentanLasManos(hoja))
        ImprimeManosGanadas(pagina, y + kAntesDelResumen);
}

// ---- Póker and Siete y media

void ImprimeJugadas(PaginaImpresa& pagina, int y, const RegistroJuego& registro) {
    // The second text goes by column 3: Póker marks nothing there, so its cards are always blue. As it is meant.
    constexpr int kMarcaNombre = 1, kMarcaCartas = 3;
    for (int asiento = 1; asiento <= kAsientos; ++asiento) {
        const int x = kPasoAsiento * asiento + kMarca;
        pagina.Texto(x, y + kLinea1, registro.Texto1(asiento),
                     RojoSi(Marcado(registro, asiento, kMarcaNombre)));
        pagina.Texto(x, y + kLinea2, registro.Texto2(asiento),
                     RojoSi(Marcado(registro, asiento, kMarcaCartas)));
    }
}

void ImprimeSeriesConCaja(PaginaImpresa& pagina, int y, const RegistroJuego& registro) {
    constexpr int kPrimerGrupo = 12;
    for (int asiento = 1; asiento <= kAsientos; ++asiento) {
        const int x = kPasoAsiento * asiento;
        ImprimeSeries(pagina, x + kPrimerGrupo, y, registro, asiento, Grupo);
        const bool banca = estado.NombreJugador(asiento) == registro.Inicio;
        if (!banca && !Recorta(registro.Texto1(asiento)).empty())
            pagina.Caja(x + kCajaIzquierda, y + kLinea1 - 1, x + kCajaDerecha,
                        y + kLinea1 - 1 + kAltoLinea, Tinta::Negro);
    }
}

bool CambiaLaBanca(const EstadoMarcador& hoja, Integer juego) {
    return juego == hoja.PrimeraLinea ||
           estado.Juegos(juego).Inicio != estado.Juegos(juego - 1).Inicio;
}

void ImprimePaginaPS(PaginaImpresa& pagina, const EstadoMarcador& hoja) {
    const bool series = Como().hoja == Hoja::Series;
    pagina.Texto(kMargen, kCabecera, Como().cabecera, Tinta::Negro);
    ImprimeNombres(pagina);
    pagina.Texto(kResultado, kCabecera, Como().resultado, Tinta::Negro);
    int y = kRegistros;
    for (Integer juego = hoja.PrimeraLinea; juego <= UltimaDeLaPagina(hoja); ++juego) {
        const RegistroJuego& registro = estado.Juegos(juego);
        if (series && CambiaLaBanca(hoja, juego))
            pagina.Linea(kMargen, y, pagina.Ancho() - kMargen, y, Tinta::Negro);
        ImprimeNumero(pagina, y + kLinea1, juego);
        ImprimeInicio(pagina, y + kLinea1, registro, Tinta::Azul);
        series ? ImprimeSeriesConCaja(pagina, y, registro) : ImprimeJugadas(pagina, y, registro);
        ImprimeTotal(pagina, kResultado, y + kLinea1, registro);
        y += kAltoRegistro;
    }
}

// ---- Black Jack

// From the seat after the bank round to the bank itself.
std::vector<Integer> AsientosHastaLaBanca() {
    std::vector<Integer> rueda;
    Integer asiento = std::clamp<Integer>(estado.JugadorBanca, 1, kAsientos);
    for (int paso = 1; paso <= kAsientos; ++paso) {
        SiguienteAsiento(asiento);
        rueda.push_back(asiento);
    }
    return rueda;
}

// A natural is recorded by the first seven letters of its name.
std::string GrupoBJ(const RegistroJuego& registro, int asiento, int serie) {
    const std::string grupo = Grupo(registro, asiento, serie);
    return grupo == "Black J" ? "BlackJack" : grupo;
}

void ImprimePaginaBJ(PaginaImpresa& pagina, const EstadoMarcador& hoja) {
    constexpr int kGrupo = 2;
    const std::vector<Integer> rueda = AsientosHastaLaBanca();
    const auto x_de = [](int n) { return kPasoBanca * n + kNombreBanca; };
    pagina.Texto(kMargen, kCabecera, Como().cabecera, Tinta::Negro);
    for (int n = 1; n <= kAsientos; ++n)
        pagina.Texto(x_de(n), kCabecera,
                     estado.NombreJugador(rueda[static_cast<std::size_t>(n - 1)]), Tinta::Negro);
    pagina.Texto(kResultadoBanca, kCabecera, Como().resultado, Tinta::Negro);
    int y = kRegistros;
    for (Integer juego = hoja.PrimeraLinea; juego <= UltimaDeLaPagina(hoja); ++juego) {
        const RegistroJuego& registro = estado.Juegos(juego);
        ImprimeNumero(pagina, y + kLinea1, juego);
        for (int n = 1; n <= kAsientos; ++n)
            ImprimeSeries(pagina, x_de(n) + kGrupo, y, registro,
                          rueda[static_cast<std::size_t>(n - 1)], GrupoBJ);
        ImprimeTotal(pagina, kResultadoBanca, y + kLinea1, registro);
        y += kAltoRegistro;
    }
}

} // namespace

EstadoMarcador HojaInicial() {
    EstadoMarcador hoja;
    hoja.LineasPagina = kLineasPagina;
    hoja.UltimaLinea =
        EnteroDe(estado.PartidaEnCurso ? estado.JuegosJugados - 1 : estado.JuegosJugados);
    const int decenas = static_cast<int>(ParteEntera((hoja.UltimaLinea - 1) / 10.0));
    hoja.PrimeraUltimaPagina = EnteroDe(std::max(decenas * kLineasPagina + 1, 1));
    hoja.PrimeraLinea = hoja.PrimeraUltimaPagina;
    return hoja;
}

int PaginasDe(const EstadoMarcador& hoja) {
    return (hoja.PrimeraUltimaPagina - 1) / kLineasPagina + 1;
}

int PaginaDe(const EstadoMarcador& hoja) {
    return (hoja.PrimeraLinea - 1) / kLineasPagina + 1;
}

PaginaImpresa ImprimePagina(const EstadoMarcador& hoja) {
    PaginaImpresa pagina(AnchoHoja(), kAltoHoja);
    ImprimeCabecera(pagina);
    switch (Como().hoja) {
    case Hoja::Manos:
        ImprimePaginaTBC(pagina, hoja);
        break;
    case Hoja::Banca:
        ImprimePaginaBJ(pagina, hoja);
        break;
    default:
        ImprimePaginaPS(pagina, hoja);
        break;
    }
    ImprimePie(pagina, hoja);
    return pagina;
}
