#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

/// What the windows below the live system ask of it. It fills them in at start; what is empty is answered as
/// by a network without a machine, and its buttons are grey.
struct LiveHooks
{
    /// The names of all machines, in the order received.
    std::function<QStringList()> enumServers;
    /// A folder as a Windows path; empty when none was chosen.
    std::function<QString(QWidget *owner)> browseForFolder;
    /// Exports users of the store to a server, with a report of its own.
    std::function<void(QWidget *owner, const QStringList &names, const QStringList &servers,
                       const QString &target)>
        exportUsers;
};
[[nodiscard]] LiveHooks &liveHooks();
