#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <initializer_list>
#include <span>

/// A value and the marker it takes the place of.
struct Filling
{
    QLatin1StringView marker;
    QStringView value;
};

/// The text of a statement, whole and searchable in the source, with every {marker} replaced
/// by its value as it stands: nothing is escaped, and a value is not looked into for markers.
/// All statements made of one text differ in their literals alone, so the store compiles
/// them once.
[[nodiscard]] QString joined(QLatin1StringView text, std::span<const Filling> fillings);
[[nodiscard]] QString joined(QLatin1StringView text, std::initializer_list<Filling> fillings);

/// The same for a statement whose only marker is {id}.
[[nodiscard]] QString withId(QLatin1StringView text, qint64 id);
