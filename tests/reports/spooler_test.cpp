#include "base/error.h"
#include "base/errornumbers.h"
#include "platform/printing/printers.h"
#include "support/find.h"
#include "support/storetest.h"

#include <QDir>
#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

const QString daemonPath = u"/usr/sbin/cupsd"_s;

// The star is the folder of the test.
constexpr char serviceConfiguration[] = R"(Listen */socket
<Location />
Allow all
</Location>
<Location /admin>
Allow all
</Location>
<Policy default>
<Limit All>
Allow all
</Limit>
</Policy>
)";
constexpr char filesConfiguration[] = R"(FileDevice Yes
ServerRoot */root
RequestRoot */spool
CacheDir */cache
StateDir */state
TempDir */spool
AccessLog */access
ErrorLog */errors
PageLog */pages
)";

/// A print service of the test's own, with two queues: Paper takes jobs and Closed refuses them.
class SpoolerTest : public FolderTest
{
protected:
    void SetUp() override
    {
        FolderTest::SetUp();
        if (!QFile::exists(daemonPath))
            GTEST_SKIP() << "cupsd is not installed";
        for (const QString &folder : {u"root"_s, u"spool"_s, u"cache"_s, u"state"_s})
            ASSERT_TRUE(QDir().mkpath(path(folder)));
        write(u"cupsd.conf"_s, serviceConfiguration);
        write(u"cups-files.conf"_s, filesConfiguration);
        // The printing library reads it once: no other test of this program asks the service.
        qputenv("CUPS_SERVER", path(u"socket"_s).toUtf8());
        m_service.start(daemonPath,
                        {u"-f"_s, u"-c"_s, path(u"cupsd.conf"_s), u"-s"_s, path(u"cups-files.conf"_s)});
        if (!waitFor([&] { return QFile::exists(path(u"socket"_s)); }))
            GTEST_SKIP() << "cupsd does not start; it needs root";
        // Queues that pass every job on as it is, to nowhere.
        for (const QString &name : {u"Paper"_s, u"Closed"_s})
            manage(u"lpadmin"_s, {u"-p"_s, name, u"-E"_s, u"-v"_s, u"file:///dev/null"_s, u"-m"_s, u"raw"_s});
        manage(u"lpadmin"_s, {u"-d"_s, u"Paper"_s});
        manage(u"cupsreject"_s, {u"Closed"_s});
    }

    void TearDown() override
    {
        m_service.terminate();
        m_service.waitForFinished();
        qunsetenv("CUPS_SERVER");
    }

    static void manage(const QString &program, const QStringList &arguments)
    {
        EXPECT_EQ(QProcess::execute(u"/usr/sbin/"_s + program, arguments), 0) << qPrintable(program);
    }

    void write(const QString &name, const char *text) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(text).replace('*', path(u"."_s).toUtf8()));
    }

private:
    QProcess m_service;
};

} // namespace

TEST_F(SpoolerTest, JobsAreTakenOrTheReasonIsReported)
{
    QStringList names = printing::printerNames();
    names.sort();
    EXPECT_EQ(names, (QStringList{u"Closed"_s, u"Paper"_s}));
    EXPECT_EQ(printing::defaultPrinterName(), u"Paper"_s);

    const QByteArray document = "%PDF-1.4\n" + QByteArray(300'000, 'x');
    printing::print(u"Paper"_s, u"-All Users"_s, document);
    QFile job(path(u"spool/d00001-001"_s));
    ASSERT_TRUE(job.open(QIODevice::ReadOnly));
    EXPECT_TRUE(job.readAll() == document);

    const struct
    {
        QString printer;
        QString reason;
    } refusals[] = {{u"Closed"_s, u"not accepting jobs"_s}, {u"Gone"_s, u"does not exist"_s}};
    for (const auto &[printer, reason] : refusals) {
        try {
            printing::print(printer, u"All Users"_s, document);
            ADD_FAILURE() << "taken by " << qPrintable(printer);
        } catch (const Error &error) {
            EXPECT_EQ(error.number(), PrinterError);
            EXPECT_TRUE(error.description().startsWith("The Printer '"_L1 + printer)) << error.what();
            EXPECT_TRUE(error.description().contains(reason)) << error.what();
        }
    }
}
