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
#include <QTextDocument>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/canvas_qt.h"
#include "platform/qt/help_page.h"
#include "platform/qt/pointers.h"
#include "platform/qt/scale.h"
#include "platform/qt/window_place.h"

using ayuda::Clave;
using ayuda::Plano;
using ayuda::TextoPlano;

namespace {

// In pixels of the table.
constexpr QSize kTamano(980, 680);
constexpr QSize
    kMenor(720, 520); // with a frame and a panel, still on a screen that holds the smallest table
constexpr int kAnchoMinimo = 640; // narrower beside the table, the page is no pleasure to read
constexpr int kAnchoArbol = 300;
constexpr int kLetra = 14, kSangria = 14, kAire = 9, kEntre = 6, kAireDeNada = 4;

// What a desktop's frame takes, as long as it is not known.
constexpr QSize kMarcoSupuesto(16, 40);

constexpr int kTemaEnRama = Qt::UserRole;
constexpr int kTemaGlosario = 3900;

// The window's place as Qt keeps it, the same with its frame to be looked at first, and its size in pixels of the table.
const QString kSitio = QStringLiteral("ayuda/sitio");
const QString kConMarco = QStringLiteral("ayuda/marco");
const QString kEnMesa = QStringLiteral("ayuda/en_mesa");

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

VistaAyuda::VistaAyuda(const QString& carpeta, const QStringList& barajas)
    : carpeta_(carpeta),
      hoja_(new HojaAyuda(carpeta, barajas)),
      arbol_(new QTreeWidget),
      busca_(new QLineEdit),
      nada_(new QLabel(QStringLiteral("Ninguna página tiene esas palabras."))),
      partes_(new QSplitter),
      ancho_arbol_(kAnchoArbol),
      aumento_(AumentoPosible()) {
    setObjectName(QStringLiteral("ayuda"));
    setWindowTitle(QStringLiteral("Ayuda de Zovin"));
    setPalette(estilo::Paleta());
    PonTamano(kTamano, QRect());
    Compon();
    PonLetras();
    hoja_->PonAumento(aumento_);
    VigilaPantallas(this, [this] { CabeEnPantalla(); });
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

double VistaAyuda::AumentoPosible() const {
    const QSizeF cabe = QSizeF(screen()->availableSize()) / FactorDeMesa();
    const double falta = std::min(cabe.width() / kMenor.width(), cabe.height() / kMenor.height());
    return std::max(FactorDeMesa() * std::min(1.0, falta), std::min(1.0, FactorDeMesa()));
}

void VistaAyuda::Compon() {
    busca_->setPlaceholderText(QStringLiteral("Buscar en la ayuda"));
    busca_->setClearButtonEnabled(true);
    busca_->setAccessibleName(busca_->placeholderText());
    arbol_->setHeaderHidden(true);
    arbol_->setAccessibleName(QStringLiteral("Contenido de la ayuda"));
    hoja_->setAccessibleName(QStringLiteral("Página de la ayuda"));
    nada_->setWordWrap(true);
    nada_->hide();

    auto* lado = new QWidget;
    auto* indice = new QVBoxLayout(lado);
    indice->setContentsMargins(0, 0, 0, 0);
    indice->addWidget(busca_);
    indice->addWidget(nada_);
    indice->addWidget(arbol_, 1);
    partes_->addWidget(lado);
    partes_->addWidget(hoja_);
    partes_->setStretchFactor(1, 1);
    connect(partes_, &QSplitter::splitterMoved, this,
            [this](int ancho) { ancho_arbol_ = ancho / aumento_; });
    PonArbol();
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(HazMandos());
    todo->addWidget(partes_, 1);
}

// Only the player makes it wider than a third of the window.
void VistaAyuda::PonArbol() {
    const int tope = width() / (ancho_arbol_ > kAnchoArbol ? 2 : 3);
    const int arbol = std::min(qRound(ancho_arbol_ * aumento_), tope);
    partes_->setSizes({arbol, width() - arbol});
}

void VistaAyuda::PonLetras() {
    const auto crecido = [this](int pixeles) { return qRound(pixeles * aumento_); };
    for (QWidget* lista : std::initializer_list<QWidget*>{busca_, nada_, arbol_})
        lista->setFont(LetraDe({.alto = crecido(kLetra)}));
    const int aire = crecido(kAire), de_nada = crecido(kAireDeNada);
    nada_->setContentsMargins(de_nada, de_nada, de_nada, de_nada);
    arbol_->setIndentation(crecido(kSangria));
    layout()->setContentsMargins(aire, aire, aire, aire);
    for (QLayout* parte :
         {layout(), layout()->itemAt(0)->layout(), busca_->parentWidget()->layout()})
        parte->setSpacing(crecido(kEntre));
    for (BotonSuite* boton : findChildren<BotonSuite*>()) {
        boton->setCursor(CursorDe(Puntero::ManoIndice));
        boton->updateGeometry();
    }
    layout()->activate();
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
    // When it is known what the desktop's frame takes.
    QTimer::singleShot(0, this, &VistaAyuda::CabeEnPantalla);
    if (VuelveADondeEstaba() && !frameGeometry().intersects(mesa))
        return;
    const QSize marco = Marco();
    const int minimo = qRound(kAnchoMinimo * aumento_);
    if (const auto junto = JuntoA(mesa, size() + marco, minimo, screen()->availableGeometry())) {
        resize(junto->size() - marco);
        move(junto->topLeft());
        puesto_ = size();
    }
}

// Not where no screen shows the place any more. With another factor of the table it is as much larger or smaller.
bool VistaAyuda::VuelveADondeEstaba() {
    const QSettings ajustes = AjustesDeVentanas();
    if (!EstaEnPantalla(ajustes.value(kConMarco).toRect()) ||
        !restoreGeometry(ajustes.value(kSitio).toByteArray()))
        return false;
    const QSizeF suyo = ajustes.value(kEnMesa).toSizeF();
    if (!suyo.isEmpty() && size() != (suyo * aumento_).toSize())
        PonTamano(suyo, QRect());
    return true;
}

void VistaAyuda::GuardaSitio() const {
    if (!situada_)
        return;
    QSettings ajustes = AjustesDeVentanas();
    ajustes.setValue(kSitio, saveGeometry());
    ajustes.setValue(kConMarco, frameGeometry());
    ajustes.setValue(kEnMesa, QSizeF(normalGeometry().size()) / aumento_);
}

QSize VistaAyuda::Marco() const {
    return isVisible() ? frameGeometry().size() - size() : kMarcoSupuesto;
}

// As far as there is room for it. A window that fills the screen goes on doing so.
void VistaAyuda::PonTamano(const QSizeF& en_mesa, const QRect& mesa) {
    pedido_ = en_mesa;
    if (isMaximized() || isFullScreen())
        return;
    const QSize marco = Marco();
    const QRect pantalla = screen()->availableGeometry();
    const QSizeF cabe =
        (pedido_ * aumento_).boundedTo(pantalla.size()).expandedTo(minimumSizeHint());
    const QRect sitio =
        ConTamano(QRect(pos(), size() + marco), cabe.toSize() + marco, mesa, pantalla);
    resize(sitio.size() - marco);
    if (situada_ && sitio.topLeft() != pos())
        move(sitio.topLeft());
    puesto_ = size();
}

// What the player made of the size counts, what the screen did to it does not.
QSizeF VistaAyuda::Pedido() const {
    const QSize suyo = normalGeometry().size();
    return suyo == puesto_ ? pedido_ : QSizeF(suyo) / aumento_;
}

void VistaAyuda::CreceConLaMesa(const QRect& mesa) {
    const QSizeF pedido = Pedido();
    const double aumento = AumentoPosible();
    if (aumento == aumento_)
        return;
    aumento_ = aumento;
    PonLetras();
    PonTamano(pedido, mesa);
    PonArbol();
    hoja_->PonAumento(aumento_);
}

void VistaAyuda::CabeEnPantalla() {
    const QRect sitio = DentroDe(screen()->availableGeometry(), frameGeometry());
    if (!isVisible() || isMaximized() || isFullScreen() || sitio == frameGeometry())
        return;
    resize(sitio.size() - Marco());
    move(sitio.topLeft());
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
