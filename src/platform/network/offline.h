#pragma once

#include "platform/network/netapi.h"

namespace net {

/// A machine without a network: every call says so.
class OfflineApi final : public NetApi
{
public:
    Status wkstaGetInfo(const QString &, WorkstationInfo &) override { return NoNetwork; }
    Status wkstaUserGetInfo(WorkstationUserInfo &) override { return NoNetwork; }
    Status getDCName(const QString &, const QString &, QString &) override { return NoNetwork; }
};

} // namespace net
