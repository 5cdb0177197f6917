#include "platform/network/netapi.h"

#include "platform/network/offline.h"

namespace net {
namespace {

std::unique_ptr<NetApi> &installed()
{
    static std::unique_ptr<NetApi> backEnd = std::make_unique<OfflineApi>();
    return backEnd;
}

} // namespace

NetApi &api()
{
    return *installed();
}

void installApi(std::unique_ptr<NetApi> api)
{
    installed() = api ? std::move(api) : std::make_unique<OfflineApi>();
}

} // namespace net
