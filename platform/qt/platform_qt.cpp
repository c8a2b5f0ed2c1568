#include "platform/qt/platform_qt.h"

#include <QApplication>
#include <QDateTime>
#include <QDialog>
#include <QFileInfo>
#include <QScreen>
#include <QStandardPaths>
#include <QToolTip>
#include <QWindow>
#include <chrono>
#include <cmath>
#include <thread>

#include "platform/qt/help_viewer.h"
#include "platform/qt/message_box.h"
#include "platform/qt/places.h"
#include "platform/qt/scale.h"
#include "platform/qt/sound.h"
#include "platform/qt/splash.h"
#include "table/layout.h"

namespace {

// The last stretch of a pause is slept without the event loop, which wakes to the millisecond only.
constexpr Milisegundos kRemate = 2;

// In a shorter pause, as between two frames of a flight, nobody looks around on the table.
constexpr Milisegundos kPausaLarga = 100;

// The desktop settles size and place of a new window when it shows it; one that never does is not waited for.
constexpr Milisegundos kEsperaVentana = 500;

constexpr int kAltoConsejo = 12; // letters of a tool tip, in table pixels

// The table pixels that hold the given device pixels; one more all round where pixels do not coincide.
QRegion ALaMesa(const QRegion& dispositivo, double ratio) {
    const int margen = ratio == std::floor(ratio) ? 0 : 1;
    QRegion mesa;
    for (const QRect& trozo : dispositivo) {
        const QRectF justo(QPointF(trozo.topLeft()) / ratio, QSizeF(trozo.size()) / ratio);
        mesa += justo.toAlignedRect().adjusted(-margen, -margen, margen, margen);
    }
    return mesa;
}

} // namespace

PlataformaQt::PlataformaQt(const QString& carpeta)
    : carpeta_(carpeta), imagenes_(qApp->devicePixelRatio()), mesa_(nullptr), marcos_(nullptr) {
    PonFactorDeMesa(1);
    mesa_ = new Tapete(imagenes_, cola_);
    marcos_ = new CapaMarcos(mesa_);
    reloj_.start();
    origen_ = QDateTime::currentMSecsSinceEpoch();
    despertador_.setSingleShot(true);
    despertador_.setTimerType(Qt::PreciseTimer);
    ventana_ = std::make_unique<VentanaPrincipal>(mesa_);
    ventana_->al_cerrar = [this] {
        Evento cierre;
        cierre.tipo = TipoEvento::CierraVentana;
        cola_.Pon(cierre);
    };
    cola_.reloj = [this] { return Reloj(); };
    mesa_->al_cambiar_ratio = [this] {
        RehazImagenes();
        AvisaTamano();
    };
    ventana_->al_pedir_factor = [this](int sentido) { PideFactor(sentido); };
    deseo_ = VentanaPrincipal::FactorGuardado();
    PonLetrasSueltas();
    AjustaFactor();
    InstalaAccesoControles();
}

PlataformaQt::~PlataformaQt() {
    ventana_->GuardaSitio();
}

void PlataformaQt::PonForma(Forma forma, AbreForma abre) {
    formas_[forma] = abre;
}

