#include "ui/widgets/scene.h"

#include <QPaintEvent>
#include <QPainter>

#include "ui/widgets/face.h"
#include "ui/widgets/flickers.h"
#include "ui/widgets/pictures.h"
#include "ui/widgets/placing.h"
#include "ui/widgets/theme.h"

namespace torvenhall
{

namespace
{

/// Twice in quick succession, then for a long while not.
bool IsOut(int step)
{
    constexpr int every = 34;
    return step % every == 20 || step % every == 22;
}

void PaintDark(QPainter& painter, const QRectF& place)
{
    QRadialGradient dark(0.5, 0.5, 0.5);
    dark.setCoordinateMode(QGradient::ObjectBoundingMode);
    dark.setColorAt(0, QColor(8, 10, 18, 150));
    dark.setColorAt(0.6, QColor(8, 10, 18, 110));
    dark.setColorAt(1, QColor(8, 10, 18, 0));
    painter.fillRect(place, dark);
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
        flickers.clear();
        for (const Flicker& flicker : Flickers) {
            if (flicker.picture == name) {
                flickers.push_back(flicker.place);
            }
        }
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
    DrawAnew(rect());
}

void Scene::DrawAnew(const QRect& place)
{
    outdated += place;
    update(place);
}

void Scene::PaintBackground(QPainter& painter)
{
    const QPixmap shown = LoadPicture(picture, size(), devicePixelRatioF());
    if (!shown.isNull()) {
        painter.drawPixmap(rect(), shown);
        return;
    }
    PaintWall(painter, rect());
}

void Scene::Compose()
{
    const double ratio = devicePixelRatioF();
    if (composed.devicePixelRatio() != ratio || composed.size() != size() * ratio) {
        composed = QPixmap(size() * ratio);
        composed.setDevicePixelRatio(ratio);
        outdated = rect();
    }
    if (outdated.isEmpty()) {
        return;
    }
    QPainter painter(&composed);
    painter.setClipRect(outdated.boundingRect());
    outdated = {};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), colour::Night);
    PaintBackground(painter);
    for (const Plate& plate : plates) {
        const QRect place = PxRect(plate.place);
        if (plate.sign) {
            PaintSignPlate(painter, *plate.sign, place);
        } else {
            PaintPanel(painter, place,
                       plate.kind == Panel::Deep ? colour::PanelDeep : colour::Panel,
                       plate.kind != Panel::Bare);
        }
    }
}

void Scene::Step()
{
    const bool before = IsOut(step++);
    if (before != IsOut(step)) {
        for (const QRectF& place : flickers) {
            update(PxRect(place));
        }
    }
}

void Scene::paintEvent(QPaintEvent* event)
{
    Compose();
    QPainter painter(this);
    // One rectangle after the other: a region of many is copied pixel by pixel.
    for (const QRect& part : event->region()) {
        painter.setClipRect(part);
        painter.drawPixmap(0, 0, composed);
    }
    painter.setClipRegion(event->region());
    if (IsOut(step)) {
        for (const QRectF& place : flickers) {
            PaintDark(painter, PxRect(place));
        }
    }
}

void Card::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintPanel(painter, rect(), colour::PanelDeep);
}

} // namespace torvenhall
