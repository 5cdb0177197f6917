#include "messages/savefile.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "base/text.h"
#include "toolkit/commondialog.h"
#include "toolkit/messagebox.h"

#include <QFile>

using namespace Qt::StringLiterals;

std::optional<QString> askSaveFile(QWidget *owner, CommonDialog &dialog)
{
    if (!attempt([&] { dialog.showSave(owner); })) {
        if (currentError().number != CancelError)
            throwError(currentError().number, currentError().description);
        return std::nullopt;
    }
    const QString question = fillMarker(u"The File $ already exists. Overwrite?"_s, dialog.fileName);
    if (QFile::exists(dialog.fileName) &&
        messageBox(owner, question, box::YesNo | box::WarningIcon) != box::ResultYes)
        return std::nullopt;
    return dialog.fileName;
}

SaveFile::SaveFile(const QString &path) : m_file(path)
{
    if (!m_file.open(QIODevice::WriteOnly))
        refuse();
}

void SaveFile::write(QByteArrayView bytes)
{
    // A disk that gets full takes a part first, and names its reason with the next one.
    while (!bytes.isEmpty()) {
        const qint64 written = m_file.write(bytes.data(), bytes.size());
        if (written <= 0)
            refuse();
        bytes = bytes.sliced(written);
    }
}

void SaveFile::commit()
{
    if (!m_file.commit())
        refuse();
}

void SaveFile::refuse() const
{
    throwError(FileAccessError,
               "The File '"_L1 % m_file.fileName() % "' could not be written: "_L1 % m_file.errorString());
}
