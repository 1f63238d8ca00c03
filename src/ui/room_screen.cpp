#include <QTransform>

#include <algorithm>

#include "ui/roomparts.h"

namespace torvenhall
{

namespace
{

/// The glass of each monitor, from the upper left corner clockwise.
constexpr QPointF Glass[][4]{
    {{231, 128.3}, {253.5, 130.5}, {253.5, 159.6}, {231, 162}},
    {{224, 114.6}, {254.8, 117.8}, {254.8, 156.6}, {224, 160}},
    {{206.4, 110.4}, {255.6, 114.4}, {255.6, 151.8}, {206.4, 154.6}},
};
/// What is on it is laid out in a plain rectangle of this size.
constexpr double Across = 40, Down = 30;

struct Desktop {
    QRgb top, bottom, text, second, third;
};

constexpr Desktop Desktops[]{
    {0xFF06231C, 0xFF041410, 0xFF6CF0A0, 0xFF3EB878, 0xFFB8FFD0}, // green letters
    {0xFF1238A0, 0xFF0A2470, 0xFFF4F4FF, 0xFFFFE870, 0xFF7FE8F4}, // a blue workshop
    {0xFF123A52, 0xFF0A1E30, 0xFFD8F4FA, 0xFFFFB870, 0xFF7FE8C8}, // windows
};

constexpr int Rows = 9;

void PaintCode(QPainter& painter, const Desktop& desktop, int step)
{
    const QRgb colours[]{desktop.text, desktop.text, desktop.second, desktop.third};
    for (int row = 0; row < Rows; ++row) {
        const double y = 4.6 + row * 2.65;
        double x = 3 + 3 * static_cast<int>(3.2 * Scatter(row * 17 + 4));
        const int words = 2 + static_cast<int>(3 * Scatter(row * 13 + 1));
        for (int word = 0; word < words && x < Across - 7; ++word) {
            const double width = 2.5 + 6 * Scatter(row * 31 + word);
            painter.fillRect(QRectF(x, y, std::min(width, Across - 4 - x), 1.25),
                             QColor(colours[static_cast<int>(4 * Scatter(row * 7 + word * 3))]));
            x += width + 1.3;
        }
    }
    // The line being typed, and its cursor.
    const double typed = 3 + 1.6 * ((step + 9) % 15);
    const double y = 4.6 + (Rows - 0.1) * 2.65;
    painter.fillRect(QRectF(3, y, typed - 3, 1.25), QColor(desktop.third));
    if (step % 4 < 2) {
        painter.fillRect(QRectF(typed + 0.6, y - 0.4, 1.3, 2), QColor(desktop.text));
    }
}

void PaintFrame(QPainter& painter, const Desktop& desktop, int level)
{
    QLinearGradient glass(0, 0, Across, Down);
    glass.setColorAt(0, QColor(desktop.top).lighter(125));
    glass.setColorAt(1, QColor(desktop.bottom));
    painter.fillRect(QRectF(0, 0, Across, Down), glass);
    if (level > 1) {
        painter.fillRect(QRectF(0, 0, Across, 2.6), QColor(desktop.text).darker(125));
        painter.fillRect(QRectF(1.5, 0.8, 9, 1), QColor(desktop.bottom));
        painter.fillRect(QRectF(Across - 3, 0.7, 1.6, 1.3), QColor(0xD0, 0x50, 0x44));
    }
    if (level > 2) {
        painter.fillRect(QRectF(28, 5, 10, 21), QColor(255, 255, 255, 30));
        painter.fillRect(QRectF(28, 5, 10, 1.6), QColor(desktop.second));
        for (int i = 0; i < 6; ++i) {
            const double height = 2 + 7 * Scatter(i + 40);
            painter.fillRect(QRectF(29 + i * 1.4, 16 - height, 1, height), QColor(desktop.third));
        }
    }
}

void Dot(QPainter& painter, QPointF place, QColor colour, double radius = 0.75)
{
    painter.setBrush(QColor(colour.red(), colour.green(), colour.blue(), 70));
    painter.drawEllipse(place, radius * 2.4, radius * 2.4);
    painter.setBrush(colour);
    painter.drawEllipse(place, radius, radius);
}

constexpr QColor Green(0x6C, 0xF4, 0x8C);
constexpr QColor Red(0xFF, 0x5A, 0x46);
constexpr QColor Cyan(0x8F, 0xE8, 0xF2);

/// One light tells that there is power, a second that the line is up.
void PaintModemLight(QPainter& painter, const RoomLook& look, int number)
{
    if (look.Part(Slot::Modem) == 1) {
        Dot(painter, {428.0 + number * 5, 173.7}, Red, 0.65);
    } else {
        Dot(painter, {428 + number * 4.2, 172.9}, Green, 0.65);
    }
}

void PaintCaseLights(QPainter& painter, const RoomLook& look)
{
    constexpr QPointF Lights[]{{167.5, 169}, {158, 158}, {164, 141.1}};
    const int level = look.Part(Slot::Case);
    Dot(painter, Lights[level - 1], level < 3 ? Green : Cyan, level < 3 ? 0.75 : 1.4);
    if (level == 3) { // the light behind the grille
        QRadialGradient light(QPointF(164, 157), 18);
        light.setColorAt(0, QColor(70, 210, 235, 150));
        light.setColorAt(0.5, QColor(60, 190, 225, 60));
        light.setColorAt(1, QColor(60, 190, 225, 0));
        painter.fillRect(QRectF(146, 139, 36, 36), light);
    }
}

void PaintDiskLights(QPainter& painter, const RoomLook& look)
{
    switch (look.Part(Slot::Disk)) {
    case 1:
        Dot(painter, {137, 174.75}, Green);
        break;
    case 2:
        Dot(painter, {137, 175}, Green);
        Dot(painter, {136.5, 168.8}, Green);
        break;
    case 3:
        for (int i = 0; i < 4; ++i) {
            Dot(painter, {135.5, 165.5 + i * 3.3}, Green, 0.6);
        }
        break;
    default:
        break;
    }
}

} // namespace

void PaintScreen(QPainter& painter, const RoomLook& look, int step)
{
    if (!look.Running()) {
        return;
    }
    const int level = look.Part(Slot::Screen);
    const Desktop& desktop = Desktops[level - 1];
    const auto& corners = Glass[level - 1];
    QTransform onto;
    QTransform::quadToQuad(QPolygonF{{0, 0}, {Across, 0}, {Across, Down}, {0, Down}},
                           QPolygonF(QList<QPointF>(std::begin(corners), std::end(corners))), onto);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(onto, true);
    PaintFrame(painter, desktop, level);
    PaintCode(painter, desktop, step);
    const double line = (step * 7) % static_cast<int>(Down);
    painter.fillRect(QRectF(0, line, Across, 4), QColor(255, 255, 255, 12));
    painter.fillRect(QRectF(0, 0, 9, Down), QColor(255, 255, 255, 10));
    painter.restore();
}

void PaintSignals(QPainter& painter, const RoomLook& look)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    if (look.Part(Slot::Case) > 0) {
        PaintCaseLights(painter, look);
        PaintDiskLights(painter, look);
    }
    if (look.Part(Slot::Modem) > 0) {
        PaintModemLight(painter, look, 0);
        if (look.online) {
            PaintModemLight(painter, look, 1);
        }
    }
    painter.restore();
}

void PaintTraffic(QPainter& painter, const RoomLook& look, int step)
{
    if (!look.online || look.Part(Slot::Modem) == 0) {
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int number = 2; number < 4; ++number) {
        if (Scatter(step * 11 + number * 5) < 0.55) {
            PaintModemLight(painter, look, number);
        }
    }
    painter.restore();
}

} // namespace torvenhall
