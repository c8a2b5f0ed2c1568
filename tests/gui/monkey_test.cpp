// A monkey at the table: random clicks, drags, keys, wheels, sizes and windows that come and go, against the real
// widgets, while matches run under every kind of setting. Whenever the game waits, every card is somewhere, once,
// no card hangs on a pointer that holds none, and every box is answered.
//
// ZOVIN_LARGO=1 plays for minutes, from another seed each time. The seed is printed; ZOVIN_SEMILLA=<number> begins
// that run again, and goes the same way until the window system paints or wakes at another moment.

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <deque>
#include <functional>
#include <thread>

#include "forms/normas_view.h"
#include "forms/personal_view.h"
#include "platform/qt/message_box.h"
#include "platform/qt/platform_qt.h"
#include "reports/estadis_view.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "storage/settings.h"
#include "table/button_column.h"
#include "table/layout.h"
#include "table/waiting.h"
#include "table/whole_table.h"
#include "tests/gui/deck_images.h"
#include "tests/gui/random_hand.h"
#include "tests/gui/random_match.h"
#include "tests/gui/table_checks.h"

using namespace prueba;

namespace {

constexpr int kEventos = 20000;
constexpr qint64 kMilisegundosLargo = 180'000;
constexpr int kAccionesPorSesion = 5000;
constexpr int kPaciencia = 20000; // steps within which a box is answered and a match left

// Somewhere the pictures differ in a whole square of a few pixels. The edge of a round corner that was painted over
// itself is thinner.
constexpr int kMancha = 4;

bool HayMancha(const QImage& a, const QImage& b) {
    if (a == b)
        return false;
    const auto distinto = [&](int x, int y) { return a.pixel(x, y) != b.pixel(x, y); };
    const auto cuadrado = [&](int x, int y) {
        for (int i = 0; i < kMancha * kMancha; ++i) {
            if (!distinto(x + i % kMancha, y + i / kMancha))
                return false;
        }
        return true;
    };
    for (int y = 0; y + kMancha <= a.height(); ++y) {
        for (int x = 0; x + kMancha <= a.width(); ++x) {
            if (distinto(x, y) && cuadrado(x, y))
                return true;
        }
    }
    return false;
}

// The desktop, with an eye on what the game does between two events. Its clock stands still but for the pauses, over
// which it leaps, so that thousands of events fit into a test. In some pauses something is clicked first.
class Escritorio : public PlataformaQt {
public:
    using PlataformaQt::PlataformaQt;

    std::function<void()> al_esperar, al_dormir;
    int cajas = 0;

    bool EsperaEvento() override {
        ++ahora_;
        al_esperar();
        return PlataformaQt::EsperaEvento();
    }
    Milisegundos Reloj() override { return ahora_; }
    void DuermeHasta(Milisegundos momento) override {
        al_dormir();
        if (DeCada(4))
            Bombea();
        ahora_ = std::max(ahora_, momento);
    }
    Boton Pregunta(const CajaMensaje& caja) override {
        ++cajas;
        return PlataformaQt::Pregunta(caja);
    }

private:
    Milisegundos ahora_ = 0;
};

// Ends the whole test with the seed on the screen when nothing moves any more.
class Vigia {
public:
    explicit Vigia(unsigned long long semilla)
        : hilo_([this, semilla](const std::stop_token& alto) { Vigila(alto, semilla); }) {}
    void Late() { ++latidos_; }

private:
    void Vigila(const std::stop_token& alto, unsigned long long semilla) {
        constexpr int kSegundosQuieto = 30;
        int quieto = 0;
        for (int antes = -1; !alto.stop_requested();) {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            const int ahora = latidos_;
            quieto = ahora == antes ? quieto + 1 : 0;
            antes = ahora;
            if (quieto > kSegundosQuieto * 10) {
                std::fprintf(stderr, "nada se mueve: ZOVIN_SEMILLA=%llu\n", semilla);
                std::abort();
            }
        }
    }

