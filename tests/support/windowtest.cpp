#include "support/windowtest.h"

#include "toolkit/pointer.h"

void WindowTest::SetUp()
{
    StoreTest::SetUp();
    m_script = std::make_unique<Script>();
    m_watch = std::make_unique<WindowWatch>();
}

void WindowTest::TearDown()
{
    settle();
    m_watch.reset();
    m_script.reset();
    EXPECT_FALSE(isHourglassShown()) << "The hourglass was left on.";
    showHourglass(false);
    StoreTest::TearDown();
}

void WindowTest::verify()
{
    m_script->verify();
    m_watch->verify();
}

void WindowTest::settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}
