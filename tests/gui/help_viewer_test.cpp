// The help: topics by number, the search, and what is said when pages are missing.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include "forms/form.h"
#include "platform/qt/help_pictures.h"
#include "platform/qt/help_viewer.h"
#include "platform/qt/window_place.h"
#include "reports/estadis.h"
#include "reports/historic.h"
#include "reports/marcador.h"
#include "table/game_row.h"
#include "table/tips.h"

namespace {

QString PaginasDelProyecto() {
    return qEnvironmentVariable("ZOVIN_SOURCE") + "/assets/help";
}

QStringList BarajasDelProyecto() {
    return {qEnvironmentVariable("ZOVIN_BIN")};
}

QString Lee(const QString& fichero) {
    QFile pagina(fichero);
    return pagina.open(QIODevice::ReadOnly) ? QString::fromUtf8(pagina.readAll()) : QString();
}

QStringList Marcadas(VistaAyuda& ayuda) {
    QStringList marcadas;
    for (const auto& marca : ayuda.findChild<QTextBrowser*>()->extraSelections())
        marcadas << marca.cursor.selectedText();
    return marcadas;
}

QStringList Visibles(VistaAyuda& ayuda) {
    QStringList titulos;
    for (QTreeWidgetItemIterator rama(ayuda.findChild<QTreeWidget*>()); *rama != nullptr; ++rama) {
        if (!(*rama)->isHidden())
            titulos << (*rama)->text(0);
    }
    return titulos;
}

// The page, in a window of the size in which it first comes.
const QTextBrowser* HojaALoAncho(VistaAyuda& ayuda) {
    ayuda.MuestraTema(0);
    QCoreApplication::processEvents(); // it has come to its place; what is asked of it now stays
    ayuda.resize(980, 680);
    QCoreApplication::processEvents();
    return ayuda.findChild<QTextBrowser*>();
}

} // namespace

class PruebaAyuda : public QObject {
    Q_OBJECT

