// The score report and the history as dialogs: opened over a match, turned by mouse, wheel and keys, printed, copied.

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <QWindow>

#include "platform/qt/platform_qt.h"
#include "reports/historic.h"
#include "reports/historic_view.h"
#include "reports/marcador.h"
#include "reports/marcador_view.h"
#include "reports/sheet_view.h"
#include "storage/history.h"
#include "tests/gui/open_form.h"

using namespace prueba;

namespace {

// So many finished games of Tute, the match over.
void PonJuegos(Integer juegos) {
    estado.JuegosJugados = juegos;
    for (int n = 1; n <= juegos; ++n) {
        estado.Juegos(n).Inicio = "Ana";
        estado.Juegos(n).Texto1(1) = "70";
        estado.Juegos(n).Marcas(1, 1) = 1;
    }
    estado.JuegosGanados(1) = juegos;
}

void PonHistorico(int partidas) {
    std::string& fichero =
        static_cast<PlataformaSinPantalla&>(plataforma())
            .EnMemoria()
            .contenidos[estado.CarpetaTrabajo + "/" + NombreHistorico(estado.JuegoActivo)];
    for (int n = 0; n < partidas; ++n)
        fichero += EscribeBloque({.fin = {2026, 1 + n / 28, 1 + n % 28, 20, 0, 0},
                                  .ganadores = {{"J" + std::to_string(n), 3}},
                                  .perdedores = {{"Luis", 1}}});
}

void Rueda(QWidget& sobre, int grados) {
    const QPointF medio = sobre.rect().center();
    QWheelEvent evento(medio, sobre.mapToGlobal(medio), {}, {0, grados}, Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&sobre, &evento);
}

// What the window shows while the mouse is over a control.
Qt::CursorShape PunteroSobre(Abierta& forma, const QString& nombre) {
    QWidget& control = forma.En(nombre);
    QWindow* ventana = forma.dialogo.windowHandle();
    QTest::mouseMove(ventana, {1, 1});
    QTest::mouseMove(ventana, control.mapTo(&forma.dialogo, control.rect().center()));
    QCoreApplication::processEvents();
    return ventana->cursor().shape();
}

// Some of the letters on the paper are red: the picture holds the page.
bool TieneTinta(const QImage& foto, Tinta tinta) {
    const Color color = ColorDe(tinta);
    const QRgb buscado = qRgb(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
    for (int y = 0; y < foto.height(); ++y) {
        for (int x = 0; x < foto.width(); ++x) {
            const QRgb p = foto.pixel(x, y);
            if (std::abs(qRed(p) - qRed(buscado)) + std::abs(qGreen(p) - qGreen(buscado)) +
                    std::abs(qBlue(p) - qBlue(buscado)) <
                90)
                return true;
        }
    }
    return false;
}

} // namespace

class PruebaInformes : public QObject, protected MesaDeFormas {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        Empieza(kTute);
        estado.CarpetaTrabajo = ".";
        estado.VelocidadJuego = 100; // the paper does not rise but is there
    }

    // ---- Marcador

    void TheSheetShowsTheLastPageAndTheButtonsTurnIt() {
        PonJuegos(25);
        QVERIFY(Con(AbreVistaMarcador, [](Abierta& forma) {
            QCOMPARE(informe.PrimeraLinea, Integer{21});
            for (const auto& [boton, primera] :
                 std::vector<std::pair<int, int>>{{1, 1}, {3, 11}, {4, 21}, {2, 11}}) {
                QTest::mouseClick(&forma.En(QStringLiteral("Pic_BotAdeAtr_%1").arg(boton)),
                                  Qt::LeftButton);
                QCOMPARE(int{informe.PrimeraLinea}, primera);
            }
            QVERIFY(forma.En("Pic_Papel").accessibleDescription().contains("Página: 2 de 3"));
            QVERIFY(TieneTinta(forma.En("Pic_Papel").grab().toImage(), Tinta::Rojo));
            QVERIFY(!TieneTinta(forma.En("Pic_Papel").grab().toImage(), Tinta::Verde));
        }));
        QVERIFY(!marcador::Abierta());
    }

    void TheKeysTurnItWhereverTheFocusIs() {
        PonJuegos(25);
        QVERIFY(Con(AbreVistaMarcador, [](Abierta& forma) {
            for (const char* nombre : {"Pic_BotCopiar", "Pic_BotAdeAtr_1"}) {
                QWidget& control = forma.En(nombre);
                control.setFocus();
                QTest::keyClick(&control, Qt::Key_Home);
                QCOMPARE(informe.PrimeraLinea, Integer{1});
                QTest::keyClick(&control, Qt::Key_Right);
                QCOMPARE(informe.PrimeraLinea, Integer{11});
                QTest::keyClick(&control, Qt::Key_PageDown);
                QCOMPARE(informe.PrimeraLinea, Integer{21});
                QTest::keyClick(&control, Qt::Key_Up);
                QCOMPARE(informe.PrimeraLinea, Integer{11});
                QTest::keyClick(&control, Qt::Key_End);
                QCOMPARE(informe.PrimeraLinea, Integer{21});
            }
        }));
    }

