#pragma once

#include <QByteArray>
#include <QString>

#include <exception>
#include <functional>

struct sqlite3;

namespace fuzz {

/// A path in a folder that is gone when the process ends.
[[nodiscard]] QString temporaryPath(const QString &name);

/// The bytes of a store with the rows of the dialect's small fixture.
[[nodiscard]] const QByteArray &smallStore();

/// Puts the bytes at the path and takes away a journal that stands beside it.
void putFile(const QString &path, const QByteArray &content);

/// Ends statements on the handle that take too many steps; they fail as cancelled ones do.
void boundTime(sqlite3 *handle);

/// Runs a step that may succeed or raise an Error with a number and a text; whatever else it
/// does stops the fuzzer. Returns whether it succeeded.
bool mayBeRefused(const std::function<void()> &step);

/// Stops the fuzzer, which keeps the input.
[[noreturn]] void fault(const QString &what);

} // namespace fuzz
