#include "table/drawing.h"

#include "core/numeric.h"
#include "core/text.h"
#include "table/sheet_layout.h"
#include "table/trace.h"

void DibujarCarta(Control control, int x, int y, int orientacion, int palo, int valor, int cara,
                  int realce) {
    Traza("DibujarCarta", NombreDe(control), x, y, orientacion, palo, valor, cara, realce);
    if (plataforma().HayPantalla()) {
        plataforma()
            .LienzoDe(control, 0)
            .Carta(x, y,
                   {.palo = EnteroDe(palo),
                    .valor = EnteroDe(valor),
                    .cara = EnteroDe(cara),
                    .orientacion = EnteroDe(orientacion)});
    }
}

void DibujarCaja(int x, int y, int ancho, int alto) {
    Traza("DibujarCaja", x, y, ancho, alto);
    if (plataforma().HayPantalla())
        plataforma().LienzoDe(Control::Mesa, 0).Fieltro({x, y, ancho, alto});
}

void PintarNumero(Control control, int indice, int x, int y, std::string_view numero,
                  int columnas) {
    Traza("PintarNumero", NombreDe(control), numero);
    if (!plataforma().HayPantalla())
        return;
    const std::string texto = Formato(numero, std::string(static_cast<std::size_t>(columnas), '@'));
    Lienzo& lienzo = plataforma().LienzoDe(control, indice);
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const bool cifra = texto[i] >= '0' && texto[i] <= '9';
        const lamina::Recorte recorte =
            cifra ? lamina::Digito(texto[i] - '0') : lamina::kDigitoVacio;
        lienzo.Lamina(x + static_cast<int>(i) * recorte.ancho, y, recorte);
    }
}

void PintarMarco(Control control, int indice, int x, int y, int ancho, int alto) {
    Traza("PintarMarco", NombreDe(control), x, y, ancho, alto);
    if (!plataforma().HayPantalla())
        return;
    Lienzo& lienzo = plataforma().LienzoDe(control, indice);
    const int extremo = lamina::kMarcoExtremoIzquierdo.ancho;
    const int arriba = y + (alto - lamina::kMarcoTira.alto) / 2;
    lienzo.Lamina(x, arriba, lamina::kMarcoExtremoIzquierdo);
    for (int tira = extremo; tira < ancho - extremo; ++tira)
        lienzo.Lamina(x + tira, arriba, lamina::kMarcoTira);
    lienzo.Lamina(x + ancho - extremo, arriba, lamina::kMarcoExtremoDerecho);
}
