#pragma once

#include <string>

#include "system/calendar.h"
#include "system/checked.h"

namespace torvenhall
{

/// The whole game. Displayed fields change only through their setters
/// (core/basGame.h, SetWork, SetSoftSize), which keep the main window current
/// and check for death.
struct Game {
    // Installed software: index into the category's list, 0 = none.
    Int16 SoftOS, SoftProgramming, SoftAntivirus, SoftGraphic, SoftBrowser, SoftGames;
    Int16 SoftSize; ///< other software, megabytes

    // Installed hardware: index into the category's list, 0 = none.
    Int16 HardCPU, HardRAM, HardVideo, HardHDD, HardCDROM, HardComm, HardSound, HardScanner,
        HardPrinter;

    Int32 Money;    ///< dollars, may be negative
    Int16 Happy;    ///< mood, percent; fatal at -75
    Int16 Health;   ///< percent; fatal at -50
    Int16 EatLevel; ///< satiety, percent; fatal at -35

    Date GameDate = FirstDay;
    TimeOfDay GameTime;
    Int16 GameSpeed = 30; ///< game minutes per tick

    Int16 WinMoney;   ///< cash that must be exceeded to win
    Int16 GameLevel;  ///< 0 hard, 1 normal, 2 easy
    Int16 Restarting; ///< True while a new game closes all windows

    Int16 WifeFound, Married; ///< Booleans
    Int16 Sons, Daughters;
    Int16 Alimony; ///< dollars a month

    Int16 Education;                   ///< status rank 1..8
    Int16 Intelligence;                ///< percent
    Int16 AttendCourses, AttendSchool; ///< Booleans; a new game leaves them

    std::string PlayerName;
    Int16 WorkPay; ///< dollars a day
    std::string WorkTitle;
    Int16 CurrWork; ///< job 0..12
};

inline Game GameState;

} // namespace torvenhall
