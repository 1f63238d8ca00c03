#pragma once

#include <QPixmap>
#include <QRectF>
#include <QWidget>

#include <string>
#include <string_view>
#include <vector>

namespace torvenhall
{

/// The surface of a window: its picture, and over it panels of dark frosted
/// glass on which texts are easy to read.
class Scene : public QWidget
{
public:
    /// Glass for most texts; Deep, nearly black, for red ones too; Shade, a
    /// darkness without a border that ends softly, behind a slogan.
    enum class Panel : unsigned char { Glass, Deep, Shade };

    /// Size in units.
    Scene(double width, double height, QWidget* parent);

    /// Loads the background of a window by its picture key.
    void LoadBackground(std::string_view key);
    /// Shows a picture by its embedded name.
    void ShowPicture(std::string_view name);
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
    void PaintPlates(QPainter& painter, Panel kind, const QPixmap& behind) const;

    std::string picture; ///< its embedded name
    QPixmap composed;    ///< picture and panels, ready to be copied to the screen
    std::vector<Plate> plates;
};

} // namespace torvenhall
