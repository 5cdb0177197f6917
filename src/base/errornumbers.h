#pragma once

/// Error numbers of the program's own doing that more than one file raises or tests. Those of
/// the store engine are in platform/jet/errors.h, that of the store's rules is RuleViolation.
inline constexpr int OutOfMemory = 7;
/// A file that cannot be read or written; the text names it.
inline constexpr int FileAccessError = 75;
/// A printer that is not there, or a print job that was refused.
inline constexpr int PrinterError = 482;
/// A row, column or panel that a control does not have.
inline constexpr int IndexOutOfBounds = 35600;
