#include "platform/qt/message_box.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QTextLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/canvas_qt.h"
#include "platform/qt/event_queue.h"

namespace {

// The width at which the messages' hand-made lines fit and their next words do not.
constexpr int kAnchoTexto = 444;
constexpr int kMargen = 28;
constexpr int kAltoLinea = 16;
constexpr int kAltoBase = 136, kAltoPorLinea = 16;
// What stands above and below the text: frame, band, air, buttons.
constexpr int kAire = 18, kAltoBoton = 34;
constexpr int kAltoSinTexto =
    2 * estilo::kReborde + estilo::kAltoBanda + 2 + kAire + kAire + kAltoBoton + kAire - 2;
constexpr Fuente kLetra{.alto = 14};

// Breaks the text into lines of the given width and answers their height.
int Compone(QTextLayout& texto, int ancho) {
    QTextOption opcion(Qt::AlignLeft);
    opcion.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    texto.setTextOption(opcion);
    texto.beginLayout();
    int alto = 0;
    for (QTextLine linea = texto.createLine(); linea.isValid(); linea = texto.createLine()) {
        linea.setLineWidth(ancho);
        linea.setPosition(QPointF(0, alto));
        alto += kAltoLinea;
    }
    texto.endLayout();
    return alto;
}

bool CierraParrafo(const QString& texto, const QTextLine& linea) {
    const int fin = linea.textStart() + linea.textLength();
    return fin >= texto.size() || texto[fin - 1] == QChar::LineSeparator;
}

// The words of a line at even distances over the whole width.
void PintaLlena(QPainter& p, const QString& linea, const QPointF& base, int ancho) {
    const QFontMetricsF medida(p.font());
    const QStringList palabras = linea.split(u' ', Qt::SkipEmptyParts);
    double letras = 0;
    for (const QString& palabra : palabras)
        letras += medida.horizontalAdvance(palabra);
    const double hueco =
        palabras.size() < 2 ? 0 : (ancho - letras) / static_cast<double>(palabras.size() - 1);
    QPointF donde = base;
    for (const QString& palabra : palabras) {
        p.drawText(donde, palabra);
        donde.rx() += medida.horizontalAdvance(palabra) + hueco;
    }
}

// Texts made of rows end with a line break, after which nothing stands.
QString Parrafos(QString texto) {
    texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    while (texto.endsWith(u'\n'))
        texto.chop(1);
    return texto.replace(u'\n', QChar(QChar::LineSeparator));
}

} // namespace

Boton BotonAlCerrar(int modo) {
    return modo == 2 ? Boton::No : Boton::Salir;
}

TextoMensaje::TextoMensaje(const std::string& texto, QWidget* padre)
    : QLabel(QString::fromStdString(texto), padre) {
    setTextFormat(Qt::PlainText);
    setFont(LetraDe(kLetra));
}

int TextoMensaje::heightForWidth(int ancho) const {
    QTextLayout compuesto(Parrafos(text()), font());
    return Compone(compuesto, ancho);
}

void TextoMensaje::paintEvent(QPaintEvent*) {
    const int ancho = estilo::CajaDe(*this).width();
    QTextLayout compuesto(Parrafos(text()), font());
    Compone(compuesto, ancho);
    estilo::PintorDeVista p(this);
    p.setPen(estilo::kTinta);
    for (int i = 0; i < compuesto.lineCount(); ++i) {
        const QTextLine linea = compuesto.lineAt(i);
        const QString letras = compuesto.text().mid(linea.textStart(), linea.textLength());
        const QPointF base = linea.position() + QPointF(0, linea.ascent());
        if (CierraParrafo(compuesto.text(), linea))
            p.drawText(base, letras);
        else
            PintaLlena(p, letras, base, ancho);
    }
}

CajaQt::CajaQt(const CajaMensaje& caja, QWidget* padre)
    : DialogoSuite(QString::fromStdString(caja.titulo), padre),
      respuesta_(BotonAlCerrar(caja.modo)) {
    setObjectName(QStringLiteral("mensajes"));
    setAccessibleName(windowTitle());
    setAccessibleDescription(QString::fromStdString(caja.texto).simplified());

    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(kMargen, estilo::kReborde + estilo::kAltoBanda + 2 + kAire, kMargen,
                                kAire - 2 + estilo::kReborde);
    columna->setSpacing(kAire);
    auto* texto = new TextoMensaje(caja.texto, this);
    texto->setObjectName(QStringLiteral("Tex_Mensaje"));
    const int alto_texto = texto->heightForWidth(kAnchoTexto);
    texto->setFixedSize(kAnchoTexto, alto_texto);
    columna->addWidget(texto, 1, Qt::AlignTop);
    PonBotones(caja);

    const int alto = std::max(kAltoPorLinea * caja.lineas + kAltoBase, kAltoSinTexto + alto_texto);
    setFixedSize(kAnchoTexto + 2 * kMargen, alto);
    CreceConLaMesa();
}

void CajaQt::PonBotones(const CajaMensaje& caja) {
    auto* fila = new QHBoxLayout;
    fila->setSpacing(16);
    fila->addStretch();
    static_cast<QVBoxLayout*>(layout())->addLayout(fila);
    switch (caja.modo) {
    case 2:
        PonBoton("Pic_Si", caja.aceptar ? "Aceptar" : "Si", Boton::Si);
        PonBoton("Pic_No", caja.aceptar ? "Cancelar" : "No", Boton::No);
        break;
    case 3:
        PonBoton("Pic_BotAyuda", "Ayuda", Boton::Ayuda);
        PonBoton("Pic_BotSalir", "Cerrar", Boton::Salir);
        break;
    default:
        PonBoton("Pic_BotSalir", "Aceptar", Boton::Salir);
        break;
    }
    for (BotonSuite* boton : findChildren<BotonSuite*>())
        fila->addWidget(boton);
    fila->addStretch();
}

void CajaQt::PonBoton(const QString& nombre, const QString& texto, Boton valor) {
    auto* boton = new BotonSuite(texto, this);
    boton->setObjectName(nombre);
    connect(boton, &QPushButton::clicked, this, [this, valor] {
        respuesta_ = valor;
        accept();
    });
    if (principal_ != nullptr)
        return;
    principal_ = boton;
    boton->setFocus();
}

Boton CajaQt::Responde() {
    exec();
    return respuesta_;
}

void CajaQt::showEvent(QShowEvent* evento) {
    DialogoSuite::showEvent(evento);
    QAccessibleEvent aviso(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&aviso);
}

void CajaQt::keyPressEvent(QKeyEvent* evento) {
    if (CaracterDe(*evento))
        principal_->click();
    else
        evento->ignore();
}
