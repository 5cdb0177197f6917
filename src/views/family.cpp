#include "views/family.h"

namespace {

QHash<QString, DisplayFamily> &families()
{
    static QHash<QString, DisplayFamily> registered;
    return registered;
}

} // namespace

void registerFamily(QStringView mode, DisplayFamily family)
{
    families().insert(mode.toString(), std::move(family));
}

const DisplayFamily *familyOf(QStringView mode)
{
    const auto found = families().constFind(mode.toString());
    return found == families().constEnd() ? nullptr : &found.value();
}
