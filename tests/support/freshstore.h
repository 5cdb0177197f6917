#pragma once

#include "base/error.h"
#include "store/storefile.h"

#include <QFile>
#include <QTemporaryDir>

/// Puts a new, empty store at the path. The schema runs once for a process, the rest are copies.
inline void makeFreshStore(const QString &path)
{
    static const QTemporaryDir folder;
    static const QString model = [] {
        QString made = folder.filePath(QStringLiteral("model.mdb"));
        createStore(made);
        return made;
    }();
    if (!QFile::copy(model, path))
        throwError(75, QStringLiteral("The store could not be copied to ") + path);
}
