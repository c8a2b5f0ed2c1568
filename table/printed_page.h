#pragma once
// A page as a report prints it: a list of items, each at its place. The page knows no screen: the same list is
// painted on a canvas (a window, a picture, a sheet of paper, a PDF) and written out as lines. Places are points
// from the upper left corner of the page, x to the right and y down; a point is a pixel of a canvas at full size.
// Reports are set in letters that are all equally wide, so a text has its width without a screen.

#include <string>
#include <string_view>
#include <vector>

#include "platform/canvas.h"

// The inks of the reports.
enum class Tinta {
    Negro,
    Blanco,
    Gris,
    GrisClaro,
    Rojo,
    RojoOscuro,
    Azul,
    AzulOscuro,
    Verde,
    Amarillo,
};

// The name that the console gives an ink ("rojo oscuro"), and how it is painted.
const char* NombreDe(Tinta tinta);
Color ColorDe(Tinta tinta);

// cuerpo: the letter's height in points.
struct Letra {
    int cuerpo = 12;
    bool negrita = false;
    friend bool operator==(const Letra&, const Letra&) = default;
};

enum class ClaseImpreso {
    Texto,
    Linea,   // from (x, y) to (x2, y2)
    Caja,    // an empty box; x2, y2 are its last points
    Relleno, // the same, filled
    Palo,    // the small picture of a suit of the French deck; texto is its sign
};

// x, y: the left edge and the top. letra and texto are a text's alone; x2, y2 of a text are the end of its letters
// and the foot of its line.
struct Impreso {
    ClaseImpreso clase = ClaseImpreso::Texto;
    int x = 0, y = 0, x2 = 0, y2 = 0;
    Tinta tinta = Tinta::Negro;
    Letra letra;
    std::string texto;
    friend bool operator==(const Impreso&, const Impreso&) = default;
};

// The width in points of one character, and of a text.
int AnchoLetra(const Letra& letra);
int AnchoTexto(std::string_view texto, const Letra& letra);

class PaginaImpresa {
public:
    PaginaImpresa(int ancho, int alto) : ancho_(ancho), alto_(alto) {}

    int Ancho() const { return ancho_; }
    int Alto() const { return alto_; }
    void PonAlto(int alto) { alto_ = alto; }
    // In the order of printing.
    const std::vector<Impreso>& Impresos() const { return impresos_; }

    // A line of text by the top of its line and, as alineacion says, its left edge, middle or right edge. An empty
    // text leaves nothing.
    void Texto(int x, int y, std::string_view texto, Tinta tinta, const Letra& letra = {},
               Alineacion alineacion = Alineacion::Izquierda);
    // The same from its left edge, drawn narrower where it would be wider than tope points.
    void TextoEstrecho(int x, int y, std::string_view texto, Tinta tinta, int tope);
    void Linea(int x, int y, int x2, int y2, Tinta tinta);
    void Caja(int x, int y, int x2, int y2, Tinta tinta);
    void Relleno(int x, int y, int x2, int y2, Tinta tinta);
    // The picture of a suit 1..4, as large as a letter, in its own ink; any other palo leaves nothing.
    void Palo(int x, int y, Integer palo, const Letra& letra = {});

private:
    int ancho_, alto_;
    std::vector<Impreso> impresos_;
};

// Paints the items with the page's corner at (x, y) of the canvas; the paper itself is the caller's.
void PintaPagina(const PaginaImpresa& pagina, Lienzo& lienzo, int x = 0, int y = 0);

// One line an item: `x, y, ink, weight, "text"`, with `regla X2 Y2` or `caja X2 Y2` in the place of the text. Pictures
// have no line.
std::vector<std::string> LineasDe(const PaginaImpresa& pagina);

// The page as plain text for the clipboard: its lines from the top down, the texts of a line in their columns.
// Lines end in LF.
std::string TextoDe(const PaginaImpresa& pagina);

// Prints on a page that nobody looks at, for what the printing writes of the state.
template <void (*imprime)(PaginaImpresa&)>
void EnHojaSuelta() {
    PaginaImpresa hoja(0, 0);
    imprime(hoja);
}
