#pragma once

#include <QString>

/// The clipboard holds this text and nothing else afterwards.
void setClipboardText(const QString &text);
