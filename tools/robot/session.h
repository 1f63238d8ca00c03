#pragma once

#include <QTemporaryDir>

#include <optional>

#include "app/recorder.h"
#include "player.h"
#include "watch.h"

namespace torvenhall::robot
{

/// What came of the actions.
struct Outcome {
    QString violation;       ///< the first thing that did not hold, or nothing
    QString digest;          ///< of every box so far, the last state and the saved games
    QStringList differences; ///< where a replay left its file
    std::map<QString, int> figures;
};

/// Plays the game in its real windows, in a folder of its own, as often as the
/// program is started. Only the actions make the time pass.
class Session
{
public:
    /// Writes what is done in one file and, as the game's own recorder sees it,
    /// in another one; either may be nothing.
    Session(Source& newSource, Journal* newJournal, Journal* newRecord);

    Outcome Play();

private:
    class Program;

    void RunProgram(const QString& seed);
    void Finish();

    Source& source;
    Journal* journal;
    Journal* record;
    QTemporaryDir folder;
    Screen screen;
    Outcome outcome;
    bool over = false;
    std::optional<Action> ahead; ///< read, but not for the program that has ended
};

/// Plays a file.
class Replay final : public Source
{
public:
    explicit Replay(const QString& path);
    std::optional<Action> Next(const Screen& screen) override;
    void ProgramEnded() override {}
    void Refused() override {}

private:
    QList<Action> actions;
};

} // namespace torvenhall::robot