    std::atomic<int> latidos_ = 0;
    std::jthread hilo_;
};

} // namespace

class PruebaMono : public QObject {
    Q_OBJECT

    QTemporaryDir carpeta_;
    std::unique_ptr<Escritorio> mesa_;
    std::unique_ptr<QWidget> otra_; // a window of another program
    std::unique_ptr<Vigia> vigia_;
    QTimer pulso_;
    QElapsedTimer reloj_;
    bool largo_ = false;
    bool en_paso_ = false;
    Mano mano_;
    std::deque<std::function<void()>> gesto_; // what is left of the gesture under way
    QString fallo_;
    int esperas_ = 0, pausas_ = 0, manos_ = 0, sesiones_ = 0, partidas_ = 0;
    int colgadas_ = 0;   // waits in a row with a card on the pointer of a mouse that holds none
    int acciones_ = 0;   // in this session
    int pasos_caja_ = 0; // since the box on the screen came up
    QWidget* caja_ = nullptr;
    Integer juegos_vistos_ = 0;

    QWindow* Ventana() { return mesa_->Ventana().windowHandle(); }

    void Falla(const std::string& que) {
        if (!fallo_.isEmpty())
            return;
        fallo_ = QString::fromStdString(que);
        gesto_.clear();
        mesa_->PideTermina();
    }

    void CuentaManosJugadas() {
        if (estado.JuegosJugados > juegos_vistos_ && juegos_vistos_ > 0)
            ++manos_;
        partidas_ += estado.JuegosJugados == 1 && juegos_vistos_ != 1 ? 1 : 0;
        juegos_vistos_ = estado.JuegosJugados;
    }

    // Called between two events, with nothing of the game on the stack but its wait.
    void AlEsperar() {
        ++esperas_;
        CuentaManosJugadas();
        std::string fallo = prueba::FalloDeEspera();
        if (fallo.empty() && QuedaColgada())
            fallo = "una carta se queda colgada del puntero";
        if (fallo.empty() && DeCada(20) && !estado.ArrastraCarta && !estado.ArrastraReparto)
            fallo = FalloDePintura();
        if (!fallo.empty())
            Falla(fallo + " (en espera, " + DiMomento() + ")");
    }

    // A wait begins with what came during the last pause still in the queue, the release among it: only a card that
    // hangs on over several waits was forgotten.
    bool QuedaColgada() {
        constexpr int kEsperas = 3;
        const bool colgada = mano_.EstaQuieta() && (estado.ArrastraCarta || estado.ArrastraReparto);
        colgadas_ = colgada ? colgadas_ + 1 : 0;
        return colgadas_ >= kEsperas;
    }

    // What stands on the felt, bit by bit painted, is what painting all of it anew gives: nothing was left behind and
    // nothing is missing.
    std::string FalloDePintura() {
        auto& lienzo = dynamic_cast<LienzoRetenido&>(mesa_->LienzoDe(Control::Mesa, 0));
        const QImage antes = lienzo.Cuadro().copy();
        RedibujarMesa();
        const QImage despues = lienzo.Cuadro().copy();
        if (!HayMancha(antes, despues))
            return "";
        antes.save("mono-antes.png");
        despues.save("mono-despues.png");
        return "lo pintado no es lo que hay: mono-antes.png, mono-despues.png";
    }

    void AlDormir() {
        ++pausas_;
        CuentaManosJugadas();
        const std::string fallo = prueba::FalloDePausa();
        if (!fallo.empty())
            Falla(fallo + " (en pausa, " + DiMomento() + ")");
    }

    // Places of the window.

