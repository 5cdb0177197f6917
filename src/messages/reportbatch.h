#pragma once

#include <QString>

class QWidget;
struct Report;

/// The end of a batch: the box that all went well when the report has no text, otherwise the result
/// window with the heading above the text. A cancelled batch ends like a finished one. That the store was
/// lost is said in front.
void reportBatch(QWidget *owner, const Report &report, const QString &failureHeading);
