// The dashboard of the main window: what stands where. All places in units.

#include "core/GameState.h"
#include "core/basGame.h"
#include "core/shown.h"
#include "equipment/hardware.h"
#include "game/entry.h"
#include "ui/frmMain.h"
#include "ui/widgets/gamebutton.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/qtext.h"
#include "ui/widgets/terminallabel.h"
#include "ui/widgets/theme.h"
#include "ui/windows.h"

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
constexpr double ComputerHeight = 22 + HardwareCategories * RowHeight + 6;
constexpr double HardwareWidth = 266;
constexpr double SoftwareWidth = Inner - Gap - HardwareWidth;
constexpr double CaptionWidth = 72;
constexpr double MessageTop = ComputerTop + ComputerHeight + Gap;
constexpr double MessageHeight = 55;
constexpr double ButtonsTop = MessageTop + MessageHeight + Gap;
constexpr double ButtonHeight = 27;

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

constexpr double SoftwareHeight = 22 + std::size(SoftwareRows) * RowHeight + 2;

constexpr int ButtonsInRow = 4;

Gauge::Reading Money()
{
    const double target = GameState.WinMoney.value();
    return {.share = target > 0 ? GameState.Money.value() / target : 0};
}

Gauge::Reading Rank()
{
    const int rank = GameState.Education.value();
    const bool hasWord = !ShowStatus(rank).empty();
    return {.share = hasWord ? static_cast<double>(rank) / TopRank : 0, .steps = TopRank};
}

template <Int16 Game::*field, Label label>
Gauge::Reading Percent()
{
    return {.share = (GameState.*field).value() / 100.0,
            .danger = ShownAt(label).colour == TextColour::Red};
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

GameLabel* frmMain::AddCaption(const QString& text, const QRectF& place, double height)
{
    auto* caption = new GameLabel({}, TextType(height), scene);
    Place(*caption, place);
    caption->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    caption->SetColour(colour::Caption);
    caption->ShowText(text);
    return caption;
}

void frmMain::BuildClock()
{
    scene->AddPanel({Left, ClockTop, ClockWidth, ClockHeight}, Scene::Panel::Deep);
    GameLabel* time = AddLabel(Label::lblTime, {Left + 10, ClockTop, ClockWidth - 20, ClockHeight},
                               TerminalType(17, true));
    time->setAlignment(Qt::AlignCenter);
    const double left = Left + ClockWidth + Gap;
    scene->AddPanel({left, ClockTop, Right - left, ClockHeight});
    GameLabel* work =
        AddLabel(Label::lblCurrWork, {left + 9, ClockTop, Right - left - 18, ClockHeight},
                 TextType(11.5, true));
    work->setAlignment(Qt::AlignCenter);
}

void frmMain::AddTile(const QString& caption, Label label, const QRectF& place)
{
    const bool mayTurnRed = place.top() >= VitalsTop;
    scene->AddPanel(place, mayTurnRed ? Scene::Panel::Deep : Scene::Panel::Plain);
    const QRectF inside = place.adjusted(9, 0, -9, 0);
    AddCaption(caption, {inside.left(), place.top() + 2, inside.width(), 15}, 10.5);
    const double height = label == Label::lblFamily ? 20 : 18;
    GameLabel* value = AddLabel(label, {inside.left(), place.top() + 15, inside.width(), height},
                                TextType(15, true));
    value->SetSpokenCaption(caption);
    if (label == Label::lblMoney) {
        value->FlashChanges();
    }
}

void frmMain::AddGauge(const QRectF& tile, Gauge::Kind kind, Gauge::Reading (*reading)())
{
    auto* gauge = new Gauge(kind, reading, scene);
    Place(*gauge, {tile.left() + 9, tile.top() + 34, tile.width() - 18, 3});
    gauges.push_back(gauge);
}

void frmMain::BuildStatistics()
{
    const double third = (Inner - 2 * Gap) / 3;
    const auto fact = [&](int i) {
        return QRectF(Left + i * (third + Gap), FactsTop, third, TileHeight);
    };
    AddTile("Бюджет", Label::lblMoney, fact(0));
    AddGauge(fact(0), Gauge::Kind::Share, Money);
    AddTile("Статус", Label::lblStatus, fact(1));
    AddGauge(fact(1), Gauge::Kind::Steps, Rank);
    AddTile("Семья", Label::lblFamily, fact(2));

    struct {
        const char* caption;
        Label label;
        Gauge::Kind kind;
        Gauge::Reading (*reading)();
    } const vitals[]{
        {"Настроение", Label::lblHappy, Gauge::Kind::AroundZero,
         Percent<&Game::Happy, Label::lblHappy>},
        {"Сытость", Label::lblEat, Gauge::Kind::AroundZero,
         Percent<&Game::EatLevel, Label::lblEat>},
        {"Здоровье", Label::lblHealth, Gauge::Kind::AroundZero,
         Percent<&Game::Health, Label::lblHealth>},
        {"Образование", Label::lblEducation, Gauge::Kind::Share,
         Percent<&Game::Intelligence, Label::lblEducation>},
    };
    const double quarter = (Inner - 3 * Gap) / 4;
    QRectF place(Left, VitalsTop, quarter, TileHeight);
    for (const auto& vital : vitals) {
        AddTile(vital.caption, vital.label, place);
        AddGauge(place, vital.kind, vital.reading);
        place.translate(quarter + Gap, 0);
    }
}

void frmMain::AddRow(const QString& caption, Label label, const QRectF& place)
{
    AddCaption(caption, {place.left(), place.top(), CaptionWidth - 5, place.height()}, 10.5);
    GameLabel* name = AddLabel(label, place.adjusted(CaptionWidth, 0, 0, 0), TextType(11));
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
    for (const HardwareCategory& row : Hardware) {
        AddRow(Text(row.name), row.label, {Left + 9, top, hardwareText, RowHeight});
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
    AddLabel(Label::lblGameLevel, {second + 9, settings + 1, softwareText, line}, TextType(10.5));
    AddLabel(Label::lblGameSpeed, {second + 9, settings + 1 + line, softwareText, line},
             TextType(10.5));
}

void frmMain::BuildMessageLine()
{
    const QRectF place(Left, MessageTop, Inner, MessageHeight);
    scene->AddPanel(place, Scene::Panel::Deep);
    auto* messageLine =
        new TerminalLabel(Text(LabelNames[Label::lblMessage]), TerminalType(11), scene);
    Place(*messageLine, place.adjusted(9, 2, -8, -1));
    messageLine->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    messageLine->setWordWrap(true);
    labels[Label::lblMessage] = messageLine;
}

void frmMain::BuildButtons()
{
    const double width = (Inner - (ButtonsInRow - 1) * Gap) / ButtonsInRow;
    int i = 0;
    for (const WindowRow& row : WindowTable()) {
        if (row.button == nullptr) {
            continue;
        }
        auto* button = new GameButton(row.button, row.caption, scene);
        const int column = i % ButtonsInRow, line = i / ButtonsInRow;
        const double left = Left + column * (width + Gap);
        const double top = ButtonsTop + line * (ButtonHeight + Gap);
        Place(*button, {left, top, width, ButtonHeight});
        button->SetGlyph(row.glyph);
        button->installEventFilter(this);
        connect(button, &QAbstractButton::clicked, this,
                [&row] { EnterRules([&row] { Open(row); }); });
        ++i;
    }
}

} // namespace torvenhall
