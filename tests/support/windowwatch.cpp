#include "support/windowwatch.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

std::string nameOf(const QWidget *window)
{
    return window->metaObject()->className() + (" \"" + window->windowTitle().toStdString() + '"');
}

/// The progress window is modal, too, but the work that shows it has the loop.
bool runsALoop(const QWidget *window)
{
    return qobject_cast<const QDialog *>(window) && window->isModal() &&
           window->objectName() != QLatin1StringView("frmProgress");
}

} // namespace

WindowWatch::WindowWatch()
{
    qApp->installEventFilter(this);
}

WindowWatch::~WindowWatch()
{
    verify();
}

void WindowWatch::expect(const char *type, std::function<bool(QWidget *)> matches,
                         std::function<void(QWidget *)> drive)
{
    m_expected.push_back({type, std::move(matches), std::move(drive)});
}

void WindowWatch::verify()
{
    for (const Expected &expected : m_expected)
        ADD_FAILURE() << "The expected window was not shown: " << expected.type;
    m_expected.clear();
}

bool WindowWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && !event->spontaneous() && watched->isWidgetType())
        shown(static_cast<QWidget *>(watched));
    return QObject::eventFilter(watched, event);
}

void WindowWatch::shown(QWidget *window)
{
    const int level = QThread::currentThread()->loopLevel();
    for (auto expected = m_expected.begin(); expected != m_expected.end(); ++expected) {
        if (!expected->matches(window))
            continue;
        const std::function<void(QWidget *)> drive = std::move(expected->drive);
        m_expected.erase(expected);
        driveInLoop(window, level, drive);
        return;
    }
    if (runsALoop(window))
        driveInLoop(window, level, [](QWidget *unexpected) {
            ADD_FAILURE() << "Unexpected window: " << nameOf(unexpected);
            static_cast<QDialog *>(unexpected)->reject();
        });
}

void WindowWatch::driveInLoop(const QPointer<QWidget> &window, int levelBefore,
                              const std::function<void(QWidget *)> &drive)
{
    QTimer::singleShot(0, this, [=, this] {
        if (!window)
            return;
        const bool modal = runsALoop(window);
        // A dialog that yields while it is being shown has no loop of its own yet.
        if (modal && window->isVisible() && QThread::currentThread()->loopLevel() <= levelBefore) {
            driveInLoop(window, levelBefore, drive);
            return;
        }
        drive(window);
        auto *dialog = qobject_cast<QDialog *>(window.data());
        if (modal && dialog && dialog->isVisible()) {
            ADD_FAILURE() << "Left open: " << nameOf(dialog);
            dialog->reject();
        }
    });
}
