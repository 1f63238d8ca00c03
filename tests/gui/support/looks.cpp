#include "support/looks.h"

#include <QFontMetricsF>
#include <QMenuBar>
#include <QStyle>
#include <QtMath>

#include <array>
#include <cmath>
#include <optional>

#include "support/play.h"
#include "ui/widgets/button.h"
#include "ui/widgets/label.h"
#include "ui/widgets/metrics.h"

namespace torvenhall::test
{

namespace
{

// Letters squeezed more than this, or smaller, are no longer easy to read.
constexpr double NarrowestStretch = 0.7;
constexpr double SmallestUnits = 9;
constexpr double ButtonPadding = 9;

QString NameOf(const QWidget& control)
{
    return control.objectName() + " \"" + TextOf(control).left(40) + '"';
}

/// The height that a text needs in lines of a width, in the smallest font
/// that is still readable.
double WrappedHeight(const GameLabel& label)
{
    QFont smallest = label.font();
    smallest.setPixelSize(std::min(smallest.pixelSize(), Px(SmallestUnits)));
    const QRectF column(0, 0, label.contentsRect().width(), 1e5);
    return QFontMetricsF(smallest).boundingRect(column, Qt::TextWordWrap, label.text()).height();
}

/// Where a label's letters stand, in the label.
QRectF Ink(const GameLabel& label)
{
    const QRect room = label.contentsRect();
    if (label.wordWrap()) {
        return room;
    }
    const QFontMetricsF metrics(label.font());
    const QRectF tight = metrics.tightBoundingRect(label.text());
    const double width = std::min<double>(metrics.horizontalAdvance(label.text()), room.width());
    const QRectF line = QStyle::alignedRect(Qt::LeftToRight, label.alignment(),
                                            {qCeil(width), qCeil(metrics.height())}, room);
    return {line.left(), line.top() + metrics.ascent() + tight.top(), width, tight.height()};
}

/// What a text takes up in its parent; empty for what shows none.
QRectF TextPlace(const QWidget& control)
{
    if (const auto* label = dynamic_cast<const GameLabel*>(&control)) {
        return label->text().isEmpty() ? QRectF() : Ink(*label).translated(label->pos());
    }
    const char* const kinds[]{"QAbstractButton", "QLineEdit", "QComboBox", "QAbstractScrollArea"};
    const bool shows = std::any_of(std::begin(kinds), std::end(kinds),
                                   [&](const char* kind) { return control.inherits(kind); });
    return shows ? QRectF(control.geometry()) : QRectF();
}

bool IsCut(const QWidget& control)
{
    const QFontMetricsF metrics(control.font());
    const QRectF room = control.contentsRect();
    const double natural = metrics.horizontalAdvance(TextOf(control)) * NarrowestStretch;
    if (const auto* label = dynamic_cast<const GameLabel*>(&control)) {
        const bool whole =
            label->wordWrap() ? WrappedHeight(*label) <= room.height() : natural <= room.width();
        const QRectF ink = Ink(*label);
        return !whole || !label->TextFits() || ink.top() < -0.5 ||
               ink.bottom() > label->height() + 0.5;
    }
    if (const auto* button = dynamic_cast<const GameButton*>(&control)) {
        return natural > button->width() - 2 * Px(ButtonPadding) || !button->TextFits() ||
               metrics.height() > button->height();
    }
    if (const auto* bar = qobject_cast<const QMenuBar*>(&control)) {
        const auto items = bar->actions();
        return std::any_of(items.begin(), items.end(), [&](QAction* item) {
            const QRect place = bar->actionGeometry(item);
            return !bar->rect().contains(place) || metrics.height() > place.height();
        });
    }
    if (const auto* label = qobject_cast<const QLabel*>(&control)) {
        return label->wordWrap() && label->heightForWidth(label->width()) > label->height() + 1;
    }
    if (TextPlace(control).isEmpty() || control.inherits("QAbstractScrollArea")) {
        return false; // shows no text, or scrolls it
    }
    // What is left are the toolkit's own fields, and the buttons of boxes.
    return (!control.inherits("QLineEdit") && control.sizeHint().width() > control.width() + 1) ||
           metrics.height() > room.height();
}

/// Whether one text lies over another, which is not its shadow.
bool LiesOver(const QWidget& one, const QWidget& other)
{
    const bool isShadow = one.inherits("QLabel") && TextOf(one) == TextOf(other);
    return one.parent() == other.parent() && !isShadow &&
           TextPlace(one).adjusted(0.5, 0.5, -0.5, -0.5).intersects(TextPlace(other));
}

double Luminance(QRgb colour)
{
    // The light of a colour channel's value.
    static const auto light = [] {
        std::array<double, 256> table{};
        for (std::size_t i = 0; i < table.size(); ++i) {
            const double share = static_cast<double>(i) / 255;
            table[i] = share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
        }
        return table;
    }();
    const auto at = [](int channel) { return light[static_cast<std::size_t>(channel)]; };
    return 0.2126 * at(qRed(colour)) + 0.7152 * at(qGreen(colour)) + 0.0722 * at(qBlue(colour));
}

/// The least contrast of a text to what is behind it. Its letters are what
/// differs between the pictures; the strongest has its colour, unless given.
double LeastContrast(const QImage& with, const QImage& without, std::optional<QRgb> ink)
{
    QRect letters;
    QRgb strongest = 0;
    double most = 0, least = 21;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            const QRgb shown = with.pixel(x, y), behind = without.pixel(x, y);
            if (shown != behind) {
                letters |= QRect(x, y, 1, 1);
                if (const double contrast = Contrast(shown, behind); contrast > most) {
                    most = contrast;
                    strongest = shown;
                }
            }
        }
    }
    for (int y = letters.top(); y <= letters.bottom(); ++y) {
        for (int x = letters.left(); x <= letters.right(); ++x) {
            least = std::min(least, Contrast(ink.value_or(strongest), without.pixel(x, y)));
        }
    }
    return least;
}

} // namespace

