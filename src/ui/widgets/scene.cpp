#include "ui/widgets/scene.h"

#include <QPainter>
#include <QPainterPath>

#include "ui/widgets/pictures.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

// Under the panels' tint these leave every text a contrast of 4.5 at least:
// the dimmest text on glass, pure red on the deep panels.
constexpr double BrightestGlass = 0.13;
constexpr double BrightestDeep = 0.03;

void PaintShade(QPainter& painter, const QRectF& place)
{
    QLinearGradient shade(place.topLeft(), place.bottomLeft());
    shade.setColorAt(0, QColor(3, 6, 12, 205));
    shade.setColorAt(0.7, QColor(3, 6, 12, 185));
    shade.setColorAt(1, QColor(3, 6, 12, 0));
    painter.fillRect(place, shade);
}

void PaintGlass(QPainter& painter, const QRectF& place, const QPixmap& frosted, const QColor& tint)
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
    painter.fillRect(place, tint);
    QLinearGradient sheen(place.topLeft(), place.bottomLeft());
    sheen.setColorAt(0, QColor(255, 255, 255, 8));
    sheen.setColorAt(0.5, QColor(255, 255, 255, 0));
    painter.fillRect(place, sheen);
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour::Border, line));
    painter.drawRoundedRect(plate, radius, radius);
}

} // namespace

Scene::Scene(double width, double height, QWidget* parent) : QWidget(parent)
{
    Place(*this, {0, 0, width, height});
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Scene::LoadBackground(std::string_view key)
{
    ShowPicture(TakePictureStep(key) ? std::string(key) + "PICTURE" : "");
}

void Scene::ShowPicture(std::string_view name)
{
    if (picture != name) {
        picture = name;
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
    const QPixmap shown = LoadPicture(picture, size(), ratio);
    if (!shown.isNull()) {
        painter.drawPixmap(rect(), shown);
    }
    for (const Panel kind : {Panel::Shade, Panel::Glass, Panel::Deep}) {
        PaintPlates(painter, kind, shown);
    }
}

void Scene::PaintPlates(QPainter& painter, Panel kind, const QPixmap& behind) const
{
    QPixmap frosted;
    for (const Plate& plate : plates) {
        if (plate.kind != kind) {
            continue;
        }
        if (kind == Panel::Shade) {
            PaintShade(painter, PxRect(plate.place));
            continue;
        }
        if (frosted.isNull() && !behind.isNull()) {
            frosted = Frosted(behind, kind == Panel::Deep ? BrightestDeep : BrightestGlass);
        }
        PaintGlass(painter, PxRect(plate.place), frosted,
                   kind == Panel::Deep ? colour::PanelDeep : colour::Panel);
    }
}

void Scene::paintEvent(QPaintEvent*)
{
    const double ratio = devicePixelRatioF();
    if (composed.devicePixelRatio() != ratio || composed.size() != size() * ratio) {
        Compose();
    }
    QPainter(this).drawPixmap(0, 0, composed);
}

} // namespace torvenhall
