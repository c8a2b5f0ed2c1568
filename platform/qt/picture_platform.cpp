#include "platform/qt/picture_platform.h"

#include <QPainter>

PlataformaCuadro::PlataformaCuadro(double ratio) : imagenes_(ratio) {}

LienzoRetenido& PlataformaCuadro::Retenido(ControlMesa cual) {
    return retenidos_.try_emplace(cual, imagenes_, FondoDe(cual.control)).first->second;
}

Lienzo& PlataformaCuadro::LienzoDe(Control control, int indice) {
    LienzoRetenido& lienzo = Retenido({control, indice});
    const QSize mesa(AnchoVentana(), AltoVentana());
    if (control == Control::Mesa && lienzo.Tamano() != mesa)
        lienzo.PonTamano(mesa, true);
    return lienzo;
}

void PlataformaCuadro::Coloca(Control control, int indice, const Rectangulo& donde) {
    PlataformaSinPantalla::Coloca(control, indice, donde);
    const QSize tamano(donde.ancho, donde.alto);
    LienzoRetenido& lienzo = Retenido({control, indice});
    if (control != Control::Mesa && lienzo.Tamano() != tamano)
        lienzo.PonTamano(tamano, false);
}

void PlataformaCuadro::CargaBaraja(const std::string& ruta, int columnas) {
    imagenes_.CargaBaraja(QString::fromStdString(ruta), columnas);
}

void PlataformaCuadro::Vuela(int x, int y, const ImagenCarta& carta) {
    en_vuelo_ = {{imagenes_.Px(x), imagenes_.Px(y)}, carta};
}

void PlataformaCuadro::PintaControl(QPainter& pintor, ControlMesa cual, LienzoRetenido& lienzo) {
    if (!Tablero().EstaVisible(cual))
        return;
    const Rectangulo donde = Tablero().LugarDe(cual);
    pintor.drawImage(imagenes_.Px(donde.x), imagenes_.Px(donde.y), lienzo.Cuadro());
}

QImage PlataformaCuadro::Cuadro() {
    LienzoDe(Control::Mesa, 0);
    QImage cuadro = Retenido({Control::Mesa, 0}).Cuadro().copy();
    QPainter pintor(&cuadro);
    // A control's number comes after that of what it stands on; the pop-up lies over the controls, the card in
    // flight over everything, the held card over both.
    const auto altura = [](Control control) {
        return control == Control::Pic_Mover ? 2 : control == Control::Pic_SelOpciones ? 1 : 0;
    };
    for (const int capa : {0, 1, 2}) {
        if (capa == 2 && en_vuelo_)
            pintor.drawImage(en_vuelo_->donde, imagenes_.Carta(en_vuelo_->carta));
        for (auto& [cual, lienzo] : retenidos_) {
            if (cual.control != Control::Mesa && altura(cual.control) == capa)
                PintaControl(pintor, cual, lienzo);
        }
    }
    pintor.end();
    return cuadro;
}
