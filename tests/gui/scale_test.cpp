// The table's factor: what it is for a window, what the player makes of it, that it comes with the next event pass, and
// that every pixel is then drawn for it.

#include <QApplication>
#include <QDir>
#include <QEnterEvent>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>
#include <QToolTip>
#include <algorithm>
#include <array>

#include "core/numeric.h"
#include "forms/controls_view.h"
#include "forms/normas_view.h"
#include "forms/personal_view.h"
#include "platform/qt/help_viewer.h"
#include "platform/qt/message_box.h"
#include "platform/qt/open_screen.h"
#include "platform/qt/picture_platform.h"
#include "platform/qt/scale.h"
#include "reports/marcador.h"
#include "reports/marcador_view.h"
#include "table/button_column.h"
#include "table/deck.h"
#include "table/layout.h"
#include "table/sheet_layout.h"
#include "tests/gui/live_window.h"
#include "tests/gui/open_form.h"

using namespace prueba;

class PruebaFactor : public QObject {
    Q_OBJECT

    VentanaViva viva_;

    std::vector<Evento> Toma() {
        viva_.Mesa().Bombea();
        std::vector<Evento> todos;
        while (const auto evento = viva_.Mesa().SiguienteEvento(Pase::DeEspera))
            todos.push_back(*evento);
        return todos;
    }
    void Mide(int ancho, int alto) {
        viva_.Mesa().Ventana().resize(ancho, alto);
        Toma();
    }
    void Pulsa(Qt::Key tecla) { QTest::keyClick(viva_.Tapete(), tecla, Qt::ControlModifier); }
    static QString Fichero() {
        return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/ventana.ini";
    }
    // A hand under way, as it stands on the table: every seat with cards, names, a pile.
    static void PonUnaMano() {
        estado.PartidaEnCurso = estado.ManoEnCurso = true;
        estado.SerieActual = 1;
        estado.CartasEnMazo = 12;
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            estado.NumCartas(asiento, 1) = 7;
            for (int lugar = 1; lugar <= 7; ++lugar)
                PonCarta(asiento, 1, lugar, {asiento, EnteroDe(lugar)},
                         asiento == 4 ? kDescubierta : kDorso);
        }
    }
    // The same table as a picture made for that ratio from the start.
    QImage DibujadaPara(double ratio) {
        std::array<bool, 9> se_puede{};
        for (int boton = 1; boton <= 8; ++boton)
            se_puede[static_cast<std::size_t>(boton)] = BotonHabilitado(boton);
        PlataformaCuadro cuadro(ratio);
        cuadro.Mide(estado.AnchoPantalla, estado.AltoPantalla);
        UsaPlataforma(cuadro);
        ConstruirBaraja();
        CalcularMesa();
        for (int boton = 1; boton <= 8; ++boton)
            HabilitaBoton(boton, se_puede[static_cast<std::size_t>(boton)]);
        CambiaTamano();
        const QImage imagen = cuadro.Cuadro();
        UsaPlataforma(viva_.Mesa());
        return imagen;
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(viva_.PonFicheros()); }

    // The scales that the desktop asks for: each that is below 1 is raised, the others stay.
    void LaEscalaDelEscritorioNoBajaDeUno_data() {
        QTest::addColumn<QString>("pedida");
        QTest::addColumn<QString>("queda");
        QTest::newRow("ninguna") << ""
                                 << "";
        QTest::newRow("dos") << "2"
                             << "2";
        QTest::newRow("media") << "0.5"
                               << "1";
        QTest::newRow("nada") << "0"
                              << "1";
        QTest::newRow("negativa") << "-2"
                                  << "1";
        QTest::newRow("una de dos") << "uno=0.75;dos=1.5"
                                    << "uno=1;dos=1.5";
        QTest::newRow("la última") << "uno=2;dos=0.5"
                                   << "uno=2;dos=1";
        QTest::newRow("sin nombres") << "1.25;0.8;2"
                                     << "1.25;1;2";
        QTest::newRow("no es un número") << "uno=grande;dos=0.5"
                                         << "uno=grande;dos=1";
    }
    void LaEscalaDelEscritorioNoBajaDeUno() {
        QFETCH(QString, pedida);
        QFETCH(QString, queda);
        QCOMPARE(SinEncoger(pedida), queda);
    }

    void init() {
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))
            .removeRecursively();
        QVERIFY(viva_.Abre(kTute));
    }
    void cleanup() { viva_.Cierra(); }

    // ---- which factor

    void LaMesaTomaElMayorPasoEnElQueCabeHolgada_data() {
        QTest::addColumn<QSize>("ventana");
        QTest::addColumn<double>("factor");
        QTest::newRow("la menor") << QSize(800, 600) << 1.0;
        QTest::newRow("justa") << QSize(1280, 720) << 1.0;
        QTest::newRow("le falta uno de ancho") << QSize(1599, 900) << 1.0;
        QTest::newRow("le falta uno de alto") << QSize(1600, 899) << 1.0;
        QTest::newRow("uno y cuarto") << QSize(1600, 900) << 1.25;
        QTest::newRow("uno y medio") << QSize(1920, 1080) << 1.5;
        QTest::newRow("uno y tres cuartos") << QSize(2240, 1260) << 1.75;
        QTest::newRow("doble") << QSize(2560, 1440) << 2.0;
        QTest::newRow("casi dos y medio") << QSize(3199, 1800) << 2.0;
        QTest::newRow("dos y medio") << QSize(3200, 1800) << 2.5;
        QTest::newRow("triple") << QSize(3840, 2160) << 3.0;
        QTest::newRow("no hay más") << QSize(7680, 4320) << 3.0;
        QTest::newRow("apaisada") << QSize(3840, 800) << 1.0;
    }
    void LaMesaTomaElMayorPasoEnElQueCabeHolgada() {
        QFETCH(QSize, ventana);
        QFETCH(double, factor);
        QCOMPARE(FactorPara(ventana, 0, 1), factor);
        QCOMPARE(FactorPara(ventana, 0, 2), factor); // the desktop's scale is no part of it
    }

    void ElPasoElegidoValeMientrasQuepan800x600() {
        QCOMPARE(FactorPara({1280, 800}, 1.25, 1), 1.25);
        QCOMPARE(FactorPara({1280, 800}, 1.5, 1), 1.25);
        QCOMPARE(FactorPara({1280, 800}, 3, 1), 1.25);
        QCOMPARE(FactorPara({800, 600}, 3, 1), 1.0);
        QCOMPARE(FactorPara({2560, 1440}, 1, 1), 1.0);
        QCOMPARE(FactorPara({2560, 1440}, 1.3, 1), 2.0); // no step: as if none were chosen
        QCOMPARE(FactorPara({2560, 1440}, -1, 1), 2.0);
    }

    // Many pixels of the screen in few of the window: smaller rather than scrolled, but never below the screen's own.
    void UnaVentanaDePocosPixelesGrandesEnsenaLaMesaEntera() {
        QCOMPARE(FactorPara({384, 216}, 0, 5), 0.36);
        QCOMPARE(FactorPara({640, 400}, 2, 2), 400 / 600.0);
        QCOMPARE(FactorPara({640, 400}, 0, 1), 1.0);
        QCOMPARE(FactorPara({100, 100}, 0, 2), 0.5);
        QCOMPARE(VentanaMinima(1), QSize(800, 600));
        QCOMPARE(VentanaMinima(0.5), QSize(800, 600));
        QCOMPARE(VentanaMinima(5), QSize(160, 120));
    }

    void LosPasosSubenYBajanHastaSusExtremos() {
        double factor = 1;
        std::vector<double> subida;
        for (double mayor = PasoDeFactor(factor, 1); mayor != factor;
             mayor = PasoDeFactor(factor, 1)) {
            factor = mayor;
            subida.push_back(factor);
        }
        QCOMPARE(subida, (std::vector<double>{1.25, 1.5, 1.75, 2, 2.5, 3}));
        QCOMPARE(PasoDeFactor(2.5, -1), 2.0);
        QCOMPARE(PasoDeFactor(1, -1), 1.0);
        QCOMPARE(PasoDeFactor(0.4, 1), 1.0);
    }

    void LosBordesQueSeTocanSeSiguenTocando() {
        for (const double factor : {1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0, 0.36}) {
            PonFactorDeMesa(factor);
            for (int x = 0; x < 60; ++x) {
                const QRect una = EnVentana({x, 2 * x, 7, 5});
                const QRect otra = EnVentana({x + 7, 2 * x + 5, 9, 4});
                QCOMPARE(otra.left(), una.right() + 1);
                QCOMPARE(otra.top(), una.bottom() + 1);
            }
        }
        PonFactorDeMesa(1);
    }

    void UnPuntoDeLaVentanaCaeEnSuPixelDeLaMesa() {
        PonFactorDeMesa(1.5);
        QCOMPARE(EnMesa(QPointF(0, 0)), QPoint(0, 0));
        QCOMPARE(EnMesa(QPointF(1.4, 1.6)), QPoint(0, 1));
        QCOMPARE(EnMesa(QPointF(-1, 3)), QPoint(-1, 2));
        QCOMPARE(TamanoEnMesa({1920, 1080}), QSize(1280, 720));
        QCOMPARE(TamanoEnMesa({1921, 1079}), QSize(1281, 720)); // what shows in part counts
        PonFactorDeMesa(1);
    }

    // ---- when it comes

    void ElFactorCambiaAlTomarElTamanoYNoAntes() {
        viva_.Mesa().Ventana().resize(2560, 1440);
        viva_.Mesa().Bombea();
        QCOMPARE(FactorDeMesa(), 1.0);
        QCOMPARE(viva_.Mesa().AnchoVentana(), 2560);
        // A card on its way meanwhile flies on.
        viva_.Mesa().Vuela(40, 40, {1, 1, 2, 1});
        viva_.Mesa().Repinta();
        viva_.Mesa().Posa();
        const auto eventos = Toma();
        QVERIFY(eventos.back().tipo == TipoEvento::Tamano);
        QCOMPARE(eventos.back().x, 1280);
        QCOMPARE(eventos.back().y, 720);
        QCOMPARE(FactorDeMesa(), 2.0);
        QCOMPARE(viva_.Mesa().AnchoVentana(), 1280);
        QCOMPARE(viva_.Mesa().AltoVentana(), 720);
    }

    void UnClicSeDiceEnPixelesDeLaMesa() {
        Mide(2560, 1440);
        QTest::mouseClick(viva_.Tapete(), Qt::LeftButton, {}, {301, 201});
        QCOMPARE(Toma().back().x, 150);
        viva_.Mesa().Coloca(Control::Pic_SelOpciones, 0, {200, 200, 120, 40});
        viva_.Mesa().Muestra(Control::Pic_SelOpciones, 0, true);
        QTest::mouseMove(viva_.Vista(Control::Pic_SelOpciones), {61, 50});
        QCOMPARE(Toma().back().y, 25);
    }

    void LosMandosCrecenConLaMesa() {
        viva_.Mesa().Coloca(Control::Pic_Tantos, 1, {101, 50, 66, 27});
        Mide(1920, 1080);
        QCOMPARE(viva_.Vista(Control::Pic_Tantos)->geometry(), QRect(152, 75, 99, 41));
        QCOMPARE(viva_.Vista(Control::Pic_Botonera)->height(),
                 900); // the game has not laid it out yet
        QCOMPARE(QToolTip::font().pixelSize(), 18);
        QCOMPARE(QApplication::font("QMenu").pixelSize(), 18);
        viva_.Mesa().PonPuntero(Control::Mesa, 0, Puntero::Cambiar);
        QCOMPARE(viva_.Tapete()->cursor().pixmap().width(), 48);
        QCOMPARE(viva_.Tapete()->cursor().hotSpot(), QPoint(23, 24));
        Mide(800, 600);
        QCOMPARE(viva_.Tapete()->cursor().pixmap().width(), 32);
        QCOMPARE(QToolTip::font().pixelSize(), 12);
    }

    void LaAyudaAbiertaCreceConLaMesa() {
        Mide(1280, 800);
        viva_.Mesa().Ayuda(0);
        const auto ventanas = QApplication::topLevelWidgets();
        const auto ayuda = std::ranges::find(ventanas, "ayuda", &QWidget::objectName);
        QVERIFY(ayuda != ventanas.end());
        const auto* vista = qobject_cast<const VistaAyuda*>(*ayuda);
        QCOMPARE(vista->Aumento(), 1.0);
        Mide(1920, 1080);
        QVERIFY(vista->Aumento() > 1); // as far as this screen has room
        for (int veces = 0; veces < 2; ++veces) {
            Pulsa(Qt::Key_Minus);
            Toma();
        }
        QCOMPARE(FactorDeMesa(), 1.0);
        QCOMPARE(vista->Aumento(), 1.0);
    }

    // ---- what the player makes of it

    void ConControlSubeBajaYVuelve() {
        Mide(1920, 1080);
        QCOMPARE(FactorDeMesa(), 1.5);
        Pulsa(Qt::Key_Plus);
        for (const Evento& evento : Toma())
            QVERIFY(evento.tipo != TipoEvento::Tecla);
        QCOMPARE(FactorDeMesa(), 1.75);
        // 800 by 600 no longer fit at twice the size.
        Pulsa(Qt::Key_Equal);
        Toma();
        QCOMPARE(FactorDeMesa(), 1.75);
        for (const double menor : {1.5, 1.25, 1.0, 1.0}) {
            Pulsa(Qt::Key_Minus);
            Toma();
            QCOMPARE(FactorDeMesa(), menor);
        }
        Mide(1280, 800);
        Mide(1920, 1080);
        QCOMPARE(FactorDeMesa(), 1.0); // chosen is chosen
        Pulsa(Qt::Key_0);
        Toma();
        QCOMPARE(FactorDeMesa(), 1.5);
    }

    void LoElegidoSeGuardaConLaVentana() {
        Mide(1920, 1080);
        Pulsa(Qt::Key_Minus);
        Toma();
        viva_.Cierra();
        QVERIFY(QFile::exists(Fichero()));
        QVERIFY(viva_.Abre(kTute));
        Mide(1920, 1080);
        QCOMPARE(FactorDeMesa(), 1.25);
        Pulsa(Qt::Key_0);
        viva_.Cierra();
        QVERIFY(viva_.Abre(kTute));
        Mide(1920, 1080);
        QCOMPARE(FactorDeMesa(), 1.5);
    }

    void LoGuardadoQueNoValeNoCuenta_data() {
        QTest::addColumn<QString>("guardado");
        QTest::addColumn<double>("factor");
        QTest::newRow("no cabe") << "3" << 1.25;
        QTest::newRow("no es un paso") << "1.1" << 1.0;
        QTest::newRow("negativo") << "-2" << 1.0;
        QTest::newRow("letras") << "grande" << 1.0;
        QTest::newRow("infinito") << "inf" << 1.0;
        QTest::newRow("nada") << "" << 1.0;
    }
    void LoGuardadoQueNoValeNoCuenta() {
        QFETCH(QString, guardado);
        QFETCH(double, factor);
        viva_.Cierra();
        QSettings(Fichero(), QSettings::IniFormat).setValue("ventana/factor", guardado);
        QVERIFY(viva_.Abre(kTute));
        Mide(1280, 800);
        QCOMPARE(FactorDeMesa(), factor);
    }

    // ---- how it looks

    // To the pixel what is drawn for that ratio from the start: nothing is stretched, nothing stays from before.
    void ACadaFactorSeDibujaTodoDeNuevo_data() {
        QTest::addColumn<QSize>("ventana");
        QTest::addColumn<double>("factor");
        QTest::newRow("1.25") << QSize(1600, 900) << 1.25;
        QTest::newRow("1.5") << QSize(1920, 1080) << 1.5;
        QTest::newRow("2") << QSize(2560, 1440) << 2.0;
        QTest::newRow("3") << QSize(3840, 2160) << 3.0;
    }
    void ACadaFactorSeDibujaTodoDeNuevo() {
        QFETCH(QSize, ventana);
        QFETCH(double, factor);
        PonUnaMano();
        viva_.Mesa().Ventana().resize(ventana);
        viva_.Mesa().Bombea();
        viva_.Pasa(); // takes the new size
        QCOMPARE(FactorDeMesa(), factor);
        const QImage vista = viva_.Tapete()->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const QImage justa = DibujadaPara(factor).convertToFormat(QImage::Format_RGB32);
        QCOMPARE(vista.size(), ventana);
        int distintos = 0;
        for (int y = 0; y < ventana.height(); ++y) {
            for (int x = 0; x < ventana.width(); ++x)
                distintos += vista.pixel(x, y) != justa.pixel(x, y) ? 1 : 0;
        }
        QCOMPARE(distintos, 0);
    }

    void UnaCajaCreceConLaMesa() {
        const CajaMensaje caja{.titulo = "Una", .texto = "Hola", .lineas = 1, .modo = 2};
        const CajaQt antes(caja, nullptr);
        PonFactorDeMesa(1.25);
        const CajaQt despues(caja, nullptr);
        PonFactorDeMesa(1);
        QCOMPARE(despues.Aumento(), 1.25);
        QCOMPARE(despues.width(), qRound(antes.width() * 1.25));
        const auto* boton = despues.findChild<QWidget*>("Pic_No");
        const auto* era = antes.findChild<QWidget*>("Pic_No");
        QCOMPARE(boton->width(), qRound(era->sizeHint().width() * 1.25));
        QVERIFY(despues.rect().contains(boton->geometry()));
    }

    void UnaCajaNoCreceMasQueLaPantalla() {
        PonFactorDeMesa(3);
        const CajaQt caja({.titulo = "Una", .texto = "Hola", .lineas = 1, .modo = 1}, nullptr);
        PonFactorDeMesa(1);
        const QSize pantalla = QApplication::primaryScreen()->availableSize();
        QVERIFY(caja.Aumento() > 1);
        QVERIFY(caja.width() <= pantalla.width() && caja.height() <= pantalla.height());
    }
};

