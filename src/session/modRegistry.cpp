#include "session/modRegistry.h"

#include "base/value.h"
#include "platform/settings/settings.h"
#include "session/identity.h"

using namespace Qt::StringLiterals;

namespace modRegistry {
namespace {

struct TextKey
{
    QLatin1StringView name;
    QLatin1StringView defaultValue;
};

struct BooleanKey
{
    QLatin1StringView name;
    bool defaultValue;
};

constexpr TextKey dataBase{"DataBase"_L1, ""_L1};
constexpr TextKey defaultDC{"DefaultDC"_L1, ""_L1};
constexpr BooleanKey alwaysAskServer{"AlwaysAskServer"_L1, true};
constexpr BooleanKey showGridLines{"ShowGridLines"_L1, true};
constexpr BooleanKey showNTIcon{"ShowNTIcon"_L1, true};
constexpr BooleanKey maximizeWindows{"MaximizeWindows"_L1, false};
constexpr BooleanKey showSideBar{"ShowSideBar"_L1, true};

QString section()
{
    return u"General"_s;
}

QString read(const TextKey &key)
{
    return settings::getSetting(programTitle(), section(), key.name, key.defaultValue);
}

bool read(const BooleanKey &key)
{
    const QString text =
        settings::getSetting(programTitle(), section(), key.name, Value(key.defaultValue).toText());
    return Value(text).toBoolean();
}

void write(const TextKey &key, const QString &value)
{
    settings::saveSetting(programTitle(), section(), key.name, value);
}

void write(const BooleanKey &key, bool value)
{
    settings::saveSetting(programTitle(), section(), key.name, Value(value).toText());
}

} // namespace

QString getDataBase()
{
    return read(dataBase);
}
QString getDefaultDC()
{
    return read(defaultDC);
}
bool getAlwaysAskServer()
{
    return read(alwaysAskServer);
}
bool getShowGridLines()
{
    return read(showGridLines);
}
bool getShowNTIcon()
{
    return read(showNTIcon);
}
bool getMaximizeWindows()
{
    return read(maximizeWindows);
}
bool getShowSideBar()
{
    return read(showSideBar);
}

void saveDataBase(const QString &path)
{
    write(dataBase, path);
}
void saveDefaultDC(const QString &server)
{
    write(defaultDC, server);
}
void saveAlwaysAskServer(bool value)
{
    write(alwaysAskServer, value);
}
void saveShowGridLines(bool value)
{
    write(showGridLines, value);
}
void saveShowNTIcon(bool value)
{
    write(showNTIcon, value);
}
void saveMaximizeWindows(bool value)
{
    write(maximizeWindows, value);
}
void saveShowSideBar(bool value)
{
    write(showSideBar, value);
}

} // namespace modRegistry
