#include "ui/widgets/scene.h"

#include <QPainter>

#include "ui/widgets/pictures.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

void PaintPanel(QPainter& painter, const QRectF& place, Scene::Panel kind)
{
    const double line = std::max(1.0, UnitScale());
    const double radius = Px(6);
    const QRectF plate = place.adjusted(line / 2, line / 2, -line / 2, -line / 2);
    const QColor& tint = kind == Scene::Panel::Deep ? colour::PanelDeep : colour::Panel;
    QLinearGradient fill(plate.topLeft(), plate.bottomLeft());
    fill.setColorAt(0, kind == Scene::Panel::Deep ? tint : tint.lighter(112));
    fill.setColorAt(1, tint);
    painter.setBrush(fill);
    painter.setPen(kind == Scene::Panel::Bare ? QPen(Qt::NoPen) : QPen(colour::Border, line));
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
        DrawAnew();
    }
}

void Scene::AddPanel(const QRectF& place, Panel kind)
{
    plates.push_back({place, kind, {}});
    DrawAnew();
}

void Scene::AddSign(const QRectF& place, Sign sign)
{
    plates.push_back({place, Panel::Bare, sign});
    DrawAnew();
}

void Scene::DrawAnew()
{
    composed = {};
    update();
}

void Scene::PaintBackground(QPainter& painter)
{
    const QPixmap shown = LoadPicture(picture, size(), devicePixelRatioF());
    if (!shown.isNull()) {
        painter.drawPixmap(rect(), shown);
        return;
    }
    // A wall at night with the light of a lamp from above.
    QRadialGradient light(QPointF(width() * 0.75, 0), width());
    light.setColorAt(0, QColor(52, 60, 66));
    light.setColorAt(0.4, QColor(24, 36, 48));
    light.setColorAt(1, colour::Night);
    painter.fillRect(rect(), light);
}

void Scene::Compose()
{
    const double ratio = devicePixelRatioF();
    composed = QPixmap(size() * ratio);
    composed.setDevicePixelRatio(ratio);
    QPainter painter(&composed);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), colour::Night);
    PaintBackground(painter);
    for (const Plate& plate : plates) {
        const QRect place = PxRect(plate.place);
        if (plate.sign) {
            PaintSignPlate(painter, *plate.sign, place);
        } else {
            PaintPanel(painter, place, plate.kind);
        }
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
