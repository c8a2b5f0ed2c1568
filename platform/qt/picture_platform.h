#pragma once
// The desktop without a screen that can still be looked at: everything is drawn on pictures, and the whole
// table comes out as one.

#include <map>
#include <optional>

#include "platform/headless/headless_platform.h"
#include "platform/qt/canvas_qt.h"

class PlataformaCuadro : public PlataformaSinPantalla {
public:
    // Needs a QGuiApplication for its letters. ratio: device pixels for each pixel of the table.
    explicit PlataformaCuadro(double ratio = 1);
    // Off, the game draws nothing and what has been drawn stays.
    bool pinta = true;

    // The table with the controls that show, in device pixels.
    QImage Cuadro();

    bool HayPantalla() const override { return pinta; }
    Lienzo& LienzoDe(Control control, int indice) override;
    void Coloca(Control control, int indice, const Rectangulo& donde) override;
    void Vuela(int x, int y, const ImagenCarta& carta) override;
    void Posa() override { en_vuelo_.reset(); }
    void CargaBaraja(const std::string& ruta, int columnas) override;

private:
    struct EnVuelo {
        QPoint donde;
        ImagenCarta carta;
    };

    LienzoRetenido& Retenido(ControlMesa cual);
    void PintaControl(QPainter& pintor, ControlMesa cual, LienzoRetenido& lienzo);

    Imagenes imagenes_;
    std::map<ControlMesa, LienzoRetenido> retenidos_;
    std::optional<EnVuelo> en_vuelo_;
};
