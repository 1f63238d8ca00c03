#pragma once

#include <QColor>
#include <QWidget>

namespace torvenhall
{

/// A slim bar beside a number: a share of a whole, a number of steps, or a
/// value that may fall below zero, growing to the left of a middle mark. It can
/// show beforehand how it would change.
class Gauge : public QWidget
{
public:
    enum class Kind : unsigned char { Share, Steps, AroundZero };
    struct Reading {
        double share = 0; ///< of the whole bar
        int steps = 0;    ///< that the bar has, for Steps
        bool danger = false;
    };
    /// The reading is asked for whenever the gauge is painted.
    Gauge(Kind kind, Reading (*reading)(), QWidget* parent);

    /// The change that is about to come, as a share of the bar; 0 for none.
    void SetGhost(double newGhost);
    double Ghost() const { return ghost; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintSteps(QPainter& painter, const Reading& shown) const;
    void PaintBar(QPainter& painter, const QColor& ink, double from, double to) const;
    void PaintGhost(QPainter& painter, double from, double to) const;

    Kind kind;
    Reading (*reading)();
    double ghost = 0;
};

} // namespace torvenhall
