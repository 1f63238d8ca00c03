#include "ui/widgets/theme.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

#include <algorithm>

#include "ui/widgets/glyphs.h"
#include "ui/widgets/metrics.h"

namespace torvenhall
{

namespace
{

/// The plain style with the game's own signs in the message boxes.
class GameStyle : public QProxyStyle
{
public:
    GameStyle() : QProxyStyle("Fusion") {}

    QIcon standardIcon(StandardPixmap sign, const QStyleOption* option,
                       const QWidget* widget) const override
    {
        switch (sign) {
        case SP_MessageBoxInformation:
            return GlyphIcon(Glyph::Information, colour::LightCyan);
        case SP_MessageBoxWarning:
            return GlyphIcon(Glyph::Exclamation, colour::Warm);
        case SP_MessageBoxQuestion:
            return GlyphIcon(Glyph::Question, colour::LightCyan);
        case SP_MessageBoxCritical:
            return GlyphIcon(Glyph::Stop, QColor(255, 96, 84));
        default:
            return QProxyStyle::standardIcon(sign, option, widget);
        }
    }

    /// The focus is marked on every control alike, however it got there.
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override
    {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control == CC_ComboBox) {
            MarkFocus(*option, *painter);
        }
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        QProxyStyle::drawControl(element, option, painter, widget);
        if (element == CE_ShapedFrame && qobject_cast<const QAbstractScrollArea*>(widget)) {
            MarkFocus(*option, *painter);
        }
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element == PE_FrameLineEdit || element == PE_Frame) {
            MarkBorder(*option, *painter);
        }
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override
    {
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        switch (metric) {
        case PM_MessageBoxIconSize:
            return Px(36);
        case PM_LayoutLeftMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutBottomMargin:
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
        case PM_ScrollBarExtent:
            return Px(usual);
        default:
            return usual;
        }
    }

private:
    static void MarkBorder(const QStyleOption& option, QPainter& painter)
    {
        painter.setPen(QPen(colour::Border, std::max(1.0, UnitScale())));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
        MarkFocus(option, painter);
    }
    static void MarkFocus(const QStyleOption& option, QPainter& painter)
    {
        if (option.state & State_HasFocus) {
            painter.setPen(QPen(colour::Warm, std::max(1.0, UnitScale())));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
        }
    }
};

QPalette GamePalette()
{
    QPalette palette(QColor(30, 42, 56), colour::Night);
    palette.setColor(QPalette::WindowText, colour::Text);
    palette.setColor(QPalette::Base, QColor(7, 12, 19));
    palette.setColor(QPalette::AlternateBase, QColor(13, 21, 31));
    palette.setColor(QPalette::Text, colour::Text);
    palette.setColor(QPalette::PlaceholderText, colour::Faint);
    palette.setColor(QPalette::Button, QColor(28, 43, 58));
    palette.setColor(QPalette::ButtonText, colour::Text);
    palette.setColor(QPalette::BrightText, colour::Warm);
    palette.setColor(QPalette::Highlight, QColor(38, 116, 132));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, colour::LightCyan);
    palette.setColor(QPalette::ToolTipBase, QColor(18, 28, 40));
    palette.setColor(QPalette::ToolTipText, colour::Text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, colour::Faint);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(40, 54, 66));
    return palette;
}

} // namespace

void ApplyTheme(QApplication& application)
{
    application.setStyle(new GameStyle);
    application.setPalette(GamePalette());
    application.setFont(TextType(12).Font());
}

} // namespace torvenhall
