#include "platform/qt/help_page.h"

#include <QEvent>
#include <QTextBlock>

namespace {

constexpr QColor kMarcaFondo(255, 226, 122), kMarcaLetra(34, 34, 34);
constexpr int kMargenPagina = 14;

} // namespace

HojaAyuda::HojaAyuda(const QString& paginas, const QStringList& barajas)
    : dibujos_(paginas, barajas) {
    setOpenExternalLinks(false);
    document()->setDocumentMargin(kMargenPagina);
    connect(this, &QTextBrowser::sourceChanged, this, &HojaAyuda::Marca);
}

QVariant HojaAyuda::loadResource(int tipo, const QUrl& nombre) {
    if (tipo != QTextDocument::ImageResource || !DibujosAyuda::EsSuyo(nombre))
        return QTextBrowser::loadResource(tipo, nombre);
    ratio_ = devicePixelRatioF();
    return dibujos_.Dibujo(nombre, ratio_, viewport()->width() - 2 * kMargenPagina);
}

// Another screen: the pictures are drawn anew for it.
bool HojaAyuda::event(QEvent* evento) {
    const bool hecho = QTextBrowser::event(evento);
    if (evento->type() == QEvent::ScreenChangeInternal && ratio_ != 0 &&
        ratio_ != devicePixelRatioF())
        reload();
    return hecho;
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
