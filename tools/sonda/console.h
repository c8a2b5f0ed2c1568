#pragma once
// The line console: reads commands, one a line, and answers. The whole game stands behind it, on a table
// without a screen.

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "platform/headless/headless_platform.h"
#include "tools/sonda/form_at_hand.h"
#include "tools/sonda/line_reader.h"

class Consola {
public:
    // Takes the platform into use and begins as after `limpia`. pinta: paints the table, and the form that is open
    // over it, into a picture file; a console without it has no `pantalla`.
    using Pintor = std::function<void(const std::string& fichero, std::optional<Forma> abierta)>;
    Consola(PlataformaSinPantalla& mesa, std::ostream& salida, Pintor pinta = {});
    ~Consola();
    Consola(const Consola&) = delete;
    Consola& operator=(const Consola&) = delete;

    // Carries out the next line of the input. A line that fails is answered with `error: ` and changes
    // nothing of what is still to come.
    void Linea(std::string_view linea);

    // Whether a line has failed so far.
    bool HuboErrores() const { return hubo_errores_; }

private:
    using Orden = void (Consola::*)(Lector&);
    static Orden OrdenDe(const std::string& nombre);

    void Reinicia();
    void Responde(std::string_view respuesta);
    void AtiendeLoPedido();
    void DiSiFaltaronEventos();

    void Eco(Lector& lector);
    void Limpia(Lector& lector);
    void Mide(Lector& lector);
    void Juego(Lector& lector);
    void Pon(Lector& lector);
    void Di(Lector& lector);
    void Vuelca(Lector& lector);
    void LlamaA(Lector& lector);
    void Azar(Lector& lector);
    void Semilla(Lector& lector);
    void Raton(Lector& lector);
    void Tecla(Lector& lector);
    void Boton(Lector& lector);
    void Contesta(Lector& lector);
    void Siempre(Lector& lector);
    void Traviesa(Lector& lector);
    void Pasa(Lector& lector);
    void Traza(Lector& lector);
    void Pantalla(Lector& lector);
    void Abre(Lector& lector);
    void Cierra(Lector& lector);
    void Escribe(Lector& lector);
    void Desliza(Lector& lector);
    void Informe(Lector& lector);

    PlataformaSinPantalla& mesa_;
    std::ostream& salida_;
    Pintor pinta_;
    FormaEnMano forma_;
    int linea_ = 0;
    bool hubo_errores_ = false;
};
