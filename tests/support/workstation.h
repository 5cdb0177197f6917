#pragma once

#include "platform/network/netapi.h"

#include <gtest/gtest.h>

/// A workstation PC7 of somebody who logged on to a domain, which may have a controller.
class Workstation final : public net::NetApi
{
public:
    Workstation(QString domain, QString controller)
        : m_domain(std::move(domain))
        , m_controller(std::move(controller))
    {
    }

    net::Status wkstaGetInfo(const QString &server, net::WorkstationInfo &info) override
    {
        EXPECT_TRUE(server.isEmpty());
        info.computerName = QStringLiteral("PC7");
        return net::Success;
    }
    net::Status wkstaUserGetInfo(net::WorkstationUserInfo &info) override
    {
        info.logonDomain = m_domain;
        return net::Success;
    }
    net::Status getDCName(const QString &server, const QString &domain, QString &controller) override
    {
        EXPECT_TRUE(server.isEmpty());
        EXPECT_EQ(domain, m_domain);
        controller = m_controller.isEmpty() ? QStringLiteral("\\\\LEFTOVER") : m_controller;
        return m_controller.isEmpty() ? net::DCNotFound : net::Success;
    }

private:
    QString m_domain;
    QString m_controller;
};