    QTemporaryDir carpeta_;
    void Escribe(const char* nombre, const char* texto) {
        QFile fichero(carpeta_.filePath(nombre));
        QVERIFY(fichero.open(QIODevice::WriteOnly));
        fichero.write(texto);
    }

private Q_SLOTS:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        Escribe("contents.txt", "1000 | Descripción general | 0\n"
                                "2100 | La mesa | 0\n"
                                "2195 | El botón verde | 2100\n"
                                "esto no es una página\n"
                                "3000 | De nadie | 999\n");
        Escribe("index.html", "<h1>Contenido</h1><a href='1000.html'>general</a>");
        Escribe("1000.html", "<h1>General</h1><p>Seis juegos.</p>");
        Escribe("2100.html", "<h1>Mesa</h1><p>Verde como el Póker.</p>");
        Escribe("2195.html", "<h1>Verde</h1><p>Se pulsa para continuar.</p>");
        Escribe("3000.html", "<h1>Nadie</h1>");
    }

    void init() {
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))
            .removeRecursively();
    }

    void ElContenidoSeLeeLineaALinea() {
        const auto paginas = LeeContenido(carpeta_.path());
        QCOMPARE(paginas.size(), 4);
        QCOMPARE(paginas[2].tema, 2195);
        QCOMPARE(paginas[2].titulo, "El botón verde");
        QCOMPARE(paginas[2].padre, 2100);
    }

    void UnTemaAbreSuPaginaYSuRama() {
        VistaAyuda ayuda(carpeta_.path());
        ayuda.MuestraTema(2195);
        QVERIFY(ayuda.isVisible());
        QVERIFY(ayuda.findChild<QTextBrowser*>()->toPlainText().contains("continuar"));
        QCOMPARE(ayuda.findChild<QTreeWidget*>()->currentItem()->text(0), "El botón verde");
    }

    void SinTemaOSinPaginaSeVeElContenido() {
        VistaAyuda ayuda(carpeta_.path());
        for (const int tema : {0, 4444}) {
            ayuda.MuestraTema(tema);
            QVERIFY(ayuda.findChild<QTextBrowser*>()->toPlainText().contains("Contenido"));
        }
    }

    void UnaRamaElegidaAbreSuPagina() {
        VistaAyuda ayuda(carpeta_.path());
        ayuda.MuestraTema(0);
        auto* arbol = ayuda.findChild<QTreeWidget*>();
        arbol->setCurrentItem(arbol->topLevelItem(0));
        QVERIFY(ayuda.findChild<QTextBrowser*>()->toPlainText().contains("Seis juegos"));
    }

    void UnClicEnUnaRamaAbreSuPagina() {
        VistaAyuda ayuda(carpeta_.path());
        ayuda.MuestraTema(0);
        auto* arbol = ayuda.findChild<QTreeWidget*>();
        auto* hoja = ayuda.findChild<QTextBrowser*>();
        for (int vez = 0; vez < 2; ++vez) {
            QVERIFY(!hoja->toPlainText().contains("Seis juegos"));
            QTest::mouseClick(arbol->viewport(), Qt::LeftButton, Qt::NoModifier,
                              arbol->visualItemRect(arbol->topLevelItem(0)).center());
            QVERIFY(hoja->toPlainText().contains("Seis juegos"));
            ayuda.MuestraTema(0);
        }
    }

    void ElArbolSeRecorreConLasFlechas() {
        VistaAyuda ayuda(carpeta_.path());
        ayuda.MuestraTema(1000);
        auto* arbol = ayuda.findChild<QTreeWidget*>();
        arbol->setFocus();
        QTest::keyClick(arbol, Qt::Key_Down);
        QVERIFY(ayuda.findChild<QTextBrowser*>()->toPlainText().contains("Verde como"));
        QCOMPARE(ayuda.focusWidget(), arbol);
        QTest::keyClick(arbol, Qt::Key_Down);
        QVERIFY(ayuda.findChild<QTextBrowser*>()->toPlainText().contains("continuar"));
    }

    void UnaBusquedaSinPaginasLoDice() {
        VistaAyuda ayuda(carpeta_.path());
        ayuda.MuestraTema(0);
        auto* busca = ayuda.findChild<QLineEdit*>();
        auto* nada = ayuda.findChild<QLabel*>();
        QVERIFY(nada->isHidden());
        busca->setText("zzz");
        QVERIFY(nada->isVisible());
        busca->clear();
        QVERIFY(nada->isHidden());
    }

    void SeBuscaEnTitulosYTextosSinAcentos() {
        VistaAyuda ayuda(carpeta_.path());
        auto* busca = ayuda.findChild<QLineEdit*>();
        busca->setText("POKER");
        QCOMPARE(Visibles(ayuda), QStringList{"La mesa"});
        busca->setText("botón");
        QCOMPARE(Visibles(ayuda), (QStringList{"La mesa", "El botón verde"}));
        busca->setText("pulsa continuar");
        QCOMPARE(Visibles(ayuda), (QStringList{"La mesa", "El botón verde"}));
        busca->setText("zzz");
        QCOMPARE(Visibles(ayuda), QStringList{});
        busca->clear();
        QCOMPARE(Visibles(ayuda).size(), 4);
    }

    void IntroAbreLaPrimeraQueTieneLasPalabras() {
        VistaAyuda ayuda(carpeta_.path());
        ayuda.MuestraTema(0);
        auto* busca = ayuda.findChild<QLineEdit*>();
        auto* hoja = ayuda.findChild<QTextBrowser*>();
        const auto abre = [&](const QString& palabras) {
            busca->setText(palabras);
            QTest::keyClick(busca, Qt::Key_Return);
            return hoja->toPlainText();
        };
        QVERIFY(abre("poker").contains("Verde como"));
        QVERIFY(
            abre("verde").contains("continuar")); // the title goes before a page that mentions it
        QVERIFY(abre("zzz").contains("continuar"));
        QVERIFY(abre("").contains("continuar"));
    }

    void AlAbrirUnTemaNoQuedaLaUltimaBusqueda() {
        VistaAyuda ayuda(carpeta_.path());
        auto* busca = ayuda.findChild<QLineEdit*>();
        busca->setText("poker");
        ayuda.MuestraTema(2195);
        QVERIFY(busca->text().isEmpty());
        QCOMPARE(Visibles(ayuda).size(), 4);
        QCOMPARE(ayuda.findChild<QTreeWidget*>()->currentItem()->text(0), "El botón verde");
    }

    void LaAyudaCabeEnLaPantalla() {
        VistaAyuda ayuda(carpeta_.path());
        const QSize pantalla = QApplication::primaryScreen()->availableSize();
        QVERIFY(pantalla.width() < 980); // or this screen would tell nothing
        ayuda.MuestraTema(0);
        QVERIFY(ayuda.width() <= pantalla.width());
        QVERIFY(ayuda.height() + 40 <= pantalla.height());
    }

    void SinCarpetaLoDice() {
        VistaAyuda ayuda(carpeta_.filePath("no_hay"));
        ayuda.MuestraTema(2195);
        const QString dicho = ayuda.findChild<QTextBrowser*>()->toPlainText();
        QVERIFY(dicho.contains("no está disponible"));
        QVERIFY(dicho.contains("no_hay"));
    }

    void ContenidoDanado() {
        const QString rota = carpeta_.filePath("rota");
        QVERIFY(QDir().mkpath(rota));
        QFile fichero(rota + "/contents.txt");
        QVERIFY(fichero.open(QIODevice::WriteOnly));
        fichero.write(QByteArray("\xff\xfe|\0|||\n7|\n|8|9\nx | y | z\n", 21));
        fichero.close();
        QVERIFY(LeeContenido(rota).isEmpty());
        VistaAyuda ayuda(rota);
        ayuda.MuestraTema(0);
        QVERIFY(ayuda.findChild<QTextBrowser*>()->toPlainText().contains("no está disponible"));
    }

    void LosEnlacesYLosDibujosDelProyectoExisten() {
        static const QRegularExpression remite(QStringLiteral("(href|src)=\"([^\"]+)\""));
        const QDir paginas(PaginasDelProyecto());
        DibujosAyuda dibujos(PaginasDelProyecto(), BarajasDelProyecto());
        int enlaces = 0, cartas = 0;
        for (const QString& nombre : paginas.entryList({"*.html"})) {
            auto cada = remite.globalMatch(Lee(paginas.filePath(nombre)));
            while (cada.hasNext()) {
                const QUrl destino(cada.next().captured(2));
                const bool pintado = DibujosAyuda::EsSuyo(destino);
                QVERIFY2(pintado ? !dibujos.Dibujo(destino, 1).isNull()
                                 : paginas.exists(destino.toString()),
                         qPrintable(nombre + ": " + destino.toString()));
                ++(pintado ? cartas : enlaces);
            }
        }
        QVERIFY(enlaces > 100);
        QVERIFY(cartas > 400);
    }

    void TodoDibujoTieneSuTexto() {
        static const QRegularExpression dibujo(QStringLiteral("<img [^>]*>"));
        const QDir paginas(PaginasDelProyecto());
        for (const QString& nombre : paginas.entryList({"*.html"})) {
            auto cada = dibujo.globalMatch(Lee(paginas.filePath(nombre)));
            while (cada.hasNext()) {
                const QString etiqueta = cada.next().captured(0);
                QVERIFY2(etiqueta.contains(" alt=\""), qPrintable(nombre + ": " + etiqueta));
            }
        }
    }

    void UnaCartaSeDibujaParaLaPantalla() {
        DibujosAyuda dibujos(PaginasDelProyecto(), BarajasDelProyecto());
        const QImage una = dibujos.Dibujo(QUrl("carta:oros/sota"), 1);
        const QImage doble = dibujos.Dibujo(QUrl("carta:oros/sota"), 2);
        QCOMPARE(una.size(), QSize(44, 61));
        QCOMPARE(doble.size(), QSize(88, 122));
        QCOMPARE(doble.deviceIndependentSize().toSize(), una.size());
        QCOMPARE(dibujos.Dibujo(QUrl("carta:oros/10/88"), 1), [&] {
            QImage igual = doble;
            igual.setDevicePixelRatio(1);
            return igual;
        }());
        QVERIFY(una != dibujos.Dibujo(QUrl("carta:copas/sota"), 1));
        QVERIFY(dibujos.Dibujo(QUrl("esquina:picas/dama"), 1).width() == 22);
        QCOMPARE(dibujos.Dibujo(QUrl("foto:mesa.png/600"), 2).width(), 1200);
        QCOMPARE(dibujos.Dibujo(QUrl("foto:mesa.png/600"), 2, 1, 400).width(), 800);
        QCOMPARE(dibujos.Dibujo(QUrl("puntero:mano_verde"), 1.5).width(), 48);
        QCOMPARE(dibujos.Dibujo(QUrl("pieza:boton5_apagado"), 1).size(), QSize(50, 50));
    }

    void UnaCartaSeDibujaParaElTamanoDeLaMesa() {
        DibujosAyuda dibujos(PaginasDelProyecto(), BarajasDelProyecto());
        const QImage doble = dibujos.Dibujo(QUrl("carta:oros/sota"), 1, 2);
        QCOMPARE(doble.deviceIndependentSize().toSize(), QSize(88, 122));
        QCOMPARE(doble, dibujos.Dibujo(QUrl("carta:oros/sota/88"), 1));
        QCOMPARE(dibujos.Dibujo(QUrl("carta:oros/sota"), 2, 1.5).width(), 132);
        QCOMPARE(dibujos.Dibujo(QUrl("carta:dorso"), 1, 1.5).width(), 66);
        QCOMPARE(dibujos.Dibujo(QUrl("esquina:picas/dama"), 1, 2.5).width(), 55);
        QCOMPARE(dibujos.Dibujo(QUrl("pieza:boton5_apagado"), 2, 1.5).width(), 150);
        QCOMPARE(dibujos.Dibujo(QUrl("puntero:mano_verde"), 1, 3).width(), 96);
        // A whole number of the window's pixels, or the text would stretch it.
        QCOMPARE(dibujos.Dibujo(QUrl("carta:oros/sota"), 2, 1.25).size(), QSize(110, 154));
        dibujos.Olvida();
        QCOMPARE(dibujos.Dibujo(QUrl("carta:oros/sota"), 1, 2), doble);
    }

    void LoQueNoSeSabeDibujarSeDeja() {
        DibujosAyuda dibujos(PaginasDelProyecto(), BarajasDelProyecto());
        for (const char* cual :
             {"carta:", "carta:oros", "carta:oros/0", "carta:oros/13", "carta:picas/14",
              "carta:tomates/as", "pieza:nada", "puntero:nada", "foto:nada.png", "foto:"})
            QVERIFY2(dibujos.Dibujo(QUrl(cual), 1).isNull(), cual);
        const QString no_hay = carpeta_.filePath("no_hay");
        DibujosAyuda sin_barajas(PaginasDelProyecto(), {no_hay});
        QVERIFY(sin_barajas.Dibujo(QUrl("carta:oros/as"), 1).isNull());
        DibujosAyuda en_otra(PaginasDelProyecto(), {no_hay, BarajasDelProyecto().front()});
        QVERIFY(!en_otra.Dibujo(QUrl("carta:oros/as"), 1).isNull());
        QVERIFY(!DibujosAyuda::EsSuyo(QUrl("3130.html")));
    }

    void LasHojasDeMesaCabenEnUnaPantalla() {
        VistaAyuda ayuda(PaginasDelProyecto(), BarajasDelProyecto());
        const QTextBrowser* hoja = HojaALoAncho(ayuda);
        for (const int tema : {3119, 3129, 3139, 3149, 3159, 3169}) {
            ayuda.MuestraTema(tema);
            QVERIFY(hoja->toPlainText().size() > 500);
            const int sobra =
                hoja->viewport()->height() - qRound(hoja->document()->size().height());
            QVERIFY2(sobra >= 20, qPrintable(QStringLiteral("%1: %2").arg(tema).arg(sobra)));
            QCOMPARE(hoja->horizontalScrollBar()->maximum(), 0);
        }
    }

    void LoEncontradoQuedaMarcado() {
        VistaAyuda ayuda(carpeta_.path());
        ayuda.MuestraTema(2100);
        auto* busca = ayuda.findChild<QLineEdit*>();
        busca->setText("poker");
        QCOMPARE(Marcadas(ayuda), QStringList{"Póker"});
        busca->setText("boton");
        QTest::keyClick(busca, Qt::Key_Return); // to another page
        QVERIFY(Marcadas(ayuda).isEmpty());     // its title stands in the tree alone
        busca->setText("CONTINUAR verde");
        QCOMPARE(Marcadas(ayuda), (QStringList{"continuar", "Verde"}));
        busca->clear();
        QVERIFY(Marcadas(ayuda).isEmpty());
    }

    void LosSinonimosDelGlosarioSirvenParaBuscar() {
        VistaAyuda ayuda(PaginasDelProyecto(), BarajasDelProyecto());
        ayuda.MuestraTema(0);
        auto* busca = ayuda.findChild<QLineEdit*>();
        busca->setText("split");
        QVERIFY(Visibles(ayuda).contains("Abrir el juego en dos series"));
        busca->setText("acusar");
        QVERIFY(Visibles(ayuda).contains("Tute"));
        busca->setText("all-in");
        QVERIFY(Visibles(ayuda).contains("Igualar, subir o retirarse"));
        busca->setText("dificultad");
        QVERIFY(Visibles(ayuda).contains("Cómo juegan los rivales"));
    }

    void IntroAbreLaPaginaQueMasLoNombra() {
        VistaAyuda ayuda(PaginasDelProyecto(), BarajasDelProyecto());
        ayuda.MuestraTema(0);
        auto* busca = ayuda.findChild<QLineEdit*>();
        busca->setText("acusar"); // in no page but the glossary; the page of Tute has its cantes
        QTest::keyClick(busca, Qt::Key_Return);
        QCOMPARE(ayuda.findChild<QTreeWidget*>()->currentItem()->text(0), "Tute");
        QVERIFY(Marcadas(ayuda).contains("cante"));
    }

    void UnTextoSeAplanaSinPerderSusLugares() {
        const ayuda::TextoPlano plano = ayuda::Plano(QStringLiteral("El Póker\u00a0y Ñoño"));
        QCOMPARE(plano.letras, "el poker y nono");
        QCOMPARE(plano.sitios.size(), plano.letras.size());
        QCOMPARE(ayuda::Apariciones(plano, {"poker", {}}), (QList<ayuda::Tramo>{{3, 5}}));
        QCOMPARE(ayuda::Apariciones(plano, {"no", {}}), (QList<ayuda::Tramo>{{11, 2}, {13, 2}}));
        QVERIFY(ayuda::Apariciones(plano, {"", {}}).isEmpty());
    }

    void UnSinonimoEsUnaPalabraEnteraEnSingularOEnPlural() {
        const ayuda::TextoPlano plano = ayuda::Plano("Verás los acuses: ver un acuse");
        const ayuda::Clave clave{"zzz", {"ver", "acuse"}};
        QCOMPARE(ayuda::Apariciones(plano, clave),
                 (QList<ayuda::Tramo>{{10, 6}, {18, 3}, {25, 5}}));
        QVERIFY(!ayuda::Tiene(ayuda::Plano("verdes y acusada"), clave));
    }

    void ElVocabularioSaleDeLasTablasDeTresColumnas() {
        const ayuda::Vocabulario palabras(
            "<table><tr><th>Palabra</th><th>También</th><th>Qué es</th></tr>"
            "<tr><td>Cantar</td><td>acuse, las cuarenta</td><td>Se canta.</td></tr>"
            "<tr><td>Sola</td><td></td><td>Sin otra.</td></tr></table>"
            "<table><tr><td>dos</td><td>columnas</td></tr><tr><td>a</td><td>b</td></tr></table>");
        QCOMPARE(palabras.Grupos(), 1);
        QCOMPARE(palabras.Claves("acuses").size(), 1);
        QCOMPARE(palabras.Claves("acuses").front().sinonimos,
                 (QStringList{"cantar", "acuse", "las cuarenta"}));
        QCOMPARE(palabras.Claves("  Las  Cuarenta ").front().sinonimos,
                 (QStringList{"cantar", "acuse"}));
        QCOMPARE(palabras.Claves("cantar mesa").size(), 2);
        QVERIFY(palabras.Claves("mesa").front().sinonimos.isEmpty());
        QVERIFY(palabras.Claves("  ").isEmpty());
        QCOMPARE(ayuda::Vocabulario("<p>Sin tablas").Grupos(), 0);
    }

    void NingunaPaginaSeSaleDeLaVentana() {
        VistaAyuda ayuda(PaginasDelProyecto(), BarajasDelProyecto());
        const QTextBrowser* hoja = HojaALoAncho(ayuda);
        for (const PaginaAyuda& pagina : LeeContenido(PaginasDelProyecto())) {
            ayuda.MuestraTema(pagina.tema);
            QVERIFY2(hoja->horizontalScrollBar()->maximum() == 0, qPrintable(pagina.titulo));
        }
    }

    void LaAyudaNoTapaLaMesaSiHaySitio() {
        const QRect pantalla(0, 0, 1920, 1080);
        const QSize ayuda(900, 700);
        const auto junto = [&](const QRect& mesa) { return JuntoA(mesa, ayuda, 640, pantalla); };
        QCOMPARE(junto({0, 40, 1000, 800}), QRect(1000, 40, 900, 700));
        QCOMPARE(junto({920, 400, 1000, 680}), QRect(20, 380, 900, 700));
        QCOMPARE(junto({0, 0, 1200, 1080}), QRect(1200, 0, 720, 700));
        QCOMPARE(JuntoA({0, 0, 1200, 1080}, ayuda, 720, pantalla), QRect(1200, 0, 720, 700));
        QVERIFY(!JuntoA({0, 0, 1200, 1080}, ayuda, 721, pantalla));
        QVERIFY(!junto(pantalla));
        QVERIFY(!junto({300, 0, 1320, 1080}));
        QVERIFY(!junto(QRect()));
        const QRect baja =
            JuntoA({0, 0, 800, 600}, ayuda, 640, {0, 0, 1600, 600}).value_or(QRect());
        QCOMPARE(baja, QRect(800, 0, 800, 600));
    }

    void AlCrecerNoEmpiezaATaparLaMesa() {
        const QRect pantalla(0, 0, 2560, 1440);
        const QSize doble(1400, 1200);
        const auto crece = [&](const QRect& ayuda, const QRect& mesa) {
            return ConTamano(ayuda, doble, mesa, pantalla);
        };
        const QRect mesa(0, 0, 1600, 900);
        QCOMPARE(crece({1600, 0, 700, 600}, mesa), QRect(1600, 0, 960, 1200)); // right of it
        QCOMPARE(crece({0, 300, 700, 600}, mesa.translated(960, 0)), QRect(0, 240, 960, 1200));
        QCOMPARE(crece({100, 900, 1000, 400}, mesa), QRect(100, 900, 1400, 540)); // below
        QCOMPARE(crece({100, 0, 700, 400}, mesa.translated(0, 540)), QRect(100, 0, 1400, 540));
        // Over the table already, and where there is none.
        QCOMPARE(crece({1500, 0, 700, 600}, mesa), QRect(1160, 0, 1400, 1200));
        QCOMPARE(crece({1600, 0, 700, 600}, QRect()), QRect(1160, 0, 1400, 1200));
        // Half off the screen, where the free side would be less than it has.
        QCOMPARE(crece({2400, 0, 700, 600}, mesa), QRect(1600, 0, 960, 1200));
        QCOMPARE(crece({1600, 0, 1000, 600}, mesa), QRect(1160, 0, 1400, 1200));
    }

    void UnaVentanaSeMeteEnLaPantalla() {
        const QRect pantalla(100, 0, 800, 600);
        QCOMPARE(DentroDe(pantalla, {0, -20, 300, 200}), QRect(100, 0, 300, 200));
        QCOMPARE(DentroDe(pantalla, {700, 500, 300, 200}), QRect(600, 400, 300, 200));
        QCOMPARE(DentroDe(pantalla, {200, 50, 300, 200}), QRect(200, 50, 300, 200));
        QCOMPARE(DentroDe(pantalla, {-9, -9, 3000, 2000}), pantalla);
    }

    void LaAyudaVuelveADondeEstaba() {
        const QRect sitio(40, 60, 500, 400);
        {
            VistaAyuda ayuda(carpeta_.path());
            ayuda.MuestraTema(0);
            ayuda.setGeometry(sitio);
            ayuda.close();
        }
        VistaAyuda otra(carpeta_.path());
        otra.MuestraTema(0, QRect(700, 0, 100, 100));
        QCOMPARE(otra.geometry(), sitio);
        otra.setGeometry(sitio.translated(10, 10));
        otra.MuestraTema(1000, QRect(0, 0, 800, 800)); // only its first appearance is placed
        QCOMPARE(otra.geometry(), sitio.translated(10, 10));
    }

    void UnSitioQueYaNoExisteNoSeUsa() {
        VistaAyuda primera(carpeta_.path());
        const QSize de_siempre = primera.size();
        {
            VistaAyuda ayuda(carpeta_.path());
            ayuda.MuestraTema(0);
            ayuda.setGeometry(5000, 4000, 500, 400);
            ayuda.close();
        }
        VistaAyuda otra(carpeta_.path());
        otra.MuestraTema(0);
        QVERIFY(QApplication::primaryScreen()->availableGeometry().intersects(otra.geometry()));
        QCOMPARE(otra.size(), de_siempre); // nor is its size
    }

    void UnSitioQueSeVeAMediasSeMeteEnLaPantalla() {
        const QRect pantalla = QApplication::primaryScreen()->availableGeometry();
        {
            VistaAyuda ayuda(carpeta_.path());
            ayuda.MuestraTema(0);
            ayuda.setGeometry(pantalla.right() - 100, 50, 500, 400);
            ayuda.close();
        }
        VistaAyuda otra(carpeta_.path());
        otra.MuestraTema(0);
        QCoreApplication::processEvents();
        QVERIFY(pantalla.contains(otra.frameGeometry()));
        QCOMPARE(otra.size(), QSize(500, 400));
    }

    void ElIndiceTieneLasPaginasEnElOrdenDelArbol() {
        static const QRegularExpression enlace(QStringLiteral("<li><a href=\"(\\d+)\\.html\""));
        QFile indice(PaginasDelProyecto() + "/index.html");
        QVERIFY(indice.open(QIODevice::ReadOnly));
        auto cada = enlace.globalMatch(QString::fromUtf8(indice.readAll()));
        for (const PaginaAyuda& pagina : LeeContenido(PaginasDelProyecto())) {
            QVERIFY2(cada.hasNext(), qPrintable(pagina.titulo));
            QCOMPARE(cada.next().captured(1).toInt(), pagina.tema);
        }
        QVERIFY(!cada.hasNext());
    }

    void CadaConsejoTieneSuPagina() {
        QList<int> temas;
        for (const PaginaAyuda& pagina : LeeContenido(PaginasDelProyecto()))
            temas << pagina.tema;
        for (const Consejo& consejo : Consejos())
            QVERIFY2(temas.contains(consejo.tema), consejo.texto);
    }

    void CadaBotonDeAyudaTieneSuPagina() {
        const auto paginas = LeeContenido(PaginasDelProyecto());
        std::vector<int> temas{kAyudaNormas, kAyudaPersonal, kAyudaMarcador, kAyudaHistorico,
                               kAyudaEstadis};
        for (const FilaJuego* juego : FilasDeJuegos())
            temas.push_back(juego->tema);
        QCOMPARE(temas.size(), std::size_t{11});
        for (const int tema : temas) {
            QVERIFY(std::ranges::any_of(
                paginas, [tema](const PaginaAyuda& pagina) { return pagina.tema == tema; }));
            QVERIFY(QFile::exists(PaginasDelProyecto() + QStringLiteral("/%1.html").arg(tema)));
        }
    }

    void CadaPaginaDelContenidoEstaYLlevaSuTitulo() {
        static const QRegularExpression cabeza(QStringLiteral("<h1>([^<]*)</h1>"));
        const QDir carpeta(PaginasDelProyecto());
        QStringList nombres;
        for (const PaginaAyuda& pagina : LeeContenido(PaginasDelProyecto())) {
            const QString nombre = QStringLiteral("%1.html").arg(pagina.tema);
            const QString texto = Lee(carpeta.filePath(nombre));
            QVERIFY2(!texto.isEmpty(), qPrintable(nombre));
            QCOMPARE(cabeza.match(texto).captured(1), pagina.titulo);
            nombres << nombre;
        }
        nombres << "index.html";
        nombres.sort();
        QCOMPARE(carpeta.entryList({"*.html"}, QDir::Files, QDir::Name), nombres);
    }

    void LasPaginasDelProyectoSeMuestranTodas() {
        const auto paginas = LeeContenido(PaginasDelProyecto());
        QVERIFY(!paginas.isEmpty());
        VistaAyuda ayuda(PaginasDelProyecto());
        for (const PaginaAyuda& pagina : paginas) {
            ayuda.MuestraTema(pagina.tema);
            QCOMPARE(ayuda.findChild<QTreeWidget*>()->currentItem()->text(0), pagina.titulo);
            QVERIFY(ayuda.findChild<QTextBrowser*>()->toPlainText().size() > 100);
        }
    }
};

QTEST_MAIN(PruebaAyuda)
#include "help_viewer_test.moc"
