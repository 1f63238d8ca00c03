#pragma once

#include <QProxyStyle>

namespace torvenhall
{

/// The look of what the toolkit draws itself - menus, fields, lists, boxes -
/// which is that of the game's own panels and buttons.
class GameStyle : public QProxyStyle
{
public:
    GameStyle() : QProxyStyle("Fusion") {}

    QIcon standardIcon(StandardPixmap sign, const QStyleOption* option,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
};

} // namespace torvenhall
