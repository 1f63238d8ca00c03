#pragma once

#include <QPixmap>
#include <QRectF>
#include <QWidget>

#include <string_view>
#include <vector>

namespace torvenhall
{

/// The surface of a window: its picture, and over it panels of dark frosted
/// glass on which texts are easy to read.
class Scene : public QWidget
{
public:
    enum class Panel : unsigned char { Glass, Deep };

    /// Size in units.
    Scene(double width, double height, QWidget* parent);

    /// Loads the background of a window by its picture key.
    void LoadBackground(std::string_view key);
    void ShowPicture(const QPixmap& newPicture);
    /// Adds a panel; place in units.
    void AddPanel(const QRectF& place, Panel kind = Panel::Glass);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Plate {
        QRectF place;
        Panel kind;
    };
    void Compose();

    QPixmap picture;
    QPixmap composed; ///< picture and panels, ready to be copied to the screen
    std::vector<Plate> plates;
};

/// Draws one panel with its slim border; place in toolkit pixels.
void PaintPanel(QPainter& painter, const QRectF& place, const QPixmap& frosted, Scene::Panel kind);

} // namespace torvenhall
