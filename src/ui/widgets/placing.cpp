#include "ui/widgets/placing.h"

#include <QListView>
#include <QVariant>
#include <QWidget>

namespace torvenhall
{

namespace
{

constexpr const char* PlaceKept = "placeInUnits";
constexpr const char* TypeKept = "typeInUnits";

void PutInPlace(QWidget& widget)
{
    const QRectF units = PlaceOf(widget);
    if (units.isNull()) {
        return;
    }
    if (widget.isWindow()) {
        widget.setFixedSize(PxSize(units.width(), units.height()));
    } else {
        widget.setGeometry(PxRect(units));
    }
}

} // namespace

void Place(QWidget& widget, const QRectF& units)
{
    widget.setProperty(PlaceKept, units);
    PutInPlace(widget);
}

QRectF PlaceOf(const QWidget& widget)
{
    return widget.property(PlaceKept).toRectF();
}

void Dress(QWidget& widget, const Type& type)
{
    widget.setProperty(TypeKept, type.height);
    widget.setFont(type.Font());
}

void FollowScale(QWidget& window)
{
    QList<QWidget*> all = window.findChildren<QWidget*>();
    all.prepend(&window);
    for (QWidget* each : all) {
        if (const double height = each->property(TypeKept).toDouble(); height > 0) {
            QFont font = each->font();
            font.setPixelSize(FontPx(height));
            each->setFont(font);
        }
        PutInPlace(*each);
        each->update();
    }
}

} // namespace torvenhall
