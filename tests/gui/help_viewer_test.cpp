// The help: topics by number, the search, and what is said when pages are missing.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include "platform/qt/help_viewer.h"
#include "table/tips.h"

namespace {

QString PaginasDelProyecto() {
    return qEnvironmentVariable("ZOVIN_SOURCE") + "/assets/help";
}

QStringList Visibles(VistaAyuda& ayuda) {
    QStringList titulos;
    for (QTreeWidgetItemIterator rama(ayuda.findChild<QTreeWidget*>()); *rama != nullptr; ++rama) {
        if (!(*rama)->isHidden())
            titulos << (*rama)->text(0);
    }
    return titulos;
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
        QVERIFY(pantalla.width() < 920); // or this screen would tell nothing
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
        static const QRegularExpression remite(QStringLiteral("(?:href|src)=\"([^\"]+)\""));
        const QDir paginas(PaginasDelProyecto());
        int remites = 0;
        for (const QString& nombre : paginas.entryList({"*.html"})) {
            QFile pagina(paginas.filePath(nombre));
            QVERIFY(pagina.open(QIODevice::ReadOnly));
            auto cada = remite.globalMatch(QString::fromUtf8(pagina.readAll()));
            for (; cada.hasNext(); ++remites) {
                const QString destino = cada.next().captured(1);
                QVERIFY2(paginas.exists(destino), qPrintable(nombre + ": " + destino));
            }
        }
        QVERIFY(remites > 100);
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
