#include "reports/sheet_view.h"

#include <QKeyEvent>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QScreen>
#include <algorithm>
#include <optional>

#include "core/game_state.h"
#include "platform/qt/canvas_qt.h"
#include "platform/qt/scale.h"
#include "platform/qt/suite_paint.h"

namespace {

constexpr int kBorde = 8; // paper around the page
constexpr int kSombra = 3;
constexpr double kMenorEscala = 0.5, kMayorEscala = 1.25;

std::optional<TeclasDePagina::Paso> PasoDe(int tecla) {
    using Paso = TeclasDePagina::Paso;
    switch (tecla) {
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        return Paso::Atras;
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        return Paso::Adelante;
    case Qt::Key_Home:
        return Paso::Principio;
    case Qt::Key_End:
        return Paso::Final;
    default:
        return std::nullopt;
    }
}

void PintaPapel(QPainter& p, const QRect& todo) {
    const QRect papel = todo.adjusted(0, 0, -kSombra, -kSombra);
    p.fillRect(papel.translated(kSombra, kSombra), QColor(0, 0, 0, 70));
    QLinearGradient tono(papel.topLeft(), papel.bottomLeft());
    tono.setColorAt(0, QColor(255, 255, 252));
    tono.setColorAt(1, QColor(248, 246, 238));
    p.fillRect(papel, tono);
    p.setPen(QColor(190, 184, 168));
    p.drawRect(papel.adjusted(0, 0, -1, -1));
}

} // namespace

void PintaPaginaEn(QPainter& pintor, const PaginaImpresa& pagina) {
    static Imagenes imagenes(1);
    LienzoPintor lienzo(pintor, imagenes, Fondo::Papel);
    PintaPagina(pagina, lienzo);
}

bool EscribeHojas(QPagedPaintDevice& papel, const std::vector<PaginaImpresa>& paginas) {
    QPainter p;
    if (!p.begin(&papel))
        return false;
    for (std::size_t n = 0; n < paginas.size(); ++n) {
        if (n > 0 && !papel.newPage())
            return false;
        const PaginaImpresa& pagina = paginas[n];
        const QSizeF sitio = p.viewport().size();
        const double escala =
            std::min(sitio.width() / pagina.Ancho(), sitio.height() / pagina.Alto());
        p.save();
        p.translate((sitio.width() - escala * pagina.Ancho()) / 2, 0);
        p.scale(escala, escala);
        PintaPaginaEn(p, pagina);
        p.restore();
    }
    return p.end();
}

bool GuardaPdf(const QString& fichero, const QString& titulo,
               const std::vector<PaginaImpresa>& paginas) {
    constexpr QMarginsF kMargenes(15, 15, 15, 15);
    QPdfWriter pdf(fichero);
    pdf.setTitle(titulo);
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, kMargenes,
                                  QPageLayout::Millimeter));
    return EscribeHojas(pdf, paginas);
}

QSize SitioParaHojas(const QWidget& forma) {
    const QSize mesa(estado.AnchoPantalla, estado.AltoPantalla);
    // What the form will be once it has grown with the table.
    const QSizeF pantalla = QSizeF(forma.screen()->availableGeometry().size()) / FactorDeMesa();
    return mesa.boundedTo(pantalla.toSize());
}

HojaVista::HojaVista(const QString& que, QWidget* padre) : QWidget(padre) {
    setAccessibleName(que);
}

void HojaVista::Muestra(const PaginaImpresa& pagina) {
    pagina_ = pagina;
    setAccessibleDescription(QString::fromStdString(TextoDe(pagina)));
    update();
}

QSize HojaVista::TamanoDe(const PaginaImpresa& pagina, double escala) {
    return QSize(qRound(pagina.Ancho() * escala), qRound(pagina.Alto() * escala)) +
           QSize(2 * kBorde + kSombra, 2 * kBorde + kSombra);
}

double HojaVista::EscalaPara(const PaginaImpresa& pagina, const QSize& sitio) {
    const QSize libre = sitio - TamanoDe(pagina, 0);
    const double escala =
        std::min(1.0 * libre.width() / pagina.Ancho(), 1.0 * libre.height() / pagina.Alto());
    return std::clamp(escala, kMenorEscala, kMayorEscala);
}

void HojaVista::paintEvent(QPaintEvent*) {
    estilo::PintorDeVista p(this);
    const QRect todo = estilo::CajaDe(*this);
    PintaPapel(p, todo);
    const double escala = double{todo.width() - 2.0 * kBorde - kSombra} / pagina_.Ancho();
    p.translate(kBorde, kBorde);
    p.scale(escala, escala);
    PintaPaginaEn(p, pagina_);
}

TeclasDePagina::TeclasDePagina(QWidget& forma, std::function<void(Paso)> pasa)
    : QObject(&forma), pasa_(std::move(pasa)) {
    forma.installEventFilter(this);
    for (QWidget* control : forma.findChildren<QWidget*>())
        control->installEventFilter(this);
}

bool TeclasDePagina::eventFilter(QObject* quien, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress)
        return QObject::eventFilter(quien, evento);
    const auto paso = PasoDe(static_cast<QKeyEvent*>(evento)->key());
    if (!paso)
        return QObject::eventFilter(quien, evento);
    pasa_(*paso);
    return true;
}