    void ThePageButtonsStandWhereTheLogicLooksForThemAndSayWhatTheyDo() {
        PonJuegos(1);
        QVERIFY(Con(AbreVistaMarcador, [](Abierta& forma) {
            for (int boton = 1; boton <= 4; ++boton) {
                QWidget& control = forma.En(QStringLiteral("Pic_BotAdeAtr_%1").arg(boton));
                for (const QPoint& punto :
                     {control.geometry().topLeft(), control.geometry().bottomRight()}) {
                    CualBoton(punto.x(), punto.y());
                    QCOMPARE(int{informe.BotonActivo}, boton);
                }
                QCOMPARE(control.toolTip(), QString::fromUtf8(marcador::Sugerencia(boton)));
            }
        }));
    }

    void ThePaperRisesFromTheSlot() {
        PonJuegos(3);
        estado.VelocidadJuego = 50;
        QVERIFY(Con(AbreVistaMarcador, [](Abierta& forma) {
            QWidget& papel = forma.En("Pic_Papel");
            const int al_abrir = papel.y();
            QVERIFY(al_abrir > 10);
            QTRY_VERIFY_WITH_TIMEOUT(papel.y() < 10, 3000);
        }));
    }

    void TheTextOfAllPagesCanBeCopied() {
        PonJuegos(12);
        QVERIFY(Con(AbreVistaMarcador, [](Abierta& forma) {
            QTest::mouseClick(&forma.En("Pic_BotCopiar"), Qt::LeftButton);
        }));
        const QString texto = QGuiApplication::clipboard()->text();
        QVERIFY(texto.contains("Página: 1 de 2") && texto.contains("Página: 2 de 2"));
        QVERIFY(texto.contains("Manos ganadas"));
    }

    void ItIsSavedAsPdfWithEveryPage() {
        PonJuegos(25);
        const QTemporaryDir carpeta;
        const QString fichero = carpeta.filePath("informe.pdf");
        std::vector<PaginaImpresa> paginas;
        for (int n = 1; n <= marcador::NumeroDePaginas(); ++n)
            paginas.push_back(marcador::Pagina(n));
        QVERIFY(GuardaPdf(fichero, "Informe", paginas));
        QFile pdf(fichero);
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        const QByteArray bytes = pdf.readAll();
        QVERIFY(bytes.startsWith("%PDF"));
        QVERIFY(bytes.contains("/Count 3"));
        QVERIFY(!GuardaPdf(carpeta.filePath("no/hay/informe.pdf"), "Informe", paginas));
    }

    void TheHistoryLiesOverItAndReturnsToIt() {
        PonJuegos(25);
        PonHistorico(3);
        PlataformaQt escritorio(QStringLiteral("."));
        UsaPlataforma(escritorio);
        escritorio.PonForma(Forma::Historic, AbreVistaHistoric);
        bool encima = false;
        QVERIFY(Con(AbreVistaMarcador, [&](Abierta& forma) {
            QTimer::singleShot(0, [&] {
                QWidget* arriba = QApplication::activeModalWidget();
                encima = arriba != &forma.dialogo && historic::Abierta();
                QTest::mouseClick(arriba->findChild<QWidget*>("Pic_BotSalir"), Qt::LeftButton);
            });
            QTest::mouseClick(&forma.En("Pic_BotHistorico"), Qt::LeftButton);
            QVERIFY(marcador::Abierta() && !historic::Abierta());
            // Its page is still shown anew when it is turned.
            QTest::mouseClick(&forma.En("Pic_BotAdeAtr_1"), Qt::LeftButton);
            QVERIFY(forma.En("Pic_Papel").accessibleDescription().contains("Página: 1 de 3"));
        }));
        QVERIFY(encima);
        UsaPlataforma(mesa_);
    }

    void BothFitOnAScreenOf800By600() {
        for (const Integer juego : {kPoker, kBlackJack, kTute}) {
            Empieza(juego);
            estado.CarpetaTrabajo = ".";
            for (const Abre abre : {AbreVistaMarcador, AbreVistaHistoric}) {
                QVERIFY(Con(abre, [](Abierta& forma) {
                    QVERIFY(forma.dialogo.width() <= 800);
                    QVERIFY(forma.dialogo.height() <= 600);
                    for (const auto* boton : forma.dialogo.findChildren<QAbstractButton*>())
                        QVERIFY(forma.dialogo.rect().contains(
                            QRect(boton->mapTo(&forma.dialogo, QPoint(0, 0)), boton->size())));
                }));
            }
        }
    }

    // ---- Historic

