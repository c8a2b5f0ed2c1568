#pragma once
// The layer of the frames, above the felt and every control on it, and of the ring around the button with the focus. The
// mouse passes through.

#include <QWidget>
#include <map>

#include "platform/platform.h"

class CapaMarcos : public QWidget {
public:
    // As large as the table, for good.
    explicit CapaMarcos(QWidget* mesa);

    // Table pixels. Only the boxes of the frame that goes and of the one that comes are painted.
    void Pon(Marco cual, const std::optional<Rectangulo>& donde);

protected:
    void paintEvent(QPaintEvent* evento) override;
    bool eventFilter(QObject* mesa, QEvent* evento) override;

private:
    void Actualiza(const Rectangulo& donde);

    std::map<Marco, Rectangulo> marcos_;
};
