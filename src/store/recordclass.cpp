#include "store/recordclass.h"

void RecordClass::closeAfter(const Error &failure, StoreSession &store)
{
    try {
        store.close();
    } catch (const Error &second) {
        raise(failure.number(), failure.description() + u' ' + second.description());
    }
}
