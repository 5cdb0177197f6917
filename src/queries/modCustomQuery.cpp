#include "queries/modCustomQuery.h"

#include "queries/clsCustomQuery.h"
#include "views/lists.h"

using namespace Qt::StringLiterals;

namespace {

void deleteQuery(const QString &connectionString, int id)
{
    clsCustomQuery().Delete(connectionString, id);
}

} // namespace

std::span<const OpRow> modCustomQuery::handlers()
{
    static const OpRow table[] = {
        {Mode::QRY, Op::ListAll, listAll<&clsCustomQuery::getAll>(Mode::QRY, "All Custom Queries"_L1)},
        {Mode::QRY, Op::Delete,
         deleteSelected(u"Deleting Queries"_s, u"The following Queries could not be deleted:"_s,
                        deleteQuery)},
    };
    return table;
}
