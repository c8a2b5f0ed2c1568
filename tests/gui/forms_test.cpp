// What the two forms have in common as dialogs: reached by keyboard, spoken by name, waiting with the desktop.

#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QTemporaryDir>
#include <set>

#include "forms/controls_view.h"
#include "forms/normas.h"
#include "forms/normas_view.h"
#include "forms/personal.h"
#include "forms/personal_view.h"
#include "forms/selector.h"
#include "platform/qt/platform_qt.h"
#include "tests/gui/open_form.h"

using namespace prueba;

namespace {

// Whether the line of the focus is seen along the four sides of a control that lies at (x, y) of its window.
bool FocoEntero(double escala, int x, int y) {
    const QRect control(x, y, 100, 22);
    QPalette tinta;
    tinta.setColor(QPalette::WindowText, Qt::black);
    QImage ventana(QSize(140, 60) * escala, QImage::Format_RGB32);
    ventana.setDevicePixelRatio(escala);
    ventana.fill(Qt::white);
    {
        QPainter p(&ventana);
        p.setClipRect(control);
        p.translate(control.topLeft());
        forma::PintaFoco(p, QRect(QPoint(0, 0), control.size()), tinta);
    }
    const auto pintados = [&](QRect lado) {
        int cuantos = 0;
        for (int j = lado.top(); j <= lado.bottom(); ++j) {
            for (int i = lado.left(); i <= lado.right(); ++i)
                cuantos += qGray(ventana.pixel(i, j)) < 128 ? 1 : 0;
        }
        return cuantos;
    };
    const QRect todo =
        QRectF(QPointF(x, y) * escala, QSizeF(control.size()) * escala).toAlignedRect();
    const QRect ancho(todo.left() + 4, 0, todo.width() - 8, 3);
    const QRect alto(0, todo.top() + 4, 3, todo.height() - 8);
    return pintados(ancho.translated(0, todo.top())) > 10 &&
           pintados(ancho.translated(0, todo.bottom() - 2)) > 10 &&
           pintados(alto.translated(todo.left(), 0)) > 2 &&
           pintados(alto.translated(todo.right() - 2, 0)) > 2;
}

bool EstaDentro(const QWidget& control, const QWidget& ventana) {
    const QRect sitio(control.mapTo(&ventana, QPoint(0, 0)), control.size());
    return ventana.rect().contains(sitio);
}

} // namespace

class PruebaFormas : public QObject, protected MesaDeFormas {
    Q_OBJECT

    // Personal over a real desktop, of which it asks something; what is done while the question stands. Then the
    // desktop ends.
    static void ConUnaPregunta(const std::function<void(Abierta& forma, QWidget& caja)>& hace) {
        QTemporaryDir carpeta;
        PlataformaQt escritorio(carpeta.path());
        UsaPlataforma(escritorio);
        escritorio.PonForma(Forma::Personal, AbreVistaPersonal);
        estado.SonidoActivo = false;
        QTimer::singleShot(0, &escritorio, [&] {
            Abierta forma(*qobject_cast<QDialog*>(QApplication::activeModalWidget()));
            QTimer::singleShot(100, &escritorio, [&] {
                hace(forma, *QApplication::activeModalWidget());
                escritorio.PideTermina();
            });
            forma.Pulsa(kSelEstado + 1);
            forma.Pulsa(kSelCartas + 4);
        });
        escritorio.Abre(Forma::Personal);
    }

private Q_SLOTS:
    void init() { Empieza(kTute); }

    void TheFocusHasItsFourSidesAtEveryScale() {
        for (const double escala : {1.0, 1.25, 1.5, 1.75, 2.0}) {
            for (int x = 4; x < 12; ++x)
                QVERIFY2(FocoEntero(escala, x, 20 - x), qPrintable(QString::number(escala)));
        }
    }

    // ---- what is there, and where

