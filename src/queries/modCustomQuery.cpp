#include "queries/modCustomQuery.h"

#include "queries/clsCustomQuery.h"
#include "views/lists.h"

using namespace Qt::StringLiterals;

std::span<const OpRow> modCustomQuery::handlers()
{
    static const OpRow table[] = {
        {Mode::QRY, Op::ListAll, listAll<&clsCustomQuery::getAll>(Mode::QRY, "All Custom Queries"_L1)},
        {Mode::QRY, Op::Delete,
         deleteSelected<&clsCustomQuery::Delete>(u"Deleting Queries"_s,
                                                 u"The following Queries could not be deleted:"_s)},
    };
    return table;
}
