#include "reports/historic_view.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <array>
#include <utility>

#include "core/game_state.h"
#include "forms/controls_view.h"
#include "forms/form.h"
#include "forms/form_view.h"
#include "platform/qt/canvas_qt.h"
#include "platform/qt/pointers.h"
#include "reports/historic.h"
#include "reports/sheet_view.h"

namespace {

constexpr int kMargen = 12;
constexpr int kAltoBanda = 4 + estilo::kAltoBanda + 2;
constexpr int kAltoFila = 34;
constexpr int kAltoPestana = 26; // the tabs above the folder's pages
constexpr int kLomo = 22;        // cardboard beside the pages
constexpr int kPieCarpeta = 26;  // and below them, with the page mark
constexpr int kMuesca = 120;     // a wheel's click, in Qt's units

constexpr QColor kCarton(222, 184, 120), kCartonOscuro(160, 118, 58), kCartonClaro(240, 212, 160);

QString Qt8(const std::string& texto) {
    return QString::fromStdString(texto);
}

// A tab of the folder. The one on show goes over into the page.
class PestanaVista : public QAbstractButton {
public:
    explicit PestanaVista(QWidget* padre) : QAbstractButton(padre) {
        setCursor(CursorDe(Puntero::ManoIndice));
        setFocusPolicy(Qt::StrongFocus);
        setCheckable(true);
    }

protected:
    void nextCheckState() override {} // the logic says which one is on show
    void paintEvent(QPaintEvent*) override {
        estilo::PintorDeVista p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const QRect todo = estilo::CajaDe(*this);
        QPainterPath forma;
        forma.addRoundedRect(QRectF(todo).adjusted(0.5, isChecked() ? 0.5 : 3.5, -0.5, 12), 7, 7);
        p.setPen(kCartonOscuro);
        p.setBrush(isChecked() ? QColor(255, 255, 252) : kCartonClaro);
        p.drawPath(forma);
        p.setFont(LetraDe({.alto = 12, .negrita = isChecked()}));
        p.setPen(estilo::kTinta);
        p.drawText(todo.adjusted(2, 3, -2, 0), Qt::AlignCenter, text());
        if (hasFocus())
            forma::PintaFoco(p, todo.adjusted(3, 4, -3, -1), palette());
    }
};

// The folder. Its left half turns back, its right half turns on, and so does the wheel.
class CarpetaVista : public QWidget {
public:
    CarpetaVista(std::function<void(int paso)> pasa, QWidget* padre)
        : QWidget(padre), pasa_(std::move(pasa)) {
        setMouseTracking(true);
        setCursor(CursorDe(Puntero::ManoIndice));
    }
    void PonMarca(const QString& marca) {
        marca_ = marca;
        setAccessibleName(marca);
        update();
    }

protected:
    void mousePressEvent(QMouseEvent* evento) override {
        if (evento->button() == Qt::LeftButton)
            pasa_(Lado(evento->position().x()));
    }
    void mouseMoveEvent(QMouseEvent* evento) override { PonLado(Lado(evento->position().x())); }
    void leaveEvent(QEvent*) override { PonLado(0); }

    // A fine wheel sends many small steps for one click.
    void wheelEvent(QWheelEvent* evento) override {
        rueda_ += evento->angleDelta().y();
        for (; rueda_ >= kMuesca; rueda_ -= kMuesca)
            pasa_(-1);
        for (; rueda_ <= -kMuesca; rueda_ += kMuesca)
            pasa_(1);
        evento->accept();
    }

