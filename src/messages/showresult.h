#pragma once

#include <QString>

/// Shows the one result window, modeless, with the text and the title in its banner.
void showResult(const QString &text, const QString &title);
