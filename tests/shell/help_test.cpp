#include "shelltest.h"

#include "session/help.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

using namespace Qt::StringLiterals;

TEST_F(ShellTest, TheHelpPagesAreThereAndLeadWhereTheySay)
{
    QList<QUrl> opened;
    start();
    desktop::installOpener([&opened](const QUrl &url) {
        opened.append(url);
        return true;
    });
    trigger(u"mnuHelpOverView"_s);
    trigger(u"mnuHelpUserManual"_s);
    openHelp(u"manual.html#rules"_s);
    ASSERT_EQ(opened.size(), 3);
    EXPECT_EQ(opened[2].fragment(), u"rules"_s);
    static const QRegularExpression link(u"href=\"([^\"#]*)(?:#([^\"]*))?\""_s);
    for (const QUrl &page : opened) {
        QFile file(page.toLocalFile());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
        const QString text = QString::fromUtf8(file.readAll());
        for (auto found = link.globalMatch(text); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            if (!match.captured(1).isEmpty())
                EXPECT_TRUE(QFile::exists(QFileInfo(file).path() + u'/' + match.captured(1)))
                    << qPrintable(match.captured());
            else
                EXPECT_TRUE(text.contains("id=\""_L1 + match.captured(2) + u'"'))
                    << qPrintable(match.captured());
        }
    }
}
