#include "platform/qt/termination.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::array kSenales{SIGTERM, SIGINT, SIGHUP};

// A signal may come at any instruction: all it does is write a byte, which the event loop finds.
std::array<int, 2> tubo{-1, -1};

void AlLlegarSenal(int) {
    const char aviso = 1;
    [[maybe_unused]] const auto escritos = write(tubo[1], &aviso, 1);
}

void PonSenales(void (*que)(int)) {
    struct sigaction accion {};
    accion.sa_handler = que;
    sigemptyset(&accion.sa_mask);
    accion.sa_flags = SA_RESTART;
    for (const int senal : kSenales)
        sigaction(senal, &accion, nullptr);
}

} // namespace

AvisoDeFin::AvisoDeFin(std::function<void()> avisa) : avisa_(std::move(avisa)) {
    if (pipe2(tubo.data(), O_NONBLOCK | O_CLOEXEC) == 0) {
        oido_ = new QSocketNotifier(tubo[0], QSocketNotifier::Read, this);
        connect(oido_, &QSocketNotifier::activated, this, [this] {
            char aviso = 0;
            while (read(tubo[0], &aviso, 1) > 0) {
            }
            avisa_();
        });
        PonSenales(AlLlegarSenal);
    }
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this,
            [this](QSessionManager&) { avisa_(); });
}

AvisoDeFin::~AvisoDeFin() {
    if (oido_ == nullptr)
        return;
    PonSenales(SIG_DFL);
    delete oido_;
    close(tubo[0]);
    close(tubo[1]);
}
