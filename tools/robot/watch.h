#pragma once

#include <QString>

#include "app/action.h"
#include "core/GameState.h"
#include "screen.h"
#include "ui/QtFrontEnd.h"

namespace torvenhall::robot
{

/// What must hold after each action, once the event loop has nothing to do.
class Watch
{
public:
    Watch(const Screen& newScreen, const QtFrontEnd& newFrontEnd)
        : screen(newScreen), frontEnd(newFrontEnd)
    {
    }

    /// The first thing that does not hold, or nothing. `last` is what was done.
    QString Violation(const Action& last);
    /// What is still there when the event loop has ended.
    QString LeftAtTheEnd() const;

    int newGames = 0;
    int checks = 0;

private:
    /// What time alone, or nothing, may change.
    struct Moment {
        bool newGame = false, still = false, day = false;
        int life = 0;
        Date date;
        TimeOfDay time;
        Game game;
        std::string message;
    };
    using Rule = QString (Watch::*)() const;

    Moment Now() const;
    int Count(const QString& name) const;
    QString WrongWindows() const;
    QString WrongLabels() const;
    QString OldWindow() const;
    QString LeftWaiting() const;
    QString NestedLoop() const;
    QString OverLastBox() const;
    QString Reopened() const;
    QString NotFresh() const;
    QString RanBack() const;
    QString WentOnWhileStill(const Action& last) const;
    QString StrayFile() const;

    const Screen& screen;
    const QtFrontEnd& frontEnd;
    Moment before, now;
    bool begun = false;
    bool closing = false; ///< the closing question has been asked
};

} // namespace torvenhall::robot