    void paintEvent(QPaintEvent*) override {
        estilo::PintorDeVista p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const QRect todo = estilo::CajaDe(*this);
        const QRectF carton = QRectF(todo).adjusted(0.5, kAltoPestana - 5.5, -0.5, -0.5);
        QLinearGradient tono(carton.topLeft(), carton.bottomLeft());
        tono.setColorAt(0, kCartonClaro);
        tono.setColorAt(1, kCarton);
        p.setPen(kCartonOscuro);
        p.setBrush(tono);
        p.drawRoundedRect(carton, 8, 8);
        PintaFlecha(p, -1);
        PintaFlecha(p, 1);
        p.setFont(LetraDe({.alto = 13, .negrita = true}));
        p.setPen(estilo::kTinta);
        p.drawText(todo.adjusted(0, todo.height() - kPieCarpeta, 0, -4), Qt::AlignCenter, marca_);
    }

private:
    int Lado(double x) const { return x < width() / 2.0 ? -1 : 1; }
    void PonLado(int lado) {
        if (std::exchange(lado_, lado) != lado)
            update();
    }
    void PintaFlecha(QPainter& p, int lado) {
        const QRect todo = estilo::CajaDe(*this);
        p.save();
        p.translate(lado < 0 ? kLomo / 2.0 : todo.width() - kLomo / 2.0, todo.height() / 2.0);
        p.scale(lado, 1);
        p.setPen(Qt::NoPen);
        p.setBrush(lado == lado_ ? estilo::kMarco : kCartonOscuro);
        p.drawPolygon(QPolygonF({{-4, -9}, {5, 0}, {-4, 9}}));
        p.restore();
    }

    std::function<void(int)> pasa_;
    QString marca_;
    int lado_ = 0, rueda_ = 0;
};

class HistoricVista : public FormaVista {
public:
    explicit HistoricVista(QWidget* sobre)
        : FormaVista(QStringLiteral("Histórico de partidas de ") +
                         Qt8(estado.NombreJuego(estado.JuegoActivo)),
                     *MandosDe(Forma::Historic), kAyudaHistorico, sobre) {
        setObjectName(QStringLiteral("Historic"));
        auto* columna = new QVBoxLayout(this);
        columna->setContentsMargins(kMargen + 4, kAltoBanda + kMargen, kMargen + 4, kMargen);
        columna->setSpacing(kMargen - 2);
        columna->addWidget(HazCarpeta(), 0, Qt::AlignHCenter);
        columna->addLayout(HazBotones());
        setFixedSize(sizeHint());
        new TeclasDePagina(*this, [this](TeclasDePagina::Paso paso) { Pasa(PasosDe(paso)); });
    }

private:
    // ---- making

    QWidget* HazCarpeta() {
        const PaginaImpresa pagina = historic::Pagina();
        const QSize alrededor(2 * (kMargen + 4 + kLomo),
                              kAltoBanda + 3 * kMargen + kAltoFila + kAltoPestana + kPieCarpeta);
        const QSize sitio = SitioParaHojas(*this) - alrededor;
        const QSize hoja = HojaVista::TamanoDe(pagina, HojaVista::EscalaPara(pagina, sitio));
        carpeta_ = new CarpetaVista([this](int paso) { Pasa(paso); }, this);
        carpeta_->setObjectName(QStringLiteral("Pic_Carpeta"));
        carpeta_->setFixedSize(hoja + QSize(2 * kLomo, kAltoPestana + kPieCarpeta));
        hoja_ = new HojaVista(QStringLiteral("Página del histórico"), carpeta_);
        hoja_->setObjectName(QStringLiteral("Pic_Hoja"));
        hoja_->setAttribute(Qt::WA_TransparentForMouseEvents);
        hoja_->setGeometry(QRect(QPoint(kLomo, kAltoPestana), hoja));
        PonPestanas(hoja.width());
        return carpeta_;
    }

