#pragma once

#include "support/find.h"
#include "support/script.h"
#include "support/storetest.h"
#include "support/windowwatch.h"

#include <memory>

/// A store, the settings, the scripted user and the watch over windows: what a test of
/// windows needs. The shorthands are for the test's body.
class WindowTest : public StoreTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    void expectBox(const QString &text, int flags, int answer = box::ResultOk)
    {
        m_script->expectBox(text, flags, answer);
    }
    void expectFile(CommonDialog::Kind kind, const QString &filter, const QString &path)
    {
        m_script->expectFile(kind, filter, path);
    }
    [[nodiscard]] const std::vector<Script::Box> &asked() const { return m_script->asked(); }
    [[nodiscard]] QWidget *lastBoxOwner() const { return m_script->lastOwner(); }

    /// Drives the next window of the type that appears, once it is there and its loop
    /// runs. A modal window must be closed when the function returns.
    template <typename Window>
    void whenShown(std::function<void(Window &)> drive)
    {
        m_watch->expect(
            Window::staticMetaObject.className(),
            [](QWidget *window) { return dynamic_cast<Window *>(window) != nullptr; },
            [drive = std::move(drive)](QWidget *window) { drive(*dynamic_cast<Window *>(window)); });
    }

    /// Reports what was expected and has not come so far; the end of the test does so too.
    void verify();
    /// Runs what waits in the event loop, deletions too.
    static void settle();

private:
    std::unique_ptr<Script> m_script;
    std::unique_ptr<WindowWatch> m_watch;
};
