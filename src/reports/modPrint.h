#pragma once

#include "views/families.h"

class ListView;
class Steps;

namespace printing {
class PageDevice;
}

/// A list on paper, as it is shown.
namespace modPrint {

/// Op::PrintData of every mode.
[[nodiscard]] std::span<const OpRow> handlers();

/// Asks the owner's user which columns, and prints them of all rows under a header on each page. Each page is
/// a document of its own. Nothing is printed without a column, and what is printed ends when the steps are
/// cancelled.
void printList(QWidget *owner, const ListView &list, const QString &title, printing::PageDevice &printer,
               int copies, Steps &steps);

} // namespace modPrint
