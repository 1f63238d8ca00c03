#include "ui/linelights.h"

#include <QPainter>
#include <QPainterPath>

#include "network/network.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/quietlife.h"

namespace torvenhall
{

namespace
{

// In units of the window, as in its picture.
constexpr QRectF Part(14, 350, 236, 32);
constexpr QPointF FirstLight(28, 365.6);
constexpr double LightStep = 11;
constexpr int Lights = 5;
constexpr int CallsPerStep = 3; // of Step(): a light changes at most four times a second
constexpr int Beats = 8;

QPainterPath Yarn()
{
    QPainterPath yarn({112, 368});
    yarn.cubicTo(150, 384, 190, 360, 236, 372);
    return yarn;
}

void PaintDot(QPainter& painter, QPointF place, double radius, const QColor& core)
{
    QColor edge = core;
    edge.setAlpha(0);
    QRadialGradient glow(place, radius * 3);
    glow.setColorAt(0, core);
    glow.setColorAt(1, edge);
    painter.setBrush(glow);
    painter.drawEllipse(place, radius * 3, radius * 3);
    painter.setBrush(core.lighter(130));
    painter.drawEllipse(place, radius, radius);
}

void PaintDarkYarn(QPainter& painter)
{
    QLinearGradient dark(112, 0, 236, 0);
    dark.setColorAt(0, QColor(18, 40, 62, 235));
    dark.setColorAt(0.6, QColor(18, 40, 62, 200));
    dark.setColorAt(1, QColor(18, 40, 62, 0));
    painter.setPen(QPen(QBrush(dark), 6, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(Yarn());
    painter.setPen(Qt::NoPen);
}

} // namespace

LineLights::LineLights(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    Place(*this, Part);
}

void LineLights::Step()
{
    const NetworkState& network = Network();
    const bool nowUp = network.InetConnected == True || network.BbsConnected == True;
    const bool nowBusy = network.transfers > 0 || network.calls > 0;
    const int before = beat / CallsPerStep;
    beat = nowBusy && !StillLife() ? (beat + 1) % (Beats * CallsPerStep) : 0;
    if (nowUp != up || nowBusy != busy || beat / CallsPerStep != before) {
        up = nowUp;
        busy = nowBusy;
        update();
    }
}

void LineLights::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(UnitScale(), UnitScale());
    painter.translate(-Part.topLeft());
    painter.setPen(Qt::NoPen);
    const int step = beat / CallsPerStep;
    for (int i = 0; i < Lights; ++i) {
        const QPointF place = FirstLight + QPointF(i * LightStep, 0);
        // The first one tells of the current, the others of the line.
        const bool lit = i == 0 || (busy ? (step + i) % 2 == 0 : up);
        if (lit) {
            PaintDot(painter, place, 1.7, QColor(96, 255, 140));
        } else {
            painter.setBrush(QColor(32, 38, 48));
            painter.drawRoundedRect(QRectF(place - QPointF(3.6, 3), QSizeF(7.2, 6)), 1, 1);
            painter.setBrush(QColor(60, 66, 74));
            painter.drawEllipse(place, 1.5, 1.5);
        }
    }
    if (!up && !busy) {
        PaintDarkYarn(painter);
    }
    for (int spark = 0; busy && spark < 3; ++spark) {
        const double at = (step + spark * Beats / 3.0) / Beats;
        PaintDot(painter, Yarn().pointAtPercent(at - static_cast<int>(at)), 1.8,
                 QColor(210, 255, 255));
    }
}

} // namespace torvenhall
