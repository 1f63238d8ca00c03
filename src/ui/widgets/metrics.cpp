#include "ui/widgets/metrics.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>

namespace torvenhall
{

namespace
{

constexpr double UsualPoints = 9;
constexpr double UsualDpi = 96;

double desktopPoints = UsualPoints;
double playerScale = 1;

} // namespace

void SetDesktopFontPoints(double points)
{
    desktopPoints = std::clamp(points, UsualPoints, UsualPoints * 3);
}

double DesktopFontPoints()
{
    // The toolkit's own look at the desktop's settings loads the desktop's
    // whole toolkit at start-up, so the two files are read directly.
    const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const QSettings kde(config + "/kdeglobals", QSettings::IniFormat);
    const QSettings gtk(config + "/gtk-3.0/settings.ini", QSettings::IniFormat);
    const bool onKde = qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains("KDE");
    // "Noto Sans,10,-1,5,50" and "Cantarell 11"
    const double points = onKde ? kde.value("font").toStringList().value(1).toDouble()
                                : gtk.value("Settings/gtk-font-name")
                                      .toStringList()
                                      .join(' ')
                                      .section(' ', -1)
                                      .toDouble();
    return points > 0 ? points : UsualPoints;
}

void SetPlayerScale(double scale)
{
    playerScale = scale;
}

double PlayerScale()
{
    return playerScale;
}

double UnitScale()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double dpi = screen ? screen->logicalDotsPerInchX() : UsualDpi;
    return dpi / UsualDpi * desktopPoints / UsualPoints * playerScale;
}

int Px(double units)
{
    return static_cast<int>(std::lround(units * UnitScale()));
}

QRect PxRect(const QRectF& units)
{
    const QPoint topLeft(Px(units.left()), Px(units.top()));
    const QPoint behind(Px(units.right()), Px(units.bottom()));
    return {topLeft, behind - QPoint(1, 1)};
}

QSize PxSize(double width, double height)
{
    return {Px(width), Px(height)};
}

int FontPx(double height)
{
    return std::max(1, Px(height));
}

} // namespace torvenhall
