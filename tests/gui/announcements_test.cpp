// What a screen reader is told unasked: boxes and captions.

#include <QAccessible>
#include <QTemporaryDir>
#include <QTest>

#include "platform/qt/message_box.h"
#include "platform/qt/platform_qt.h"

namespace {

struct Aviso {
    const QObject* de;
    QAccessible::Event tipo;
};
std::vector<Aviso> avisos;

} // namespace

// Without a screen reader Qt drops every announcement at this call. The program's calls come here instead of there,
// and are kept.
void QAccessible::updateAccessibility(QAccessibleEvent* evento) {
    avisos.push_back({evento->object(), evento->type()});
}

class PruebaAvisos : public QObject {
    Q_OBJECT

    static int Alertas(const QObject* de) {
        int cuantas = 0;
        for (const Aviso& aviso : avisos)
            cuantas += aviso.de == de && aviso.tipo == QAccessible::Alert ? 1 : 0;
        return cuantas;
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

    void UnRotuloSeAnunciaEnLaMesa() {
        const QTemporaryDir carpeta;
        PlataformaQt escritorio(carpeta.path());
        QWidget* mesa = escritorio.Ventana().widget();
        avisos.clear();
        escritorio.Anuncia("Jugador2: Servido");
        QCOMPARE(Alertas(mesa), 1);
        QCOMPARE(Descripcion(mesa), "Jugador2: Servido");
        escritorio.Anuncia("Jugador3: Servido");
        QCOMPARE(Alertas(mesa), 2);
        QCOMPARE(Descripcion(mesa), "Jugador3: Servido");
    }
};

QTEST_MAIN(PruebaAvisos)
#include "announcements_test.moc"
