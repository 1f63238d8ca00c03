#include "ui/past.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <chrono>

#include "core/GameState.h"
#include "core/unwinding.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

constexpr std::size_t MostDays = 256;
constexpr double Width = 170;
constexpr double Height = 46;

} // namespace

void Past::Note(int value)
{
    const int today = std::chrono::sys_days{GameState.GameDate}.time_since_epoch().count();
    if (life != LifeNumber() || (!days.empty() && days.back().number > today)) {
        days.clear();
        life = LifeNumber();
    }
    if (!days.empty() && days.back().number == today) {
        days.back().value = value;
        return;
    }
    days.push_back({today, value});
    if (days.size() > MostDays) {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < days.size(); i += 2) {
            days[kept++] = days[i];
        }
        days.resize(kept);
    }
}

QString Past::Curve(std::optional<int> fatal) const
{
    if (days.size() < 2) {
        return {};
    }
    const auto [least, most] = std::ranges::minmax(days, {}, &Day::value);
    const double bottom = std::min({least.value, 0, fatal.value_or(0)});
    const double top = std::max({most.value, 0}) + 1;
    const double first = days.front().number;
    const double last = days.back().number;
    QImage image(PxSize(Width, Height), QImage::Format_RGB32);
    image.fill(colour::Hollow);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = UnitScale();
    const QRectF room = QRectF(image.rect()).adjusted(3 * line, 4 * line, -5 * line, -4 * line);
    const auto at = [&](double day, double value) {
        return QPointF(room.left() + (day - first) / (last - first) * room.width(),
                       room.bottom() - (value - bottom) / (top - bottom) * room.height());
    };
    painter.setPen(QPen(colour::Border, line));
    painter.drawLine(at(first, 0), at(last, 0));
    if (fatal) {
        painter.setPen(QPen(colour::Loss, line, Qt::DashLine));
        painter.drawLine(at(first, *fatal), at(last, *fatal));
    }
    QPolygonF curve;
    for (const Day& day : days) {
        curve << at(day.number, day.value);
    }
    painter.setPen(QPen(colour::Gain, 1.6 * line, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(curve);
    painter.setBrush(colour::LightCyan);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(curve.last(), 2.5 * line, 2.5 * line);
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "PNG");
    return "<br><img src=\"data:image/png;base64," + QString::fromLatin1(png.toBase64()) + "\">";
}

} // namespace torvenhall
