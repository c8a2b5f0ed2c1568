// The modal box: its buttons and keys, its height, its words.

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <functional>

#include "platform/qt/message_box.h"
#include "platform/qt/pointers.h"

namespace {

CajaMensaje Caja(int modo, int lineas = 2) {
    return {.titulo = "Posponer la partida en curso",
            .texto = "¿Desea  abandonar  el  programa  para  continuar  en  otro momento la "
                     "partida que está jugando?",
            .lineas = lineas,
            .modo = modo};
}

// Shows the box and does something to it.
Boton Responde(const CajaMensaje& que, const std::function<void(CajaQt&)>& hace) {
    CajaQt caja(que, nullptr);
    QTimer::singleShot(20, &caja, [&] { hace(caja); });
    // A box that nobody closes fails the test instead of hanging it.
    QTimer::singleShot(5000, &caja, [&] { caja.done(0); });
    return caja.Responde();
}

std::function<void(CajaQt&)> Tecla(Qt::Key tecla) {
    return [tecla](CajaQt& caja) {
        QWidget* foco = caja.focusWidget() != nullptr ? caja.focusWidget() : &caja;
        QTest::keyClick(foco, tecla);
    };
}

std::function<void(CajaQt&)> Pulsa(const char* nombre) {
    return [nombre](CajaQt& caja) {
        auto* boton = caja.findChild<QPushButton*>(QString::fromLatin1(nombre));
        QVERIFY(boton != nullptr);
        QTest::mouseClick(boton, Qt::LeftButton);
    };
}

QStringList Botones(CajaQt& caja) {
    QStringList nombres;
    for (auto* boton : caja.findChildren<QPushButton*>())
        nombres << boton->objectName() + "=" + boton->text();
    return nombres;
}

} // namespace

