#pragma once

#include <QImage>
#include <QStringList>
#include <QWidget>

namespace torvenhall::test
{

/// Every word that a player could not read whole, or that lies over another;
/// empty when all is well.
QStringList TextFindings(const QWidget& window);

/// Every text whose contrast to the brightest or the darkest pixel behind it
/// is below the given ratio.
QStringList ContrastFindings(QWidget& window, double least);

/// The relation of two colours' relative luminance, 1 to 21.
double Contrast(QRgb one, QRgb other);

/// A window as it is on screen.
QImage Render(QWidget& window);

} // namespace torvenhall::test