    QPoint EnVentana(int x, int y) {
        return mesa_->Ventana().widget()->mapTo(&mesa_->Ventana(), QPoint(x, y));
    }
    QPoint PuntoCualquiera() {
        const QSize tamano = mesa_->Ventana().size();
        if (DeCada(8)) // outside
            return {Hasta(tamano.width() + 400) - 200,
                    DeCada(2) ? -Hasta(200) : tamano.height() + Hasta(200)};
        return {Hasta(tamano.width() - 1), Hasta(tamano.height() - 1)};
    }
    QPoint PuntoDeZona(int asiento) {
        const Rectangulo zona = ZonaDe(asiento);
        return EnVentana(zona.x + Hasta(zona.ancho - 1), zona.y + Hasta(zona.alto - 1));
    }
    QPoint PuntoDeCarta(int asiento) {
        const int cartas = estado.NumCartas(asiento, 1);
        if (cartas == 0)
            return PuntoDeZona(asiento);
        const Integer x = estado.CartaX, y = estado.CartaY;
        ColocarCarta(asiento, 1 + Hasta(cartas - 1), cartas);
        const QPoint punto = EnVentana(estado.CartaX + 4 + Hasta(8), estado.CartaY + 4 + Hasta(8));
        estado.CartaX = x;
        estado.CartaY = y;
        return punto;
    }
    QPoint PuntoDelReparto() {
        return EnVentana(estado.ReparteX + Hasta(estado.CartasImagen / 4 * 29),
                         estado.ReparteY + Hasta((estado.AltoMiniCarta + 2) * 4));
    }
    QPoint PuntoDe(Control control, int indice) {
        const auto todos = mesa_->Ventana().findChildren<VistaControl*>();
        for (VistaControl* vista : todos) {
            if (vista->Cual() == control && vista->isVisible() && (indice-- <= 1))
                return vista->mapTo(&mesa_->Ventana(),
                                    QPoint(Hasta(vista->width() - 1), Hasta(vista->height() - 1)));
        }
        return PuntoCualquiera();
    }
    QPoint PuntoConSentido() {
        switch (Hasta(5)) {
        case 0:
            return PuntoDeZona(1 + Hasta(3));
        case 1:
        case 2:
            return PuntoDeCarta(estado.JugadorActual == 0 ? 4 : estado.JugadorActual);
        case 3:
            return estado.RepartoEnCurso ? PuntoDelReparto() : PuntoDeCarta(1 + Hasta(3));
        case 4:
            return EnVentana(estado.MazoX + Hasta(100), estado.MazoY + Hasta(140));
        default:
            return PuntoCualquiera();
        }
    }

    // Gestures.

    void Encola(std::function<void()> paso) { gesto_.push_back(std::move(paso)); }

    void Clic(const QPoint& donde, Qt::MouseButton boton) {
        Encola([=, this] { mano_.Mueve(Ventana(), donde); });
        Encola([=, this] { mano_.Aprieta(Ventana(), donde, boton); });
        Encola([=, this] { mano_.Suelta(Ventana(), donde, boton); });
    }

    void Arrastra(const QPoint& desde, const QPoint& hasta) {
        Encola([=, this] { mano_.Mueve(Ventana(), desde); });
        Encola([=, this] { mano_.Aprieta(Ventana(), desde, Qt::LeftButton); });
        const int pasos = 1 + Hasta(4);
        for (int paso = 1; paso <= pasos; ++paso) {
            const QPoint donde = desde + (hasta - desde) * paso / pasos;
            Encola([=, this] { mano_.Mueve(Ventana(), donde); });
        }
        if (DeCada(5))
            Interrumpe();
        if (DeCada(12))
            Encola([this] { mano_.SueltaSinDecirlo(); });
        else
            Encola([=, this] { mano_.Suelta(Ventana(), hasta, Qt::LeftButton); });
        Encola([this] { mano_.Mueve(Ventana(), PuntoCualquiera()); });
    }

    // What can come between the press and the release.
    void Interrumpe() {
        switch (Hasta(5)) {
        case 0:
            return Encola([this] { mesa_->Ventana().close(); });
        case 1:
            return PierdeElFoco();
        case 2:
            return CambiaDeTamano();
        case 3:
            return Teclea(DeCada(2));
        case 4:
            return Encola([this] {
                const QPoint donde = PuntoCualquiera();
                mano_.Aprieta(Ventana(), donde, Qt::RightButton);
                mano_.Suelta(Ventana(), donde, Qt::RightButton);
            });
        default:
            return Encola([this] { mano_.Rueda(Ventana(), PuntoCualquiera()); });
        }
    }

