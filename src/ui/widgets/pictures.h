#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QSize>

#include <string_view>

class QPainter;
class QRectF;

namespace torvenhall
{

/// The bytes of a picture carried in the program ("MAINPICTURE"); empty if
/// there is none.
QByteArray EmbeddedPicture(std::string_view name);

/// Runs the picture step of the rules, for its effects, on a window's
/// background; false when there is no such picture.
bool TakePictureStep(std::string_view key);

/// A picture by its embedded name, filling a size in toolkit pixels; decoded once
/// and kept for a while. Null when there is none.
QPixmap LoadPicture(std::string_view name, QSize size, double pixelRatio);

/// Draws a piece of a sheet of cut-outs ("THINGS"), given in the sheet's units, to
/// a place of the painter, from the finer of its two copies where that is needed.
void DrawCutOut(QPainter& painter, std::string_view sheet, const QRectF& piece,
                const QRectF& place);

} // namespace torvenhall
