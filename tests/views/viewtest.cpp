#include "viewtest.h"

#include "messages/status.h"
#include "views/openview.h"

#include <QMenuBar>

using namespace Qt::StringLiterals;

TestMainWindow::TestMainWindow() : m_area(new QMdiArea), m_status(new ::StatusBar(3))
{
    setCentralWidget(m_area);
    setStatusBar(m_status);
    const QString names[] = {u"ToolbarMain"_s, u"ToolBarDisplay"_s, u"ToolBarModalDisplay"_s};
    for (std::size_t i = 0; i < m_toolbars.size(); ++i) {
        m_toolbars[i] = addToolBar(names[i]);
        m_toolbars[i]->setObjectName(names[i]);
        m_toolbars[i]->setVisible(i == 0);
    }
    m_menus = new ViewMenus(this, *m_toolbars[1]);
    for (QMenu *menu : m_menus->menus())
        menuBar()->addMenu(menu);
    resize(1000, 700);
    setMainWindow(this);
    setStatusTarget(m_status, this);
}

TestMainWindow::~TestMainWindow()
{
    delete m_area;
    setStatusTarget(nullptr, nullptr);
    setMainWindow(nullptr);
}

QStringList TestMainWindow::shownToolbars() const
{
    QStringList names;
    for (const QToolBar *toolbar : m_toolbars)
        if (!toolbar->isHidden())
            names += toolbar->objectName();
    return names;
}

void ViewTest::SetUp()
{
    WindowTest::SetUp();
    window = std::make_unique<TestMainWindow>();
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
}

void ViewTest::TearDown()
{
    window.reset();
    WindowTest::TearDown();
}

void fill(jet::Recordset &recordset, const QStringList &fields, const std::vector<Record> &records)
{
    for (const QString &field : fields)
        recordset.fields().append(field, jet::FieldType::Variant, 0);
    recordset.open();
    for (const Record &record : records) {
        recordset.addNew();
        for (std::size_t i = 0; i < record.size(); ++i)
            if (!record[i].isNull())
                recordset.fields().item(int(i)).setValue(record[i]);
    }
}

frmDisplay *ViewTest::open(Mode mode, const QString &title, const QStringList &fields,
                           const std::vector<Record> &records, frmDisplay *view)
{
    return openView(window.get(), view, mode, title,
                    [&](const QString &, jet::Recordset &recordset) { fill(recordset, fields, records); });
}

frmDisplay *ViewTest::openUsers(const QString &title)
{
    return open(Mode::Users, title,
                {u"UserID"_s, u"LastName"_s, u"FirstName"_s, u"UserName"_s, u"ServerName"_s},
                {{Value(11), Value(u"Ames"_s), Value(u"Ann"_s), Value(u"ames"_s), Value(u"SRV1"_s)},
                 {Value(12), Value(u"Burr"_s), Value(), Value(u"burr"_s), Value(u"SRV2"_s)}});
}
