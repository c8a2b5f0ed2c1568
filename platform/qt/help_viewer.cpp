#include "platform/qt/help_viewer.h"

#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSplitter>
#include <QTextDocument>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "platform/qt/canvas_qt.h"
#include "platform/qt/suite_paint.h"

namespace {

constexpr QSize kTamano(920, 620);
constexpr QSize kMarco(16, 40); // what a desktop's frame takes, so that the page ends on the screen

constexpr int kTemaEnRama = Qt::UserRole;

// Letters without case and accents: who searches for "poker" finds "Póker".
QString Plano(const QString& texto) {
    QString plano;
    for (const QChar letra : texto.normalized(QString::NormalizationForm_KD)) {
        if (letra.category() != QChar::Mark_NonSpacing)
            plano += letra.toCaseFolded();
    }
    return plano;
}

QString LeeTexto(const QString& fichero) {
    QFile pagina(fichero);
    return pagina.open(QIODevice::ReadOnly) ? QString::fromUtf8(pagina.readAll()) : QString();
}

} // namespace

QList<PaginaAyuda> LeeContenido(const QString& carpeta) {
    QList<PaginaAyuda> paginas;
    const QStringList lineas = LeeTexto(carpeta + "/contents.txt").split(u'\n');
    for (const QString& linea : lineas) {
        const QStringList partes = linea.split(u'|');
        bool vale = partes.size() == 3;
        const int tema = vale ? partes[0].trimmed().toInt(&vale) : 0;
        if (vale && tema > 0)
            paginas.append({tema, partes[1].trimmed(), partes[2].trimmed().toInt()});
    }
    return paginas;
}

VistaAyuda::VistaAyuda(const QString& carpeta)
    : carpeta_(carpeta),
      hoja_(new QTextBrowser),
      arbol_(new QTreeWidget),
      busca_(new QLineEdit),
      nada_(new QLabel(QStringLiteral("Ninguna página tiene esas palabras."))) {
    setObjectName(QStringLiteral("ayuda"));
    setWindowTitle(QStringLiteral("Ayuda de Zovin"));
    setPalette(estilo::Paleta());
    resize(kTamano.boundedTo(screen()->availableSize() - kMarco));
    Compon();
    LlenaArbol(LeeContenido(carpeta_));
    connect(busca_, &QLineEdit::textChanged, this, &VistaAyuda::Busca);
    connect(busca_, &QLineEdit::returnPressed, this, &VistaAyuda::AbreLaPrimera);
    connect(hoja_, &QTextBrowser::sourceChanged, this, &VistaAyuda::SenalaEnArbol);
    // A click makes a branch the current one before it selects it, so it is the selection that tells.
    connect(arbol_, &QTreeWidget::itemSelectionChanged, this, [this] {
        for (const QTreeWidgetItem* rama : arbol_->selectedItems())
            PonPagina(rama->data(0, kTemaEnRama).toInt());
    });
}

void VistaAyuda::Compon() {
    busca_->setPlaceholderText(QStringLiteral("Buscar en la ayuda"));
    busca_->setClearButtonEnabled(true);
    busca_->setAccessibleName(busca_->placeholderText());
    arbol_->setHeaderHidden(true);
    arbol_->setAccessibleName(QStringLiteral("Contenido de la ayuda"));
    hoja_->setAccessibleName(QStringLiteral("Página de la ayuda"));
    hoja_->setOpenExternalLinks(false);
    hoja_->document()->setDocumentMargin(14);
    nada_->setWordWrap(true);
    nada_->setContentsMargins(4, 4, 4, 4);
    nada_->hide();
    for (QWidget* lista : std::initializer_list<QWidget*>{busca_, nada_, arbol_})
        lista->setFont(LetraDe({.alto = 14}));

    auto* atras = new BotonSuite(QStringLiteral("Atrás"), this);
    auto* inicio = new BotonSuite(QStringLiteral("Contenido"), this);
    auto* cierra = new BotonSuite(QStringLiteral("Cerrar"), this);
    atras->setEnabled(false);
    connect(atras, &QPushButton::clicked, hoja_, &QTextBrowser::backward);
    connect(hoja_, &QTextBrowser::backwardAvailable, atras, &QWidget::setEnabled);
    connect(inicio, &QPushButton::clicked, this, [this] { MuestraTema(0); });
    connect(cierra, &QPushButton::clicked, this, &QWidget::close);

    auto* mandos = new QHBoxLayout;
    mandos->addWidget(atras);
    mandos->addWidget(inicio);
    mandos->addStretch();
    mandos->addWidget(cierra);
    auto* lado = new QWidget;
    auto* indice = new QVBoxLayout(lado);
    indice->setContentsMargins(0, 0, 0, 0);
    indice->addWidget(busca_);
    indice->addWidget(nada_);
    indice->addWidget(arbol_, 1);
    auto* partes = new QSplitter;
    partes->addWidget(lado);
    partes->addWidget(hoja_);
    partes->setStretchFactor(1, 1);
    partes->setSizes({310, 590});
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(mandos);
    todo->addWidget(partes, 1);
}

