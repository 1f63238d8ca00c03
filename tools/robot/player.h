#pragma once

#include <deque>
#include <optional>

#include "saves.h"
#include "screen.h"

namespace torvenhall::robot
{

/// Where the actions come from.
class Source
{
public:
    virtual ~Source() = default;
    /// What is done next, chosen by what is on screen; nothing at the end.
    virtual std::optional<Action> Next(const Screen& screen) = 0;
    /// The program has ended; the next action begins it again.
    virtual void ProgramEnded() = 0;
    /// The last action could not be done.
    virtual void Refused() = 0;
};

/// A clumsy player without a plan, or with one that is given up at any moment.
class Monkey final : public Source
{
public:
    Monkey(quint64 seed, int actions) : chance(seed), left(actions) {}

    std::optional<Action> Next(const Screen& screen) override;
    void ProgramEnded() override;
    void Refused() override { plan.clear(); }

private:
    using Plan = std::deque<Action>;

    Action Choose(const Screen& screen);
    Plan NewPlan(const QWidget& window);
    Plan PlanInPopup(const QString& window);
    Plan PlanInMain(const QWidget& window);
    Plan PlanForName();
    Plan PlanForList(const QWidget& window);
    Action AnyKey(const QString& window);
    Action AnyClick(const QWidget& window);
    QString Pause();

    Chance chance;
    int left;
    bool running = false;
    Plan plan;
};

} // namespace torvenhall::robot
