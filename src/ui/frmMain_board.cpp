// The dashboard of the main window: what stands where. All places in units.

#include <algorithm>
#include <ranges>

#include "core/GameState.h"
#include "core/basGame.h"
#include "core/shown.h"
#include "equipment/hardware.h"
#include "game/entry.h"
#include "ui/frmMain.h"
#include "ui/widgets/gamebutton.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/readings.h"
#include "ui/widgets/terminallabel.h"
#include "ui/widgets/theme.h"
#include "ui/windows.h"

namespace torvenhall
{

namespace
{

constexpr double Left = 8;
constexpr double Right = 510;
constexpr double Gap = 4;
constexpr double Inner = Right - Left;

constexpr QRectF Ribbon(Left, 5, Inner, 24);
constexpr double TilesTop = 32;
constexpr double TileHeight = 38;
constexpr double ComputerTop = 74;
constexpr double ComputerHeight = 143;
// Between the computer and the buttons lies the room. The message line is told
// at its foot like a subtitle and leaves nothing behind.
constexpr double HardwareWidth = 262;
constexpr double SoftwareWidth = Inner - Gap - HardwareWidth;
constexpr double HeadHeight = 16;
constexpr double RowHeight = 13;
constexpr double SettingsHeight = 30;
constexpr double CaptionWidth = 66;
constexpr QRectF MessagePlace(Left, 327, Inner, 47);
constexpr double ButtonsTop = 378;
constexpr double ButtonHeight = 37;

// The order differs from that of the categories, and the other software is none.
struct RowText {
    const char* caption;
    Label label;
};

constexpr RowText SoftwareRows[] = {
    {"ОС:", Label::lblOs},           {"Прог-е:", Label::lblProg},   {"Антивирус:", Label::lblAntiv},
    {"Графика:", Label::lblGraphic}, {"Интернет:", Label::lblInet}, {"Игра:", Label::lblGames},
    {"Прочее:", Label::lblOther},
};

template <Int16 Game::*field>
int Value()
{
    return (GameState.*field).value();
}

} // namespace

GameLabel* frmMain::AddLabel(Label label, const QRectF& place, const Type& type)
{
    auto* shown = new GameLabel(Text(LabelNames[label]), type, scene);
    Place(*shown, place);
    shown->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    labels[label] = shown;
    return shown;
}

GameLabel* frmMain::AddCaption(const QString& text, const QRectF& place, const Type& type)
{
    auto* caption = new GameLabel({}, type, scene);
    Place(*caption, place);
    caption->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    caption->SetColour(colour::Caption);
    caption->ShowText(text);
    return caption;
}

void frmMain::BuildClock()
{
    scene->AddPanel(Ribbon, Scene::Panel::Deep);
    AddLabel(Label::lblTime, Ribbon.adjusted(10, 0, -Inner / 2, 0), TextType(14.5));
    AddLabel(Label::lblCurrWork, Ribbon.adjusted(Inner / 2, 0, -10, 0), TextType(13, true))
        ->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void frmMain::AddTile(const Tile& tile, const QRectF& place)
{
    scene->AddPanel(place, Scene::Panel::Deep);
    const QRectF inside = place.adjusted(6, 0, -5, 0);
    GameLabel* caption = AddCaption(
        tile.caption, {inside.left(), place.top() + 1, inside.width(), 14}, CondensedType(11.5));
    GameLabel* value = AddLabel(tile.label, {inside.left(), place.top() + 14, inside.width(), 17},
                                TextType(15, true));
    value->SetSpokenCaption(tile.caption);
    tiles.push_back({tile.label, tile.caption, tile.value, {}});
    for (GameLabel* each : {caption, value}) {
        each->setProperty(TileOf, static_cast<int>(tiles.size() - 1));
        each->installEventFilter(this);
    }
    if (tile.label == Label::lblMoney) {
        value->FlashChanges();
    }
    if (tile.reading) {
        auto* gauge = new Gauge(tile.kind, tile.reading, scene);
        Place(*gauge, {inside.left(), place.top() + 32, inside.width(), 4});
        gauges.push_back(gauge);
    }
}

void frmMain::BuildStatistics()
{
    using enum Gauge::Kind;
    // clang-format off
    const Tile statistics[]{
        {"Бюджет", Label::lblMoney, 80, Share, MoneyReading, [] { return GameState.Money.value(); }},
        {"Статус", Label::lblStatus, 68, Steps, RankReading, Value<&Game::Education>},
        {"Семья", Label::lblFamily, 70},
        {"Настроение", Label::lblHappy, 65, AroundZero,
         PercentReading<&Game::Happy, Label::lblHappy>, Value<&Game::Happy>},
        {"Сытость", Label::lblEat, 65, AroundZero,
         PercentReading<&Game::EatLevel, Label::lblEat>, Value<&Game::EatLevel>},
        {"Здоровье", Label::lblHealth, 65, AroundZero,
         PercentReading<&Game::Health, Label::lblHealth>, Value<&Game::Health>},
        {"Образование", Label::lblEducation, 65, Share,
         PercentReading<&Game::Intelligence, Label::lblEducation>, Value<&Game::Intelligence>},
    };
    // clang-format on
    double left = Left;
    for (const Tile& tile : statistics) {
        AddTile(tile, {left, TilesTop, tile.width, TileHeight});
        left += tile.width + Gap;
    }
}

void frmMain::AddRow(const QString& caption, Label label, const QRectF& place)
{
    AddCaption(caption, {place.left(), place.top(), CaptionWidth - 5, place.height()},
               TextType(11));
    GameLabel* name = AddLabel(label, place.adjusted(CaptionWidth, 0, 0, 0), TextType(11.5));
    name->SetSpokenCaption(QString(caption).remove(':'));
    name->ShowOnHover();
}

void frmMain::BuildComputer()
{
    const QRectF hardware(Left, ComputerTop, HardwareWidth, ComputerHeight);
    const QRectF settings(hardware.right() + Gap, hardware.bottom() - SettingsHeight, SoftwareWidth,
                          SettingsHeight);
    const QRectF software(settings.left(), ComputerTop, SoftwareWidth,
                          ComputerHeight - SettingsHeight - 3);
    const auto addHead = [this](const QString& text, const QRectF& panel) {
        scene->AddPanel(panel);
        AddCaption(text, {panel.left() + 8, panel.top() + 2, panel.width() - 16, HeadHeight - 1},
                   TextType(12, true))
            ->SetColour(colour::Warm);
    };
    const auto rowOf = [](const QRectF& panel, int row) {
        // The letters' feet reach below.
        return QRectF(panel.left() + 8, panel.top() + HeadHeight - 1 + row * RowHeight,
                      panel.width() - 16, RowHeight + 4);
    };
    addHead("Компьютер (Hardware)", hardware);
    addHead("Компьютер (Software)", software);
    int row = 0;
    for (const HardwareCategory& category : Hardware) {
        AddRow(Text(category.name), category.label, rowOf(hardware, row++));
    }
    row = 0;
    for (const RowText& program : SoftwareRows) {
        AddRow(program.caption, program.label, rowOf(software, row++));
    }
    scene->AddPanel(settings);
    QRectF line(settings.left() + 8, settings.top() + 1, settings.width() - 16, RowHeight + 1);
    for (const Label setting : {Label::lblGameLevel, Label::lblGameSpeed}) {
        AddLabel(setting, line, TextType(11));
        line.translate(0, RowHeight);
    }
}

void frmMain::BuildMessageLine()
{
    auto* messageLine =
        new TerminalLabel(Text(LabelNames[Label::lblMessage]), TerminalType(11.5), scene);
    Place(*messageLine, MessagePlace);
    messageLine->setWordWrap(true);
    labels[Label::lblMessage] = messageLine;
}

void frmMain::BuildButtons()
{
    const auto isButton = [](const WindowRow& row) { return row.button != nullptr; };
    const auto count = std::ranges::count_if(WindowTable(), isButton);
    const double width =
        (Inner - Gap * static_cast<double>(count - 1)) / static_cast<double>(count);
    double left = Left;
    for (const WindowRow& row : WindowTable() | std::views::filter(isButton)) {
        auto* button = new GameButton(row.button, row.caption, scene);
        Place(*button, {left, ButtonsTop, width, ButtonHeight});
        button->SetGlyph(row.glyph);
        button->Stack();
        button->installEventFilter(this);
        connect(button, &QAbstractButton::clicked, this,
                [&row] { EnterRules([&row] { Open(row); }); });
        left += width + Gap;
    }
}

} // namespace torvenhall
