#include "views/livehooks.h"

LiveHooks &liveHooks()
{
    static LiveHooks installed;
    return installed;
}