// The forms over a table without a screen, drawn larger than they are laid out.
class PruebaFormasGrandes : public QObject, private MesaDeFormas {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        Empieza(kTute);
        PonFactorDeMesa(1.25);
    }
    void cleanup() { PonFactorDeMesa(1); }

    void UnSelectorSePulsaDondeSeVe() {
        const Integer antes = estado.SentidoJuego;
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            auto& selector = forma.En<SelectorVista>("Pic_Selector_8");
            const double aumento = dynamic_cast<DialogoSuite&>(forma.dialogo).Aumento();
            QVERIFY(aumento > 1);
            const QPointF flecha = QRectF(selector.Flecha()).center() * aumento;
            QVERIFY(selector.rect().contains(flecha.toPoint()));
            QTest::mouseClick(&selector, Qt::LeftButton, {}, flecha.toPoint());
            // Every control stands inside the form.
            for (const QWidget* mando : forma.dialogo.findChildren<QWidget*>()) {
                const QRect sitio(mando->mapTo(&forma.dialogo, QPoint(0, 0)), mando->size());
                QVERIFY(!mando->isVisible() || forma.dialogo.rect().contains(sitio));
            }
        }));
        QVERIFY(estado.SentidoJuego != antes);
    }

    void ElPomoSeArrastraLoQueSeVe() {
        estado.VelocidadJuego = 50;
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            auto& vista = forma.En<DeslizadorVista>("Pic_Potenciometro_1");
            const double aumento = dynamic_cast<DialogoSuite&>(forma.dialogo).Aumento();
            const QPoint pomo = (QRectF(vista.Pomo()).center() * aumento).toPoint();
            QTest::mousePress(&vista, Qt::LeftButton, {}, pomo);
            QTest::mouseMove(&vista, {vista.width(), pomo.y()});
            QTest::mouseRelease(&vista, Qt::LeftButton, {}, {vista.width(), pomo.y()});
        }));
        QCOMPARE(estado.VelocidadJuego, Integer{100});
    }

    void LasLetrasDeUnCampoCrecen() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            const double aumento = dynamic_cast<DialogoSuite&>(forma.dialogo).Aumento();
            QCOMPARE(forma.En<TextoVista>("Txt_Nombre_4").font().pixelSize(), qRound(12 * aumento));
        }));
    }

    void LosBotonesDePaginaSonSuyosHastaElUltimoPixel() {
        QVERIFY(Con(AbreVistaMarcador, [](Abierta& forma) {
            QVERIFY(dynamic_cast<DialogoSuite&>(forma.dialogo).Aumento() > 1);
            for (int cual = kAlPrincipio; cual <= kAlFinal; ++cual) {
                QWidget& boton = forma.En(QStringLiteral("Pic_BotAdeAtr_%1").arg(cual));
                for (const QPointF donde : {boton.rect().topLeft(), boton.rect().bottomRight()}) {
                    QEnterEvent entra(donde, donde, boton.mapToGlobal(donde));
                    QApplication::sendEvent(&boton, &entra);
                    QCOMPARE(int{informe.BotonActivo}, cual);
                }
            }
        }));
    }

    void LasNormasSeVenEnteras() {
        QVERIFY(Con(AbreVistaNormas, [](Abierta& forma) {
            const double aumento = dynamic_cast<DialogoSuite&>(forma.dialogo).Aumento();
            QCOMPARE(aumento, 1.25);
            for (const QWidget* mando : forma.dialogo.findChildren<QWidget*>()) {
                const QRect sitio(mando->mapTo(&forma.dialogo, QPoint(0, 0)), mando->size());
                QVERIFY(!mando->isVisible() || forma.dialogo.rect().contains(sitio));
            }
        }));
    }
};

int main(int argc, char** argv) {
    QApplication programa(argc, argv);
    PruebaFactor factor;
    PruebaFormasGrandes formas;
    return QTest::qExec(&factor, argc, argv) + QTest::qExec(&formas, argc, argv);
}

#include "scale_test.moc"