    void PierdeElFoco() {
        Encola([this] {
            otra_->show();
            otra_->activateWindow();
        });
        Encola([this] {
            otra_->hide();
            mesa_->Ventana().activateWindow();
        });
    }

    void CambiaDeTamano() {
        Encola([this] { mesa_->Ventana().resize(420 + Hasta(1500), 320 + Hasta(760)); });
    }

    void Teclea(bool mantenida) {
        struct Pulsacion {
            Qt::Key tecla;
            const char* letra;
        };
        const Pulsacion una = UnoDe(std::vector<Pulsacion>{{Qt::Key_A, "a"},
                                                           {Qt::Key_Space, " "},
                                                           {Qt::Key_Return, "\r"},
                                                           {Qt::Key_Tab, "\t"},
                                                           {Qt::Key_Left, ""},
                                                           {Qt::Key_Right, ""},
                                                           {Qt::Key_Up, ""},
                                                           {Qt::Key_Down, ""},
                                                           {Qt::Key_F5, ""},
                                                           {Qt::Key_Escape, "\x1b"},
                                                           {Qt::Key_Q, "q"}});
        const int veces = mantenida ? 2 + Hasta(6) : 1;
        for (int vez = 0; vez < veces; ++vez) {
            Encola([=, this] {
                QWindow* foco = QGuiApplication::focusWindow();
                mano_.Tecla(foco == nullptr ? Ventana() : foco, una.tecla, una.letra, vez > 0);
            });
        }
        Encola([this] { mesa_->Ventana().showNormal(); });
    }

    void SigueElJuego() {
        if (estado.RepartoEnCurso)
            Arrastra(PuntoDelReparto(), PuntoDeZona(1 + Hasta(3)));
        else if (!estado.PartidaEnCurso)
            Clic(PuntoDe(Control::Pic_Boton, kBotonNueva), Qt::LeftButton);
        else if (DeCada(3))
            Clic(PuntoDeCarta(estado.JugadorActual == 0 ? 4 : estado.JugadorActual),
                 Qt::LeftButton);
        else
            Clic(PuntoDe(Control::Pic_BotContinuar, 0), Qt::LeftButton);
    }

    void NuevoGesto() {
        const int cual = Hasta(99);
        if (cual < 50)
            SigueElJuego();
        else if (cual < 60)
            Arrastra(PuntoConSentido(), DeCada(2) ? PuntoConSentido() : PuntoCualquiera());
        else if (cual < 68)
            Clic(PuntoConSentido(), Qt::RightButton);
        else if (cual < 72)
            Clic(PuntoDe(Control::Pic_SelOpciones, 0), Qt::LeftButton);
        else if (cual < 80)
            Clic(PuntoCualquiera(), DeCada(4) ? Qt::MiddleButton : Qt::LeftButton);
        else if (cual < 84)
            Teclea(DeCada(3));
        else if (cual < 87)
            Clic(PuntoDe(DeCada(2) ? Control::Pic_MasAyuda : Control::Bot_CerrarSuge, 0),
                 Qt::LeftButton);
        else if (cual < 90)
            Clic(PuntoDe(Control::Pic_Boton, 1 + Hasta(7)), Qt::LeftButton);
        else if (cual < 92) { // a double click
            const QPoint donde = PuntoConSentido();
            Clic(donde, Qt::LeftButton);
            Clic(donde, Qt::LeftButton);
        } else
            Interrumpe();
    }

    // Boxes.

