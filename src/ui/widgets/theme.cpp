#include "ui/widgets/theme.h"

#include <QApplication>
#include <QPalette>

#include "ui/widgets/gamestyle.h"
#include "ui/widgets/metrics.h"

namespace torvenhall
{

namespace
{

QPalette GamePalette()
{
    QPalette palette(QColor(30, 42, 56), colour::Night);
    palette.setColor(QPalette::WindowText, colour::Text);
    palette.setColor(QPalette::Base, colour::Hollow);
    palette.setColor(QPalette::AlternateBase, QColor(13, 21, 31));
    palette.setColor(QPalette::Text, colour::Text);
    palette.setColor(QPalette::PlaceholderText, colour::Faint);
    palette.setColor(QPalette::Button, QColor(28, 43, 58));
    palette.setColor(QPalette::ButtonText, colour::Text);
    palette.setColor(QPalette::BrightText, colour::Warm);
    palette.setColor(QPalette::Highlight, colour::Chosen);
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
    application.setFont(TextType(13).Font());
}

} // namespace torvenhall
