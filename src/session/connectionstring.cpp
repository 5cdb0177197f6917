#include "session/connectionstring.h"

#include "base/text.h"
#include "session/modRegistry.h"

using namespace Qt::StringLiterals;

QString getConnectionString()
{
    const QString text = u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=$;Persist Security Info=False"_s;
    return fillMarker(text, modRegistry::getDataBase());
}
