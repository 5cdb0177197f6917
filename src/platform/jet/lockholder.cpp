#include "platform/jet/lockholder.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <sys/sysmacros.h>

using namespace Qt::StringLiterals;

namespace jet {
namespace {

QString describe(qint64 process)
{
    const QString folder = "/proc/"_L1 + QString::number(process);
    QFile name(folder + "/comm"_L1);
    if (!name.open(QIODevice::ReadOnly))
        return {};
    const QString owner = QFileInfo(folder).owner();
    return u'\'' + QString::fromUtf8(name.readAll()).trimmed() + "' (process "_L1 + QString::number(process) +
           (owner.isEmpty() ? QString() : " of "_L1 + owner) + u')';
}

} // namespace

QString lockHolder(const QString &path)
{
    struct stat file = {};
    QFile locks(u"/proc/locks"_s);
    if (stat(QFile::encodeName(path).constData(), &file) != 0 || !locks.open(QIODevice::ReadOnly))
        return {};
    // 1: POSIX  ADVISORY  WRITE 4711 fe:00:131077 1073741824 1073742335
    const QString wanted = QString::asprintf("%02x:%02x:%llu", major(file.st_dev), minor(file.st_dev),
                                             static_cast<unsigned long long>(file.st_ino));
    for (const QString &line : QString::fromUtf8(locks.readAll()).split(u'\n')) {
        const QStringList words = line.simplified().split(u' ');
        constexpr qsizetype processWord = 4;
        constexpr qsizetype fileWord = 5;
        if (words.size() <= fileWord || words[fileWord] != wanted)
            continue;
        const qint64 process = words[processWord].toLongLong();
        if (process > 0 && process != QCoreApplication::applicationPid())
            return describe(process);
    }
    return {};
}

} // namespace jet
