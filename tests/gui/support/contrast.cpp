#include "support/looks.h"

#include <QLabel>

#include <array>
#include <cmath>

#include "ui/support/button.h"
#include "ui/support/label.h"

namespace torvenhall::test
{

namespace
{

/// The light of a colour channel's value.
double Channel(int value)
{
    static const auto table = [] {
        std::array<double, 256> light{};
        for (std::size_t i = 0; i < light.size(); ++i) {
            const double share = static_cast<double>(i) / 255;
            light[i] = share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
        }
        return light;
    }();
    return table[static_cast<std::size_t>(value)];
}

double Luminance(QRgb colour)
{
    return 0.2126 * Channel(qRed(colour)) + 0.7152 * Channel(qGreen(colour)) +
           0.0722 * Channel(qBlue(colour));
}

/// The least contrast of a colour to the pixels of a part of a picture.
double LeastContrast(QRgb ink, const QImage& behind, const QRect& part)
{
    double least = 21;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            least = std::min(least, Contrast(ink, behind.pixel(x, y)));
        }
    }
    return least;
}

struct Letters {
    QRgb ink = 0;
    QRect place;
};

/// The letters are what differs between a picture with a text and without.
Letters FindLetters(const QImage& with, const QImage& without)
{
    Letters letters;
    double strongest = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            const QRgb shown = with.pixel(x, y), behind = without.pixel(x, y);
            if (shown == behind) {
                continue;
            }
            letters.place |= QRect(x, y, 1, 1);
            const double contrast = Contrast(shown, behind);
            if (contrast > strongest) {
                strongest = contrast;
                letters.ink = shown;
            }
        }
    }
    return letters;
}

QImage RenderPart(QWidget& window, const QWidget& part)
{
    const QPoint corner = part.mapTo(&window, QPoint());
    return window.grab(QRect(corner, part.size())).toImage().convertToFormat(QImage::Format_RGB32);
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

QStringList ContrastFindings(QWidget& window, double least)
{
    QStringList findings;
    const auto judge = [&](const QWidget& control, const QString& text, const Letters& letters,
                           const QImage& behind) {
        const double found = LeastContrast(letters.ink, behind, letters.place);
        if (!letters.place.isEmpty() && found < least) {
            findings << NameOf(control, text) + QString(" has %1").arg(found, 0, 'f', 2);
        }
    };
    for (auto* each : window.findChildren<QLabel*>()) {
        auto* label = dynamic_cast<GameLabel*>(each);
        if (label && label->isVisible() && !label->text().isEmpty() &&
            label->Colour().alpha() == 255) {
            const QImage with = RenderPart(window, *label);
            label->setVisible(false);
            const QImage without = RenderPart(window, *label);
            label->setVisible(true);
            Letters letters = FindLetters(with, without);
            letters.ink = label->Colour().rgb();
            judge(*label, label->text(), letters, without);
        }
    }
    for (auto* each : window.findChildren<QPushButton*>()) {
        auto* button = dynamic_cast<GameButton*>(each);
        if (button && button->isVisible() && !button->text().isEmpty()) {
            const QString text = button->text();
            button->SetGlyph(Glyph::None); // it would move with the text
            const QImage with = RenderPart(window, *button);
            button->setText({});
            const QImage without = RenderPart(window, *button);
            button->setText(text);
            judge(*button, text, FindLetters(with, without), without);
        }
    }
    return findings;
}

} // namespace torvenhall::test
