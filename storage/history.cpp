#include "storage/history.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/fixed_columns.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"

namespace {

constexpr const char* kFinDeLinea = "\r\n";
constexpr int kAnchoTexto = static_cast<int>(kAnchoBloque) - 2;
constexpr int kAnchoNombre = 9, kAnchoFigura = 5;
constexpr int kColumnaGanadores = 13, kColumnaPerdedores = 55, kColumnaModalidad = 97;
constexpr int kMenorFigura = -9999, kMayorFigura = 99999;

std::string RutaDe(int juego) {
    return estado.CarpetaTrabajo + "/" + NombreHistorico(juego);
}

// ---- writing

std::string FiguraEscrita(int figura) {
    return Formato(Numero(std::clamp(figura, kMenorFigura, kMayorFigura)), "@@@@@");
}

// Three names, and behind them their figures; in pairs only the first one's.
void PonGrupo(std::string& linea, int columna, const std::vector<Anotado>& grupo, bool parejas) {
    const int cuantos = std::min(static_cast<int>(grupo.size()), kPuestos);
    for (int i = 0; i < cuantos; ++i) {
        const Anotado& quien = grupo[static_cast<std::size_t>(i)];
        Superpone(linea, columna + i * kAnchoNombre, kAnchoNombre, quien.nombre);
        if (i == 0 || !parejas)
            Superpone(linea, columna + kPuestos * kAnchoNombre + i * kAnchoFigura, kAnchoFigura,
                      FiguraEscrita(quien.figura));
    }
}

// Without a cut block at its end, which is kept aside.
ErrorArchivo QuitaBloqueCortado(const std::string& ruta, std::string& contenido) {
    const std::size_t sobra = contenido.size() % kAnchoBloque;
    if (sobra == 0)
        return ErrorArchivo::Ninguno;
    const ErrorArchivo error = plataforma().LosArchivos().Escribe(ruta + ".MAL", contenido);
    contenido.resize(contenido.size() - sobra);
    return error;
}

// ---- reading

std::string_view SinBlancos(std::string_view bytes) {
    const std::size_t primero = bytes.find_first_not_of(' ');
    if (primero == std::string_view::npos)
        return {};
    return bytes.substr(primero, bytes.find_last_not_of(' ') - primero + 1);
}

std::string_view BloqueEn(std::string_view contenido, std::uint32_t n) {
    return contenido.substr(std::size_t{n} * kAnchoBloque, kAnchoBloque);
}

} // namespace

std::string NombreHistorico(int juego) {
    return "ZOV" + Formato(static_cast<double>(juego), "00") + "31.HIS";
}

std::string EscribeBloque(const PartidaTerminada& partida) {
    const FechaHora& fin = partida.fin;
    std::string linea = Formato(fin.anio, "0000") + Formato(fin.mes, "00") +
                        Formato(fin.dia, "00") + Formato(fin.hora, "00") +
                        Formato(fin.minuto, "00");
    PonGrupo(linea, kColumnaGanadores, partida.ganadores, partida.por_parejas);
    PonGrupo(linea, kColumnaPerdedores, partida.perdedores, partida.por_parejas);
    Superpone(linea, kColumnaModalidad, 1, partida.por_parejas ? "2" : "1");
    Superpone(linea, kAnchoTexto, 1, " ");
    return AWindows1252(linea) + kFinDeLinea;
}

ErrorArchivo AnadeAlHistorico(int juego, const PartidaTerminada& partida) {
    if (!plataforma().GuardaPartidas())
        return ErrorArchivo::Ninguno;
    const std::string ruta = RutaDe(juego);
    Lectura lectura = plataforma().LosArchivos().Lee(ruta);
    if (lectura.error != ErrorArchivo::Ninguno && lectura.error != ErrorArchivo::NoEncontrado)
        return lectura.error;
    const ErrorArchivo error = QuitaBloqueCortado(ruta, lectura.contenido);
    if (error != ErrorArchivo::Ninguno)
        return error;
    return plataforma().LosArchivos().Escribe(ruta, lectura.contenido + EscribeBloque(partida));
}

std::string_view BloqueHistorico::Bytes(int columna, int ancho) const {
    return bytes_.substr(static_cast<std::size_t>(columna - 1), static_cast<std::size_t>(ancho));
}

std::string BloqueHistorico::Fecha() const {
    return TextoDeHistorico(Bytes(7, 2)) + "-" + TextoDeHistorico(Bytes(5, 2)) + "-" +
           TextoDeHistorico(Bytes(1, 4));
}

std::string BloqueHistorico::Hora() const {
    return TextoDeHistorico(Bytes(9, 2)) + ":" + TextoDeHistorico(Bytes(11, 2));
}

bool BloqueHistorico::PorParejas() const {
    return Bytes(kColumnaModalidad, 1) == "2";
}

std::string_view BloqueHistorico::Nombre(int grupo, int puesto) const {
    return SinBlancos(Bytes(grupo + (puesto - 1) * kAnchoNombre, kAnchoNombre));
}

double BloqueHistorico::Figura(int grupo, int puesto) const {
    return Val(Bytes(grupo + kPuestos * kAnchoNombre + (puesto - 1) * kAnchoFigura, kAnchoFigura));
}

std::string TextoDeHistorico(std::string_view bytes) {
    std::string legible(bytes);
    for (char& c : legible) {
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7F')
            c = '?';
    }
    return DeWindows1252(legible);
}

Historico::Historico(std::string contenido) : contenido_(std::move(contenido)) {
    orden_.resize(contenido_.size() / kAnchoBloque);
    std::iota(orden_.begin(), orden_.end(), 0U);
    const std::string_view bytes = contenido_;
    // Matches are added at the end, so most files only have to be turned round.
    std::ranges::reverse(orden_);
    const auto despues = [&](std::uint32_t a, std::uint32_t b) {
        return BloqueEn(bytes, a) > BloqueEn(bytes, b);
    };
    if (!std::ranges::is_sorted(orden_, despues))
        std::ranges::sort(orden_, despues);
}

BloqueHistorico Historico::Partida(int n) const {
    return BloqueHistorico(BloqueEn(contenido_, orden_.at(static_cast<std::size_t>(n - 1))));
}

Historico LeeHistorico(int juego) {
    Lectura lectura = plataforma().LosArchivos().Lee(RutaDe(juego));
    return lectura.error == ErrorArchivo::Ninguno ? Historico(std::move(lectura.contenido))
                                                  : Historico();
}
