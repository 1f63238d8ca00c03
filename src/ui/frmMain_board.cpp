// The dashboard of the main window: what stands where. All places in units.

#include "game/commands.h"
#include "game/entry.h"
#include "ui/frmMain.h"
#include "ui/widgets/button.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

constexpr double Left = 8;
constexpr double Right = 509.6;
constexpr double Gap = 4;
constexpr double Inner = Right - Left;

constexpr double ClockTop = 6;
constexpr double ClockHeight = 33;
constexpr double ClockWidth = 268;
constexpr double FactsTop = 43;
constexpr double TileHeight = 40;
constexpr double VitalsTop = FactsTop + TileHeight + Gap;
constexpr double ComputerTop = VitalsTop + TileHeight + Gap;
constexpr double RowHeight = 14.2;
constexpr double ComputerHeight = 22 + 9 * RowHeight + 6;
constexpr double SoftwareHeight = 22 + 7 * RowHeight + 2;
constexpr double HardwareWidth = 266;
constexpr double SoftwareWidth = Inner - Gap - HardwareWidth;
constexpr double CaptionWidth = 72;
constexpr double MessageTop = ComputerTop + ComputerHeight + Gap;
constexpr double MessageHeight = 55;
constexpr double ButtonsTop = MessageTop + MessageHeight + Gap;
constexpr double ButtonHeight = 27;

struct RowText {
    const char* caption;
    Label label;
};

constexpr RowText HardwareRows[] = {
    {"Процессор", Label::lblhard0}, {"ОЗУ", Label::lblhard1},    {"Видеокарта", Label::lblhard2},
    {"Винчестер", Label::lblhard3}, {"CD-ROM", Label::lblhard4}, {"Модем", Label::lblhard5},
    {"Звук", Label::lblhard6},      {"Сканер", Label::lblhard7}, {"Принтер", Label::lblhard8},
};
constexpr RowText SoftwareRows[] = {
    {"ОС:", Label::lblOs},           {"Прог-е:", Label::lblProg},   {"Антивирус:", Label::lblAntiv},
    {"Графика:", Label::lblGraphic}, {"Интернет:", Label::lblInet}, {"Игра:", Label::lblGames},
    {"Прочее:", Label::lblOther},
};

struct ButtonText {
    const char* name;
    const char* caption;
    Glyph glyph;
    void (*command)();
};

template <Window window>
void Open()
{
    Windows().OpenWindow(window);
}

constexpr ButtonText MainButtons[] = {
    {"cmdHard", "Железо", Glyph::Chip, Open<Window::frmHard>},
    {"cmdSoft", "Программы", Glyph::Diskette, Open<Window::frmSoft>},
    {"cmdHappy", "Развлечения", Glyph::Dice, Open<Window::frmHappy>},
    {"cmdHealth", "Больница", Glyph::Cross, Open<Window::frmHospital>},
    {"cmdShop", "Магазин", Glyph::Basket, Open<Window::frmShop>},
    {"cmdWork", "Работа", Glyph::Briefcase, Open<Window::frmWork>},
    {"cmdSchool", "Школа", Glyph::Book, Open<Window::frmEducation>},
    {"cmdInInet", "Выход в свет", Glyph::Globe, GoOnline},
};
constexpr int ButtonsInRow = 4;

} // namespace

GameLabel* frmMain::AddLabel(Label label, const QRectF& place, const QFont& font)
{
    auto* shown = new GameLabel(Text(LabelName(label)), font, scene);
    shown->setGeometry(PxRect(place));
    shown->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    labels[static_cast<std::size_t>(label)] = shown;
    return shown;
}

GameLabel* frmMain::AddCaption(const QString& text, const QRectF& place, double height)
{
    auto* caption = new GameLabel({}, TextFont(height), scene);
    caption->setGeometry(PxRect(place));
    caption->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    caption->SetColour(colour::Caption);
    caption->ShowText(text);
    return caption;
}

void frmMain::BuildClock()
{
    scene->AddPanel({Left, ClockTop, ClockWidth, ClockHeight}, Scene::Panel::Deep);
    GameLabel* time = AddLabel(Label::lblTime, {Left + 10, ClockTop, ClockWidth - 20, ClockHeight},
                               TerminalFont(17, true));
    time->setAlignment(Qt::AlignCenter);
    const double left = Left + ClockWidth + Gap;
    scene->AddPanel({left, ClockTop, Right - left, ClockHeight});
    GameLabel* work =
        AddLabel(Label::lblCurrWork, {left + 9, ClockTop, Right - left - 18, ClockHeight},
                 TextFont(11.5, true));
    work->setAlignment(Qt::AlignCenter);
}