void VistaAyuda::LlenaArbol(const QList<PaginaAyuda>& paginas) {
    for (const PaginaAyuda& pagina : paginas) {
        QTreeWidgetItem* madre = ramas_.value(pagina.padre, arbol_->invisibleRootItem());
        auto* rama = new QTreeWidgetItem(madre, {pagina.titulo});
        rama->setData(0, kTemaEnRama, pagina.tema);
        ramas_[pagina.tema] = rama;
    }
    arbol_->expandAll();
}

QString VistaAyuda::FicheroDe(int tema) const {
    return carpeta_ + QStringLiteral("/%1.html").arg(tema);
}

void VistaAyuda::PonPagina(int tema) {
    QString fichero = FicheroDe(tema);
    if (tema == 0 || !QFileInfo::exists(fichero))
        fichero = carpeta_ + QStringLiteral("/index.html");
    if (QFileInfo::exists(fichero))
        hoja_->setSource(QUrl::fromLocalFile(fichero));
    else
        DiQueFalta();
}

void VistaAyuda::MuestraTema(int tema) {
    busca_->clear(); // the tree shows where the page stands, not what was looked for last
    PonPagina(tema);
    hoja_->setFocus();
    show();
    raise();
    activateWindow();
}

void VistaAyuda::DiQueFalta() {
    hoja_->setHtml(QStringLiteral("<h2>La ayuda no está disponible</h2>"
                                  "<p>Faltan páginas en la carpeta de la ayuda o están dañadas:</p>"
                                  "<p><b>%1</b></p>"
                                  "<p>Se puede seguir jugando sin ella. Para recuperarla, vuelva a "
                                  "instalar el programa.</p>")
                       .arg(carpeta_.toHtmlEscaped()));
}

void VistaAyuda::SenalaEnArbol(const QUrl& pagina) {
    QTreeWidgetItem* rama = ramas_.value(QFileInfo(pagina.path()).baseName().toInt());
    const QSignalBlocker calla(arbol_);
    arbol_->setCurrentItem(rama);
}

QString VistaAyuda::TextoDe(int tema) {
    if (!textos_.contains(tema)) {
        QTextDocument pagina;
        pagina.setHtml(LeeTexto(FicheroDe(tema)));
        textos_[tema] = Plano(pagina.toPlainText());
    }
    return textos_[tema];
}

bool VistaAyuda::Tiene(const QTreeWidgetItem* rama, const QStringList& claves) {
    const QString titulo = Plano(rama->text(0));
    const QString texto = TextoDe(rama->data(0, kTemaEnRama).toInt());
    return std::ranges::all_of(claves, [&](const QString& clave) {
        return titulo.contains(clave) || texto.contains(clave);
    });
}

QStringList VistaAyuda::Claves() const {
    return Plano(busca_->text()).split(u' ', Qt::SkipEmptyParts);
}

// A page whose title has the words comes before those that only mention them.
void VistaAyuda::AbreLaPrimera() {
    const QStringList claves = Claves();
    QTreeWidgetItem* primera = nullptr;
    for (QTreeWidgetItemIterator rama(arbol_); !claves.isEmpty() && *rama != nullptr; ++rama) {
        const QString titulo = Plano((*rama)->text(0));
        const bool nombra = std::ranges::all_of(
            claves, [&](const QString& clave) { return titulo.contains(clave); });
        if (nombra || (primera == nullptr && Tiene(*rama, claves)))
            primera = *rama;
        if (nombra)
            break;
    }
    if (primera != nullptr)
        arbol_->setCurrentItem(primera);
}

// A branch stays in sight when its page has all the words, or one of its branches does.
void VistaAyuda::Busca() {
    const QStringList claves = Claves();
    for (QTreeWidgetItem* rama : std::as_const(ramas_))
        rama->setHidden(!Tiene(rama, claves));
    for (QTreeWidgetItem* rama : std::as_const(ramas_)) {
        for (auto* madre = rama->parent(); !rama->isHidden() && madre != nullptr;
             madre = madre->parent())
            madre->setHidden(false);
    }
    nada_->setHidden(
        std::ranges::any_of(ramas_, [](const QTreeWidgetItem* rama) { return !rama->isHidden(); }));
}

void VistaAyuda::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(evento);
}
