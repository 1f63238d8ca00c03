#include "saves.h"

#include "activities/work.h"
#include "core/basGame.h"
#include "equipment/basEquipment.h"
#include "equipment/catalogue.h"
#include "savegame/format.h"
#include "ui/widgets/qtext.h"

namespace torvenhall::robot
{

namespace
{

void FillComputer(Chance& chance, bool complete)
{
    for (int category = 0; category < HardwareCategories; ++category) {
        Int16 last = 0;
        while (GetHardwarePrice(category, last + 1) > 0) {
            last = last + 1;
        }
        HardwareField(category) = complete ? last : Int16(Below(chance, last.value() + 1));
    }
    for (int category = 0; category < SoftwareCategories; ++category) {
        SoftwareField(category) = Below(chance, complete ? 2 : 4);
    }
}

Date AnyDate(Chance& chance)
{
    using namespace std::chrono;
    const auto aYear = year{2001 + Below(chance, 30)};
    switch (Below(chance, 4)) {
    case 0:
        return aYear / 12 / 31;
    case 1:
        return sys_days{aYear / month(1 + static_cast<unsigned>(Below(chance, 12))) / last};
    case 2:
        return Below(chance, 8) == 0 ? LastDay : Date(year{2004} / 2 / 28);
    default:
        return aYear / 6 / (1 + Below(chance, 28));
    }
}

/// Fills GameState, which the caller keeps.
void Invent(Chance& chance)
{
    const bool rich = Below(chance, 3) == 0;
    const int vital = Below(chance, 3);
    GameState = {};
    GameState.PlayerName = "Герой";
    GameState.Money = rich ? 40000 : Below(chance, 3000) - 200;
    GameState.Happy = vital == 0 ? -76 + Below(chance, 12) : 20 + Below(chance, 80);
    GameState.Health = vital == 1 ? -51 + Below(chance, 12) : 20 + Below(chance, 80);
    GameState.EatLevel = vital == 2 ? -36 + Below(chance, 12) : 20 + Below(chance, 80);
    GameState.GameDate = AnyDate(chance);
    GameState.GameTime = {Below(chance, 3) == 0 ? 12 : 23, 0};
    GameState.GameLevel = Below(chance, 3);
    constexpr int speeds[]{15, 30, 60, 60};
    GameState.GameSpeed = AnyOf(chance, speeds);
    GameState.Education = 1 + Below(chance, TopRank);
    GameState.Intelligence = 20 + 10 * Below(chance, 9);
    GameState.CurrWork = rich ? TopJob : Below(chance, TopJob + 1);
    GameState.WifeFound = Below(chance, 2) == 0 ? True : False;
    GameState.Married = GameState.WifeFound == True && Below(chance, 3) > 0 ? True : False;
    GameState.Sons = Below(chance, 4);
    GameState.Daughters = Below(chance, 4);
    GameState.Alimony = GameState.Married == True ? 0 : 50 * Below(chance, 4);
    GameState.AttendSchool = Below(chance, 2) == 0 ? True : False;
    GameState.AttendCourses = Below(chance, 2) == 0 ? True : False;
    GameState.SoftSize = Below(chance, 500);
    FillComputer(chance, rich);
    if (Below(chance, 2) == 0) { // can go online
        GameState.HardComm = 1;
        GameState.SoftOS = GameState.SoftBrowser = 1;
    }
}

void Damage(Chance& chance, QByteArray& bytes)
{
    const int at = Below(chance, static_cast<int>(bytes.size()));
    switch (Below(chance, 4)) {
    case 0:
        bytes.truncate(at);
        break;
    case 1:
        bytes[at] = static_cast<char>(Below(chance, 256));
        break;
    case 2:
        bytes += bytes;
        break;
    default:
        bytes.remove(at, 1);
        break;
    }
}

} // namespace

Action EditedGame(Chance& chance)
{
    const Game kept = std::exchange(GameState, {});
    Invent(chance);
    QByteArray bytes = QByteArray::fromStdString(EncodeGame(GameState));
    GameState = kept;
    if (Below(chance, 6) == 0) {
        Damage(chance, bytes);
    }
    constexpr const char* names[]{"Герой", "День", "Ночь", "a", "b"};
    return {"game", AnyOf(chance, names), bytes.toBase64()};
}

} // namespace torvenhall::robot
