#include "platform/qt/folder_lock.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

CerrojoCarpeta::CerrojoCarpeta(const QString& carpeta) {
    if (!QFileInfo(carpeta).isWritable())
        return;
    carpeta_ = open(QFile::encodeName(carpeta).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // A file system that knows no locks is no reason not to play.
    en_uso_ = carpeta_ >= 0 && flock(carpeta_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

CerrojoCarpeta::~CerrojoCarpeta() {
    if (carpeta_ >= 0)
        close(carpeta_);
}
