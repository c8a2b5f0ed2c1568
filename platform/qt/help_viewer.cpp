#include "platform/qt/help_viewer.h"

#include <QCloseEvent>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStandardPaths>
#include <QTextDocument>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/canvas_qt.h"
#include "platform/qt/help_page.h"
#include "platform/qt/suite_paint.h"

using ayuda::Clave;
using ayuda::Plano;
using ayuda::TextoPlano;

namespace {

constexpr QSize kTamano(980, 680);
constexpr QSize kMarco(16, 40); // what a desktop's frame takes, so that the page ends on the screen
constexpr int kAnchoMinimo = 640; // narrower beside the table, the page is no pleasure to read
constexpr int kAnchoArbol = 310;

constexpr int kTemaEnRama = Qt::UserRole;
constexpr int kTemaGlosario = 3900;

const QString kSitio = QStringLiteral("ayuda/sitio");

// The place of the window stands with that of the table's window, with the desktop's settings.
QSettings Ajustes() {
    return QSettings(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
                         QStringLiteral("/ventana.ini"),
                     QSettings::IniFormat);
}

QString LeeTexto(const QString& fichero) {
    QFile pagina(fichero);
    return pagina.open(QIODevice::ReadOnly) ? QString::fromUtf8(pagina.readAll()) : QString();
}

bool TieneTodas(const TextoPlano& texto, const QList<Clave>& claves) {
    return std::ranges::all_of(claves,
                               [&](const Clave& clave) { return ayuda::Tiene(texto, clave); });
}

qsizetype Veces(const TextoPlano& texto, const QList<Clave>& claves) {
    qsizetype veces = 0;
    for (const Clave& clave : claves)
        veces += ayuda::Apariciones(texto, clave).size();
    return veces;
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

std::optional<QRect> JuntoA(const QRect& otra, const QSize& tamano, const QRect& pantalla) {
    const int derecha = pantalla.right() - otra.right();
    const int izquierda = otra.left() - pantalla.left();
    const int hueco = std::max(derecha, izquierda);
    const int necesario = std::min(tamano.width(), kAnchoMinimo);
    if (otra.isNull() || hueco < necesario)
        return std::nullopt;
    const QSize cabe(std::min(tamano.width(), hueco), std::min(tamano.height(), pantalla.height()));
    const int x = hueco == derecha ? otra.right() + 1 : otra.left() - cabe.width();
    const int y = std::clamp(otra.top(), pantalla.top(), pantalla.bottom() + 1 - cabe.height());
    return QRect(QPoint(x, y), cabe);
}

VistaAyuda::VistaAyuda(const QString& carpeta, const QStringList& barajas)
    : carpeta_(carpeta),
      hoja_(new HojaAyuda(carpeta, barajas)),
      arbol_(new QTreeWidget),
      busca_(new QLineEdit),
      nada_(new QLabel(QStringLiteral("Ninguna página tiene esas palabras."))) {
    setObjectName(QStringLiteral("ayuda"));
    setWindowTitle(QStringLiteral("Ayuda de Zovin"));
    setPalette(estilo::Paleta());
    resize(kTamano.boundedTo(screen()->availableSize() - kMarco));
    Compon();
    LlenaArbol(LeeContenido(carpeta_));
    vocabulario_ = ayuda::Vocabulario(LeeTexto(FicheroDe(kTemaGlosario)));
    connect(busca_, &QLineEdit::textChanged, this, &VistaAyuda::Busca);
    connect(busca_, &QLineEdit::returnPressed, this, &VistaAyuda::AbreLaPrimera);
    connect(hoja_, &QTextBrowser::sourceChanged, this, &VistaAyuda::SenalaEnArbol);
    // A click makes a branch the current one before it selects it, so it is the selection that tells.
    connect(arbol_, &QTreeWidget::itemSelectionChanged, this, [this] {
        for (const QTreeWidgetItem* rama : arbol_->selectedItems()) {
            PonPagina(rama->data(0, kTemaEnRama).toInt());
            hoja_->VeALaPrimera();
        }
    });
}

VistaAyuda::~VistaAyuda() {
    GuardaSitio();
}

void VistaAyuda::Compon() {
    busca_->setPlaceholderText(QStringLiteral("Buscar en la ayuda"));
    busca_->setClearButtonEnabled(true);
    busca_->setAccessibleName(busca_->placeholderText());
    arbol_->setHeaderHidden(true);
    arbol_->setAccessibleName(QStringLiteral("Contenido de la ayuda"));
    hoja_->setAccessibleName(QStringLiteral("Página de la ayuda"));
    nada_->setWordWrap(true);
    nada_->setContentsMargins(4, 4, 4, 4);
    nada_->hide();
    for (QWidget* lista : std::initializer_list<QWidget*>{busca_, nada_, arbol_})
        lista->setFont(LetraDe({.alto = 14}));

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
    const int arbol = std::min(kAnchoArbol, width() / 3);
    partes->setSizes({arbol, width() - arbol});
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(HazMandos());
    todo->addWidget(partes, 1);
}

QHBoxLayout* VistaAyuda::HazMandos() {
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
    return mandos;
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

void VistaAyuda::MuestraTema(int tema, const QRect& mesa) {
    busca_->clear(); // the tree shows where the page stands, not what was looked for last
    Situa(mesa);
    show(); // its pictures take the width that the page has
    PonPagina(tema);
    hoja_->setFocus();
    raise();
    activateWindow();
}

// Once: afterwards it is where the player puts it.
void VistaAyuda::Situa(const QRect& mesa) {
    if (std::exchange(situada_, true))
        return;
    const QByteArray sitio = Ajustes().value(kSitio).toByteArray();
    const bool recordado = !sitio.isEmpty() && restoreGeometry(sitio);
    if (recordado && !frameGeometry().intersects(mesa))
        return;
    if (const auto junto = JuntoA(mesa, size() + kMarco, screen()->availableGeometry())) {
        resize(junto->size() - kMarco);
        move(junto->topLeft());
    }
}

void VistaAyuda::GuardaSitio() const {
    if (situada_)
        Ajustes().setValue(kSitio, saveGeometry());
}

void VistaAyuda::closeEvent(QCloseEvent* evento) {
    GuardaSitio();
    QWidget::closeEvent(evento);
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

const TextoPlano& VistaAyuda::TextoDe(int tema) {
    auto texto = textos_.find(tema);
    if (texto == textos_.end()) {
        QTextDocument pagina;
        pagina.setHtml(LeeTexto(FicheroDe(tema)));
        const QString titulo = ramas_.contains(tema) ? ramas_.value(tema)->text(0) : QString();
        texto = textos_.insert(tema, Plano(titulo + u'\n' + pagina.toPlainText()));
    }
    return *texto;
}

bool VistaAyuda::Tiene(const QTreeWidgetItem* rama, const QList<Clave>& claves) {
    return TieneTodas(TextoDe(rama->data(0, kTemaEnRama).toInt()), claves);
}

QList<Clave> VistaAyuda::Claves() const {
    return vocabulario_.Claves(busca_->text());
}

// A page whose title has the words comes before those that only mention them, and of these the one that
// mentions them most.
void VistaAyuda::AbreLaPrimera() {
    const QList<Clave> claves = Claves();
    QTreeWidgetItem* primera = nullptr;
    qsizetype mas_veces = 0;
    for (QTreeWidgetItemIterator rama(arbol_); !claves.isEmpty() && *rama != nullptr; ++rama) {
        if (TieneTodas(Plano((*rama)->text(0)), claves)) {
            primera = *rama;
            break;
        }
        const TextoPlano& texto = TextoDe((*rama)->data(0, kTemaEnRama).toInt());
        const qsizetype veces = TieneTodas(texto, claves) ? Veces(texto, claves) : 0;
        if (veces > mas_veces) {
            primera = *rama;
            mas_veces = veces;
        }
    }
    if (primera != nullptr)
        arbol_->setCurrentItem(primera);
}

// A branch stays in sight when its page has all the words, or one of its branches does.
void VistaAyuda::Busca() {
    const QList<Clave> claves = Claves();
    hoja_->PonClaves(claves);
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
