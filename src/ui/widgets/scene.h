#pragma once

#include <QPixmap>
#include <QRectF>
#include <QRegion>
#include <QWidget>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/widgets/sign.h"

namespace torvenhall
{

/// The surface of a window: its picture, and over it dark panels on which texts
/// are easy to read.
class Scene : public QWidget
{
public:
    /// Plain for most texts; Deep, nearly black, for red ones too; Bare, without
    /// a border, for what is drawn on a panel.
    enum class Panel : unsigned char { Plain, Deep, Bare };

    /// Size in units.
    Scene(double width, double height, QWidget* parent);

    /// Loads the background of a window by its picture key.
    void LoadBackground(std::string_view key);
    /// Shows a picture by its embedded name.
    void ShowPicture(std::string_view name);
    /// Adds a panel; place in units.
    void AddPanel(const QRectF& place, Panel kind = Panel::Plain);
    /// Whether anything in the picture moves.
    bool Moves() const { return !flickers.empty(); }
    /// The next step of the quiet life.
    virtual void Step();
    /// Adds what a slogan stands on.
    void AddSign(const QRectF& place, Sign sign);

protected:
    void paintEvent(QPaintEvent* event) override;
    /// Draws what lies behind the panels, by default the picture.
    virtual void PaintBackground(QPainter& painter);
    /// What lies behind the panels has changed, everywhere or in a place in pixels.
    void DrawAnew();
    void DrawAnew(const QRect& place);

private:
    struct Plate {
        QRectF place;
        Panel kind;
        std::optional<Sign> sign;
    };
    /// Brings the composed picture up to date.
    void Compose();

    std::string picture; ///< its embedded name
    QPixmap composed;    ///< picture and panels, ready to be copied to the screen
    QRegion outdated;    ///< where it is to be composed anew
    std::vector<Plate> plates;
    std::vector<QRectF> flickers;
    int step = 0;
};

/// A panel of its own, over whatever is behind it.
class Card : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace torvenhall
