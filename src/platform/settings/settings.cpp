#include "platform/settings/settings.h"

#include "base/error.h"
#include "base/errornumbers.h"

#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace settings {
namespace {

QString &replacedFolder()
{
    static QString folder;
    return folder;
}

// The file format reserves the heading [General] for keys without a group.
QString pathOf(const QString &section, const QString &key)
{
    return section == "General"_L1 ? key : QString(section % u'/' % key);
}

} // namespace

QString fileOf(const QString &application)
{
    const QString folder = replacedFolder().isEmpty()
                               ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
                               : replacedFolder();
    return folder % u'/' % application % u'/' % application % ".ini"_L1;
}

void setFolder(const QString &folder)
{
    replacedFolder() = folder;
}

QString getSetting(const QString &application, const QString &section, const QString &key,
                   const QString &defaultValue)
{
    const QSettings file(fileOf(application), QSettings::IniFormat);
    const QVariant value = file.value(pathOf(section, key));
    if (!value.isValid())
        return defaultValue;
    // A text with commas that was typed into the file without quotes reads as a list.
    return value.toStringList().join(u',');
}

void saveSetting(const QString &application, const QString &section, const QString &key, const QString &value)
{
    const QString name = fileOf(application);
    QSettings file(name, QSettings::IniFormat);
    file.setValue(pathOf(section, key), value);
    file.sync();
    if (file.status() != QSettings::NoError)
        throwError(FileAccessError, "The setting "_L1 % key % " could not be stored. The file "_L1 % name %
                                        " cannot be written."_L1);
}

} // namespace settings
