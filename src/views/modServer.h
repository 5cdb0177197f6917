#pragma once

#include <QString>

class QWidget;

/// The choice of a server.
namespace modServer {

/// Shows the server dialog; empty when it was cancelled or left without a name.
[[nodiscard]] QString selectServer(QWidget *owner);

/// The controller of the session, or the default one; where neither is known the dialog asks for one.
[[nodiscard]] QString targetServer(QWidget *owner);

} // namespace modServer