    // A form is clicked and typed into all over before it is left.
    void AnteLaForma(QWidget* forma) {
        if (DeCada(25)) {
            mano_.Tecla(forma->windowHandle(), Qt::Key_Escape, "\x1b", false);
        } else if (DeCada(4)) {
            const auto tecla = UnoDe(std::vector<Qt::Key>{Qt::Key_Tab, Qt::Key_Space, Qt::Key_7,
                                                          Qt::Key_N, Qt::Key_Up, Qt::Key_Right});
            mano_.Tecla(forma->windowHandle(), tecla, QString(QChar(tecla & 0x7F)), false);
        } else {
            const QPoint donde(Hasta(forma->width() - 1), Hasta(forma->height() - 1));
            mano_.Aprieta(forma->windowHandle(), donde, Qt::LeftButton);
            mano_.Mueve(forma->windowHandle(), donde + QPoint(Hasta(40) - 20, 0));
            mano_.Suelta(forma->windowHandle(), donde, Qt::LeftButton);
        }
    }

    void AnteLaCaja(QWidget* caja) {
        pasos_caja_ = caja == caja_ ? pasos_caja_ + 1 : 0;
        caja_ = caja;
        if (pasos_caja_ > kPaciencia)
            return Falla("una caja no se contesta");
        if (qobject_cast<CajaQt*>(caja) == nullptr)
            return AnteLaForma(caja);
        const auto botones = caja->findChildren<QPushButton*>();
        if (!DeCada(3) || botones.isEmpty())
            return;
        // Most questions of the match are answered with No, or no hand would ever be played to its end; with the
        // help closed, the same button closes the other boxes.
        const bool sigue = acciones_ < kAccionesPorSesion && !DeCada(8);
        QPushButton* boton =
            sigue ? botones.last() : botones[Hasta(static_cast<int>(botones.size()) - 1)];
        if (!sigue && DeCada(3)) {
            mano_.Tecla(caja->windowHandle(), Qt::Key_A, "a", false);
        } else {
            const QPoint donde = boton->mapTo(caja, boton->rect().center());
            mano_.Aprieta(caja->windowHandle(), donde, Qt::LeftButton);
            mano_.Suelta(caja->windowHandle(), donde, Qt::LeftButton);
        }
    }

    // An event of a step may open a loop of its own: then only what opened it is looked after.
    void Pulso() {
        vigia_->Late();
        pulso_.start(); // a timer does not fire again while its own event lasts
        if (en_paso_) {
            if (QWidget* menu = QApplication::activePopupWidget(); menu != nullptr)
                menu->close();
            else if (QWidget* caja = QApplication::activeModalWidget(); caja != nullptr)
                AnteLaCaja(caja);
            return;
        }
        en_paso_ = true;
        Paso();
        en_paso_ = false;
    }

    bool YaBasta() {
        if (largo_)
            return reloj_.elapsed() > kMilisegundosLargo;
        return mano_.eventos >= (manos_ > 0 ? kEventos : 10 * kEventos);
    }

    // Between two hands the exit is not on offer: the wish is kept until the next one is dealt.
    void Deja() {
        mesa_->Ventana().close();
        if (!BotonHabilitado(kBotonSalir))
            Clic(PuntoDe(Control::Pic_BotContinuar, 0), Qt::LeftButton);
    }

    void Paso() {
        ++acciones_;
        if (YaBasta())
            acciones_ = std::max(acciones_, kAccionesPorSesion + 1);
        QWidget* caja = QApplication::activeModalWidget();
        if (!fallo_.isEmpty())
            return;
        if (caja != nullptr)
            AnteLaCaja(caja);
        if (acciones_ > kAccionesPorSesion + kPaciencia)
            return Falla("la sesión no acaba (" + DiMomento() + ")");
        if (gesto_.empty() && acciones_ > kAccionesPorSesion)
            return Deja();
        if (gesto_.empty() && (caja == nullptr || DeCada(6)))
            NuevoGesto();
        if (gesto_.empty())
            return;
        const auto paso = gesto_.front();
        gesto_.pop_front();
        paso();
    }

