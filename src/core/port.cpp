#include "core/port.h"

#include <array>

namespace torvenhall
{

namespace
{

constexpr std::array<std::string_view, LabelCount> LabelNames{
    "lblMoney",   "lblHappy",    "lblEat",       "lblHealth",    "lblEducation", "lblStatus",
    "lblFamily",  "lblCurrWork", "lblGameLevel", "lblGameSpeed", "lblTime",      "lblMessage",
    "lblhard0",   "lblhard1",    "lblhard2",     "lblhard3",     "lblhard4",     "lblhard5",
    "lblhard6",   "lblhard7",    "lblhard8",     "lblOs",        "lblProg",      "lblAntiv",
    "lblGraphic", "lblInet",     "lblGames",     "lblOther",
};
static_assert(LabelNames[static_cast<std::size_t>(Label::lblOther)] == "lblOther");

constexpr std::array<std::string_view, WindowCount> WindowNames{
    "frmHard",      "frmSoft",    "frmHappy", "frmHospital", "frmShop",  "frmWork",
    "frmEducation", "frmNetwork", "frmVirus", "frmPause",    "frmAbout",
};
static_assert(WindowNames[static_cast<std::size_t>(Window::frmAbout)] == "frmAbout");

Ports connected;

} // namespace

std::string_view LabelName(Label label)
{
    return LabelNames[static_cast<std::size_t>(label)];
}

std::string_view WindowName(Window window)
{
    return WindowNames[static_cast<std::size_t>(window)];
}

void Connect(const Ports& ports)
{
    connected = ports;
}

FrontEnd& Windows()
{
    return *connected.frontEnd;
}

float Rnd()
{
    return connected.dice->Rnd();
}

void Randomize(double value)
{
    connected.dice->Randomize(value);
}

void Randomize()
{
    connected.dice->Randomize();
}

double WallSeconds()
{
    return connected.clock->Seconds();
}

} // namespace torvenhall
