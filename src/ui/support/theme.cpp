#include "ui/support/theme.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>

#include "ui/support/glyphs.h"
#include "ui/support/metrics.h"

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

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override
    {
        if (metric == PM_MessageBoxIconSize) {
            return Px(36);
        }
        return QProxyStyle::pixelMetric(metric, option, widget);
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
    application.setFont(TextFont(12));
}

} // namespace torvenhall