    // One start of the program, to its end.
    void Sesion() {
        ++sesiones_;
        acciones_ = 0;
        juegos_vistos_ = 0;
        gesto_.clear();
        sesion = {};
        CalcularMesa();
        LeerIniGeneral();
        LeerIniJuego();
        const std::string fallo = prueba::FalloDeAjustesDeJuego();
        if (!fallo.empty())
            return Falla("el fichero no vale: " + fallo);
        std::printf("  %s\n", DiAjustes().c_str());
        std::fflush(stdout);
        mesa_->MuestraMesa();
        CambiaTamano();
        pulso_.start();
        IniciarSesion();
        BucleSesion();
        pulso_.stop();
    }

    // What the next start must find: the games finished, and the match only if it was on.
    void SesionYLoGuardado() {
        Sesion();
        if (!fallo_.isEmpty())
            return;
        const bool en_curso = estado.PartidaEnCurso;
        const int acabados = estado.JuegosJugados - (sesion.mano_apuntada ? 0 : 1);
        const Tabla<Integer, 4> ganados = estado.JuegosGanados;
        LeerIniJuego();
        if (estado.PartidaEnCurso != en_curso)
            Falla("la partida guardada no es la dejada");
        else if (en_curso && estado.JuegosJugados != std::max(acabados, 0))
            Falla("se guardan " + std::to_string(estado.JuegosJugados) + " manos y había " +
                  std::to_string(acabados));
        else if (en_curso && !(estado.JuegosGanados == ganados))
            Falla("los juegos ganados no son los guardados");
    }

private Q_SLOTS:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        QVERIFY(PonFicherosDeMesa(carpeta_.path()));
        mesa_ = std::make_unique<Escritorio>(carpeta_.path());
        mesa_->al_esperar = [this] { AlEsperar(); };
        mesa_->al_dormir = [this] { AlDormir(); };
        mesa_->PonForma(Forma::Personal, AbreVistaPersonal);
        mesa_->PonForma(Forma::Normas, AbreVistaNormas);
        mesa_->PonForma(Forma::Estadis, AbreVistaEstadis);
        UsaPlataforma(*mesa_);
        RegistraDespacho(DespachaEvento);
        estado.CarpetaPrograma = carpeta_.path().toStdString();
        otra_ = std::make_unique<QWidget>();
        otra_->resize(200, 100);
        pulso_.setInterval(0);
        connect(&pulso_, &QTimer::timeout, this, &PruebaMono::Pulso);
    }

    void NadaSePierde() {
        constexpr unsigned long long kSemilla = 20;
        largo_ = qEnvironmentVariableIsSet("ZOVIN_LARGO");
        const unsigned long long semilla = qEnvironmentVariableIsSet("ZOVIN_SEMILLA")
                                               ? qEnvironmentVariable("ZOVIN_SEMILLA").toULongLong()
                                           : largo_ ? std::random_device()()
                                                    : kSemilla;
        std::printf("ZOVIN_SEMILLA=%llu\n", semilla);
        azar.seed(semilla);
        vigia_ = std::make_unique<Vigia>(semilla);
        reloj_.start();
        while (fallo_.isEmpty() && !YaBasta()) {
            if (sesiones_ == 0 || !DeCada(3))
                PonAjustes();
            SesionYLoGuardado();
        }
        std::printf("%d eventos en %lld s: %d sesiones, %d partidas, %d manos acabadas, %d cajas, "
                    "%d esperas, %d pausas\n",
                    mano_.eventos, static_cast<long long>(reloj_.elapsed() / 1000), sesiones_,
                    partidas_, manos_, mesa_->cajas, esperas_, pausas_);
        vigia_.reset();
        QVERIFY2(fallo_.isEmpty(), qPrintable(fallo_));
        QVERIFY2(manos_ > 0 && mesa_->cajas > 0, "no se ha jugado nada");
    }

    void cleanupTestCase() {
        pulso_.stop();
        mesa_.reset();
    }
};

QTEST_MAIN(PruebaMono)
#include "monkey_test.moc"
