#pragma once

#include <QString>

#include <functional>

class QUrl;

/// What the program hands to the user's desktop.
namespace desktop {

/// Opens a file by path, or a web address, in its default program. Returns whether
/// something took it: without an installed opener nothing does.
bool openDocument(const QString &pathOrAddress);

/// The part of the host that really opens; returns the one it replaces.
using Opener = std::function<bool(const QUrl &)>;
Opener installOpener(Opener opener);

} // namespace desktop