    void PonPestanas(int ancho) {
        const int paso = ancho / kPestanas;
        for (int cual = 1; cual <= kPestanas; ++cual) {
            auto* pestana = new PestanaVista(carpeta_);
            pestana->setObjectName(QStringLiteral("Pic_Pestana_%1").arg(cual));
            pestana->setText(Qt8(historic::NombreDePestana(cual)));
            pestana->setGeometry(kLomo + (cual - 1) * paso, 0, paso, kAltoPestana);
            connect(pestana, &QAbstractButton::clicked, this,
                    [this, cual] { Atiende([cual] { historic::PulsaPestana(cual); }); });
            pestanas_[static_cast<std::size_t>(cual - 1)] = pestana;
        }
        // The list's own: there is nothing to choose.
        lista_ = new PestanaVista(carpeta_);
        lista_->setText(QStringLiteral("Partidas terminadas"));
        lista_->setGeometry(kLomo, 0, paso, kAltoPestana);
        lista_->setFocusPolicy(Qt::NoFocus);
        lista_->setAttribute(Qt::WA_TransparentForMouseEvents);
        lista_->setChecked(true);
    }

    QLayout* HazBotones() {
        totales_ = new BotonSuite(QStringLiteral("Totales"), this);
        totales_->setObjectName(QStringLiteral("Pic_BotHisTt"));
        connect(totales_, &QPushButton::clicked, this,
                [this] { Atiende([] { historic::PulsaTotales(); }); });
        bajo_totales_ = new QWidget(this);
        auto* funda = new QHBoxLayout(bajo_totales_);
        funda->setContentsMargins(0, 0, 0, 0);
        funda->addWidget(totales_);
        auto* fila = new QHBoxLayout;
        fila->addWidget(bajo_totales_);
        fila->addStretch();
        fila->addWidget(HazBotonAyuda());
        fila->addSpacing(kMargen);
        fila->addWidget(HazBotonSalir());
        return fila;
    }

    // ---- showing

    void Refresca() override {
        hoja_->Muestra(historic::Pagina());
        carpeta_->PonMarca(Qt8(historic::MarcaDePagina()));
        const bool hay = historic::HayTotales();
        PonTotales(hay);
        totales_->setText(historic::Pestana() == 0 ? QStringLiteral("Totales")
                                                   : QStringLiteral("Partidas"));
        lista_->setVisible(historic::Pestana() == 0);
        for (int cual = 1; cual <= kPestanas; ++cual) {
            PestanaVista& pestana = *pestanas_[static_cast<std::size_t>(cual - 1)];
            pestana.setVisible(historic::Pestana() != 0);
            pestana.setChecked(historic::Pestana() == cual);
        }
    }

    // A disabled widget shows no pointer of its own, but what lies below it does.
    void PonTotales(bool hay) {
        totales_->setEnabled(hay);
        if (hay) {
            totales_->setCursor(CursorDe(Puntero::ManoIndice));
        } else {
            totales_->unsetCursor();
            bajo_totales_->setCursor(CursorDe(Puntero::Prohibido));
        }
    }

    // To the ends: as many pages as there are, within the tab on show.
    static int PasosDe(TeclasDePagina::Paso paso) {
        switch (paso) {
        case TeclasDePagina::Paso::Principio:
            return 1 - historic::PaginaEnVista();
        case TeclasDePagina::Paso::Atras:
            return -1;
        case TeclasDePagina::Paso::Adelante:
            return 1;
        default:
            return historic::Paginas() - historic::PaginaEnVista();
        }
    }

    void Pasa(int paso) {
        Atiende([paso] { historic::PasaPagina(paso); });
    }

    CarpetaVista* carpeta_ = nullptr;
    HojaVista* hoja_ = nullptr;
    QWidget* bajo_totales_ = nullptr;
    BotonSuite* totales_ = nullptr;
    PestanaVista* lista_ = nullptr;
    std::array<PestanaVista*, kPestanas> pestanas_{};
};

} // namespace

std::unique_ptr<FormaVista> HazVistaHistoric(QWidget* sobre) {
    return std::make_unique<HistoricVista>(sobre);
}

void AbreVistaHistoric(QWidget* sobre) {
    HazVistaHistoric(sobre)->Muestra(sobre);
}
