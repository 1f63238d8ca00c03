#include "ui/widgets/gamestyle.h"

#include <QAbstractScrollArea>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

#include "ui/widgets/cats.h"
#include "ui/widgets/colours.h"
#include "ui/widgets/face.h"
#include "ui/widgets/glyphs.h"
#include "ui/widgets/metrics.h"

namespace torvenhall
{

namespace
{

constexpr double FieldRadius = 4;
// Of an item of a menu: what stands before its words and behind them.
constexpr double MarkWidth = 24;
constexpr double ItemEnd = 14;

void PaintRow(QPainter& painter, const QRectF& place, const QColor& fill)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(place, Px(FieldRadius), Px(FieldRadius));
}

/// The hollow of a field or list, with its border, warm when it has the focus.
void PaintField(QPainter& painter, const QStyleOption& option, const QColor& fill)
{
    const double line = std::max(1.0, UnitScale());
    const QRectF place = QRectF(option.rect).adjusted(line / 2, line / 2, -line / 2, -line / 2);
    const bool focused = option.state & QStyle::State_HasFocus;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill);
    painter.setPen(QPen(focused ? colour::Warm : colour::Border, line));
    painter.drawRoundedRect(place, Px(FieldRadius), Px(FieldRadius));
    painter.restore();
}

void PaintMenuItem(QPainter& painter, const QStyleOptionMenuItem& item)
{
    const QRectF place(item.rect);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        painter.setPen(QPen(colour::Border, std::max(1.0, UnitScale())));
        painter.drawLine(QPointF(place.left() + Px(8), place.center().y()),
                         QPointF(place.right() - Px(8), place.center().y()));
        painter.restore();
        return;
    }
    const bool usable = item.state & QStyle::State_Enabled;
    const bool chosen = usable && (item.state & QStyle::State_Selected);
    if (chosen) {
        PaintRow(painter, place.adjusted(Px(2), 0, -Px(2), 0), colour::Chosen);
    }
    if (!item.icon.isNull()) {
        QRect sign(0, 0, Px(14), Px(14));
        sign.moveCenter(
            QPointF(place.left() + Px(MarkWidth + 3) / 2.0, place.center().y()).toPoint());
        item.icon.paint(&painter, sign);
    }
    if (item.checked) {
        QRectF mark(0, 0, Px(13), Px(13));
        mark.moveCenter({place.left() + Px(MarkWidth) / 2.0 + Px(1), place.center().y()});
        DrawGlyph(painter, Glyph::Play, mark, colour::Warm);
    }
    painter.setFont(item.font);
    painter.setPen(!usable ? colour::Faint : item.checked ? colour::Warm : colour::Text);
    const QRectF words = place.adjusted(Px(MarkWidth), 0, -Px(ItemEnd), 0);
    const QStringList parts = item.text.split('\t');
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, parts.first());
    if (parts.size() > 1) {
        painter.setPen(colour::Caption);
        painter.drawText(words, Qt::AlignRight | Qt::AlignVCenter, parts.last());
    }
    painter.restore();
}

void PaintMenuBarItem(QPainter& painter, const QStyleOptionMenuItem& item)
{
    painter.fillRect(item.rect, colour::Night);
    if (item.state & (QStyle::State_Selected | QStyle::State_Sunken)) {
        PaintRow(painter, QRectF(item.rect).adjusted(0, Px(1), 0, -Px(1)), colour::Chosen);
    }
    painter.setPen(colour::Text);
    painter.drawText(item.rect, Qt::AlignCenter | Qt::TextShowMnemonic, item.text);
}

void PaintScrollBar(QPainter& painter, const QStyle& style, const QStyleOptionSlider& bar,
                    const QWidget* widget)
{
    QRectF handle =
        style.subControlRect(QStyle::CC_ScrollBar, &bar, QStyle::SC_ScrollBarSlider, widget);
    const QRectF groove =
        style.subControlRect(QStyle::CC_ScrollBar, &bar, QStyle::SC_ScrollBarGroove, widget);
    if (bar.orientation == Qt::Vertical && groove.height() > 0) {
        // It has no arrows, whose room the toolkit leaves all the same.
        const double stretch = bar.rect.height() / groove.height();
        handle = {handle.left(), (handle.top() - groove.top()) * stretch, handle.width(),
                  handle.height() * stretch};
    }
    painter.fillRect(bar.rect, QColor(7, 12, 19));
    const double in = std::max(1, Px(2));
    handle.adjust(in, in, -in, -in);
    PaintRow(painter, handle,
             bar.state & QStyle::State_MouseOver ? QColor(70, 118, 134) : QColor(46, 74, 90));
}

void PaintComboBox(QPainter& painter, const QStyleOptionComboBox& box)
{
    painter.setRenderHint(QPainter::Antialiasing);
    PaintFace(painter, box.rect, {.lit = (box.state & QStyle::State_MouseOver) != 0});
    if (box.state & QStyle::State_HasFocus) {
        PaintFocus(painter, box.rect, Px(5));
    }
    const QPointF tip(box.rect.right() - Px(12), box.rect.center().y() + Px(2));
    painter.setPen(QPen(colour::Warm, 1.4 * UnitScale(), Qt::SolidLine, Qt::RoundCap));
    painter.drawPolyline(
        QPolygonF{tip + QPointF(-Px(4), -Px(4)), tip, tip + QPointF(Px(4), -Px(4))});
}

