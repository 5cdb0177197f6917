#pragma once

#include "platform/jet/recordset.h"
#include "session/connectionstring.h"
#include "views/lists.h"
#include "views/modRender.h"

#include <QComboBox>

/// Fills a list of choices with what a method of a record class reads: field 1 is the text, field 0 its
/// number. The text that is typed stays.
template <auto method>
void fillChoices(QComboBox &combo)
{
    const QString typed = combo.currentText();
    jet::Recordset rows;
    readAll<method>(getConnectionString(), rows);
    combo.clear();
    modRender::fillComboFromRecordset(rows, combo);
    combo.setCurrentIndex(-1);
    combo.setEditText(typed);
}
