#include "platform/qt/help_page.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr QColor kMarcaFondo(255, 226, 122), kMarcaLetra(34, 34, 34);
constexpr int kMargenPagina = 14, kSangria = 40;
constexpr double kLetra = 12; // points, of a page that says nothing else

// A style sheet with all its lengths so many times as long. Pixels stay whole, or a frame would be blurred.
QString Crecido(const QString& estilo, double veces) {
    static const QRegularExpression longitud(QStringLiteral("(\\d+(?:\\.\\d+)?)(pt|px)\\b"));
    QString crecido;
    qsizetype desde = 0;
    for (auto cada = longitud.globalMatch(estilo); cada.hasNext();) {
        const auto una = cada.next();
        const double larga = una.captured(1).toDouble() * veces;
        const bool entera = una.captured(2) == QLatin1String("px");
        crecido += QStringView(estilo).mid(desde, una.capturedStart() - desde);
        crecido += QString::number(entera ? std::round(larga) : larga, 'g', 10) + una.captured(2);
        desde = una.capturedEnd();
    }
    crecido += QStringView(estilo).mid(desde);
    return crecido;
}

} // namespace

HojaAyuda::HojaAyuda(const QString& paginas, const QStringList& barajas)
    : dibujos_(paginas, barajas) {
    setOpenExternalLinks(false);
    PonAumento(1);
    connect(this, &QTextBrowser::sourceChanged, this, [this] {
        lectura_ = {};
        Marca();
    });
}

int HojaAyuda::Margen() const {
    return qRound(kMargenPagina * aumento_);
}

void HojaAyuda::PonAumento(double aumento) {
    TomaLectura();
    aumento_ = aumento;
    QFont letra = font();
    letra.setPointSizeF(kLetra * aumento);
    setFont(letra);
    document()->setDocumentMargin(Margen());
    document()->setIndentWidth(kSangria * aumento);
    Rehaz();
}

QVariant HojaAyuda::loadResource(int tipo, const QUrl& nombre) {
    if (tipo == QTextDocument::ImageResource && DibujosAyuda::EsSuyo(nombre)) {
        ratio_ = devicePixelRatioF();
        return dibujos_.Dibujo(nombre, ratio_, aumento_, viewport()->width() - 2 * Margen());
    }
    const QVariant leido = QTextBrowser::loadResource(tipo, nombre);
    if (tipo != QTextDocument::StyleSheetResource)
        return leido;
    return Crecido(QString::fromUtf8(leido.toByteArray()), aumento_);
}

// Another screen: the pictures are drawn anew for it.
bool HojaAyuda::event(QEvent* evento) {
    const bool hecho = QTextBrowser::event(evento);
    if (evento->type() == QEvent::ScreenChangeInternal && ratio_ != 0 &&
        ratio_ != devicePixelRatioF()) {
        TomaLectura();
        Rehaz();
    }
    return hecho;
}

// Of the sheet itself: the scroll bars that come and go with a page are no matter of the reader's.
void HojaAyuda::resizeEvent(QResizeEvent* evento) {
    if (std::exchange(tamano_, size()) == size())
        return QTextBrowser::resizeEvent(evento);
    TomaLectura();
    QTextBrowser::resizeEvent(evento);
    VuelveALaLectura();
}

// The page read and drawn anew, with the same line at the head and the same letters chosen.
void HojaAyuda::Rehaz() {
    dibujos_.Olvida();
    if (source().isEmpty())
        return;
    const int ancla = textCursor().anchor(), sitio = textCursor().position();
    const Lectura leia = lectura_;
    reload();
    lectura_ = leia;
    QTextCursor elegido(document());
    elegido.setPosition(ancla);
    elegido.setPosition(sitio, QTextCursor::KeepAnchor);
    setTextCursor(elegido);
    VuelveALaLectura();
}

// Kept while the player does not scroll: taken anew from each layout it would creep upwards, a line at a time.
void HojaAyuda::TomaLectura() {
    const int corrido = verticalScrollBar()->value();
    if (lectura_.corrido == corrido)
        return;
    lectura_ = {.corrido = corrido};
    const auto* hoja = document()->documentLayout();
    QTextBlock parrafo = document()->begin();
    while (parrafo.isValid() && hoja->blockBoundingRect(parrafo).bottom() <= corrido)
        parrafo = parrafo.next();
    if (corrido == 0 || !parrafo.isValid())
        return;
    const double en_parrafo = corrido - hoja->blockBoundingRect(parrafo).top();
    const QTextLayout& lineas = *parrafo.layout();
    int n = 0;
    while (n < lineas.lineCount() - 1 && lineas.lineAt(n).rect().bottom() <= en_parrafo)
        ++n;
    const QTextLine linea = lineas.lineAt(n);
    lectura_.letra = parrafo.position() + linea.textStart();
    lectura_.pasado = (en_parrafo - linea.y()) / linea.height();
}

void HojaAyuda::VuelveALaLectura() {
    double arriba = 0;
    if (const QTextBlock parrafo = document()->findBlock(lectura_.letra); parrafo.isValid()) {
        const double de_parrafo = document()->documentLayout()->blockBoundingRect(parrafo).top();
        const QTextLine linea =
            parrafo.layout()->lineForTextPosition(lectura_.letra - parrafo.position());
        arriba = de_parrafo + linea.y() + lectura_.pasado * linea.height();
    }
    verticalScrollBar()->setValue(qRound(arriba));
    lectura_.corrido = verticalScrollBar()->value();
}

void HojaAyuda::PonClaves(const QList<ayuda::Clave>& claves) {
    claves_ = claves;
    Marca();
}

void HojaAyuda::Marca() {
    QList<ExtraSelection> marcas;
    const ayuda::TextoPlano texto = ayuda::Plano(toPlainText());
    for (const ayuda::Clave& clave : std::as_const(claves_)) {
        for (const ayuda::Tramo& tramo : ayuda::Apariciones(texto, clave)) {
            ExtraSelection marca;
            marca.format.setBackground(kMarcaFondo);
            marca.format.setForeground(kMarcaLetra);
            marca.cursor = QTextCursor(document());
            marca.cursor.setPosition(tramo.desde);
            marca.cursor.setPosition(tramo.desde + tramo.largo, QTextCursor::KeepAnchor);
            marcas << marca;
        }
    }
    setExtraSelections(marcas);
}

void HojaAyuda::VeALaPrimera() {
    int primera = -1;
    for (const ExtraSelection& marca : extraSelections()) {
        const int sitio = marca.cursor.selectionStart();
        primera = primera < 0 ? sitio : std::min(primera, sitio);
    }
    if (primera < 0)
        return;
    QTextCursor cursor(document());
    cursor.setPosition(primera);
    setTextCursor(cursor);
    ensureCursorVisible();
}
