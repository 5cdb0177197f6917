#include "session/modRegistry.h"
#include "session/modServers.h"
#include "support/storetest.h"
#include "support/workstation.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ServersTest : public FolderTest
{
protected:
    void TearDown() override
    {
        net::installApi(nullptr);
        modServers::resolveSession();
    }
};

} // namespace

TEST_F(ServersTest, ADomainUserHasDomainComputerAndController)
{
    net::installApi(std::make_unique<Workstation>(u"HEADOFFICE"_s, u"\\\\CENTRAL"_s));
    modRegistry::saveDefaultDC(u"BACKUP"_s);
    modServers::resolveSession();
    EXPECT_EQ(modServers::getDomainName(), u"HEADOFFICE"_s);
    EXPECT_EQ(modServers::session().computer, u"PC7"_s);
    EXPECT_EQ(modServers::session().controller, u"CENTRAL"_s);
    EXPECT_EQ(modServers::getServerName(), u"CENTRAL"_s);
}

TEST_F(ServersTest, WithoutAControllerTheDefaultStandsIn)
{
    net::installApi(std::make_unique<Workstation>(u"PC7"_s, QString()));
    modServers::resolveSession();
    EXPECT_EQ(modServers::getDomainName(), u"PC7"_s);
    EXPECT_EQ(modServers::session().controller, QString());
    EXPECT_EQ(modServers::getServerName(), QString());
    modRegistry::saveDefaultDC(u"BACKUP"_s);
    EXPECT_EQ(modServers::getServerName(), u"BACKUP"_s);
}

TEST_F(ServersTest, WithoutANetworkNothingIsKnownAnyMore)
{
    net::installApi(std::make_unique<Workstation>(u"HEADOFFICE"_s, u"\\\\CENTRAL"_s));
    modServers::resolveSession();
    net::installApi(nullptr);
    net::WorkstationUserInfo user;
    EXPECT_EQ(net::api().wkstaUserGetInfo(user), net::NoNetwork);

    modServers::resolveSession();
    EXPECT_EQ(modServers::session().domain, QString());
    EXPECT_EQ(modServers::session().computer, QString());
    EXPECT_EQ(modServers::session().controller, QString());
}