    void TheHalvesOfTheFolderTurnItsPages() {
        PonHistorico(25);
        QVERIFY(Con(AbreVistaHistoric, [](Abierta& forma) {
            QWidget& carpeta = forma.En("Pic_Carpeta");
            const QPoint medio = carpeta.rect().center();
            QTest::mouseClick(&carpeta, Qt::LeftButton, {}, medio + QPoint(100, 0));
            QCOMPARE(historic::PaginaEnVista(), 2);
            QCOMPARE(carpeta.accessibleName(), QString("Página 2 de 3"));
            QTest::mouseClick(&carpeta, Qt::LeftButton, {}, medio - QPoint(100, 0));
            QCOMPARE(historic::PaginaEnVista(), 1);
        }));
        QVERIFY(!historic::Abierta());
    }

    void TheWheelTurnsOnePageAClick() {
        PonHistorico(45);
        QVERIFY(Con(AbreVistaHistoric, [](Abierta& forma) {
            QWidget& carpeta = forma.En("Pic_Carpeta");
            Rueda(carpeta, -120);
            QCOMPARE(historic::PaginaEnVista(), 2);
            Rueda(carpeta, -60);
            QCOMPARE(historic::PaginaEnVista(), 2);
            Rueda(carpeta, -60);
            QCOMPARE(historic::PaginaEnVista(), 3);
            Rueda(carpeta, 240);
            QCOMPARE(historic::PaginaEnVista(), 1);
        }));
    }

    void TheArrowKeysTurnPagesToo() {
        PonHistorico(45);
        QVERIFY(Con(AbreVistaHistoric, [](Abierta& forma) {
            QTest::keyClick(&forma.dialogo, Qt::Key_Right);
            QTest::keyClick(&forma.dialogo, Qt::Key_Down);
            QCOMPARE(historic::PaginaEnVista(), 3);
            QTest::keyClick(&forma.dialogo, Qt::Key_Left);
            QCOMPARE(historic::PaginaEnVista(), 2);
            QTest::keyClick(&forma.dialogo, Qt::Key_End);
            QCOMPARE(historic::PaginaEnVista(), 5);
            QTest::keyClick(&forma.dialogo, Qt::Key_Home);
            QCOMPARE(historic::PaginaEnVista(), 1);
        }));
    }

    void TheTotalsHaveTheirTabs() {
        PonHistorico(3);
        QVERIFY(Con(AbreVistaHistoric, [](Abierta& forma) {
            QVERIFY(!forma.En("Pic_Pestana_1").isVisible());
            QTest::mouseClick(&forma.En("Pic_BotHisTt"), Qt::LeftButton);
            QCOMPARE(historic::Pestana(), 1);
            QVERIFY(forma.En("Pic_Pestana_1").isVisible());
            QVERIFY(TieneTinta(forma.En("Pic_Hoja").grab().toImage(), Tinta::Verde));
            QTest::mouseClick(&forma.En("Pic_Pestana_2"), Qt::LeftButton);
            QCOMPARE(historic::Pestana(), 2);
            QVERIFY(forma.En<QAbstractButton>("Pic_Pestana_2").isChecked());
            QTest::mouseClick(&forma.En("Pic_BotHisTt"), Qt::LeftButton);
            QCOMPARE(historic::Pestana(), 0);
        }));
    }

    void AnEmptyHistoryHasNoTotals() {
        QVERIFY(Con(AbreVistaHistoric, [](Abierta& forma) {
            QVERIFY(!forma.En("Pic_BotHisTt").isEnabled());
            QCOMPARE(PunteroSobre(forma, "Pic_BotHisTt"), Qt::ForbiddenCursor);
            QVERIFY(PunteroSobre(forma, "Pic_BotSalir") != Qt::ForbiddenCursor);
        }));
        PonHistorico(1);
        QVERIFY(Con(AbreVistaHistoric, [](Abierta& forma) {
            QVERIFY(PunteroSobre(forma, "Pic_BotHisTt") != Qt::ForbiddenCursor);
        }));
    }

    // ---- over a match that was played

    void EachGameShowsTheMatchThatWasPlayed() {
        for (const Integer juego : {kPoker, kBlackJack, kTute, kBrisca, kSieteYMedia, kCinquillo}) {
            Empieza(juego);
            JuegaUnaPartida();
            const Integer manos = estado.JuegosJugados;
            QVERIFY(manos > 0 && !estado.PartidaEnCurso);
            QVERIFY(Con(AbreVistaMarcador, [&](Abierta& forma) {
                QCOMPARE(informe.UltimaLinea, manos);
                QVERIFY(TieneTinta(forma.En("Pic_Papel").grab().toImage(), Tinta::Azul));
            }));
            // It has entered the history and stands there first.
            QVERIFY(Con(AbreVistaHistoric, [&](Abierta& forma) {
                QVERIFY(forma.En("Pic_Hoja").accessibleDescription().contains("01-01-2000"));
            }));
        }
    }
};

QTEST_MAIN(PruebaInformes)
#include "reports_test.moc"
