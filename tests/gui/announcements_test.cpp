// What a screen reader is told unasked: boxes, and what happens on the table.

#include <QAccessible>
#include <QTemporaryDir>
#include <QTest>

#include "platform/qt/message_box.h"
#include "platform/qt/platform_qt.h"

namespace {

struct Aviso {
    const QObject* de;
    QAccessible::Event tipo;
    QString noticia; // the words of a notification
};
std::vector<Aviso> avisos;

} // namespace

// Without a screen reader Qt drops every announcement at this call. The program's calls come here instead of there,
// and are kept.
void QAccessible::updateAccessibility(QAccessibleEvent* evento) {
    QAccessibleInterface* acceso = evento->accessibleInterface();
    const bool noticia = acceso != nullptr && acceso->role() == QAccessible::Notification;
    avisos.push_back(
        {evento->object(), evento->type(), noticia ? acceso->text(QAccessible::Name) : QString()});
}

class PruebaAvisos : public QObject {
    Q_OBJECT

    static int Alertas(const QObject* de) {
        int cuantas = 0;
        for (const Aviso& aviso : avisos)
            cuantas += aviso.de == de && aviso.tipo == QAccessible::Alert ? 1 : 0;
        return cuantas;
    }
    static QStringList Aparecidos() {
        QStringList noticias;
        for (const Aviso& aviso : avisos) {
            if (aviso.tipo == QAccessible::ObjectShow && !aviso.noticia.isEmpty())
                noticias << aviso.noticia;
        }
        return noticias;
    }
    static QString Descripcion(QObject* de) {
        return QAccessible::queryAccessibleInterface(de)->text(QAccessible::Description);
    }

private Q_SLOTS:
    void init() { avisos.clear(); }

    void UnaCajaSeAnunciaAlAbrirse() {
        CajaQt caja({.titulo = "Final de Partida",
                     .texto = "Jugador4, has ganado la partida. ",
                     .lineas = 1,
                     .modo = 1},
                    nullptr);
        QCOMPARE(Alertas(&caja), 0);
        caja.show();
        QCOMPARE(Alertas(&caja), 1);
        QCOMPARE(Descripcion(&caja), "Jugador4, has ganado la partida.");
    }

    // Quick one behind the other: each keeps its words, whenever the reader asks for them.
    void CadaAnuncioApareceConSusPalabras() {
        const QTemporaryDir carpeta;
        PlataformaQt escritorio(carpeta.path());
        QAccessible::setActive(true);
        escritorio.Anuncia("Jugador2: Servido");
        escritorio.Anuncia("Jugador3: Servido");
        escritorio.Anuncia("Jugador3: Servido");
        QCOMPARE(Aparecidos(),
                 (QStringList{"Jugador2: Servido", "Jugador3: Servido", "Jugador3: Servido"}));
    }

    void LoQueHaPasadoSePuedeVolverAOir() {
        const QTemporaryDir carpeta;
        PlataformaQt escritorio(carpeta.path());
        QAccessible::setActive(true);
        for (int i = 1; i <= 50; ++i)
            escritorio.Anuncia("Mano " + std::to_string(i));
        auto* mesa = QAccessible::queryAccessibleInterface(escritorio.Ventana().widget());
        const auto* lista = mesa->child(mesa->childCount() - 1);
        QCOMPARE(lista->text(QAccessible::Name), "Lo que ha pasado");
        QCOMPARE(lista->role(), QAccessible::List);
        QCOMPARE(lista->childCount(), 40);
        QCOMPARE(lista->child(0)->text(QAccessible::Name), "Mano 11");
        QCOMPARE(lista->child(39)->text(QAccessible::Name), "Mano 50");
        QCOMPARE(lista->indexOfChild(lista->child(39)), 39);
        QVERIFY(lista->child(40) == nullptr);
    }

    void DondeNadieEscuchaNoSeDiceNada() {
        const QTemporaryDir carpeta;
        PlataformaQt escritorio(carpeta.path());
        QAccessible::setActive(true);
        QAccessible::setActive(false);
        escritorio.Anuncia("Jugador2: Servido");
        QCOMPARE(Aparecidos(), QStringList());
    }
};

QTEST_MAIN(PruebaAvisos)
#include "announcements_test.moc"
