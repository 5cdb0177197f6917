#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <list>
#include <string>

class QWidget;

/// Waits for windows to appear and lets the test drive each from inside the loop that
/// shows it. Fails the test on a modal window that nobody waits for or that is left open
/// by whoever drove it, closing it, so that nothing hangs; and on a window that never came.
class WindowWatch final : public QObject
{
public:
    WindowWatch();
    ~WindowWatch() override;

    void expect(const char *type, std::function<bool(QWidget *)> matches,
                std::function<void(QWidget *)> drive);
    void verify();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Expected
    {
        std::string type;
        std::function<bool(QWidget *)> matches;
        std::function<void(QWidget *)> drive;
    };

    void shown(QWidget *window);
    void driveInLoop(const QPointer<QWidget> &window, int levelBefore,
                     const std::function<void(QWidget *)> &drive);

    std::list<Expected> m_expected;
};
