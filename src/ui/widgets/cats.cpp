#include "ui/widgets/cats.h"

#include <QIconEngine>
#include <QPainter>

#include "ui/widgets/metrics.h"
#include "ui/widgets/pictures.h"

namespace torvenhall
{

namespace
{

/// Of the sheet: a cat's square, in units, and how many stand in a row.
constexpr double Side = 72;
constexpr int InRow = 4;

void DrawCat(QPainter& painter, Cat cat, const QRectF& place)
{
    const auto index = static_cast<int>(cat);
    const QRectF cell(Side * (index % InRow), Side * (index / InRow), Side, Side);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    DrawCutOut(painter, "CATS", cell, place);
}

class CatEngine : public QIconEngine
{
public:
    explicit CatEngine(Cat cat) : cat(cat) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode, QIcon::State) override
    {
        DrawCat(*painter, cat, place);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, {{}, size}, mode, state);
        return drawn;
    }

    QIconEngine* clone() const override { return new CatEngine(cat); }

private:
    Cat cat;
};

} // namespace

QIcon CatIcon(Cat cat)
{
    return QIcon(new CatEngine(cat));
}

CatPicture::CatPicture(Cat cat, QWidget* parent) : QWidget(parent), cat(cat)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void CatPicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    DrawCat(painter, cat, rect());
}

} // namespace torvenhall
