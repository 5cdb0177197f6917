#include "shelltest.h"

#include "assets/frmHW.h"
#include "assets/frmSWHWType.h"
#include "exchange/modImport.h"
#include "folders/frmFolderDefaultPermissions.h"
#include "reports/frmSelectPrinter.h"
#include "shell/frmOptions.h"
#include "sync/frmUser.h"
#include "views/families.h"
#include "views/frmListFind.h"
#include "views/frmNewEdit.h"
#include "views/frmSelectServer.h"
#include "views/listpane.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

/// What a window must hold whatever it is about.
class WindowRules final
{
public:
    explicit WindowRules(QWidget &window) : m_window(window) {}

    void check()
    {
        SCOPED_TRACE(qPrintable(m_window.objectName()));
        auto *tabs = m_window.findChild<QTabWidget *>();
        for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
            if (tabs)
                tabs->setCurrentIndex(tab);
            QCoreApplication::processEvents();
            SCOPED_TRACE(tab);
            everyInputHasAName();
            noMnemonicIsTakenTwice();
            nothingIsCutOff();
            tabGoesInReadingOrder();
        }
    }

private:
    template <typename Widget>
    [[nodiscard]] QList<Widget *> shown() const
    {
        QList<Widget *> found = m_window.findChildren<Widget *>();
        found.removeIf([this](const QWidget *widget) {
            return !widget->isVisibleTo(&m_window) || widget->objectName().startsWith("qt_"_L1);
        });
        return found;
    }

    static bool isInput(const QWidget *widget)
    {
        const bool partOfAnother = qobject_cast<QComboBox *>(widget->parentWidget()) != nullptr;
        return !partOfAnother &&
               (qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QComboBox *>(widget) ||
                qobject_cast<const QPlainTextEdit *>(widget) ||
                qobject_cast<const QAbstractButton *>(widget));
    }

    void everyInputHasAName() const
    {
        for (const QWidget *widget : shown<QWidget>()) {
            if (!isInput(widget))
                continue;
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            EXPECT_TRUE(!widget->accessibleName().isEmpty() || (button && !button->text().isEmpty()) ||
                        widget->objectName().isEmpty())
                << qPrintable(widget->objectName());
        }
    }

    void noMnemonicIsTakenTwice() const
    {
        QHash<QChar, QString> taken;
        const auto take = [&taken](const QString &text, const QString &name) {
            const QKeySequence key = QKeySequence::mnemonic(text);
            if (key.isEmpty())
                return;
            const QChar letter = text.at(text.indexOf(u'&') + 1).toLower();
            EXPECT_FALSE(taken.contains(letter))
                << letter.toLatin1() << ": " << qPrintable(taken.value(letter)) << " and "
                << qPrintable(name);
            taken.insert(letter, name);
        };
        for (const QAbstractButton *button : shown<QAbstractButton>())
            take(button->text(), button->objectName());
        for (const QLabel *label : shown<QLabel>())
            if (label->buddy())
                take(label->text(), label->objectName());
    }

    void nothingIsCutOff() const
    {
        const auto fits = [](const QWidget *widget) {
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << qPrintable(widget->objectName());
            EXPECT_GE(widget->height(), widget->minimumSizeHint().height())
                << qPrintable(widget->objectName());
        };
        for (const QAbstractButton *button : shown<QAbstractButton>())
            fits(button);
        for (const QLabel *label : shown<QLabel>())
            if (label->buddy())
                fits(label);
    }

    // The next field is never left of and above the one before.
    void tabGoesInReadingOrder() const
    {
        QList<const QWidget *> order;
        const QWidget *first = &m_window;
        for (const QWidget *next = first->nextInFocusChain(); next != first; next = next->nextInFocusChain())
            if (isInput(next) && next->isVisibleTo(&m_window) && m_window.isAncestorOf(next) &&
                (next->focusPolicy() & Qt::TabFocus) != 0)
                order.append(next);
        for (qsizetype i = 1; i < order.size(); ++i) {
            const QPoint before = order[i - 1]->mapTo(&m_window, QPoint());
            const QPoint after = order[i]->mapTo(&m_window, QPoint());
            const bool isBack = after.y() + order[i]->height() <= before.y() && after.x() <= before.x();
            EXPECT_FALSE(isBack) << qPrintable(order[i - 1]->objectName()) << " is followed by "
                                 << qPrintable(order[i]->objectName());
        }
    }

    QWidget &m_window;
};

class WindowsTest : public ShellTest, public testing::WithParamInterface<double>
{
protected:
    void SetUp() override
    {
        ShellTest::SetUp();
        m_font = QApplication::font();
        QFont font = m_font;
        font.setPointSizeF(font.pointSizeF() * GetParam());
        QApplication::setFont(font);
        start();
    }
    void TearDown() override
    {
        ShellTest::TearDown();
        QApplication::setFont(m_font);
    }

    void checkShown(QWidget &window)
    {
        window.show();
        settle();
        WindowRules(window).check();
    }

private:
    QFont m_font;
};

} // namespace

TEST_P(WindowsTest, EveryWindowKeepsTheRulesOfAllWindows)
{
    frmMain &window = mainForm();
    window.resize(1280, 900);
    checkShown(window);
    runWithoutList(&window, Mode::Users, Op::ListAll);
    settle();
    checkShown(*activeView());

    constexpr frmNewEdit::Action action{.caption = "Add New Folder"_L1, .bannerPicture = 4, .isFolder = true};
    frmNewEdit newEdit(&window, action, {}, {}, {});
    constexpr frmSWHWType::Action catalogue{.caption = "Add New Software"_L1,
                                            .bannerPicture = 8,
                                            .typeLabel = "Software Type"_L1,
                                            .nameLabel = "Software Name"_L1,
                                            .versionLabel = "Version Number"_L1};
    frmSWHWType software(&window, catalogue, {}, {});
    frmHW hardware(&window, frmHW::Action::NewHW, {}, {});
    frmUser user(&window, frmUser::Action::NewUser);
    frmFolderDefaultPermissions permissions(&window, {}, {});
    frmSelectServer server(&window);
    frmSelectPrinter printer(&window);
    frmOptions options(window);
    for (QWidget *dialog :
         QWidgetList{&newEdit, &software, &hardware, &user, &permissions, &server, &printer, &options})
        checkShown(*dialog);
    whenShown<frmListFind>([](frmListFind &find) {
        WindowRules(find).check();
        find.reject();
    });
    activeView()->listDisplay->find(1);
}

INSTANTIATE_TEST_SUITE_P(Sizes, WindowsTest, testing::Values(1.0, 2.0));