double Contrast(QRgb one, QRgb other)
{
    const double a = Luminance(one), b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QImage Render(QWidget& window, const QRect& part)
{
    return window.grab(part).toImage().convertToFormat(QImage::Format_RGB32);
}

QStringList TextFindings(QWidget& window)
{
    QStringList findings;
    QList<QWidget*> shown;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (!control->isVisible() || control->window() != &window) {
            continue;
        }
        if (IsCut(*control)) {
            findings << NameOf(*control) + " is cut";
        }
        if (!TextPlace(*control).isEmpty() &&
            !control->parentWidget()->rect().contains(control->geometry())) {
            findings << NameOf(*control) + " stands out of its parent";
        }
        for (const QWidget* other : shown) {
            if (LiesOver(*control, *other)) {
                findings << NameOf(*control) + " lies over " + NameOf(*other);
            }
        }
        shown << control;
    }
    return findings;
}

QStringList ContrastFindings(QWidget& window, double least)
{
    QStringList findings;
    for (QWidget* each : window.findChildren<QWidget*>()) {
        auto* label = dynamic_cast<GameLabel*>(each);
        auto* button = dynamic_cast<GameButton*>(each);
        if (!(label || button) || TextOf(*each).isEmpty() || !each->isVisible() ||
            (label && label->Colour().alpha() < 255)) {
            continue;
        }
        const QRect part(each->mapTo(&window, QPoint()), each->size());
        const QString text = button ? button->text() : QString();
        if (button) {
            button->SetGlyph(Glyph::None); // it would move with the text
        }
        const QImage with = Render(window, part);
        label ? label->hide() : button->setText({});
        const QImage without = Render(window, part);
        label ? label->show() : button->setText(text);
        const auto ink = label ? std::optional(label->Colour().rgb()) : std::nullopt;
        if (const double found = LeastContrast(with, without, ink); found < least) {
            findings << NameOf(*each) + QString(" has %1").arg(found, 0, 'f', 2);
        }
    }
    return findings;
}

} // namespace torvenhall::test