void PlataformaQt::PideTermina() {
    termina_ = true;
    Evento fin;
    fin.tipo = TipoEvento::Termina;
    cola_.Pon(fin);
    // A form would ask before it closes; there is nobody left to answer.
    while (auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        modal->done(QDialog::Rejected);
}

// What has been drawn will be painted, and what has changed is told to whom it is read aloud.
void PlataformaQt::EnsenaLoHecho() {
    mesa_->update(Sucio());
    mesa_->ElArbol().Refresca();
}

void PlataformaQt::Bombea() {
    EnsenaLoHecho();
    QCoreApplication::processEvents();
    mesa_->NotaSueltaCallada();
}

std::optional<Evento> PlataformaQt::SiguienteEvento(Pase) {
    std::optional<Evento> evento = cola_.Toma();
    if (evento && evento->tipo == TipoEvento::Tamano) {
        AjustaFactor();
        evento->x = AnchoVentana();
        evento->y = AltoVentana();
    }
    return evento;
}

bool PlataformaQt::EsperaEvento() {
    EnsenaLoHecho();
    while (cola_.Vacia()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        mesa_->NotaSueltaCallada();
    }
    return true;
}

Milisegundos PlataformaQt::Reloj() {
    return origen_ + reloj_.elapsed();
}

// Whatever the player does meanwhile is put in the queue by the widgets, each event with its place, and
// nobody takes it.
void PlataformaQt::DuermeHasta(Milisegundos momento) {
    mesa_->update(Sucio());
    if (momento - Reloj() >= kPausaLarga)
        mesa_->ElArbol().Refresca();
    for (Milisegundos falta = momento - Reloj(); falta > kRemate; falta = momento - Reloj()) {
        despertador_.start(static_cast<int>(falta - kRemate));
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    const auto resto = std::chrono::milliseconds(momento - origen_) -
                       std::chrono::nanoseconds(reloj_.nsecsElapsed());
    if (resto > std::chrono::nanoseconds::zero())
        std::this_thread::sleep_for(resto);
}

FechaHora PlataformaQt::Ahora() {
    const QDateTime ahora = QDateTime::currentDateTime();
    const QDate dia = ahora.date();
    const QTime hora = ahora.time();
    return {.anio = dia.year(),
            .mes = dia.month(),
            .dia = dia.day(),
            .hora = hora.hour(),
            .minuto = hora.minute(),
            .segundo = hora.second()};
}

int PlataformaQt::AnchoVentana() const {
    return TamanoEnMesa(mesa_->size()).width();
}

int PlataformaQt::AltoVentana() const {
    return TamanoEnMesa(mesa_->size()).height();
}

// The screen's own pixels, whatever scale the desktop puts on them.
int PlataformaQt::AnchoEscritorio() const {
    const QScreen& pantalla = *QGuiApplication::primaryScreen();
    return qRound(pantalla.size().width() * pantalla.devicePixelRatio());
}

int PlataformaQt::AltoEscritorio() const {
    const QScreen& pantalla = *QGuiApplication::primaryScreen();
    return qRound(pantalla.size().height() * pantalla.devicePixelRatio());
}

void PlataformaQt::MuestraCareta() {
    careta_ = std::make_unique<Careta>();
    careta_->Aparece();
}

void PlataformaQt::MuestraMesa() {
    ventana_->Aparece();
    mesa_->setFocus();
    const Milisegundos tope = Reloj() + kEsperaVentana;
    while (!ventana_->windowHandle()->isExposed() && Reloj() < tope)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    QCoreApplication::processEvents();
    AjustaFactor();
    careta_.reset();
}

VistaControl& PlataformaQt::Vista(Control control, int indice) {
    VistaControl*& vista = vistas_[{control, indice}];
    if (vista != nullptr)
        return *vista;
    const Control padre = PadreDe(control);
    QWidget* sobre = padre == Control::Mesa ? static_cast<QWidget*>(mesa_) : &Vista(padre, 0);
    vista = new VistaControl(control, indice, sobre, imagenes_, cola_);
    vista->setVisible(control == Control::Pic_Botonera);
    OrdenaCapas();
    return *vista;
}

const VistaControl* PlataformaQt::VistaSiHay(Control control, int indice) const {
    const auto vista = vistas_.find({control, indice});
    return vista == vistas_.end() ? nullptr : vista->second;
}

// The pop-up lies over the controls, what flies over everything on the felt, the held card over all.
void PlataformaQt::OrdenaCapas() {
    const auto alza = [this](Control control) {
        const auto vista = vistas_.find({control, 0});
        if (vista != vistas_.end())
            vista->second->raise();
    };
    alza(Control::Pic_SelOpciones);
    mesa_->ElVuelo().raise();
    alza(Control::Pic_NumerosCristal);
    alza(Control::Pic_Mover);
    marcos_->raise();
}

Lienzo& PlataformaQt::LienzoDe(Control control, int indice) {
    if (control == Control::Mesa)
        return mesa_->ElLienzo();
    return Vista(control, indice).ElLienzo();
}

void PlataformaQt::Coloca(Control control, int indice, const Rectangulo& donde) {
    if (control != Control::Mesa)
        Vista(control, indice).Coloca(donde);
}

void PlataformaQt::Muestra(Control control, int indice, bool visible) {
    if (control != Control::Mesa)
        MuestraVista(Vista(control, indice), visible);
}

// The focus of a control that goes must not come down on the next button, whose click would be another.
void PlataformaQt::MuestraVista(VistaControl& vista, bool visible) {
    const QWidget* foco = QApplication::focusWidget();
    if (!visible && (foco == &vista || vista.isAncestorOf(foco)))
        mesa_->setFocus();
    vista.setVisible(visible);
}

bool PlataformaQt::EstaVisible(Control control, int indice) const {
    const VistaControl* vista = VistaSiHay(control, indice);
    return control == Control::Mesa || (vista != nullptr && vista->isVisibleTo(mesa_));
}

void PlataformaQt::PonPuntero(Control control, int indice, Puntero puntero) {
    if (control == Control::Mesa)
        mesa_->PonPuntero(puntero);
    else
        Vista(control, indice).PonPuntero(puntero);
}

Puntero PlataformaQt::PunteroDe(Control control, int indice) const {
    if (control == Control::Mesa)
        return mesa_->ElPuntero();
    const VistaControl* vista = VistaSiHay(control, indice);
    return vista == nullptr ? Puntero::Flecha : vista->ElPuntero();
}

void PlataformaQt::Nombra(Control control, int indice, std::string_view nombre) {
    const QString letras = QString::fromUtf8(nombre.data(), static_cast<qsizetype>(nombre.size()));
    if (control == Control::Mesa) {
        mesa_->setAccessibleName(QStringLiteral("Mesa de ") + letras);
        ventana_->setWindowTitle(QStringLiteral("Zovin · ") + letras);
    } else {
        Vista(control, indice).Nombra(letras);
    }
}

Rectangulo PlataformaQt::LugarDe(Control control, int indice) const {
    const VistaControl* vista = VistaSiHay(control, indice);
    if (control == Control::Mesa)
        return {0, 0, AnchoVentana(), AltoVentana()};
    if (vista == nullptr)
        return {};
    Rectangulo lugar = vista->ElLugar();
    if (const Control padre = PadreDe(control); padre != Control::Mesa) {
        const Rectangulo base = LugarDe(padre, 0);
        lugar.x += base.x;
        lugar.y += base.y;
    }
    return lugar;
}

std::string PlataformaQt::NombreDicho(Control control, int indice) const {
    const VistaControl* vista = VistaSiHay(control, indice);
    return vista == nullptr ? "" : vista->accessibleName().toStdString();
}

void PlataformaQt::Enmarca(Marco cual, const std::optional<Rectangulo>& donde) {
    marcos_->Pon(cual, donde);
}

void PlataformaQt::Anuncia(std::string_view texto) {
    mesa_->ElArbol().Anuncia(QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size())));
}

