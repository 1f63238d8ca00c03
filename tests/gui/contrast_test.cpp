// Every text can be read on what lies behind it, 4.5 to 1 at the least.

#include <QApplication>
#include <QPalette>

#include "support/looks.h"
#include "support/windows.h"
#include "ui/support/metrics.h"

namespace torvenhall::test
{
namespace
{

constexpr double Least = 4.5;

class Texts : public EveryWindow
{
protected:
    void SetUp() override
    {
        // The full colour of thin letters appears only where they are large.
        if (qApp->devicePixelRatio() < 2 && UnitScale() < 1.4) {
            GTEST_SKIP() << "measured at the larger scales";
        }
        ShowTheLongestTexts();
    }

    void ExpectReadable()
    {
        ForEach([](const WindowRow&, QWidget& window) {
            const QStringList findings = ContrastFindings(window, Least);
            EXPECT_TRUE(findings.isEmpty()) << findings.join('\n').toStdString();
        });
    }
};

TEST_F(Texts, AreReadableInDangerAndWithPricesOutOfReach)
{
    ExpectReadable();
}

TEST_F(Texts, AreReadableForTheRich)
{
    Set([] {
        SetMoney(1000000);
        SetHappy(50);
        SetEatLevel(50);
        SetHealth(50);
    });
    ExpectReadable();
}

TEST(Palette, OfTheToolkitsOwnControlsAreReadable)
{
    const QPalette palette = QApplication::palette();
    using Role = QPalette::ColorRole;
    for (const auto& [text, behind] :
         {std::pair<Role, Role>{QPalette::WindowText, QPalette::Window},
          {QPalette::Text, QPalette::Base},
          {QPalette::Text, QPalette::AlternateBase},
          {QPalette::ButtonText, QPalette::Button},
          {QPalette::HighlightedText, QPalette::Highlight},
          {QPalette::ToolTipText, QPalette::ToolTipBase}}) {
        EXPECT_GE(Contrast(palette.color(text).rgb(), palette.color(behind).rgb()), Least)
            << int(text) << " on " << int(behind);
    }
}

} // namespace
} // namespace torvenhall::test
