// Who holds a folder: one copy at a time, and none that is gone.

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/qt/folder_lock.h"

class PruebaCerrojo : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ElPrimeroLaTieneYElSegundoLoSabe() {
        const QTemporaryDir carpeta;
        const CerrojoCarpeta primero(carpeta.path());
        QVERIFY(!primero.EnUso());
        const CerrojoCarpeta segundo(carpeta.path());
        QVERIFY(segundo.EnUso());
    }

    void ConElPrimeroFueraQuedaLibre() {
        const QTemporaryDir carpeta;
        { const CerrojoCarpeta primero(carpeta.path()); }
        QVERIFY(!CerrojoCarpeta(carpeta.path()).EnUso());
    }

    void QuienNoLaTieneNoLaSuelta() {
        const QTemporaryDir carpeta;
        const CerrojoCarpeta primero(carpeta.path());
        { const CerrojoCarpeta segundo(carpeta.path()); }
        QVERIFY(CerrojoCarpeta(carpeta.path()).EnUso());
    }

    void OtraCarpetaEsOtraMesa() {
        const QTemporaryDir una, otra;
        const CerrojoCarpeta primero(una.path());
        QVERIFY(!CerrojoCarpeta(otra.path()).EnUso());
    }

    void LaDeUnProcesoMatadoQuedaLibre() {
        const QTemporaryDir carpeta;
        int listo[2];
        QCOMPARE(pipe(listo), 0);
        const pid_t copia = fork();
        if (copia == 0) {
            const CerrojoCarpeta suyo(carpeta.path());
            const char si = suyo.EnUso() ? 'n' : 's';
            if (write(listo[1], &si, 1) == 1)
                pause();
            _exit(1);
        }
        char tomado = 0;
        QCOMPARE(read(listo[0], &tomado, 1), ssize_t{1});
        QCOMPARE(tomado, 's');
        QVERIFY(CerrojoCarpeta(carpeta.path()).EnUso());
        kill(copia, SIGKILL);
        waitpid(copia, nullptr, 0);
        QVERIFY(!CerrojoCarpeta(carpeta.path()).EnUso());
        close(listo[0]);
        close(listo[1]);
    }

    void NoDejaNadaEnLaCarpeta() {
        const QTemporaryDir carpeta;
        const CerrojoCarpeta primero(carpeta.path());
        QVERIFY(QDir(carpeta.path()).isEmpty());
    }

    void UnaCarpetaQueNoHayNoSeTiene() {
        QVERIFY(!CerrojoCarpeta(QStringLiteral("/no/hay")).EnUso());
        QVERIFY(!CerrojoCarpeta(QStringLiteral("/no/hay")).EnUso());
    }
};

QTEST_GUILESS_MAIN(PruebaCerrojo)
#include "folder_lock_test.moc"