void PlataformaQt::Vuela(int x, int y, const ImagenCarta& carta) {
    mesa_->ElVuelo().Vuela(x, y, carta);
}

void PlataformaQt::Posa() {
    mesa_->ElVuelo().Posa();
}

QRegion PlataformaQt::Sucio() {
    const double ratio = RatioDeVentana(imagenes_);
    QRegion sucio = ALaMesa(mesa_->ElLienzo().TomaSucio() + mesa_->ElVuelo().TomaSucio(), ratio);
    for (const auto& [cual, vista] : vistas_) {
        const QRegion suyo = ALaMesa(vista->ElLienzo().TomaSucio(), ratio);
        if (!suyo.isEmpty() && vista->isVisible())
            sucio += suyo.translated(vista->mapTo(mesa_, QPoint(0, 0)));
    }
    return sucio;
}

// At once, so that a frame of a flight stands on the screen at its time.
void PlataformaQt::Repinta() {
    mesa_->repaint(Sucio());
    QCoreApplication::sendPostedEvents(ventana_.get(), QEvent::UpdateRequest);
}

void PlataformaQt::RehazImagenes() {
    imagenes_.CambiaRatio(mesa_->devicePixelRatioF() * FactorDeMesa());
    mesa_->AdaptaRatio();
    for (const auto& [cual, vista] : vistas_)
        vista->AdaptaRatio();
    mesa_->update();
}

void PlataformaQt::AvisaTamano() {
    Evento tamano;
    tamano.tipo = TipoEvento::Tamano;
    cola_.Pon(tamano);
}

void PlataformaQt::AjustaFactor() {
    const double factor = FactorPara(mesa_->size(), deseo_, mesa_->devicePixelRatioF());
    if (factor == FactorDeMesa())
        return;
    PonFactorDeMesa(factor);
    PonLetrasSueltas();
    RehazImagenes();
    if (ayuda_)
        ayuda_->CreceConLaMesa(MarcoDeVentana());
}

// Of what the toolkit brings up by itself.
void PlataformaQt::PonLetrasSueltas() {
    const QFont letra = LetraDe({.alto = qRound(kAltoConsejo * FactorDeMesa())});
    QToolTip::setFont(letra);
    QApplication::setFont(letra, "QMenu");
}

