#pragma once

#include <QStringList>

#include <iosfwd>

inline constexpr int ExitDone = 0;
inline constexpr int ExitRefused = 1;
inline constexpr int ExitUsage = 2;
inline constexpr int ExitFindings = 1;   ///< of check
inline constexpr int ExitUnreadable = 2; ///< of check
inline constexpr int ExitNoStore = 1;    ///< of use

struct Console
{
    std::istream &in;
    std::ostream &out;
    std::ostream &complaints;
};

/// Runs one command of kelvane-store, given by the arguments of the program, its name first, and returns the
/// exit status: ExitDone for --help and --version, ExitUsage when the arguments make no sense, ExitRefused
/// when the command or any of its statements was refused. A check ends with ExitFindings when it found
/// something, with --repair when something is left, and with ExitUnreadable when the file cannot be opened as
/// a store or cannot be repaired; a use without a path ends with ExitNoStore when no store has been chosen.
[[nodiscard]] int runCommand(const QStringList &arguments, Console &console);
