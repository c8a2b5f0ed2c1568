#include "reports/estadis_view.h"

#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "forms/form.h"
#include "forms/form_view.h"
#include "reports/estadis.h"
#include "reports/sheet_view.h"

namespace {

constexpr int kMargen = 8;
constexpr int kLado = estilo::kReborde + kMargen; // from the dialog's edge to what is in it
constexpr int kAltoBanda = 4 + estilo::kAltoBanda + 2;

class EstadisVista : public FormaVista {
public:
    explicit EstadisVista(QWidget* sobre)
        : FormaVista(QStringLiteral("Estadísticas"), *MandosDe(Forma::Estadis), kAyudaEstadis,
                     sobre),
          hoja_(new HojaVista(QStringLiteral("Estadísticas de la mano"), this)) {
        setObjectName(QStringLiteral("estadis"));
        auto* columna = new QVBoxLayout(this);
        columna->setContentsMargins(kLado, kAltoBanda + kMargen, kLado, kLado);
        columna->setSpacing(kMargen);
        columna->addWidget(HazVentana(), 1);
        columna->addLayout(HazBotones());
        Mide(estadis::Pagina());
    }

private:
    // A page that is too high is moved up and down, also by the keys.
    QWidget* HazVentana() {
        hoja_->setObjectName(QStringLiteral("Texto"));
        ventana_ = new QScrollArea;
        ventana_->setFrameShape(QFrame::NoFrame);
        ventana_->setWidget(hoja_);
        ventana_->viewport()->setAutoFillBackground(false);
        hoja_->setAutoFillBackground(false);
        ventana_->setAccessibleName(hoja_->accessibleName());
        return ventana_;
    }

    QLayout* HazBotones() {
        auto* fila = new QHBoxLayout;
        fila->addStretch();
        fila->addWidget(HazBotonAyuda());
        fila->addSpacing(kMargen);
        QWidget* salir = HazBotonSalir();
        fila->addWidget(salir);
        fila->addStretch();
        salir->setFocus();
        alto_botones_ = salir->sizeHint().height();
        return fila;
    }

    // The sheet as large as there is room for. One that is too high keeps its letters legible, and the form has a bar.
    void Mide(const PaginaImpresa& pagina) {
        const QSize alrededor(2 * kLado, kAltoBanda + 2 * kMargen + alto_botones_ + kLado);
        const QSize sitio = SitioParaHojas(*this) - alrededor;
        const bool cabe = HojaVista::TamanoDe(pagina, 1).height() <= sitio.height();
        const int barra = cabe ? 0 : ventana_->verticalScrollBar()->sizeHint().width();
        const QSize a_lo_ancho(sitio.width() - barra, QWIDGETSIZE_MAX);
        const double escala = cabe ? HojaVista::EscalaPara(pagina, sitio)
                                   : std::min(1.0, HojaVista::EscalaPara(pagina, a_lo_ancho));
        hoja_->setFixedSize(HojaVista::TamanoDe(pagina, escala));
        // Told outright: two bars that stand only because of each other would never go.
        ventana_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        ventana_->setVerticalScrollBarPolicy(cabe ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn);
        setFixedSize((hoja_->size() + QSize(barra, 0)).boundedTo(sitio) + alrededor);
        if (!cabe)
            ventana_->setFocus();
    }

    void Refresca() override { hoja_->Muestra(estadis::Pagina()); }

    HojaVista* hoja_;
    QScrollArea* ventana_ = nullptr;
    int alto_botones_ = 0;
};

} // namespace

std::unique_ptr<FormaVista> HazVistaEstadis(QWidget* sobre) {
    return std::make_unique<EstadisVista>(sobre);
}

void AbreVistaEstadis(QWidget* sobre) {
    HazVistaEstadis(sobre)->Muestra(sobre);
}