void frmMain::AddTile(const QString& caption, Label label, const QRectF& place, Gauge::Kind kind)
{
    const bool mayTurnRed = place.top() >= VitalsTop;
    scene->AddPanel(place, mayTurnRed ? Scene::Panel::Deep : Scene::Panel::Glass);
    const QRectF inside = place.adjusted(9, 0, -9, 0);
    AddCaption(caption, {inside.left(), place.top() + 2, inside.width(), 15}, 10.5);
    const bool bare = label == Label::lblFamily;
    GameLabel* value =
        AddLabel(label, {inside.left(), place.top() + 15, inside.width(), bare ? 20.0 : 18.0},
                 TextFont(15, true));
    value->SetSpokenCaption(caption);
    if (label == Label::lblMoney) {
        value->FlashChanges();
    }
    if (!bare) {
        auto* gauge = new Gauge(kind, scene);
        gauge->setGeometry(PxRect({inside.left(), place.top() + 34, inside.width(), 3}));
        gauges[static_cast<std::size_t>(label)] = gauge;
    }
}

void frmMain::BuildStatistics()
{
    const double third = (Inner - 2 * Gap) / 3;
    const auto fact = [&](int i) {
        return QRectF(Left + i * (third + Gap), FactsTop, third, TileHeight);
    };
    AddTile("Бюджет", Label::lblMoney, fact(0), Gauge::Kind::Share);
    AddTile("Статус", Label::lblStatus, fact(1), Gauge::Kind::Steps);
    AddTile("Семья", Label::lblFamily, fact(2), Gauge::Kind::Share);

    const double quarter = (Inner - 3 * Gap) / 4;
    const auto vital = [&](int i) {
        return QRectF(Left + i * (quarter + Gap), VitalsTop, quarter, TileHeight);
    };
    AddTile("Настроение", Label::lblHappy, vital(0), Gauge::Kind::AroundZero);
    AddTile("Сытость", Label::lblEat, vital(1), Gauge::Kind::AroundZero);
    AddTile("Здоровье", Label::lblHealth, vital(2), Gauge::Kind::AroundZero);
    AddTile("Образование", Label::lblEducation, vital(3), Gauge::Kind::Share);
}

void frmMain::AddRow(const QString& caption, Label label, const QRectF& place)
{
    AddCaption(caption, {place.left(), place.top(), CaptionWidth - 5, place.height()}, 10.5);
    GameLabel* name = AddLabel(label, place.adjusted(CaptionWidth, 0, 0, 0), TextFont(11));
    name->SetSpokenCaption(QString(caption).remove(':'));
    name->ShowOnHover();
}

void frmMain::BuildComputer()
{
    const double second = Left + HardwareWidth + Gap;
    constexpr double hardwareText = HardwareWidth - 18;
    constexpr double softwareText = SoftwareWidth - 18;
    scene->AddPanel({Left, ComputerTop, HardwareWidth, ComputerHeight});
    scene->AddPanel({second, ComputerTop, SoftwareWidth, SoftwareHeight});
    AddCaption("Компьютер (Hardware)", {Left + 9, ComputerTop + 4, hardwareText, 15}, 11.5)
        ->SetColour(colour::Warm);
    AddCaption("Компьютер (Software)", {second + 9, ComputerTop + 4, softwareText, 15}, 11.5)
        ->SetColour(colour::Warm);
    double top = ComputerTop + 22;
    for (const RowText& row : HardwareRows) {
        AddRow(row.caption, row.label, {Left + 9, top, hardwareText, RowHeight});
        top += RowHeight;
    }
    top = ComputerTop + 22;
    for (const RowText& row : SoftwareRows) {
        AddRow(row.caption, row.label, {second + 9, top, softwareText, RowHeight});
        top += RowHeight;
    }
    const double settings = ComputerTop + SoftwareHeight + Gap;
    const double height = ComputerTop + ComputerHeight - settings;
    scene->AddPanel({second, settings, SoftwareWidth, height});
    const double line = height / 2 - 1;
    AddLabel(Label::lblGameLevel, {second + 9, settings + 1, softwareText, line}, TextFont(10.5));
    AddLabel(Label::lblGameSpeed, {second + 9, settings + 1 + line, softwareText, line},
             TextFont(10.5));
}

void frmMain::BuildMessageLine()
{
    const QRectF place(Left, MessageTop, Inner, MessageHeight);
    scene->AddPanel(place, Scene::Panel::Deep);
    messageLine = new TerminalLabel(Text(LabelName(Label::lblMessage)), TerminalFont(11), scene);
    messageLine->setGeometry(PxRect(place.adjusted(9, 2, -8, -1)));
    messageLine->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    messageLine->setWordWrap(true);
    labels[static_cast<std::size_t>(Label::lblMessage)] = messageLine;
}

void frmMain::BuildButtons()
{
    const double width = (Inner - (ButtonsInRow - 1) * Gap) / ButtonsInRow;
    int i = 0;
    for (const ButtonText& each : MainButtons) {
        auto* button = new GameButton(each.name, each.caption, scene);
        const double left = Left + (i % ButtonsInRow) * (width + Gap);
        const double top = ButtonsTop + (i / ButtonsInRow) * (ButtonHeight + Gap);
        button->setGeometry(PxRect({left, top, width, ButtonHeight}));
        button->SetGlyph(each.glyph);
        button->installEventFilter(this);
        connect(button, &QAbstractButton::clicked, this,
                [command = each.command] { EnterRules(command); });
        ++i;
    }
}

} // namespace torvenhall
