#pragma once

#include "base/steps.h"

#include <QString>
#include <QStringList>

#include <span>

/// Deletes by a method of a record class, each object named by its id, with nobody to watch.
template <typename Records, typename Class>
Report deleteAll(Records &&records,
                 Report (Class::*method)(const QString &, std::span<const int>, const QStringList &, Steps &),
                 const QString &connection, std::span<const int> ids)
{
    QStringList names;
    for (const int id : ids)
        names.append(QString::number(id));
    NoSteps steps;
    return (records.*method)(connection, ids, names, steps);
}

template <typename Records>
Report deleteAll(Records &&records, const QString &connection, std::span<const int> ids)
{
    return deleteAll(records, &std::remove_cvref_t<Records>::Delete, connection, ids);
}
