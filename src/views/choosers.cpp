#include "views/choosers.h"

Choosers &choosers()
{
    static Choosers installed;
    return installed;
}
