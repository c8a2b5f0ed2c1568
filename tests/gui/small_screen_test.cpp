// A dialog on a screen that is too small for it.

#include <QApplication>
#include <QScreen>
#include <QTest>

#include "platform/qt/suite_paint.h"

class PruebaPantallaChica : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TabBringsAControlIntoASmallScreen() {
        const QRect pantalla = QApplication::primaryScreen()->availableGeometry();
        DialogoSuite grande(QStringLiteral("Grande"), nullptr);
        grande.setFixedSize(pantalla.size() * 1.5);
        auto* arriba = new BotonSuite(QStringLiteral("Arriba"), &grande);
        auto* abajo = new BotonSuite(QStringLiteral("Abajo"), &grande);
        arriba->move(20, 60);
        abajo->move(grande.width() - 140, grande.height() - 60);
        grande.CentraEn(pantalla);
        grande.show();
        arriba->setFocus();
        const QPoint antes = grande.pos();
        for (QWidget* mando : {abajo, arriba}) {
            QTest::keyClick(grande.focusWidget(), Qt::Key_Tab);
            QCOMPARE(grande.focusWidget(), mando);
            QVERIFY(pantalla.contains(QRect(mando->mapToGlobal(QPoint(0, 0)), mando->size())));
        }
        QVERIFY(grande.pos() != antes); // back only as far as is needed
        grande.setFixedSize(pantalla.size() / 2);
        abajo->move(20, 120);
        grande.move(pantalla.center() / 2);
        const QPoint quieto = grande.pos();
        QTest::keyClick(grande.focusWidget(), Qt::Key_Tab);
        QCOMPARE(grande.pos(), quieto);
    }
};

QTEST_MAIN(PruebaPantallaChica)
#include "small_screen_test.moc"
