#include "session/state_blocks.h"

Instantanea Instantanea::Toma() {
    Instantanea instantanea;
    instantanea.copia_ = std::make_shared<const CopiaDeBloques>(LosBloques());
    return instantanea;
}

void Instantanea::Repon() const {
    LosBloques() = *copia_;
}

void BorraEstado() {
    static const auto kVacia = std::make_unique<const CopiaDeBloques>();
    LosBloques() = *kVacia;
}
