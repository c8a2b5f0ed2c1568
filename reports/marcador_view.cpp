#include "reports/marcador_view.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QEnterEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <QVariantAnimation>
#include <QtMath>
#include <array>

#include "core/game_state.h"
#include "forms/controls_view.h"
#include "forms/form.h"
#include "forms/form_view.h"
#include "platform/qt/pointers.h"
#include "reports/marcador.h"
#include "reports/sheet_view.h"
#include "table/messages.h"

namespace {

constexpr int kMargen = 12;
constexpr int kAltoBanda = 4 + estilo::kAltoBanda + 2;
constexpr int kAltoFila = 34;
constexpr int kAnchoBoton = 92;
constexpr int kHueco = 6; // of the slot around the paper
constexpr int kBordePieza = 8;
constexpr int kSubida = 700; // how long the paper rises, as the pauses count it

// One of the four page buttons.
class BotonPagina : public QAbstractButton {
public:
    BotonPagina(int cual, QWidget* padre) : QAbstractButton(padre), cual_(cual) {
        const QString dice = QString::fromUtf8(marcador::Sugerencia(cual));
        setToolTip(dice);
        setAccessibleName(dice.trimmed());
        setCursor(CursorDe(Puntero::ManoIndice));
        setFixedSize(kLado, kLado);
        setFocusPolicy(Qt::StrongFocus);
    }

    static constexpr int kLado = 24;
    // Its place among the four.
    static constexpr QPoint Esquina(int cual) { return {1 + (cual - 1) * 29, 1}; }

protected:
    void enterEvent(QEnterEvent* evento) override {
        // A pixel of a grown button lies within one of its layout: rounded, the last one would be the next button's.
        const QPointF dentro = estilo::PuntoEn(*this, evento->position());
        CualBoton(Esquina(cual_).x() + qFloor(dentro.x()), Esquina(cual_).y() + qFloor(dentro.y()));
        update();
    }
    void leaveEvent(QEvent*) override { update(); }

    void paintEvent(QPaintEvent*) override {
        estilo::PintorDeVista p(this);
        estilo::PintaPieza(p, estilo::CajaDe(*this),
                           isDown() ? lamina::kMensajePulsado : lamina::kMensajeArriba,
                           kBordePieza);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Qt::NoPen);
        p.setBrush(underMouse() ? estilo::kMarco : estilo::kBanda);
        const bool atras = cual_ == kAlPrincipio || cual_ == kRetrocede;
        p.save();
        p.translate(kLado / 2.0, kLado / 2.0);
        p.scale(atras ? -1 : 1, 1);
        p.drawPolygon(QPolygonF({{-3, -6}, {4, 0}, {-3, 6}}));
        if (cual_ == kAlPrincipio || cual_ == kAlFinal)
            p.drawRect(QRectF(5, -6, 2, 12));
        p.restore();
        if (hasFocus())
            forma::PintaFoco(p, estilo::CajaDe(*this), palette());
    }

private:
    const int cual_;
};

class MarcadorVista : public FormaVista {
public:
    explicit MarcadorVista(QWidget* sobre)
        : FormaVista(QStringLiteral("Marcador"), *MandosDe(Forma::Marcador), kAyudaMarcador,
                     sobre) {
        setObjectName(QStringLiteral("Marcador"));
        auto* columna = new QVBoxLayout(this);
        columna->setContentsMargins(kMargen + 4, kAltoBanda + kMargen, kMargen + 4, kMargen);
        columna->setSpacing(kMargen - 2);
        columna->addWidget(HazInforme(), 0, Qt::AlignHCenter);
        columna->addLayout(HazBotones());
        setFixedSize(sizeHint());
        new TeclasDePagina(*this, [this](TeclasDePagina::Paso paso) { Pasa(paso); });
    }

protected:
    void showEvent(QShowEvent* evento) override {
        FormaVista::showEvent(evento);
        PapelSubiendo();
    }

private:
    // ---- making

    QWidget* HazInforme() {
        const PaginaImpresa pagina = marcador::Pagina();
        const QSize alrededor(2 * (kMargen + 4 + kHueco),
                              kAltoBanda + 3 * kMargen + kAltoFila + 2 * kHueco);
        const QSize sitio = SitioParaHojas(*this) - alrededor;
        const QSize hoja = HojaVista::TamanoDe(pagina, HojaVista::EscalaPara(pagina, sitio));
        ranura_ = new PanelHundido(this);
        ranura_->setObjectName(QStringLiteral("Pic_Informe"));
        ranura_->setFixedSize(hoja + QSize(2 * kHueco, 2 * kHueco));
        papel_ = new HojaVista(QStringLiteral("Informe de la partida"), ranura_);
        papel_->setObjectName(QStringLiteral("Pic_Papel"));
        papel_->setGeometry(QRect(QPoint(kHueco, kHueco), hoja));
        return ranura_;
    }

