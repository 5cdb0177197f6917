#pragma once

#include "base/steps.h"

#include <QStringList>

#include <functional>

/// The user behind long work without a window: cancels at a step, and keeps what was shown.
class ScriptedSteps final : public Steps
{
public:
    int cancelAt = 0; ///< the number of the step, counted over all phases; 0 for never
    std::function<void(const QString &item)> onStep;
    std::function<bool(const QString &reason)>
        onWait; ///< whether to try again; without it the wait is cancelled

    QStringList phases;
    QStringList items;
    QStringList waits;

    void phase(const QString &title, int, int = 1) override { phases.append(title); }
    [[nodiscard]] bool step(const QString &item) override
    {
        items.append(item);
        if (onStep)
            onStep(item);
        return items.size() != cancelAt;
    }
    [[nodiscard]] bool wait(const QString &reason) override
    {
        waits.append(reason);
        return onWait && onWait(reason);
    }
};
