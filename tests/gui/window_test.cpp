// The window: what the mouse and the keyboard tell the game, sizes, pointers, names, waiting.

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "platform/qt/platform_qt.h"
#include "table/sheet_layout.h"
#include "tests/gui/deck_images.h"

Q_DECLARE_METATYPE(TipoEvento)

class PruebaVentana : public QObject {
    Q_OBJECT

    QTemporaryDir carpeta_;
    std::unique_ptr<PlataformaQt> mesa_;

    QWidget* Tapete() { return mesa_->Ventana().widget(); }
    QWidget* Boton(const char* nombre) {
        return Tapete()->findChild<QWidget*>(QString::fromLatin1(nombre));
    }
    std::vector<Evento> Toma() {
        mesa_->Bombea();
        std::vector<Evento> todos;
        while (const auto evento = mesa_->SiguienteEvento(Pase::DeEspera))
            todos.push_back(*evento);
        return todos;
    }
    std::vector<TipoEvento> Tipos() {
        std::vector<TipoEvento> tipos;
        for (const Evento& evento : Toma())
            tipos.push_back(evento.tipo);
        return tipos;
    }
    void PonContinuar() {
        mesa_->Coloca(Control::Pic_Botonera, 0, {710, 0, 90, 600});
        mesa_->Coloca(Control::Pic_BotContinuar, 0, {2, 540, 86, 36});
        mesa_->Nombra(Control::Pic_BotContinuar, 0, "Continuar");
        mesa_->PonPuntero(Control::Pic_BotContinuar, 0, Puntero::ManoIndice);
        mesa_->Muestra(Control::Pic_BotContinuar, 0, true);
    }

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void init() {
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))
            .removeRecursively();
        mesa_ = std::make_unique<PlataformaQt>(carpeta_.path());
        mesa_->Ventana().resize(800, 600);
        mesa_->Ventana().show();
        QVERIFY(QTest::qWaitForWindowActive(&mesa_->Ventana()));
        Tapete()->setFocus();
        Toma();
    }
    void cleanup() { mesa_.reset(); }

    void UnClicEsMoverPulsarSoltarYClic() {
        QTest::mouseClick(Tapete(), Qt::LeftButton, {}, {123, 45});
        const auto eventos = Toma();
        QCOMPARE(eventos.size(), 4u);
        const TipoEvento orden[] = {TipoEvento::RatonMueve, TipoEvento::RatonPulsa,
                                    TipoEvento::RatonSuelta, TipoEvento::RatonClic};
        for (std::size_t i = 0; i < 4; ++i) {
            QCOMPARE(static_cast<int>(eventos[i].tipo), static_cast<int>(orden[i]));
            QCOMPARE(eventos[i].x, 123);
            QCOMPARE(eventos[i].y, 45);
            QCOMPARE(eventos[i].control == Control::Mesa, true);
        }
        QCOMPARE(eventos[1].boton, 1);
    }

    void ElBotonDerechoEsElDos() {
        QTest::mouseClick(Tapete(), Qt::RightButton, {}, {9, 8});
        const auto eventos = Toma();
        QCOMPARE(eventos.size(), 4u);
        QCOMPARE(eventos[1].boton, 2);
        QCOMPARE(eventos[3].boton, 2);
    }

    void SoltarFueraNoEsClic() {
        QTest::mousePress(Tapete(), Qt::LeftButton, {}, {5, 5});
        QTest::mouseRelease(Tapete(), Qt::LeftButton, {}, {-30, 5});
        const auto tipos = Tipos();
        QCOMPARE(tipos.size(), 3u);
        QVERIFY(tipos.back() == TipoEvento::RatonSuelta);
    }

    // The press is still in the queue when the box opens; its release goes to nobody.
    void LoQueSeSueltaSobreUnaCajaSeDiceDespues() {
        QWindow* ventana = mesa_->Ventana().windowHandle();
        QTest::mousePress(ventana, Qt::LeftButton, {}, {5, 5});
        QTimer cierra;
        connect(&cierra, &QTimer::timeout, Tapete(), [ventana] {
            if (QWidget* caja = QApplication::activeModalWidget(); caja != nullptr) {
                QTest::mouseRelease(ventana, Qt::LeftButton, {}, {5, 5});
                caja->close();
            }
        });
        cierra.start(10);
        mesa_->Pregunta({.titulo = "Una", .texto = "Hola", .lineas = 1, .modo = 1});
        const auto tipos = Tipos();
        QCOMPARE(std::ranges::count(tipos, TipoEvento::RatonSuelta), 1);
        QVERIFY(tipos.back() == TipoEvento::RatonSuelta);
    }

    void LosMovimientosSeFundenHastaElUltimo() {
        for (int x = 10; x < 60; ++x)
            QTest::mouseMove(Tapete(), {x, 20});
        QTest::mouseClick(Tapete(), Qt::LeftButton, {}, {70, 20});
        const auto eventos = Toma();
        QCOMPARE(eventos.size(), 4u);
        QCOMPARE(eventos[0].x, 70);
    }

    void ElClicEnUnBotonDiceCual() {
        PonContinuar();
        QTest::mouseClick(Boton("Pic_BotContinuar"), Qt::LeftButton);
        const auto eventos = Toma();
        QCOMPARE(eventos.size(), 1u);
        QVERIFY(eventos[0].tipo == TipoEvento::Clic);
        QVERIFY(eventos[0].control == Control::Pic_BotContinuar);
    }

    // A click is told with the moment in which it began.
    void ElClicDiceCuandoSeApreto() {
        PonContinuar();
        QTest::mousePress(Boton("Pic_BotContinuar"), Qt::LeftButton);
        const Milisegundos apretado = mesa_->Reloj();
        QTest::qWait(60);
        QTest::mouseRelease(Boton("Pic_BotContinuar"), Qt::LeftButton);
        const auto eventos = Toma();
        QCOMPARE(eventos.size(), 1u);
        QVERIFY(eventos[0].desde.has_value());
        QVERIFY(*eventos[0].desde <= apretado);
        QVERIFY(*eventos[0].desde >= apretado - 50);
    }

    // So does the click of a key: one that waits is not taken for what the button says by then.
    void LaTeclaDelBotonDiceCuandoSePulso_data() {
        QTest::addColumn<int>("tecla");
        QTest::newRow("Espacio") << int(Qt::Key_Space);
        QTest::newRow("Intro") << int(Qt::Key_Return);
        QTest::newRow("Intro numérico") << int(Qt::Key_Enter);
    }
    void LaTeclaDelBotonDiceCuandoSePulso() {
        QFETCH(int, tecla);
        PonContinuar();
        const Milisegundos antes = mesa_->Reloj();
        QTest::keyClick(Boton("Pic_BotContinuar"), Qt::Key(tecla));
        const Milisegundos despues = mesa_->Reloj();
        QTest::qWait(60);
        const auto eventos = Toma();
        QCOMPARE(eventos.size(), 1u);
        QVERIFY(eventos[0].tipo == TipoEvento::Clic);
        QVERIFY(eventos[0].desde.has_value());
        QVERIFY(*eventos[0].desde >= antes && *eventos[0].desde <= despues);
    }

    void LaPlacaDeLaPartidaDejaPasarElRaton() {
        for (const Control placa : {Control::Pic_Tanteo, Control::Pic_Aviso}) {
            mesa_->Coloca(placa, 0, {300, 300, 66, 27});
            mesa_->Muestra(placa, 0, true);
            QCOMPARE(Tapete()->childAt(310, 310), nullptr);
        }
    }

    void UnaPlacaDejaPasarElRaton() {
        mesa_->Coloca(Control::Pic_Tantos, 2, {100, 100, 66, 27});
        mesa_->Muestra(Control::Pic_Tantos, 2, true);
        QCOMPARE(Tapete()->childAt(110, 110), nullptr);
    }

    void ElMenuDiceElRatonEnSusPixeles() {
        mesa_->Coloca(Control::Pic_SelOpciones, 0, {200, 200, 120, 40});
        mesa_->Muestra(Control::Pic_SelOpciones, 0, true);
        QWidget* menu = Boton("Pic_SelOpciones");
        QTest::mouseMove(menu, {30, 25});
        QTest::mouseClick(menu, Qt::LeftButton, {}, {30, 25});
        const auto eventos = Toma();
        QVERIFY(!eventos.empty());
        for (const Evento& evento : eventos) {
            QVERIFY(evento.control == Control::Pic_SelOpciones);
            QCOMPARE(evento.y, 25);
        }
        QVERIFY(eventos.back().tipo == TipoEvento::RatonSuelta);
    }

    void LasTeclas_data() {
        QTest::addColumn<int>("tecla");
        QTest::addColumn<QString>("letra");
        QTest::addColumn<int>("modificador");
        QTest::addColumn<int>("numero"); // 0: no key of the game
        QTest::newRow("x") << int(Qt::Key_X) << "x" << 0 << 120;
        QTest::newRow("Q") << int(Qt::Key_Q) << "Q" << int(Qt::ShiftModifier) << 81;
        QTest::newRow("ñ") << int(Qt::Key_Ntilde) << "ñ" << 0 << 241;
        QTest::newRow("Esc") << int(Qt::Key_Escape) << "\x1b" << 0 << 27;
        QTest::newRow("Entrar") << int(Qt::Key_Return) << "\r" << 0 << 13;
        QTest::newRow("espacio") << int(Qt::Key_Space) << " " << 0 << 32;
        QTest::newRow("Control+C") << int(Qt::Key_C) << "\x03" << int(Qt::ControlModifier) << 0;
        QTest::newRow("Control+p") << int(Qt::Key_P) << "\x10" << int(Qt::ControlModifier) << 0;
        QTest::newRow("Tab") << int(Qt::Key_Tab) << "\t" << 0 << 0;
        QTest::newRow("Mayúsculas") << int(Qt::Key_Shift) << "" << int(Qt::ShiftModifier) << 0;
        QTest::newRow("F10") << int(Qt::Key_F10) << "" << 0 << 0;
        QTest::newRow("Mayúsculas+F5") << int(Qt::Key_F5) << "" << int(Qt::ShiftModifier) << 0;
        QTest::newRow("Alt+x") << int(Qt::Key_X) << "x" << int(Qt::AltModifier) << 0;
    }
    void LasTeclas() {
        QFETCH(int, tecla);
        QFETCH(QString, letra);
        QFETCH(int, modificador);
        QFETCH(int, numero);
        QKeyEvent pulsada(QEvent::KeyPress, tecla, Qt::KeyboardModifiers(modificador), letra);
        QApplication::sendEvent(Tapete(), &pulsada);
        const auto eventos = Toma();
        QCOMPARE(eventos.size(), numero == 0 ? 0u : 1u);
        if (numero != 0) {
            QVERIFY(eventos[0].tipo == TipoEvento::Tecla);
            QCOMPARE(eventos[0].tecla, numero);
        }
    }

    void LosMandos_data() {
        QTest::addColumn<int>("tecla");
        QTest::addColumn<int>("modificador");
        QTest::addColumn<int>("mando");
        QTest::addColumn<int>("indice");
        const auto fila = [](const char* nombre, Qt::Key tecla, int modificador, Mando mando,
                             int indice = 0) {
            QTest::newRow(nombre) << int(tecla) << modificador << int(mando) << indice;
        };
        fila("izquierda", Qt::Key_Left, 0, Mando::Izquierda);
        fila("derecha", Qt::Key_Right, 0, Mando::Derecha);
        fila("arriba", Qt::Key_Up, 0, Mando::Arriba);
        fila("abajo", Qt::Key_Down, 0, Mando::Abajo);
        fila("del teclado numérico", Qt::Key_Up, Qt::KeypadModifier, Mando::Arriba);
        fila("Mayúsculas+izquierda", Qt::Key_Left, Qt::ShiftModifier, Mando::MayusIzquierda);
        fila("Mayúsculas+derecha", Qt::Key_Right, Qt::ShiftModifier, Mando::MayusDerecha);
        fila("F1", Qt::Key_F1, 0, Mando::Funcion, 1);
        fila("F9", Qt::Key_F9, 0, Mando::Funcion, 9);
    }
    void LosMandos() {
        QFETCH(int, tecla);
        QFETCH(int, modificador);
        QFETCH(int, mando);
        QFETCH(int, indice);
        QKeyEvent pulsada(QEvent::KeyPress, tecla, Qt::KeyboardModifiers(modificador));
        QApplication::sendEvent(Tapete(), &pulsada);
        const auto eventos = Toma();
        QCOMPARE(eventos.size(), 1u);
        QVERIFY(eventos[0].tipo == TipoEvento::Mando);
        QCOMPARE(int(eventos[0].mando), mando);
        QCOMPARE(eventos[0].indice, indice);
    }

    void SoloElPaseoSeRepiteConLaTeclaApretada() {
        const auto repite = [this](Qt::Key tecla) {
            QKeyEvent repetida(QEvent::KeyPress, tecla, Qt::NoModifier, "", true);
            QApplication::sendEvent(Tapete(), &repetida);
            return Toma().size();
        };
        QCOMPARE(repite(Qt::Key_Right), 1u);
        QCOMPARE(repite(Qt::Key_Up), 0u);
        QCOMPARE(repite(Qt::Key_F2), 0u);
    }

    void UnaTeclaApretadaCuentaUnaVez() {
        QKeyEvent primera(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a", false);
        QKeyEvent repetida(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a", true);
        QApplication::sendEvent(Tapete(), &primera);
        QApplication::sendEvent(Tapete(), &repetida);
        QCOMPARE(Toma().size(), 1u);
    }

    void UnBotonConElFocoSePulsaYDejaPasarLasLetras() {
        PonContinuar();
        QWidget* boton = Boton("Pic_BotContinuar");
        QTest::keyClick(Tapete(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), boton);
        QTest::keyClick(boton, Qt::Key_Return);
        auto eventos = Toma();
        QCOMPARE(eventos.size(), 1u);
        QVERIFY(eventos[0].tipo == TipoEvento::Clic);
        QTest::keyClick(boton, Qt::Key_X);
        eventos = Toma();
        QCOMPARE(eventos.size(), 1u);
        QVERIFY(eventos[0].tipo == TipoEvento::Tecla);
    }

    void UnBotonQueSeEscondeDevuelveElFocoALaMesa() {
        PonContinuar();
        mesa_->Coloca(Control::Pic_Boton, kBotonNueva, {20, 5, 50, 50});
        mesa_->Muestra(Control::Pic_Boton, kBotonNueva, true);
        Boton("Pic_BotContinuar")->setFocus();
        mesa_->Muestra(Control::Pic_BotContinuar, 0, false);
        QCOMPARE(QApplication::focusWidget(), Tapete());
        mesa_->Muestra(Control::Pic_Sugerencia, 0, true);
        mesa_->Muestra(Control::Bot_CerrarSuge, 0, true);
        Boton("Bot_CerrarSuge")->setFocus();
        mesa_->Muestra(Control::Pic_Sugerencia, 0, false);
        QCOMPARE(QApplication::focusWidget(), Tapete());
    }

    void UnClicNoSeLlevaElFoco() {
        PonContinuar();
        QTest::mouseClick(Boton("Pic_BotContinuar"), Qt::LeftButton);
        QCOMPARE(QApplication::focusWidget(), Tapete());
    }

    void ElNombreSeVeYSeOye() {
        PonContinuar();
        QWidget* boton = Boton("Pic_BotContinuar");
        QCOMPARE(boton->toolTip(), "Continuar (Espacio, Intro, letras o números)");
        QAccessibleInterface* acceso = QAccessible::queryAccessibleInterface(boton);
        QVERIFY(acceso != nullptr);
        QCOMPARE(acceso->text(QAccessible::Name), "Continuar");
        QVERIFY(acceso->role() == QAccessible::Button);
        QVERIFY(!acceso->state().disabled);
        acceso->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        const auto eventos = Toma();
        QCOMPARE(eventos.size(), 1u);
        QVERIFY(eventos[0].tipo == TipoEvento::Clic);
    }

    void UnBotonProhibidoLoDice() {
        PonContinuar();
        mesa_->PonPuntero(Control::Pic_BotContinuar, 0, Puntero::Prohibido);
        QWidget* boton = Boton("Pic_BotContinuar");
        QCOMPARE(boton->cursor().shape(), Qt::ForbiddenCursor);
        QVERIFY(QAccessible::queryAccessibleInterface(boton)->state().disabled);
        QVERIFY(mesa_->PunteroDe(Control::Pic_BotContinuar, 0) == Puntero::Prohibido);
        mesa_->PonPuntero(Control::Pic_BotContinuar, 0, Puntero::ManoIndice);
        QCOMPARE(boton->cursor().shape(), Qt::BitmapCursor);
        QVERIFY(!QAccessible::queryAccessibleInterface(boton)->state().disabled);
    }

    void LosOchoPunterosTienenSuPunta() {
        const std::pair<Puntero, QPoint> esperados[] = {
            {Puntero::ManoIndice, {13, 2}}, {Puntero::ManoVerde, {15, 3}},
            {Puntero::ManoRoja, {15, 3}},   {Puntero::Ordenar, {15, 2}},
            {Puntero::Cambiar, {15, 16}},   {Puntero::ManoCerrada, {16, 14}},
            {Puntero::Voltear, {19, 19}},   {Puntero::Abrirse, {16, 15}}};
        for (const auto& [puntero, punta] : esperados) {
            mesa_->PonPuntero(Control::Mesa, 0, puntero);
            QCOMPARE(Tapete()->cursor().shape(), Qt::BitmapCursor);
            QCOMPARE(Tapete()->cursor().pixmap().width(), lamina::kLadoPuntero);
            QCOMPARE(Tapete()->cursor().hotSpot(), punta);
        }
        mesa_->PonPuntero(Control::Mesa, 0, Puntero::RelojArena);
        QCOMPARE(Tapete()->cursor().shape(), Qt::WaitCursor);
        mesa_->PonPuntero(Control::Mesa, 0, Puntero::Flecha);
        QCOMPARE(Tapete()->cursor().shape(), Qt::ArrowCursor);
    }

    void SeVeLoQueEstaSobreAlgoVisible() {
        mesa_->Coloca(Control::Pic_Sugerencia, 0, {0, 500, 190, 78});
        mesa_->Coloca(Control::Pic_MasAyuda, 0, {4, 2, 70, 16});
        mesa_->Muestra(Control::Pic_MasAyuda, 0, true);
        QVERIFY(!mesa_->EstaVisible(Control::Pic_MasAyuda, 0));
        mesa_->Muestra(Control::Pic_Sugerencia, 0, true);
        QVERIFY(mesa_->EstaVisible(Control::Pic_MasAyuda, 0));
        QCOMPARE(Boton("Pic_MasAyuda")->mapTo(Tapete(), QPoint(0, 0)), QPoint(4, 502));
    }

    void OtroTamanoEsUnEventoYConservaElCuadro() {
        mesa_->LienzoDe(Control::Mesa, 0).Caja({30, 30, 20, 20}, color::kRojo);
        mesa_->Ventana().resize(1100, 760);
        const auto eventos = Toma();
        QCOMPARE(eventos.size(), 1u);
        QVERIFY(eventos[0].tipo == TipoEvento::Tamano);
        QCOMPARE(eventos[0].x, 1100);
        QCOMPARE(eventos[0].y, 760);
        QCOMPARE(mesa_->AnchoVentana(), 1100);
        const QImage cuadro = Tapete()->grab().toImage();
        QCOMPARE(QColor(cuadro.pixel(40, 40)), QColor(Qt::red));
        const int verde = QColor(cuadro.pixel(1090, 750)).green();
        QVERIFY(verde > 80 && verde < 136); // the felt, in the shade of its foot
    }

    void LaColumnaTapaLoQueQuedaDetras() {
        mesa_->LienzoDe(Control::Mesa, 0).Caja({700, 100, 100, 100}, color::kRojo);
        mesa_->Coloca(Control::Pic_Botonera, 0, {710, 0, 90, 600});
        mesa_->LienzoDe(Control::Pic_Botonera, 0).Fieltro({0, 0, 90, 600});
        mesa_->Repinta();
        const QImage cuadro = Tapete()->grab().toImage();
        QCOMPARE(QColor(cuadro.pixel(705, 150)), QColor(Qt::red));
        QVERIFY(QColor(cuadro.pixel(760, 150)).red() < 8);
    }

    void LaVentanaEnsenaLaMesaEntera() {
        mesa_->Ventana().resize(640, 480);
        QCOMPARE(mesa_->Ventana().size(), QSize(800, 600));
    }

    // A maximized window that is restored would else lie below the screen with its lower edge.
    void LaVentanaRestauradaCabeEnLaPantallaConSuMarco() {
        VentanaPrincipal ventana(new QWidget);
        const QSize pantalla = QApplication::primaryScreen()->availableSize();
        QVERIFY(ventana.height() + 40 <= qMax(pantalla.height(), 600 + 40));
        QVERIFY(ventana.width() <= pantalla.width());
        QVERIFY(ventana.height() >= qMin(pantalla.height(), 600));
    }

    void PorDebajoDe800x600LaMesaSeDesplaza() {
        mesa_->Ventana().setMinimumSize(0, 0); // as on a screen that has no more
        mesa_->Ventana().resize(640, 480);
        Toma();
        QCOMPARE(mesa_->AnchoVentana(), 800);
        QCOMPARE(mesa_->AltoVentana(), 600);
        QVERIFY(mesa_->Ventana().horizontalScrollBar()->maximum() > 0);
        QVERIFY(mesa_->Ventana().verticalScrollBar()->maximum() > 0);
        // A click after scrolling is told in pixels of the table.
        mesa_->Ventana().horizontalScrollBar()->setValue(100);
        QTest::mouseClick(mesa_->Ventana().viewport()->childAt(50, 50), Qt::LeftButton, {},
                          {150, 50});
        const auto eventos = Toma();
        QCOMPARE(eventos.back().x, 150);
    }

    // It would hold up whatever is being dealt or played until it is answered.
    void LasBarrasDeLaVentanaNoAbrenMenu() {
        mesa_->Ventana().resize(500, 400);
        for (QScrollBar* barra :
             {mesa_->Ventana().horizontalScrollBar(), mesa_->Ventana().verticalScrollBar()}) {
            bool abierto = false;
            QTimer::singleShot(0, Tapete(), [&abierto] {
                if (QWidget* menu = QApplication::activePopupWidget(); menu != nullptr) {
                    abierto = true;
                    menu->close();
                }
            });
            const QPoint donde = barra->rect().center();
            QContextMenuEvent pide(QContextMenuEvent::Mouse, donde, barra->mapToGlobal(donde));
            QApplication::sendEvent(barra, &pide);
            QApplication::processEvents();
            QVERIFY(!abierto);
        }
    }

    void CerrarLaVentanaEsUnDeseo() {
        mesa_->Ventana().close();
        mesa_->Ventana().close();
        QVERIFY(mesa_->Ventana().isVisible());
        const auto tipos = Tipos();
        QCOMPARE(tipos.size(), 1u);
        QVERIFY(tipos[0] == TipoEvento::CierraVentana);
    }

    void ElSitioSeRecuerda() {
        mesa_->Ventana().resize(800, 655);
        Toma();
        mesa_.reset();
        mesa_ = std::make_unique<PlataformaQt>(carpeta_.path());
        mesa_->MuestraMesa();
        QCOMPARE(mesa_->Ventana().size(), QSize(800, 655));
        QVERIFY(!mesa_->Ventana().isMaximized());
    }

    void LaVentanaDiceElJuego() {
        mesa_->Nombra(Control::Mesa, 0, "Brisca");
        QCOMPARE(mesa_->Ventana().windowTitle(), "Zovin · Brisca");
        QCOMPARE(Tapete()->accessibleName(), "Mesa de Brisca");
    }

    void LaPrimeraVezLlenaLaPantalla() {
        mesa_->Ventana().hide();
        mesa_.reset();
        mesa_ = std::make_unique<PlataformaQt>(carpeta_.path());
        mesa_->MuestraMesa();
        QVERIFY(mesa_->Ventana().isMaximized());
    }

    void DormirEsExactoYGuardaLasPulsaciones() {
        QTimer::singleShot(5, Tapete(), [this] {
            QTest::mouseClick(Tapete(), Qt::LeftButton, {}, {77, 66});
        });
        // A busy machine may take the processor away for a moment: the best of several sleeps tells how exact
        // the program is, and none may be short.
        for (const Milisegundos pausa : {12, 60, 1}) {
            Milisegundos mejor = 1000;
            for (int vez = 0; vez < 8; ++vez) {
                const Milisegundos fin = mesa_->Reloj() + pausa;
                mesa_->DuermeHasta(fin);
                const Milisegundos tarde = mesa_->Reloj() - fin;
                QVERIFY2(tarde >= 0, qPrintable(QString::number(tarde)));
                mejor = std::min(mejor, tarde);
            }
            QVERIFY2(mejor <= 2, qPrintable(QString::number(mejor)));
        }
        const auto eventos = Toma();
        QCOMPARE(eventos.size(), 4u);
        QCOMPARE(eventos[1].x, 77);
        QCOMPARE(eventos[1].y, 66);
    }

    void UnMomentoPasadoNoEspera() {
        const Milisegundos antes = mesa_->Reloj();
        mesa_->DuermeHasta(antes - 1000);
        QVERIFY(mesa_->Reloj() - antes <= 2);
    }

    void EsperarDuermeHastaQueLlegaAlgo() {
        QTimer::singleShot(120, Tapete(), [this] { QTest::keyClick(Tapete(), Qt::Key_A); });
        const Milisegundos antes = mesa_->Reloj();
        QVERIFY(mesa_->EsperaEvento());
        QVERIFY(mesa_->Reloj() - antes >= 100);
        QCOMPARE(mesa_->SiguienteEvento(Pase::DeEspera)->tecla, int('a'));
    }

    void ElFinCierraLasCajasYLoDice() {
        QTimer::singleShot(50, Tapete(), [this] { mesa_->PideTermina(); });
        QVERIFY(mesa_->Pregunta({.titulo = "Una", .texto = "¿Sí?", .lineas = 1, .modo = 2}) ==
                Boton::No);
        // Nothing is asked any more.
        QVERIFY(mesa_->Pregunta({.titulo = "Otra", .texto = "Hola", .lineas = 1, .modo = 1}) ==
                Boton::Salir);
        const auto tipos = Tipos();
        QVERIFY(std::ranges::find(tipos, TipoEvento::Termina) != tipos.end());
    }

    void UnaCajaSobreUnaFormaEsSuya() {
        QDialog forma(&mesa_->Ventana());
        forma.setModal(true);
        forma.show();
        QVERIFY(QTest::qWaitForWindowExposed(&forma));
        QWidget* duenio = nullptr;
        QTimer::singleShot(50, Tapete(), [&duenio] {
            duenio = QApplication::activeModalWidget()->parentWidget();
            QApplication::activeModalWidget()->close();
        });
        mesa_->Pregunta({.titulo = "Una", .texto = "Hola", .lineas = 1, .modo = 1});
        QCOMPARE(duenio, &forma);
    }

    void UnaFormaSinVistaNoSeOfrece() {
        QVERIFY(!mesa_->TieneForma(Forma::Personal));
        static bool abierta = false;
        mesa_->PonForma(Forma::Personal, [](QWidget*) { abierta = true; });
        QVERIFY(mesa_->TieneForma(Forma::Personal));
        mesa_->Abre(Forma::Personal);
        QVERIFY(abierta);
    }

    void DeUnaBarajaPropiaMalaSeAvisaUnaVezYVaLaDelPrograma() {
        QTemporaryDir propia;
        const QString mala = propia.filePath("Baraja02.bmp");
        QVERIFY(BarajaDeColores(12).save(carpeta_.filePath("Baraja02.bmp")));
        QVERIFY(BarajaDeColores(13).save(mala)); // of another size
        QStringList dicho;
        QTimer mira;
        connect(&mira, &QTimer::timeout, Tapete(), [&dicho] {
            if (QWidget* caja = QApplication::activeModalWidget(); caja != nullptr) {
                dicho << caja->accessibleDescription();
                caja->close();
            }
        });
        mira.start(10);
        for (int vez = 0; vez < 2; ++vez)
            mesa_->CargaBaraja(mala.toStdString(), 12);
        QCOMPARE(dicho.size(), 1);
        QVERIFY(dicho[0].contains(mala));
        QVERIFY(dicho[0].contains("Se juega con la imagen que viene con el programa."));
        mesa_->LienzoDe(Control::Mesa, 0).Carta(40, 40, {2, 5, 2, 1});
        QCOMPARE(QColor(Tapete()->grab().toImage().pixel(90, 110)), ColorDeCarta(2, 5));
        // A good one of one's own is used, and so is the program's where there is none.
        QImage otra = BarajaDeColores(12);
        otra.fill(Qt::blue);
        QVERIFY(otra.save(mala));
        mesa_->CargaBaraja(mala.toStdString(), 12);
        mesa_->LienzoDe(Control::Mesa, 0).Carta(40, 40, {2, 5, 2, 1});
        QCOMPARE(QColor(Tapete()->grab().toImage().pixel(90, 110)), QColor(Qt::blue));
        QVERIFY(QFile::remove(mala));
        mesa_->CargaBaraja(mala.toStdString(), 12);
        QCOMPARE(dicho.size(), 1);
        // Without any of them there is no game.
        QVERIFY(QFile::remove(carpeta_.filePath("Baraja02.bmp")));
        QVERIFY_EXCEPTION_THROWN(mesa_->CargaBaraja(mala.toStdString(), 12), FalloGrave);
    }

    void SinComplementoDeSonidoHaySilencio() {
        const Milisegundos antes = mesa_->Reloj();
        mesa_->Suena(25, true);
        mesa_->Suena(9999, true);
        QVERIFY(mesa_->Reloj() - antes < 1000);
    }
};

QTEST_MAIN(PruebaVentana)
#include "window_test.moc"