    void EveryControlLiesInsideAnd800By600HoldsTheForms() {
        for (const Integer juego : {kPoker, kBlackJack, kTute, kCinquillo}) {
            Empieza(juego);
            for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
                QVERIFY(Con(abre, [](Abierta& forma) {
                    QVERIFY(forma.dialogo.width() <= 800);
                    QVERIFY(forma.dialogo.height() <= 600);
                    for (QWidget* control : forma.dialogo.findChildren<QWidget*>())
                        QVERIFY2(EstaDentro(*control, forma.dialogo),
                                 qPrintable(control->objectName()));
                }));
            }
        }
    }

    void NoControlLiesOnAnother() {
        Empieza(kPoker);
        for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
            QVERIFY(Con(abre, [](Abierta& forma) {
                std::vector<QWidget*> controles;
                for (QWidget* control : forma.dialogo.findChildren<QWidget*>()) {
                    if (control->focusPolicy() != Qt::NoFocus)
                        controles.push_back(control);
                }
                QVERIFY(controles.size() > 8);
                for (const QWidget* uno : controles) {
                    for (const QWidget* otro : controles) {
                        const QRect sitio(uno->mapTo(&forma.dialogo, QPoint(0, 0)), uno->size());
                        const QRect suyo(otro->mapTo(&forma.dialogo, QPoint(0, 0)), otro->size());
                        QVERIFY2(uno == otro || !sitio.intersects(suyo),
                                 qPrintable(uno->objectName() + " " + otro->objectName()));
                    }
                }
            }));
        }
    }

    void EveryValueOfASelectorFitsItsField() {
        Empieza(kPoker);
        for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
            QVERIFY(Con(abre, [](Abierta& forma) {
                for (auto* vista : forma.dialogo.findChildren<SelectorVista*>()) {
                    const int control = vista->objectName().section('_', -1).toInt();
                    for (int fila = 1; fila <= ValoresDe(control); ++fila) {
                        const QString valor =
                            QString::fromStdString(TextoValor(fila, control)).trimmed();
                        const int ancho = vista->fontMetrics().horizontalAdvance(valor);
                        QVERIFY2(ancho <= vista->Campo().width() - 8, qPrintable(valor));
                    }
                }
            }));
        }
    }

    void EveryControlHasANameForWhoDoesNotSeeIt() {
        Empieza(kPoker);
        for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
            QVERIFY(Con(abre, [](Abierta& forma) {
                std::set<QString> nombres;
                int controles = 0;
                for (QWidget* control : forma.dialogo.findChildren<QWidget*>()) {
                    if (control->focusPolicy() == Qt::NoFocus)
                        continue;
                    const auto* boton = qobject_cast<QAbstractButton*>(control);
                    const QString nombre = control->accessibleName().isEmpty() && boton != nullptr
                                               ? boton->text()
                                               : control->accessibleName();
                    QVERIFY2(!nombre.isEmpty(), qPrintable(control->objectName()));
                    nombres.insert(nombre);
                    ++controles;
                }
                QCOMPARE(static_cast<int>(nombres.size()), controles);
            }));
        }
    }

    void TheSpokenNameCarriesTheValue() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            QCOMPARE(forma.Selector(kSelEstado + 1).accessibleName(),
                     QString("Estado del jugador (izquierda): Activado"));
            forma.Pulsa(kSelEstado + 1);
            QCOMPARE(forma.Selector(kSelEstado + 1).accessibleName(),
                     QString("Estado del jugador (izquierda): Desactivado"));
            QCOMPARE(forma.En("Pic_Potenciometro_14").accessibleName(),
                     QString("Nivel de Juego (abajo): 10.0"));
        }));
    }

    // ---- the keyboard

    void TabReachesEveryControl() {
        Empieza(kPoker);
        for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
            QVERIFY(Con(abre, [](Abierta& forma) {
                std::set<QWidget*> faltan;
                for (QWidget* control : forma.dialogo.findChildren<QWidget*>()) {
                    if ((control->focusPolicy() & Qt::TabFocus) != 0 && control->isEnabled() &&
                        control->isVisible())
                        faltan.insert(control);
                }
                QVERIFY(faltan.size() > 8);
                for (std::size_t vez = faltan.size() + 1; vez > 0; --vez) {
                    faltan.erase(QApplication::focusWidget());
                    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                }
                QVERIFY(faltan.empty());
            }));
        }
    }

    void TabGoesThroughTheTableRoundTheSeatsAndOut() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta&) {
            QStringList debido{"Pic_Potenciometro_1", "Pic_Buleano_1", "Pic_Buleano_2"};
            for (int asiento = 1; asiento <= 4; ++asiento) {
                debido << QStringLiteral("Txt_Nombre_%1").arg(asiento);
                for (int clase : {kSelEstado, kSelControl, kSelCartas, kSelCaracter})
                    debido << QStringLiteral("Pic_Selector_%1").arg(clase + asiento);
                debido << QStringLiteral("Pic_Potenciometro_%1").arg(personal::kNivel + asiento);
            }
            debido << "Pic_Selector_8"
                   << "Pic_Selector_9"
                   << "Pic_BotAyuda"
                   << "Pic_BotSalir";
            QStringList orden;
            for (qsizetype vez = 0; vez < debido.size(); ++vez) {
                orden << QApplication::focusWidget()->objectName();
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(orden, debido);
        }));
    }

    void SpaceAndEnterPressASelector() {
        QVERIFY(Con(AbreVistaPersonal, [this](Abierta& forma) {
            QTest::keyClick(&forma.Selector(kSelCaracter + 1), Qt::Key_Space);
            QCOMPARE(estado.CaracterJugador(1), kAgresivo);
            QTest::keyClick(&forma.Selector(kSelCaracter + 1), Qt::Key_Return);
            QCOMPARE(estado.CaracterJugador(1), kConservador);
            QCOMPARE(Sonidos(), (std::vector<int>{6, 6}));
        }));
    }

    void ArrowsMoveASlider() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            QWidget& nivel = forma.En("Pic_Potenciometro_11");
            QTest::keyClick(&nivel, Qt::Key_Right);
            QCOMPARE(estado.NivelJugador(1), Integer{51});
            QTest::keyClick(&nivel, Qt::Key_PageUp);
            QCOMPARE(estado.NivelJugador(1), Integer{61});
            QTest::keyClick(&nivel, Qt::Key_Home);
            QCOMPARE(estado.NivelJugador(1), Integer{0});
        }));
    }

    void SpaceInvertsACheckBox() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            auto& pausa = forma.En<QAbstractButton>("Pic_Buleano_2");
            QVERIFY(pausa.isChecked());
            QTest::keyClick(&pausa, Qt::Key_Space);
            QVERIFY(!estado.PausaEntreJugadas);
            QVERIFY(!pausa.isChecked());
        }));
    }

    void AClickOnTheWordsOfACheckBoxInvertsItToo() {
        QVERIFY(Con(AbreVistaPersonal, [](Abierta& forma) {
            auto& pausa = forma.En<QAbstractButton>("Pic_Buleano_2");
            const QPoint palabras(pausa.width() - 3, pausa.height() / 2);
            QTest::mouseClick(&pausa, Qt::LeftButton, {}, palabras);
            QVERIFY(!estado.PausaEntreJugadas);
            QTest::mouseClick(&pausa, Qt::LeftButton, {}, palabras);
            QVERIFY(estado.PausaEntreJugadas);
        }));
    }

    void EscIsTheExitButton() {
        for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
            mesa_.sonidos.clear();
            QVERIFY(Con(abre, [](Abierta& forma) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
                QVERIFY(!forma.dialogo.isVisible());
            }));
            QCOMPARE(Sonidos(), std::vector<int>{9});
        }
    }

    void TheHelpButtonsOpenTheirTopics() {
        for (const Abre abre : {AbreVistaPersonal, AbreVistaNormas}) {
            QVERIFY(Con(abre, [](Abierta& forma) {
                QTest::mouseClick(&forma.En("Pic_BotAyuda"), Qt::LeftButton);
            }));
        }
        QCOMPARE(mesa_.temas_ayuda, (std::vector<int>{2210, 2200}));
    }

    // ---- on the desktop

    void InputWaitsWhileTheLogicPausesAndAsks() {
        QTemporaryDir carpeta;
        PlataformaQt escritorio(carpeta.path());
        UsaPlataforma(escritorio);
        estado.CarpetaPrograma = estado.CarpetaTrabajo = escritorio.CarpetaDelPrograma();
        estado.SonidoActivo = false;
        bool en_la_pausa = false;
        QVERIFY(Con(AbreVistaNormas, [&](Abierta& forma) {
            // In the pause before the question: the press is kept for later.
            QTimer::singleShot(200, &forma.dialogo, [&] {
                forma.Pulsa(kSelReparto);
                en_la_pausa = estado.SistemaReparto == kRepartoAutomatico;
            });
            QTimer::singleShot(1200, &escritorio, [] {
                QWidget* caja = QApplication::activeModalWidget();
                QTest::mouseClick(caja->findChild<QWidget*>("Pic_No"), Qt::LeftButton);
            });
            QTest::mouseClick(&forma.En("Pic_Buleano_70"), Qt::LeftButton, {}, QPoint(8, 8));
            QTRY_COMPARE(estado.SistemaReparto, kRepartoManual);
            QVERIFY(forma.En<QAbstractButton>("Pic_Buleano_51").isChecked());
        }));
        QVERIFY(en_la_pausa);
    }

    void AQuestionKeepsTheKeyboardWhenTheFormBehindItIsClicked() {
        bool la_tiene = false;
        ConUnaPregunta([&](Abierta& forma, QWidget& caja) {
            QVERIFY(&caja != &forma.dialogo);
            QTRY_COMPARE(QApplication::activeWindow(), &caja);
            forma.dialogo.activateWindow();
            la_tiene = QTest::qWaitFor([&] { return QApplication::activeWindow() == &caja; });
        });
        QVERIFY(la_tiene);
    }

    void TheEndOfTheDesktopTakesAFormAndItsQuestionAway() {
        bool preguntaba = false;
        ConUnaPregunta(
            [&](Abierta&, QWidget& caja) { preguntaba = caja.objectName() == "mensajes"; });
        QVERIFY(preguntaba);
        QVERIFY(!personal::Abierta());
        QCOMPARE(estado.EstadoJugador(1), kActivado);
        QCOMPARE(estado.CartasJugador(4), kVisibles);
        QCOMPARE(estado.ControlJugador(4), kManual);
    }
};

QTEST_MAIN(PruebaFormas)
#include "forms_test.moc"
