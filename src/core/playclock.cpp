#include "core/playclock.h"

#include <utility>

#include "core/port.h"
#include "core/remembered.h"

namespace torvenhall
{

namespace
{

struct PlayClock {
    bool paused = false;
    int stops = 0;
    double stoppedAt = 0;
    double lost = 0; ///< seconds that passed while it stood still
};
Remembered<PlayClock> play;

void Stop()
{
    if (play->stops++ == 0) {
        play->stoppedAt = WallSeconds();
    }
}

void GoOn()
{
    if (--play->stops == 0) {
        play->lost += WallSeconds() - play->stoppedAt;
        Windows().EndPauses(); // each counts what is left of it
    }
}

} // namespace

double PlaySeconds()
{
    return (PlayStandsStill() ? play->stoppedAt : WallSeconds()) - play->lost;
}

bool PlayStandsStill()
{
    return play->stops > 0;
}

void SetPaused(bool paused)
{
    if (std::exchange(play->paused, paused) != paused) {
        paused ? Stop() : GoOn();
    }
}

StandStill::StandStill()
{
    Stop();
}

StandStill::~StandStill()
{
    GoOn();
}

} // namespace torvenhall