// Where the table is to be seen on the desktop; null as long as it is not.
QRect PlataformaQt::MarcoDeVentana() const {
    return ventana_->isVisible() ? ventana_->frameGeometry() : QRect();
}

// From the factor that shows, which is not the chosen one where that does not fit.
void PlataformaQt::PideFactor(int sentido) {
    const double ratio = mesa_->devicePixelRatioF();
    const double pedido = sentido == 0 ? 0 : PasoDeFactor(FactorDeMesa(), sentido);
    if (FactorPara(mesa_->size(), pedido, ratio) == FactorDeMesa() && pedido != 0)
        return;
    deseo_ = pedido;
    VentanaPrincipal::GuardaFactor(deseo_);
    AvisaTamano();
}

void PlataformaQt::CargaBaraja(const std::string& ruta, int columnas) {
    const QString propia = QString::fromStdString(ruta);
    try {
        UsaBaraja(propia, columnas);
    } catch (const FalloGrave& fallo) {
        const QString otra = BarajaQueViene(propia);
        if (otra.isEmpty())
            throw;
        UsaBaraja(otra, columnas);
        CuentaMalaBaraja(propia, fallo.what());
    }
}

void PlataformaQt::UsaBaraja(const QString& ruta, int columnas) {
    imagenes_.CargaBaraja(ruta, columnas);
    carpeta_barajas_ = QFileInfo(ruta).path();
}

// The deck of that name that comes with the program, where it is another file; empty when there is none.
QString PlataformaQt::BarajaQueViene(const QString& propia) const {
    const QFileInfo suya(propia);
    for (const QString& carpeta : {CarpetaDeInstalacion(), carpeta_}) {
        const QFileInfo otra(carpeta + u'/' + suya.fileName());
        if (!carpeta.isEmpty() && otra.exists() && otra != suya)
            return otra.filePath();
    }
    return {};
}

// Once for a file; one that is not there is nothing to tell.
void PlataformaQt::CuentaMalaBaraja(const QString& propia, const std::string& motivo) {
    if (!QFileInfo::exists(propia) || std::exchange(baraja_contada_, propia) == propia)
        return;
    const std::string texto = motivo + "\r\nSe juega con la imagen que viene con el programa.";
    Pregunta({.titulo = "Imagen de la baraja", .texto = texto, .lineas = 4, .modo = 1});
}

QWidget* PlataformaQt::Padre() {
    if (QWidget* forma = QApplication::activeModalWidget())
        return forma;
    if (ventana_->isVisible())
        return ventana_.get();
    return careta_ && careta_->isVisible() ? careta_.get() : nullptr;
}

Boton PlataformaQt::Pregunta(const CajaMensaje& caja) {
    if (termina_)
        return BotonAlCerrar(caja.modo);
    EnsenaLoHecho();
    CajaQt dialogo(caja, Padre());
    const QRect pantalla = ventana_->screen()->availableGeometry();
    const QRect mesa = ventana_->isVisible()
                           ? QRect(ventana_->viewport()->mapToGlobal(QPoint(0, 0)),
                                   ventana_->viewport()->size() -
                                       QSize(EnVentana({0, 0, kAnchoBotonera, 1}).width(), 0))
                           : pantalla;
    dialogo.CentraEn(caja.centrada ? pantalla : mesa);
    const Boton respuesta = dialogo.Responde();
    mesa_->NotaSueltaCallada();
    return respuesta;
}

void PlataformaQt::Abre(Forma forma) {
    const auto abre = formas_.find(forma);
    if (abre == formas_.end() || termina_)
        return;
    EnsenaLoHecho();
    abre->second(Padre());
    mesa_->NotaSueltaCallada();
}

bool PlataformaQt::TieneForma(Forma forma) const {
    return formas_.contains(forma);
}

void PlataformaQt::Suena(int id, bool espera) {
    if (!altavoz_)
        altavoz_ = std::make_unique<Altavoz>(carpeta_);
    const Milisegundos dura = altavoz_->Toca(id);
    if (espera)
        DuermeHasta(Reloj() + dura);
}

void PlataformaQt::Ayuda(int tema) {
    if (!ayuda_)
        ayuda_ = std::make_unique<VistaAyuda>(CarpetaAyuda(carpeta_),
                                              QStringList{carpeta_barajas_, carpeta_});
    ayuda_->MuestraTema(tema, MarcoDeVentana());
}

void PlataformaQt::Minimiza() {
    ventana_->showMinimized();
}

std::string PlataformaQt::CarpetaUsuario() const {
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString();
}
