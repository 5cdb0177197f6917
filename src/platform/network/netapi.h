#pragma once

#include <QString>

#include <memory>

/// The calls of the network service, one method a call: typed records in place of
/// buffers, status codes as the platform returns them. A record is filled only when the
/// status is Success. An empty server is the local machine.
namespace net {

using Status = int;
inline constexpr Status Success = 0;
inline constexpr Status NoNetwork = 1222;
inline constexpr Status DCNotFound = 2453;

struct WorkstationInfo // level 101
{
    int platformId = 0;
    QString computerName;
    QString lanGroup;
    int versionMajor = 0;
    int versionMinor = 0;
    QString lanRoot;
};

struct WorkstationUserInfo // level 1
{
    QString userName;
    QString logonDomain;
    QString otherDomains;
    QString logonServer;
};

class NetApi
{
public:
    NetApi() = default;
    NetApi(const NetApi &) = delete;
    NetApi &operator=(const NetApi &) = delete;
    virtual ~NetApi() = default;

    virtual Status wkstaGetInfo(const QString &server, WorkstationInfo &info) = 0;
    virtual Status wkstaUserGetInfo(WorkstationUserInfo &info) = 0;
    /// The controller comes with its two leading backslashes.
    virtual Status getDCName(const QString &server, const QString &domain, QString &controller) = 0;
};

/// The installed back end; offline until one is installed.
[[nodiscard]] NetApi &api();
/// Nothing installs the offline back end again.
void installApi(std::unique_ptr<NetApi> api);

} // namespace net
