#pragma once
// The ends of the program that come from outside: a signal, the end of the desktop's session.

#include <QObject>
#include <functional>

class QSocketNotifier;

// While one stands, SIGTERM, SIGINT, SIGHUP and the session's end call avisa from the event loop instead
// of ending the process.
class AvisoDeFin : public QObject {
    Q_OBJECT
public:
    explicit AvisoDeFin(std::function<void()> avisa);
    ~AvisoDeFin() override;

private:
    std::function<void()> avisa_;
    QSocketNotifier* oido_ = nullptr;
};
