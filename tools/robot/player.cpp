#include "player.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>

#include <algorithm>

#include "app/recorder.h"

namespace torvenhall::robot
{

namespace
{

constexpr const char* Names[]{"Иван",    "Анна", "<b>Y</b>", "../../etc",        "a/b",
                              "CON",     "%s%n", " ",        "Введите Ваше имя", "x\u202Ey",
                              "\uFEFFz", "Ж",    "😀",        "a\"b\\c"};

constexpr const char* Cheats[]{"QUOKKAFOX", "QUOKKAFOX", "ZEPHR",     "MARLIN", "WOMBAT",
                               "TANGERINE", "PELICAN",   "quokkafox", "чит"};

constexpr const char* Keys[]{"Esc",    "Return",    "Tab",    "Shift+Tab", "Up",
                             "Down",   "Left",      "Right",  "Home",      "End",
                             "PgDown", "Ctrl+S",    "Ctrl+O", "F1",        "F10",
                             "Ctrl+A", "Backspace", "Del",    "Alt+F4",    "Enter"};

constexpr const char* Letters[]{"p", "з", "w", "ц", " ", " ", "x"};

constexpr const char* Items[]{
    "mnuFileNewgame", "mnuGameUpgrade", "mnuGameSoft",   "mnuGameHappy", "mnuGameHosp",
    "mnuGameShop",    "mnugameWork",    "mnuGameSchool", "mnuGameInNet", "mnuLevelHard",
    "mnuLevelMiddle", "mnuLevelEasy",   "mnuSpeedFast",  "mnuSpeedFast", "mnuSpeedNormal",
    "mnuSpeedSlow",   "mnuhelpReadme",  "mnuHelpEULA",   "mnuHelpAbout", "mnuFileSavegame",
};

constexpr const char* Menus[]{"Файл", "Игра", "Уровень игры", "Скорость игры", "Справка"};

/// The title of the menu that has an item.
QString TitleOf(const QString& item)
{
    const std::pair<const char*, const char*> titles[]{{"mnuFile", Menus[0]},
                                                       {"mnuGame", Menus[1]},
                                                       {"mnuLevel", Menus[2]},
                                                       {"mnuSpeed", Menus[3]}};
    for (const auto& [beginning, title] : titles) {
        if (item.startsWith(beginning, Qt::CaseInsensitive)) {
            return title;
        }
    }
    return Menus[4];
}

std::deque<Action> ThroughMenu(const QString& item)
{
    return {{"click", "frmMain", TitleOf(item)}, {"menu", "frmMain", item}};
}

QString Row(Chance& chance, int rows)
{
    return QString::number(Below(chance, std::max(rows, 1)));
}

} // namespace

std::optional<Action> Monkey::Next(const Screen& screen)
{
    if (left-- <= 0) {
        return std::nullopt;
    }
    if (!running) {
        running = true;
        return Action{"start", QString::number(chance() % 1000000)};
    }
    return Choose(screen);
}

void Monkey::ProgramEnded()
{
    running = false;
    plan.clear();
}

QString Monkey::Pause()
{
    const int longest = Below(chance, 8) == 0 ? 60000 : Below(chance, 2) == 0 ? 6000 : 600;
    return QString::number((1 + Below(chance, longest)) / 1000.0, 'f', 3);
}

Action Monkey::Choose(const Screen& screen)
{
    if (Below(chance, 12) == 0) {
        plan.clear();
    }
    const auto windows = screen.Usable();
    if (windows.empty() || Below(chance, 4) == 0) {
        return {"wait", Pause()};
    }
    const auto isGone = [&](const Action& deed) {
        return deed.first() != "wait" && deed.first() != "game" &&
               std::ranges::none_of(
                   windows, [&](auto* each) { return each->objectName() == deed.value(1); });
    };
    // A click would go to the open menu or list, whatever lies beneath it.
    const auto fitsPopup = [](const Plan& next) {
        const bool title = !next.empty() && std::ranges::count(Menus, next.front().value(2)) > 0;
        return !next.empty() &&
               (title || (next.front().first() != "click" && next.front().first() != "open"));
    };
    const bool wayIsOpen = !QApplication::activePopupWidget() || fitsPopup(plan);
    if (plan.empty() || !wayIsOpen || isGone(plan.front())) {
        plan = NewPlan(*AnyOf(chance, windows));
    }
    const Action next = plan.front();
    plan.pop_front();
    return next;
}

Monkey::Plan Monkey::NewPlan(const QWidget& window)
{
    const QString name = window.objectName();
    const int draw = Below(chance, 100);
    if (QApplication::activePopupWidget()) {
        return PlanInPopup(name);
    }
    if (draw < 8) {
        return {AnyKey(name)};
    }
    if (draw < 12) {
        return {{"close", name}};
    }
    if (name == "frmMain") {
        return window.isMinimized() ? Plan{{"restore", name}} : PlanInMain(window);
    }
    if (name == "frmPlayerName" && draw < 90) {
        return PlanForName();
    }
    if (name == "InputBox" && draw < 80) {
        return {{"type", name, AnyOf(chance, Cheats)}, {"key", name, "Return"}};
    }
    if (name == "frmLocGame" && draw < 80) {
        return PlanForList(window);
    }
    return {AnyClick(window)};
}

Monkey::Plan Monkey::PlanInPopup(const QString& window)
{
    if (Below(chance, 3) == 0) {
        return {{"dismiss", window}};
    }
    if (window == "frmMain" && Below(chance, 2) == 0) {
        const Plan chosen = ThroughMenu(AnyOf(chance, Items));
        return Below(chance, 2) == 0 ? chosen : Plan{chosen.front()};
    }
    return {AnyKey(window)};
}

Monkey::Plan Monkey::PlanInMain(const QWidget& window)
{
    const QString name = window.objectName();
    switch (Below(chance, 14)) {
    case 0:
    case 1:
    case 2:
    case 3: // and lives on
        return {EditedGame(chance),
                {"click", name, Menus[0]},
                {"menu", name, "mnuFileLoadgame"},
                {"choose", "frmLocGame", "List1", Row(chance, 5)},
                {"key", "frmLocGame", "Return"},
                {"wait", Pause()},
                {"wait", Pause()}};
    case 4:
        return {{"key", name, Below(chance, 2) == 0 ? "Ctrl+S" : "Ctrl+O"}};
    case 5:
        return {{"type", name, "w"}};
    case 6:
        return {{"type", name, "p"}, {"wait", Pause()}};
    case 7: {
        Plan leaving = ThroughMenu("mnuFileExit");
        leaving.push_back({"wait", Pause()});
        return Below(chance, 2) == 0 ? leaving : Plan{{"wait", Pause()}};
    }
    case 8:
        return {{"click", name, "cmdInInet"},
                {"click", "frmNetwork", Below(chance, 2) == 0 ? "Command1" : "Command5"},
                {"wait", "11"},
                {"click", "frmNetwork", QString("cmdChangeLocation%1").arg(Below(chance, 3))}};
    case 9:
        return {{"click", name, AnyOf(chance, Menus)}, AnyKey(name), AnyKey(name)};
    case 10:
    case 11:
        return ThroughMenu(AnyOf(chance, Items));
    default:
        break;
    }
    return {AnyClick(window)};
}

Monkey::Plan Monkey::PlanForName()
{
    const QString name = "frmPlayerName";
    Plan chosen;
    if (Below(chance, 3) == 0) {
        chosen.push_back({"click", name, "Combo1"});
        chosen.push_back({"key", name, "Home"});
        chosen.push_back({"key", name, Below(chance, 2) == 0 ? "Down" : "End"});
        chosen.push_back({"key", name, "Return"});
        chosen.push_back({"click", name, "Text1"});
    }
    const QString typed =
        Below(chance, 12) == 0 ? QString(300, 'W') : QString(AnyOf(chance, Names));
    chosen.push_back({"key", name, "Ctrl+A"});
    chosen.push_back({"type", name, typed});
    chosen.push_back(Below(chance, 2) == 0 ? Action{"click", name, "Command1"}
                                           : Action{"key", name, "Return"});
    return chosen;
}

Monkey::Plan Monkey::PlanForList(const QWidget& window)
{
    const QString name = window.objectName();
    const auto* list = window.findChild<QListWidget*>("List1");
    const auto* field = window.findChild<QLineEdit*>("Text1");
    Plan chosen;
    if (list && list->count() > 0 && Below(chance, 4) > 0) {
        const char* deed = Below(chance, 3) == 0 ? "open" : "choose";
        chosen.push_back({deed, name, "List1", Row(chance, list->count())});
    } else if (field && field->isEnabled()) {
        chosen.push_back({"click", name, "Text1"});
        chosen.push_back({"key", name, "Ctrl+A"});
        chosen.push_back({"type", name, AnyOf(chance, Names)});
    }
    chosen.push_back(Below(chance, 2) == 0 ? Action{"click", name, "Command1"}
                                           : Action{"key", name, "Return"});
    return chosen;
}

Action Monkey::AnyKey(const QString& window)
{
    if (Below(chance, 3) == 0) {
        return {"type", window, AnyOf(chance, Letters)};
    }
    return {Below(chance, 20) == 0 ? "hold" : "key", window, AnyOf(chance, Keys)};
}

Action Monkey::AnyClick(const QWidget& window)
{
    const auto buttons = ButtonsOf(window);
    return buttons.empty()
               ? AnyKey(window.objectName())
               : Action{"click", window.objectName(), ControlName(*AnyOf(chance, buttons))};
}

} // namespace torvenhall::robot
