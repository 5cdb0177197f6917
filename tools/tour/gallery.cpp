#include "gallery.h"

#include "base/error.h"
#include "base/errornumbers.h"

#include <QPixmap>
#include <QSaveFile>
#include <QWidget>

using namespace Qt::StringLiterals;

Gallery::Gallery(const QString &folder, const QString &suffix) : m_folder(folder), m_suffix(suffix)
{
    const QFileInfo info(folder);
    if (info.exists() && !info.isDir())
        throwError(FileAccessError, folder % " is not a folder."_L1);
    if (!m_folder.mkpath(u"."_s))
        throwError(FileAccessError, "The folder "_L1 % folder % " cannot be made."_L1);
}

void Gallery::add(QWidget &window, const QString &name)
{
    QSaveFile file(m_folder.filePath(name % m_suffix % ".png"_L1));
    const bool written = file.open(QIODevice::WriteOnly) && window.grab().save(&file, "PNG") && file.commit();
    if (!written)
        throwError(FileAccessError, file.fileName() % " cannot be written: "_L1 % file.errorString());
    ++m_count;
}
