#pragma once

#include <QString>

#include <functional>

class StoreSession;

/// Makes a new store with all tables and the rows that the filling writes. The store is built
/// beside the path and moved there when it is complete, so a failure leaves nothing behind and
/// nobody ever opens half a store. Raises jet::Failure when the path exists already or cannot
/// be written, and what the filling raises.
void createStore(const QString &path, const std::function<void(StoreSession &)> &fill = {});