/// What a tooltip stands on: lighter than the panels that it lies over, with a
/// warm edge where the words begin.
void PaintTip(QPainter& painter, const QRectF& place)
{
    painter.fillRect(place, QColor(24, 36, 50));
    const double line = std::max(1.0, UnitScale());
    painter.fillRect(QRectF(place.topLeft(), QSizeF(Px(3), place.height())), colour::Warm);
    painter.setPen(QPen(QColor(120, 190, 205, 120), line));
    painter.drawRect(place.adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

Face FaceOf(const QStyleOption& button)
{
    const auto* push = qstyleoption_cast<const QStyleOptionButton*>(&button);
    const bool isDefault =
        push != nullptr && (push->features & QStyleOptionButton::DefaultButton) != 0;
    return {.usable = (button.state & QStyle::State_Enabled) != 0,
            .down = (button.state & QStyle::State_Sunken) != 0,
            .lit = (button.state & QStyle::State_MouseOver) != 0,
            .primary = isDefault,
            .focused = (button.state & QStyle::State_HasFocus) != 0};
}

} // namespace

QIcon GameStyle::standardIcon(StandardPixmap sign, const QStyleOption* option,
                              const QWidget* widget) const
{
    switch (sign) {
    case SP_MessageBoxInformation:
        return CatIcon(Cat::Informing);
    case SP_MessageBoxWarning:
        return CatIcon(Cat::Warned);
    case SP_MessageBoxQuestion:
        return CatIcon(Cat::Asking);
    case SP_MessageBoxCritical:
        return CatIcon(Cat::Burnt);
    default:
        return QProxyStyle::standardIcon(sign, option, widget);
    }
}

void GameStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const
{
    if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        box && control == CC_ComboBox) {
        PaintComboBox(*painter, *box);
        return;
    }
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar && control == CC_ScrollBar) {
        PaintScrollBar(*painter, *this, *bar, widget);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void GameStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    switch (element) {
    case CE_MenuItem:
        PaintMenuItem(*painter, *item);
        return;
    case CE_MenuBarItem:
        PaintMenuBarItem(*painter, *item);
        return;
    case CE_MenuBarEmptyArea:
        painter->fillRect(option->rect, colour::Night);
        return;
    case CE_PushButtonBevel:
        painter->setRenderHint(QPainter::Antialiasing);
        PaintFace(*painter, option->rect, FaceOf(*option));
        return;
    case CE_ComboBoxLabel:
        painter->setPen(colour::Text);
        painter->drawText(option->rect.adjusted(Px(8), 0, -Px(24), 0), Qt::AlignVCenter,
                          qstyleoption_cast<const QStyleOptionComboBox*>(option)->currentText);
        return;
    case CE_ShapedFrame:
        if (qobject_cast<const QAbstractScrollArea*>(widget)) {
            PaintField(*painter, *option, Qt::transparent);
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void GameStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case PE_PanelLineEdit:
        PaintField(*painter, *option,
                   option->state & State_Enabled ? colour::Hollow : colour::Night);
        return;
    case PE_PanelTipLabel:
        PaintTip(*painter, option->rect);
        return;
    case PE_PanelMenu:
    case PE_FrameMenu:
        painter->fillRect(option->rect, colour::Hollow);
        painter->setPen(QPen(QColor(120, 190, 205, 120), std::max(1.0, UnitScale())));
        painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
        return;
    case PE_PanelItemViewItem:
        if (option->state & State_Selected) {
            PaintRow(*painter, option->rect, colour::Chosen);
        } else if (option->state & State_MouseOver) {
            PaintRow(*painter, option->rect, QColor(28, 43, 58));
        }
        return;
    case PE_FrameFocusRect: // the list around the row and the button's own face show it
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

int GameStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const
{
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_MessageBoxIconSize:
        return Px(72);
    case PM_MenuPanelWidth:
    case PM_MenuVMargin:
        return Px(3);
    case PM_FocusFrameHMargin: // before the words of a list's row
        return Px(6);
    case PM_DefaultFrameWidth:
        // Room for the border; before the words of a field some more.
        return qobject_cast<const QLineEdit*>(widget)             ? Px(5)
               : qobject_cast<const QAbstractScrollArea*>(widget) ? Px(3)
                                                                  : usual;
    case PM_ToolTipLabelFrameWidth:
        return Px(7);
    case PM_LayoutLeftMargin: // of the message boxes
    case PM_LayoutRightMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutBottomMargin:
        return Px(19);
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return Px(usual);
    case PM_ScrollBarExtent:
        return Px(11);
    default:
        return usual;
    }
}

QSize GameStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                  const QSize& contents, const QWidget* widget) const
{
    if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        item && type == CT_MenuItem) {
        if (item->menuItemType == QStyleOptionMenuItem::Separator) {
            return {contents.width(), Px(9)};
        }
        const QFontMetrics metrics(item->font);
        const QStringList parts = item->text.split('\t');
        const int words = metrics.size(Qt::TextShowMnemonic, parts.first()).width();
        const int keys = parts.size() > 1 ? metrics.horizontalAdvance(parts.last()) + Px(24) : 0;
        return {Px(MarkWidth + ItemEnd) + words + keys, metrics.height() + Px(6)};
    }
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

} // namespace torvenhall
