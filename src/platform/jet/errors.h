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

/// A group of writes could not be brought to the disk: what statements before wrote in it is gone, too.
/// Whoever goes on after a statement that failed must not pass this one over.
class ChangesLost final : public Error
{
public:
    using Error::Error;
};

} // namespace jet