class PruebaCaja : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void CadaModoTieneSusBotones() {
        CajaQt uno(Caja(1), nullptr), dos(Caja(2), nullptr), tres(Caja(3), nullptr);
        QCOMPARE(Botones(uno), QStringList{"Pic_BotSalir=Aceptar"});
        QCOMPARE(Botones(dos), (QStringList{"Pic_Si=Si", "Pic_No=No"}));
        QCOMPARE(Botones(tres), (QStringList{"Pic_BotAyuda=Ayuda", "Pic_BotSalir=Cerrar"}));
        CajaMensaje aceptar = Caja(2);
        aceptar.aceptar = true;
        CajaQt cuatro(aceptar, nullptr);
        QCOMPARE(Botones(cuatro), (QStringList{"Pic_Si=Aceptar", "Pic_No=Cancelar"}));
    }

    void LosBotonesLlevanLaManoQueSenala() {
        const QImage mano = CursorDe(Puntero::ManoIndice).pixmap().toImage();
        QVERIFY(!mano.isNull());
        for (int modo : {1, 2, 3}) {
            CajaQt caja(Caja(modo), nullptr);
            for (const QPushButton* boton : caja.findChildren<QPushButton*>())
                QCOMPARE(boton->cursor().pixmap().toImage(), mano);
        }
    }

    void LosBotonesContestan() {
        QVERIFY(Responde(Caja(1), Pulsa("Pic_BotSalir")) == Boton::Salir);
        QVERIFY(Responde(Caja(2), Pulsa("Pic_Si")) == Boton::Si);
        QVERIFY(Responde(Caja(2), Pulsa("Pic_No")) == Boton::No);
        QVERIFY(Responde(Caja(3), Pulsa("Pic_BotAyuda")) == Boton::Ayuda);
        QVERIFY(Responde(Caja(3), Pulsa("Pic_BotSalir")) == Boton::Salir);
    }

    void CualquierTeclaEsElPrimerBoton_data() {
        QTest::addColumn<int>("tecla");
        for (const auto tecla : {Qt::Key_X, Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape,
                                 Qt::Key_Backspace, Qt::Key_N})
            QTest::addRow("%d", tecla) << int(tecla);
    }
    void CualquierTeclaEsElPrimerBoton() {
        QFETCH(int, tecla);
        const auto pulsa = Tecla(static_cast<Qt::Key>(tecla));
        QVERIFY(Responde(Caja(1), pulsa) == Boton::Salir);
        QVERIFY(Responde(Caja(2), pulsa) == Boton::Si);
        QVERIFY(Responde(Caja(3), pulsa) == Boton::Ayuda);
    }

    void LasDemasTeclasNoCierran() {
        const Boton respuesta = Responde(Caja(2), [](CajaQt& caja) {
            for (const auto tecla : {Qt::Key_F1, Qt::Key_Shift, Qt::Key_Delete})
                QTest::keyClick(caja.focusWidget(), tecla);
            QVERIFY(caja.isVisible());
            caja.close();
        });
        QVERIFY(respuesta == Boton::No);
    }

    void UnaTeclaRepetidaNoCierra() {
        const Boton respuesta = Responde(Caja(2), [](CajaQt& caja) {
            QKeyEvent repetida(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
            QApplication::sendEvent(caja.focusWidget(), &repetida);
            QKeyEvent letra(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x", true);
            QApplication::sendEvent(caja.focusWidget(), &letra);
            QVERIFY(caja.isVisible());
            caja.close();
        });
        QVERIFY(respuesta == Boton::No);
    }

    void ElTabuladorLlevaAlOtroBoton() {
        for (const auto paso : {Qt::Key_Tab, Qt::Key_Right}) {
            const Boton respuesta = Responde(Caja(2), [paso](CajaQt& caja) {
                QCOMPARE(caja.focusWidget()->objectName(), "Pic_Si");
                QTest::keyClick(caja.focusWidget(), paso);
                QCOMPARE(caja.focusWidget()->objectName(), "Pic_No");
                QTest::keyClick(caja.focusWidget(), Qt::Key_Space);
            });
            QVERIFY(respuesta == Boton::No);
        }
    }

    void CerrarEsSalirONo() {
        const auto cierra = [](CajaQt& caja) { caja.close(); };
        QVERIFY(Responde(Caja(1), cierra) == Boton::Salir);
        QVERIFY(Responde(Caja(2), cierra) == Boton::No);
        QVERIFY(Responde(Caja(3), cierra) == Boton::Salir);
    }

    void LaAlturaSaleDeLasLineas() {
        for (const int lineas : {2, 3, 6, 9})
            QCOMPARE(CajaQt(Caja(1, lineas), nullptr).height(), 16 * lineas + 136);
    }

    // The rows of a result each end with a line break, the last one too.
    void LasFilasDeUnResultadoNoLaAlargan() {
        for (const int lineas : {2, 6, 16}) {
            CajaMensaje resultado = Caja(1, lineas);
            resultado.texto.clear();
            for (int i = 0; i < lineas; ++i)
                resultado.texto += "Ana: 21 puntos, gana 10\r\n";
            QCOMPARE(CajaQt(resultado, nullptr).height(), 16 * lineas + 136);
        }
    }

    void CreceSiElTextoNoCabe() {
        CajaMensaje larga = Caja(1, 1);
        for (int i = 0; i < 12; ++i)
            larga.texto += "\r\nOtra línea.";
        CajaQt caja(larga, nullptr);
        QVERIFY(caja.height() > 16 + 136 + 10 * 16);
        auto* texto = caja.findChild<QLabel*>("Tex_Mensaje");
        auto* boton = caja.findChild<QPushButton*>("Pic_BotSalir");
        caja.show();
        QVERIFY(texto->geometry().bottom() < boton->geometry().top());
        QVERIFY(boton->geometry().bottom() < caja.height());
    }

    void LosBlancosSeConservanYLasLineasSonLasDelAutor() {
        CajaQt caja(Caja(2), nullptr);
        auto* texto = caja.findChild<TextoMensaje*>("Tex_Mensaje");
        QCOMPARE(texto->text(), QString::fromStdString(Caja(2).texto));
        QCOMPARE(texto->height(), texto->heightForWidth(texto->width()));
        // Two lines, of which the first ends at "otro".
        QCOMPARE(texto->height(), 2 * TextoMensaje("una", nullptr).heightForWidth(444));
    }

    void ElTituloYElTextoSeOyen() {
        CajaQt caja(Caja(2), nullptr);
        QAccessibleInterface* acceso = QAccessible::queryAccessibleInterface(&caja);
        QCOMPARE(acceso->text(QAccessible::Name), "Posponer la partida en curso");
        QVERIFY(acceso->text(QAccessible::Description).contains("¿Desea abandonar el programa"));
    }

    void SeCentraDondeSeLeDice() {
        CajaQt caja(Caja(2), nullptr);
        caja.CentraEn({100, 50, 710, 600});
        QCOMPARE(caja.geometry().center(), QRect(100, 50, 710, 600).center());
        caja.CentraEn({20, 10, 100, 100});
        QCOMPARE(caja.pos(), QPoint(20, 10));
    }
};

QTEST_MAIN(PruebaCaja)
#include "message_box_test.moc"
