#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRectF>

#include "ui/widgets/gamelabel.h"

class QPainter;

namespace torvenhall
{

/// How a place in town writes its slogan.
enum class Sign : unsigned char {
    Neon,   ///< glowing tubes on the dark
    Chalk,  ///< on a blackboard
    Enamel, ///< white on a blue plate with screws
    Awning, ///< on the valance of a striped cloth
    Tin,    ///< stencilled on a sheet of tin
    Card,   ///< with a marker on a piece of cardboard
    Office, ///< gold on dark glass
};

/// What the letters stand on; in toolkit pixels.
void PaintSignPlate(QPainter& painter, Sign sign, const QRectF& plate);
/// How wide a slogan and the plate around it are, in units.
double SignWidth(const QString& slogan, double height);

/// A slogan, or the shadow of one.
class SignLabel : public GameLabel
{
public:
    enum class Part : unsigned char { Letters, Shadow };
    SignLabel(const QString& controlName, Sign sign, Part part, const Type& type, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPainterPath LettersIn(const QRectF& place) const;

    Sign sign;
    Part part;
};

} // namespace torvenhall
