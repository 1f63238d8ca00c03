// The tests of the windows run without a screen, under the game's own
// application object and theme.

#include <gtest/gtest.h>

#include "app/application.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/theme.h"

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    torvenhall::Application::Prepare();
    torvenhall::Application application(argc, argv);
    const double points = qEnvironmentVariable("TORVENHALL_TEST_FONT").toDouble();
    if (points > 0) {
        torvenhall::SetDesktopFontPoints(points);
    }
    torvenhall::ApplyTheme(application);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
