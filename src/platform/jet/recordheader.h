#pragma once

#include "platform/jet/types.h"

#include <QString>

#include <memory>
#include <vector>

namespace jet {

struct HeaderField
{
    QString name;
    FieldType type = FieldType::Memo;
    int definedSize = 0;
};

/// The fields of a result, shared by all recordsets of one statement.
using HeaderPtr = std::shared_ptr<const std::vector<HeaderField>>;

} // namespace jet
