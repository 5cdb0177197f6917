#include "session/identity.h"

using namespace Qt::StringLiterals;

QString programTitle()
{
    return u"Kelvane"_s;
}

QString programVersion()
{
    return QString::number(versionMajor) % u'.' % QString::number(versionMinor);
}

QString fullVersion()
{
    return programVersion() % u'.' % QString::number(versionRevision);
}

QString mainCaption()
{
    return programTitle() % u' ' % programVersion();
}

QString makerAddress()
{
    return u"https://www.kelvane.example/"_s;
}
