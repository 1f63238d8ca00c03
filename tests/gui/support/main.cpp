// The tests of the windows run without a screen, under the game's own
// application object and theme.

#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

#include "app/application.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/quietlife.h"
#include "ui/widgets/theme.h"

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QTemporaryDir settings; // the player's own stay alone
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    torvenhall::Application::Prepare();
    torvenhall::Application application(argc, argv);
    const double points = qEnvironmentVariable("TORVENHALL_TEST_FONT").toDouble();
    if (points > 0) {
        torvenhall::SetDesktopFontPoints(points);
    }
    torvenhall::ApplyTheme(application);
    QApplication::setCursorFlashTime(0); // pictures are compared
    torvenhall::SetStillLife(true);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
