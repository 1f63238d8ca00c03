#pragma once

#include <QVariantAnimation>
#include <QWidget>

namespace torvenhall
{

/// A change of a widget's looks that takes a moment. The widget is painted anew
/// until it is over; then no timer runs. Where life is still it is over at once.
class Motion
{
public:
    explicit Motion(QWidget& newMoved) : moved(newMoved) {}

    void Begin(int milliseconds);
    /// How much of it is still to come, from 1 to 0.
    double Left() const;

private:
    QWidget& moved;
    QVariantAnimation* running = nullptr; ///< the widget's; most never move
};

} // namespace torvenhall
