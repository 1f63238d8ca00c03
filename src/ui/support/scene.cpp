#include "ui/support/scene.h"

#include <QPainter>
#include <QPainterPath>

#include "ui/support/metrics.h"
#include "ui/support/pictures.h"
#include "ui/support/theme.h"

namespace torvenhall
{

Scene::Scene(double width, double height, QWidget* parent) : QWidget(parent)
{
    setFixedSize(PxSize(width, height));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Scene::LoadBackground(std::string_view key)
{
    ShowPicture(torvenhall::LoadBackground(key, size(), devicePixelRatioF()));
}

void Scene::ShowPicture(const QPixmap& newPicture)
{
    if (picture.cacheKey() != newPicture.cacheKey()) {
        picture = newPicture;
        composed = {};
        update();
    }
}

void Scene::AddPanel(const QRectF& place, Panel kind)
{
    plates.push_back({place, kind});
    composed = {};
}

void Scene::Compose()
{
    const double ratio = devicePixelRatioF();
    composed = QPixmap(size() * ratio);
    composed.setDevicePixelRatio(ratio);
    QPainter painter(&composed);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), colour::Night);
    QPixmap frosted;
    if (!picture.isNull()) {
        painter.drawPixmap(rect(), picture);
        frosted = Frosted(picture);
    }
    for (const Plate& plate : plates) {
        PaintPanel(painter, PxRect(plate.place), frosted, plate.kind);
    }
}

void Scene::paintEvent(QPaintEvent*)
{
    if (composed.isNull() || composed.devicePixelRatio() != devicePixelRatioF()) {
        Compose();
    }
    QPainter(this).drawPixmap(0, 0, composed);
}

void PaintPanel(QPainter& painter, const QRectF& place, const QPixmap& frosted, Scene::Panel kind)
{
    const double line = std::max(1.0, UnitScale());
    const double radius = Px(5);
    const QRectF plate = place.adjusted(line / 2, line / 2, -line / 2, -line / 2);
    QPainterPath shape;
    shape.addRoundedRect(plate, radius, radius);
    painter.save();
    painter.setClipPath(shape);
    if (!frosted.isNull()) {
        painter.drawPixmap(0, 0, frosted);
    }
    painter.fillRect(place, kind == Scene::Panel::Deep ? colour::PanelDeep : colour::Panel);
    QLinearGradient sheen(place.topLeft(), place.bottomLeft());
    sheen.setColorAt(0, QColor(255, 255, 255, 16));
    sheen.setColorAt(0.5, QColor(255, 255, 255, 0));
    painter.fillRect(place, sheen);
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour::Border, line));
    painter.drawRoundedRect(plate, radius, radius);
}

} // namespace torvenhall