    QLayout* HazBotones() {
        auto* fila = new QHBoxLayout;
        fila->setSpacing(8);
        fila->addWidget(HazBotonesDePagina());
        fila->addStretch();
        fila->addWidget(HazBoton("Pic_BotHistorico", "Histórico",
                                 [this] { Atiende([] { marcador::PulsaHistorico(); }); }));
        fila->addWidget(HazBoton("Pic_BotImprimir", "Imprimir", [this] { Imprime(); }));
        fila->addWidget(HazBoton("Pic_BotPdf", "PDF", [this] { GuardaPdf(); }));
        fila->addWidget(HazBoton("Pic_BotCopiar", "Copiar", [] { Copia(); }));
        for (QWidget* boton : {HazBotonAyuda(), HazBotonSalir()}) {
            boton->setFixedWidth(kAnchoBoton);
            fila->addWidget(boton);
        }
        return fila;
    }

    QWidget* HazBotonesDePagina() {
        auto* grupo = new QWidget(this);
        grupo->setObjectName(QStringLiteral("Pic_BotAdeAtr"));
        for (int cual = kAlPrincipio; cual <= kAlFinal; ++cual) {
            auto* boton = new BotonPagina(cual, grupo);
            boton->setObjectName(QStringLiteral("Pic_BotAdeAtr_%1").arg(cual));
            boton->move(BotonPagina::Esquina(cual));
            connect(boton, &QAbstractButton::clicked, this, [this, cual] { PulsaPagina(cual); });
        }
        grupo->setFixedSize(112, 26);
        return grupo;
    }

    template <class Accion>
    QWidget* HazBoton(const char* nombre, const char* rotulo, Accion hace) {
        auto* boton = new BotonSuite(QString::fromUtf8(rotulo), this);
        boton->setObjectName(QString::fromLatin1(nombre));
        boton->setFixedWidth(kAnchoBoton);
        connect(boton, &QPushButton::clicked, this, hace);
        return boton;
    }

    // ---- showing

    void Refresca() override { papel_->Muestra(marcador::Pagina()); }

    void PulsaPagina(int cual) {
        Atiende([cual] {
            informe.BotonActivo = static_cast<Integer>(cual);
            marcador::PulsaPagina();
        });
    }

    void Pasa(TeclasDePagina::Paso paso) {
        static constexpr std::array kBotones{kAlPrincipio, kRetrocede, kAvanza, kAlFinal};
        PulsaPagina(kBotones[static_cast<std::size_t>(paso)]);
    }

    // The paper comes up out of the slot; at the highest speed it is there at once.
    void PapelSubiendo() {
        const int dura = qRound(kSubida * FactorPausa(estado.VelocidadJuego) / 2);
        if (dura <= 0)
            return;
        auto* subida = new QVariantAnimation(this);
        subida->setDuration(dura);
        subida->setEasingCurve(QEasingCurve::OutCubic);
        subida->setStartValue(ranura_->height());
        subida->setEndValue(papel_->y());
        papel_->move(papel_->x(), ranura_->height());
        connect(subida, &QVariantAnimation::valueChanged, papel_,
                [this](const QVariant& y) { papel_->move(papel_->x(), y.toInt()); });
        subida->start(QAbstractAnimation::DeleteWhenStopped);
    }

    // ---- taking the report away

    static std::vector<PaginaImpresa> Paginas() {
        std::vector<PaginaImpresa> paginas;
        for (int n = 1; n <= marcador::NumeroDePaginas(); ++n)
            paginas.push_back(marcador::Pagina(n));
        return paginas;
    }

    void Imprime() {
        QPrinter impresora(QPrinter::HighResolution);
        impresora.setPageOrientation(QPageLayout::Landscape);
        QPrintDialog pregunta(&impresora, this);
        if (pregunta.exec() == QDialog::Accepted && !EscribeHojas(impresora, Paginas()))
            CuentaFallo("No se ha podido imprimir el informe.");
    }

    void GuardaPdf() {
        const QString carpeta = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        const QString fichero = QFileDialog::getSaveFileName(
            this, QStringLiteral("Guardar el informe"), carpeta + QStringLiteral("/informe.pdf"),
            QStringLiteral("Documentos PDF (*.pdf)"));
        if (!fichero.isEmpty() &&
            !::GuardaPdf(fichero, QStringLiteral("Informe de la partida"), Paginas()))
            CuentaFallo("No se ha podido grabar el fichero " + fichero.toStdString() + ".");
    }

    static void Copia() {
        QString todo;
        for (const PaginaImpresa& pagina : Paginas())
            todo += QString::fromStdString(TextoDe(pagina)) + QStringLiteral("\n");
        QGuiApplication::clipboard()->setText(todo);
    }

    static void CuentaFallo(const std::string& texto) {
        Mensaje("Informe de la partida", texto, LineasDe(texto), 1);
    }

    QWidget* ranura_ = nullptr; // the slot from which the paper rises
    HojaVista* papel_ = nullptr;
};

} // namespace

std::unique_ptr<FormaVista> HazVistaMarcador(QWidget* sobre) {
    return std::make_unique<MarcadorVista>(sobre);
}

void AbreVistaMarcador(QWidget* sobre) {
    HazVistaMarcador(sobre)->Muestra(sobre);
}
