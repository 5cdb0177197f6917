#include "platform/jet/scope.h"

#include "platform/jet/errortexts.h"

namespace jet {

const ScopeSource *Scope::source(std::string_view name) const
{
    for (const ScopeSource &candidate : sources) {
        if (sameName(candidate.name, name))
            return &candidate;
    }
    return nullptr;
}

std::vector<std::string_view> Scope::sourceNames() const
{
    std::vector<std::string_view> names;
    for (const ScopeSource &candidate : sources)
        names.push_back(candidate.name);
    return names;
}

Scope::Found Scope::find(std::string_view qualifier, std::string_view name) const
{
    Found found;
    for (const ScopeSource &candidate : sources) {
        if (!qualifier.empty() && !sameName(candidate.name, qualifier))
            continue;
        for (const TableColumn &column : candidate.columns) {
            if (!sameName(column.name, name))
                continue;
            if (found.column != nullptr)
                raiseError(SyntaxError,
                           "The specified field '" + std::string(name) +
                               "' could refer to more than one table listed in the FROM clause of your "
                               "SQL statement.");
            found = {&candidate, &column};
        }
    }
    return found;
}

} // namespace jet
