#pragma once

#include <QStringList>

#include <iosfwd>

inline constexpr int ExitDone = 0;
inline constexpr int ExitRefused = 1;
inline constexpr int ExitUsage = 2;

struct Console
{
    std::istream &in;
    std::ostream &out;
    std::ostream &complaints;
};

/// Runs one command of kelvane-store, told by its arguments without the program's name, and returns the
/// exit status: ExitUsage when the arguments make no sense, ExitRefused when the command or any of its
/// statements was refused.
[[nodiscard]] int runCommand(const QStringList &arguments, Console &console);
