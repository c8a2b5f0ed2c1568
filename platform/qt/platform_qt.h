#pragma once
// The desktop: one window with the table in it, real widgets for its controls, real dialogs.

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <map>
#include <memory>
#include <utility>

#include "platform/platform.h"
#include "platform/qt/control_view.h"
#include "platform/qt/felt.h"
#include "platform/qt/frame_layer.h"
#include "platform/qt/main_window.h"

class QDialog;
class VistaAyuda;
class Altavoz;
class Careta;

// Opens a form over the given window and returns when it is closed.
using AbreForma = void (*)(QWidget* sobre);

class PlataformaQt : public QObject, public Plataforma {
    Q_OBJECT
public:
    // Needs a QApplication. carpeta: where the program stands, with its help and deck images.
    explicit PlataformaQt(const QString& carpeta);
    ~PlataformaQt() override;

    // The form's view; a form without one is not on offer.
    void PonForma(Forma forma, AbreForma abre);
    // Nothing of this run is kept: settings and matches stay on the disk as they are.
    void JuegaSinGuardar() { guarda_ = false; }
    // The desktop session or a signal ends the program: open boxes close unanswered and the game is told.
    void PideTermina();
    VentanaPrincipal& Ventana() { return *ventana_; }

    void Bombea() override;
    std::optional<Evento> SiguienteEvento(Pase pase) override;
    bool EsperaEvento() override;

    Milisegundos Reloj() override;
    void DuermeHasta(Milisegundos momento) override;
    FechaHora Ahora() override;

    bool HayPantalla() const override { return true; }
    int AnchoVentana() const override;
    int AltoVentana() const override;
    int AnchoEscritorio() const override;
    int AltoEscritorio() const override;

    void MuestraCareta() override;
    void MuestraMesa() override;

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
    void Vuela(int x, int y, const ImagenCarta& carta) override;
    void Posa() override;
    void Repinta() override;

    void CargaBaraja(const std::string& ruta, int columnas) override;

    Boton Pregunta(const CajaMensaje& caja) override;
    void Abre(Forma forma) override;
    bool TieneForma(Forma forma) const override;

    void Suena(int id, bool espera) override;
    void Ayuda(int tema) override;
    void Minimiza() override;

    bool GuardaPartidas() const override { return guarda_; }

    Archivos& LosArchivos() override { return archivos_; }
    std::string CarpetaDelPrograma() const override { return carpeta_.toStdString(); }
    std::string CarpetaUsuario() const override;

private:
    VistaControl& Vista(Control control, int indice);
    const VistaControl* VistaSiHay(Control control, int indice) const;
    void MuestraVista(VistaControl& vista, bool visible);
    void OrdenaCapas();
    void EnsenaLoHecho();
    QRegion Sucio();
    // The images and everything that is made of them, for the present ratio and factor.
    void RehazImagenes();
    void AvisaTamano();
    // Takes the factor that the table's size and the player's wish ask for.
    void AjustaFactor();
    void PonLetrasSueltas();
    QRect MarcoDeVentana() const;
    void UsaBaraja(const QString& ruta, int columnas);
    QString BarajaQueViene(const QString& propia) const;
    void CuentaMalaBaraja(const QString& propia, const std::string& motivo);
    // A step up or down from the factor in use; 0 leaves it to the program again.
    void PideFactor(int sentido);
    // The window that a dialog belongs to: the form that is open, the table, or before it is shown the
    // splash or none.
    QWidget* Padre();

    QString carpeta_;
    QString carpeta_barajas_; // of the deck on the table, whose cards the help shows
    ArchivosDisco archivos_;
    QElapsedTimer reloj_;
    Milisegundos
        origen_; // the clock starts at the day's time, so that no two runs are seeded alike
    QTimer despertador_;
    ColaEventos cola_;
    Imagenes imagenes_;
    std::unique_ptr<VentanaPrincipal> ventana_;
    Tapete* mesa_;
    CapaMarcos* marcos_;
    std::map<std::pair<Control, int>, VistaControl*> vistas_;
    std::map<Forma, AbreForma> formas_;
    std::unique_ptr<Careta> careta_;
    std::unique_ptr<VistaAyuda> ayuda_;
    std::unique_ptr<Altavoz> altavoz_;
    QString baraja_contada_; // the own picture of a deck that was last told to be bad
    double deseo_ = 0;       // the factor that the player has chosen, 0 none
    bool termina_ = false;
    bool guarda_ = true;
};
