#pragma once

#include "base/error.h"

/// The error numbers of the store engine, as programs of its kind know them.
namespace jet {

inline constexpr int SyntaxError = -2147217900;
inline constexpr int MissingParameter = -2147217904;
inline constexpr int MissingTable = -2147217865;
inline constexpr int TableExists = -2147217857;
inline constexpr int TypeMismatch = -2147217913;
inline constexpr int FieldTooSmall = -2147217833;
inline constexpr int EmptyCommand = -2147217908;
inline constexpr int Failure = -2147467259;
inline constexpr int DuplicateValue = -2147467259; // a statement does not tell it from a Failure

inline constexpr int NoCurrentRecord = 3021;
inline constexpr int ItemNotFound = 3265;
inline constexpr int ObjectClosed = 3704;
inline constexpr int ObjectOpen = 3705;
inline constexpr int ProviderMissing = 3706;
inline constexpr int ConnectionClosed = 3709;

/// Something is wrong with the store file rather than with one statement: the disk is full, the file was
/// moved, it cannot be read or written. Callers that continue after a failed statement must not swallow this.
class StoreFailure : public Error
{
public:
    using Error::Error;
};

/// Another program holds the file. The statement has done nothing and can be tried again; the text names the
/// program where that is known.
class StoreLocked final : public StoreFailure
{
public:
    using StoreFailure::StoreFailure;
};

/// A group of writes could not be brought to the disk: what statements before wrote in it is gone, too.
class ChangesLost final : public StoreFailure
{
public:
    using StoreFailure::StoreFailure;
};

} // namespace jet
