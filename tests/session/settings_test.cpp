#include "base/error.h"
#include "base/errornumbers.h"
#include "platform/settings/settings.h"
#include "session/connectionstring.h"
#include "session/modRegistry.h"
#include "support/storetest.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class SettingsTest : public FolderTest
{
protected:
    /// The file as a user's editor leaves it.
    static void writeFile(const QByteArray &lines)
    {
        const QString name = settings::fileOf(u"Kelvane"_s);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(name).path()));
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[General]\n" + lines + "\n");
    }

    static void store(const QString &key, const QString &text)
    {
        settings::saveSetting(u"Kelvane"_s, u"General"_s, key, text);
    }
};

struct BooleanSetting
{
    const char *key;
    bool defaultValue;
    bool (*read)();
    void (*save)(bool);
};

constexpr BooleanSetting booleanSettings[] = {
    {"AlwaysAskServer", true, modRegistry::getAlwaysAskServer, modRegistry::saveAlwaysAskServer},
    {"ShowGridLines", true, modRegistry::getShowGridLines, modRegistry::saveShowGridLines},
    {"ShowNTIcon", true, modRegistry::getShowNTIcon, modRegistry::saveShowNTIcon},
    {"MaximizeWindows", false, modRegistry::getMaximizeWindows, modRegistry::saveMaximizeWindows},
    {"ShowSideBar", true, modRegistry::getShowSideBar, modRegistry::saveShowSideBar},
};

} // namespace

TEST_F(SettingsTest, BooleansHaveDefaultsAndAreKeptAsText)
{
    for (const BooleanSetting &setting : booleanSettings) {
        SCOPED_TRACE(setting.key);
        const QString key = QString::fromLatin1(setting.key);
        EXPECT_EQ(setting.read(), setting.defaultValue);

        setting.save(!setting.defaultValue);
        EXPECT_EQ(setting.read(), !setting.defaultValue);
        EXPECT_EQ(settings::getSetting(u"Kelvane"_s, u"General"_s, key),
                  setting.defaultValue ? u"False"_s : u"True"_s);
    }
}

TEST_F(SettingsTest, TextThatIsNoBooleanReadsAsFalse)
{
    struct Case
    {
        const char *text;
        bool value;
    };
    constexpr Case cases[] = {
        {"True", true},   {"true", true}, {"False", false}, {"-1", true},           {"0", false},
        {"maybe", false}, {"", false},    {"yes", false},   {"True, False", false},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.text);
        store(u"ShowGridLines"_s, QString::fromLatin1(row.text));
        EXPECT_EQ(modRegistry::getShowGridLines(), row.value);
    }
}

TEST_F(SettingsTest, TextsComeBackAsTheyWereStored)
{
    const QStringList texts = {
        u"C:\\Data\\Plan of 2005, new.mdb"_s,
        u"/srv/Büro/\"plan\" $;=%.mdb"_s,
        u" blanks "_s,
        u"@Invalid()"_s,
        u"数据/план"_s,
        u""_s,
    };
    for (const QString &text : texts) {
        SCOPED_TRACE(qPrintable(text));
        modRegistry::saveDataBase(text);
        EXPECT_EQ(modRegistry::getDataBase(), text);
    }
}

TEST_F(SettingsTest, AnEmptyTextIsNotAMissingKey)
{
    EXPECT_EQ(settings::getSetting(u"Kelvane"_s, u"General"_s, u"DefaultDC"_s, u"none"_s), u"none"_s);
    modRegistry::saveDefaultDC({});
    EXPECT_EQ(settings::getSetting(u"Kelvane"_s, u"General"_s, u"DefaultDC"_s, u"none"_s), u""_s);
}

TEST_F(SettingsTest, ReadsWhatAUserWroteIntoTheFile)
{
    writeFile("DataBase=/srv/plan,new.mdb\nMaximizeWindows=1\nShowSideBar=no");
    EXPECT_EQ(modRegistry::getDataBase(), u"/srv/plan,new.mdb"_s);
    EXPECT_TRUE(modRegistry::getMaximizeWindows());
    EXPECT_FALSE(modRegistry::getShowSideBar());
    EXPECT_TRUE(modRegistry::getShowGridLines());
}

TEST_F(SettingsTest, AValueIsOnDiskWhenTheWriterReturns)
{
    modRegistry::saveDefaultDC(u"CENTRAL"_s);
    QFile file(settings::fileOf(u"Kelvane"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("DefaultDC=CENTRAL"));
}

TEST_F(SettingsTest, AFileThatCannotBeWrittenIsNamed)
{
    // A file stands where the folder of the settings should be.
    QFile inTheWay(path(u"Kelvane"_s));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    ASSERT_FALSE(attempt([] { modRegistry::saveShowSideBar(false); }));
    EXPECT_EQ(currentError().number, FileAccessError);
    EXPECT_TRUE(currentError().description.contains(settings::fileOf(u"Kelvane"_s)));
    EXPECT_TRUE(modRegistry::getShowSideBar());
}

TEST_F(SettingsTest, ConnectionStringFollowsTheSetting)
{
    EXPECT_EQ(getConnectionString(),
              u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=;Persist Security Info=False"_s);
    modRegistry::saveDataBase(u"/srv/plan$.mdb"_s);
    EXPECT_EQ(getConnectionString(),
              u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=/srv/plan$.mdb;Persist Security Info=False"_s);
}
