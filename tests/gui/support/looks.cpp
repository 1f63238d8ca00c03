#include "support/looks.h"

#include <QFontMetricsF>
#include <QMenuBar>

#include <cmath>

#include "support/play.h"
#include "ui/widgets/gamebutton.h"
#include "ui/widgets/gamelabel.h"
#include "ui/widgets/metrics.h"

namespace torvenhall::test
{

namespace
{

constexpr auto TextOf = [](const QWidget& control) { return Screen::TextOf(control); };

// Letters squeezed more than this, or smaller, are no longer easy to read.
constexpr double NarrowestStretch = 0.7;
constexpr double SmallestUnits = 9;

QString NameOf(const QWidget& control)
{
    return control.objectName() + " \"" + TextOf(control).left(40) + '"';
}

/// What a text takes up in a room, its line's air left out.
QRectF Ink(const QWidget& control, const QRectF& room, const QFont& font)
{
    const auto* label = qobject_cast<const QLabel*>(&control);
    const int flags = label ? static_cast<int>(label->alignment()) : Qt::AlignCenter;
    const int wraps = label && label->wordWrap() ? Qt::TextWordWrap : 0;
    const QFontMetricsF metrics(font);
    const double air = metrics.height() * 0.15;
    return metrics.boundingRect(room, flags | wraps, TextOf(control)).adjusted(0, air, 0, -air);
}

bool IsCut(const QWidget& control)
{
    QRectF room = control.contentsRect();
    QFont font = control.font();
    const auto* label = qobject_cast<const QLabel*>(&control);
    if (const auto* own = dynamic_cast<const GameLabel*>(label); own && own->wordWrap()) {
        font.setPixelSize(std::min(font.pixelSize(), Px(SmallestUnits)));
        return !own->TextFits() || !room.contains(Ink(control, room, font));
    } else if (own) {
        room.setWidth(room.width() / NarrowestStretch);
        return !own->TextFits() || !room.contains(Ink(control, room, font));
    }
    if (const auto* button = dynamic_cast<const GameButton*>(&control)) {
        room.setWidth((room.width() - Px(18)) / NarrowestStretch);
        return !button->TextFits() || !room.contains(Ink(control, room, font));
    }
    bool cut = false; // the toolkit's own: menus, the texts of boxes, buttons, fields
    for (QAction* item : control.inherits("QMenuBar") ? control.actions() : QList<QAction*>()) {
        cut |= !room.contains(static_cast<const QMenuBar&>(control).actionGeometry(item));
    }
    const bool shows = control.inherits("QAbstractButton") || control.inherits("QComboBox");
    return cut || (label && label->heightForWidth(label->width()) > label->height() + 1) ||
           (shows && control.sizeHint().width() > control.width() + 1) ||
           (control.inherits("QLineEdit") && QFontMetricsF(font).height() > room.height());
}

/// Whether one text lies over another, which is not its shadow.
bool LiesOver(const QWidget& one, const QWidget& other)
{
    const auto place = [](const QWidget& control) {
        const QRectF ink = Ink(control, control.contentsRect(), control.font());
        return control.inherits("QLabel") ? (ink & control.rect()).translated(control.pos())
                                          : QRectF(control.geometry());
    };
    return one.parent() == other.parent() && TextOf(one) != TextOf(other) &&
           place(one).adjusted(0.5, 0.5, -0.5, -0.5).intersects(place(other));
}

double Luminance(QRgb colour)
{
    const auto light = [](int channel) {
        const double share = channel / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * light(qRed(colour)) + 0.7152 * light(qGreen(colour)) +
           0.0722 * light(qBlue(colour));
}

/// The least contrast of a control's letters, which are what differs between
/// two pictures of its window, to what is behind them.
double LeastContrast(const QWidget& control, const QImage& with, const QImage& without)
{
    const int ratio = qRound(with.devicePixelRatio());
    const QRect place(control.mapTo(control.window(), QPoint()) * ratio, control.size() * ratio);
    QRgb ink = 0, darkest = 0xFFFFFFFF, brightest = 0xFF000000;
    const auto lighter = [](QRgb one, QRgb other) {
        return qGray(one) > qGray(other) ? one : other;
    };
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            const QRgb shown = with.pixel(x, y), behind = without.pixel(x, y);
            if (shown != behind) {
                ink = lighter(shown, ink);
                brightest = lighter(behind, brightest);
                darkest = lighter(behind, darkest) == behind ? darkest : behind;
            }
        }
    }
    if (const auto* label = dynamic_cast<const GameLabel*>(&control)) {
        ink = label->Colour().rgb();
    }
    return std::min(Contrast(ink, darkest), Contrast(ink, brightest));
}

} // namespace

double Contrast(QRgb one, QRgb other)
{
    const double a = Luminance(one), b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QImage Render(QWidget& window)
{
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QStringList TextFindings(const QWidget& window)
{
    QStringList findings;
    QList<const QWidget*> texts;
    for (const QWidget* each : window.findChildren<QWidget*>()) {
        const bool isText = !TextOf(*each).isEmpty();
        if (!each->isVisible() || each->window() != &window ||
            (each->inherits("QLabel") && !isText)) {
            continue;
        }
        findings << (IsCut(*each) ? QStringList{NameOf(*each) + " is cut"} : QStringList());
        if (isText && !each->objectName().startsWith("qt_")) {
            for (const QWidget* other : texts) {
                if (LiesOver(*each, *other)) {
                    findings << NameOf(*each) + " lies over " + NameOf(*other);
                }
            }
            if (!each->parentWidget()->rect().contains(each->geometry())) {
                findings << NameOf(*each) + " stands out of its parent";
            }
            texts << each;
        }
    }
    return findings;
}

QStringList ContrastFindings(QWidget& window, double least)
{
    std::vector<std::pair<QWidget*, QString>> texts;
    for (QWidget* each : window.findChildren<QWidget*>()) {
        const auto* label = dynamic_cast<GameLabel*>(each);
        auto* button = dynamic_cast<GameButton*>(each);
        if (each->isVisible() && (button || (label && label->Colour().alpha() == 255))) {
            texts.emplace_back(each, each->property("text").toString());
        }
        if (button) {
            button->SetGlyph(Glyph::None); // it would move with the text
        }
    }
    const QImage with = Render(window);
    for (const auto& [control, text] : texts) {
        control->setProperty("text", QString());
    }
    const QImage without = Render(window);
    QStringList findings;
    for (const auto& [control, text] : texts) {
        control->setProperty("text", text);
        const double found = text.isEmpty() ? least : LeastContrast(*control, with, without);
        if (found < least) {
            findings << NameOf(*control) + QString(" has %1").arg(found, 0, 'f', 2);
        }
    }
    return findings;
}

} // namespace torvenhall::test
