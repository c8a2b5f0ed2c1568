#pragma once
// The desktop without a screen, for tests and tools: a virtual clock, input from a script, answers from a
// list, files in memory unless a folder is named. What the game asks of it is kept to be looked at.

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/headless/control_board.h"
#include "platform/headless/input_script.h"
#include "platform/headless/recorded_canvas.h"
#include "platform/platform.h"

struct SonidoPedido {
    int id = 0;
    bool espera = false;
    friend bool operator==(const SonidoPedido&, const SonidoPedido&) = default;
};

class PlataformaSinPantalla : public Plataforma {
public:
    // The script. A wait whose script is at its end is answered as by Pic_BotContinuar with
    // siempre_continua, and finds nothing otherwise; the manual spread, which that button does not end,
    // finds nothing in either case. Passes that are no wait take input only with traviesa.
    GuionEntrada guion;
    std::deque<Boton>
        respuestas; // to the next boxes, in order; without one: closed, or "Si" to a question
    bool siempre_continua = false;
    bool traviesa = false;

    // A data file of the program that is missing is reported, instead of being taken for empty.
    bool exige_ficheros = false;

    // What was asked for. Kept while registra is on.
    bool registra = true;
    std::vector<CajaMensaje> mensajes;
    std::vector<std::string> anuncios;
    std::vector<SonidoPedido> sonidos;
    std::vector<int> temas_ayuda;
    std::vector<Forma> formas_abiertas;
    int minimizadas = 0;
    // The frames as they are.
    std::map<Marco, Rectangulo> marcos;

    // The day on the wall when the virtual clock stands at 0.
    FechaHora primer_dia;

    // Forms that this desktop has, and what opening one does.
    std::set<Forma> formas{Forma::Personal, Forma::Normas, Forma::Marcador, Forma::Historic,
                           Forma::Estadis};
    std::function<void(Forma)> al_abrir;

    // Size of the window, 800 by 600 at first. The game learns of a change by an event or a call of its own.
    void Mide(int ancho, int alto);
    // Canvases that record, and HayPantalla true.
    void UsaLienzosRegistrados();
    LienzoRegistrado& Dibujado(Control control, int indice = 0);
    // The files of a folder on the disk instead of those in memory.
    void UsaCarpeta(const std::string& carpeta);
    ArchivosMemoria& EnMemoria() { return memoria_; }
    // A file that comes with the program: in memory from now on, and again after Limpia.
    void Instala(const std::string& ruta, const std::string& contenido);
    const TableroControles& Tablero() const { return tablero_; }
    // Everything as in a new one; the folder in use stays.
    void Limpia();

    void Bombea() override;
    std::optional<Evento> SiguienteEvento(Pase pase) override;
    [[nodiscard]] bool EsperaEvento() override;

    Milisegundos Reloj() override { return reloj_; }
    void DuermeHasta(Milisegundos momento) override { reloj_ = std::max(reloj_, momento); }
    FechaHora Ahora() override;

    bool HayPantalla() const override { return con_lienzos_; }
    int AnchoVentana() const override { return ancho_; }
    int AltoVentana() const override { return alto_; }

    Lienzo& LienzoDe(Control control, int indice) override;
    void Coloca(Control control, int indice, const Rectangulo& donde) override;
    void Muestra(Control control, int indice, bool visible) override;
    bool EstaVisible(Control control, int indice) const override;
    void PonPuntero(Control control, int indice, Puntero puntero) override;
    Puntero PunteroDe(Control control, int indice) const override;
    Rectangulo LugarDe(Control control, int indice) const override;
    void Nombra(Control control, int indice, std::string_view nombre) override;
    std::string NombreDicho(Control control, int indice) const override;
    void Enmarca(Marco cual, const std::optional<Rectangulo>& donde) override;
    void Anuncia(std::string_view texto) override;
    void Vuela(int, int, const ImagenCarta&) override {}
    void Posa() override {}
    void Repinta() override {}

    void CargaBaraja(const std::string&, int) override {}

    Boton Pregunta(const CajaMensaje& caja) override;
    void Abre(Forma forma) override;
    bool TieneForma(Forma forma) const override { return formas.contains(forma); }

    void Suena(int id, bool espera) override;
    void Ayuda(int tema) override;
    void Minimiza() override { ++minimizadas; }

    bool ExigeFicheros() const override { return exige_ficheros; }
    Archivos& LosArchivos() override { return *archivos_; }
    std::string CarpetaDelPrograma() const override { return carpeta_; }
    std::string CarpetaUsuario() const override { return carpeta_; }

private:
    bool ContinuaSola() const;

    Milisegundos reloj_ = 0;
    int ancho_ = 800, alto_ = 600;
    bool pase_servido_ = false; // a pass takes one event of the script
    TableroControles tablero_;
    bool con_lienzos_ = false;
    LienzoRegistrado mudo_{false};
    std::map<ControlMesa, LienzoRegistrado> lienzos_;
    ArchivosMemoria memoria_;
    std::map<std::string, std::string> instalados_;
    std::unique_ptr<Archivos> disco_;
    Archivos* archivos_ = &memoria_;
    std::string carpeta_ = ".";
};
