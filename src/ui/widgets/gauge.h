#pragma once

#include <QColor>
#include <QWidget>

namespace torvenhall
{

/// A slim bar beside a number: a share of a whole, a number of steps, or a
/// value that may fall below zero, growing to the left of a middle mark.
class Gauge : public QWidget
{
public:
    enum class Kind : unsigned char { Share, Steps, AroundZero };
    Gauge(Kind kind, QWidget* parent);

    /// The value and the amount that fills the bar. Steps: how many of all.
    void Show(double newValue, double newFull, bool danger = false);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintSteps(QPainter& painter) const;
    void PaintBar(QPainter& painter, double from, double to) const;
    QColor Ink() const;

    Kind kind;
    double value = 0;
    double full = 100;
    bool danger = false;
};

} // namespace torvenhall
