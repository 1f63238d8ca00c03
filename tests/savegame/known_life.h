#pragma once

#include <string>

#include "core/GameState.h"

namespace torvenhall::test
{

inline const std::string KnownLifeFile = TORVENHALL_TEST_DATA "known-life.QVS";

/// The life of the kept file.
inline GameStateRecord KnownLife()
{
    GameStateRecord life;
    // clang-format off
    life.Money = -1234567; life.Happy = -74; life.Health = -49; life.EatLevel = 150;
    life.GameTime = {23, 45}; life.GameDate = MakeDate(29, 2, 2004); life.GameSpeed = 15;
    life.PlayerName = "Ёжик Петров"; life.GameLevel = 2; life.WinMoney = 5000;
    life.CurrWork = 5; life.WorkTitle = "Дизайнер"; life.WorkPay = 95;
    life.HardCPU = 9; life.HardRAM = 7; life.HardVideo = 6; life.HardHDD = 5; life.HardCDROM = 4;
    life.HardComm = 3; life.HardSound = 2; life.HardScanner = 1; life.HardPrinter = 0;
    life.SoftOS = 3; life.SoftAntivirus = 1; life.SoftProgramming = 2; life.SoftGraphic = 4;
    life.SoftBrowser = 5; life.SoftGames = 6; life.SoftSize = 321;
    life.AttendCourses = True; life.AttendSchool = False; life.Education = 6; life.Intelligence = 99;
    life.Married = False; life.WifeFound = True; life.Daughters = 2; life.Sons = 1; life.Alimony = 150;
    // clang-format on
    return life;
}

} // namespace torvenhall::test
