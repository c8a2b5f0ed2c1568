#pragma once
// A canvas that keeps a list of what was drawn on it, one readable line a call, for tests.

#include <string>
#include <vector>

#include "platform/canvas.h"

class LienzoRegistrado : public Lienzo {
public:
    // Off, it takes every call and keeps nothing.
    explicit LienzoRegistrado(bool graba = true) : graba_(graba) {}

    const std::vector<std::string>& Llamadas() const { return llamadas_; }
    void Olvida() { llamadas_.clear(); }

    void Fieltro(const Rectangulo& donde) override;
    void Caja(const Rectangulo& donde, Color color) override;
    void Borde(const Rectangulo& donde, Color color, int grueso) override;
    void Linea(int x1, int y1, int x2, int y2, Color color, int grueso) override;
    void Texto(int x, int y, std::string_view texto, const Fuente& fuente, Color color,
               Alineacion alineacion) override;
    void Carta(int x, int y, const ImagenCarta& carta) override;
    void MiniCarta(int x, int y, int ancho, int alto, const ImagenCarta& carta) override;
    void Lamina(int x, int y, const lamina::Recorte& recorte) override;
    void Velo(const Rectangulo& donde) override;

private:
    void Anota(std::string llamada);

    bool graba_;
    std::vector<std::string> llamadas_;
};
