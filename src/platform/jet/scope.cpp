#include "platform/jet/scope.h"

#include "platform/jet/errortexts.h"

#include <algorithm>

namespace jet {

const TableColumn *ScopeSource::column(std::string_view sought) const
{
    const auto found = std::ranges::find_if(
        columns, [&](const TableColumn &candidate) { return sameName(candidate.name, sought); });
    return found == columns.end() ? nullptr : &*found;
}

std::optional<std::size_t> Scope::itemNamed(std::string_view alias) const
{
    for (std::size_t i = 0; items != nullptr && i < visibleItems; ++i) {
        if ((*items)[i].expression && sameName((*items)[i].alias, alias))
            return i;
    }
    return std::nullopt;
}

bool Scope::hides(const Scope &further) const
{
    for (const Scope *at = this; at != &further; at = at->outer) {
        if (std::ranges::any_of(at->sources, [&](const ScopeSource &candidate) {
                return further.source(candidate.name) != nullptr;
            }))
            return true;
    }
    return false;
}

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
