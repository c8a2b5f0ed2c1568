#pragma once
// The history files: ZOV<game>31.HIS keeps one block of 182 bytes for each finished match of a game, plain text in
// Windows-1252. A block begins with date and time and ends in CR LF, so the file also reads as lines. Read and written in
// CarpetaTrabajo.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/files.h"
#include "core/tabla.h"
#include "platform/platform.h"

inline constexpr std::size_t kAnchoBloque = 182;
// Winners and losers that a block has room for.
inline constexpr int kPuestos = 3;

// "ZOV7031.HIS" for game 70.
std::string NombreHistorico(int juego);

// ---- a match that enters the history

// A player and what goes with the name: hands won, or money.
struct Anotado {
    std::string nombre;
    int figura = 0;
    friend bool operator==(const Anotado&, const Anotado&) = default;
};

struct PartidaTerminada {
    FechaHora fin;
    std::vector<Anotado> ganadores, perdedores; // the first three count
    bool por_parejas = false;                   // the figure of a pair is that of its first name
};

// The block: names cut to 9 letters, figures to what five columns hold.
std::string EscribeBloque(const PartidaTerminada& partida);

// Adds the match to the game's file; a missing file is begun. A file that ends in the middle of a block is first kept
// as it was under its name and .MAL, and goes on after its last whole block. On an error the history is what it was. A
// platform that keeps no matches writes nothing.
[[nodiscard]] ErrorArchivo AnadeAlHistorico(int juego, const PartidaTerminada& partida);

// ---- what is there to read

// One match as its block tells it: any bytes. Texts come in UTF-8 without the blanks around them; control characters
// come as '?'.
class BloqueHistorico {
public:
    // bytes: 182 of them, which outlive this.
    explicit BloqueHistorico(std::string_view bytes) : bytes_(bytes) {}

    std::string Fecha() const; // "20-11-2026"
    std::string Hora() const;  // "22:47"
    bool PorParejas() const;
    // puesto 1..3. A name as its bytes, without blanks; empty: nobody.
    std::string_view Ganador(int puesto) const { return Nombre(kGanadores, puesto); }
    std::string_view Perdedor(int puesto) const { return Nombre(kPerdedores, puesto); }
    double FiguraGanador(int puesto) const { return Figura(kGanadores, puesto); }
    double FiguraPerdedor(int puesto) const { return Figura(kPerdedores, puesto); }

private:
    static constexpr int kGanadores = 13, kPerdedores = 55;
    std::string_view Bytes(int columna, int ancho) const;
    std::string_view Nombre(int grupo, int puesto) const;
    double Figura(int grupo, int puesto) const;

    std::string_view bytes_;
};

// Bytes of a file as a text to show: UTF-8, '?' for what is no letter.
std::string TextoDeHistorico(std::string_view bytes);

// The whole file of a game, the newest match first: blocks in descending order of their text.
class Historico {
public:
    Historico() = default;
    // The whole blocks of these bytes.
    explicit Historico(std::string contenido);

    int Partidas() const { return static_cast<int>(orden_.size()); }
    // n from 1.
    BloqueHistorico Partida(int n) const;

private:
    std::string contenido_;
    std::vector<std::uint32_t> orden_; // block numbers in the order of display
};

// A file that is missing or cannot be read is empty.
Historico LeeHistorico(int juego);
